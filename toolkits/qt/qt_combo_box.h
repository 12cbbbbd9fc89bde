// A combo box as Qt shows it: a QComboBox with a field that is written in, or read only.
#pragma once

#include "qt_combo_model.h"
#include "qt_field_keys.h"
#include "qt_field_pointer.h"
#include "vornix/platform/combo_box.h"

#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

class QLineEdit;

namespace vornix {

class QtComboBox final : public NativeComboBox, private QtTypedField, private QtPointedField {
public:
    explicit QtComboBox(Qt::FocusPolicy focusPolicy);
    ~QtComboBox() override;
    QtComboBox(const QtComboBox&) = delete;
    QtComboBox& operator=(const QtComboBox&) = delete;

    // What to place somewhere. Where it was deleted another one is made, without the text.
    QWidget& Window();
    // Who moves the focus on for Tab. Otherwise Qt does.
    std::function<bool(bool forward)> OnTab;
    // The box is about to learn that it has the focus.
    std::function<void(QWidget& field)> OnFocus;

    std::u16string Text() const override;
    void SetText(std::u16string_view text) override;
    int SelStart() const override;
    void SetSelStart(int start) override;
    int SelLength() const override;
    void SetSelLength(int length) override;
    std::u16string SelText() const override;
    void SetSelText(std::u16string_view text) override;

    void Listen(ComboBoxListener* listener) override { listener_ = listener; }
    void SetItems(const ComboItems* items) override;
    void ItemsChanged() override;
    void SetListOnly(bool listOnly) override;
    int ListIndex() const override { return index_; }
    void SetListIndex(int index) override;
    void SetRightToLeft(bool rightToLeft) override;
    void SetFont(const FontObject& font) override;
    void SetColors(ColorRef foreColor, ColorRef backColor) override;
    void DropDown(bool open) override;
    // 0 for a box that is drawn in the window of its form.
    std::intptr_t Handle() const override;

private:
    class Combo;
    class Watch;

    void MakeWindow();
    void ApplySettings();
    Combo& Box() const;
    QLineEdit& Line() const;
    void PrepareList();
    bool Hears(QObject& watched, QEvent& event);
    bool HearsInList(QEvent& event);
    bool HearsFieldOfList(const QMouseEvent& event);
    void HearPressOutsideList(const QMouseEvent& event);
    bool Walks(const QKeyEvent& event);
    bool WalksToEnd(const QKeyEvent& event);
    void Choose(int index);
    void ShowIndex();
    void HearChange();
    bool IsTextOfQtsRow() const;
    void AwaitActivation();
    void TellChange();
    void HearActivation(int index);
    template <typename Step> void Tell(const Step& step);

    void TellKeyDown(i16& code, i16& shift) override;
    void TellKeyPress(i16& character, i16 shift) override;
    void TellKeyUp(i16& code, i16& shift) override;
    QWidget& KeyWidget() override;
    EditBox& TypedText() override { return *this; }
    void ActOnKey(QKeyEvent& event, ChangeOrigin origin) override;
    void ActOnComposition(QInputMethodEvent& event, ChangeOrigin origin) override;
    bool MoveFocus(bool forward) override;

    void TellMouseDown(i16, i16, PixelPlace) override { }
    void TellMouseMove(i16 buttons, i16 shift, PixelPlace place) override;
    void TellMouseUp(i16, i16, PixelPlace) override { }
    void TellClick() override { }
    void TellDblClick() override { }

    Qt::FocusPolicy focusPolicy_;
    ComboBoxListener* listener_ = nullptr;
    QtComboModel model_;
    bool isListOnly_ = false;
    bool isRightToLeft_ = false;
    int index_ = -1;
    QFont font_;
    QPalette palette_;
    std::unique_ptr<Watch> watch_;
    QtFieldKeys keys_;
    QtFieldPointer pointer_;
    QPointer<Combo> combo_;
    QString former_;
    bool isSilent_ = false;
    // Between Qt's two tellings of what was typed.
    bool isEdited_ = false;
    bool isActivationAwaited_ = false;
    // The press on the field of a list alone came while the list was closed.
    bool opensList_ = false;
    // When a press on the field closed the list. Qt hands the same press to the field afterwards.
    std::optional<quint64> closingPress_;
};

} // namespace vornix
