// The text box with a mask as a Qt widget.
#pragma once

#include "vornix/text_box.h"

#include <QWidget>

#include <memory>

namespace vornix {

// A text box for any form: what is typed into it follows an input mask, or makes a number, or is free. Inside is a real
// edit widget of Qt's, so that input methods, the clipboard, undoing, selecting by mouse and assistive tools work as
// everywhere.
//
//     QVxTextBox phone;
//     phone.Box().SetMask(u"(999) 000-0000");
//     QObject::connect(&phone, &QVxTextBox::changed, [&] { save(phone.Box().Text()); });
//
// The widget's palette and font are the system colours and the ambient font. A label finds it as its buddy; accessibleName
// is the name that assistive tools give to the edit widget inside. Enter is the box's own; Escape and Tab go on to the form
// unless a handler of KeyDown sets their codes to 0.
//
// With AutoResize the widget takes the size that its text asks for, which is its sizeHint then: it is to stand free, not
// in a layout that stretches it. Enabled, place and visibility are those of the widget.
//
// Inside an event it is deleted by deleteLater() only.
class QVxTextBox : public QWidget {
    Q_OBJECT

public:
    explicit QVxTextBox(QWidget* parent = nullptr);
    // With the host's event handlers, which must outlive the widget. An AutomationError that leaves a handler while Qt
    // calls the widget goes to Qt's log.
    explicit QVxTextBox(TextBoxEvents& events, QWidget* parent = nullptr);
    ~QVxTextBox() override;

    TextBox& Box();
    const TextBox& Box() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    // After the events Change and Resize of the box.
    void changed();
    void sized();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    class Parts;

    std::unique_ptr<Parts> parts_;
};

} // namespace vornix
