#include "csv_saver.h"

#include "csv_parser.h"
#include "csv_reader.h"
#include "file_replacement.h"
#include "input_file.h"
#include "text_encoder.h"
#include "text_file.h"
#include "unicode.h"

#include <algorithm>

namespace vornix::viewer {

namespace {

constexpr char16_t Quote = u'"';

// Rows of columns and texts, as they are to stand in the file.
using Rows = std::map<int, Edits::RowEdits>;

// What takes the place of one field, by its place in all of the file's text.
struct Replacement {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
    std::u16string text;
};

bool NeedsQuotes(std::u16string_view text, char16_t separator, CsvQuoting quoting)
{
    constexpr std::u16string_view special = u"\"\r\n";
    constexpr std::u16string_view anySeparator = u"\t;|,";
    // A file of one column must not look like one of several.
    if (separator == 0 || quoting == CsvQuoting::AllSeparators) {
        if (text.find_first_of(anySeparator) != std::u16string_view::npos)
            return true;
    }
    // The last two would be taken for something else at the beginning of a file.
    return text.find_first_of(special) != std::u16string_view::npos
        || (separator != 0 && text.find(separator) != std::u16string_view::npos) || text.starts_with(u'\uFEFF')
        || text.starts_with(u"sep=");
}

std::u16string Quoted(std::u16string_view text)
{
    std::u16string quoted(1, Quote);
    for (const char16_t unit : text) {
        quoted += unit;
        if (unit == Quote)
            quoted += Quote;
    }
    return quoted + Quote;
}

// Reads texts as records and hands those of data rows on, by their number.
class RowParser {
public:
    using RowFunction = std::function<void(int row, const CsvParser::Record& record)>;

    RowParser(const CsvLayout& layout, const LoadLimits& limits, RowFunction onRow)
        : onRow_(std::move(onRow))
        , markerLength_(layout.markerLength)
        , row_(layout.hasHeader ? -1 : 0)
        , parser_(layout.separator, limits, [this](const CsvParser::Record& record) { Take(record); })
    {
    }

    // The pieces of a whole file, the marker of its first line with them.
    void Feed(std::u16string_view text)
    {
        const std::size_t passed = static_cast<std::size_t>(std::min<std::uint64_t>(markerLength_, text.size()));
        markerLength_ -= passed;
        parser_.Feed(text.substr(passed));
    }
    // Gives the number of rows.
    std::uint64_t Finish()
    {
        parser_.Finish();
        return static_cast<std::uint64_t>(row_);
    }

private:
    void Take(const CsvParser::Record& record)
    {
        if (row_ >= 0 && row_ < MaxGridLines)
            onRow_(static_cast<int>(row_), record);
        ++row_;
    }

    RowFunction onRow_;
    std::uint64_t markerLength_;
    std::int64_t row_;
    CsvParser parser_;
};

// Finds the fields that are to change.
class FieldFinder {
public:
    FieldFinder(const CsvLayout& layout, const LoadLimits& limits, const Rows& rows, CsvQuoting quoting)
        : layout_(layout)
        , rows_(rows)
        , quoting_(quoting)
        , parser_(layout, limits, [this](int row, const CsvParser::Record& record) { Take(row, record); })
    {
    }

    std::vector<Replacement> Find(InputFile& file)
    {
        TextFile text(file);
        Parse(text);
        if (text.Print() != layout_.print || text.HasFailed())
            throw SaveError(ChangedMeanwhile);
        rowCount_ = parser_.Finish();
        return std::move(found_);
    }
    // Of data, once found.
    std::uint64_t RowCount() const { return rowCount_; }

private:
    // What could be read once has other faults only when it is not the same any more.
    void Parse(TextFile& text)
    {
        try {
            while (text.Next())
                parser_.Feed(text.Text());
        } catch (const LoadError&) {
            throw SaveError(ChangedMeanwhile);
        }
    }

    void Take(int row, const CsvParser::Record& record)
    {
        const auto edits = rows_.find(row);
        if (edits == rows_.end())
            return;
        for (const auto& [column, text] : edits->second) {
            if (static_cast<std::size_t>(column) >= record.places.size())
                throw SaveError(ChangedMeanwhile);
            const CsvParser::Place& place = record.places[static_cast<std::size_t>(column)];
            const bool isBlankLine = record.fields.size() == 1 && text.find_first_not_of(u' ') == std::u16string::npos;
            const bool needsQuotes = place.isQuoted || isBlankLine || NeedsQuotes(text, layout_.separator, quoting_);
            found_.push_back({ layout_.markerLength + place.begin, layout_.markerLength + place.end,
                needsQuotes ? Quoted(text) : text });
        }
    }

    const CsvLayout& layout_;
    const Rows& rows_;
    const CsvQuoting quoting_;
    RowParser parser_;
    std::vector<Replacement> found_;
    std::uint64_t rowCount_ = 0;
};

// Reads what is written, to see that it says what it should.
class ReadBack {
public:
    ReadBack(const CsvLayout& layout, const LoadLimits& limits, const Rows& rows)
        : rows_(rows)
        , parser_(layout, limits, [this](int row, const CsvParser::Record& record) { Take(row, record); })
    {
    }

    void Feed(std::u16string_view text) { parser_.Feed(text); }
    void Finish(std::uint64_t wantedRows)
    {
        if (parser_.Finish() != wantedRows || !isRight_ || rightRows_ != rows_.size())
            throw SaveError("a changed text would not read as it was meant");
    }

private:
    void Take(int row, const CsvParser::Record& record)
    {
        const auto edits = rows_.find(row);
        if (edits == rows_.end())
            return;
        ++rightRows_;
        for (const auto& [column, text] : edits->second) {
            const auto index = static_cast<std::size_t>(column);
            isRight_ = isRight_ && index < record.fields.size() && record.fields[index].text == text;
        }
    }

    const Rows& rows_;
    RowParser parser_;
    bool isRight_ = true;
    std::size_t rightRows_ = 0;
};

// Copies a text, piece by piece, with some of its fields replaced.
class Splicer {
public:
    using TextFunction = std::function<void(std::u16string_view)>;

    Splicer(const std::vector<Replacement>& replacements, TextFunction onText)
        : next_(replacements.begin())
        , end_(replacements.end())
        , onText_(std::move(onText))
    {
    }

    void Feed(std::u16string_view text)
    {
        const std::uint64_t pieceEnd = place_ + text.size();
        for (; next_ != end_ && next_->begin < pieceEnd; ++next_) {
            if (place_ < next_->begin)
                Copy(next_->begin, text);
            Skip(std::min(pieceEnd, next_->end), text);
            if (next_->end > pieceEnd)
                return; // the field goes on in the next piece
            onText_(next_->text);
        }
        Copy(pieceEnd, text);
    }
    // An empty field at the end of the file begins where the last piece ended.
    void Finish()
    {
        for (; next_ != end_; ++next_)
            onText_(next_->text);
    }

private:
    // Both go on to that place, which is not before the present one.
    void Copy(std::uint64_t place, std::u16string_view& text)
    {
        onText_(text.substr(0, static_cast<std::size_t>(place - place_)));
        Skip(place, text);
    }
    void Skip(std::uint64_t place, std::u16string_view& text)
    {
        text.remove_prefix(static_cast<std::size_t>(place - place_));
        place_ = place;
    }

    std::vector<Replacement>::const_iterator next_;
    const std::vector<Replacement>::const_iterator end_;
    const TextFunction onText_;
    std::uint64_t place_ = 0; // in all of the text
};

// Reads the old file again and writes the new one; gives the new one's fingerprint.
std::uint64_t WriteSpliced(InputFile& file, std::uint64_t oldPrint, const std::vector<Replacement>& replacements,
    ReadBack& readBack, FileReplacement& target)
{
    Fingerprint print;
    std::string bytes;
    TextFile source(file);
    Splicer splicer(replacements, [&](std::u16string_view text) {
        readBack.Feed(text);
        AppendEncoded(text, source.Encoding().encoding, bytes);
    });
    const auto flush = [&] {
        target.Write(bytes);
        print.Add(bytes);
        bytes.clear();
    };
    for (bool isFirst = true; source.Next(); isFirst = false) {
        if (isFirst)
            bytes = source.Mark();
        splicer.Feed(source.Text());
        flush();
    }
    splicer.Finish();
    flush();
    if (source.Print() != oldPrint)
        throw SaveError(ChangedMeanwhile);
    return print.Value();
}

// Whether a file would be opened the way the layout says.
bool ReadsWith(const CsvLayout& layout, const std::string& path)
{
    InputFile file(path);
    const CsvLayout guess = GuessLayout(file);
    return guess.encoding == layout.encoding && guess.separator == layout.separator
        && guess.markerLength == layout.markerLength;
}

} // namespace

CsvSaver::CsvSaver(std::string path, const Table& table, const CsvLayout& layout, const LoadLimits& limits)
    : path_(std::move(path))
    , table_(table)
    , layout_(layout)
    , limits_(limits)
{
}

std::optional<std::string> CsvSaver::WhyReadOnly() const
{
    const std::string reason = WhyNotReplaceable(path_);
    return reason.empty() ? std::nullopt : std::optional(reason);
}

bool CsvSaver::CanChange(int, int) const
{
    return true;
}

std::vector<CellText> CsvSaver::Save(const Edits& edits)
{
    const Rows rows = StoredRows(edits);
    std::vector<CellText> mended = Mended(edits); // whatever can fail comes before the file is there
    try {
        if (!Write(rows, CsvQuoting::WhereNeeded) && !Write(rows, CsvQuoting::AllSeparators))
            throw SaveError("the changed file would be taken for one with another separator");
    } catch (const LoadError& error) {
        throw SaveError(error.what());
    }
    return mended;
}

// False, and nothing done, when the new file would be read with another layout.
bool CsvSaver::Write(const Rows& rows, CsvQuoting quoting)
{
    InputFile file(path_);
    const FileIdentity identity = file.Identity();
    FieldFinder finder(layout_, limits_, rows, quoting);
    const std::vector<Replacement> replacements = finder.Find(file);
    file.Rewind();
    ReadBack readBack(layout_, limits_, rows);
    FileReplacement target(path_);
    const std::uint64_t print = WriteSpliced(file, layout_.print, replacements, readBack, target);
    readBack.Finish(finder.RowCount());
    if (!ReadsWith(layout_, target.TemporaryPath()))
        return false;
    target.Commit(identity);
    layout_.print = print;
    return true;
}

// As the file writes it.
std::u16string CsvSaver::Stored(int row, int column, std::u16string_view text) const
{
    const Column& described = table_.Columns()[static_cast<std::size_t>(column)];
    const bool isTruthValue = described.kind == ColumnKind::Boolean && table_.HasTruthValue(row, column);
    if (isTruthValue && (text == u"-1" || text == u"0"))
        return text == u"0" ? described.falseText : described.trueText;
    return WellFormed(text);
}

std::map<int, Edits::RowEdits> CsvSaver::StoredRows(const Edits& edits) const
{
    Rows rows;
    for (const auto& [row, cells] : edits.Rows()) {
        for (const auto& [column, text] : cells)
            rows[row].emplace(column, Stored(row, column, text));
    }
    return rows;
}

// The texts that no encoding can write as they are.
std::vector<CellText> CsvSaver::Mended(const Edits& edits)
{
    std::vector<CellText> mended;
    for (const auto& [row, cells] : edits.Rows()) {
        for (const auto& [column, text] : cells) {
            if (std::u16string formed = WellFormed(text); formed != text)
                mended.push_back({ row, column, std::move(formed) });
        }
    }
    return mended;
}

} // namespace vornix::viewer
