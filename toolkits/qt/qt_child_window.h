// A child window of the control: a widget on its client area, made when first used.
#pragma once

#include "qt_setting.h"
#include "vornix/platform/container.h"

#include <QPointer>

#include <memory>

class QEvent;

namespace vornix {

// A plain one. The pointer does not reach the control through it. Where it has the focus when it goes, the control gets it.
class QtChildWindow : public ChildWindow {
public:
    explicit QtChildWindow(QtSetting& setting, QPalette::ColorRole ground = QPalette::Window);
    // In a window that outlives it, and is there whenever this one is.
    QtChildWindow(QtSetting& setting, QtChildWindow& frame);
    ~QtChildWindow() override;
    QtChildWindow(const QtChildWindow&) = delete;
    QtChildWindow& operator=(const QtChildWindow&) = delete;

    // The widget goes, and comes again when it is shown.
    void DropWidget();
    // The client area has moved within the widget.
    void FollowParent() { ApplyPlace(); }
    // Colours or resolution are others.
    virtual void FollowSetting() { }
    // Whether it is this window, or one inside it.
    bool Owns(const QWidget& widget) const;

    void Move(const Rect& place) override;
    Rect Place() const override { return place_; }
    void Show(bool visible) override;
    bool IsVisible() const override { return visible_; }
    void SetEnabled(bool enabled) override;
    bool IsEnabled() const override { return enabled_; }
    void Raise() override;
    bool SetFocus() override;

protected:
    // The widget for this window, which takes what it needs of what happens to it.
    virtual QWidget* MakeWindow(QWidget& parent);
    // What happens to the widget, before the widget itself learns of it. True keeps it from the widget.
    virtual bool Hears(QEvent& event);
    static bool IsOfPointer(const QEvent& event);

    // Null until it was first used.
    QWidget* Widget() const { return window_; }
    QtSetting& Setting() const { return setting_; }
    QWidget& Window();

private:
    class Watch;

    bool HasFocus() const;
    void HandFocusBack();
    void ApplyPlace();

    QtSetting& setting_;
    QPalette::ColorRole ground_;
    QtChildWindow* frame_ = nullptr;
    std::unique_ptr<Watch> watch_;
    QPointer<QWidget> window_;
    Rect place_;
    bool visible_ = false;
    bool enabled_ = true;
};

} // namespace vornix
