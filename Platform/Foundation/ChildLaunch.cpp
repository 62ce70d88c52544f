// The start of a child program: all that lies around the fork.
#include "Platform/Foundation/ChildLaunch.h"

#include "Platform/Foundation/Dispatch.h"

#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <vector>

namespace korvane {
namespace {

constexpr int cannotRun = 127;

// The kernel kills a child when the thread that started it ends, so all are started from one thread that never does.
SerialQueue &startingQueue() {
    static SerialQueue *queue = new SerialQueue;
    return *queue;
}

// Everything that the child needs, made before the fork: after it only async-signal-safe calls are allowed.
struct Prepared {
    QByteArrayList strings;   // what argv points to, and
    QByteArrayList variables; // what envp points to
    std::vector<char *> argv;
    std::vector<char *> envp;
    FileDescriptor input;
    FileDescriptor output;
    FileDescriptor errors;  // the child's end
    FileDescriptor failure; // takes errno if the program cannot be executed
    int niceness = 0;
    pid_t parent = ::getpid();
};

[[noreturn]] void reportFailure(const Prepared &prepared) {
    const int code = errno;
    [[maybe_unused]] const ssize_t written = ::write(prepared.failure.get(), &code, sizeof code);
    ::_exit(cannotRun);
}

void closeOthersOnExec() {
    if (::close_range(3, ~0U, CLOSE_RANGE_CLOEXEC) == 0) return;
    for (int descriptor = 3, end = int(::sysconf(_SC_OPEN_MAX)); descriptor < end; ++descriptor)
        ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
}

[[noreturn]] void becomeProgram(const Prepared &prepared) {
    if (::prctl(PR_SET_PDEATHSIG, SIGKILL) != 0) reportFailure(prepared);
    if (::getppid() != prepared.parent) ::_exit(cannotRun); // it died before the line above
    struct sigaction standard {};
    standard.sa_handler = SIG_DFL;
    for (int number = 1; number < NSIG; ++number)
        ::sigaction(number, &standard, nullptr);
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    if (::dup2(prepared.input.get(), STDIN_FILENO) < 0 || ::dup2(prepared.output.get(), STDOUT_FILENO) < 0 ||
        ::dup2(prepared.errors.get(), STDERR_FILENO) < 0)
        reportFailure(prepared);
    [[maybe_unused]] const int priority = ::nice(prepared.niceness);
    closeOthersOnExec();
    ::execve(prepared.argv.front(), prepared.argv.data(), prepared.envp.data());
    reportFailure(prepared);
}

// Runs on the starting queue. Signals stay blocked around the fork, so that no handler of ours runs in the child.
pid_t forkChild(const Prepared &prepared) {
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    const pid_t child = ::fork();
    if (child == 0) becomeProgram(prepared);
    const int code = errno;
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    errno = code;
    return child;
}

std::vector<char *> pointersTo(QByteArrayList &strings) {
    std::vector<char *> pointers;
    for (QByteArray &string : strings)
        pointers.push_back(string.data());
    pointers.push_back(nullptr);
    return pointers;
}

FileDescriptor sharedOrNull(int descriptor, int mode) {
    if (descriptor >= 0) return FileDescriptor::duplicate(descriptor);
    const FileDescriptor null(::open("/dev/null", mode | O_CLOEXEC));
    return FileDescriptor::duplicate(null.get()); // never one of the three standard ones
}

bool makePipe(FileDescriptor &readEnd, FileDescriptor &writeEnd) {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) return false;
    const FileDescriptor first(ends[0]);
    const FileDescriptor second(ends[1]);
    readEnd = FileDescriptor::duplicate(first.get());
    writeEnd = FileDescriptor::duplicate(second.get());
    return readEnd && writeEnd;
}

QByteArrayList environmentWith(const QByteArrayList &additions) {
    QByteArrayList variables = additions;
    const auto nameOf = [](const QByteArray &variable) { return variable.left(variable.indexOf('=')); };
    for (char **variable = environ; variable && *variable; ++variable) {
        const bool replaced = std::any_of(additions.begin(), additions.end(), [&](const QByteArray &addition) {
            return nameOf(addition) == nameOf(*variable);
        });
        if (!replaced) variables.append(*variable);
    }
    return variables;
}

// The errno value that says why the child could not execute its program; 0 once it does.
int reasonNotExecuted(const FileDescriptor &failure) {
    int code = 0;
    ssize_t count;
    while ((count = ::read(failure.get(), &code, sizeof code)) < 0 && errno == EINTR) {
    }
    return count == sizeof code ? code : 0;
}

// False, with errno, if there are no more descriptors. failure: our end.
bool prepare(const ChildLaunch &launch, Prepared &prepared, LaunchedChild &child, FileDescriptor &failure) {
    prepared.strings = QByteArrayList{launch.path} + launch.arguments;
    prepared.variables = environmentWith(launch.environment);
    prepared.argv = pointersTo(prepared.strings);
    prepared.envp = pointersTo(prepared.variables);
    prepared.niceness = launch.niceness;
    prepared.input = sharedOrNull(launch.standardInput, O_RDONLY);
    if (launch.readsOutput)
        makePipe(child.output, prepared.output);
    else
        prepared.output = sharedOrNull(launch.standardOutput, O_WRONLY);
    return prepared.input && prepared.output && makePipe(child.errors, prepared.errors) &&
           makePipe(failure, prepared.failure);
}

} // namespace

LaunchedChild ChildLaunch::start() const {
    Prepared prepared;
    LaunchedChild child;
    FileDescriptor failure;
    if (!prepare(*this, prepared, child, failure)) {
        child.error = errno;
        return child;
    }
    // The child's ends of the pipes are closed before another child can inherit them.
    startingQueue().sync([&] {
        child.process = forkChild(prepared);
        if (child.process < 0) child.error = errno;
        prepared.output.reset();
        prepared.errors.reset();
        prepared.failure.reset();
    });
    if (child.process < 0) return child;
    child.end = FileDescriptor(int(::syscall(SYS_pidfd_open, child.process, 0)));
    if (!child.end) child.error = errno;
    if (const int code = reasonNotExecuted(failure)) child.error = code;
    if (child.error == 0) return child;
    ::kill(child.process, SIGKILL);
    waitForEnd(child.process);
    return child;
}

siginfo_t waitForEnd(pid_t process) {
    siginfo_t info{};
    while (::waitid(P_PID, id_t(process), &info, WEXITED) != 0 && errno == EINTR) {
    }
    return info;
}

} // namespace korvane
