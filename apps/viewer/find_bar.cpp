#include "find_bar.h"

#include "notices.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QToolButton>

namespace vornix::viewer {

namespace {

constexpr int Space = 6;
constexpr int FieldWidth = 280;

QToolButton* AddButton(QWidget* parent, const char* name, QStyle::StandardPixmap picture, const QString& tip)
{
    auto* const button = new QToolButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setIcon(parent->style()->standardIcon(picture));
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    parent->layout()->addWidget(button);
    return button;
}

} // namespace

FindBar::FindBar(QWidget* parent)
    : QWidget(parent)
    , field_(new QLineEdit(this))
    , count_(new QLabel(this))
{
    setObjectName(QStringLiteral("findBar"));
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(Space, Space / 2, Space, Space / 2);
    layout->setSpacing(Space);
    auto* const label = new QLabel(tr("Fin&d:"), this);
    label->setBuddy(field_);
    layout->addWidget(label);
    field_->setObjectName(QStringLiteral("findText"));
    field_->setMaximumWidth(FieldWidth);
    field_->setClearButtonEnabled(true);
    layout->addWidget(field_, 2);
    connect(AddButton(this, "findPrevious", QStyle::SP_ArrowUp, tr("Previous")), &QToolButton::clicked, this,
        &FindBar::Previous);
    connect(AddButton(this, "findNext", QStyle::SP_ArrowDown, tr("Next")), &QToolButton::clicked, this, &FindBar::Next);
    count_->setObjectName(QStringLiteral("findCount"));
    layout->addWidget(count_, 3);
    connect(AddButton(this, "findClose", QStyle::SP_TitleBarCloseButton, tr("Close")), &QToolButton::clicked, this,
        &FindBar::Closed);
    connect(field_, &QLineEdit::textChanged, this, &FindBar::Changed);
    hide();
}

void FindBar::Open()
{
    show();
    field_->setFocus();
    field_->selectAll();
}

QString FindBar::Text() const
{
    return field_->text();
}

void FindBar::TellCount(int place, int count)
{
    const bool isMissing = count == 0 && !Text().isEmpty();
    const auto total = static_cast<std::uint64_t>(count);
    std::string text;
    if (isMissing)
        text = "not found";
    else if (place > 0)
        text = WithGroups(static_cast<std::uint64_t>(place)) + " of " + WithGroups(total);
    else if (count > 0)
        text = WithGroups(total) + " found";
    count_->setText(QString::fromStdString(text));
    // Seen without reading it, on light and dark grounds alike.
    const QColor warning
        = palette().color(QPalette::Base).lightness() > 127 ? QColor(176, 0, 32) : QColor(255, 128, 128);
    QPalette colors = palette();
    if (isMissing)
        colors.setColor(QPalette::Text, warning);
    field_->setPalette(colors);
    if (isMissing)
        colors.setColor(QPalette::WindowText, warning);
    count_->setPalette(colors);
}

void FindBar::keyPressEvent(QKeyEvent* event)
{
    const bool isShift = event->modifiers().testFlag(Qt::ShiftModifier);
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        isShift ? emit Previous() : emit Next();
        break;
    case Qt::Key_Escape:
        emit Closed();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace vornix::viewer
