// The system clipboard: within the process, and beside another program.
#include "qt_clipboard.h"
#include "vornix/qvornix.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QProcess>
#include <QTest>

#include <gtest/gtest.h>

namespace vornix {
namespace {

constexpr int Patience = 10'000;

// What a spreadsheet program wrote of a table; tests/exchange holds that it still does.
QString TextOfSpreadsheet()
{
    QFile file(QString::fromUtf8(VORNIX_TESTS "/exchange/written_by_spreadsheet.txt"));
    if (!file.open(QIODevice::ReadOnly))
        ADD_FAILURE() << "the text is not there";
    return QString::fromUtf8(file.readAll());
}

// Its first four rows: line feeds inside cells stay, and so do doubled quotes.
const std::u16string textPasted
    = u"plain|with blanks|\x00E4\x00F6\x00FC\x00DF \x20AC \x4E2D\x6587 \U0001F600|two\nlines|and\n\nan empty one|"
      u"comma, semicolon;||007|=1+1|say \"\"hi\"\"|\"\"quoted\"\" start|1.5E3|";

class ClipboardOfWindow : public testing::Test {
protected:
    ClipboardOfWindow()
    {
        Grid().SetFixedRows(0);
        Grid().SetFixedCols(0);
        Grid().SetRows(4);
        Grid().SetCols(3);
    }
    Vornix& Grid() { return widget_.Grid(); }
    QClipboard& Board() { return *QGuiApplication::clipboard(); }
    std::u16string Pasted(const QString& text)
    {
        Board().setText(text);
        return PasteAndTell();
    }
    std::u16string PasteAndTell()
    {
        for (i16 row = 0; row < 4; ++row)
            for (i16 col = 0; col < 3; ++col)
                Grid().SetText(row, col, u"~");
        Grid().PasteFromClipboard(0, 0, 3, 2);
        std::u16string cells;
        for (i16 row = 0; row < 4; ++row)
            for (i16 col = 0; col < 3; ++col)
                cells += Grid().Text(row, col) + u"|";
        return cells;
    }

private:
    QVornix widget_;
};

// Beside xclip, on the display of an X server.
class SystemClipboard : public ClipboardOfWindow {
protected:
    void SetUp() override
    {
        if (QGuiApplication::platformName() != QStringLiteral("xcb"))
            GTEST_SKIP() << "runs on a display, as qt.system_clipboard";
    }
    // The other program, while this one answers what it asks.
    QByteArray Run(const QStringList& arguments, const QByteArray& input = {})
    {
        QProcess program;
        program.start(QStringLiteral("xclip"),
            QStringList { QStringLiteral("-selection"), QStringLiteral("clipboard") } + arguments);
        program.write(input);
        program.closeWriteChannel();
        EXPECT_TRUE(QTest::qWaitFor([&] { return program.state() == QProcess::NotRunning; }, Patience));
        EXPECT_EQ(program.exitCode(), 0);
        return program.readAllStandardOutput();
    }
    QByteArray TextSeenOutside()
    {
        return Run({ QStringLiteral("-o"), QStringLiteral("-t"), QStringLiteral("UTF8_STRING") });
    }
    // Its copy stays in the background to serve the text.
    void SetTextOutside(const QByteArray& text)
    {
        QProcess program;
        program.setStandardOutputFile(QProcess::nullDevice());
        program.setStandardErrorFile(QProcess::nullDevice());
        program.start(QStringLiteral("xclip"),
            { QStringLiteral("-selection"), QStringLiteral("clipboard"), QStringLiteral("-i"), QStringLiteral("-t"),
                QStringLiteral("UTF8_STRING") });
        program.write(text);
        program.closeWriteChannel();
        ASSERT_TRUE(QTest::qWaitFor([&] { return program.state() == QProcess::NotRunning; }, Patience));
        ASSERT_TRUE(QTest::qWaitFor([&] { return !Board().ownsClipboard(); }, Patience));
    }
};

} // namespace

TEST_F(ClipboardOfWindow, ACopyIsPlainTextOnTheSystemsClipboard)
{
    Grid().SetText(0, 0, u"a");
    Grid().SetText(0, 1, u"\x00E4\x20AC\xD83D\xDE00");
    Grid().SetText(1, 0, u"x\r\ny");
    Grid().CopyToClipboard(0, 0, 1, 1);
    EXPECT_TRUE(Board().mimeData()->hasText());
    EXPECT_EQ(Board().text().toStdU16String(), u"a\t\x00E4\x20AC\xD83D\xDE00\r\n\"x\ny\"\t");
}

TEST_F(ClipboardOfWindow, ACopyTakesThePlaceOfAnythingThere)
{
    auto* const content = new QMimeData;
    content->setHtml(QStringLiteral("<b>before</b>"));
    Board().setMimeData(content);
    Grid().SetText(0, 0, u"a");
    Grid().CopyToClipboard(0, 0, 0, 0);
    EXPECT_FALSE(Board().mimeData()->hasHtml());
    EXPECT_EQ(Board().text(), QStringLiteral("a"));
}

TEST_F(ClipboardOfWindow, TheGridsOwnTextComesBackAsItWas)
{
    Grid().SetText(0, 0, u"line\nfeed");
    Grid().SetText(0, 1, u"x\r\ny");
    Grid().CopyToClipboard(0, 0, 0, 1);
    EXPECT_EQ(PasteAndTell(), u"line\nfeed|x\ny|~|~|~|~|~|~|~|~|~|~|");
}

TEST_F(ClipboardOfWindow, CarriageReturnsWithLineFeedsSeparateRows)
{
    EXPECT_EQ(Pasted(QStringLiteral("a\tb\r\nc\nd\te\r\n")), u"a|b|~|c\nd|e|~|~|~|~|~|~|~|");
}

TEST_F(ClipboardOfWindow, LineFeedsAloneSeparateRowsToo)
{
    EXPECT_EQ(Pasted(QStringLiteral("a\tb\nc\td\n")), u"a|b|~|c|d|~|~|~|~|~|~|~|");
    EXPECT_EQ(Pasted(QStringLiteral("\"x\ny\"\tb\nc\n")), u"x\ny|b|~|c|~|~|~|~|~|~|~|~|");
}

TEST_F(ClipboardOfWindow, PastesWhatASpreadsheetProgramWrote)
{
    EXPECT_EQ(Pasted(TextOfSpreadsheet()), textPasted);
}

TEST_F(ClipboardOfWindow, WithoutTextNothingIsPasted)
{
    Board().clear();
    EXPECT_EQ(PasteAndTell(), u"~|~|~|~|~|~|~|~|~|~|~|~|");
    Board().setImage(QImage(3, 3, QImage::Format_RGB32));
    EXPECT_EQ(PasteAndTell(), u"~|~|~|~|~|~|~|~|~|~|~|~|");
}

TEST(LineEnds, OfOtherProgramsBecomeTheControls)
{
    EXPECT_EQ(WithLineEnds(u""), u"");
    EXPECT_EQ(WithLineEnds(u"a"), u"a");
    EXPECT_EQ(WithLineEnds(u"a\nb\n\nc\n"), u"a\r\nb\r\n\r\nc\r\n");
    EXPECT_EQ(WithLineEnds(u"\n"), u"\r\n");
    EXPECT_EQ(WithLineEnds(u"a\tb\n\tc"), u"a\tb\r\n\tc");
    EXPECT_EQ(WithLineEnds(u"a\rb\nc"), u"a\rb\r\nc");
}

TEST(LineEnds, OfATextThatHasThemStay)
{
    EXPECT_EQ(WithLineEnds(u"a\nb\r\nc"), u"a\nb\r\nc");
    EXPECT_EQ(WithLineEnds(u"\r\n"), u"\r\n");
}

TEST(LineEnds, InsideQuotedFieldsStay)
{
    EXPECT_EQ(WithLineEnds(u"\"a\nb\"\nc"), u"\"a\nb\"\r\nc");
    EXPECT_EQ(WithLineEnds(u"x\t\"a\n\nb\"\ty\n"), u"x\t\"a\n\nb\"\ty\r\n");
    EXPECT_EQ(WithLineEnds(u"\"a\"\"\n\"\"b\"\nc"), u"\"a\"\"\n\"\"b\"\r\nc") << "doubled quotes are inside";
    EXPECT_EQ(WithLineEnds(u"\"\"\n\"\"\n"), u"\"\"\r\n\"\"\r\n");
    EXPECT_EQ(WithLineEnds(u"\"a\nb\"c\nd"), u"\"a\nb\"c\r\nd") << "up to the end of the field";
    EXPECT_EQ(WithLineEnds(u"\"\"\"\n\"\"\"\t\n"), u"\"\"\"\n\"\"\"\t\r\n");
}

TEST(LineEnds, BehindAQuoteThatIsNotClosedCount)
{
    EXPECT_EQ(WithLineEnds(u"\"a\nb\nc"), u"\"a\r\nb\r\nc");
    EXPECT_EQ(WithLineEnds(u"a\"\nb\"\nc"), u"a\"\r\nb\"\r\nc") << "not at the start of a field";
    EXPECT_EQ(WithLineEnds(u"\""), u"\"");
    EXPECT_EQ(WithLineEnds(u"\"\n\"\"\n"), u"\"\r\n\"\"\r\n");
}

TEST(LineEnds, TakeTimeLinearInTheText)
{
    std::u16string text;
    for (int i = 0; i < 300'000; ++i)
        text += u"\"a\n";
    EXPECT_EQ(WithLineEnds(text + u"\"\"").size(), text.size() + 2 + 150'000u) << "every other is inside";
    EXPECT_EQ(WithLineEnds(u"\"" + std::u16string(300'000, u'\n')).size(), 1 + 600'000u);
}

TEST_F(SystemClipboard, AnotherProgramSeesTheCopy)
{
    Grid().SetText(0, 0, u"a");
    Grid().SetText(0, 1, u"\x00E4\x20AC\xD83D\xDE00 \"q\"");
    Grid().SetText(1, 0, u"x\r\ny");
    Grid().CopyToClipboard(0, 0, 1, 1);
    EXPECT_EQ(TextSeenOutside(), QByteArray("a\t\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80 \"q\"\r\n\"x\ny\"\t"));
}

TEST_F(SystemClipboard, TheGridPastesWhatAnotherProgramCopied)
{
    SetTextOutside("a\t\xC3\xA4\xE2\x82\xAC\r\n\"x\ny\"\tb");
    EXPECT_EQ(PasteAndTell(), u"a|\x00E4\x20AC|~|x\ny|b|~|~|~|~|~|~|~|");
    SetTextOutside("a\tb\n\"x\ny\"\tc\n");
    EXPECT_EQ(PasteAndTell(), u"a|b|~|x\ny|c|~|~|~|~|~|~|~|");
}

TEST_F(SystemClipboard, TheGridPastesWhatASpreadsheetProgramWrote)
{
    SetTextOutside(TextOfSpreadsheet().toUtf8());
    EXPECT_EQ(PasteAndTell(), textPasted);
}

TEST_F(SystemClipboard, AnEmptyClipboardOfAnotherProgramPastesNothing)
{
    SetTextOutside("");
    EXPECT_EQ(PasteAndTell(), u"~|~|~|~|~|~|~|~|~|~|~|~|");
}

} // namespace vornix
