#include "file_replacement.h"

#include "as_ordinary_user.h"
#include "open_text_file.h"
#include "scratch_folder.h"

#include <gmock/gmock.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>

using namespace vornix::viewer;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

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

} // namespace

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
    EXPECT_THAT(folder.Files(), ElementsAre("file.csv"));
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

TEST(FileReplacement, FollowsLinksAndKeepsPermissions)
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

TEST(FileReplacement, LeavesFilesAloneThatMayNotBeWritten)
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
    EXPECT_THAT(folder.Files(), ElementsAre("file.csv"));
}

TEST(FileReplacement, GivesNoMoreRightsWhereTheGroupCannotBeKept)
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

TEST(FileReplacement, LeavesTheOldFileWhenTheDiskIsFull)
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
    EXPECT_THAT(folder.Files(), ElementsAre("file.csv"));
}
