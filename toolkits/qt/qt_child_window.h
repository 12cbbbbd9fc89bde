// A child window of the control: a plain widget on its client area, made when first used.
#pragma once

#include "vornix/platform/container.h"

#include <QFrame>
#include <QPointer>

namespace vornix {

class QtChildWindow final : public ChildWindow {
public:
    explicit QtChildWindow(QFrame& parent)
        : parent_(parent)
    {
    }

    // The client area has moved within the widget.
    void FollowParent() { ApplyPlace(); }

    void Move(const Rect& place) override;
    Rect Place() const override { return place_; }
    void Show(bool visible) override;
    bool IsVisible() const override { return visible_; }
    void SetEnabled(bool enabled) override;
    bool IsEnabled() const override { return enabled_; }
    void Raise() override;
    bool SetFocus() override;

private:
    QWidget& Window();
    void ApplyPlace();

    QFrame& parent_;
    QPointer<QWidget> window_;
    Rect place_;
    bool visible_ = false;
    bool enabled_ = true;
};

} // namespace vornix
