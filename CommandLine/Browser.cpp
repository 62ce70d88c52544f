// The person's web browser.
#include "CommandLine/Browser.h"

#include "Platform/Foundation/Dispatch.h"

#include <QByteArray>

#include <cerrno>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace korvane {
namespace {

// With a window of its own the browser is none of this terminal's business: Ctrl-C here must not end it. Otherwise it
// needs the terminal. What it says on standard output must not get between what this program says there.
pid_t start(QByteArray address) {
    const bool hasWindow = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawnattr_init(&attributes);
    if (hasWindow) ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    if (hasWindow) ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    ::posix_spawn_file_actions_adddup2(&actions, STDERR_FILENO, STDOUT_FILENO);
    QByteArray name("xdg-open");
    char *const arguments[] = {name.data(), address.data(), nullptr};
    pid_t process = -1;
    if (::posix_spawnp(&process, name.constData(), &actions, &attributes, arguments, environ) != 0) process = -1;
    ::posix_spawn_file_actions_destroy(&actions);
    ::posix_spawnattr_destroy(&attributes);
    return process;
}

bool succeeds(pid_t process) {
    int status = 0;
    while (::waitpid(process, &status, 0) < 0)
        if (errno != EINTR) return false;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

void Browser::open(const QString &address, std::function<void()> failed) {
    dispatchGlobal([address = address.toUtf8(), failed = std::move(failed)] {
        const pid_t process = start(address);
        if (process < 0 || !succeeds(process)) dispatchMain(failed);
    });
}

} // namespace korvane
