#include "csv_saver.h"

#include "csv_reader.h"
#include "csv_splicer.h"
#include "file_replacement.h"
#include "input_file.h"
#include "text_encoder.h"
#include "text_file.h"
#include "unicode.h"

#include <numeric>
#include <set>

namespace vornix::viewer {

namespace {

// Reads the old file again and writes the new one; gives the new one's fingerprint.
std::uint64_t WriteSpliced(InputFile& file, std::uint64_t oldPrint, const std::vector<Splice>& splices,
    CsvReadBack& readBack, FileReplacement& target)
{
    Fingerprint print;
    std::string bytes;
    TextFile source(file);
    CsvSplicer splicer(splices, [&](std::u16string_view text) {
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

std::string NoticeOfHeader(bool hasHeader, bool hasHeaderThen)
{
    if (hasHeader == hasHeaderThen)
        return {};
    return hasHeader ? "when it is opened again, the column names will be taken for a row"
                     : "when it is opened again, the first row will be taken for column names";
}

} // namespace

CsvSaver::CsvSaver(std::string path, const Table& table, const CsvLayout& layout, const LoadLimits& limits)
    : path_(std::move(path))
    , table_(table)
    , layout_(layout)
    , limits_(limits)
    , order_(static_cast<std::size_t>(table.RowCount()))
{
    std::iota(order_.begin(), order_.end(), 0);
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

SaveOutcome CsvSaver::Save(const Changes& changes)
{
    const CsvPlan plan = PlanFor(changes);
    // Whatever can fail comes before the file is there.
    SaveOutcome outcome { Mended(changes) };
    std::vector<int> order = OrderWith(changes);
    try {
        if (!Write(plan, CsvQuoting::WhereNeeded) && !Write(plan, CsvQuoting::AllSeparators))
            throw SaveError("the changed file would be taken for one with another separator");
    } catch (const LoadError& error) {
        throw SaveError(error.what());
    }
    order_ = std::move(order);
    outcome.notice = std::move(notice_);
    return outcome;
}

// False, and nothing done, when the new file would be read with another layout.
bool CsvSaver::Write(const CsvPlan& plan, CsvQuoting quoting)
{
    InputFile file(path_);
    const FileIdentity identity = file.Identity();
    CsvFinder finder(layout_, limits_, plan, quoting);
    TextFile text(file);
    const std::vector<Splice> splices = finder.Find(text);
    const bool isEmptied
        = plan.AddedCount() == 0 && finder.RowCount() == static_cast<std::int64_t>(plan.removed.size());
    if (isEmptied && !layout_.hasHeader)
        throw SaveError("a file without column names needs a row, or nothing is left of it");
    file.Rewind();
    CsvReadBack readBack(layout_, limits_, plan);
    FileReplacement target(path_);
    const std::uint64_t print = WriteSpliced(file, layout_.print, splices, readBack, target);
    readBack.Finish(finder.RowCount(), finder.KeptPrint());
    if (!ReadsWith(layout_, target.TemporaryPath()))
        return false;
    notice_ = NoticeOfHeader(layout_.hasHeader, readBack.HasHeader());
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

CsvPlan::Fields CsvSaver::StoredFields(int row, const Edits::RowEdits& cells) const
{
    CsvPlan::Fields fields;
    for (const auto& [column, text] : cells)
        fields.emplace(column, Stored(row, column, text));
    return fields;
}

CsvPlan CsvSaver::PlanFor(const Changes& changes) const
{
    std::map<int, std::int64_t> rows; // of records in the file
    for (std::size_t row = 0; row < order_.size(); ++row)
        rows.emplace(order_[row], static_cast<std::int64_t>(row));
    CsvPlan plan;
    for (const auto& [record, cells] : changes.Changed())
        plan.changed.emplace(rows.at(record), StoredFields(record, cells));
    for (const int record : changes.Removed())
        plan.removed.insert(rows.at(record));
    for (const Records::Addition& addition : changes.Added()) {
        CsvPlan::NewRecord fields(table_.Columns().size());
        for (auto& [column, text] : StoredFields(addition.record, changes.CellsOf(addition)))
            fields[static_cast<std::size_t>(column)] = text;
        plan.added[addition.behind < 0 ? CsvPlan::Top : rows.at(addition.behind)].push_back(std::move(fields));
    }
    return plan;
}

// Of the records in the file, once it is saved.
std::vector<int> CsvSaver::OrderWith(const Changes& changes) const
{
    const std::set<int> removed(changes.Removed().begin(), changes.Removed().end());
    auto next = changes.Added().begin();
    std::vector<int> order;
    const auto addBehind = [&](int record) {
        for (; next != changes.Added().end() && next->behind == record; ++next)
            order.push_back(next->record);
    };
    addBehind(-1);
    for (const int record : order_) {
        if (removed.contains(record))
            continue;
        order.push_back(record);
        addBehind(record);
    }
    return order;
}

// The texts that no encoding can write as they are.
std::vector<CellText> CsvSaver::Mended(const Changes& changes)
{
    std::vector<CellText> mended;
    const auto mend = [&mended](int row, const Edits::RowEdits& cells) {
        for (const auto& [column, text] : cells) {
            if (std::u16string formed = WellFormed(text); formed != text)
                mended.push_back({ row, column, std::move(formed) });
        }
    };
    for (const auto& [row, cells] : changes.Changed())
        mend(row, cells);
    for (const Records::Addition& addition : changes.Added())
        mend(addition.record, changes.CellsOf(addition));
    return mended;
}

} // namespace vornix::viewer
