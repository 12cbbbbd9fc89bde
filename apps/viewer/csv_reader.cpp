#include "csv_reader.h"

#include "csv_format.h"
#include "csv_parser.h"
#include "input_file.h"
#include "row_collector.h"
#include "text_file.h"

#include <algorithm>

namespace vornix::viewer {

namespace {

// Hands the file's text to the parser, piece by piece.
class CsvReader {
public:
    CsvReader(InputFile& file, const LoadLimits& limits, const ProgressFunction& progress)
        : file_(file)
        , limits_(limits)
        , progress_(progress)
        , text_(file)
        , collector_(limits)
    {
    }

    Table Read()
    {
        bool hasText = text_.Next();
        FindSeparator();
        CsvParser parser(
            layout_.separator, limits_, [this](const CsvParser::Record& record) { collector_.Add(record); });
        for (; hasText; hasText = text_.Next()) {
            parser.Feed(text_.Text());
            RaiseIfNoText(parser);
            Report();
        }
        RaiseIfNoText(parser);
        parser.Finish();
        Table table = collector_.Finish();
        layout_.encoding = text_.Encoding().encoding;
        layout_.hasHeader = collector_.HasHeader();
        layout_.print = text_.Print();
        return table;
    }

    const CsvLayout& Layout() const { return layout_; }

private:
    // The first line may name the separator, as in: sep=;
    void FindSeparator()
    {
        constexpr std::u16string_view marker = u"sep=";
        std::u16string& text = text_.Text();
        const bool isWholeFile = text_.BytesRead() == file_.Size();
        const std::size_t lineEnd = std::min(text.find_first_of(u"\r\n"), text.size());
        if (lineEnd != marker.size() + 1 || !text.starts_with(marker) || text.size() == lineEnd) {
            const auto sample = std::u16string_view(text).substr(0, SampleLength);
            layout_.separator = GuessSeparator(sample, isWholeFile && text.size() <= SampleLength);
            return;
        }
        layout_.separator = text[marker.size()];
        layout_.markerLength = lineEnd;
        text.erase(0, lineEnd); // its line break stays, as a blank line, for the line numbers
    }

    void RaiseIfNoText(const CsvParser& parser) const
    {
        if (text_.HasFailed())
            throw LoadError("line " + std::to_string(parser.Line()) + ": invalid " + text_.EncodingName() + " text");
    }

    void Report() const
    {
        if (progress_)
            progress_({ collector_.RowCount(), text_.BytesRead(), file_.Size() });
    }

    static constexpr std::size_t SampleLength = 1 << 16; // UTF-16 units

    InputFile& file_;
    const LoadLimits& limits_;
    const ProgressFunction& progress_;
    TextFile text_;
    CsvLayout layout_;
    RowCollector collector_;
};

} // namespace

Table ReadCsv(InputFile& file, const LoadLimits& limits, const ProgressFunction& progress, CsvLayout* layout)
{
    CsvReader reader(file, limits, progress);
    Table table = reader.Read();
    if (layout)
        *layout = reader.Layout();
    return table;
}

} // namespace vornix::viewer
