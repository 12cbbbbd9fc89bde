// A grid in a container without a screen, and its log as lines that can be compared.
#pragma once

#include "control/grid_fixture.h"

#include <sstream>

namespace vornix {

class PersonTest : public GridTest {
protected:
    using Lines = std::vector<std::string>;

    // "MouseDown Button=1 Shift=0 x=5 y=6" for each event since the last call.
    Lines Said()
    {
        Lines lines;
        for (const LoggedEvent& event : host->Log())
            lines.push_back(LineOf(event));
        host->ClearLog();
        return lines;
    }
    // The names alone.
    Lines SaidNames()
    {
        Lines names;
        for (const LoggedEvent& event : host->Log())
            names.push_back(event.name);
        host->ClearLog();
        return names;
    }
    // Of both, the platform's notifications alone, without what the grid makes of them.
    Lines Heard() { return OnlyNotifications(Said()); }
    Lines HeardNames() { return OnlyNotifications(SaidNames()); }
    HeadlessChild& Child(ChildName name) { return static_cast<HeadlessChild&>(host->Child(name)); }
    HeadlessChild& ShowChild(ChildName name, const Rect& place)
    {
        HeadlessChild& child = Child(name);
        child.Move(place);
        child.Show(true);
        return child;
    }

private:
    static Lines OnlyNotifications(Lines lines)
    {
        std::erase_if(lines, [](const std::string& line) {
            const std::string name = line.substr(0, line.find(' '));
            return name != "Click" && name != "DblClick" && !name.starts_with("Mouse") && !name.starts_with("Key");
        });
        return lines;
    }
    static std::string LineOf(const LoggedEvent& event)
    {
        std::ostringstream line;
        line << event.name;
        for (const auto& [name, value] : event.arguments)
            line << ' ' << name << '=' << value.ToDouble();
        return line.str();
    }
};

} // namespace vornix
