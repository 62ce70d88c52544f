// A child program, run to its end.
#include "Platform/Foundation/ChildProcess.h"

#include "Platform/Foundation/Dispatch.h"
#include "Platform/Foundation/FileDescriptor.h"

#include <QFile>

#include <dlfcn.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <vector>

namespace korvane {
namespace {

constexpr qsizetype mostErrorText = 16LL * 1024;
constexpr qsizetype pipeCapacity = 64LL * 1024;
constexpr int cannotRun = 127;

// The kernel kills a child when the thread that started it ends, so all are started from one thread that never does.
SerialQueue &startingQueue() {
    static SerialQueue *queue = new SerialQueue;
    return *queue;
}

// Everything that the child needs, made before the fork: after it only async-signal-safe calls are allowed.
struct Launch {
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

[[noreturn]] void reportFailure(const Launch &launch) {
    const int code = errno;
    [[maybe_unused]] const ssize_t written = ::write(launch.failure.get(), &code, sizeof code);
    ::_exit(cannotRun);
}

void closeOthersOnExec() {
    if (::close_range(3, ~0U, CLOSE_RANGE_CLOEXEC) == 0) return;
    for (int descriptor = 3, end = int(::sysconf(_SC_OPEN_MAX)); descriptor < end; ++descriptor)
        ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
}

[[noreturn]] void becomeProgram(const Launch &launch) {
    if (::prctl(PR_SET_PDEATHSIG, SIGKILL) != 0) reportFailure(launch);
    if (::getppid() != launch.parent) ::_exit(cannotRun); // it died before the line above
    struct sigaction standard {};
    standard.sa_handler = SIG_DFL;
    for (int number = 1; number < NSIG; ++number)
        ::sigaction(number, &standard, nullptr);
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    if (::dup2(launch.input.get(), STDIN_FILENO) < 0 || ::dup2(launch.output.get(), STDOUT_FILENO) < 0 ||
        ::dup2(launch.errors.get(), STDERR_FILENO) < 0)
        reportFailure(launch);
    [[maybe_unused]] const int priority = ::nice(launch.niceness);
    closeOthersOnExec();
    ::execve(launch.argv.front(), launch.argv.data(), launch.envp.data());
    reportFailure(launch);
}

// Runs on the starting queue. Signals stay blocked around the fork, so that no handler of ours runs in the child.
pid_t forkChild(const Launch &launch) {
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    const pid_t child = ::fork();
    if (child == 0) becomeProgram(launch);
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

// The child's ends of the pipes are closed here before another child can inherit them. -1 with errno if there is no
// child.
pid_t start(Launch &launch) {
    launch.argv = pointersTo(launch.strings);
    launch.envp = pointersTo(launch.variables);
    pid_t process = -1;
    int code = 0;
    startingQueue().sync([&] {
        process = forkChild(launch);
        code = errno;
        launch.output.reset();
        launch.errors.reset();
        launch.failure.reset();
    });
    errno = code;
    return process;
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

// How long a child may run, and who is told meanwhile.
struct Terms {
    std::optional<std::chrono::milliseconds> timeLimit;
    std::stop_token cancellation;
    std::function<void(const QByteArray &piece)> outputHandler;
    std::chrono::milliseconds watchInterval;
    std::function<bool()> goesOn;
};

// A child that runs: its end, its words, and the wish to stop it, all of which poll() can wait for.
class RunningChild {
public:
    RunningChild(pid_t process, FileDescriptor output, FileDescriptor errors)
        : _process(process), _end(int(::syscall(SYS_pidfd_open, process, 0))), _endError(errno),
          _output(std::move(output)), _errors(std::move(errors)), _wish(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
        for (const FileDescriptor *pipe : {&_output, &_errors})
            if (*pipe) ::fcntl(pipe->get(), F_SETFL, O_NONBLOCK);
    }

    // 0, or the errno value that says why the child cannot be followed.
    int error() const { return _end ? 0 : _endError; }

    void kill() { ::kill(_process, SIGKILL); }

    ChildProcess::Result wait(const Terms &terms) {
        const std::stop_callback onCancel(terms.cancellation, [this] { ::eventfd_write(_wish.get(), 1); });
        const auto ending = _end ? _watch(terms) : ChildProcess::Exited;
        if (ending != ChildProcess::Exited) kill();
        siginfo_t info{};
        while (::waitid(P_PID, id_t(_process), &info, WEXITED) != 0 && errno == EINTR) {
        }
        _readOutput(terms);
        _readErrors();
        const bool exited = info.si_code == CLD_EXITED;
        if (ending != ChildProcess::Exited && !exited) return {ending, info.si_status, _text};
        return {exited ? ChildProcess::Exited : ChildProcess::Signalled, info.si_status, _text};
    }

private:
    using Clock = std::chrono::steady_clock;

    // Exited once the child has ended by itself, else the reason to end it.
    ChildProcess::Ending _watch(const Terms &terms) {
        const auto deadline = terms.timeLimit ? Clock::now() + *terms.timeLimit : Clock::time_point::max();
        pollfd watched[] = {
            {_end.get(), POLLIN, 0}, {_wish.get(), POLLIN, 0}, {_errors.get(), POLLIN, 0}, {_output.get(), POLLIN, 0}};
        for (;;) {
            if (Clock::now() >= deadline) return ChildProcess::TimedOut;
            if (terms.goesOn && !terms.goesOn()) return ChildProcess::TimedOut;
            if (::poll(watched, std::size(watched), _patience(terms, deadline)) < 0) continue;
            if (watched[0].revents != 0) return ChildProcess::Exited;
            if (watched[1].revents != 0) return ChildProcess::Cancelled;
            if (watched[2].revents != 0 && !_readErrors()) watched[2].fd = -1;
            if (watched[3].revents != 0 && !_readOutput(terms)) watched[3].fd = -1;
        }
    }

    // Milliseconds until somebody must look again; -1 for never.
    static int _patience(const Terms &terms, Clock::time_point deadline) {
        if (!terms.timeLimit && !terms.goesOn) return -1;
        auto patience = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
        if (terms.goesOn) patience = std::min(patience, terms.watchInterval);
        return int(std::clamp<long long>(patience.count(), 0, INT_MAX));
    }

    // Takes what is there, but no more than a pipe holds, or a child that never pauses would get all attention. False
    // at the end. A grandchild may keep the pipe open, so nobody waits for that.
    template <typename Take>
    static bool _drain(const FileDescriptor &pipe, Take take) {
        char buffer[4096];
        for (qsizetype taken = 0; taken < pipeCapacity;) {
            const ssize_t count = ::read(pipe.get(), buffer, sizeof buffer);
            if (count < 0 && errno == EINTR) continue;
            if (count <= 0) return count < 0 && errno == EAGAIN;
            take(QByteArray(buffer, count));
            taken += count;
        }
        return true;
    }

    bool _readErrors() {
        return _drain(_errors, [this](const QByteArray &piece) { _text = (_text + piece).right(mostErrorText); });
    }

    bool _readOutput(const Terms &terms) { return _output && _drain(_output, terms.outputHandler); }

    pid_t _process;
    FileDescriptor _end;
    int _endError;
    FileDescriptor _output; // invalid where the child writes elsewhere
    FileDescriptor _errors;
    FileDescriptor _wish;
    QByteArray _text;
};

bool isProgram(const QByteArray &path) {
    return ::access(path.constData(), X_OK) == 0 && ::access((path + '/').constData(), F_OK) != 0;
}

QByteArray folderOf(const QByteArray &path) {
    return path.left(std::max<qsizetype>(0, path.lastIndexOf('/')));
}

} // namespace

QString ChildProcess::Result::description() const {
    const QString line = QString::fromUtf8(standardError.trimmed().split('\n').last().trimmed());
    const QString text = line.isEmpty() ? QString() : QStringLiteral(": ") + line;
    switch (ending) {
    case Exited:
        return QStringLiteral("exit status %1").arg(status) + text;
    case Signalled:
        return QStringLiteral("stopped by signal %1").arg(status) + text;
    case TimedOut:
        return QStringLiteral("took too long") + text;
    case Cancelled:
        return QStringLiteral("was cancelled");
    }
    return {};
}

void ChildProcess::setEnvironmentVariable(const QByteArray &name, const QByteArray &value) {
    _environment.append(name + '=' + value);
}

std::optional<ChildProcess::Result> ChildProcess::run(std::optional<NSError> *error) const {
    const auto fail = [&](int code) {
        setError(error, NSError::errorWithErrno(code, QFile::decodeName(_program)));
        return std::nullopt;
    };
    const QByteArray path = _program.contains('/') ? _program : pathOfProgram(_program);
    if (path.isEmpty()) return fail(ENOENT);
    Launch launch;
    launch.strings = QByteArrayList{path} + _arguments;
    launch.variables = environmentWith(_environment);
    launch.input = sharedOrNull(_standardInput, O_RDONLY);
    launch.niceness = _niceness;
    FileDescriptor output;
    FileDescriptor errors;
    FileDescriptor failure;
    if (_outputHandler)
        makePipe(output, launch.output);
    else
        launch.output = sharedOrNull(_standardOutput, O_WRONLY);
    if (!launch.input || !launch.output || !makePipe(errors, launch.errors) || !makePipe(failure, launch.failure))
        return fail(errno);
    const pid_t process = start(launch);
    if (process < 0) return fail(errno);

    RunningChild child(process, std::move(output), std::move(errors));
    int code = 0;
    ssize_t count;
    while ((count = ::read(failure.get(), &code, sizeof code)) < 0 && errno == EINTR) {
    }
    if (count != sizeof code) code = child.error();
    if (code == 0) return child.wait({_timeLimit, _cancellation, _outputHandler, _watchInterval, _goesOn});
    child.kill();
    child.wait({});
    return fail(code);
}

QByteArray ChildProcess::pathOfProgram(const QByteArray &name) {
    QByteArrayList folders;
    char executable[PATH_MAX];
    const ssize_t length = ::readlink("/proc/self/exe", executable, sizeof executable);
    if (length > 0) folders.append(folderOf(QByteArray(executable, length)));
    Dl_info library;
    if (::dladdr(reinterpret_cast<const void *>(&startingQueue), &library) != 0 && library.dli_fname) {
        QByteArray folder = folderOf(library.dli_fname); // PREFIX/lib or PREFIX/lib/TRIPLET
        for (int levels = 0; levels < 2 && !folder.isEmpty(); ++levels)
            folders.append((folder = folderOf(folder)) + "/bin");
    }
    folders.append(qgetenv("PATH").split(':'));
    for (const QByteArray &folder : std::as_const(folders)) {
        QByteArray path = folder + '/' + name;
        if (folder.startsWith('/') && isProgram(path)) return path;
    }
    return {};
}

} // namespace korvane
