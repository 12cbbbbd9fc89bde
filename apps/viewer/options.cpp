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
    options.sizeGiven = true;
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

// The parser's own messages, in one line and with a capital at no surprising place.
std::string ParserMessage(const CLI::ParseError& error)
{
    std::string message = OneLine(error.what());
    while (message.ends_with(' '))
        message.pop_back();
    return message + " (see --help)";
}

} // namespace

ViewerOptions ParseOptions(int count, const char* const* arguments)
{
    ViewerOptions options;
    CLI::App parser("Shows a file of separated values (CSV, TSV) or a table of a SQLite database.", "vornix-view");
    std::string size;
    std::string scale;
    std::string table;
    std::string query;
    std::string snapshot;
    bool list = false;
    bool text = false;
    parser.add_option("FILE", options.file, "the file to show; without one the sample database is shown");
    auto* const tableOption
        = parser.add_option("--table", table, "the table or view of the database to show, instead of the first");
    auto* const queryOption
        = parser.add_option("--query", query, "the query whose result to show")->excludes(tableOption);
    auto* const snapshotOption
        = parser.add_option("--snapshot", snapshot, "write a picture to this PNG file instead of opening a window");
    auto* const sizeOption
        = parser.add_option("--size", size, "width and height in logical pixels, 1280x800 unless given");
    auto* const scaleOption = parser.add_option("--scale", scale, "device pixels for each logical pixel, from 1 to 4");
    auto* const listFlag = parser.add_flag("--list", list, "list the tables and views, and do nothing else");
    auto* const textFlag
        = parser.add_flag("--text", text, "write the table to standard output as tab separated values");
    listFlag->excludes(tableOption)->excludes(queryOption)->excludes(snapshotOption)->excludes(textFlag);
    textFlag->excludes(snapshotOption);
    parser.set_version_flag("--version", "vornix-view " VORNIX_VERSION);

    try {
        parser.parse(count, arguments);
    } catch (const CLI::CallForHelp&) {
        options.message = parser.help();
    } catch (const CLI::CallForVersion& version) {
        options.message = std::string(version.what()) + '\n';
    } catch (const CLI::ParseError& error) {
        throw OptionsError(ParserMessage(error));
    }
    if (!options.message.empty()) {
        options.action = ViewerAction::Message;
        return options;
    }

    const auto given = [](const CLI::Option* option, const std::string& value) {
        return option->count() > 0 ? std::optional(value) : std::nullopt;
    };
    options.table = given(tableOption, table);
    options.query = given(queryOption, query);
    options.snapshot = given(snapshotOption, snapshot);
    if (sizeOption->count() > 0)
        SetSize(options, size);
    if (scaleOption->count() > 0)
        SetScale(options, scale);
    CheckPictureSize(options);
    if (listFlag->count() > 0)
        options.action = ViewerAction::List;
    if (textFlag->count() > 0)
        options.action = ViewerAction::Text;
    return options;
}

} // namespace vornix::viewer
