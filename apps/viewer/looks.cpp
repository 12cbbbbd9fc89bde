#include "looks.h"

namespace vornix::viewer {

namespace {

// So many percent of the way from one colour to the other, channel by channel.
ColorRef Mix(ColorRef from, ColorRef to, int percent)
{
    ColorRef mixed = 0;
    for (int shift = 0; shift <= 16; shift += 8) {
        const int start = static_cast<int>(from >> shift & 0xFF);
        const int end = static_cast<int>(to >> shift & 0xFF);
        mixed |= static_cast<ColorRef>((start * (100 - percent) + end * percent + 50) / 100) << shift;
    }
    return mixed;
}

} // namespace

Looks LooksFrom(const SystemColors& colors)
{
    const auto system = [&](int index) { return colors.values[static_cast<std::size_t>(index)]; };
    const ColorRef window = system(SystemColor::Window);
    const ColorRef text = system(SystemColor::WindowText);
    const ColorRef face = system(SystemColor::ButtonFace);
    const ColorRef highlight = system(SystemColor::Highlight);

    Looks looks {};
    looks.ground = window;
    looks.alternateGround = Mix(Mix(window, text, 1), highlight, 3);
    // A little softer than the plain text of the system, and a little nearer to its highlight.
    looks.ink = Mix(Mix(text, window, 14), highlight, 5);
    looks.line = Mix(Mix(window, text, 12), highlight, 2);
    looks.headerGround = Mix(Mix(face, window, 20), highlight, 3);
    looks.headerInk = Mix(Mix(system(SystemColor::ButtonText), face, 14), highlight, 5);
    looks.faintInk = Mix(looks.headerInk, looks.headerGround, 36);
    return looks;
}

} // namespace vornix::viewer
