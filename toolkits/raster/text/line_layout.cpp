#include "line_layout.h"

#include "unicode_classes.h"
#include "utf16.h"

#include <algorithm>
#include <cmath>

namespace vornix {

// By unit: the advance of the cluster that begins there, and whether one does.
struct LineLayout::Advances {
    std::vector<float> widths;
    std::vector<u8> begins;

    void Read(const ShapedLine& line);
};

struct LineLayout::Scratch {
    std::u16string prefixed;
    std::u16string shortened;
    // Of a part of the text that is being broken into lines.
    Advances window;
    std::size_t windowStart = 0;
    // Of a line that is being shortened.
    Advances line;

    static Scratch& OfThread()
    {
        thread_local Scratch scratch;
        return scratch;
    }
};

namespace {

constexpr u32 EllipsisFlags = DT_END_ELLIPSIS | DT_WORD_ELLIPSIS | DT_PATH_ELLIPSIS;
constexpr std::size_t WindowUnits = TextEngine::LongestCachedLine;
constexpr std::u16string_view Ellipsis = u"...";

// Whole pixels that hold the width; what rounding of sums adds does not count.
int ExtentOf(float width)
{
    return static_cast<int>(std::ceil(width - 1.0f / 64));
}

bool IsBlank(char16_t unit)
{
    return unit == u' ' || unit == u'\t';
}

std::size_t FindLineEnd(std::u16string_view text)
{
    std::size_t unit = 0;
    while (unit < text.size() && text[unit] != u'\r' && text[unit] != u'\n')
        ++unit;
    return unit;
}

std::size_t BreakLength(std::u16string_view text, std::size_t lineEnd)
{
    const bool pair = text[lineEnd] == u'\r' && lineEnd + 1 < text.size() && text[lineEnd + 1] == u'\n';
    return pair ? 2 : 1;
}

std::size_t SpacesTrimmed(std::u16string_view text, std::size_t start, std::size_t end)
{
    while (end > start && IsBlank(text[end - 1]))
        --end;
    return end;
}

char32_t CharacterBefore(std::u16string_view text, std::size_t unit)
{
    const bool pair = unit >= 2 && IsLowSurrogate(text[unit - 1]) && IsHighSurrogate(text[unit - 2]);
    return DecodeUtf16(text, unit - (pair ? 2 : 1)).codePoint;
}

} // namespace

LineLayout::LineLayout(TextEngine& engine, Font& font, const Rect& rect, u32 format, TextEngine::Keep keep)
    : engine_(engine)
    , font_(font)
    , rect_(rect)
    , format_(format)
    , keep_(keep)
    , lineHeight_(font.Metrics().lineHeight)
    , scratch_(Scratch::OfThread())
{
    int tabCharacters = 8;
    if (format & DT_TABSTOP) {
        // The second byte is a number then, not flags.
        tabCharacters = static_cast<int>(format >> 8 & 0xFF);
        format_ &= ~0xFF00u;
    }
    if (format_ & DT_EXPANDTABS)
        tabWidth_ = static_cast<float>(std::max(1, tabCharacters) * font.Metrics().averageWidth);
    if (format_ & DT_EXTERNALLEADING)
        lineHeight_ += font.Metrics().externalLeading;
    isSingle_ = format_ & DT_SINGLELINE;
    breaksWords_ = (format_ & DT_WORDBREAK) && !isSingle_;
    measures_ = format_ & DT_CALCRECT;
    clips_ = !measures_ && !(format_ & DT_NOCLIP);
    rightToLeft_ = format_ & DT_RTLREADING;
}

LineLayout::Extent LineLayout::LayOut(std::u16string_view text, LineSink& sink)
{
    sink_ = &sink;
    top_ = FirstTop();
    widest_ = 0;
    if (text.empty())
        return { 0, top_ + lineHeight_ };
    if (isSingle_) {
        LayOutHardLine(text, true);
        return { widest_, top_ };
    }
    while (true) {
        const std::size_t end = FindLineEnd(text);
        const bool isLast = end == text.size();
        LayOutHardLine(text.substr(0, end), isLast);
        if (isLast || IsDone())
            return { widest_, top_ };
        text.remove_prefix(end + BreakLength(text, end));
    }
}

void LineLayout::LayOutHardLine(std::u16string_view raw, bool isLastOfText)
{
    int mark = -1;
    if (!(format_ & DT_NOPREFIX))
        raw = TakeOutPrefixes(raw, mark);
    if (breaksWords_ && !raw.empty())
        BreakIntoLines(raw, mark, isLastOfText);
    else
        Emit(raw, mark, isLastOfText);
}

std::u16string_view LineLayout::TakeOutPrefixes(std::u16string_view text, int& mark)
{
    if (text.find(u'&') == std::u16string_view::npos)
        return text;
    std::u16string& result = scratch_.prefixed;
    result.clear();
    for (std::size_t unit = 0; unit < text.size(); ++unit) {
        if (text[unit] == u'&') {
            if (++unit == text.size())
                break;
            if (text[unit] != u'&')
                mark = static_cast<int>(result.size());
        }
        result.push_back(text[unit]);
    }
    if (format_ & DT_HIDEPREFIX)
        mark = -1;
    return result;
}

// ---- Word break

void LineLayout::BreakIntoLines(std::u16string_view text, int mark, bool isLastOfText)
{
    scratch_.window.begins.clear();
    for (std::size_t start = 0; start < text.size() && !IsDone();) {
        const Break found = FindBreak(text, start);
        const int inLine = mark - static_cast<int>(start);
        const bool isMarked = mark >= static_cast<int>(start) && mark < static_cast<int>(found.end);
        Emit(text.substr(start, found.end - start), isMarked ? inLine : -1, isLastOfText && found.next >= text.size());
        start = found.next;
    }
}

LineLayout::Break LineLayout::FindBreak(std::u16string_view text, std::size_t start)
{
    Break result;
    const std::size_t held = scratch_.windowStart + scratch_.window.begins.size();
    if (!scratch_.window.begins.empty() && start < held && BreakInWindow(text, start, held, result))
        return result;
    for (std::size_t units = WindowUnits;; units *= 2) {
        const std::size_t end = start + CutUtf16(text.substr(start), std::min(units, LongestLine)).size();
        MeasureWindow(text, start, end);
        if (BreakInWindow(text, start, end, result))
            return result;
        if (units >= LongestLine)
            return { end, end };
    }
}

// False when the line does not end within the window.
bool LineLayout::BreakInWindow(std::u16string_view text, std::size_t start, std::size_t windowEnd, Break& result)
{
    const int room = rect_.Width();
    std::size_t lastBreak = start;
    float x = 0;
    for (std::size_t unit = start; unit < windowEnd; ++unit) {
        const std::size_t place = unit - scratch_.windowStart;
        if (!scratch_.window.begins[place])
            continue;
        if (unit > start && CanBreakBefore(text, unit))
            lastBreak = unit;
        const bool isTab = tabWidth_ > 0 && text[unit] == u'\t';
        x = isTab ? NextTabStop(x) : x + scratch_.window.widths[place];
        // Spaces at the end of a line may stand over.
        if (unit == start || IsBlank(text[unit]) || ExtentOf(x) <= room)
            continue;
        if (lastBreak > start)
            result = AtSoftBreak(text, start, lastBreak);
        else if (format_ & DT_EDITCONTROL)
            result = { unit, unit };
        else
            result = BreakAfterLongWord(text, start, unit);
        return true;
    }
    if (windowEnd < text.size())
        return false;
    result = { windowEnd, windowEnd };
    if (ExtentOf(x) > room)
        result.end = std::max(SpacesTrimmed(text, start, windowEnd), start + 1);
    return true;
}

LineLayout::Break LineLayout::AtSoftBreak(std::u16string_view text, std::size_t start, std::size_t next) const
{
    return { std::max(SpacesTrimmed(text, start, next), start), next };
}

// A word wider than the rectangle stands alone.
LineLayout::Break LineLayout::BreakAfterLongWord(std::u16string_view text, std::size_t start, std::size_t from) const
{
    std::size_t next = from + 1;
    while (next < text.size() && (IsLowSurrogate(text[next]) || !CanBreakBefore(text, next)))
        ++next;
    const Break whole = next < text.size() ? AtSoftBreak(text, start, next)
                                           : Break { SpacesTrimmed(text, start, text.size()), text.size() };
    return { start + CutUtf16(text.substr(start, whole.end - start), LongestLine).size(), whole.next };
}

bool LineLayout::CanBreakBefore(std::u16string_view text, std::size_t unit) const
{
    const char16_t before = text[unit - 1];
    const char16_t after = text[unit];
    if (IsBlank(after))
        return false;
    if (IsBlank(before) || before == 0x200B)
        return true;
    const bool isNarrow = before < 0x2E80 && after < 0x2E80;
    if (isNarrow || (format_ & DT_NOFULLWIDTHCHARBREAK))
        return false;
    const char32_t left = CharacterBefore(text, unit);
    const char32_t right = DecodeUtf16(text, unit).codePoint;
    return (BreaksFreely(left) || BreaksFreely(right)) && !MayNotBeginLine(right) && !MayNotEndLine(left)
        && left != ZeroWidthJoiner;
}

void LineLayout::MeasureWindow(std::u16string_view text, std::size_t start, std::size_t end)
{
    scratch_.window.Read(Shaped(text.substr(start, end - start)));
    scratch_.windowStart = start;
}

void LineLayout::Advances::Read(const ShapedLine& line)
{
    widths.assign(line.units, 0);
    begins.assign(line.units, 0);
    for (const ShapedGlyph& glyph : line.Glyphs()) {
        widths[glyph.cluster] += glyph.advance;
        begins[glyph.cluster] = 1;
    }
    // Controls have no glyph; a line may still end before one.
    const std::u16string_view text = line.Text();
    for (std::size_t unit = 0; unit < text.size(); ++unit) {
        if (IsControl(text[unit]))
            begins[unit] = 1;
    }
}

// ---- One line

void LineLayout::Emit(std::u16string_view text, int mark, bool isLastOfText)
{
    const int top = top_;
    const bool isLast = isLastOfText || IsLastShown();
    const bool isHidden = clips_ && (format_ & DT_EDITCONTROL) && top > rect_.top && top + lineHeight_ > rect_.bottom;
    top_ += lineHeight_;
    if (!measures_ && (isHidden || !sink_->Wants(top, top_)))
        return;
    PlacedLine line;
    line.text = VisiblePart(text);
    line.exactWidth = Measure(line.text, line.shaped);
    line.width = ExtentOf(line.exactWidth);
    if (format_ & EllipsisFlags)
        Shorten(line, isLast, isLast && !isLastOfText);
    widest_ = std::max(widest_, line.width);
    if (measures_)
        return;
    line.left = LeftEdge(line.width);
    line.top = top;
    line.mark = mark < static_cast<int>(line.text.size()) ? mark : -1;
    sink_->Take(line);
}

void LineLayout::Shorten(PlacedLine& line, bool isLast, bool moreFollows)
{
    const bool isTooWide = line.width > rect_.Width();
    const bool atEnd = (format_ & DT_END_ELLIPSIS) && isLast && (isTooWide || moreFollows);
    if (isTooWide && (format_ & DT_PATH_ELLIPSIS))
        line.text = ShortenPath(line.text, line.exactWidth, line.shaped);
    else if (atEnd || (isTooWide && (format_ & DT_WORD_ELLIPSIS)))
        line.text = ShortenAtEnd(line.text, line.exactWidth, line.shaped);
    else
        return;
    line.width = ExtentOf(line.exactWidth);
}

// Of a very long line that starts at the left edge only the beginning is looked at.
std::u16string_view LineLayout::VisiblePart(std::u16string_view text)
{
    if (text.size() <= WindowUnits)
        return text;
    const bool fromLeft
        = !measures_ && clips_ && !rightToLeft_ && !(format_ & (DT_CENTER | DT_RIGHT | DT_PATH_ELLIPSIS));
    for (std::size_t units = WindowUnits; fromLeft && units < std::min(LongestLine, text.size()); units *= 2) {
        const std::u16string_view part = CutUtf16(text, units);
        const ShapedLine& line = Shaped(part);
        if (line.bidirectional)
            break;
        if (ExtentOf(line.width) > rect_.Width())
            return part;
    }
    return CutUtf16(text, LongestLine);
}

float LineLayout::Measure(std::u16string_view text, ShapedLine*& shaped)
{
    if (tabWidth_ > 0 && text.find(u'\t') != std::u16string_view::npos) {
        shaped = nullptr;
        return ForEachSegment(text, [](const ShapedLine&, float) {});
    }
    if (keep_ == TextEngine::Keep::No && !rightToLeft_) {
        shaped = nullptr;
        if (const std::optional<float> width = Shaper::PlainWidth(font_, text))
            return *width;
    }
    shaped = &Shaped(text);
    return shaped->width;
}

// ---- Ellipsis

// The longest beginning that fits the room, never nothing.
std::size_t LineLayout::UnitsThatFit(std::u16string_view text, float room)
{
    Advances& advances = scratch_.line;
    advances.Read(Shaped(text));
    float x = 0;
    std::size_t fitting = 0;
    for (std::size_t unit = 0; unit < text.size(); ++unit) {
        if (!advances.begins[unit])
            continue;
        if (unit > 0 && (fitting == 0 || x <= room))
            fitting = unit;
        if (x > room && fitting > 0)
            return fitting;
        const bool isTab = tabWidth_ > 0 && text[unit] == u'\t';
        x = isTab ? NextTabStop(x) : x + advances.widths[unit];
    }
    return x <= room || fitting == 0 ? text.size() : fitting;
}

std::u16string_view LineLayout::ShortenAtEnd(std::u16string_view text, float& exact, ShapedLine*& shaped)
{
    const float room = static_cast<float>(rect_.Width()) - font_.EllipsisWidth() + 1.0f / 64;
    std::size_t units = UnitsThatFit(text, room);
    std::u16string& result = scratch_.shortened;
    while (true) {
        result.assign(text.substr(0, units));
        result += Ellipsis;
        exact = Measure(result, shaped);
        // Shaped together, the last letter and the first dot may need a little more.
        if (ExtentOf(exact) <= rect_.Width() || units <= 1)
            return result;
        do {
            --units;
        } while (units > 0 && !scratch_.line.begins[units]);
        if (units == 0)
            return result;
    }
}

// What follows the last backslash stays, what is before it gives way.
std::u16string_view LineLayout::ShortenPath(std::u16string_view text, float& exact, ShapedLine*& shaped)
{
    const std::size_t backslash = text.rfind(u'\\');
    if (backslash == std::u16string_view::npos || backslash == 0)
        return ShortenAtEnd(text, exact, shaped);
    const std::u16string_view tail = text.substr(backslash);
    const float tailWidth = Measure(tail, shaped);
    const float room = static_cast<float>(rect_.Width()) - font_.EllipsisWidth() - tailWidth + 1.0f / 64;
    const std::size_t units = room <= 0 ? 0 : UnitsThatFit(text.substr(0, backslash), room);
    std::u16string& result = scratch_.shortened;
    result.assign(text.substr(0, units));
    result += Ellipsis;
    result += tail;
    exact = Measure(result, shaped);
    return result;
}

// ---- Places

int LineLayout::LeftEdge(int extent) const
{
    if (format_ & DT_CENTER)
        return rect_.left + (rect_.Width() - extent) / 2;
    if (format_ & DT_RIGHT)
        return rect_.right - extent;
    return rect_.left;
}

int LineLayout::FirstTop() const
{
    if (!isSingle_ || measures_)
        return rect_.top;
    if (format_ & DT_VCENTER)
        return rect_.top + (rect_.Height() - lineHeight_) / 2;
    if (format_ & DT_BOTTOM)
        return rect_.bottom - lineHeight_;
    return rect_.top;
}

// Before a line is placed: whether none after it would be seen.
bool LineLayout::IsLastShown() const
{
    if (!clips_ || isSingle_)
        return isSingle_;
    const int needed = (format_ & DT_EDITCONTROL) ? 2 * lineHeight_ - 1 : lineHeight_;
    return top_ + needed >= rect_.bottom;
}

bool LineLayout::IsDone() const
{
    return clips_ && top_ >= rect_.bottom;
}

float LineLayout::NextTabStop(float x) const
{
    return (std::floor(x / tabWidth_) + 1) * tabWidth_;
}

} // namespace vornix
