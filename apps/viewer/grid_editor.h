// Changes of many cells and of whole rows, made in the document and in the grid that shows it.
#pragma once

#include "column_inputs.h"
#include "document.h"
#include "selected_cells.h"
#include "shown_rows.h"
#include "text_block.h"

#include "vornix/vornix.h"

#include <string>
#include <vector>

namespace vornix::viewer {

// What cannot be done is left out and told: each gives a line for the reader, which is empty when all was done. The grid
// must have no editor open where rows come and go.
class GridEditor {
public:
    // All must outlive this.
    GridEditor(Vornix& grid, Document& document, const ColumnInputs& inputs, ShownRows& rows)
        : grid_(grid)
        , document_(document)
        , inputs_(inputs)
        , rows_(rows)
    {
    }

    // From the first of the cells on, to the right and down; a single text goes into all of them.
    std::string Paste(const SelectedCells& cells, const TextBlock& block);
    std::string Clear(const SelectedCells& cells);

    // As many as the selection has whole rows, or one, beside the selected rows or the current one; at the top where that
    // is in the header. `first` is where the first of them is shown, NoIndex without any.
    std::string AddRows(Records::Side side, i16& first);
    std::string RemoveRows(const std::vector<i16>& Rows);
    // Those that were removed last come back, all or none.
    std::string RestoreRows();
    bool CanRestoreRows() const { return !removed_.empty(); }

    // What saving has made of the cells, and of the rows. An editor stays open unless its cell reads otherwise.
    void ShowSaved(const std::vector<CellText>& others);

private:
    struct RemovedRow {
        int Row = 0; // where it was shown
        int row = 0;
    };
    // What was refused, for one line.
    struct Refusals {
        int cells = 0;
        std::string first = {};
    };

    void Enter(int Row, int column, std::u16string_view text, Refusals& refusals);
    static std::string Line(const Refusals& refusals, int cells, const char* done);
    void Insert(int Row, const std::vector<int>& rows);
    void Remove(const std::vector<int>& Rows);

    Vornix& grid_;
    Document& document_;
    const ColumnInputs& inputs_;
    ShownRows& rows_;
    std::vector<std::vector<RemovedRow>> removed_; // since they were saved, the last ones last
};

} // namespace vornix::viewer
