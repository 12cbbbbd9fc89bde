// The command line of vornix-view.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>

namespace vornix::viewer {

enum class ViewerAction {
    Show, // in a window, or as a picture
    List, // names of tables and views
    Text, // the table as tab separated values
    Message, // help or version, in ViewerOptions::message
};

struct ViewerOptions {
    ViewerAction action = ViewerAction::Show;
    std::string file; // empty: the sample database
    std::optional<std::string> table;
    std::optional<std::string> query;
    std::optional<std::string> snapshot; // where the picture goes
    bool edit = false; // cells can be changed and saved; only with a file, in a window
    // In logical pixels; a picture has this many times the scale, rounded.
    int width = 1280;
    int height = 800;
    // Device pixels for each logical pixel, 1 to 4.
    double scale = 1;
    bool scaleGiven = false;
    std::string message;
};

// what() is one line.
class OptionsError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Raises OptionsError. The arguments begin with the program's name, as main() gets them.
ViewerOptions ParseOptions(int count, const char* const* arguments);

} // namespace vornix::viewer
