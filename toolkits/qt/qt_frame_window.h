// The frame fraEdit, which clips the editors in it and hands the focus on to them.
#pragma once

#include "qt_child_window.h"

namespace vornix {

class QtFrameWindow final : public QtChildWindow {
public:
    using QtChildWindow::QtChildWindow;

    void SetBackColor(ColorRef color) override;

protected:
    QWidget* MakeWindow(QWidget& parent) override;
    bool Hears(QEvent& event) override;

private:
    void HearPointer(const QMouseEvent& event);
    void TakeFocus();

    QPalette palette_;
    bool hasPalette_ = false;
};

} // namespace vornix
