// Texts and keys found one by one, each with an event in which the host may send the search elsewhere.
#include "automation/checked.h"
#include "control/control.h"
#include "data/search.h"

namespace vornix {

namespace {

// The lines that a search walks over. Counts and places are asked for at every step: a handler may have changed them.
struct WalkAlongCol {
    Control& control;
    i16 Col;

    int FixedLines() const { return control.store.FixedRows(); }
    int EndLine() const { return control.store.MaxRow(); }
    const Cell& CellAt(int row) const { return control.store.CellAt(row, control.InternalCol(Col)); }
    bool HasExactEnd(i32 eType) const { return eType == vxKey; }
};

struct WalkAlongRow {
    Control& control;
    i16 Row;

    int FixedLines() const { return control.store.FixedCols(); }
    int EndLine() const { return control.store.MaxCol(); }
    const Cell& CellAt(int col) const { return control.store.CellAt(control.InternalRow(Row), col); }
    bool HasExactEnd(i32 /*eType*/) const { return false; }
};

template <typename Walk> bool IsHit(const Walk& walk, int line, const SearchPattern& pattern, i32 eType)
{
    const Cell& cell = walk.CellAt(line);
    std::u16string scratch;
    const std::u16string_view value = eType == vxKey ? cell.Key() : cell.TextView(scratch);
    const Locale& locale = walk.control.container.GetLocale();
    return walk.HasExactEnd(eType) ? pattern.MatchesWithExactEnd(value, locale) : pattern.Matches(value, locale);
}

// The number of hits.
template <typename Walk> i16 Search(const Walk& walk, const SearchPattern& pattern, i32 eType, i16 IdSearch)
{
    i16 hits = 0;
    if (pattern.MatchKind() == SearchPattern::Kind::Nothing || (eType != vxText && eType != vxKey))
        return hits;
    for (i16 line = ToI16(walk.FixedLines()); line < walk.EndLine(); line = AddI16(line, 1)) {
        if (!IsHit(walk, line, pattern, eType))
            continue;
        hits = AddI16(hits, 1);
        i16 Pos = ToI16(line - walk.FixedLines());
        walk.control.events.SearchResult(IdSearch, Pos);
        if (walk.control.IsClosed())
            break;
        line = ToI16(Pos + walk.FixedLines());
    }
    return hits;
}

} // namespace

i16 Vornix::SearchRow(i32 eType, i16 Col, std::u16string_view SearchString, i16 IdSearch, std::u16string_view Wildcard)
{
    const auto control = Enter();
    const SearchPattern pattern(SearchString, Wildcard, control->container.GetLocale());
    return Search(WalkAlongCol { *control, Col }, pattern, eType, IdSearch);
}

i16 Vornix::SearchCol(i32 eType, i16 Row, std::u16string_view SearchString, i16 IdSearch, std::u16string_view Wildcard)
{
    const auto control = Enter();
    const SearchPattern pattern(SearchString, Wildcard, control->container.GetLocale());
    return Search(WalkAlongRow { *control, Row }, pattern, eType, IdSearch);
}

} // namespace vornix
