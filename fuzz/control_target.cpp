// Members of the control with wild arguments, also from inside events: nothing but an AutomationError comes out.
#include "control_members.h"
#include "fuzz_input.h"
#include "vornix/automation.h"
#include "vornix/headless_container.h"

using namespace vornix;
using namespace vornix::fuzz;

namespace {

constexpr int MostSteps = 150;
constexpr int DeepestCall = 2;
constexpr int MostNestedCalls = 200;

class Machine : public VornixEvents {
public:
    explicit Machine(FuzzInput& input)
        : input_(input)
        , container_(Options(input))
    {
    }

    void Step()
    {
        const u8 kind = input_.Byte();
        try {
            if (kind < 16)
                TellContainer(kind);
            else
                CallMember(kind);
        } catch (const AutomationError&) {
        }
        Require(!container_.Grid().IsInCall(), "a call is over when it returns");
        Check();
    }

    void DrawCell(i16, i16, Hdc& PictureHdc, bool& bCancel) override
    {
        const u8 kind = React();
        bCancel = kind % 16 == 1;
        if (kind % 16 == 2)
            PictureHdc = input_.AnyI16();
    }
    void BeforeEdit(i16, i16) override { React(); }
    void AfterEdit(i16, i16) override { React(); }
    void CellChange(i16, i16, bool& bCancel) override { bCancel = React() % 16 == 1; }
    void ValidateRow() override { React(); }
    void Scroll() override { React(); }
    void TextChange(i16, i16) override { React(); }
    void ResizeRow(i16, i16& NewHeight) override { Change(NewHeight); }
    void ResizeCol(i16, i16& NewWidth) override { Change(NewWidth); }
    void SearchResult(i16, i16& Pos) override { Change(Pos); }

private:
    // A call from inside an event, or none any more; the byte that says which.
    u8 React()
    {
        if (depth_ >= DeepestCall || nestedCalls_ >= MostNestedCalls || input_.IsEmpty())
            return 0;
        ++nestedCalls_;
        const u8 kind = input_.Byte();
        ++depth_;
        NestedCall(kind);
        --depth_;
        return kind;
    }

    void Change(i16& value)
    {
        if (React() % 16 == 1)
            value = input_.AnyI16();
    }

    HeadlessOptions Options(FuzzInput& input)
    {
        constexpr double scales[] = { 1, 1.25, 1.5, 2 };
        HeadlessOptions options;
        options.width = input.Between(0, 200);
        options.height = input.Between(0, 150);
        options.scale = scales[input.Byte() % 4];
        options.design = input.Byte() % 8 == 0;
        options.events = this;
        return options;
    }

    // What a handler does not catch ends the call that raised the event.
    void NestedCall(u8 kind)
    {
        try {
            if (kind < 40)
                TellContainer(kind);
            else if (kind < 160)
                CallMember(input_.Byte());
        } catch (const AutomationError&) {
            if (kind % 4 == 0) {
                --depth_;
                throw;
            }
        }
    }

    void CallMember(u8 kind)
    {
        if (kind >= 224)
            Pick(QueryMembers())(container_.Grid(), input_);
        else
            Pick(ActingMembers())(container_.Grid(), input_);
    }

    MemberCall Pick(std::span<const MemberCall> members) { return members[input_.Byte() % members.size()]; }

    void TellContainer(u8 kind)
    {
        switch (kind % 16) {
        case 0:
        case 1:
        case 2:
            return container_.Resize(input_.Between(-3, 250), input_.Between(-3, 180));
        case 3:
            return container_.Show();
        case 4:
            return container_.Hide();
        case 5:
        case 6:
            return container_.Paint();
        case 7:
            return container_.EnterFocus();
        case 8:
            return container_.ExitFocus();
        case 9:
            return container_.SetUserMode(input_.Bool());
        case 10:
            if (input_.Byte() < 8)
                container_.Close();
            return;
        default:
            return container_.Grid().RefreshCell(input_.AnyI16(), input_.AnyI16());
        }
    }

    void Check()
    {
        Vornix& grid = container_.Grid();
        if (grid.IsTerminated())
            return;
        Require(grid.Rows() >= 0 && grid.Cols() >= 0 && grid.FixedRows() >= 0 && grid.FixedCols() >= 0,
            "counts are not negative");
        // The corners of the table are there, filler lines included.
        static_cast<void>(grid.Text(grid.Rows(), grid.Cols()));
        static_cast<void>(grid.Text(static_cast<i16>(-grid.FixedRows()), static_cast<i16>(-grid.FixedCols())));
    }

    FuzzInput& input_;
    int depth_ = 0;
    int nestedCalls_ = 0;
    HeadlessContainer container_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    Machine machine(input);
    for (int step = 0; step < MostSteps && !input.IsEmpty(); ++step)
        machine.Step();
    return 0;
}
