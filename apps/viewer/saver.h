// The step that brings changes to where a table came from.
#pragma once

#include "changes.h"
#include "foreign_keys.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vornix::viewer {

// what() is one line of UTF-8 for the person at the screen, without the file's name.
class SaveError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// A cell that reads otherwise than the table has it.
struct CellText {
    int row = 0; // the record
    int column = 0;
    std::u16string text;

    bool operator==(const CellText&) const = default;
};

// How a source differs from what was to be saved in it.
struct SaveOutcome {
    std::vector<CellText> others = {};
    std::vector<int> removed = {}; // records that the source has removed by itself
    ForeignKeys keys = {}; // as they are now; none of a column is no list any more
    std::string notice = {}; // what the person should know about it, in one line of UTF-8
};

// Rows are the records of a table.
class Saver {
public:
    virtual ~Saver() = default;

    // Why nothing of the source can be changed, in one line; nothing when something can.
    virtual std::optional<std::string> WhyReadOnly() const = 0;
    // Whether a change of this cell could be saved.
    virtual bool CanChange(int row, int column) const = 0;
    // Whether a row of the source could be removed.
    virtual bool CanRemove(int /*row*/) const { return true; }
    // Whether cells of this column take a text in a row that is new.
    virtual bool CanFill(int /*column*/) const { return true; }
    // How the source breaks lines; empty where it has no way of its own.
    virtual std::u16string_view LineBreak() const { return {}; }
    // Saves all of the changes or, raising SaveError, none; the source is then as it was. Gives the cells that do not read
    // as the changes say: what the source has made of a text, a truth value where there was none, what a new row has got
    // without one, and what was changed besides.
    virtual SaveOutcome Save(const Changes& changes) = 0;
};

} // namespace vornix::viewer
