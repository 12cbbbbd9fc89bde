#include "csv_reader.h"

#include "csv_format.h"
#include "csv_parser.h"
#include "input_file.h"
#include "line_breaks.h"
#include "row_collector.h"
#include "text_file.h"

#include <algorithm>

namespace vornix::viewer {

namespace {

constexpr std::size_t SampleLength = 1 << 16; // UTF-16 units

// By the file's first piece. The first line may name the separator, as in: sep=;
CsvLayout LayoutOf(const TextFile& file, bool isWholeFile)
{
    constexpr std::u16string_view marker = u"sep=";
    CsvLayout layout;
    layout.encoding = file.Encoding().encoding;
    const std::u16string_view text = file.Text();
    const std::size_t lineEnd = std::min(text.find_first_of(u"\r\n"), text.size());
    if (lineEnd != marker.size() + 1 || !text.starts_with(marker) || text.size() == lineEnd) {
        layout.separator = GuessSeparator(text.substr(0, SampleLength), isWholeFile && text.size() <= SampleLength);
        return layout;
    }
    layout.separator = text[marker.size()];
    layout.markerLength = lineEnd;
    return layout;
}

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
        layout_ = LayoutOf(text_, text_.BytesRead() == file_.Size());
        text_.Text().erase(0, layout_.markerLength); // its line break stays, as a blank line, for the line numbers
        CsvParser parser(layout_.separator, limits_, [this](const CsvParser::Record& record) { Take(record); });
        for (; hasText; hasText = text_.Next()) {
            parser.Feed(text_.Text());
            RaiseIfNoText(parser);
            Report();
        }
        RaiseIfNoText(parser);
        parser.Finish();
        Table table = collector_.Finish();
        layout_.hasHeader = collector_.HasHeader();
        layout_.print = text_.Print();
        return table;
    }

    const CsvLayout& Layout() const { return layout_; }

private:
    void Take(const CsvParser::Record& record)
    {
        const std::u16string& text = text_.Text();
        const auto end = static_cast<std::size_t>(record.places.back().end);
        // A row that goes beyond the first piece says nothing.
        if (collector_.RowCount() == 0 && end < text.size())
            layout_.lineBreak = LineBreakOf(std::u16string_view(text).substr(end));
        collector_.Add(record);
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

CsvLayout GuessLayout(InputFile& file)
{
    TextFile text(file);
    text.Next();
    return LayoutOf(text, text.BytesRead() == file.Size());
}

} // namespace vornix::viewer
