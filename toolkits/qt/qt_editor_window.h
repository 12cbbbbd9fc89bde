// The children txtTmp and cboTmp: windows in the frame that hold a box and nothing else.
#pragma once

#include "qt_child_window.h"

#include <QEvent>
#include <QWidget>

namespace vornix {

// `Box` has a Window() to place.
template <typename Box> class QtEditorWindow final : public QtChildWindow {
public:
    QtEditorWindow(QtSetting& setting, QtChildWindow& frame)
        : QtChildWindow(setting, frame)
        , box_(Qt::ClickFocus)
    {
    }
    ~QtEditorWindow() override { DropWidget(); }

    Box& TheBox() { return box_; }

protected:
    QWidget* MakeWindow(QWidget& parent) override
    {
        box_.Window().setParent(&parent);
        return &box_.Window();
    }
    // The box sees to the pointer. A disabled widget lets it through to its parent.
    bool Hears(QEvent& event) override { return IsOfPointer(event) && !Widget()->isEnabled(); }

private:
    Box box_;
};

} // namespace vornix
