// The control as a Qt widget.
#pragma once

#include "vornix/events.h"
#include "vornix/vornix.h"

#include <QFrame>

#include <memory>

class QPainter;

namespace vornix {

class QtAccessibleNews;
class QtContainer;
class QtKeyboard;
class QtPointer;
class QtWheel;

// Shows one grid. The widget's palette and font are the grid's system colours and ambient font when it is made and
// whenever they change; its border is the grid's BorderStyle; the picture is drawn at the screen's own resolution.
//
//     QVornix table;
//     table.Grid().SetRows(100);
//     table.show();
//
// Pointer, wheel and keys are the grid's. Keys that neither the grid nor a handler uses go on to the form; Tab moves the
// focus unless a handler of KeyDown sets its code to 0. The context menu is left to the host.
//
// Assistive tools find a table: fixed rows and columns are its headers, the title is its name unless accessibleName is
// set, and the current cell has the focus. The editor over a cell has the name of the cell's column.
//
// Inside an event of the grid the widget is deleted by deleteLater() only, and not before the handler has returned: a
// handler that runs an event loop of its own (QDialog::exec, QMenu::exec) must see to it that the widget outlives that
// loop. Grid().Terminate() closes the grid at once and leaves a widget that shows its last picture.
class QVornix : public QFrame {
    Q_OBJECT

public:
    explicit QVornix(QWidget* parent = nullptr);
    // With the host's event handlers, which must outlive the widget. An AutomationError that leaves a handler while Qt
    // calls the widget (to paint it, say) goes to Qt's log; any other exception is the host's own matter.
    explicit QVornix(VornixEvents& events, QWidget* parent = nullptr);
    ~QVornix() override;

    Vornix& Grid();
    const Vornix& Grid() const;
    // The device that the grid is drawn on, for measuring texts before the widget is shown. A new one may take its
    // place whenever the widget changes its size or resolution.
    Device& MeasuringDevice();
    // The system colours that the grid sees, from the palette of the widget.
    const SystemColors& Colors() const;

    // A number for CustomhWnd: the widget edits cells of the mode vxCustom. Valid until the widget is destroyed, and the
    // same each time. The widget's winId() serves as well, but makes a native window of it.
    //
    //     void BeforeCustom(i16, i16, i32&, i32&, i32&, i32&) override
    //     {
    //         table.Grid().SetCustomhWnd(QVornix::RegisterEditor(&calendar));
    //     }
    //
    // Shown over a cell, the widget becomes a child of the grid's; the host still owns it. When the grid's widget goes,
    // it is without a parent if it had none before; otherwise it comes back to its parent.
    static i32 RegisterEditor(QWidget* editor);

    QSize sizeHint() const override;

protected:
    // What the grid has of this widget: its windows and editors.
    Container& GridContainer();

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    template <typename Step> void TellGrid(const Step& step);
    void PressTab(QKeyEvent& event);
    bool IsKeyOfChild() const;
    bool MoveFocusOn(bool forward);
    void NameEditor(QWidget& editor) const;
    void FollowWidget();
    QRect Client() const;
    void UpdatePart(const QRect& area);
    void DrawFrame(QPainter& painter, const QRegion& dirty);
    void DrawPicture(QPainter& painter, const QRegion& dirty);

    std::unique_ptr<QtContainer> container_;
    std::unique_ptr<Vornix> grid_;
    std::unique_ptr<QtPointer> pointer_;
    std::unique_ptr<QtWheel> wheel_;
    std::unique_ptr<QtKeyboard> keyboard_;
    std::unique_ptr<QtAccessibleNews> accessibleNews_;
    bool painting_ = false;
};

} // namespace vornix
