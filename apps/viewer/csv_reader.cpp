#include "csv_reader.h"

#include "column_content.h"
#include "csv_format.h"
#include "csv_parser.h"
#include "input_file.h"
#include "row_collector.h"
#include "text_decoder.h"

#include <algorithm>

namespace vornix::viewer {

namespace {

constexpr std::size_t PieceSize = 1 << 18; // bytes

// Hands the file's text to the parser, piece by piece.
class CsvReader {
public:
    CsvReader(InputFile& file, const LoadLimits& limits, const ProgressFunction& progress)
        : file_(file)
        , limits_(limits)
        , progress_(progress)
        , buffer_(PieceSize)
        , collector_(limits)
    {
    }

    Table Read()
    {
        DecodeFirstPiece();
        const char16_t separator = SeparatorOf(text_, bytesRead_ == file_.Size());
        CsvParser parser(separator, limits_, [this](const CsvParser::Record& record) { collector_.Add(record); });
        while (!text_.empty() || decoder_.HasFailed()) {
            parser.Feed(text_);
            RaiseIfNoText(parser);
            Report();
            DecodePiece();
        }
        decoder_.Finish();
        RaiseIfNoText(parser);
        parser.Finish();
        return collector_.Finish();
    }

private:
    void DecodeFirstPiece()
    {
        const std::string_view bytes = ReadPiece();
        const EncodingGuess guess = GuessEncoding(bytes);
        decoder_ = TextDecoder(guess.encoding);
        encoding_ = guess.encoding;
        decoder_.Decode(bytes.substr(guess.markLength), text_);
    }

    // Leaves the text empty only at the end of the file: a piece is longer than any character.
    void DecodePiece()
    {
        text_.clear();
        decoder_.Decode(ReadPiece(), text_);
    }

    std::string_view ReadPiece()
    {
        const std::size_t count = file_.Read(buffer_);
        bytesRead_ += count;
        return { buffer_.data(), count };
    }

    // The first line may name the separator, as in: sep=;
    char16_t SeparatorOf(std::u16string& text, bool isWholeFile) const
    {
        constexpr std::u16string_view marker = u"sep=";
        const std::size_t lineEnd = std::min(text.find_first_of(u"\r\n"), text.size());
        if (lineEnd != marker.size() + 1 || !text.starts_with(marker) || text.size() == lineEnd)
            return GuessSeparator(
                std::u16string_view(text).substr(0, SampleLength), isWholeFile && text.size() <= SampleLength);
        const char16_t separator = text[marker.size()];
        text.erase(0, lineEnd); // its line break stays, as a blank line, for the line numbers
        return separator;
    }

    void RaiseIfNoText(const CsvParser& parser) const
    {
        if (!decoder_.HasFailed())
            return;
        const char* name = encoding_ == TextEncoding::Utf8 ? "UTF-8" : "UTF-16";
        throw LoadError("line " + std::to_string(parser.Line()) + ": invalid " + name + " text");
    }

    void Report() const
    {
        if (progress_)
            progress_({ collector_.RowCount(), bytesRead_, file_.Size() });
    }

    static constexpr std::size_t SampleLength = 1 << 16; // UTF-16 units

    InputFile& file_;
    const LoadLimits& limits_;
    const ProgressFunction& progress_;
    std::vector<char> buffer_;
    std::uint64_t bytesRead_ = 0;
    TextEncoding encoding_ = TextEncoding::Utf8;
    TextDecoder decoder_ { TextEncoding::Utf8 };
    std::u16string text_;
    RowCollector collector_;
};

} // namespace

Table ReadCsv(InputFile& file, const LoadLimits& limits, const ProgressFunction& progress)
{
    return CsvReader(file, limits, progress).Read();
}

} // namespace vornix::viewer
