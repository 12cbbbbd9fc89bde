// The batch script.
#include "automation/checked.h"
#include "control/control.h"

#include <array>
#include <cstddef>

namespace vornix {

namespace {

// Members are called as by late binding: by their line of the interface.
class ControlScript : public ScriptTarget {
public:
    ControlScript(Vornix& grid, const Control& control)
        : grid_(grid)
        , control_(control)
    {
    }

    void CallMember(const ScriptElement& element, ScriptPlace place, const ScriptValue& value) override
    {
        const MemberInfo* member = FindMember(element.member);
        if (member == nullptr)
            RaiseError(ErrorNumber::NoSuchMember);
        std::array<Variant, 3> arguments;
        std::size_t count = 0;
        const bool hasRow = element.addressing == ScriptAddressing::Cell || element.addressing == ScriptAddressing::Row;
        const bool hasCol
            = element.addressing == ScriptAddressing::Cell || element.addressing == ScriptAddressing::Column;
        if (hasRow)
            arguments[count++] = place.Row;
        if (hasCol)
            arguments[count++] = place.Col;
        arguments[count++] = std::visit([](auto each) { return Variant(each); }, value);
        const InvokeKind kind = member->kind == MemberKind::Method ? InvokeKind::Call : InvokeKind::Let;
        grid_.Invoke(*member, kind, std::span(arguments).first(count));
    }
    bool IsThere() const override { return !control_.IsClosed(); }

private:
    Vornix& grid_;
    const Control& control_;
};

} // namespace

i32 Vornix::VXScriptAdd(std::u16string_view vxScript)
{
    Enter()->script.Add(vxScript);
    return -1;
}

void Vornix::VXScriptClear()
{
    Enter()->script.Clear();
}

i32 Vornix::VXScriptExecute()
{
    const auto control = Enter();
    ControlScript target(*this, *control);
    return control->script.Execute(target, control->container.GetLocale()) ? -1 : 0;
}

} // namespace vornix
