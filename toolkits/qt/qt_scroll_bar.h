// A scroll bar of the control: a real QScrollBar, which stands where the control puts it. What its user does is told to
// the control, as the platform's bars tell it.
#pragma once

#include "qt_child_window.h"

class QScrollBar;

namespace vornix {

class QtScrollBar final : public QtChildWindow, public NativeScrollBar {
public:
    // `name` is scrV or scrH.
    QtScrollBar(QtSetting& setting, ChildName name);

    void SetInfo(const ScrollBarInfo& info) override;
    void SetRange(i32 min, i32 max) override;
    i32 Position() const override { return info_.position; }
    void SetPosition(i32 position) override;
    i32 TrackPosition() const override { return trackPosition_; }
    // 0 for a bar that is drawn in the window of the widget.
    std::intptr_t Handle() const override;

protected:
    QWidget* MakeWindow(QWidget& parent) override;
    bool Hears(QEvent& event) override;

private:
    class Bar;

    i32 Limited(i32 position) const;
    QScrollBar* NativeBar() const;
    void ShowInfo();
    void ShowPosition();
    void Notify(i32 code);

    // The user moves the bar in one of Qt's ways; nothing else does.
    void TakeAction(int action);
    void TakeValue(int value);
    // From the press to the release actions may repeat; then they are over. Others are over at once.
    void Hold();
    void LetGo();
    void EndAction();

    ChildName name_;
    ScrollBarInfo info_;
    i32 trackPosition_ = 0;
    bool isShowing_ = false;
    bool isHeld_ = false;
    bool isActionOpen_ = false;
    bool isTracking_ = false;
};

} // namespace vornix
