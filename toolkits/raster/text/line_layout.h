// The rules of DrawText: which lines a text makes in a rectangle, what each shows, and where it stands.
#pragma once

#include "text_engine.h"
#include "vornix/types.h"

#include <string>
#include <string_view>
#include <vector>

namespace vornix {

// A line as it is shown. Logical pixels; valid while it is handed over.
struct PlacedLine {
    // Without prefix marks, with its ellipsis.
    std::u16string_view text;
    int left = 0;
    int top = 0;
    // Whole pixels that hold the line.
    int width = 0;
    // As shaped, the same a little more exactly.
    float exactWidth = 0;
    // The unit to underline, or -1.
    int mark = -1;
    // Null for a line with tabs, whose segments ForEachSegment gives.
    ShapedLine* shaped = nullptr;
};

class LineSink {
public:
    virtual ~LineSink() = default;
    // Whether a line between these edges is to be made at all.
    virtual bool Wants(int top, int bottom) = 0;
    virtual void Take(const PlacedLine& line) = 0;
};

class LineLayout {
public:
    // Rows and widths of all lines that were laid out; `bottom` is where the last one ends.
    struct Extent {
        int widest = 0;
        int bottom = 0;
    };

    // `keep` is for the lines that are shaped on the way; what is not kept is only to be measured.
    LineLayout(
        TextEngine& engine, Font& font, const Rect& rect, u32 format, TextEngine::Keep keep = TextEngine::Keep::Yes);

    // Hands the lines over from top to bottom, those the rectangle shows or, with DT_NOCLIP and DT_CALCRECT, all.
    Extent LayOut(std::u16string_view text, LineSink& sink);

    bool RightToLeft() const { return rightToLeft_; }
    int LineHeight() const { return lineHeight_; }

    // The pieces between tabs with the places they begin at.
    template <typename Take> float ForEachSegment(std::u16string_view text, const Take& take)
    {
        float x = 0;
        while (true) {
            const std::size_t tab = text.find(u'\t');
            ShapedLine& segment = Shaped(text.substr(0, tab));
            const float width = segment.width;
            take(segment, x);
            x += width;
            if (tab == std::u16string_view::npos)
                return x;
            x = NextTabStop(x);
            text.remove_prefix(tab + 1);
        }
    }

    // Units of a line without a break that are looked at.
    static constexpr std::size_t LongestLine = 32 * 1024;

private:
    struct Break {
        // Where the line ends, and where the next begins.
        std::size_t end = 0;
        std::size_t next = 0;
    };

    ShapedLine& Shaped(std::u16string_view text) { return engine_.Line(font_, text, rightToLeft_, keep_); }
    void LayOutHardLine(std::u16string_view raw, bool isLastOfText);
    void BreakIntoLines(std::u16string_view text, int mark, bool isLastOfText);
    Break FindBreak(std::u16string_view text, std::size_t start);
    bool BreakInWindow(std::u16string_view text, std::size_t start, std::size_t windowEnd, Break& result);
    Break BreakAfterLongWord(std::u16string_view text, std::size_t start, std::size_t from) const;
    Break AtSoftBreak(std::u16string_view text, std::size_t start, std::size_t next) const;
    bool CanBreakBefore(std::u16string_view text, std::size_t unit) const;
    void MeasureWindow(std::u16string_view text, std::size_t start, std::size_t end);

    void Emit(std::u16string_view text, int mark, bool isLastOfText);
    std::u16string_view VisiblePart(std::u16string_view text);
    float Measure(std::u16string_view text, ShapedLine*& shaped);
    void Shorten(PlacedLine& line, bool isLast, bool moreFollows);
    std::u16string_view ShortenAtEnd(std::u16string_view text, float& exact, ShapedLine*& shaped);
    std::u16string_view ShortenPath(std::u16string_view text, float& exact, ShapedLine*& shaped);
    std::size_t UnitsThatFit(std::u16string_view text, float room);

    std::u16string_view TakeOutPrefixes(std::u16string_view text, int& mark);
    int LeftEdge(int extent) const;
    int FirstTop() const;
    bool IsLastShown() const;
    bool IsDone() const;
    float NextTabStop(float x) const;

    TextEngine& engine_;
    Font& font_;
    Rect rect_;
    u32 format_;
    TextEngine::Keep keep_;
    bool isSingle_;
    bool breaksWords_;
    bool measures_;
    bool clips_;
    bool rightToLeft_;
    int lineHeight_;
    float tabWidth_ = 0;

    LineSink* sink_ = nullptr;
    int top_ = 0;
    int widest_ = 0;

    // Kept by the thread for the next layout, since most lines need none of it.
    struct Advances;
    struct Scratch;
    Scratch& scratch_;
};

} // namespace vornix
