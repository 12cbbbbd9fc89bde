#include "options.h"

#include "unicode.h"

#include <CLI/CLI.hpp>

#include <charconv>
#include <cmath>

namespace vornix::viewer {

namespace {

constexpr int MaxSide = 16384;
constexpr double MinScale = 1;
constexpr double MaxScale = 4;
constexpr double MaxPixels = 256.0 * 1024 * 1024;

// The whole of the text as a number, or nothing.
template <typename Number> std::optional<Number> WholeNumber(std::string_view text)
{
    Number number = {};
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size())
        return {};
    return number;
}

void SetSize(ViewerOptions& options, const std::string& text)
{
    const auto cross = text.find_first_of("xX");
    const std::string_view all = text;
    const auto width = WholeNumber<int>(all.substr(0, cross));
    const auto height = cross == std::string::npos ? std::nullopt : WholeNumber<int>(all.substr(cross + 1));
    if (!width || !height)
        throw OptionsError("--size: " + text + " is not of the form WIDTHxHEIGHT, such as 1280x800");
    if (*width < 1 || *height < 1 || *width > MaxSide || *height > MaxSide)
        throw OptionsError("--size: width and height must be from 1 to " + std::to_string(MaxSide));
    options.width = *width;
    options.height = *height;
}

void SetScale(ViewerOptions& options, const std::string& text)
{
    const auto scale = WholeNumber<double>(text);
    if (!scale || !(*scale >= MinScale && *scale <= MaxScale))
        throw OptionsError("--scale: " + text + " is not a number from 1 to 4");
    options.scale = *scale;
    options.scaleGiven = true;
}

void CheckPictureSize(const ViewerOptions& options)
{
    if (options.width * options.scale * options.height * options.scale > MaxPixels)
        throw OptionsError("the size times the scale gives a picture of more than 256 million pixels");
}

// The options as the parser sees them, and what they mean together.
class CommandLine {
public:
    CommandLine()
    {
        file_ = Add("FILE", "FILE", "the file to show; without one the sample database is shown");
        table_ = Add("--table", "NAME", "the table or view of the database to show, instead of the first");
        query_ = Add("--query", "SQL", "the query whose result to show");
        snapshot_ = Add("--snapshot", "OUT.png", "write a picture to this file instead of opening a window");
        size_ = Add("--size", "WxH", "width and height in logical pixels, 1280x800 unless given");
        scale_ = Add("--scale", "S", "device pixels for each logical pixel, from 1 to 4");
        edit_ = AddFlag("--edit",
            "open for changing: what is typed into a cell is stored as it is typed, Ctrl+S saves; needs FILE and a "
            "display");
        list_ = AddFlag("--list", "list the tables and views, and do nothing else");
        text_ = AddFlag("--text", "write the table as tab separated values, and do nothing else");
        parser_.set_version_flag("--version", "vornix-view " VORNIX_VERSION, "show the version and exit");
        parser_.set_help_flag("-h,--help", "show this help and exit");
        parser_.footer(Keys);
        query_->excludes(table_);
        list_->excludes(table_)->excludes(query_)->excludes(snapshot_)->excludes(text_);
        text_->excludes(snapshot_);
        edit_->excludes(query_)->excludes(snapshot_)->excludes(list_)->excludes(text_);
    }

    ViewerOptions Parse(int count, const char* const* arguments)
    {
        ViewerOptions options;
        options.action = ViewerAction::Message;
        try {
            parser_.parse(count, arguments);
            return Collect();
        } catch (const CLI::CallForHelp&) {
            options.message = parser_.help();
        } catch (const CLI::CallForVersion& version) {
            options.message = std::string(version.what()) + '\n';
        } catch (const CLI::ParseError& error) {
            throw OptionsError(OneLine(error.what()) + " (see --help)");
        }
        return options;
    }

private:
    CLI::Option* Add(const std::string& name, const std::string& value, const std::string& description)
    {
        return parser_.add_option(name, description)
            ->expected(1)
            ->type_name("value")
            ->option_text(name == value ? " " : value);
    }

    CLI::Option* AddFlag(const std::string& name, const std::string& description)
    {
        return parser_.add_flag(name)->description(description)->option_text(" ");
    }

    static std::optional<std::string> ValueOf(const CLI::Option* option)
    {
        if (option->count() == 0)
            return {};
        const std::string value = option->as<std::string>();
        if (value.empty())
            throw OptionsError(option->get_name() + " is empty");
        return value;
    }

    ViewerOptions Collect() const
    {
        ViewerOptions options;
        options.file = ValueOf(file_).value_or("");
        options.table = ValueOf(table_);
        options.query = ValueOf(query_);
        options.snapshot = ValueOf(snapshot_);
        if (const auto size = ValueOf(size_))
            SetSize(options, *size);
        if (const auto scale = ValueOf(scale_))
            SetScale(options, *scale);
        CheckPictureSize(options);
        options.edit = edit_->count() > 0;
        if (options.edit && options.file.empty())
            throw OptionsError("--edit needs the name of a file");
        if (list_->count() > 0)
            options.action = ViewerAction::List;
        if (text_->count() > 0)
            options.action = ViewerAction::Text;
        return options;
    }

    static constexpr const char* Keys
        = "In the window: click a column title to sort, again to turn round, a third time for the order of the file\n"
          "(Ctrl+0); Ctrl+click sorts by several columns. Ctrl+F finds, F3 and Shift+F3 go on, Ctrl+C copies. "
          "Double-click\n"
          "the edge of a column to fit it. With --edit: Ctrl+X, Ctrl+V and Delete on the selected cells, Ctrl+Plus "
          "and\n"
          "Ctrl+Enter add a row above and below, Ctrl+Minus deletes rows, Ctrl+Z brings them back, Ctrl+S saves.";

    CLI::App parser_ {
        "Shows a file of separated values (CSV, TSV) or a table of a SQLite database, and changes it with --edit.",
        "vornix-view"
    };
    CLI::Option* file_ = nullptr;
    CLI::Option* table_ = nullptr;
    CLI::Option* query_ = nullptr;
    CLI::Option* snapshot_ = nullptr;
    CLI::Option* size_ = nullptr;
    CLI::Option* scale_ = nullptr;
    CLI::Option* edit_ = nullptr;
    CLI::Option* list_ = nullptr;
    CLI::Option* text_ = nullptr;
};

} // namespace

ViewerOptions ParseOptions(int count, const char* const* arguments)
{
    return CommandLine().Parse(count, arguments);
}

} // namespace vornix::viewer
