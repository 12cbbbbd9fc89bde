// The desk of the editing tests on the Qt widget: events as Qt's platforms send them.
#include "editing/editing_desk.h"
#include "widget_support.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QWindow>

#include <map>
#include <stdexcept>

namespace vornix {

namespace {

QString QStringOf(std::u16string_view text)
{
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

Qt::KeyboardModifiers ModifiersOf(i16 shift)
{
    Qt::KeyboardModifiers keys;
    keys.setFlag(Qt::ShiftModifier, shift & 1);
    keys.setFlag(Qt::ControlModifier, shift & 2);
    keys.setFlag(Qt::AltModifier, shift & 4);
    return keys;
}

struct NamedKey {
    Qt::Key key;
    QString text;
};

NamedKey KeyNamed(std::string_view name)
{
    static const std::map<std::string_view, NamedKey> keys = {
        { "Back", { Qt::Key_Backspace, QStringLiteral("\b") } },
        { "Delete", { Qt::Key_Delete, {} } },
        { "Down", { Qt::Key_Down, {} } },
        { "End", { Qt::Key_End, {} } },
        { "Escape", { Qt::Key_Escape, QStringLiteral("\x1b") } },
        { "F2", { Qt::Key_F2, {} } },
        { "F4", { Qt::Key_F4, {} } },
        { "Home", { Qt::Key_Home, {} } },
        { "Left", { Qt::Key_Left, {} } },
        { "Return", { Qt::Key_Return, QStringLiteral("\r") } },
        { "Right", { Qt::Key_Right, {} } },
        { "Tab", { Qt::Key_Tab, QStringLiteral("\t") } },
        { "Up", { Qt::Key_Up, {} } },
    };
    const auto found = keys.find(name);
    if (found == keys.end())
        throw std::invalid_argument("The desk has no such key: " + std::string(name));
    return found->second;
}

// Lines fit into the cells.
QWidget* InSmallFont(QWidget& form)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    form.setFont(font);
    return &form;
}

class QtDesk final : public EditingDesk {
public:
    explicit QtDesk(VornixEvents& handlers)
        : log_(&handlers)
        , widget_(log_, InSmallFont(form_))
        , other_(&form_)
    {
        form_.resize(640, 520);
        widget_.setGeometry(0, 0, 640, 480);
        other_.setGeometry(0, 490, 100, 20);
        form_.show();
        form_.activateWindow();
        other_.setFocus();
        Settle();
    }

    Vornix& Grid() override { return widget_.Grid(); }
    Container& Host() override { return widget_.GridContainer(); }
    EventLog& Log() override { return log_; }

    void ClickAt(int x, int y, i16 shift) override
    {
        QTest::mouseEvent(QTest::MouseMove, form_.windowHandle(), Qt::NoButton, ModifiersOf(shift), { x, y });
        QTest::mouseClick(form_.windowHandle(), Qt::LeftButton, ModifiersOf(shift), { x, y });
    }
    void DblClickAt(int x, int y) override { QTest::mouseDClick(form_.windowHandle(), Qt::LeftButton, {}, { x, y }); }
    void Type(std::u16string_view text) override
    {
        for (const char16_t unit : text) {
            const QChar character(unit);
            Strike(character.toUpper().unicode(), ModifiersOf(character.isUpper() ? 1 : 0), QString(character));
        }
    }
    void Press(std::string_view name, i16 shift) override
    {
        const NamedKey named = KeyNamed(name);
        Strike(named.key, ModifiersOf(shift), named.text);
    }
    void Compose(std::u16string_view text) override
    {
        QInputMethodEvent begun(QStringOf(text), {});
        QApplication::sendEvent(QApplication::focusObject(), &begun);
        QInputMethodEvent done;
        done.setCommitString(QStringOf(text));
        QApplication::sendEvent(QApplication::focusObject(), &done);
    }
    void Paste(std::u16string_view text) override
    {
        QApplication::clipboard()->setText(QStringOf(text));
        QWidget* const focus = QApplication::focusWidget();
        if (auto* const lines = qobject_cast<QPlainTextEdit*>(focus))
            lines->paste();
        else if (auto* const line = qobject_cast<QLineEdit*>(focus))
            line->paste();
        else if (auto* const combo = qobject_cast<QComboBox*>(focus))
            combo->lineEdit()->paste();
    }
    void ClickItem(int index) override
    {
        auto* const combo = qobject_cast<QComboBox*>(QApplication::focusWidget());
        ASSERT_TRUE(combo);
        combo->showPopup();
        combo->view()->setCurrentIndex(combo->model()->index(index, 0));
        QTest::keyClick(combo->view(), Qt::Key_Return);
    }
    void LeaveFocus() override { other_.setFocus(); }
    void ReturnFocus() override { widget_.setFocus(); }
    void Tick() override { Grid().Tick(); }
    Focus WhereFocusIs() override
    {
        const QWidget* const focus = QApplication::focusWidget();
        if (!focus || (focus != &widget_ && !widget_.isAncestorOf(focus)))
            return Focus::Elsewhere;
        if (qobject_cast<const QComboBox*>(focus))
            return Focus::ComboEditor;
        const bool isText = qobject_cast<const QLineEdit*>(focus) || qobject_cast<const QPlainTextEdit*>(focus);
        return isText ? Focus::TextEditor : Focus::Control;
    }

private:
    // The key alone, with others held that went down before. A person would have clicked on the control first.
    void Strike(int key, Qt::KeyboardModifiers keys, const QString& text)
    {
        if (WhereFocusIs() == Focus::Elsewhere)
            widget_.setFocus();
        for (const bool isPress : { true, false })
            QTest::simulateEvent(form_.windowHandle(), isPress, key, keys, text, false);
    }

    EventLog log_;
    QWidget form_;
    NotedWidget widget_;
    QLineEdit other_;
};

} // namespace

std::unique_ptr<EditingDesk> MakeDesk(VornixEvents& handlers)
{
    return std::make_unique<QtDesk>(handlers);
}

} // namespace vornix
