// How a person gives the cells of each column their values.
#pragma once

#include "document.h"

#include <set>
#include <string>
#include <vector>

namespace vornix::viewer {

enum class InputKind {
    Text,
    Choice, // of the column's texts, or any other
    Key, // of another table, and nothing else
    Date, // as year-month-day
};

class ColumnInputs {
public:
    // The document must outlive this; its texts of now decide. Keys count as long as the document has them.
    explicit ColumnInputs(const Document& document);

    InputKind Kind(int column) const;
    // What the list of a Choice or a Key shows: the texts that the column began with and those that it has now, sorted;
    // or the keys, behind an empty text where there need be none.
    std::vector<std::u16string> List(int column) const;

private:
    struct Input {
        InputKind kind = InputKind::Text; // without keys
        bool takesKeys = false;
        std::set<std::u16string> choices = {}; // at the beginning
    };

    Input InputOf(int column) const;
    // Nothing where the column has too many different ones, or some that a line of a list cannot show.
    std::set<std::u16string> RepeatedTexts(int column) const;
    bool HasOnlyWholeDates(int column) const;

    const Document& document_;
    std::vector<Input> inputs_;
};

} // namespace vornix::viewer
