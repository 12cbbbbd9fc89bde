// An edit box of one line. It can hide its text behind a sign.
#pragma once

#include "qt_edit_field.h"

#include <QLineEdit>

#include <memory>

namespace vornix {

class QtLineField final : public QLineEdit, public QtEditField {
public:
    explicit QtLineField(QWidget* parent);
    ~QtLineField() override;

    QWidget& Widget() override { return *this; }
    QWidget& Canvas() override { return *this; }
    void Apply(const QtEditSettings& settings) override;
    std::u16string Text() const override;
    void SetText(std::u16string_view text) override;
    int SelStart() const override;
    int SelLength() const override;
    void Select(int start, int length) override;
    void Insert(std::u16string_view text) override;
    bool Act(QKeyEvent& event) override;
    bool MoveFocus(bool forward) override { return focusNextPrevChild(forward); }
    bool HasRoomFor(int characters) const override;

private:
    class SignStyle;

    void HearChange();
    void ShowSign(char16_t sign);

    i32 mostTyped_ = 0;
    char16_t sign_ = 0;
    QString former_;
    bool isProgram_ = false;
    std::unique_ptr<SignStyle> signStyle_;
};

} // namespace vornix
