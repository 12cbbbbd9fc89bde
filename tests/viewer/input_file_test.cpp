#include "input_file.h"

#include "loading.h"
#include "scratch_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

using namespace vornix::viewer;

namespace {

std::string MessageOf(const std::string& path)
{
    try {
        InputFile file(path);
    } catch (const LoadError& error) {
        return error.what();
    }
    return "no error";
}

} // namespace

TEST(InputFile, ReadsAndRewinds)
{
    const ScratchFolder folder;
    InputFile file(folder.Write("a", "hello"));
    EXPECT_EQ(file.Size(), 5u);
    std::array<char, 4> buffer {};
    EXPECT_EQ(file.Read(buffer), 4u);
    EXPECT_EQ(file.Read(buffer), 1u);
    EXPECT_EQ(buffer[0], 'o');
    EXPECT_EQ(file.Read(buffer), 0u);
    file.Rewind();
    EXPECT_EQ(file.Read(buffer), 4u);
    EXPECT_EQ(buffer[0], 'h');
}

TEST(InputFile, SaysWhatIsWrongWithAName)
{
    const ScratchFolder folder;
    EXPECT_EQ(MessageOf(folder.Path("none")), "there is no such file");
    EXPECT_EQ(MessageOf(folder.Write("plain", "x") + "/under"), "there is no such file");
    EXPECT_EQ(MessageOf(folder.Path("")), "it is a folder, not a file");
    EXPECT_EQ(MessageOf(folder.Write("empty", "")), "the file is empty");
    EXPECT_EQ(MessageOf(std::string(5000, 'n')), "it cannot be read (File name too long)");
}

TEST(InputFile, DoesNotWaitForAPipe)
{
    const ScratchFolder folder;
    ASSERT_EQ(::mkfifo(folder.Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(MessageOf(folder.Path("pipe")), "it is a pipe, a socket or a device, not a regular file");
    EXPECT_EQ(MessageOf("/dev/zero"), "it is a pipe, a socket or a device, not a regular file");
}

TEST(InputFile, SaysWhenItMayNotBeRead)
{
    if (::geteuid() == 0)
        GTEST_SKIP() << "the superuser may read everything";
    const ScratchFolder folder;
    const std::string path = folder.Write("secret", "x");
    ASSERT_EQ(::chmod(path.c_str(), 0), 0);
    EXPECT_EQ(MessageOf(path), "no permission to read it");
}
