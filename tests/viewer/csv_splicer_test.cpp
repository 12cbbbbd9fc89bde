#include "csv_splicer.h"

#include <gtest/gtest.h>

#include <random>

using namespace vornix::viewer;

namespace {

// What becomes of the text when it comes in pieces of that many units.
std::u16string Spliced(std::u16string_view text, const std::vector<Splice>& splices, std::size_t pieceSize)
{
    std::u16string result;
    CsvSplicer splicer(splices, [&](std::u16string_view part) { result += part; });
    for (std::size_t place = 0; place < text.size(); place += pieceSize)
        splicer.Feed(text.substr(place, pieceSize));
    splicer.Finish();
    return result;
}

void ExpectSpliced(std::u16string_view text, const std::vector<Splice>& splices, std::u16string_view wanted)
{
    for (std::size_t size = 1; size <= text.size(); ++size)
        EXPECT_EQ(Spliced(text, splices, size), wanted) << "in pieces of " << size;
}

// A row that goes, with its line break.
Splice Gone(std::uint64_t begin, std::uint64_t end)
{
    return { begin, end, {}, true };
}

// Lines, and what is to become of them.
class LinesModel {
public:
    explicit LinesModel(std::mt19937& random)
    {
        const std::u16string breaks[] = { u"\n", u"\r\n", u"\r" };
        const auto lines = 1 + random() % 6;
        for (std::size_t line = 0; line < lines; ++line) {
            const std::u16string old(1 + random() % 4, u'a');
            const bool isLast = line + 1 == lines;
            const std::u16string lineBreak = isLast && random() % 2 ? u"" : breaks[random() % 3];
            Add(old, lineBreak, random() % 4);
        }
        if (dropsLastBreak_)
            TakeBreakFromTheEnd();
    }

    std::u16string text;
    std::vector<Splice> splices;
    std::u16string wanted;

private:
    void Add(const std::u16string& old, const std::u16string& lineBreak, unsigned long step)
    {
        const std::uint64_t begin = text.size();
        text += old + lineBreak;
        if (step == 0) {
            splices.push_back(Gone(begin, begin + old.size()));
            dropsLastBreak_ = lineBreak.empty();
        } else if (step == 1) {
            splices.push_back({ begin, begin + old.size(), u"new" });
            wanted += splices.back().text + lineBreak;
        } else if (step == 2) {
            splices.push_back({ begin + old.size(), begin + old.size(), u"\r\nadded" });
            wanted += old + u"\r\nadded" + lineBreak;
        } else {
            wanted += old + lineBreak;
        }
    }

    void TakeBreakFromTheEnd()
    {
        if (wanted.ends_with(u"\r\n"))
            wanted.pop_back();
        if (!wanted.empty())
            wanted.pop_back();
    }

    bool dropsLastBreak_ = false;
};

} // namespace

TEST(CsvSplicer, PutsTextsInPlaceOfOthers)
{
    ExpectSpliced(u"one,two\n", { { 0, 3, u"1" }, { 4, 7, u"twenty" } }, u"1,twenty\n");
    ExpectSpliced(u"one", { { 0, 0, u"a" }, { 0, 0, u"b" }, { 3, 3, u"c" } }, u"abonec");
    ExpectSpliced(u"one\n", { { 4, 4, u"two" } }, u"one\ntwo");
}

TEST(CsvSplicer, TakesTheLineBreakWithARow)
{
    ExpectSpliced(u"a\r\nbb\r\nc\r\n", { Gone(3, 5) }, u"a\r\nc\r\n");
    ExpectSpliced(u"a\nbb\nc\n", { Gone(2, 4) }, u"a\nc\n");
    ExpectSpliced(u"a\rbb\rc\r", { Gone(2, 4) }, u"a\rc\r");
    ExpectSpliced(u"a\r\nbb\r\n\nc", { Gone(3, 5) }, u"a\r\n\nc"); // and no other
    ExpectSpliced(u"a\r\nb\r\nc\r\n", { Gone(0, 1), Gone(3, 4), Gone(6, 7) }, u"");
    ExpectSpliced(u"a\r\nlonger\r\nc", { Gone(3, 9) }, u"a\r\nc");
}

TEST(CsvSplicer, TakesTheLineBreakBeforeTheLastRowWhereItHasNone)
{
    ExpectSpliced(u"a\r\nb", { Gone(3, 4) }, u"a");
    ExpectSpliced(u"a\r\nb\r\nc", { Gone(3, 4), Gone(6, 7) }, u"a");
    ExpectSpliced(u"a\nb\rc", { Gone(4, 5) }, u"a\nb");
    ExpectSpliced(u"a\r\rb", { Gone(3, 4) }, u"a\r"); // and no blank line
    ExpectSpliced(u"a", { Gone(0, 1) }, u"");
}

TEST(CsvSplicer, AgreesWithAPlainModelInPiecesOfAnySize)
{
    std::mt19937 random(17);
    for (int round = 0; round < 5000; ++round) {
        const LinesModel model(random);
        for (std::size_t size = 1; size <= 4; ++size)
            ASSERT_EQ(Spliced(model.text, model.splices, size), model.wanted)
                << testing::PrintToString(model.text) << " in pieces of " << size;
        ASSERT_EQ(Spliced(model.text, model.splices, model.text.size()), model.wanted);
    }
}
