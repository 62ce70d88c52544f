// A child program, run to its end.
#include "Platform/Foundation/ChildProcess.h"

#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/ProgramPath.h"
#include "Platform/Foundation/RunningChild.h"

#include <QFile>

#include <cerrno>

namespace korvane {

QString ChildProcess::Result::description() const {
    const QString line = QString::fromUtf8(standardError.trimmed().split('\n').last().trimmed());
    const QString text = line.isEmpty() ? QString() : QStringLiteral(": ") + line;
    switch (ending) {
    case Exited:
        return localizedText("exit status %1", QString::number(status)) + text;
    case Signalled:
        return localizedText("stopped by signal %1", QString::number(status)) + text;
    case TimedOut:
        return localizedText("took too long") + text;
    case Cancelled:
        return localizedText("was cancelled");
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
    ChildLaunch launch;
    launch.path = _program.contains('/') ? _program : pathOfProgram(_program);
    if (launch.path.isEmpty()) return fail(ENOENT);
    launch.arguments = _arguments;
    launch.environment = _environment;
    launch.standardInput = _standardInput;
    launch.standardOutput = _standardOutput;
    launch.readsOutput = bool(_outputHandler);
    launch.niceness = _niceness;
    LaunchedChild child = launch.start();
    if (child.error != 0) return fail(child.error);
    return RunningChild(std::move(child), {_timeLimit, _cancellation, _outputHandler, _watchInterval, _goesOn}).wait();
}

} // namespace korvane
