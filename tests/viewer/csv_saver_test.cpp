#include "csv_saver.h"

#include "as_ordinary_user.h"
#include "csv_reader.h"
#include "document.h"
#include "file_replacement.h"
#include "input_file.h"
#include "scratch_folder.h"
#include "text_encoder.h"

#include <gmock/gmock.h>

#include <csignal>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>

using namespace vornix::viewer;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// A file, what was read of it, and changes to it.
class OpenFile {
public:
    explicit OpenFile(std::string filePath)
        : path(std::move(filePath))
        , table(Read(path, layout))
        , edits(table)
        , saver(path, table, layout, LoadLimits())
    {
    }

    std::vector<CellText> Save() { return saver.Save(edits).others; }
    std::string MessageOfSave()
    {
        try {
            Save();
        } catch (const SaveError& error) {
            return error.what();
        }
        return "saved";
    }

    const std::string path;
    CsvLayout layout;
    Table table;
    Edits edits;
    CsvSaver saver;

private:
    static Table Read(const std::string& path, CsvLayout& layout)
    {
        InputFile file(path);
        return ReadCsv(file, LoadLimits(), {}, &layout);
    }
};

std::string Content(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

struct Change {
    int row;
    int column;
    std::u16string text;
};

// A file made of fields as they stand in it, so that what it should be after a change is plain to see.
class FileModel {
public:
    explicit FileModel(std::mt19937& random)
        : random_(random)
        , separator_(Pick<char16_t>({ u',', u';', u'\t', u'|' }))
        , encoding_(Pick<TextEncoding>({ TextEncoding::Utf8, TextEncoding::Utf16Little, TextEncoding::Utf16Big }))
        , hasMark_(encoding_ != TextEncoding::Utf8 || Chance(2))
        , rows_(static_cast<std::size_t>(Number(2, 12)),
              std::vector<std::u16string>(static_cast<std::size_t>(Number(2, 5))))
    {
        for (std::vector<std::u16string>& row : rows_) {
            for (std::u16string& field : row)
                field = Chance(3) ? Quoted(Text(true)) : Text(false);
            row.front() = u"1"; // no header, and no blank line
            lineEnds_.push_back(Pick<std::u16string>({ u"\n", u"\r\n", u"\r" }));
        }
        if (Chance(3))
            lineEnds_.back().clear();
        NoteSaved();
    }

    std::string Bytes() const
    {
        // Naming the separator leaves nothing to guess.
        std::u16string text = u"sep=" + std::u16string(1, separator_) + u"\n";
        for (std::size_t row = 0; row < rows_.size(); ++row) {
            for (std::size_t column = 0; column < rows_[row].size(); ++column)
                text += (column > 0 ? std::u16string(1, separator_) : u"") + rows_[row][column];
            text += lineEnds_[row];
        }
        std::string bytes;
        AppendEncoded((hasMark_ ? u"\uFEFF" : u"") + text, encoding_, bytes);
        return bytes;
    }

    Change ChangeOne()
    {
        const std::size_t row = static_cast<std::size_t>(Number(0, static_cast<int>(rows_.size()) - 1));
        const std::size_t column = static_cast<std::size_t>(Number(1, static_cast<int>(rows_[row].size()) - 1));
        const std::u16string text = Text(Chance(2));
        std::u16string& field = rows_[row][column];
        const bool mustBeQuoted = text.find_first_of(std::u16string(u"\"\r\n") + separator_) != std::u16string::npos;
        field = savedRows_[row][column].starts_with(u'"') || mustBeQuoted ? Quoted(text) : text;
        return { static_cast<int>(row), static_cast<int>(column), text };
    }

    int Rows() const { return static_cast<int>(rows_.size()); }
    int Columns() const { return static_cast<int>(rows_.front().size()); }

    // With these texts, where no text needs quotes but for what it says.
    void Add(int row, const std::vector<std::u16string>& texts, const std::u16string& lineBreak)
    {
        // The style is that of the row before, of the first one at the top.
        const std::vector<std::u16string>& example = savedRows_[static_cast<std::size_t>(std::max(row - 1, 0))];
        std::vector<std::u16string> fields;
        for (std::size_t column = 0; column < texts.size(); ++column) {
            const std::u16string& text = texts[column];
            const bool mustBeQuoted
                = text.find_first_of(std::u16string(u"\"\r\n") + separator_) != std::u16string::npos;
            fields.push_back(example[column].starts_with(u'"') || mustBeQuoted ? Quoted(text) : text);
        }
        // It stands in front of the line end of the row before.
        const auto place = static_cast<std::ptrdiff_t>(row);
        rows_.insert(rows_.begin() + place, fields);
        lineEnds_.insert(lineEnds_.begin() + std::max<std::ptrdiff_t>(place - 1, 0), lineBreak);
    }
    void Remove(int row)
    {
        const auto place = static_cast<std::ptrdiff_t>(row);
        const bool isUnfinished = lineEnds_[static_cast<std::size_t>(row)].empty();
        rows_.erase(rows_.begin() + place);
        lineEnds_.erase(lineEnds_.begin() + place);
        if (isUnfinished && row > 0)
            lineEnds_[static_cast<std::size_t>(row) - 1].clear();
    }
    std::u16string WildText() { return Text(Chance(2)); }
    int Pick(int count) { return Number(0, count - 1); }

    void NoteSaved() { savedRows_ = rows_; }

private:
    int Number(int least, int most)
    {
        return least + static_cast<int>(random_() % static_cast<unsigned>(most - least + 1));
    }
    bool Chance(int one) { return Number(1, one) == 1; }
    template <typename T> T Pick(std::vector<T> of) { return of[random_() % of.size()]; }

    static std::u16string Quoted(const std::u16string& text)
    {
        std::u16string quoted = u"\"";
        for (const char16_t unit : text)
            quoted += unit == u'"' ? u"\"\"" : std::u16string(1, unit);
        return quoted + u"\"";
    }
    std::u16string Text(bool isWild)
    {
        const std::u16string tame[] = { u"a", u"bc", u" ", u"ä", u"Ọ", u"😀", u"12" };
        const std::u16string wild[] = { u"\"", u"\r\n", u"\n", u"\r", u",", u";", u"\t", u"|", u"\"\"" };
        std::u16string text;
        for (int part = Number(0, 5); part > 0; --part)
            text += isWild && Chance(2) ? wild[random_() % std::size(wild)] : tame[random_() % std::size(tame)];
        return text;
    }

    std::mt19937& random_;
    const char16_t separator_;
    const TextEncoding encoding_;
    const bool hasMark_;
    std::vector<std::vector<std::u16string>> rows_;
    std::vector<std::vector<std::u16string>> savedRows_;
    std::vector<std::u16string> lineEnds_;
};

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

Table ReadTable(const std::string& path, CsvLayout& layout)
{
    InputFile file(path);
    return ReadCsv(file, LoadLimits(), {}, &layout);
}

Document Opened(const std::string& path)
{
    ViewerOptions options;
    options.file = path;
    return Document(OpenForChanging(options, LoadLimits(), {}));
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

std::string AttributeOf(const std::string& path, const char* name)
{
    char value[256];
    const ssize_t length = ::getxattr(path.c_str(), name, value, sizeof value);
    return length < 0 ? std::string() : std::string(value, static_cast<std::size_t>(length));
}

// Everything for the owner, reading for that user, the group and the mask, nothing for others; as the system keeps it.
std::string AccessListFor(std::uint32_t user)
{
    constexpr std::uint32_t nobody = 0xFFFFFFFF;
    std::string list;
    const auto add = [&](std::uint32_t number, int bytes) {
        for (int byte = 0; byte < bytes; ++byte)
            list += static_cast<char>(number >> (8 * byte) & 0xFF);
    };
    add(2, 4);
    const auto addEntry = [&](std::uint32_t tag, std::uint32_t rights, std::uint32_t id) {
        add(tag, 2);
        add(rights, 2);
        add(id, 4);
    };
    addEntry(0x01, 6, nobody);
    addEntry(0x02, 4, user);
    addEntry(0x04, 4, nobody);
    addEntry(0x10, 4, nobody);
    addEntry(0x20, 0, nobody);
    return list;
}

std::vector<std::string> FilesIn(const ScratchFolder& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path("")))
        names.push_back(entry.path().filename().string());
    return names;
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
    EXPECT_THAT(FilesIn(folder), ElementsAre("file.csv"));
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

TEST(CsvSaver, AgreesWithAPlainModelAboutRows)
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

TEST(CsvSaver, PutsNewRowsInTheirPlace)
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

TEST(CsvSaver, RemovesRowsWithTheirLineBreaks)
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

TEST(CsvSaver, ReplacesAllRows)
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

TEST(CsvSaver, FindsRowsAgainThatHaveMoved)
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

TEST(CsvSaver, RemovesRowsThatGoOverThePieces)
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
    EXPECT_THAT(FilesIn(folder), ElementsAre("file.csv"));
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
    EXPECT_THAT(FilesIn(folder), IsEmpty());
    folder.Write("file.csv", "id,n\n1,a\n2,b\n");
    EXPECT_EQ(file.MessageOfSave(), "saved") << "it is the one that was read again";
}

TEST(FileReplacement, LeavesAFileAloneThatWasWrittenToWhileTheNewOneWasMade)
{
    const ScratchFolder folder;
    const std::string path = folder.Write("file.csv", "old");
    const auto replace = [&](const std::function<void()>& meanwhile) -> std::string {
        const FileIdentity identity = InputFile(path).Identity();
        FileReplacement target(path);
        target.Write("new");
        meanwhile();
        try {
            target.Commit(identity);
        } catch (const SaveError& error) {
            return error.what();
        }
        return Content(path);
    };
    EXPECT_EQ(replace([&] { folder.Write("file.csv", "other"); }), ChangedMeanwhile);
    EXPECT_EQ(Content(path), "other");
    EXPECT_EQ(replace([&] { std::filesystem::rename(folder.Write("second.csv", "other"), path); }), ChangedMeanwhile);
    EXPECT_EQ(replace([&] { std::filesystem::remove(path); }), ChangedMeanwhile);
    folder.Write("file.csv", "old");
    EXPECT_EQ(replace([] {}), "new");
    EXPECT_THAT(FilesIn(folder), ElementsAre("file.csv"));
}

TEST(FileReplacement, KeepsExtendedAttributesAndAccessLists)
{
    const ScratchFolder folder;
    const std::string path = folder.Write("file.csv", "id,n\n1,a\n");
    if (::setxattr(path.c_str(), "user.origin", "somewhere", 9, 0) != 0)
        GTEST_SKIP() << "the file system has no extended attributes";
    ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
    const std::string list = AccessListFor(54321);
    if (::setxattr(path.c_str(), "system.posix_acl_access", list.data(), list.size(), 0) != 0)
        GTEST_SKIP() << "the file system has no access lists";
    OpenFile file(path);
    file.edits.Set(0, 1, u"x");
    ASSERT_EQ(file.MessageOfSave(), "saved");
    ASSERT_EQ(Content(path), "id,n\n1,x\n");
    EXPECT_EQ(AttributeOf(path, "user.origin"), "somewhere");
    EXPECT_EQ(AttributeOf(path, "system.posix_acl_access"), list);
}

TEST(FileReplacement, TakesNoAccessListFromTheFolder)
{
    const ScratchFolder folder;
    const std::string path = folder.Write("file.csv", "id,n\n1,a\n");
    ASSERT_EQ(::chmod(path.c_str(), 0660), 0);
    const std::string list = AccessListFor(54321);
    if (::setxattr(folder.Path("").c_str(), "system.posix_acl_default", list.data(), list.size(), 0) != 0)
        GTEST_SKIP() << "the file system has no access lists";
    ASSERT_EQ(AttributeOf(folder.Write("other", "x"), "system.posix_acl_access").size(), list.size());
    OpenFile file(path);
    file.edits.Set(0, 1, u"x");
    ASSERT_EQ(file.MessageOfSave(), "saved");
    EXPECT_EQ(AttributeOf(path, "system.posix_acl_access"), "");
    struct stat status = {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0660u);
}

TEST(CsvSaver, FollowsLinksAndKeepsPermissions)
{
    const ScratchFolder folder;
    std::filesystem::create_directory(folder.Path("deep"));
    const std::string real = folder.Write("deep/real.csv", "id,n\n1,a\n");
    ASSERT_EQ(::chmod(real.c_str(), 0640), 0);
    std::filesystem::create_symlink("deep/real.csv", folder.Path("link.csv"));
    std::filesystem::create_symlink("link.csv", folder.Path("second.csv"));
    OpenFile file(folder.Path("second.csv"));
    file.edits.Set(0, 1, u"x");
    file.Save();
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("second.csv")));
    EXPECT_FALSE(std::filesystem::is_symlink(real));
    EXPECT_EQ(Content(real), "id,n\n1,x\n");
    struct stat status = {};
    ASSERT_EQ(::stat(real.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST(CsvSaver, LeavesFilesAloneThatMayNotBeWritten)
{
    const ScratchFolder folder;
    const std::string path = folder.Write("file.csv", "id,n\n1,a\n");
    std::filesystem::permissions(folder.Path(""), std::filesystem::perms(0777));
    std::filesystem::permissions(path, std::filesystem::perms(0444));
    EXPECT_EQ(AsOrdinaryUser([&] {
        OpenFile file(path);
        file.edits.Set(0, 1, u"x");
        return file.saver.WhyReadOnly().value_or("writable") + "; " + file.MessageOfSave();
    }),
        "no permission to write the file; no permission to write the file");

    std::filesystem::permissions(path, std::filesystem::perms(0666));
    EXPECT_EQ(AsOrdinaryUser([&] {
        OpenFile file(path);
        file.edits.Set(0, 1, u"x");
        return file.saver.WhyReadOnly().value_or("writable") + "; " + file.MessageOfSave();
    }),
        "writable; saved");
    EXPECT_EQ(Content(path), "id,n\n1,x\n");

    std::filesystem::permissions(path, std::filesystem::perms(0666));
    std::filesystem::permissions(folder.Path(""), std::filesystem::perms(0555));
    EXPECT_EQ(AsOrdinaryUser([&] {
        OpenFile file(path);
        file.edits.Set(0, 1, u"y");
        return file.saver.WhyReadOnly().value_or("writable") + "; " + file.MessageOfSave();
    }),
        "no permission to put a new file into its folder; no permission to put a new file into its folder");
    std::filesystem::permissions(folder.Path(""), std::filesystem::perms(0755));
    EXPECT_EQ(Content(path), "id,n\n1,x\n");
    EXPECT_THAT(FilesIn(folder), ElementsAre("file.csv"));
}

TEST(CsvSaver, GivesNoMoreRightsWhereTheGroupCannotBeKept)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the superuser can give a file to somebody else";
    const ScratchFolder folder;
    const std::string path = folder.Write("file.csv", "id,n\n1,a\n");
    std::filesystem::permissions(folder.Path(""), std::filesystem::perms(0777));
    std::filesystem::permissions(path, std::filesystem::perms(0676));
    EXPECT_EQ(AsOrdinaryUser([&] {
        OpenFile file(path);
        file.edits.Set(0, 1, u"y");
        return file.MessageOfSave();
    }),
        "saved");
    struct stat status = {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0666u);
}

TEST(CsvSaver, LeavesTheOldFileWhenTheDiskIsFull)
{
    const ScratchFolder folder;
    const std::string content = "id,n\n1," + std::string(100'000, 'a') + "\n2,b\n";
    const std::string path = folder.Write("file.csv", content);
    std::filesystem::permissions(folder.Path(""), std::filesystem::perms(0777));
    std::filesystem::permissions(path, std::filesystem::perms(0666));
    const std::string message = AsOrdinaryUser([&] {
        OpenFile file(path);
        file.edits.Set(1, 1, u"x");
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit { 50'000, 50'000 };
        ::setrlimit(RLIMIT_FSIZE, &limit);
        return file.MessageOfSave() + (file.edits.IsEmpty() ? "" : "; the changes are still there");
    });
    EXPECT_EQ(message, "there is no room for the new file (File too large); the changes are still there");
    EXPECT_EQ(Content(path), content);
    EXPECT_THAT(FilesIn(folder), ElementsAre("file.csv"));
}
