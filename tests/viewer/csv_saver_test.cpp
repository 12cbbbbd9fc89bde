#include "csv_saver.h"

#include "open_text_file.h"
#include "saved_document.h"
#include "scratch_folder.h"
#include "text_file_model.h"

#include <gmock/gmock.h>

using namespace vornix::viewer;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// What is left of the bytes after these changes.
std::string Saved(std::string_view bytes, const std::vector<Change>& changes)
{
    const ScratchFolder folder;
    OpenFile file(folder.Write("file.csv", bytes));
    for (const Change& change : changes)
        file.edits.Set(change.row, change.column, change.text);
    file.Save();
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path("")), {}), 1) << "nothing else is left";
    return Content(file.path);
}

} // namespace

TEST(CsvSaver, WritesWhatWasChangedAndNothingElse)
{
    EXPECT_EQ(Saved("id,name\n1,Anna\n2,Bob\n3,Cleo\n", { { 1, 1, u"Bert" }, { 2, 0, u"33" } }),
        "id,name\n1,Anna\n2,Bert\n33,Cleo\n");
    EXPECT_EQ(Saved("1;2\n3;4\n", { { 0, 0, u"10" }, { 1, 1, u"40" } }), "10;2\n3;40\n") << "without a header";
    EXPECT_EQ(Saved("a\tb\n1\tx\n", { { 0, 1, u"y,z;w" } }), "a\tb\n1\ty,z;w\n");
    EXPECT_EQ(Saved("name\nAnna\nBob 1\n", { { 0, 0, u"Anna and so on" } }), "name\nAnna and so on\nBob 1\n")
        << "one column";
}

TEST(CsvSaver, KeepsLineEndsAndTheirLack)
{
    EXPECT_EQ(Saved("id,n\r\n1,a\r\n2,b\r\n", { { 0, 1, u"x" } }), "id,n\r\n1,x\r\n2,b\r\n");
    EXPECT_EQ(Saved("id,n\r1,a\r2,b\r", { { 1, 1, u"x" } }), "id,n\r1,a\r2,x\r");
    EXPECT_EQ(Saved("id,n\r\n1,a\n2,b\r3,c", { { 2, 1, u"x" } }), "id,n\r\n1,a\n2,b\r3,x")
        << "mixed, and none at the end";
    EXPECT_EQ(Saved("id,n\n1,", { { 0, 1, u"x" } }), "id,n\n1,x") << "an empty field at the very end";
    EXPECT_EQ(Saved("\n\nid,n\n\n  \n1,a\n\n", { { 0, 1, u"x" } }), "\n\nid,n\n\n  \n1,x\n\n") << "blank lines";
}

TEST(CsvSaver, KeepsHowFieldsAreQuoted)
{
    EXPECT_EQ(Saved("\"id\",\"n\"\n\"1\",\"a\"\n\"2\",b\n", { { 0, 1, u"x" }, { 1, 0, u"3" }, { 1, 1, u"y" } }),
        "\"id\",\"n\"\n\"1\",\"x\"\n\"3\",y\n");
    EXPECT_EQ(Saved("id,n\n1,\"a \"\"b\"\"\"\n2,\"x\"y\n", { { 0, 0, u"5" } }), "id,n\n5,\"a \"\"b\"\"\"\n2,\"x\"y\n");
    EXPECT_EQ(Saved("id,n\n1,\"a\"b c\n2,d\n", { { 0, 1, u"e" } }), "id,n\n1,\"e\"\n2,d\n")
        << "text behind the closing quote goes with the field";
}

TEST(CsvSaver, QuotesWhatHasToBe)
{
    EXPECT_EQ(Saved("id,n\n1,a\n", { { 0, 1, u"x,y" } }), "id,n\n1,\"x,y\"\n");
    EXPECT_EQ(Saved("id,n\n1,a\n", { { 0, 1, u"say \"x\"" } }), "id,n\n1,\"say \"\"x\"\"\"\n");
    EXPECT_EQ(Saved("id,n\n1,a\n", { { 0, 1, u"two\r\nlines" } }), "id,n\n1,\"two\r\nlines\"\n");
    EXPECT_EQ(Saved("id;n\n1;a\n", { { 0, 1, u"x,y" } }), "id;n\n1;x,y\n") << "another separator is none";
    EXPECT_EQ(Saved("id,n\n1,a\n", { { 0, 1, u" x " } }), "id,n\n1, x \n");
    EXPECT_EQ(Saved("1,2\n3,4\n", { { 0, 0, u"\uFEFF5" } }), "\"\xEF\xBB\xBF\x35\",2\n3,4\n")
        << "a byte order mark that is none";
}

TEST(CsvSaver, QuotesEverySeparatorInAFileOfOneColumn)
{
    for (const char16_t separator : { u',', u';', u'|', u'\t' }) {
        const std::string written(1, static_cast<char>(separator));
        const ScratchFolder folder;
        OpenFile file(folder.Write("file.csv", "name\nAnna\n"));
        ASSERT_EQ(file.layout.separator, u'\0');
        file.edits.Set(0, 0, u"a" + std::u16string(1, separator) + u"b");
        EXPECT_EQ(file.MessageOfSave(), "saved");
        EXPECT_EQ(Content(file.path), "name\n\"a" + written + "b\"\n");
        const OpenFile again(file.path);
        EXPECT_EQ(again.table.ColumnCount(), 1);
        EXPECT_EQ(again.table.Text(0, 0), file.edits.Text(0, 0));
    }
}

TEST(CsvSaver, QuotesWhatWouldBeTakenForTheFilesSeparator)
{
    EXPECT_EQ(Saved("1,2\n3,4\n", { { 0, 0, u"1;5" }, { 1, 0, u"3;6" } }), "\"1;5\",2\n\"3;6\",4\n");
    EXPECT_EQ(Saved("1,2\n3,4\n", { { 0, 0, u"1;5" } }), "1;5,2\n3,4\n") << "where there is no doubt it stays plain";
}

TEST(CsvSaver, RefusesAFileThatWouldBeReadWithAnotherSeparator)
{
    // Without the second semicolon of its last line the file has one in each, as it has commas.
    const std::string content = "a;b,c\nd;e,f;g\n";
    const ScratchFolder folder;
    OpenFile file(folder.Write("file.csv", content));
    ASSERT_EQ(file.layout.separator, u',');
    file.edits.Set(0, 1, u"f");
    EXPECT_EQ(file.MessageOfSave(), "the changed file would be taken for one with another separator");
    EXPECT_EQ(Content(file.path), content);
    EXPECT_THAT(folder.Files(), ElementsAre("file.csv"));
}

TEST(CsvSaver, KnowsHowTheFileBreaksLines)
{
    const ScratchFolder folder;
    const auto lineBreakOf = [&](const char* content) {
        return std::u16string(OpenFile(folder.Write("file.csv", content)).saver.LineBreak());
    };
    EXPECT_EQ(lineBreakOf("id,n\n1,\"a\r\nb\"\n"), u"\n");
    EXPECT_EQ(lineBreakOf("\"id\nof\",n\r\n1,a\r\n"), u"\r\n");
    EXPECT_EQ(lineBreakOf("sep=;\nid;n\r1;a\r"), u"\r");
    EXPECT_EQ(lineBreakOf("1,2"), u"");
}

TEST(CsvSaver, ReplacesFieldsWithLineBreaks)
{
    const std::string file = "id,n,m\n1,\"a\nb\r\nc\",x\n2,d,\"e\n\"\n";
    EXPECT_EQ(Saved(file, { { 0, 1, u"a\nb" } }), "id,n,m\n1,\"a\nb\",x\n2,d,\"e\n\"\n");
    EXPECT_EQ(Saved(file, { { 1, 2, u"e" } }), "id,n,m\n1,\"a\nb\r\nc\",x\n2,d,\"e\"\n");
    EXPECT_EQ(Saved(file, { { 1, 1, u"D" } }), "id,n,m\n1,\"a\nb\r\nc\",x\n2,D,\"e\n\"\n");
}

TEST(CsvSaver, WritesEmptyTextsAsTheFieldWas)
{
    EXPECT_EQ(Saved("id,n\n1,a\n2,\"b\"\n", { { 0, 1, u"" }, { 1, 1, u"" } }), "id,n\n1,\n2,\"\"\n");
    EXPECT_EQ(Saved("id,n,m\n1,,\n", { { 0, 1, u"x" } }), "id,n,m\n1,x,\n");
    EXPECT_EQ(Saved("name\nAnna\nBob 1\n", { { 0, 0, u"" } }), "name\n\"\"\nBob 1\n") << "no line may get lost";
    EXPECT_EQ(Saved("name\nAnna\nBob 1\n", { { 0, 0, u"  " } }), "name\n\"  \"\nBob 1\n");
}

TEST(CsvSaver, KeepsEncodingAndByteOrderMark)
{
    EXPECT_EQ(Saved("\xEF\xBB\xBFid,n\n1,\xC3\xA4\n", { { 0, 1, u"Ọlá 😀" } }),
        "\xEF\xBB\xBFid,n\n1,\xE1\xBB\x8Cl\xC3\xA1 \xF0\x9F\x98\x80\n");
    for (const bool isBig : { false, true }) {
        for (const bool hasMark : { false, true }) {
            const std::string mark = hasMark ? (isBig ? "\xFE\xFF" : "\xFF\xFE") : "";
            EXPECT_EQ(Saved(mark + Utf16Bytes(u"id,n\r\n1,ä\r\n2,😀\r\n", isBig), { { 0, 1, u"ö😀" } }),
                mark + Utf16Bytes(u"id,n\r\n1,ö😀\r\n2,😀\r\n", isBig));
        }
    }
}

TEST(CsvSaver, KeepsTheLineThatNamesTheSeparator)
{
    EXPECT_EQ(Saved("sep=|\r\nid|n\r\n1|a,b\r\n", { { 0, 1, u"c|d" } }), "sep=|\r\nid|n\r\n1|\"c|d\"\r\n");
    EXPECT_EQ(Saved("\xEF\xBB\xBFsep=;\nid;n\n1;a\n2;b\n", { { 1, 1, u"c" } }), "\xEF\xBB\xBFsep=;\nid;n\n1;a\n2;c\n");
}

TEST(CsvSaver, WritesTruthValuesAsTheColumnDoes)
{
    EXPECT_EQ(Saved("id,paid\n1,yes\n2,no\n", { { 0, 1, u"0" }, { 1, 1, u"-1" } }), "id,paid\n1,no\n2,yes\n");
    EXPECT_EQ(Saved("id,paid\n1,True\n2,True\n", { { 1, 1, u"0" } }), "id,paid\n1,True\n2,False\n");
    EXPECT_EQ(Saved("id,paid\n1,Yes\n2,YES\n3,no\n", { { 0, 1, u"0" } }), "id,paid\n1,no\n2,YES\n3,no\n");
}

TEST(CsvSaver, WritesWhatIsTypedWhereATruthValueIsMissing)
{
    EXPECT_EQ(Saved("id,paid\n1,yes\n2,\n3,no\n4,\n", { { 1, 1, u"0" }, { 3, 1, u"-1" } }),
        "id,paid\n1,yes\n2,0\n3,no\n4,-1\n");
}

TEST(CsvSaver, ReplacesFieldsWhereverPiecesOfTheFileMeet)
{
    // A piece is 262144 bytes; the long fields begin, end or stretch across its end.
    for (const int shift : { -4, -3, -2, -1, 0, 1, 2, 3 }) {
        const std::string filler(static_cast<std::size_t>((1 << 18) - 16 + shift), 'x');
        const std::string head = "id,name\n1," + filler + "\n";
        const std::string longText(600'000, 'y');
        EXPECT_EQ(Saved(head + "2,ab\n3," + longText + "\n4,\"c\"\n",
                      { { 1, 0, u"22" }, { 1, 1, u"AB" }, { 2, 1, u"short" }, { 3, 1, u"d" } }),
            head + "22,AB\n3,short\n4,\"d\"\n")
            << shift;
    }
}

TEST(CsvSaver, AgreesWithAPlainModel)
{
    std::mt19937 random(20);
    const ScratchFolder folder;
    int saves = 0;
    for (int round = 0; round < 300; ++round) {
        FileModel model(random);
        OpenFile file(folder.Write("file.csv", model.Bytes()));
        if (file.layout.hasHeader)
            continue; // the model has none, but may look as if
        for (int batch = 0; batch < 2; ++batch) {
            file.edits.Clear();
            for (int changes = 0; changes < 4; ++changes) {
                const Change change = model.ChangeOne();
                file.edits.Set(change.row, change.column, change.text);
            }
            ASSERT_EQ(file.MessageOfSave(), "saved") << round;
            ASSERT_EQ(Content(file.path), model.Bytes()) << round;
            for (const auto& [row, cells] : file.edits.Rows()) {
                for (const auto& [column, text] : cells)
                    file.table.ReplaceText(row, column, text);
            }
            model.NoteSaved();
            ++saves;
        }
    }
    EXPECT_GT(saves, 300);
}

TEST(CsvSaver, TellsWhereTheFirstRowWillBeTakenForSomethingElse)
{
    const ScratchFolder folder;
    const auto save = [](Document& document) {
        document.Save();
        return document.NoticeOfSave();
    };
    const std::string path = folder.Write("plain.csv", "1,2\n3,4\n");
    Document plain = Opened(path);
    const int row = plain.AddRow(0, Records::Side::Before);
    plain.Change(row, 0, u"x");
    plain.Change(row, 1, u"y");
    EXPECT_EQ(save(plain), "when it is opened again, the first row will be taken for column names");
    EXPECT_EQ(Opened(path).RowCount(), 2) << "and so it is";
    EXPECT_EQ(save(plain), "") << "nothing was saved";
    plain.Change(row, 1, u"5");
    EXPECT_EQ(save(plain), "");
    EXPECT_EQ(Opened(path).RowCount(), 3);

    const std::string named = folder.Write("named.csv", "id,id\n1,a\n");
    Document document = Opened(named);
    ASSERT_EQ(document.RowCount(), 1);
    document.Change(0, 0, u"x");
    EXPECT_EQ(save(document), "when it is opened again, the column names will be taken for a row");
    EXPECT_EQ(Opened(named).RowCount(), 2) << "and so they are";
}

TEST(CsvSaver, SavesRowsBesideThoseThatWereLeftOut)
{
    std::string many = "id,x\n";
    for (int row = 0; row < 40000; ++row)
        many += std::to_string(row) + ",z\n";
    std::string wanted = many;
    wanted.replace(wanted.find("32764,z"), 7, "last,y!");
    EXPECT_EQ(Saved(many, { { 32764, 0, u"last" }, { 32764, 1, u"y!" } }), wanted);
}

TEST(CsvSaver, SavesAgainAndAgain)
{
    const ScratchFolder folder;
    OpenFile file(folder.Write("file.csv", "id,n\n1,a\n2,b\n"));
    for (const char16_t* text : { u"long enough to move things", u"x", u"\"", u"" }) {
        file.edits.Set(0, 1, text);
        EXPECT_EQ(file.MessageOfSave(), "saved");
    }
    EXPECT_EQ(Content(file.path), "id,n\n1,\"\"\n2,b\n");
}

TEST(CsvSaver, TellsOfTextsThatNoEncodingHas)
{
    const ScratchFolder folder;
    OpenFile file(folder.Write("file.csv", "id,n\n1,a\n"));
    file.edits.Set(0, 1, u"x\xD800y");
    EXPECT_THAT(file.Save(), ElementsAre(CellText { 0, 1, u"x\uFFFDy" }));
    EXPECT_EQ(Content(file.path), "id,n\n1,x\xEF\xBF\xBDy\n");
    file.edits.Set(0, 1, u"fine");
    EXPECT_THAT(file.Save(), IsEmpty());
}

TEST(CsvSaver, RefusesTextsThatCouldNotBeRead)
{
    const ScratchFolder folder;
    OpenFile file(folder.Write("file.csv", "id,n\n1,a\n"));
    file.edits.Set(0, 1, std::u16string(u"a\0b", 3));
    EXPECT_EQ(file.MessageOfSave(), "line 2: there is a NUL byte, so this is not a text file");
    file.edits.Set(0, 1, std::u16string((1 << 20) + 1, u'x'));
    EXPECT_EQ(file.MessageOfSave(), "line 2: a field is longer than 1048576 characters, the most a cell takes");
    EXPECT_EQ(Content(file.path), "id,n\n1,a\n");
    EXPECT_THAT(folder.Files(), ElementsAre("file.csv"));
}

TEST(CsvSaver, RefusesAFileThatIsNotTheOneThatWasRead)
{
    const std::string meanwhile = "another program has changed the file since it was read";
    const ScratchFolder folder;
    OpenFile file(folder.Write("file.csv", "id,n\n1,a\n2,b\n"));
    file.edits.Set(0, 1, u"x");
    for (const std::string content :
        { "id,n\n1,a\n2,c\n", "id,n\n1,a\n2,b\n3,c\n", "id,n\n1\n", "id,n\n1,a\xFF\n", "x" }) {
        folder.Write("file.csv", content);
        EXPECT_EQ(file.MessageOfSave(), meanwhile);
        EXPECT_EQ(Content(file.path), content);
    }
    std::filesystem::remove(file.path);
    EXPECT_EQ(file.MessageOfSave(), "there is no such file");
    EXPECT_THAT(folder.Files(), IsEmpty());
    folder.Write("file.csv", "id,n\n1,a\n2,b\n");
    EXPECT_EQ(file.MessageOfSave(), "saved") << "it is the one that was read again";
}
