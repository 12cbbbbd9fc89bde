// Moves the current cell: what hosts write, and what the steps of keys and mouse have in common. The events of painting
// and of paging are raised, and AfterEdit where bringing a cell into view closes an open editor; behind each of these the
// cell is tested again. Internal indices unless said otherwise.
#pragma once

#include "interact/cell_step.h"
#include "interact/current_cell.h"
#include "interact/current_cell_ports.h"

namespace vornix {

struct MoverContext {
    const GridStore& store;
    const Spans& spans;
    const HiddenLines& hidden;
    const RedrawGate& gate;
    CurrentCell& current;
    Scrolling& scrolling;
    Repainter& repainter;
    CellEditor& editor;
    ListPage& page;
    VornixEvents& events;
};

class CurrentCellMover {
public:
    explicit CurrentCellMover(MoverContext context);

    // A host's moves, by public indices: the row is a place of the list in virtual mode. Values out of range only take
    // the mark off. Hidden lines are stepped over by the first two, fixed cells are reached by the last.
    void WriteRow(i32 Row);
    void WriteCol(int Col);
    void WritePos(i32 Row, int Col);
    // As hosts read it; NoIndex without one.
    i32 PublicRow() const;
    int PublicCol() const;

    // A real line's cell, fixed or not: no filler.
    bool IsReal(CellIndex cell) const;
    bool IsBody(CellIndex cell) const;
    // A current cell exists, and so do its lines.
    bool HasCurrent() const { return context_.current.IsValid() && IsReal(Current()); }
    CellIndex Current() const { return { context_.current.Row(), context_.current.Col() }; }
    // Takes the cell as it is, and its place in the list. Nothing is painted.
    void Take(CellIndex cell);
    // The same within the row of the current cell, whose place in the list stays: the row may have left the page.
    void TakeCol(int col);

    // How hosts know a cell. It tells a cell that was chosen from one that stands at its indices later.
    CellIndex PublicPlaceOf(CellIndex cell) const;
    // The cell is a real one still, and the one that was known by this place.
    bool IsStill(CellIndex cell, CellIndex chosenAs) const;
    // Asks the host with CellChange whether a cell is to become the current one. Gone when there is no such cell any
    // more, or another one in its place.
    enum class Answer { Take, Refused, MovedByHost, Gone };
    Answer AskHost(CellIndex target, CellIndex chosenAs);

    // Paints the current cell without its mark. Nothing while the gate is closed.
    void RepaintUnmarked();
    // False when the view stayed. Otherwise all is painted, while the gate is open.
    bool BringIntoView();
    // Brings the current cell into view, or paints it where it is.
    void Show();
    void Repaint();

private:
    void BeginWrite();
    void EndWrite();
    bool IsInList(i32 Row) const;
    // False when no current cell came of it.
    bool GotoListPosition(i32 position);

    MoverContext context_;
    CellStep step_;
};

} // namespace vornix
