#include "persist/plain_script.h"
#include "persist/script_recorder.h"

#include <gtest/gtest.h>

#include <random>

namespace vornix {
namespace {

// Pieces that scripts are made of, and pieces of those.
constexpr std::u16string_view Fragments[] = { u"<", u">", u"</", u"/", u"!", u"-", u"--", u"-->", u"<!--", u"<!", u"->",
    u" ", u"  ", u"\t", u"\r\n", u"\n", u"=", u"\"", u"=\"", u"\"1\"", u"Row=\"1\"", u"Col=\"2\"", u" Row=\"13\"",
    u" Row=\"x\"", u" Row =\"-1\"", u" Col=\" 3 \"", u" Rows=\"1\"", u" =\"1\"", u" Row=\"99999\"", u" Row=\"1.5\"",
    u"Row", u"Col", u"Rows", u"Caption", u"RowSpan", u"ColEnabled", u"CellEnabled", u"CellBackColor", u"ColWidth",
    u"RowHeight", u"cols", u"1", u"0", u"True", u"False", u"&HFF", u"abc", u"99999", u"4294967296", u"-2.5",
    u"<Row>2</Row>", u"<Col>3</Col>", u"<Col>40000</Col>", u"<Caption>", u"</Caption>", u"<CellBackColor",
    u"</CellBackColor>", u"<ColWidth Col=\"1\">80</ColWidth>", u"<RowHeight>20</RowHeight>",
    u"<ColEnabled>0</ColEnabled>", u"<CellFontBold Row=\"3\" Col=\"0\">True</CellFontBold>", u"<!-- c -->",
    u"<!<!--x-->-- y -->", u"<!-<!--x-->- ", u"<!--x-->", u"-<!---->->", u"<Caption>a<b</Caption>", u"x" };

// As an element without attributes shows it.
template <typename Script> std::string CursorOf(Script& script)
{
    script.Clear();
    script.Add(u"<CellBackColor>0</CellBackColor>");
    return StoryOf(script);
}

class RandomScript : public testing::TestWithParam<unsigned> {
protected:
    std::size_t Below(std::size_t bound) { return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random_); }

    std::u16string Fragment() { return std::u16string(Fragments[Below(std::size(Fragments))]); }

    std::u16string Fragmented(std::size_t most)
    {
        std::u16string script;
        for (std::size_t count = Below(most + 1); count > 0; --count)
            script += Fragment();
        return script;
    }

    // Mostly whole elements, with things between and inside that are not.
    std::u16string Elements()
    {
        std::u16string script;
        for (std::size_t count = 1 + Below(6); count > 0; --count) {
            const std::span<const ScriptElement> elements = ScriptElements();
            const std::u16string name(elements[Below(elements.size())].name);
            script += u"<" + name;
            for (std::size_t attributes = Below(4); attributes > 0; --attributes)
                script += u" " + (Below(8) == 0 ? Fragment() : std::u16string(Below(2) ? u"Row=\"1\"" : u"Col=\"0\""));
            script += u">" + (Below(4) == 0 ? Fragment() : std::u16string(Below(2) ? u"1" : u"True"));
            script += u"</" + name + u">";
            if (Below(3) == 0)
                script += Fragment();
        }
        return script;
    }

    // Comments put into any place of the text, those of comments included.
    void Sprinkle(std::u16string& script)
    {
        constexpr std::u16string_view comments[] = { u"<!--x-->", u"<!---->", u"<!--<Row>7</Row>-->", u"<!-- " };
        for (std::size_t count = Below(6); count > 0; --count) {
            const std::size_t kind = Below(40);
            script.insert(Below(script.size() + 1), comments[kind == 0 ? 3 : kind % 3]);
        }
    }

private:
    std::mt19937 random_ { GetParam() };
};

} // namespace

TEST_P(RandomScript, DoesWhatThePlainReadingDoes)
{
    int applied = 0;
    for (int round = 0; round < 4000; ++round) {
        BatchScript fast;
        PlainScript plain;
        std::u16string all;
        for (std::size_t runs = 1 + Below(3); runs > 0; --runs) {
            std::u16string script = Below(2) == 0 ? Fragmented(24) : Elements();
            Sprinkle(script);
            if (Below(2) == 0) {
                fast.Clear();
                plain.Clear();
                all += u"\n-- cleared --\n";
            }
            all += script;
            fast.Add(script);
            plain.Add(script);
            const std::string expected = StoryOf(plain);
            applied += expected.ends_with("\napplied");
            ASSERT_EQ(StoryOf(fast), expected) << testing::PrintToString(all);
        }
        // Where both have the cursor now.
        ASSERT_EQ(CursorOf(fast), CursorOf(plain)) << testing::PrintToString(all);
    }
    EXPECT_GT(applied, 100) << "scripts that fail at once show little";
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomScript, testing::Range(1u, 9u));

} // namespace vornix
