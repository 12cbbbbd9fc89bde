#include "as_ordinary_user.h"

#include <exception>
#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vornix::viewer {

namespace {

constexpr unsigned Nobody = 65534;

void DropPrivileges()
{
    if (::geteuid() != 0)
        return;
    if (::setgroups(0, nullptr) != 0 || ::setgid(Nobody) != 0 || ::setuid(Nobody) != 0)
        ::_exit(99);
}

[[noreturn]] void RunAndTell(const std::function<std::string()>& step, int pipe)
{
    DropPrivileges();
    std::string result;
    try {
        result = step();
    } catch (const std::exception& error) {
        result = error.what();
    }
    const bool told = ::write(pipe, result.data(), result.size()) == static_cast<ssize_t>(result.size());
    ::_exit(told ? 0 : 98);
}

} // namespace

std::string AsOrdinaryUser(const std::function<std::string()>& step)
{
    int ends[2];
    if (::pipe(ends) != 0)
        return "no pipe";
    const pid_t process = ::fork();
    if (process < 0)
        return "no process";
    if (process == 0)
        RunAndTell(step, ends[1]);
    ::close(ends[1]);
    std::string result;
    char buffer[512];
    for (ssize_t count = 0; (count = ::read(ends[0], buffer, sizeof buffer)) > 0;)
        result.append(buffer, static_cast<std::size_t>(count));
    ::close(ends[0]);
    int status = 0;
    ::waitpid(process, &status, 0);
    return status == 0 ? result : "ended with status " + std::to_string(status);
}

} // namespace vornix::viewer
