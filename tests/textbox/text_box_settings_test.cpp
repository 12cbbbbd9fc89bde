#include "textbox/text_box_fixture.h"

#include "vornix/picture.h"

using namespace vornix;
using namespace std::string_literals;

namespace {

using Values = std::map<std::string, BagValue, std::less<>>;

class TextBoxSettingsTest : public TextBoxTest {
protected:
    // The keys of what is written.
    std::vector<std::string> Keys() const
    {
        std::vector<std::string> keys;
        for (const auto& [key, value] : Written())
            keys.push_back(key);
        return keys;
    }
    static FontPtr Font(std::u16string name)
    {
        return std::make_shared<const FontObject>(FontObject { .Name = std::move(name), .Size = 20, .Bold = true });
    }
};

TEST_F(TextBoxSettingsTest, OfANewBoxNothingIsWritten)
{
    EXPECT_THAT(Keys(), testing::IsEmpty());
    ReadFrom({});
    EXPECT_THAT(Keys(), testing::IsEmpty());
}

TEST_F(TextBoxSettingsTest, EachKeyIsReadWrittenAndReadAgain)
{
    const PicturePtr picture = PictureObject::FromRgba(1, 1, std::vector<u8>(4, 9));
    const Values each {
        { "PromptChar", u"*"s },
        { "ReplaceChar", u"?"s },
        { "AutoResize", true },
        { "ToolTipText", u"tip"s },
        { "Text", u"text"s },
        { "RightToLeft", true },
        { "PasswordChar", u"#"s },
        { "OLEDropMode", 2 },
        { "OLEDragMode", 1 },
        { "MousePointer", 99 },
        { "MouseIcon", picture },
        { "MaxLength", 12 },
        { "Locked", true },
        { "ForeColor", 255 },
        { "BackColor", static_cast<i32>(SystemOleColor(SystemColor::ButtonFace)) },
        { "Enabled", false },
        { "BorderStyle", 1 },
        { "Alignment", 1 },
        { "ScrollBars", 3 },
        { "WhatsThisHelpID", 815 },
    };
    for (const auto& [key, value] : each) {
        ReadFrom({ { key, value } });
        EXPECT_EQ(Written(), (Values { { key, value } })) << key;
    }
    ReadFrom(each);
    EXPECT_EQ(Written(), each);
}

TEST_F(TextBoxSettingsTest, EachPartOfTheFontIsWrittenWithTheWholeFont)
{
    const Values parts {
        { "FontUnderline", true },
        { "FontStrikethru", true },
        { "FontSize", 20 },
        { "FontName", u"Sans"s },
        { "FontItalic", true },
        { "FontBold", true },
    };
    for (const auto& [key, value] : parts) {
        ReadFrom({ { key, value } });
        EXPECT_EQ(Keys(), (key < "Font" ? std::vector { key, "Font"s } : std::vector { "Font"s, key })) << key;
        EXPECT_EQ(Written().at(key), value) << key;
    }
    ReadFrom(parts);
    EXPECT_EQ(Keys().size(), 7u);
    EXPECT_EQ(Box.FontName(), u"Sans");
    EXPECT_EQ(Box.FontSize(), 20);
    EXPECT_TRUE(Native.font.Bold && Native.font.Italic && Native.font.Underline && Native.font.Strikethrough);
}

TEST_F(TextBoxSettingsTest, AWholeFontReplacesItsParts)
{
    ReadFrom({ { "Font", Font(u"Whole") }, { "FontName", u"Part"s }, { "FontItalic", true } });
    EXPECT_EQ(Box.FontName(), u"Whole");
    EXPECT_FALSE(Box.FontItalic());
    EXPECT_EQ(Keys(), (std::vector<std::string> { "Font", "FontBold", "FontName", "FontSize" }));
}

TEST_F(TextBoxSettingsTest, NoFontStandsForThatOfTheForm)
{
    ReadFrom({ { "Font", FontPtr() } });
    EXPECT_EQ(Box.Font(), Site.font);
    EXPECT_THAT(Keys(), testing::IsEmpty());
    Site.font = Font(u"Other");
    Box.FollowAmbient();
    EXPECT_EQ(Native.font.Name, u"Other");
}

TEST_F(TextBoxSettingsTest, AFontLikeThatOfTheFormIsNotWritten)
{
    Box.SetFont(std::make_shared<const FontObject>(*Site.font));
    EXPECT_THAT(Keys(), testing::IsEmpty());
    Box.SetFontBold(true);
    Box.SetFontBold(false);
    EXPECT_THAT(Keys(), testing::IsEmpty());
}

TEST_F(TextBoxSettingsTest, FractionsOfAFontSizeAreInTheWholeFont)
{
    Box.SetFontSize(8.25F);
    const Values written = Written();
    EXPECT_EQ(std::get<i32>(written.at("FontSize")), 8);
    ReadFrom(written);
    EXPECT_EQ(Box.FontSize(), 8.25F);
}

TEST_F(TextBoxSettingsTest, MultilineAndCausesValidationAreReadAndNeverWritten)
{
    ReadFrom({ { "Multiline", true }, { "CausesValidation", false } });
    EXPECT_TRUE(Box.MultiLine());
    EXPECT_TRUE(Native.style.isMultiLine);
    EXPECT_THAT(Keys(), testing::IsEmpty());
    Box.InitProperties();
    Box.SetMultiLine(true);
    EXPECT_THAT(Keys(), testing::IsEmpty());
    ReadFrom(Written());
    EXPECT_FALSE(Box.MultiLine());
}

TEST_F(TextBoxSettingsTest, MaskFilterAndSizesAreNotKept)
{
    Box.SetMask(u"(00)");
    Box.SetIncludeLiteral(true);
    Box.SetNormalWidth(1);
    Box.SetNormalHeight(2);
    Box.SetMaxWidth(3);
    Box.SetMaxHeight(4);
    EXPECT_EQ(Keys(), (std::vector<std::string> { "Text" }));
    Box.SetNumericOnly(true);
    EXPECT_THAT(Keys(), testing::IsEmpty());
}

TEST_F(TextBoxSettingsTest, TheSavedTextIsTheValueAndComesBackWithoutAMask)
{
    Box.SetMask(u"(00) 00");
    Box.SetReplaceChar(u"?");
    Box.SetText(u"12");
    const Values written = Written();
    EXPECT_EQ(std::get<std::u16string>(written.at("Text")), u"12??");
    ReadFrom(written);
    EXPECT_EQ(Box.Mask(), u"");
    EXPECT_EQ(Box.Text(), u"12??");
    Box.SetMask(u"(00) 00");
    EXPECT_EQ(Native.Text(), u"(__) __");
}

TEST_F(TextBoxSettingsTest, EscapeComesBackToTheTextThatWasRead)
{
    ReadFrom({ { "Text", u"abc"s } });
    Native.TypeAll(u"x");
    Native.Press(Keys::Escape);
    EXPECT_EQ(Box.Text(), u"abc");
}

TEST_F(TextBoxSettingsTest, ReadingChoosesTheBoxAndKeepsTheBorder)
{
    ReadFrom(
        { { "AutoResize", true }, { "ScrollBars", 1 }, { "Alignment", 1 }, { "BorderStyle", 1 }, { "Text", u"abc"s } });
    EXPECT_EQ(Native.style, (EditBoxStyle { true, true, true }));
    EXPECT_TRUE(Native.hasBorder) << "though a text takes it off";
    EXPECT_EQ(Window.moveCount, 0);
}

TEST_F(TextBoxSettingsTest, ReadingRaisesAndReportsNothing)
{
    ReadFrom({ { "Text", u"abc"s }, { "Enabled", false }, { "FontBold", true } });
    EXPECT_THAT(Events.log, testing::IsEmpty());
    EXPECT_THAT(Site.reports, testing::IsEmpty());
}

TEST_F(TextBoxSettingsTest, WhatIsAbsentIsThatOfANewBox)
{
    Box.SetPromptChar(u"*");
    Box.SetLocked(true);
    Box.SetMask(u"0");
    ReadFrom({});
    EXPECT_EQ(Box.PromptChar(), u"_");
    EXPECT_FALSE(Native.isLocked);
    EXPECT_EQ(Box.Mask(), u"");
    EXPECT_EQ(Native.Text(), u"");
}

TEST_F(TextBoxSettingsTest, OfCharactersTheFirstCountsAndNoneIsIgnored)
{
    ReadFrom({ { "PromptChar", u"*#"s }, { "ReplaceChar", u"?!"s }, { "PasswordChar", u"xy"s } });
    EXPECT_EQ(Box.PromptChar(), u"*");
    EXPECT_EQ(Box.ReplaceChar(), u"?");
    EXPECT_EQ(Box.PasswordChar(), u"x");
    ReadFrom({ { "PromptChar", u""s }, { "ReplaceChar", u""s }, { "PasswordChar", u""s } });
    EXPECT_EQ(Box.PromptChar(), u"_");
    EXPECT_EQ(Box.ReplaceChar(), u"\0"s);
    EXPECT_EQ(Box.PasswordChar(), u"");
    ReadFrom(
        { { "PromptChar", u"\U0001F600"s }, { "ReplaceChar", u"\U0001F600"s }, { "PasswordChar", u"\U0001F600"s } });
    EXPECT_THAT(Keys(), testing::IsEmpty());
}

TEST_F(TextBoxSettingsTest, TruthValuesMayBeNumbers)
{
    ReadFrom({ { "Locked", -1 }, { "Enabled", 0 } });
    EXPECT_TRUE(Box.Locked());
    EXPECT_FALSE(Box.Enabled());
}

TEST_F(TextBoxSettingsTest, AValueOfAnotherTypeIsAnErrorAndChangesNothing)
{
    const BagValue text = u"1"s;
    for (const char* const key : { "AutoResize", "Multiline", "CausesValidation", "RightToLeft", "OLEDropMode",
             "OLEDragMode", "MousePointer", "MouseIcon", "MaxLength", "Locked", "ForeColor", "BackColor",
             "FontUnderline", "FontStrikethru", "FontSize", "FontItalic", "FontBold", "Enabled", "BorderStyle",
             "Alignment", "ScrollBars", "Font", "WhatsThisHelpID" }) {
        Box.SetText(u"before");
        EXPECT_EQ(ErrorOf([&] { ReadFrom({ { key, text } }); }), ErrorNumber::TypeMismatch) << key;
        EXPECT_EQ(Box.Text(), u"before");
    }
    for (const char* const key : { "PromptChar", "ReplaceChar", "ToolTipText", "Text", "PasswordChar", "FontName" })
        EXPECT_EQ(ErrorOf([&] { ReadFrom({ { key, 1 } }); }), ErrorNumber::TypeMismatch) << key;
    for (const char* const key : { "MaxLength", "ForeColor", "FontSize", "Alignment" })
        EXPECT_EQ(ErrorOf([&] { ReadFrom({ { key, true } }); }), ErrorNumber::TypeMismatch) << key;
}

TEST_F(TextBoxSettingsTest, ANumberThatDoesNotFitIsAnError)
{
    for (const char* const key : { "Alignment", "ScrollBars" })
        EXPECT_EQ(ErrorOf([&] { ReadFrom({ { key, 32768 } }); }), ErrorNumber::Overflow) << key;
    for (const i32 size : { 0, -1, 32768 })
        EXPECT_EQ(ErrorOf([&] { ReadFrom({ { "FontSize", size } }); }), ErrorNumber::InvalidArgument) << size;
}

} // namespace
