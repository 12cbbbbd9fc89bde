#include "textbox/mask_form.h"

#include <gmock/gmock.h>

using namespace vornix;

namespace {

constexpr i16 True = -1;
constexpr char16_t Prompt = u'_';
using namespace std::string_literals;

MaskForm FormOf(std::u16string_view mask)
{
    MaskForm form;
    form.Parse(mask, Prompt);
    return form;
}

struct SignCase {
    char16_t sign;
    i16 required;
    u8 charClass;
    i16 literal;
};

class MaskSignTest : public testing::TestWithParam<SignCase> { };

TEST_P(MaskSignTest, MakesOnePositionOfItsKind)
{
    const SignCase& sign = GetParam();
    const MaskForm form = FormOf(std::u16string(1, sign.sign));
    ASSERT_EQ(form.PositionCount(), 1);
    EXPECT_EQ(form.Position(0).Required, sign.required);
    EXPECT_EQ(form.Position(0).CharClass, sign.charClass);
    EXPECT_EQ(form.Position(0).Literal, sign.literal);
    EXPECT_EQ(form.Position(0).ToUpper, 0);
    EXPECT_EQ(form.Position(0).ToLower, 0);
    EXPECT_EQ(form.Position(0).Value, 0);
    EXPECT_EQ(form.IsEditable(0), sign.literal == 0);
    EXPECT_EQ(form.MaskDisplay(), std::u16string(1, sign.literal == 0 ? Prompt : sign.sign));
}

INSTANTIATE_TEST_SUITE_P(Placeholders, MaskSignTest,
    testing::Values(SignCase { u'0', True, 1, 0 }, SignCase { u'9', 0, 9, 0 }, SignCase { u'L', True, 2, 0 },
        SignCase { u'?', 0, 2, 0 }, SignCase { u'A', True, 3, 0 }, SignCase { u'a', 0, 3, 0 },
        SignCase { u'&', True, 0, 0 }, SignCase { u'C', 0, 0, 0 }));

INSTANTIATE_TEST_SUITE_P(Literals, MaskSignTest,
    testing::Values(SignCase { u'(', 0, 0, u'(' }, SignCase { u'l', 0, 0, u'l' }, SignCase { u'c', 0, 0, u'c' },
        SignCase { u'1', 0, 0, u'1' }, SignCase { u'#', 0, 0, u'#' }, SignCase { u'\u00E9', 0, 0, 0x00E9 },
        // From U+8000 on codes are negative.
        SignCase { u'\uAC00', 0, 0, -21504 }));

TEST(MaskFormTest, EverySignBehindABackslashIsALiteral)
{
    for (const char16_t sign : u"09L?Aa&C<>\\x"s) {
        const MaskForm form = FormOf(u"\\"s + sign);
        ASSERT_EQ(form.PositionCount(), 1) << static_cast<int>(sign);
        EXPECT_EQ(form.Position(0).Literal, static_cast<i16>(sign));
        EXPECT_EQ(form.Position(0).Required, 0);
        EXPECT_EQ(form.Position(0).CharClass, 0);
        EXPECT_EQ(form.MaskDisplay(), std::u16string(1, sign));
    }
}

TEST(MaskFormTest, ABackslashAtTheEndHasNoPosition)
{
    const MaskForm form = FormOf(u"00\\");
    EXPECT_EQ(form.PositionCount(), 2);
    EXPECT_EQ(form.MaskDisplay(), u"__");
    EXPECT_EQ(FormOf(u"\\").PositionCount(), 0);
}

TEST(MaskFormTest, CaseSignsTakeNoPositionAndLastUntilTheOther)
{
    const MaskForm form = FormOf(u"L>LxL<L\\L>");
    ASSERT_EQ(form.PositionCount(), 6);
    const i16 upper[] = { 0, True, True, True, 0, 0 };
    const i16 lower[] = { 0, 0, 0, 0, True, True };
    for (int position = 0; position < 6; ++position) {
        EXPECT_EQ(form.Position(position).ToUpper, upper[position]) << position;
        EXPECT_EQ(form.Position(position).ToLower, lower[position]) << position;
    }
    EXPECT_EQ(FormOf(u"<>").PositionCount(), 0);
}

TEST(MaskFormTest, BlanksAroundTheMaskAreNotPartOfIt)
{
    EXPECT_EQ(FormOf(u"  0 0  ").MaskDisplay(), u"_ _");
    EXPECT_EQ(FormOf(u"   ").PositionCount(), 0);
    // Only blanks are taken off.
    EXPECT_EQ(FormOf(u"\t0").MaskDisplay(), u"\t_");
    // What is left of an escaped blank is a backslash at the end.
    EXPECT_EQ(FormOf(u"0\\ ").MaskDisplay(), u"_");
}

TEST(MaskFormTest, ReadsLettersInUpperCaseAndEscapedDigits)
{
    const MaskForm form = FormOf(u">LL-\\0999");
    ASSERT_EQ(form.PositionCount(), 7);
    EXPECT_EQ(form.MaskDisplay(), u"__-0___");
    for (const int position : { 0, 1 }) {
        EXPECT_EQ(form.Position(position).Required, True);
        EXPECT_EQ(form.Position(position).CharClass, CharClasses::Letter);
        EXPECT_EQ(form.Position(position).ToUpper, True);
    }
    EXPECT_EQ(form.Position(2).Literal, u'-');
    EXPECT_EQ(form.Position(3).Literal, u'0');
    for (const int position : { 4, 5, 6 }) {
        EXPECT_EQ(form.Position(position).Required, 0);
        EXPECT_EQ(form.Position(position).CharClass, CharClasses::Digit | CharClasses::Blank);
    }
}

TEST(MaskFormTest, ParsingAnewForgetsPositionsAndValues)
{
    MaskForm form = FormOf(u"0000");
    form.Store(u"1234", false, Prompt);
    form.Parse(u"00-", u'*');
    EXPECT_EQ(form.MaskDisplay(), u"**-");
    EXPECT_EQ(form.Values(), (std::vector<i16> { 0, 0, 0 }));
    form.Reset();
    EXPECT_EQ(form.PositionCount(), 0);
    EXPECT_EQ(form.MaskDisplay(), u"");
}

TEST(MaskFormTest, ClassesTakeTheirCharactersAndBackspace)
{
    const std::u16string digits = u"0123456789";
    const std::u16string letters = u"AMZamz";
    const std::u16string signs = u"+-";
    const std::u16string others = u"/:@[`{,.!_\u00E9\u0410\u0661";
    const auto takes = [](const std::u16string& characters, u8 charClass) {
        long count = 0;
        for (const char16_t character : characters)
            count += IsInCharClass(character, charClass);
        return static_cast<std::size_t>(count);
    };
    for (u8 charClass = 1; charClass < 16; ++charClass) {
        EXPECT_EQ(takes(digits, charClass), charClass & CharClasses::Digit ? digits.size() : 0) << int { charClass };
        EXPECT_EQ(takes(letters, charClass), charClass & CharClasses::Letter ? letters.size() : 0) << int { charClass };
        EXPECT_EQ(takes(signs, charClass), charClass & CharClasses::Sign ? signs.size() : 0) << int { charClass };
        EXPECT_EQ(takes(u" ", charClass), charClass & CharClasses::Blank ? 1 : 0) << int { charClass };
        EXPECT_EQ(takes(others, charClass), 0) << int { charClass };
        EXPECT_TRUE(IsInCharClass(8, charClass)) << int { charClass };
    }
    EXPECT_EQ(takes(digits + letters + signs + others + u" \b\u0001", CharClasses::Any),
        digits.size() + letters.size() + signs.size() + others.size() + 3);
}

TEST(MaskFormTest, FindsTheNextEditablePosition)
{
    const MaskForm form = FormOf(u"(0)-0)");
    const int next[] = { 1, 1, 4, 4, 4, 5, 6, 7 };
    for (int from = 0; from < 8; ++from)
        EXPECT_EQ(form.NextEditable(from), next[from]) << from;
    EXPECT_FALSE(form.IsEditable(5));
    EXPECT_FALSE(form.IsEditable(6));
    EXPECT_FALSE(form.IsEditable(-1));
    EXPECT_FALSE(MaskForm().IsEditable(0));
}

struct StoreCase {
    std::u16string mask;
    std::u16string text;
    bool includeLiteral;
    std::u16string shown;
    std::vector<i16> values;
};

class MaskStoreTest : public testing::TestWithParam<StoreCase> { };

TEST_P(MaskStoreTest, ShapesTheText)
{
    const StoreCase& store = GetParam();
    MaskForm form = FormOf(store.mask);
    EXPECT_EQ(form.Store(store.text, store.includeLiteral, Prompt), store.shown);
    EXPECT_EQ(form.Values(), store.values);
}

INSTANTIATE_TEST_SUITE_P(Texts, MaskStoreTest,
    testing::Values(
        // Cut to the form.
        StoreCase { u"000", u"12345", false, u"123", { u'1', u'2', u'3' } },
        // Completed by the empty form.
        StoreCase { u"00-00", u"1", true, u"1_-__", { u'1', 0, 0, 0, 0 } },
        // Literals put in, or written over what is there.
        StoreCase { u"(00)", u"12", false, u"(12)", { 0, u'1', u'2', 0 } },
        StoreCase { u"(00)", u"1234", true, u"(23)", { 0, u'2', u'3', 0 } },
        StoreCase { u"(00)", u"[12]", true, u"(12)", { 0, u'1', u'2', 0 } },
        // What is put in pushes the rest over the end.
        StoreCase { u"(00)", u"1234", false, u"(12)", { 0, u'1', u'2', 0 } },
        StoreCase { u"--00", u"1234", false, u"--12", { 0, 0, u'1', u'2' } },
        // A text with literals where none are expected.
        StoreCase { u"(00)", u"(12)", false, u"(_1)", { 0, u'(', u'1', 0 } },
        // A literal behind the text is not put in, it comes with the empty form.
        StoreCase { u"00-0", u"12", false, u"12-_", { u'1', u'2', 0, 0 } },
        // A refused character is kept, and the prompt shown.
        StoreCase { u"0000", u"12x4", false, u"12_4", { u'1', u'2', u'x', u'4' } },
        // The case is not changed.
        StoreCase { u">LL", u"ab", false, u"ab", { u'a', u'b' } },
        // Codes from U+8000 on are stored as negative ones.
        StoreCase { u"&&", u"\uAC00a", false, u"\uAC00a", { -21504, u'a' } },
        StoreCase { u"", u"12", false, u"", {} }));

TEST(MaskFormTest, AnEmptyTextShowsTheEmptyFormAndLeavesTheValues)
{
    MaskForm form = FormOf(u"00-00");
    form.Store(u"1234", false, Prompt);
    EXPECT_EQ(form.Store(u"", false, Prompt), u"__-__");
    EXPECT_EQ(form.Text(u"__-__", false, Prompt, 0), u"1234");
    EXPECT_EQ(form.TextInput(u"__-__", Prompt), u"");
}

TEST(MaskFormTest, GivesTheValueWithOrWithoutLiterals)
{
    MaskForm form = FormOf(u"(00) 0");
    const std::u16string shown = form.Store(u"12", false, Prompt);
    ASSERT_EQ(shown, u"(12) _");
    EXPECT_EQ(form.Text(shown, false, Prompt, u'*'), u"12*");
    EXPECT_EQ(form.Text(shown, true, Prompt, u'*'), u"(12) *");
    EXPECT_EQ(form.Text(shown, true, Prompt, 0), u"(12) \0"s);
    EXPECT_EQ(form.TextInput(shown, Prompt), u"12");
}

TEST(MaskFormTest, APlaceWithoutAValueGivesWhatItShows)
{
    const MaskForm form = FormOf(u"&&&");
    // The second place shows another prompt than the one that counts now.
    EXPECT_EQ(form.Text(u"_*x", false, u'_', u'?'), u"?*x");
    EXPECT_EQ(form.TextInput(u"_*x", u'_'), u"*x");
    // Nothing is shown behind the end of a text that is too short.
    EXPECT_EQ(form.Text(u"a", false, u'_', u'?'), u"a");
    EXPECT_EQ(form.TextInput(u"a", u'_'), u"a");
}

TEST(MaskFormTest, WhatWasEnteredGoesByValuesWhereThePromptIsNotShown)
{
    MaskForm form = FormOf(u"0-0");
    form.Store(u"1x", false, Prompt);
    EXPECT_EQ(form.Text(u"1-_", false, Prompt, u'?'), u"1x");
    EXPECT_EQ(form.TextInput(u"1-_", Prompt), u"1");
    // The form shows something else than what is stored.
    EXPECT_EQ(form.TextInput(u"7-8", Prompt), u"1x");
}

TEST(MaskFormTest, BlanksPlacesAndTakesOutWhatLiesBehindTheForm)
{
    const MaskForm form = FormOf(u"00-00");
    EXPECT_EQ(form.Blanked(u"12-34", 1, 3), u"1_-_4");
    EXPECT_EQ(form.Blanked(u"12-34", 0, 0), u"12-34");
    EXPECT_EQ(form.Blanked(u"12-34", 4, 9), u"12-3_");
    EXPECT_EQ(form.Blanked(u"12-34\r\n", 4, 3), u"12-3_");
    EXPECT_EQ(form.Blanked(u"12-34\r\nx", 5, 2), u"12-34x");
    EXPECT_EQ(form.Completed(u"1"), u"1_-__");
    EXPECT_EQ(form.Completed(u"12-34\r\n"), u"12-34\r\n");
}

TEST(MaskFormTest, ClearingValuesKeepsToTheForm)
{
    MaskForm form = FormOf(u"0000");
    form.Store(u"1234", false, Prompt);
    form.ClearValues(3, 5);
    EXPECT_EQ(form.Values(), (std::vector<i16> { u'1', u'2', u'3', 0 }));
    form.ClearValues(-1, 2);
    EXPECT_EQ(form.Values(), (std::vector<i16> { 0, u'2', u'3', 0 }));
    form.ClearValues();
    EXPECT_EQ(form.Values(), (std::vector<i16> { 0, 0, 0, 0 }));
    form.SetValues({ 0, 5, 0, 6 });
    EXPECT_EQ(form.Position(3).Value, 6);
}

} // namespace
