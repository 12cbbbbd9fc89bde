// Rows that are added to a text file and removed from it.
#include "csv_reader.h"
#include "csv_saver.h"
#include "input_file.h"
#include "saved_document.h"
#include "scratch_folder.h"
#include "text_file_model.h"

#include <gmock/gmock.h>

using namespace vornix::viewer;

namespace {

Table ReadTable(const std::string& path, CsvLayout& layout)
{
    InputFile file(path);
    return ReadCsv(file, LoadLimits(), {}, &layout);
}

// What is left of the bytes after this was done and saved, or why it was not.
std::string WithRows(std::string_view bytes, const std::function<void(Document&)>& step)
{
    const ScratchFolder folder;
    const std::string path = folder.Write("file.csv", bytes);
    Document document = Opened(path);
    step(document);
    try {
        document.Save();
    } catch (const SaveError& error) {
        EXPECT_EQ(Content(path), bytes);
        return error.what();
    }
    return Content(path);
}

} // namespace

TEST(CsvRows, AgreesWithAPlainModelAboutRows)
{
    std::mt19937 random(21);
    const ScratchFolder folder;
    int saves = 0;
    for (int round = 0; round < 400; ++round) {
        FileModel model(random);
        const std::string path = folder.Write("file.csv", model.Bytes());
        CsvLayout layout;
        auto table = std::make_unique<Table>(ReadTable(path, layout));
        if (layout.hasHeader)
            continue;
        const std::u16string lineBreak = layout.lineBreak.empty() ? u"\n" : layout.lineBreak;
        auto saver = std::make_unique<CsvSaver>(path, *table, layout, LoadLimits());
        Document document({ std::move(table), std::move(saver) });
        // One thing at a time, so that what it should come to is plain.
        for (int step = 0; step < 6; ++step) {
            if (model.Pick(2) == 0 && model.Rows() > 1) {
                const int row = model.Pick(model.Rows());
                document.RemoveRow(document.Rows()[static_cast<std::size_t>(row)]);
                model.Remove(row);
            } else {
                const int row = model.Pick(model.Rows() + 1);
                const std::vector<int> rows = document.Rows();
                const int added = row == 0
                    ? document.AddRow(-1, Records::Side::Behind)
                    : document.AddRow(rows[static_cast<std::size_t>(row - 1)], Records::Side::Behind);
                std::vector<std::u16string> texts;
                for (int column = 0; column < model.Columns(); ++column) {
                    texts.push_back(column == 0 ? u"7" : model.WildText());
                    document.Change(added, column, texts.back());
                    texts.back() = document.Text(added, column); // with the line breaks of the file
                }
                model.Add(row, texts, lineBreak);
            }
            ASSERT_NO_THROW(document.Save()) << round;
            ASSERT_EQ(Content(path), model.Bytes()) << round << " " << step;
            model.NoteSaved();
            ++saves;
        }
    }
    EXPECT_GT(saves, 1000);
}

TEST(CsvRows, PutsNewRowsInTheirPlace)
{
    EXPECT_EQ(WithRows("id,n\n1,a\n2,b\n",
                  [](Document& document) {
                      const int first = document.AddRow(0, Records::Side::Before);
                      document.Change(first, 0, u"0");
                      const int last = document.AddRow(1, Records::Side::Behind);
                      document.Change(last, 1, u"x,y");
                      document.AddRow(last, Records::Side::Behind);
                  }),
        "id,n\n0,\n1,a\n2,b\n,\"x,y\"\n,\n");
    EXPECT_EQ(WithRows("1;2\r\n3;4",
                  [](Document& document) {
                      document.Change(document.AddRow(0, Records::Side::Before), 1, u"top");
                      document.Change(document.AddRow(1, Records::Side::Behind), 0, u"end");
                  }),
        ";top\r\n1;2\r\n3;4\r\nend;")
        << "without a header, and without a line break at the end";
    EXPECT_EQ(WithRows("name\nAnna 1\nBob 2\n", [](Document& document) { document.AddRow(0, Records::Side::Behind); }),
        "name\nAnna 1\n\"\"\nBob 2\n")
        << "a lone empty field is no blank line";
    EXPECT_EQ(WithRows("\"id\",\"n\"\n\"1\",2\n",
                  [](Document& document) { document.Change(document.AddRow(0, Records::Side::Behind), 1, u"5"); }),
        "\"id\",\"n\"\n\"1\",2\n\"\",5\n")
        << "quoted like the row before";
    EXPECT_EQ(WithRows("sep=;\n1;2\n",
                  [](Document& document) { document.Change(document.AddRow(-1, Records::Side::Behind), 0, u"0"); }),
        "sep=;\n0;\n1;2\n");
}

TEST(CsvRows, RemovesRowsWithTheirLineBreaks)
{
    const auto remove = [](std::vector<int> rows) {
        return [rows](Document& document) {
            for (const int row : rows)
                document.RemoveRow(row);
        };
    };
    EXPECT_EQ(WithRows("id,n\n1,a\n2,b\n3,c\n", remove({ 1 })), "id,n\n1,a\n3,c\n");
    EXPECT_EQ(WithRows("id,n\r\n1,a\r\n2,b\r\n3,c", remove({ 1, 2 })), "id,n\r\n1,a") << "no line break at the end";
    EXPECT_EQ(WithRows("id,n\n1,\"a\nb\"\n2,b\n", remove({ 0 })), "id,n\n2,b\n");
    EXPECT_EQ(WithRows("id,n\n\n1,a\n\n  \n2,b\n\n", remove({ 1 })), "id,n\n\n1,a\n\n  \n\n") << "blank lines stay";
    EXPECT_EQ(WithRows("id,n\n1,a\n2,b\n", remove({ 0, 1 })), "id,n\n") << "the column names stay";
    EXPECT_EQ(
        WithRows("1,2\n3,4\n", remove({ 0, 1 })), "a file without column names needs a row, or nothing is left of it");
}

TEST(CsvRows, ReplacesAllRows)
{
    EXPECT_EQ(WithRows("1,2\n3,4",
                  [](Document& document) {
                      const int row = document.AddRow(0, Records::Side::Behind);
                      document.Change(row, 0, u"5");
                      document.Change(row, 1, u"6");
                      document.RemoveRow(0);
                      document.RemoveRow(1);
                  }),
        "5,6");
    EXPECT_EQ(WithRows("id,n\n1,a\n2,b\n",
                  [](Document& document) {
                      const int row = document.AddRow(1, Records::Side::Behind);
                      document.Change(row, 0, u"9");
                      document.Change(0, 1, u"gone");
                      document.RemoveRow(0);
                      document.RemoveRow(1);
                  }),
        "id,n\n9,\n");
}

TEST(CsvRows, FindsRowsAgainThatHaveMoved)
{
    const ScratchFolder folder;
    const std::string path = folder.Write("file.csv", "id,n\n1,a\n2,b\n3,c\n");
    Document document = Opened(path);
    const int row = document.AddRow(0, Records::Side::Before);
    document.Change(row, 0, u"0");
    document.RemoveRow(1);
    document.Save();
    EXPECT_EQ(Content(path), "id,n\n0,\n1,a\n3,c\n");
    document.Change(2, 1, u"C");
    document.Change(row, 1, u"z");
    document.Save();
    EXPECT_EQ(Content(path), "id,n\n0,z\n1,a\n3,C\n");
    document.RemoveRow(row);
    document.RemoveRow(2);
    document.Save();
    EXPECT_EQ(Content(path), "id,n\n1,a\n");
}

TEST(CsvRows, RemovesRowsThatGoOverThePieces)
{
    // Around the end of the first piece of the file, one character further each time.
    constexpr std::size_t pieceSize = 1 << 18;
    for (int shift = 0; shift < 32; ++shift) {
        const std::string head
            = "id,n\r\n0," + std::string(pieceSize - 20 - static_cast<std::size_t>(shift), 'x') + "\r\n";
        EXPECT_EQ(WithRows(head + "1,\"a\"\r\n2,bb\r\n3,c\r\n4,d",
                      [](Document& document) {
                          document.RemoveRow(2);
                          document.RemoveRow(3);
                          document.Change(document.AddRow(1, Records::Side::Behind), 0, u"new");
                      }),
            head + "1,\"a\"\r\nnew,\"\"\r\n4,d")
            << shift;
        EXPECT_EQ(WithRows(head + "1,a\r\n2,b\r\n",
                      [](Document& document) {
                          document.RemoveRow(1);
                          document.RemoveRow(2);
                      }),
            head)
            << shift;
    }
}
