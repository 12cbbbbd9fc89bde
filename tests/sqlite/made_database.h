// A database file made for one test, gone with it.
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <string>
#include <unistd.h>

namespace vornix {

class MadeDatabase {
public:
    explicit MadeDatabase(const std::string& sql)
    {
        static int count = 0;
        folder_ = std::filesystem::temp_directory_path()
            / ("vornix-sqlite-" + std::to_string(::getpid()) + "-" + std::to_string(++count));
        std::filesystem::create_directories(folder_);
        EXPECT_EQ(sqlite3_open(Path().c_str(), &connection_), SQLITE_OK);
        Execute(sql);
    }
    ~MadeDatabase()
    {
        sqlite3_close(connection_);
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    MadeDatabase(const MadeDatabase&) = delete;
    MadeDatabase& operator=(const MadeDatabase&) = delete;

    std::string Path() const { return (folder_ / "made.db").string(); }
    std::filesystem::path Folder() const { return folder_; }
    // On the writing connection, which stays open.
    void Execute(const std::string& sql)
    {
        char* message = nullptr;
        const int result = sqlite3_exec(connection_, sql.c_str(), nullptr, nullptr, &message);
        EXPECT_EQ(result, SQLITE_OK) << message;
        sqlite3_free(message);
    }
    void CloseWriter()
    {
        sqlite3_close(connection_);
        connection_ = nullptr;
    }

private:
    std::filesystem::path folder_;
    sqlite3* connection_ = nullptr;
};

// SQL that fills a table t(n, text) with this many rows of about a hundred bytes.
inline std::string ManyRows(int rows)
{
    return "CREATE TABLE t(n INTEGER, text TEXT); WITH RECURSIVE c(n) AS (VALUES(1) UNION ALL SELECT n+1 FROM c WHERE "
           "n<"
        + std::to_string(rows) + ") INSERT INTO t SELECT n, printf('%0100d', n) FROM c;";
}

} // namespace vornix
