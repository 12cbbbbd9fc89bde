// The line in which a text to look for is typed.
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace vornix::viewer {

// Hidden until Open(). Enter and Shift+Enter are Next and Previous, Escape closes it.
class FindBar final : public QWidget {
    Q_OBJECT

public:
    explicit FindBar(QWidget* parent);

    // The text is ready to be typed over.
    void Open();
    QString Text() const;
    // "3 of 17"; of nothing, that there is none, and 0 of some is their number alone.
    void TellCount(int place, int count);

signals:
    void Changed(const QString& text);
    void Next();
    void Previous();
    void Closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLineEdit* const field_;
    QLabel* const count_;
};

} // namespace vornix::viewer
