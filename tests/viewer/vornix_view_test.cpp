#include "program.h"

#include "scratch_folder.h"
#include "sqlite/made_database.h"
#include "unicode.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fcntl.h>
#include <spawn.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>

using namespace vornix;
using namespace vornix::viewer;
using namespace std::string_literals;
using testing::HasSubstr;
using testing::StartsWith;

extern char** environ;

namespace vornix::viewer {

namespace {

// With the null at the end that starting a program wants.
std::vector<char*> PointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

ProgramResult RunViewer(const std::vector<std::string>& arguments)
{
    std::vector<std::string> environment;
    for (char** variable = environ; *variable; ++variable)
        environment.emplace_back(*variable);
    return RunViewerIn(environment, arguments);
}

ProgramResult RunViewerIn(const std::vector<std::string>& environment, const std::vector<std::string>& arguments)
{
    const ScratchFolder folder;
    std::vector<std::string> all = arguments;
    all.insert(all.begin(), VORNIX_VIEW);
    std::vector<std::string> variables = environment;
    const std::vector<char*> pointers = PointersTo(all);
    const std::vector<char*> variablePointers = PointersTo(variables);

    const std::string output = folder.Path("stdout");
    const std::string error = folder.Path("stderr");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output.c_str(), O_WRONLY | O_CREAT, 0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, error.c_str(), O_WRONLY | O_CREAT, 0600);
    pid_t process = 0;
    const int spawned
        = ::posix_spawn(&process, VORNIX_VIEW, &actions, nullptr, pointers.data(), variablePointers.data());
    posix_spawn_file_actions_destroy(&actions);
    EXPECT_EQ(spawned, 0);
    int status = 0;
    ::waitpid(process, &status, 0);
    return { WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), Content(output), Content(error) };
}

} // namespace vornix::viewer

namespace {

// Exit status 1, nothing on standard output, and this one line on standard error.
void ExpectRefusal(const std::vector<std::string>& arguments, const std::string& message)
{
    const ProgramResult result = RunViewer(arguments);
    EXPECT_EQ(result.status, 1) << arguments.back();
    EXPECT_EQ(result.output, "") << arguments.back();
    EXPECT_EQ(result.error, "vornix-view: " + message + "\n");
}

} // namespace

TEST(VornixView, PrintsATextFileAsTabSeparatedValues)
{
    const ScratchFolder folder;
    const ProgramResult result
        = RunViewer({ "--text", folder.Write("a.csv", "id;name;paid\n1;Ọlá;yes\n2;\"x\ny\";no\n") });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "id\tname\tpaid\n1\tỌlá\ttrue\n2\t\"x\ny\"\tfalse\n");
    EXPECT_EQ(result.error, "");
}

TEST(VornixView, ListsTheTablesOfADatabase)
{
    const MadeDatabase made("CREATE TABLE first(a); CREATE VIEW second AS SELECT 1;");
    const ProgramResult result = RunViewer({ "--list", made.Path() });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "table\tfirst\nview\tsecond\n");
}

TEST(VornixView, ListsEachNameOnALineOfItsOwn)
{
    const MadeDatabase made("CREATE TABLE \"two\nlines\t\x1b[2J\"(a);");
    EXPECT_EQ(RunViewer({ "--list", made.Path() }).output, "table\ttwo lines  [2J\n");
}

TEST(VornixView, OpensTheSampleWithoutAFile)
{
    const ProgramResult result = RunViewer({ "--list" });
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, StartsWith("view\torders_overview\n"));
}

TEST(VornixView, SaysHowManyRowsOfHowManyItShows)
{
    const ScratchFolder folder;
    std::string rows = "id,x\n";
    for (int row = 0; row < 40000; ++row)
        rows += "1,2\n";
    const ProgramResult result = RunViewer({ "--text", folder.Write("many.csv", rows) });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, "vornix-view: many.csv: the first 32,765 of 40,000 rows are shown\n");
    EXPECT_EQ(std::count(result.output.begin(), result.output.end(), '\n'), 32766);
}

TEST(VornixView, RefusesFilesThatCannotBeRead)
{
    const ScratchFolder folder;
    const std::string missing = folder.Path("none.csv");
    ExpectRefusal({ "--text", missing }, missing + ": there is no such file");
    ExpectRefusal({ "--list", missing }, missing + ": there is no such file");
    ExpectRefusal({ missing }, missing + ": there is no such file");
    ExpectRefusal({ "--text", "/tmp" }, "/tmp: it is a folder, not a file");
    ExpectRefusal({ "--text", "/dev/null" }, "/dev/null: it is a pipe, a socket or a device, not a regular file");
    const std::string pipe = folder.Path("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    ExpectRefusal({ "--text", pipe }, pipe + ": it is a pipe, a socket or a device, not a regular file");
    const std::string empty = folder.Write("empty.csv", "");
    ExpectRefusal({ "--text", empty }, empty + ": the file is empty");
}

TEST(VornixView, RefusesAFileItMayNotRead)
{
    if (::geteuid() == 0)
        GTEST_SKIP() << "the superuser may read everything";
    const ScratchFolder folder;
    for (const char* name : { "secret.csv", "secret.db" }) {
        const std::string path = folder.Write(name, "x");
        ASSERT_EQ(::chmod(path.c_str(), 0), 0);
        ExpectRefusal({ "--text", path }, path + ": no permission to read it");
    }
}

TEST(VornixView, RefusesTextThatIsNone)
{
    const ScratchFolder folder;
    const std::string nul = folder.Write("nul.csv", "id,name\n1,a\0b\n"s);
    ExpectRefusal({ "--text", nul }, nul + ": line 2: there is a NUL byte, so this is not a text file");
    const std::string latin = folder.Write("latin.csv", "id,name\n1,Bj\xF6rn\n");
    ExpectRefusal({ "--text", latin }, latin + ": line 2: invalid UTF-8 text");
    const std::string ragged = folder.Write("ragged.csv", "a,b,c\n1,2,3\n1,2\n3,4,5,6\n");
    ExpectRefusal({ "--text", ragged }, ragged + ": line 3: the rows are ragged: this one has 2 fields, line 1 has 3");
}

TEST(VornixView, RefusesFieldsAndRowsOfMonstrousSize)
{
    const ScratchFolder folder;
    const std::string wide = folder.Write("wide.csv", std::string(99'999, ',') + "\n");
    ExpectRefusal(
        { "--text", wide }, wide + ": line 1: 100000 columns are more than the grid can hold (at most 32766)");
    const std::string longField = folder.Write("long.csv", "id,note\n1," + std::string(50'000'000, 'x') + "\n");
    ExpectRefusal({ "--text", longField },
        longField + ": line 2: a field is longer than 1048576 characters, the most a cell takes");
    const std::string endless = folder.Write("endless.csv", "id,note\n1,\"x\n2,y\n");
    ExpectRefusal({ "--text", endless }, endless + ": line 2: the quoted field that begins here does not end");
}

TEST(VornixView, RefusesDatabasesThatCannotBeRead)
{
    const ScratchFolder folder;
    const std::string fake = folder.Write("fake.db", "just a text\n");
    ExpectRefusal({ "--text", fake }, fake + ": this is not a SQLite database (or an encrypted one)");

    MadeDatabase cut(ManyRows(500));
    cut.CloseWriter();
    std::filesystem::resize_file(cut.Path(), std::filesystem::file_size(cut.Path()) / 2);
    ExpectRefusal(
        { "--text", cut.Path() }, cut.Path() + ": the database is damaged (database disk image is malformed)");

    MadeDatabase locked("CREATE TABLE t(a);");
    locked.Execute("BEGIN EXCLUSIVE");
    ExpectRefusal(
        { "--list", locked.Path() }, locked.Path() + ": the database is in use: another program has locked it");
}

TEST(VornixView, RefusesQueriesThatGiveNoTable)
{
    const MadeDatabase made("CREATE TABLE t(a);");
    const std::string path = made.Path();
    ExpectRefusal({ "--text", path, "--query", "SELEC 1" }, path + ": SQL error: near \"SELEC\": syntax error");
    ExpectRefusal({ "--text", path, "--query", "SELECT * FROM none" }, path + ": SQL error: no such table: none");
    ExpectRefusal({ "--text", path, "--query", "DELETE FROM t" }, path + ": the query returns no columns");
    ExpectRefusal({ "--text", path, "--table", "none" }, path + ": the database has no table or view named none");
}

TEST(VornixView, RefusesOptionsInOneLine)
{
    ExpectRefusal({ "--scale", "9" }, "--scale: 9 is not a number from 1 to 4");
    ExpectRefusal({ "--size", "9" }, "--size: 9 is not of the form WIDTHxHEIGHT, such as 1280x800");
    const ProgramResult result = RunViewer({ "--nonsense\nhere" });
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, StartsWith("vornix-view: "));
    EXPECT_EQ(std::count(result.error.begin(), result.error.end(), '\n'), 1);
}

TEST(VornixView, KeepsItsMessageOnOneLineWhateverTheFileIsCalled)
{
    const ScratchFolder folder;
    const ProgramResult result = RunViewer({ "--text", folder.Write("two\nlines.csv", "") });
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, HasSubstr("two lines.csv: the file is empty\n"));
    EXPECT_EQ(std::count(result.error.begin(), result.error.end(), '\n'), 1);
}

TEST(VornixView, ChangesNothingWithoutAWindow)
{
    const ScratchFolder folder;
    const std::string file = folder.Write("a.csv", "a,b\n1,2\n");
    const ProgramResult result = RunViewerIn({ "TMPDIR=" + folder.Path("") }, { "--edit", file });
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "") << "no picture is written instead";
    EXPECT_THAT(result.error, testing::EndsWith("which --edit needs\n"));
    EXPECT_EQ(Content(file), "a,b\n1,2\n");
    ExpectRefusal({ "--edit" }, "--edit needs the name of a file");
}

TEST(VornixView, SaysWhyATableIsReadOnly)
{
    const MadeDatabase made("CREATE TABLE t(a); CREATE VIEW v AS SELECT 1;");
    const ProgramResult result = RunViewerIn({}, { "--edit", made.Path(), "--table", "v" });
    EXPECT_THAT(result.error,
        StartsWith("vornix-view: made.db: nothing can be changed: it is a view, which has no rows of its own\n"));
}

#ifdef VORNIX_VIEW_DRAWS
TEST(VornixView, TakesAPictureOfAsManyRowsAndColumnsAsAGridHolds)
{
    const ScratchFolder folder;
    std::string rows = "id,x\n";
    for (int row = 0; row < 40000; ++row)
        rows += "1,2\n";
    std::string columns = "1";
    for (int column = 1; column < 32766; ++column)
        columns += ",1";
    for (const std::string& content : { rows, columns + '\n' }) {
        const std::string picture = folder.Path("out.png");
        const ProgramResult result
            = RunViewer({ "--snapshot", picture, "--size", "300x200", folder.Write("a.csv", content) });
        EXPECT_EQ(result.status, 0) << result.error;
        EXPECT_EQ(result.output, picture + '\n');
        EXPECT_THAT(Content(picture), StartsWith("\x89PNG\r\n"));
        std::filesystem::remove(picture);
    }
}

TEST(VornixView, LeavesNoPictureOfWhatItCannotRead)
{
    const ScratchFolder folder;
    const std::string picture = folder.Path("out.png");
    const std::string broken = folder.Write("a.csv", "a,b\n1,\xFF\n");
    ExpectRefusal({ "--snapshot", picture, broken }, broken + ": line 2: invalid UTF-8 text");
    EXPECT_FALSE(std::filesystem::exists(picture));
}

TEST(VornixView, WritesAPictureWhereThereIsNoDisplayAndSaysWhere)
{
    const ScratchFolder folder;
    const std::string victim = folder.Write("victim", "unharmed");
    std::filesystem::create_symlink(victim, folder.Path("vornix-view.png"));
    const ProgramResult result
        = RunViewerIn({ "TMPDIR=" + folder.Path("") }, { "--size", "200x100", folder.Write("a.csv", "a,b\n1,2\n") });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, "vornix-view: there is no display; the picture is written instead\n");
    ASSERT_THAT(result.output, testing::EndsWith(".png\n"));
    const std::string picture = result.output.substr(0, result.output.size() - 1);
    EXPECT_THAT(picture, StartsWith(folder.Path("")));
    EXPECT_THAT(Content(picture), StartsWith("\x89PNG\r\n"));
    EXPECT_EQ(Content(victim), "unharmed");
}

TEST(VornixView, EndsInOneLineWhenThePictureCannotBeWritten)
{
    const ScratchFolder folder;
    const std::string file = folder.Write("a.csv", "a,b\n1,2\n");
    const ProgramResult result = RunViewer({ "--snapshot", folder.Path("none/out.png"), file });
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.error, StartsWith("vornix-view: "));
    EXPECT_EQ(std::count(result.error.begin(), result.error.end(), '\n'), 1);
}
#endif
