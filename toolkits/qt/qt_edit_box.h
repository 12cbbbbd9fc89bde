// An edit box as Qt shows it: a QLineEdit for one line, a QPlainTextEdit for several.
#pragma once

#include "qt_edit_field.h"
#include "qt_field_keys.h"
#include "qt_field_pointer.h"
#include "vornix/raster_surface.h"

#include <QFrame>
#include <QPointer>

#include <functional>
#include <memory>

namespace vornix {

class QtLineField;
class QtTextField;

class QtEditBox final : public NativeEditBox, private QtTypedField, private QtPointedField {
public:
    explicit QtEditBox(Qt::FocusPolicy focusPolicy);
    ~QtEditBox() override;
    QtEditBox(const QtEditBox&) = delete;
    QtEditBox& operator=(const QtEditBox&) = delete;

    // What to place somewhere, with the border; the field that is in use has its focus. Where it was deleted another one
    // is made, with the settings and without the text.
    QWidget& Window();
    // Who moves the focus on for Tab. Otherwise Qt does.
    std::function<bool(bool forward)> OnTab;
    // A field of the box is about to learn that it has the focus.
    std::function<void(QWidget& field)> OnFocus;

    std::u16string Text() const override;
    void SetText(std::u16string_view text) override;
    int SelStart() const override;
    void SetSelStart(int start) override;
    int SelLength() const override;
    void SetSelLength(int length) override;
    std::u16string SelText() const override;
    void SetSelText(std::u16string_view text) override;

    void Listen(EditBoxListener* listener) override { listener_ = listener; }
    void SetStyle(const EditBoxStyle& style) override;
    void SetRightToLeft(bool rightToLeft) override;
    // What is hidden has one line, whatever the style.
    void SetPasswordChar(char16_t sign) override;
    void SetMaxLength(i32 length) override;
    void SetLocked(bool locked) override;
    void SetFont(const FontObject& font) override;
    void SetColors(ColorRef foreColor, ColorRef backColor) override;
    void SetBorder(bool hasBorder) override;
    void SetToolTip(std::u16string_view text) override;
    void SetPointer(i32 shape, const PicturePtr& picture) override;
    void Refresh() override;
    // 0 for a box that is drawn in the window of its form.
    std::intptr_t Handle() const override;
    Device* DrawingDevice() override;

private:
    class Frame;
    class Watch;

    void MakeWindow();
    QtEditField& Field() const;
    QtEditField& FieldFor(const EditBoxStyle& style);
    template <typename Widget> QtEditField& MadeField(QPointer<Widget>& field);
    void UseFieldOfStyle();
    void ApplySettings();
    void LayOut();
    bool Hears(QObject& watched, QEvent& event);
    void HearChange(const QtEditField& field);
    void TellChange(ChangeOrigin origin);
    template <typename Step> void Silently(const Step& step);
    template <typename Step> void Acting(ChangeOrigin origin, const Step& step);
    template <typename Step> void Tell(const Step& step);

    void TellKeyDown(i16& code, i16& shift) override;
    void TellKeyPress(i16& character, i16 shift) override;
    void TellKeyUp(i16& code, i16& shift) override;
    QWidget& KeyWidget() override;
    EditBox& TypedText() override { return *this; }
    void ActOnKey(QKeyEvent& event, ChangeOrigin origin) override;
    void ActOnComposition(QInputMethodEvent& event, ChangeOrigin origin) override;
    bool MoveFocus(bool forward) override;

    void TellMouseDown(i16 button, i16 shift, PixelPlace place) override;
    void TellMouseMove(i16 buttons, i16 shift, PixelPlace place) override;
    void TellMouseUp(i16 button, i16 shift, PixelPlace place) override;
    void TellClick() override;
    void TellDblClick() override;

    EditBoxListener* listener_ = nullptr;
    QtEditSettings settings_;
    bool hasBorder_ = false;
    std::unique_ptr<Watch> watch_;
    QtFieldKeys keys_;
    QtFieldPointer pointer_;
    QPointer<QFrame> frame_;
    QPointer<QtLineField> lineField_;
    QPointer<QtTextField> textField_;
    QtEditField* field_ = nullptr;
    bool isSilent_ = false;
    // The field acts for a key, and has changed the text by it.
    bool isActing_ = false;
    bool hasChanged_ = false;
    // As the listener knows it.
    std::u16string knownText_;
    std::unique_ptr<RasterSurface> measuring_;
};

} // namespace vornix
