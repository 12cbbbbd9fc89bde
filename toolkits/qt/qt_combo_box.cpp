#include "qt_combo_box.h"

#include "qt_ambient.h"
#include "qt_host_call.h"
#include "qt_one_line.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>

#include <algorithm>
#include <limits>
#include <utility>

namespace vornix {

namespace {

constexpr int ListedRows = 10;

bool IsPlain(const QKeyEvent& event)
{
    return !(event.modifiers() & ~Qt::KeypadModifier);
}

// How many rows a key walks in the list; 0 for other keys.
int RowsOf(const QKeyEvent& event)
{
    if (!IsPlain(event))
        return 0;
    switch (event.key()) {
    case Qt::Key_Up:
        return -1;
    case Qt::Key_Down:
        return 1;
    case Qt::Key_PageUp:
        return -ListedRows;
    case Qt::Key_PageDown:
        return ListedRows;
    default:
        return 0;
    }
}

bool OpensList(const QKeyEvent& event)
{
    const bool isAlt = event.modifiers().testFlag(Qt::AltModifier);
    return (event.key() == Qt::Key_F4 && IsPlain(event))
        || (isAlt && (event.key() == Qt::Key_Up || event.key() == Qt::Key_Down));
}

// What an open list does with keys is its own.
bool IsOfOpenList(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Select:
    case Qt::Key_Escape:
        return true;
    default:
        return RowsOf(event) != 0 || OpensList(event);
    }
}

} // namespace

class QtComboBox::Combo final : public QComboBox {
public:
    explicit Combo(QtComboBox& owner)
        : owner_(owner)
    {
    }
    // The list goes next.
    ~Combo() override { owner_.combo_ = nullptr; }

    using QComboBox::focusNextPrevChild;

    void showPopup() override
    {
        owner_.PrepareList();
        QComboBox::showPopup();
    }

    bool IsListOpen() const { return list_ && list_->isVisible(); }
    QListView* List() const { return list_; }
    void UseList(QListView* list) { list_ = list; }

protected:
    bool event(QEvent* event) override
    {
        const bool isKept = IsKeptByBox(*event);
        const bool isHandled = QComboBox::event(event);
        if (isKept)
            event->accept();
        return isHandled || isKept;
    }

    // The grid below scrolls.
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

private:
    QtComboBox& owner_;
    QPointer<QListView> list_;
};

class QtComboBox::Watch final : public QObject {
public:
    explicit Watch(QtComboBox& box)
        : box_(box)
    {
    }

    bool eventFilter(QObject* watched, QEvent* event) override { return box_.Hears(*watched, *event); }

private:
    QtComboBox& box_;
};

QtComboBox::QtComboBox(Qt::FocusPolicy focusPolicy)
    : focusPolicy_(focusPolicy)
    , watch_(std::make_unique<Watch>(*this))
    , keys_(*this)
    , pointer_(*this)
{
}

QtComboBox::~QtComboBox()
{
    listener_ = nullptr;
    isSilent_ = true;
    delete combo_;
}

// -- Its widgets --

QWidget& QtComboBox::Window()
{
    return Box();
}

QtComboBox::Combo& QtComboBox::Box() const
{
    if (!combo_)
        const_cast<QtComboBox*>(this)->MakeWindow();
    return *combo_;
}

QLineEdit& QtComboBox::Line() const
{
    return *Box().lineEdit();
}

void QtComboBox::MakeWindow()
{
    const QScopedValueRollback<bool> silent(isSilent_, true);
    combo_ = new Combo(*this);
    index_ = -1;
    // Its size is no matter of its rows.
    combo_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo_->setFrame(false);
    combo_->setAutoFillBackground(true);
    combo_->setModel(&model_);
    combo_->setEditable(true);
    combo_->setInsertPolicy(QComboBox::NoInsert);
    combo_->setCompleter(nullptr);
    combo_->setMaxVisibleItems(ListedRows);
    combo_->setFocusPolicy(focusPolicy_);
    combo_->setMouseTracking(true);
    QLineEdit& line = *combo_->lineEdit();
    // What is typed chooses no row, however it ends.
    QObject::disconnect(&line, SIGNAL(editingFinished()), combo_, nullptr);
    QObject::disconnect(&line, SIGNAL(returnPressed()), combo_, nullptr);
    line.setMaxLength(std::numeric_limits<int>::max());
    line.setTextMargins(0, -1, 0, -1);
    line.setMouseTracking(true);
    combo_->installEventFilter(watch_.get());
    line.installEventFilter(watch_.get());
    // Qt tells first that the user has done it, and then that it is done.
    QObject::connect(&line, &QLineEdit::textEdited, combo_, [this] { isEdited_ = true; });
    QObject::connect(&line, &QLineEdit::textChanged, combo_, [this] { HearChange(); });
    QObject::connect(combo_, &QComboBox::activated, combo_, [this](int index) { HearActivation(index); });
    line.clear();
    ApplySettings();
}

void QtComboBox::ApplySettings()
{
    if (!combo_)
        return;
    combo_->setFont(font_);
    combo_->setPalette(palette_);
    combo_->setLayoutDirection(isRightToLeft_ ? Qt::RightToLeft : Qt::LeftToRight);
    QLineEdit& line = *combo_->lineEdit();
    line.setReadOnly(isListOnly_);
    line.setCursor(isListOnly_ ? Qt::ArrowCursor : Qt::IBeamCursor);
    line.setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

// -- Its text --

std::u16string QtComboBox::Text() const
{
    return FromQString(Line().text());
}

void QtComboBox::SetText(std::u16string_view text)
{
    const QScopedValueRollback<bool> silent(isSilent_, true);
    index_ = -1;
    isActivationAwaited_ = false;
    keys_.ForgetComposition();
    Line().setText(ToQString(text));
    Line().setCursorPosition(0);
}

int QtComboBox::SelStart() const
{
    return Line().hasSelectedText() ? Line().selectionStart() : Line().cursorPosition();
}

void QtComboBox::SetSelStart(int start)
{
    Line().setCursorPosition(std::clamp(start, 0, static_cast<int>(Line().text().size())));
    Line().deselect();
}

int QtComboBox::SelLength() const
{
    return Line().selectionLength();
}

void QtComboBox::SetSelLength(int length)
{
    const int start = SelStart();
    const int most = static_cast<int>(Line().text().size()) - start;
    if (length > 0 && most > 0)
        Line().setSelection(start, std::min(length, most));
    else
        SetSelStart(start);
}

std::u16string QtComboBox::SelText() const
{
    return FromQString(Line().selectedText());
}

void QtComboBox::SetSelText(std::u16string_view text)
{
    const QScopedValueRollback<bool> silent(isSilent_, true);
    index_ = -1;
    if (text.empty() && SelLength() == 0)
        return;
    keys_.ForgetComposition();
    Line().insert(ToQString(text));
}

// -- Its list --

void QtComboBox::SetItems(const ComboItems* items)
{
    model_.SetItems(items);
    index_ = -1;
    ItemsChanged();
}

// An open list shows them when all changes of the moment are made.
void QtComboBox::ItemsChanged()
{
    const bool isKnown = model_.IsChanged();
    model_.ItemsChanged();
    if (combo_ && combo_->IsListOpen() && !isKnown)
        QMetaObject::invokeMethod(
            combo_, [this] { PrepareList(); }, Qt::QueuedConnection);
}

// Qt changes the field when the rows are others.
void QtComboBox::PrepareList()
{
    const QScopedValueRollback<bool> silent(isSilent_, true);
    if (!combo_->List()) {
        auto* const list = qobject_cast<QListView*>(combo_->view());
        list->setUniformItemSizes(true);
        list->installEventFilter(watch_.get());
        list->window()->installEventFilter(watch_.get());
        combo_->UseList(list);
    }
    const QString text = Line().text();
    const int start = SelStart();
    const int length = SelLength();
    model_.ShowChanges();
    combo_->setCurrentIndex(index_);
    Line().setText(text);
    SetSelStart(start);
    SetSelLength(length);
}

void QtComboBox::SetListIndex(int index)
{
    if (index < -1 || index >= model_.Count())
        return;
    const QScopedValueRollback<bool> silent(isSilent_, true);
    isActivationAwaited_ = false;
    keys_.ForgetComposition();
    Line().setText(model_.TextOf(index));
    Line().setCursorPosition(0);
    index_ = index;
    ShowIndex();
}

void QtComboBox::ShowIndex()
{
    if (combo_->IsListOpen() && !model_.IsChanged())
        combo_->List()->setCurrentIndex(model_.index(index_));
}

void QtComboBox::DropDown(bool open)
{
    if (open)
        Box().showPopup();
    else if (combo_)
        combo_->hidePopup();
}

// -- Its settings --

void QtComboBox::SetListOnly(bool listOnly)
{
    isListOnly_ = listOnly;
    ApplySettings();
}

void QtComboBox::SetRightToLeft(bool rightToLeft)
{
    isRightToLeft_ = rightToLeft;
    ApplySettings();
}

void QtComboBox::SetFont(const FontObject& font)
{
    font_ = QFontFrom(font);
    ApplySettings();
}

void QtComboBox::SetColors(ColorRef foreColor, ColorRef backColor)
{
    UseColors(palette_, foreColor, backColor);
    ApplySettings();
}

std::intptr_t QtComboBox::Handle() const
{
    return combo_ ? static_cast<std::intptr_t>(combo_->internalWinId()) : 0;
}

// -- What its user does --

template <typename Step> void QtComboBox::Tell(const Step& step)
{
    if (listener_)
        CallFromQt([&] { step(*listener_); });
}

bool QtComboBox::Hears(QObject& watched, QEvent& event)
{
    if (!combo_)
        return false;
    if (&watched == combo_->List())
        return HearsInList(event);
    if (combo_->List() && &watched == combo_->List()->window()) {
        if (event.type() == QEvent::MouseButtonPress)
            HearPressOutsideList(static_cast<QMouseEvent&>(event));
        return false;
    }
    const bool isOfLine = &watched == combo_->lineEdit();
    if (isOfLine && isListOnly_ && IsKeptByBox(event) && event.type() != QEvent::MouseMove)
        return HearsFieldOfList(static_cast<QMouseEvent&>(event));
    if (event.type() == QEvent::MouseMove)
        return pointer_.Hears(isOfLine ? static_cast<QWidget&>(Line()) : *combo_, *combo_, event);
    if (&watched != combo_)
        return false;
    if (event.type() == QEvent::FocusIn && OnFocus)
        OnFocus(*combo_);
    return keys_.Hears(event);
}

// The field of a list alone opens the list, or closes the open one. A list that is open before the release would take it
// for its own.
bool QtComboBox::HearsFieldOfList(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return true;
    if (event.type() != QEvent::MouseButtonRelease) {
        opensList_ = closingPress_ != event.timestamp();
        return true;
    }
    closingPress_.reset();
    if (std::exchange(opensList_, false) && Line().rect().contains(event.position().toPoint()))
        combo_->showPopup();
    return true;
}

void QtComboBox::HearPressOutsideList(const QMouseEvent& event)
{
    opensList_ = false;
    closingPress_.reset();
    if (Line().rect().contains(Line().mapFromGlobal(event.globalPosition()).toPoint()))
        closingPress_ = event.timestamp();
}

bool QtComboBox::HearsInList(QEvent& event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return !IsOfOpenList(static_cast<QKeyEvent&>(event)) && keys_.Hears(event);
    default:
        return false;
    }
}

// By the user, by an assistive tool, or by Qt when a row is chosen.
void QtComboBox::HearChange()
{
    const bool isEdited = std::exchange(isEdited_, false);
    if (!isSilent_ && !isEdited && IsTextOfQtsRow())
        return AwaitActivation();
    if (!isSilent_) {
        const QScopedValueRollback<bool> silent(isSilent_, true);
        KeepFirstLine(Line(), former_, 0);
    }
    former_ = Line().text();
    if (!isSilent_)
        TellChange();
}

bool QtComboBox::IsTextOfQtsRow() const
{
    const int row = combo_->currentIndex();
    return row >= 0 && Line().text() == combo_->itemText(row);
}

// Qt writes the text of a chosen row before it tells of the choice. A change that no choice follows is another's.
void QtComboBox::AwaitActivation()
{
    former_ = Line().text();
    index_ = -1;
    isActivationAwaited_ = true;
    QMetaObject::invokeMethod(
        combo_,
        [this] {
            if (std::exchange(isActivationAwaited_, false))
                TellChange();
        },
        Qt::QueuedConnection);
}

void QtComboBox::TellChange()
{
    isActivationAwaited_ = false;
    index_ = -1;
    Tell([](ComboBoxListener& listener) { listener.TextChanged(); });
}

void QtComboBox::HearActivation(int index)
{
    if (isSilent_)
        return;
    SetListIndex(index);
    Line().selectAll();
    Tell([](ComboBoxListener& listener) { listener.Click(); });
}

void QtComboBox::Choose(int index)
{
    const int chosen = std::clamp(index, 0, std::max(model_.Count() - 1, 0));
    if (chosen < model_.Count() && chosen != index_)
        HearActivation(chosen);
}

// In a field without characters of its own.
bool QtComboBox::WalksToEnd(const QKeyEvent& event)
{
    const bool isEnd = event.key() == Qt::Key_End;
    if (!isListOnly_ || !IsPlain(event) || (!isEnd && event.key() != Qt::Key_Home))
        return false;
    Choose(isEnd ? model_.Count() - 1 : 0);
    return true;
}

bool QtComboBox::Walks(const QKeyEvent& event)
{
    if (WalksToEnd(event))
        return true;
    const int rows = RowsOf(event);
    if (rows == 0)
        return false;
    Choose(index_ < 0 ? 0 : index_ + rows);
    return true;
}

void QtComboBox::TellKeyDown(i16& code, i16& shift)
{
    Tell([&](ComboBoxListener& listener) { listener.KeyDown(code, shift); });
}

void QtComboBox::TellKeyPress(i16& character, i16 shift)
{
    Tell([&](ComboBoxListener& listener) { listener.KeyPress(character, shift); });
}

void QtComboBox::TellKeyUp(i16& code, i16& shift)
{
    Tell([&](ComboBoxListener& listener) { listener.KeyUp(code, shift); });
}

QWidget& QtComboBox::KeyWidget()
{
    return Box();
}

void QtComboBox::ActOnKey(QKeyEvent& event, ChangeOrigin)
{
    event.accept();
    if (Walks(event))
        return;
    if (OpensList(event))
        return combo_->showPopup();
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        return event.ignore();
    static_cast<QObject&>(Line()).event(&event);
}

void QtComboBox::ActOnComposition(QInputMethodEvent& event, ChangeOrigin)
{
    if (!isListOnly_)
        static_cast<QObject&>(Line()).event(&event);
}

bool QtComboBox::MoveFocus(bool forward)
{
    return OnTab ? OnTab(forward) : combo_->focusNextPrevChild(forward);
}

void QtComboBox::TellMouseMove(i16 buttons, i16 shift, PixelPlace place)
{
    Tell([&](ComboBoxListener& listener) { listener.MouseMove(buttons, shift, place.x, place.y); });
}

} // namespace vornix
