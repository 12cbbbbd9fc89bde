#include "editing/editing_desk.h"
#include "vornix/headless_container.h"

namespace vornix {

namespace {

constexpr i16 ComposedKey = 229;

class HeadlessDesk final : public EditingDesk {
public:
    explicit HeadlessDesk(VornixEvents& handlers)
        : log_(&handlers)
    {
        HeadlessOptions options;
        options.events = &log_;
        host_ = std::make_unique<HeadlessContainer>(options);
    }

    Vornix& Grid() override { return host_->Grid(); }
    Container& Host() override { return *host_; }
    EventLog& Log() override { return log_; }

    void ClickAt(int x, int y, i16 shift) override
    {
        host_->ClickAt(static_cast<float>(x), static_cast<float>(y), 1, shift);
    }
    void DblClickAt(int x, int y) override { host_->DblClickAt(static_cast<float>(x), static_cast<float>(y)); }
    void Type(std::u16string_view text) override { host_->Type(text); }
    void Press(std::string_view key, i16 shift) override { host_->Press(key, shift); }
    void Compose(std::u16string_view text) override
    {
        i16 code = ComposedKey;
        i16 shift = 0;
        Editor().KeyDown(code, shift);
        for (const char16_t unit : text) {
            i16 character = static_cast<i16>(unit);
            Editor().KeyPress(character, 0);
        }
    }
    void Paste(std::u16string_view text) override { Editor().Paste(text); }
    void ClickItem(int index) override { host_->ComboBox().ClickItem(index); }
    void LeaveFocus() override { host_->ExitFocus(); }
    void ReturnFocus() override { host_->EnterFocus(); }
    void Tick() override { host_->Tick(); }
    Focus WhereFocusIs() override
    {
        if (!host_->HasFocus())
            return Focus::Elsewhere;
        if (host_->HasFocus(ChildName::txtTmp))
            return Focus::TextEditor;
        return host_->HasFocus(ChildName::cboTmp) ? Focus::ComboEditor : Focus::Control;
    }

private:
    HeadlessEditBox& Editor() { return host_->EditBox(); }

    EventLog log_;
    std::unique_ptr<HeadlessContainer> host_;
};

} // namespace

std::unique_ptr<EditingDesk> MakeDesk(VornixEvents& handlers)
{
    return std::make_unique<HeadlessDesk>(handlers);
}

} // namespace vornix
