#include "textbox/text_box_fixture.h"

#include "vornix/picture.h"

#include <limits>

using namespace vornix;
using namespace std::string_literals;

namespace {

class TextBoxMembersTest : public TextBoxTest {
protected:
    using Names = std::vector<std::string>;
};

TEST_F(TextBoxMembersTest, ANewBox)
{
    EXPECT_EQ(Box.Mask(), u"");
    EXPECT_FALSE(Box.IncludeLiteral());
    EXPECT_FALSE(Box.NumericOnly());
    EXPECT_EQ(Box.PromptChar(), u"_");
    EXPECT_EQ(Box.ReplaceChar(), u"\0"s);
    EXPECT_EQ(Box.Text(), u"");
    EXPECT_EQ(Box.TextInput(), u"");
    EXPECT_EQ(Box.SelStart(), 0);
    EXPECT_EQ(Box.SelLength(), 0);
    EXPECT_EQ(Box.NormalWidth(), 0);
    EXPECT_EQ(Box.MaxHeight(), 0);
    EXPECT_FALSE(Box.RightToLeft());
    EXPECT_EQ(Box.PasswordChar(), u"");
    EXPECT_EQ(Box.MousePointer(), 0);
    EXPECT_EQ(Box.MouseIcon(), nullptr);
    EXPECT_EQ(Box.ForeColor(), SystemOleColor(SystemColor::WindowText));
    EXPECT_EQ(Box.BackColor(), SystemOleColor(SystemColor::Window));
    EXPECT_EQ(Box.Font(), Site.font);
    EXPECT_TRUE(Box.Enabled());
    EXPECT_EQ(Box.ToolTipText(), u"");
    EXPECT_EQ(Box.OLEDropMode(), 0);
    EXPECT_EQ(Box.OLEDragMode(), 0);
    EXPECT_EQ(Box.MaxLength(), 0);
    EXPECT_FALSE(Box.Locked());
    EXPECT_EQ(Box.BorderStyle(), 0);
    EXPECT_EQ(Box.WhatsThisHelpID(), 0);
    EXPECT_TRUE(Box.HideSelection());
    EXPECT_THAT(Site.reports, testing::IsEmpty());
    EXPECT_THAT(Events.log, testing::IsEmpty());
}

TEST_F(TextBoxMembersTest, TheNativeBoxLooksAsANewBoxDoes)
{
    EXPECT_EQ(Native.foreColor, 0x000000u);
    EXPECT_EQ(Native.backColor, 0xFFFFFFu);
    EXPECT_EQ(Native.font.Name, u"Ambient");
    EXPECT_FALSE(Native.hasBorder);
    EXPECT_FALSE(Native.isLocked);
}

TEST_F(TextBoxMembersTest, BeforeItIsMadeTheBoxCanBeUsed)
{
    LookingBox native;
    TextBox box(Window, native, Site, Events);
    box.SetText(u"abc");
    EXPECT_EQ(box.Text(), u"abc");
    EXPECT_EQ(box.FontName(), u"Ambient");
    EXPECT_EQ(box.PromptChar(), u"_");
}

TEST_F(TextBoxMembersTest, MakingANewBoxOfAUsedOneForgetsEverything)
{
    Box.SetMask(u"00");
    Box.SetText(u"12");
    Box.SetIncludeLiteral(true);
    Box.SetMultiLine(true);
    Box.SetAlignment(1);
    Box.SetMaxWidth(5);
    Box.SetFontBold(true);
    Box.SetEnabled(false);
    Box.SetLocked(true);
    Box.InitProperties();
    EXPECT_EQ(Native.Text(), u"");
    EXPECT_EQ(Box.Mask(), u"");
    EXPECT_FALSE(Box.IncludeLiteral());
    EXPECT_FALSE(Box.MultiLine());
    EXPECT_FALSE(Native.style.isRightAligned);
    EXPECT_EQ(Box.MaxWidth(), 0);
    EXPECT_FALSE(Native.font.Bold);
    EXPECT_TRUE(Window.isEnabled);
    EXPECT_FALSE(Native.isLocked);
}

TEST_F(TextBoxMembersTest, TheMembersOfTheMaskWork)
{
    Box.SetPromptChar(u"*");
    Box.SetReplaceChar(u"?");
    Box.SetIncludeLiteral(true);
    Box.SetMask(u"(00)");
    EXPECT_EQ(Native.Text(), u"(**)");
    Box.SetText(u"(1");
    EXPECT_EQ(Box.Text(), u"(1?)");
    EXPECT_EQ(Box.TextInput(), u"1");
    EXPECT_EQ(Box.Mask(), u"(00)");
    EXPECT_EQ(Box.PromptChar(), u"*");
    EXPECT_EQ(Box.ReplaceChar(), u"?");
    EXPECT_TRUE(Box.IncludeLiteral());
    Box.SetNumericOnly(true);
    EXPECT_TRUE(Box.NumericOnly());
    EXPECT_EQ(Native.Text(), u"");
    EXPECT_EQ(Site.reports, Names { "Text" });
    EXPECT_THAT(Events.log, testing::IsEmpty());
}

TEST_F(TextBoxMembersTest, TextOfANewBoxIsNothingBeforeAMaskIsSet)
{
    EXPECT_EQ(Box.Text(), u"");
    Box.SetMask(u"00");
    EXPECT_EQ(Box.Text(), u"\0\0"s);
}

TEST_F(TextBoxMembersTest, TheSelectionIsThatOfTheBox)
{
    Box.SetText(u"abcdef");
    Box.SetSelStart(1);
    Box.SetSelLength(3);
    EXPECT_EQ(Box.SelText(), u"bcd");
    EXPECT_EQ(Native.SelStart(), 1);
    EXPECT_EQ(Native.SelLength(), 3);
    Box.SetSelText(u"X");
    EXPECT_EQ(Box.Text(), u"aXef");
    EXPECT_EQ(Box.SelStart(), 2);
    EXPECT_EQ(Events.log, Names { "Change" });
    EXPECT_EQ(Site.reports, (Names { "Text", "SelStart", "SelLength", "SelText" }));
}

TEST_F(TextBoxMembersTest, TheSelectionIsLimitedToTheText)
{
    Box.SetText(u"abc");
    Box.SetSelStart(std::numeric_limits<i32>::max());
    EXPECT_EQ(Box.SelStart(), 3);
    Box.SetSelStart(1);
    Box.SetSelLength(std::numeric_limits<i32>::max());
    EXPECT_EQ(Box.SelLength(), 2);
}

TEST_F(TextBoxMembersTest, ANegativeSelectionIsAnError)
{
    Box.SetText(u"abc");
    Box.SetSelStart(1);
    Forget();
    EXPECT_EQ(ErrorOf([&] { Box.SetSelStart(-1); }), ErrorNumber::InvalidArgument);
    EXPECT_EQ(ErrorOf([&] { Box.SetSelLength(-1); }), ErrorNumber::InvalidArgument);
    EXPECT_EQ(Box.SelStart(), 1);
    EXPECT_THAT(Site.reports, testing::IsEmpty());
}

TEST_F(TextBoxMembersTest, WhatIsForwardedIsReported)
{
    Box.SetText(u"a");
    Box.SetSelStart(0);
    Box.SetSelLength(1);
    Box.SetSelText(u"b");
    Box.SetRightToLeft(true);
    Box.SetPasswordChar(u"*");
    Box.SetMousePointer(2);
    Box.SetMouseIcon(nullptr);
    Box.SetForeColor(1);
    Box.SetBackColor(2);
    Box.SetFontSize(12);
    Box.SetFontName(u"Sans");
    Box.SetFontItalic(true);
    Box.SetFontBold(true);
    Box.SetFont(Site.font);
    Box.SetEnabled(true);
    EXPECT_EQ(Site.reports,
        (Names { "Text", "SelStart", "SelLength", "SelText", "RightToLeft", "PasswordChar", "MousePointer", "MouseIcon",
            "ForeColor", "BackColor", "FontSize", "FontName", "FontItalic", "FontBold", "Font", "Enabled" }));
}

TEST_F(TextBoxMembersTest, TheOthersAreNotReported)
{
    Box.SetMask(u"0");
    Box.SetIncludeLiteral(true);
    Box.SetNumericOnly(false);
    Box.SetPromptChar(u"*");
    Box.SetReplaceChar(u"*");
    Box.SetAutoResize(true);
    Box.SetNormalWidth(1);
    Box.SetNormalHeight(1);
    Box.SetMaxWidth(1);
    Box.SetMaxHeight(1);
    Box.SetMultiLine(true);
    Box.SetAlignment(1);
    Box.SetScrollBars(1);
    Box.SetToolTipText(u"t");
    Box.SetOLEDropMode(1);
    Box.SetOLEDragMode(1);
    Box.SetMaxLength(1);
    Box.SetLocked(true);
    Box.SetFontUnderline(true);
    Box.SetFontStrikethru(true);
    Box.SetBorderStyle(1);
    Box.SetWhatsThisHelpID(1);
    Box.Refresh();
    EXPECT_THAT(Site.reports, testing::IsEmpty());
}

TEST_F(TextBoxMembersTest, EverySettingIsKeptAndGivenToTheBox)
{
    const PicturePtr picture = PictureObject::FromRgba(1, 1, std::vector<u8>(4, 9));
    Box.SetRightToLeft(true);
    Box.SetPasswordChar(u"*#");
    Box.SetMousePointer(99);
    Box.SetMouseIcon(picture);
    Box.SetToolTipText(u"tip");
    Box.SetOLEDropMode(2);
    Box.SetOLEDragMode(1);
    Box.SetMaxLength(7);
    Box.SetLocked(true);
    Box.SetBorderStyle(2);
    Box.SetWhatsThisHelpID(-5);
    EXPECT_TRUE(Box.RightToLeft() && Native.isRightToLeft);
    EXPECT_EQ(Box.PasswordChar(), u"*");
    EXPECT_EQ(Native.passwordChar, u'*');
    EXPECT_EQ(Box.MousePointer(), 99);
    EXPECT_EQ(Native.pointer, 99);
    EXPECT_EQ(Box.MouseIcon(), picture);
    EXPECT_EQ(Native.pointerPicture, picture);
    EXPECT_EQ(Box.ToolTipText(), u"tip");
    EXPECT_EQ(Native.toolTip, u"tip");
    EXPECT_EQ(Box.OLEDropMode(), 2);
    EXPECT_EQ(Box.OLEDragMode(), 1);
    EXPECT_EQ(Box.MaxLength(), 7);
    EXPECT_EQ(Native.maxLength, 7);
    EXPECT_TRUE(Box.Locked() && Native.isLocked);
    EXPECT_EQ(Box.BorderStyle(), 2);
    EXPECT_TRUE(Native.hasBorder);
    EXPECT_EQ(Box.WhatsThisHelpID(), -5);
    Box.SetPasswordChar(u"\U0001F600");
    EXPECT_EQ(Box.PasswordChar(), u"*") << "a sign has one unit";
    Box.SetPasswordChar(u"");
    EXPECT_EQ(Box.PasswordChar(), u"");
    EXPECT_EQ(Native.passwordChar, 0);
    Box.SetBorderStyle(0);
    EXPECT_FALSE(Native.hasBorder);
}

TEST_F(TextBoxMembersTest, ColoursAreTranslatedWithTheTableOfTheForm)
{
    Box.SetForeColor(SystemOleColor(SystemColor::Highlight));
    Box.SetBackColor(0x00123456);
    EXPECT_EQ(Native.foreColor, Site.colors.values[SystemColor::Highlight]);
    EXPECT_EQ(Native.backColor, 0x123456u);
    EXPECT_EQ(Box.ForeColor(), SystemOleColor(SystemColor::Highlight));
    EXPECT_EQ(Box.BackColor(), 0x00123456u);
    Site.colors.values[SystemColor::Highlight] = 0xABCDEF;
    Box.FollowAmbient();
    EXPECT_EQ(Native.foreColor, 0xABCDEFu);
}

TEST_F(TextBoxMembersTest, WithoutAFontOfItsOwnTheBoxFollowsTheForm)
{
    Site.font = std::make_shared<const FontObject>(FontObject { .Name = u"Other", .Size = 20 });
    Box.FollowAmbient();
    EXPECT_EQ(Native.font.Name, u"Other");
    EXPECT_EQ(Box.FontSize(), 20);
    Box.SetFontItalic(true);
    Site.font = std::make_shared<const FontObject>(FontObject { .Name = u"Third" });
    Box.FollowAmbient();
    EXPECT_EQ(Native.font.Name, u"Other");
    EXPECT_TRUE(Native.font.Italic);
}

TEST_F(TextBoxMembersTest, EachPartOfTheFontIsWrittenAlone)
{
    Box.SetFontName(u"Sans");
    Box.SetFontSize(8.25F);
    Box.SetFontBold(true);
    Box.SetFontItalic(true);
    Box.SetFontUnderline(true);
    Box.SetFontStrikethru(true);
    EXPECT_EQ(Box.FontName(), u"Sans");
    EXPECT_EQ(Box.FontSize(), 8.25F);
    EXPECT_TRUE(Box.FontBold() && Box.FontItalic() && Box.FontUnderline() && Box.FontStrikethru());
    EXPECT_EQ(Native.font.Name, u"Sans");
    EXPECT_EQ(Native.font.Size, 8.25);
    EXPECT_TRUE(Native.font.Bold && Native.font.Italic && Native.font.Underline && Native.font.Strikethrough);
    EXPECT_EQ(Site.font->Name, u"Ambient") << "that of the form is another";
}

TEST_F(TextBoxMembersTest, AWholeFontIsTheHostsObject)
{
    const auto font = std::make_shared<const FontObject>(FontObject { .Name = u"Mono", .Size = 11, .Charset = 177 });
    Box.SetFont(font);
    EXPECT_EQ(Box.Font(), font);
    EXPECT_EQ(Native.font.Name, u"Mono");
    Box.SetFontBold(true);
    EXPECT_FALSE(font->Bold);
    EXPECT_EQ(Box.Font()->Charset, 177);
}

TEST_F(TextBoxMembersTest, NoFontAndASizeThatNoFontHasAreErrors)
{
    EXPECT_EQ(ErrorOf([&] { Box.SetFont(nullptr); }), ErrorNumber::InvalidArgument);
    for (const float size :
        { 0.0F, -1.0F, 32768.0F, std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN() })
        EXPECT_EQ(ErrorOf([&] { Box.SetFontSize(size); }), ErrorNumber::InvalidArgument) << size;
    EXPECT_EQ(Box.Font(), Site.font);
    EXPECT_THAT(Site.reports, testing::IsEmpty());
    Box.SetFontSize(0.5F);
    Box.SetFontSize(32767);
}

TEST_F(TextBoxMembersTest, AFormWithoutAFontLeavesAPlainOne)
{
    Site.font = nullptr;
    Box.FollowAmbient();
    EXPECT_EQ(Native.font.Size, FontObject().Size);
    EXPECT_NE(Box.Font(), nullptr);
}

TEST_F(TextBoxMembersTest, EnabledIsThatOfTheWindow)
{
    Box.SetEnabled(false);
    EXPECT_FALSE(Window.isEnabled);
    EXPECT_FALSE(Box.Enabled());
    Window.isEnabled = true;
    EXPECT_TRUE(Box.Enabled());
}

TEST_F(TextBoxMembersTest, HandleDeviceAndRefreshAreTheBoxs)
{
    EXPECT_EQ(Box.hWnd(), 4711);
    EXPECT_EQ(Box.hDC(), Paper.Handle());
    Native.device = nullptr;
    EXPECT_EQ(Box.hDC(), 0);
    Box.Refresh();
    EXPECT_EQ(Native.refreshCount, 1);
}

TEST_F(TextBoxMembersTest, SizesHoldEverySixteenBits)
{
    for (const i16 size : { std::numeric_limits<i16>::min(), std::numeric_limits<i16>::max() }) {
        Box.SetNormalWidth(size);
        Box.SetNormalHeight(size);
        Box.SetMaxWidth(size);
        Box.SetMaxHeight(size);
        EXPECT_EQ(Box.NormalWidth(), size);
        EXPECT_EQ(Box.NormalHeight(), size);
        EXPECT_EQ(Box.MaxWidth(), size);
        EXPECT_EQ(Box.MaxHeight(), size);
    }
}

} // namespace
