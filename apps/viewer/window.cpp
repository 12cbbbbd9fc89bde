#include "window.h"

#include "present.h"
#include "vornix/qvornix.h"

#include <QApplication>
#include <QKeySequence>
#include <QMainWindow>
#include <QShortcut>
#include <QStatusBar>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

namespace vornix::viewer {

namespace {

// Qt ends the program when it cannot reach the display it was pointed at. Until the application stands, that end is a
// picture instead.
class DisplayGuard {
public:
    explicit DisplayGuard(const std::function<int()>& withoutDisplay)
    {
        withoutDisplay_ = &withoutDisplay;
        qInstallMessageHandler(Handle);
    }
    ~DisplayGuard() { qInstallMessageHandler(nullptr); }
    DisplayGuard(const DisplayGuard&) = delete;
    DisplayGuard& operator=(const DisplayGuard&) = delete;

private:
    static void Handle(QtMsgType type, const QMessageLogContext&, const QString&)
    {
        if (type != QtFatalMsg)
            return;
        qInstallMessageHandler(nullptr);
        const int status = (*withoutDisplay_)();
        std::cout.flush();
        std::fflush(nullptr);
        std::_Exit(status);
    }

    static inline const std::function<int()>* withoutDisplay_ = nullptr;
};

// Of the application, which refers to them for as long as it lives.
struct Arguments {
    std::string programName = "vornix-view";
    char* values[2] = { programName.data(), nullptr };
    int count = 1;
};

std::unique_ptr<QApplication> MakeApplication(Arguments& arguments, const std::function<int()>& withoutDisplay)
{
    const DisplayGuard guard(withoutDisplay);
    return std::make_unique<QApplication>(arguments.count, arguments.values);
}

void CloseOn(QKeySequence::StandardKey key, QWidget& window)
{
    auto* const shortcut = new QShortcut(key, &window);
    QObject::connect(shortcut, &QShortcut::activated, &window, &QWidget::close);
}

// What a picture has no use for.
void GiveToUser(Vornix& grid)
{
    grid.SetRedraw(false);
    grid.SetScrollHBar(vxScrollTrack);
    grid.SetScrollVBar(vxScrollTrack);
    grid.SetCellSelection(true);
    grid.SetSelectMode(vxBoth);
    grid.SetResizeMode(vxBoth);
    grid.SetShowSplit(true);
    grid.SetRedraw(true);
}

} // namespace

int ShowWindow(const Table& table, const ViewerOptions& options, const std::function<int()>& withoutDisplay)
{
    if (options.scaleGiven)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));
    Arguments arguments;
    const std::unique_ptr<QApplication> application = MakeApplication(arguments, withoutDisplay);

    QMainWindow window;
    auto* const grid = new QVornix(&window);
    window.setCentralWidget(grid);
    window.setWindowTitle(QString::fromStdU16String(table.Name()) + QStringLiteral(" - Vornix"));
    window.statusBar()->showMessage(QString::fromStdString(StatusLine(table)));
    window.resize(options.width, options.height);
    CloseOn(QKeySequence::Quit, window);
    CloseOn(QKeySequence::Close, window);

    PresentTable(grid->Grid(), grid->MeasuringDevice(), grid->Colors(), table);
    GiveToUser(grid->Grid());
    window.show();
    return QApplication::exec();
}

} // namespace vornix::viewer
