// Scripts against a plain reading of them: whatever they hold, the same members are called and the same comes back.
#include "fuzz_input.h"
#include "persist/plain_script.h"
#include "persist/script_recorder.h"

#include <algorithm>
#include <iterator>
#include <span>

using namespace vornix;

namespace {

// What bytes above ASCII stand for: longer pieces of scripts.
constexpr std::u16string_view Pieces[] = { u"<!--", u"-->", u"</", u"/>", u"=\"", u"\" ", u"<Row>", u"</Row>", u"<Col>",
    u"</Col>", u" Row=\"1\"", u" Col=\"2\"", u" Row=\"13\"", u" Row=\"x\"", u" Col=\"99999\"", u" Rows=\"1\"",
    u"<Caption>", u"</Caption>", u"<CellBackColor", u"</CellBackColor>", u"<CellEnabled>", u"</CellEnabled>",
    u"<ColWidth", u"</ColWidth>", u"<ColEnabled>", u"</ColEnabled>", u"<RowHeight", u"</RowHeight>", u"<RowSpan>",
    u"</RowSpan>", u"<Cols>", u"</Cols>", u"<Redraw>", u"</Redraw>", u"<ColFormat>", u"</ColFormat>", u"<AutoSizeRows>",
    u"</AutoSizeRows>", u"True", u"False", u"&HFF", u"32768", u"4294967296", u"1.5", u"<Rows>1</Rows>",
    u"<Row>40000</Row>", u"<!<!--x-->--", u"<!-- c -->" };

// Control characters that scripts have no use for: what follows is added behind what was run, or comes alone.
constexpr char16_t RunAndGoOn = 0;
constexpr char16_t RunAndClear = 1;

std::string StoryOfAll(const std::u16string& input, auto&& script)
{
    std::string story;
    std::size_t start = 0;
    while (start <= input.size()) {
        const std::size_t end
            = std::min(input.find_first_of(std::u16string { RunAndGoOn, RunAndClear }, start), input.size());
        script.Add(std::u16string_view(input).substr(start, end - start));
        story += StoryOf(script) + "\n";
        if (end < input.size() && input[end] == RunAndClear)
            script.Clear();
        start = end + 1;
    }
    script.Clear();
    script.Add(u"<CellMode>0</CellMode>");
    return story + StoryOf(script);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // A byte of ASCII a unit, so that the inputs can be read.
    std::u16string input;
    for (const std::uint8_t byte : std::span(data, size)) {
        if (byte < 0x80)
            input += static_cast<char16_t>(byte);
        else
            input += Pieces[byte % std::size(Pieces)];
    }
    const std::string plain = StoryOfAll(input, PlainScript());
    const std::string fast = StoryOfAll(input, BatchScript());
    fuzz::Require(fast == plain, (fast + "\n-- plainly:\n" + plain).c_str());
    return 0;
}
