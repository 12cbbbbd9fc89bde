// An edit box of several lines.
#pragma once

#include "qt_edit_field.h"

#include <QPlainTextEdit>

namespace vornix {

class QtTextField final : public QPlainTextEdit, public QtEditField {
public:
    explicit QtTextField(QWidget* parent);

    QWidget& Widget() override { return *this; }
    QWidget& Canvas() override { return *viewport(); }
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

protected:
    void insertFromMimeData(const QMimeData* source) override;

private:
    // The document has one place for the end of a line, the text two.
    int Length() const;
    int InText(int inDocument) const;
    int InDocument(int inText) const;

    i32 mostTyped_ = 0;
};

} // namespace vornix
