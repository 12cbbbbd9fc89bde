#include "csv_parser.h"

#include "unicode.h"

#include <gmock/gmock.h>

using namespace vornix::viewer;

namespace {

using Row = std::vector<std::string>;

// Fields in UTF-8, a null as <null>; the text goes in by pieces of this size.
std::vector<Row> Parse(std::u16string_view text, std::size_t pieceSize = 1000, char16_t separator = u',',
    const LoadLimits& limits = {}, std::vector<std::uint64_t>* lines = nullptr)
{
    std::vector<Row> rows;
    CsvParser parser(separator, limits, [&](const CsvParser::Record& record) {
        Row row;
        for (const Field& field : record.fields)
            row.push_back(field.isNull ? "<null>" : ToUtf8(field.text));
        rows.push_back(row);
        if (lines)
            lines->push_back(record.line);
    });
    for (; !text.empty(); text.remove_prefix(std::min(pieceSize, text.size())))
        parser.Feed(text.substr(0, pieceSize));
    parser.Finish();
    return rows;
}

std::string MessageOf(std::u16string_view text, const LoadLimits& limits = {})
{
    try {
        Parse(text, 1000, u',', limits);
    } catch (const LoadError& error) {
        return error.what();
    }
    return "no error";
}

} // namespace

TEST(CsvParser, EndsRecordsAtEveryKindOfLineBreak)
{
    const std::vector<Row> expected { { "a", "b" }, { "c", "d" }, { "e", "f" } };
    EXPECT_EQ(Parse(u"a,b\nc,d\ne,f"), expected);
    EXPECT_EQ(Parse(u"a,b\r\nc,d\r\ne,f\r\n"), expected);
    EXPECT_EQ(Parse(u"a,b\rc,d\re,f\r"), expected);
    EXPECT_EQ(Parse(u"a,b\rc,d\r\ne,f\n"), expected);
}

TEST(CsvParser, KeepsSeparatorsQuotesAndLineBreaksInsideQuotes)
{
    EXPECT_EQ(Parse(u"\"a,b\",\"say \"\"hi\"\"\",\"one\r\ntwo\nthree\"\n"),
        (std::vector<Row> { { "a,b", "say \"hi\"", "one\r\ntwo\nthree" } }));
    EXPECT_EQ(Parse(u"\"\"\"\",\"\""), (std::vector<Row> { { "\"", "" } }));
}

TEST(CsvParser, TellsAnEmptyFieldFromAnEmptyText)
{
    EXPECT_EQ(Parse(u",\"\",\nx,,"), (std::vector<Row> { { "<null>", "", "<null>" }, { "x", "<null>", "<null>" } }));
    EXPECT_EQ(Parse(u"\"\""), (std::vector<Row> { { "" } }));
}

TEST(CsvParser, TakesAQuoteInsideAFieldAsItStands)
{
    EXPECT_EQ(Parse(u"5\" pipe,it's \"so\",\"closed\" early"),
        (std::vector<Row> { { "5\" pipe", "it's \"so\"", "closed early" } }));
}

TEST(CsvParser, PassesOverBlankLines)
{
    EXPECT_EQ(Parse(u"\n\r\n  \na,b\n\n\nc,d\n\n"), (std::vector<Row> { { "a", "b" }, { "c", "d" } }));
    EXPECT_EQ(Parse(u"\n\n"), std::vector<Row> {});
}

TEST(CsvParser, GivesTheSameForPiecesOfEverySize)
{
    const std::u16string text = u"id,\"note\"\r\n1,\"a \"\"b\"\"\r\nc\"\r\n\r\n2,\"\"\r3,plain\n";
    const auto whole = Parse(text);
    ASSERT_EQ(whole.size(), 4u);
    for (std::size_t size = 1; size < text.size(); ++size)
        EXPECT_EQ(Parse(text, size), whole) << size;
}

TEST(CsvParser, CountsLinesAlsoInsideQuotes)
{
    std::vector<std::uint64_t> lines;
    Parse(u"a\n\"b\r\nb\nb\"\n\nc\rd", 1, u',', {}, &lines);
    EXPECT_THAT(lines, testing::ElementsAre(1u, 2u, 6u, 7u));
}

TEST(CsvParser, TakesEveryLineAsOneFieldWithoutASeparator)
{
    EXPECT_EQ(Parse(u"a,b;c\td\n\"e\"", 1000, 0), (std::vector<Row> { { "a,b;c\td" }, { "e" } }));
}

TEST(CsvParser, NamesTheLineOfANulCharacter)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(MessageOf(u"a,b\nc,\0d"sv), "line 2: there is a NUL byte, so this is not a text file");
    EXPECT_EQ(MessageOf(u"a,\"\n\nb\0\""sv), "line 3: there is a NUL byte, so this is not a text file");
}

TEST(CsvParser, NamesTheLineWhereAnEndlessQuoteBegins)
{
    EXPECT_EQ(MessageOf(u"a,b\nc,\"d\ne,f\n"), "line 2: the quoted field that begins here does not end");
}

TEST(CsvParser, RefusesAFieldThatIsTooLong)
{
    LoadLimits limits;
    limits.maxFieldLength = 10;
    EXPECT_EQ(MessageOf(u"0123456789,0123456789\n", limits), "no error");
    EXPECT_EQ(MessageOf(u"a\nb,01234567890\n", limits),
        "line 2: a field is longer than 10 characters, the most a cell takes");
    EXPECT_EQ(MessageOf(u"a\n\n\"0123\n56789\n\"", limits),
        "line 3: a field is longer than 10 characters, the most a cell takes");
}

TEST(CsvParser, CountsTheColumnsOfARowThatIsTooWide)
{
    LoadLimits limits;
    limits.maxColumns = 4;
    EXPECT_EQ(MessageOf(u"1,2,3,4\n", limits), "no error");
    EXPECT_EQ(MessageOf(u"1,2,3,4\n1,2,3,4,\"5\",6\n", limits),
        "line 2: 6 columns are more than the grid can hold (at most 4)");
}

TEST(CsvParser, TellsWhereFieldsStandInAllOfTheText)
{
    const std::u16string text = u"a,\"b\"\"c\"d,\r\n\n\"\",e\r  f,g\n,";
    for (std::size_t piece = 1; piece <= text.size(); ++piece) {
        std::vector<std::u16string> fields;
        std::vector<bool> quoted;
        CsvParser parser(u',', LoadLimits(), [&](const CsvParser::Record& record) {
            ASSERT_EQ(record.places.size(), record.fields.size());
            for (const CsvParser::Place& place : record.places) {
                fields.push_back(text.substr(place.begin, place.end - place.begin));
                quoted.push_back(place.isQuoted);
            }
        });
        for (std::size_t start = 0; start < text.size(); start += piece)
            parser.Feed(std::u16string_view(text).substr(start, piece));
        parser.Finish();
        EXPECT_EQ(
            fields, (std::vector<std::u16string> { u"a", u"\"b\"\"c\"d", u"", u"\"\"", u"e", u"  f", u"g", u"", u"" }));
        EXPECT_EQ(quoted, (std::vector<bool> { false, true, false, true, false, false, false, false, false }));
    }
}
