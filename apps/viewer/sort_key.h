// Texts that put the values of a column into order.
#pragma once

#include "date_content.h"
#include "number_value.h"
#include "table.h"

#include <string>
#include <string_view>

namespace vornix::viewer {

// Numbers, dates and truth values get keys of digits, which follow one another alike by any country's rules: no value
// first, values as they are great, false before true, and any other text last, as the words are. The texts of the column
// tell how it writes numbers and dates.
class SortKeyMaker {
public:
    explicit SortKeyMaker(ColumnKind kind)
        : kind_(kind)
    {
    }

    // False where the texts themselves put it into order.
    bool HasKeys() const { return kind_ != ColumnKind::Text; }
    // Each text of the column, before the first key is asked for.
    void Add(std::u16string_view text);
    std::u16string KeyOf(std::u16string_view text) const;

private:
    bool HasNumbers() const;
    bool HasDates() const { return kind_ == ColumnKind::Date || kind_ == ColumnKind::DateTime; }
    DecimalMark Mark() const { return commas_ > points_ ? DecimalMark::Comma : DecimalMark::Point; }
    DayOrder Order() const;

    ColumnKind kind_;
    // The texts that can be read in one way only.
    int points_ = 0;
    int commas_ = 0;
    int daysFirst_ = 0;
    int monthsFirst_ = 0;
};

} // namespace vornix::viewer
