#include "csv_finder.h"

#include "csv_format.h"
#include "file_replacement.h"
#include "saver.h"
#include "text_file.h"

#include <algorithm>

namespace vornix::viewer {

namespace {

constexpr char16_t Quote = u'"';

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

template <typename Map, typename Key> const typename Map::mapped_type* Find(const Map& map, const Key& key)
{
    const auto found = map.find(key);
    return found == map.end() ? nullptr : &found->second;
}

} // namespace

CsvRowParser::CsvRowParser(const CsvLayout& layout, const LoadLimits& limits, RowFunction onRow)
    : onRow_(std::move(onRow))
    , markerLength_(layout.markerLength)
    , row_(layout.hasHeader ? CsvPlan::Top : 0)
    , parser_(layout.separator, limits, [this](const CsvParser::Record& record) { onRow_(row_++, record); })
{
}

void CsvRowParser::Feed(std::u16string_view text)
{
    const std::size_t passed = static_cast<std::size_t>(std::min<std::uint64_t>(markerLength_, text.size()));
    markerLength_ -= passed;
    parser_.Feed(text.substr(passed));
}

std::int64_t CsvRowParser::Finish()
{
    parser_.Finish();
    return row_;
}

void CsvKeptFields::Add(const CsvParser::Record& record, const CsvPlan::Fields* changed)
{
    const auto add = [this](const void* bytes, std::size_t count) {
        print_.Add({ static_cast<const char*>(bytes), count });
    };
    for (std::size_t column = 0; column < record.fields.size(); ++column) {
        if (changed && changed->contains(static_cast<int>(column)))
            continue;
        const std::u16string_view text = record.fields[column].text;
        const std::uint64_t sizes[] = { text.size(), column };
        add(sizes, sizeof sizes);
        add(text.data(), text.size() * sizeof(char16_t));
    }
    const std::uint64_t count = record.fields.size();
    add(&count, sizeof count);
}

CsvFinder::CsvFinder(const CsvLayout& layout, const LoadLimits& limits, const CsvPlan& plan, CsvQuoting quoting)
    : layout_(layout)
    , plan_(plan)
    , quoting_(quoting)
    , parser_(layout, limits, [this](std::int64_t row, const CsvParser::Record& record) { Take(row, record); })
{
}

std::vector<Splice> CsvFinder::Find(TextFile& text)
{
    Parse(text);
    if (text.Print() != layout_.print || text.HasFailed())
        throw SaveError(ChangedMeanwhile);
    rowCount_ = parser_.Finish();
    AddTop(headerPlaces_);
    return std::move(found_);
}

// What could be read once has other faults only when it is not the same any more.
void CsvFinder::Parse(TextFile& text)
{
    try {
        while (text.Next())
            parser_.Feed(text.Text());
    } catch (const LoadError&) {
        throw SaveError(ChangedMeanwhile);
    }
}

void CsvFinder::Take(std::int64_t row, const CsvParser::Record& record)
{
    if (row == CsvPlan::Top)
        headerPlaces_ = record.places;
    else
        AddTop(record.places); // in the style of the first row
    const std::uint64_t end = record.places.back().end;
    if (plan_.removed.contains(row)) {
        found_.push_back({ layout_.markerLength + record.places.front().begin, layout_.markerLength + end, {}, true });
        return;
    }
    const CsvPlan::Fields* const changed = viewer::Find(plan_.changed, row);
    kept_.Add(record, changed);
    if (changed)
        ChangeFields(*changed, record);
    if (row != CsvPlan::Top)
        AddBehind(row, end, record.places);
}

void CsvFinder::ChangeFields(const CsvPlan::Fields& fields, const CsvParser::Record& record)
{
    for (const auto& [column, text] : fields) {
        if (static_cast<std::size_t>(column) >= record.places.size())
            throw SaveError(ChangedMeanwhile);
        const CsvParser::Place& place = record.places[static_cast<std::size_t>(column)];
        found_.push_back({ layout_.markerLength + place.begin, layout_.markerLength + place.end,
            Written(text, place.isQuoted, record.fields.size() == 1) });
    }
}

// Behind the header, or in front of the first row, which is the example then.
void CsvFinder::AddTop(const std::vector<CsvParser::Place>& example)
{
    if (std::exchange(isTopPlaced_, true))
        return;
    if (!headerPlaces_.empty())
        return AddBehind(CsvPlan::Top, headerPlaces_.back().end, example);
    const auto* const records = viewer::Find(plan_.added, CsvPlan::Top);
    if (!records || example.empty())
        return;
    const std::uint64_t place = layout_.markerLength + example.front().begin;
    for (const CsvPlan::NewRecord& fields : *records)
        found_.push_back({ place, place, Written(fields, example) + std::u16string(LineBreak()) });
}

void CsvFinder::AddBehind(std::int64_t row, std::uint64_t place, const std::vector<CsvParser::Place>& example)
{
    const auto* const records = viewer::Find(plan_.added, row);
    if (!records)
        return;
    place += layout_.markerLength;
    for (const CsvPlan::NewRecord& fields : *records)
        found_.push_back({ place, place, std::u16string(LineBreak()) + Written(fields, example) });
}

std::u16string CsvFinder::Written(const CsvPlan::NewRecord& fields, const std::vector<CsvParser::Place>& example) const
{
    std::u16string text;
    for (std::size_t column = 0; column < fields.size(); ++column) {
        if (column > 0)
            text += layout_.separator;
        const bool isQuoted = column < example.size() && example[column].isQuoted;
        text += Written(fields[column], isQuoted, fields.size() == 1);
    }
    return text;
}

std::u16string CsvFinder::Written(std::u16string_view text, bool isQuoted, bool isAlone) const
{
    const bool isBlankLine = isAlone && text.find_first_not_of(u' ') == std::u16string_view::npos;
    const bool needsQuotes = isQuoted || isBlankLine || NeedsQuotes(text, layout_.separator, quoting_);
    return needsQuotes ? Quoted(text) : std::u16string(text);
}

std::u16string_view CsvFinder::LineBreak() const
{
    return layout_.lineBreak.empty() ? std::u16string_view(u"\n") : layout_.lineBreak;
}

CsvReadBack::CsvReadBack(const CsvLayout& layout, const LoadLimits& limits, const CsvPlan& plan)
    : plan_(plan)
    , parser_(layout, limits, [this](std::int64_t row, const CsvParser::Record& record) { Take(row, record); })
{
    if (const auto* const first = viewer::Find(plan.added, CsvPlan::Top))
        awaited_.assign(first->rbegin(), first->rend());
}

void CsvReadBack::Take(std::int64_t row, const CsvParser::Record& record)
{
    KeepFirst(record);
    if (row == CsvPlan::Top)
        return kept_.Add(record, nullptr);
    if (awaited_.empty())
        return TakeOld(record);
    const CsvPlan::NewRecord& wanted = awaited_.back();
    isRight_ = isRight_
        && std::equal(wanted.begin(), wanted.end(), record.fields.begin(), record.fields.end(),
            [](const std::u16string& text, const Field& field) { return field.text == text; });
    awaited_.pop_back();
}

void CsvReadBack::KeepFirst(const CsvParser::Record& record)
{
    if (firstRows_.RowCount() >= HeaderSample)
        return;
    constexpr std::size_t longEnough = 200; // to be neither a name nor a value
    std::vector<Field> fields;
    for (const Field& field : record.fields)
        fields.push_back({ field.text.substr(0, longEnough), field.isNull });
    firstRows_.Columns().resize(fields.size());
    firstRows_.AppendRow(fields);
}

void CsvReadBack::TakeOld(const CsvParser::Record& record)
{
    PassRemoved();
    const std::int64_t row = oldRow_++;
    const CsvPlan::Fields* const changed = viewer::Find(plan_.changed, row);
    kept_.Add(record, changed);
    if (changed) {
        ++rightChanges_;
        for (const auto& [column, text] : *changed) {
            const auto index = static_cast<std::size_t>(column);
            isRight_ = isRight_ && index < record.fields.size() && record.fields[index].text == text;
        }
    }
    if (const auto* const added = viewer::Find(plan_.added, row))
        awaited_.assign(added->rbegin(), added->rend());
}

void CsvReadBack::PassRemoved()
{
    while (plan_.removed.contains(oldRow_))
        ++oldRow_;
}

void CsvReadBack::Finish(std::int64_t oldRows, std::uint64_t keptPrint)
{
    const std::int64_t rows = parser_.Finish();
    const auto difference
        = static_cast<std::int64_t>(plan_.AddedCount()) - static_cast<std::int64_t>(plan_.removed.size());
    if (rows != oldRows + difference || !isRight_ || rightChanges_ != plan_.changed.size() || !awaited_.empty()
        || kept_.Print() != keptPrint)
        throw SaveError("a changed text would not read as it was meant");
}

bool CsvReadBack::HasHeader() const
{
    return viewer::HasHeader(firstRows_);
}

} // namespace vornix::viewer
