#include "window.h"

#include "editor_window.h"
#include "viewer_window.h"

#include <QApplication>
#include <QKeySequence>
#include <QShortcut>

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

template <typename Window, typename Source>
int RunWindow(Source& source, const ViewerOptions& options, const std::function<int()>& withoutDisplay)
{
    if (options.scaleGiven)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));
    Arguments arguments;
    const std::unique_ptr<QApplication> application = MakeApplication(arguments, withoutDisplay);

    Window window(source);
    window.resize(options.width, options.height);
    CloseOn(QKeySequence::Quit, window);
    CloseOn(QKeySequence::Close, window);
    window.show();
    return QApplication::exec();
}

} // namespace

int ShowWindow(const Table& table, const ViewerOptions& options, const std::function<int()>& withoutDisplay)
{
    return RunWindow<ViewerWindow>(table, options, withoutDisplay);
}

int ShowWindow(Document& document, const ViewerOptions& options, const std::function<int()>& withoutDisplay)
{
    return RunWindow<EditorWindow>(document, options, withoutDisplay);
}

} // namespace vornix::viewer
