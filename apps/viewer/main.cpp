// vornix-view: shows a file of separated values or a table of a database, and changes it.
#include "document.h"
#include "open_source.h"
#include "options.h"
#include "progress_line.h"
#include "report.h"
#include "sample_path.h"
#include "show.h"
#include "text_output.h"
#include "unicode.h"

#include <exception>
#include <iostream>
#include <new>
#include <unistd.h>

namespace {

using namespace vornix::viewer;

template <typename Source>
Source Load(
    const ViewerOptions& options, Source (*open)(const ViewerOptions&, const LoadLimits&, const ProgressFunction&))
{
    ProgressLine line(std::cerr, FileName(options));
    ProgressFunction progress;
    if (::isatty(STDERR_FILENO))
        progress = [&](const Progress& state) { line.Update(state); };
    return open(options, LoadLimits(), progress);
}

void ReportNotices(const ViewerOptions& options, const Table& table)
{
    for (const std::string& notice : table.Notices())
        ReportLine(FileName(options) + ": " + notice);
}

int List(const ViewerOptions& options)
{
    for (const SourceEntry& entry : ListSource(options))
        std::cout << entry.kind << '\t' << OneLine(entry.name) << '\n';
    return 0;
}

int LoadAndEdit(const ViewerOptions& options)
{
    Document document(Load(options, OpenForChanging));
    ReportNotices(options, document.Saved());
    if (const auto reason = document.WhyReadOnly())
        ReportLine(FileName(options) + ": nothing can be changed: " + *reason);
    return EditDocument(document, options);
}

int LoadAndShow(const ViewerOptions& options)
{
    const Table table = Load(options, OpenSource);
    ReportNotices(options, table);
    if (options.action == ViewerAction::Show)
        return ShowTable(table, options);
    WriteAsText(table, std::cout);
    return 0;
}

int Act(ViewerOptions& options)
{
    if (options.action == ViewerAction::Message) {
        std::cout << options.message;
        return 0;
    }
    if (options.file.empty())
        options.file = SamplePath();
    if (options.action == ViewerAction::List)
        return List(options);
    return options.edit ? LoadAndEdit(options) : LoadAndShow(options);
}

int Run(int count, const char* const* arguments)
{
    ViewerOptions options;
    try {
        options = ParseOptions(count, arguments);
        const int status = Act(options);
        if (std::cout.flush())
            return status;
        ReportLine("standard output cannot be written");
    } catch (const OptionsError& error) {
        ReportLine(error.what());
    } catch (const LoadError& error) {
        ReportLine(options.file.empty() ? error.what() : options.file + ": " + error.what());
    } catch (const std::bad_alloc&) {
        ReportLine(options.file + ": it does not fit into memory");
    } catch (const std::exception& error) {
        ReportLine(options.file + ": it cannot be shown (" + error.what() + ")");
    }
    return 1;
}

} // namespace

int main(int count, char** arguments)
{
    return Run(count, arguments);
}
