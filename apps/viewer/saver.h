// The step that brings changes to where a table came from.
#pragma once

#include "edits.h"

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
    int row = 0;
    int column = 0;
    std::u16string text;

    bool operator==(const CellText&) const = default;
};

class Saver {
public:
    virtual ~Saver() = default;

    // Why nothing of the source can be changed, in one line; nothing when something can.
    virtual std::optional<std::string> WhyReadOnly() const = 0;
    // Whether a change of this cell could be saved.
    virtual bool CanChange(int row, int column) const = 0;
    // How the source breaks lines; empty where it has no way of its own.
    virtual std::u16string_view LineBreak() const { return {}; }
    // Saves all of the edits or, raising SaveError, none; the source is then as it was. Gives the cells that do not read
    // as the edits say: what the source has made of a text, and what it has changed besides.
    virtual std::vector<CellText> Save(const Edits& edits) = 0;
};

} // namespace vornix::viewer
