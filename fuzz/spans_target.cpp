// Random spans and hidden rows: spans never overlap or leave the table, and the chain leads over every visible row.
#include "fuzz_input.h"
#include "model/hidden_lines.h"
#include "model/spans.h"
#include "model/store_support.h"

#include <vector>

using namespace vornix;

namespace {

class Machine {
public:
    explicit Machine(fuzz::FuzzInput& input)
        : input_(input)
        , rows_(input.Between(1, 10))
        , cols_(input.Between(1, 10))
        , store_(BuildStore(rows_, cols_))
        , spans_(*store_)
        , hidden_(*store_)
    {
    }

    void Step()
    {
        const int row = input_.Between(0, rows_ - 1);
        const int col = input_.Between(0, cols_ - 1);
        switch (input_.Byte() % 8) {
        case 0:
            hidden_.HideRow(row);
            return;
        case 1:
            hidden_.ShowRow(row);
            return;
        case 2:
            hidden_.HideCol(col);
            return;
        case 3:
            if (!store_->CellAt(row, col).IsChild())
                spans_.RemoveSpan(row, col);
            return;
        case 4:
            store_->EditCell(row, col).SetText(input_.Bool() ? u"a" : u"b");
            return;
        case 5:
            if (input_.Bool())
                spans_.MergeEqualRows(col, false, [](auto a, auto b) { return a == b; });
            else
                spans_.RemoveMergedRows(col);
            return;
        case 6:
            return Span([&](i16 span) { spans_.SetColSpan(row, col, span); });
        default:
            return Span([&](i16 span) { spans_.SetRowSpan(row, col, span); });
        }
    }

    void CheckSpans()
    {
        std::vector<int> covers(static_cast<std::size_t>(rows_ * cols_));
        for (int row = 0; row < rows_; ++row) {
            for (int col = 0; col < cols_; ++col)
                CheckCell({ row, col }, covers);
        }
        for (const int count : covers)
            fuzz::Require(count <= 1, "spans do not overlap");
    }

    void CheckChain() const
    {
        std::vector<int> expected;
        for (int row = 0; row < rows_; ++row) {
            if (store_->HeightOf(row) != 0 || row == 0 || row == rows_ - 1)
                expected.push_back(row);
        }
        std::vector<int> forward;
        for (int row = 0; row < rows_; row = hidden_.NextInChain(row))
            forward.push_back(row);
        std::vector<int> backward;
        for (int row = rows_ - 1; row >= 0; row = hidden_.PrevInChain(row))
            backward.insert(backward.begin(), row);
        fuzz::Require(forward == expected, "the chain leads down over the visible rows");
        fuzz::Require(backward == expected, "the chain leads up over the visible rows");
    }

private:
    template <typename Set> void Span(const Set& set)
    {
        const i16 span = input_.Bool() ? static_cast<i16>(input_.Between(-2, 8)) : input_.AnyI16();
        const int error = ErrorOf([&] { set(span); });
        fuzz::Require(error == 0 || error == ErrorNumber::Overflow, "a span is taken, left alone, or too large");
    }

    void CheckCell(CellIndex cell, std::vector<int>& covers)
    {
        const CellIndex parent = spans_.ParentOf(cell.row, cell.col);
        fuzz::Require(parent.row >= 0 && parent.row <= cell.row && parent.col >= 0 && parent.col <= cell.col,
            "a parent lies above and left");
        fuzz::Require(!store_->CellAt(parent.row, parent.col).IsChild(), "a parent is no child");
        fuzz::Require(cell.row < parent.row + spans_.RowsCovered(parent.row, parent.col)
                && cell.col < parent.col + spans_.ColsCovered(parent.row, parent.col),
            "a parent covers its children");
        if (store_->CellAt(cell.row, cell.col).IsChild())
            return;
        const int bottom = cell.row + spans_.RowsCovered(cell.row, cell.col);
        const int right = cell.col + spans_.ColsCovered(cell.row, cell.col);
        fuzz::Require(bottom <= rows_ && right <= cols_, "a span stays inside the table");
        for (int row = cell.row; row < bottom; ++row) {
            for (int col = cell.col; col < right; ++col)
                ++covers[static_cast<std::size_t>(row * cols_ + col)];
        }
    }

    fuzz::FuzzInput& input_;
    int rows_;
    int cols_;
    std::unique_ptr<GridStore> store_;
    Spans spans_;
    HiddenLines hidden_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr int MostSteps = 300;
    fuzz::FuzzInput input(data, size);
    Machine machine(input);
    for (int step = 0; step < MostSteps && !input.IsEmpty(); ++step) {
        machine.Step();
        machine.CheckSpans();
        machine.CheckChain();
    }
    return 0;
}
