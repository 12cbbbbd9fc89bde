#include "window.h"

#include "present.h"
#include "vornix/qvornix.h"

#include <QApplication>
#include <QMainWindow>
#include <QStatusBar>

#include <string>

namespace vornix::viewer {

int ShowWindow(const Table& table, const ViewerOptions& options)
{
    if (options.scaleGiven)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));
    int argumentCount = 1;
    std::string programName = "vornix-view";
    char* arguments[] = { programName.data(), nullptr };
    QApplication application(argumentCount, arguments);

    QMainWindow window;
    auto* const grid = new QVornix(&window);
    window.setCentralWidget(grid);
    window.setWindowTitle(QString::fromStdU16String(table.Name()) + QStringLiteral(" - Vornix"));
    window.statusBar()->showMessage(QString::fromStdString(StatusLine(table)));
    window.resize(options.width, options.height);

    PresentTable(grid->Grid(), grid->MeasuringDevice(), table);
    window.show();
    return QApplication::exec();
}

} // namespace vornix::viewer
