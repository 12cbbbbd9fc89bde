// Editing in place, and the list of the combo editor.
#include "automation/checked.h"
#include "control/control.h"

namespace vornix {

namespace {

// An absent index.
constexpr i16 AtEnd = -32767;

} // namespace

void Vornix::EnterEdit()
{
    Enter()->editor.EnterEdit();
}

void Vornix::ExitEdit()
{
    Enter()->editor.ExitEdit();
}

bool Vornix::IsEditMode() const
{
    return Enter()->editor.IsEditMode();
}

i32 Vornix::SelStart() const
{
    return Enter()->editor.SelStart();
}

void Vornix::SetSelStart(i32 Value)
{
    Enter()->editor.WriteSelStart(Value);
}

i32 Vornix::SelLength() const
{
    return Enter()->editor.SelLength();
}

void Vornix::SetSelLength(i32 Value)
{
    Enter()->editor.WriteSelLength(Value);
}

std::u16string Vornix::SelText() const
{
    return Enter()->editor.SelText();
}

void Vornix::SetSelText(std::u16string_view Value)
{
    Enter()->editor.WriteSelText(Value);
}

void Vornix::SetCustomhWnd(std::intptr_t Value)
{
    Enter()->editor.SetCustomWindow(Value);
}

bool Vornix::TBoxAutoResize() const
{
    return Enter()->editor.Settings.TBoxAutoResize;
}

void Vornix::SetTBoxAutoResize(bool Value)
{
    const auto control = Enter();
    if (control->SetSetting(control->editor.Settings.TBoxAutoResize, Value, "TBoxAutoResize"))
        control->editor.SetAutoResize(Value);
}

bool Vornix::TBoxIncludeLiteral() const
{
    return Enter()->editor.Settings.TBoxIncludeLiteral;
}

void Vornix::SetTBoxIncludeLiteral(bool Value)
{
    const auto control = Enter();
    if (control->SetSetting(control->editor.Settings.TBoxIncludeLiteral, Value, "TBoxIncludeLiteral"))
        control->editor.Text().Box().SetIncludeLiteral(Value);
}

std::u16string Vornix::TBoxPromptChar() const
{
    return Enter()->editor.Settings.TBoxPromptChar;
}

void Vornix::SetTBoxPromptChar(std::u16string_view Value)
{
    const auto control = Enter();
    if (control->SetSetting(control->editor.Settings.TBoxPromptChar, std::u16string(Value), "TBoxPromptChar"))
        control->editor.Text().Box().SetPromptChar(Value);
}

std::u16string Vornix::TBoxReplaceChar() const
{
    return Enter()->editor.Settings.TBoxReplaceChar;
}

void Vornix::SetTBoxReplaceChar(std::u16string_view Value)
{
    const auto control = Enter();
    if (control->SetSetting(control->editor.Settings.TBoxReplaceChar, std::u16string(Value), "TBoxReplaceChar"))
        control->editor.Text().Box().SetReplaceChar(Value);
}

// -- The list --

void Vornix::ComboAddItem(std::u16string_view Item, i16 index)
{
    const auto control = Enter();
    ComboCellEditor& combo = control->editor.Combo();
    combo.AddItem(index == AtEnd ? combo.List().Count() : index, Item);
}

void Vornix::ComboRemoveItem(i16 index)
{
    Enter()->editor.Combo().RemoveItem(index);
}

void Vornix::ComboClear()
{
    Enter()->editor.Combo().ClearList();
}

i32 Vornix::ComboItemData(i16 index) const
{
    return Enter()->editor.Combo().List().ItemData(index);
}

void Vornix::SetComboItemData(i16 index, i32 Value)
{
    const auto control = Enter();
    ComboCellEditor& combo = control->editor.Combo();
    if (combo.List().ItemData(index) == Value)
        return;
    combo.SetItemData(index, Value);
    control->Report("ComboItemData");
}

std::u16string Vornix::ComboList(i16 index) const
{
    return std::u16string(Enter()->editor.Combo().List().Text(index));
}

void Vornix::SetComboList(i16 index, std::u16string_view Value)
{
    const auto control = Enter();
    ComboCellEditor& combo = control->editor.Combo();
    if (combo.List().Text(index) == Value)
        return;
    combo.SetItemText(index, Value);
    control->Report("ComboList");
}

i16 Vornix::ComboListCount() const
{
    return ToI16(Enter()->editor.Combo().List().Count());
}

i16 Vornix::ComboListIndex() const
{
    return ToI16(Enter()->editor.Combo().ListIndex());
}

void Vornix::SetComboListIndex(i16 Value)
{
    const auto control = Enter();
    ComboCellEditor& combo = control->editor.Combo();
    const bool isOther = combo.ListIndex() != Value;
    combo.SetListIndex(Value);
    if (isOther)
        control->Report("ComboListIndex");
}

i16 Vornix::ComboNewIndex() const
{
    return ToI16(Enter()->editor.Combo().List().NewIndex());
}

} // namespace vornix
