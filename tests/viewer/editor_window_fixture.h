// The viewer's window for changing a table, in the hands of a person.
#pragma once

#include "editor_window.h"
#include "saved_document.h"
#include "scratch_folder.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include <string>

namespace vornix::viewer {

inline constexpr const char* Orders = "city,total,paid,note\nOslo,12.50,yes,\"a\nb\"\nRoma,7,no,c\nBern,8,,d\n";

// Presses a button of the next box that is shown and has it, and keeps what the box said.
class BoxAnswer {
public:
    explicit BoxAnswer(QMessageBox::StandardButton button)
    {
        QObject::connect(&timer_, &QTimer::timeout, [this, button] { Answer(button); });
        timer_.start(10);
    }
    const std::string& Text() const { return text_; }
    bool WasShown() const { return !text_.empty(); }

private:
    void Answer(QMessageBox::StandardButton button)
    {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->button(button))
            return;
        timer_.stop();
        text_ = box->text().toStdString();
        box->button(button)->click();
    }

    QTimer timer_;
    std::string text_;
};

class EditorWindowTest : public testing::Test {
protected:
    explicit EditorWindowTest(const char* content = Orders)
        : path(folder.Write("orders.csv", content))
    {
        window.resize(600, 400);
        window.show();
        window.activateWindow();
        Settle();
    }

    Vornix& Grid() { return window.GridWidget().Grid(); }
    static void Settle()
    {
        QApplication::processEvents();
        QApplication::processEvents();
    }
    std::string Label(const char* name) { return window.findChild<QLabel*>(QLatin1String(name))->text().toStdString(); }
    QAction& SaveAction() { return *window.findChild<QAction*>(QStringLiteral("save")); }

    // In the window.
    QPoint MiddleOf(i16 Row, i16 Col)
    {
        i32 x = 0;
        i32 y = 0;
        i16 width = 0;
        i16 height = 0;
        Grid().GetPositionCell(Row, Col, x, y);
        Grid().GetSizeCell(Row, Col, width, height);
        return window.GridWidget().mapTo(&window, QPoint(x / 15 + width / 2, y / 15 + height / 2));
    }
    void Click(i16 Row, i16 Col)
    {
        const QPoint at = MiddleOf(Row, Col);
        QTest::mouseEvent(QTest::MouseMove, window.windowHandle(), Qt::NoButton, {}, at);
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, at);
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, at);
        Settle();
    }
    void ClickTitle(i16 Col) { Click(-1, Col); }
    QAction& Action(const char* name) { return *window.findChild<QAction*>(QLatin1String(name)); }
    void Type(Qt::Key key, Qt::KeyboardModifiers keys = {})
    {
        QTest::keyClick(window.windowHandle(), key, keys);
        Settle();
    }
    void Type(const char* text)
    {
        for (; *text; ++text)
            QTest::keyClick(window.windowHandle(), *text);
        Settle();
    }
    // What closing does, with the box answered.
    bool Close(QMessageBox::StandardButton answer, std::string* text = nullptr)
    {
        BoxAnswer box(answer);
        const bool closed = window.close();
        EXPECT_TRUE(box.WasShown());
        if (text)
            *text = box.Text();
        return closed;
    }

    const ScratchFolder folder;
    const std::string path;
    Document document = Opened(path);
    EditorWindow window { document };
};

} // namespace vornix::viewer
