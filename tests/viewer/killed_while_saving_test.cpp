// The program is killed at random moments of saving: what is left is the old state or the new one, whole.
#include "scratch_folder.h"
#include "sqlite/made_database.h"

#include "vornix/sqlite/database.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <csignal>
#include <random>
#include <set>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>

extern char** environ;

using namespace vornix;
using namespace vornix::viewer;

namespace {

// A process that saves the file until it goes.
class SavingProcess {
public:
    SavingProcess(std::string path, bool movesRows)
    {
        std::string program = VORNIX_SAVE_FOREVER;
        std::string rows = "rows";
        const std::array<char*, 4> arguments { program.data(), path.data(), movesRows ? rows.data() : nullptr,
            nullptr };
        std::array<int, 2> pipe {};
        EXPECT_EQ(::pipe(pipe.data()), 0);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, pipe[1], STDOUT_FILENO);
        posix_spawn_file_actions_addclose(&actions, pipe[0]);
        EXPECT_EQ(::posix_spawn(&process_, program.c_str(), &actions, nullptr, arguments.data(), environ), 0);
        posix_spawn_file_actions_destroy(&actions);
        ::close(pipe[1]);
        char line = 0;
        EXPECT_EQ(::read(pipe[0], &line, 1), 1) << "it has saved once";
        ::close(pipe[0]);
    }
    // False when it had ended before by itself.
    bool Kill() const
    {
        ::kill(process_, SIGKILL);
        int status = 0;
        ::waitpid(process_, &status, 0);
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    }

private:
    pid_t process_ = 0;
};

constexpr int Rounds = 40;
constexpr auto LongestDelay = std::chrono::microseconds(120'000);
constexpr auto LongestTest = std::chrono::seconds(10);

// Kills a saving process after each of the delays, and has the file checked then.
void KillAgainAndAgain(
    const std::string& path, unsigned seed, const std::function<void()>& check, bool movesRows = false)
{
    std::mt19937 random(seed);
    const auto end = std::chrono::steady_clock::now() + LongestTest;
    for (int round = 0; round < Rounds && std::chrono::steady_clock::now() < end; ++round) {
        const SavingProcess process(path, movesRows);
        std::this_thread::sleep_for(std::chrono::microseconds(random() % LongestDelay.count()));
        ASSERT_TRUE(process.Kill());
        check();
        if (testing::Test::HasFailure())
            return;
    }
}

std::string TextOf(int generation, int firstRow = 0)
{
    const std::string number = std::to_string(generation);
    std::string text = "id,generation,filler\r\n";
    for (int row = firstRow; row < firstRow + 5000; ++row)
        text += std::to_string(row) + ',' + number + ",\"" + std::string(100, 'x') + "\"\r\n";
    return text;
}

} // namespace

TEST(KilledWhileSaving, ATextFileIsTheOldOneOrTheNewOne)
{
    const ScratchFolder folder;
    const std::string path = folder.Write("file.csv", TextOf(10'000));
    std::set<int> generations;
    int unfinished = 0;
    KillAgainAndAgain(path, 7, [&] {
        const std::string content = Content(path);
        const int generation = std::atoi(content.substr(content.find(',', content.find('\n')) + 1, 5).c_str());
        EXPECT_TRUE(content == TextOf(generation)) << "generation " << generation;
        generations.insert(generation);
        for (const auto& entry : std::filesystem::directory_iterator(folder.Path(""))) {
            if (entry.path() == path)
                continue;
            ++unfinished;
            std::filesystem::remove(entry.path());
        }
    });
    EXPECT_GT(unfinished, 0) << "it was killed in the middle of writing";
    EXPECT_GT(generations.size(), 1u) << "it was saved before";
}

TEST(KilledWhileSaving, ADatabaseHasAllOfTheChangesOrNone)
{
    MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, generation INTEGER, filler TEXT);"
                      "CREATE INDEX i ON t(generation, filler);"
                      "WITH RECURSIVE c(n) AS (VALUES(1) UNION ALL SELECT n + 1 FROM c WHERE n < 1000)"
                      " INSERT INTO t SELECT n, 10000, printf('%0100d', n) FROM c;");
    made.CloseWriter();
    std::set<std::int64_t> generations;
    int unfinished = 0;
    KillAgainAndAgain(made.Path(), 7, [&] {
        unfinished += std::filesystem::exists(made.Path() + "-journal") ? 1 : 0;
        const sqlite::Database database(made.Path(), sqlite::Access::Write); // which ends what was begun
        sqlite::Statement rows = database.ReadQuery("SELECT count(*), min(generation), max(generation) FROM t");
        ASSERT_TRUE(rows.Next());
        EXPECT_EQ(rows.Integer(0), 1000);
        EXPECT_EQ(rows.Integer(1), rows.Integer(2));
        generations.insert(rows.Integer(1));
        sqlite::Statement integrity = database.ReadQuery("SELECT * FROM pragma_integrity_check");
        ASSERT_TRUE(integrity.Next());
        EXPECT_EQ(integrity.Text(0), u"ok");
    });
    EXPECT_GT(unfinished, 0) << "it was killed in the middle of writing";
    EXPECT_GT(generations.size(), 1u) << "it was saved before";
}

TEST(KilledWhileSaving, ATextFileHasAllOfItsNewRowsOrNone)
{
    const ScratchFolder folder;
    const std::string path = folder.Write("file.csv", TextOf(10'000));
    std::set<int> generations;
    KillAgainAndAgain(
        path, 8,
        [&] {
            const std::string content = Content(path);
            const int generation = std::atoi(content.substr(content.find(',', content.find('\n')) + 1, 5).c_str());
            EXPECT_TRUE(content == TextOf(generation, generation - 10'000)) << "generation " << generation;
            generations.insert(generation);
            for (const auto& entry : std::filesystem::directory_iterator(folder.Path(""))) {
                if (entry.path() != path)
                    std::filesystem::remove(entry.path());
            }
        },
        true);
    EXPECT_GT(generations.size(), 1u) << "it was saved before";
}

TEST(KilledWhileSaving, ADatabaseHasAllOfItsNewRowsOrNone)
{
    MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, generation INTEGER, filler TEXT);"
                      "WITH RECURSIVE c(n) AS (VALUES(0) UNION ALL SELECT n + 1 FROM c WHERE n < 999)"
                      " INSERT INTO t SELECT n, 10000, printf('%0100d', n) FROM c;");
    made.CloseWriter();
    std::set<std::int64_t> generations;
    KillAgainAndAgain(
        made.Path(), 8,
        [&] {
            const sqlite::Database database(made.Path(), sqlite::Access::Write); // which ends what was begun
            sqlite::Statement rows
                = database.ReadQuery("SELECT count(*), min(generation), max(generation), min(id), max(id) FROM t");
            ASSERT_TRUE(rows.Next());
            EXPECT_EQ(rows.Integer(0), 1000);
            EXPECT_EQ(rows.Integer(1), rows.Integer(2));
            EXPECT_EQ(rows.Integer(3), rows.Integer(1) - 10'000);
            EXPECT_EQ(rows.Integer(4), rows.Integer(3) + 999);
            generations.insert(rows.Integer(1));
        },
        true);
    EXPECT_GT(generations.size(), 1u) << "it was saved before";
}
