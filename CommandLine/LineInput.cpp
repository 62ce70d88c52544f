// Lines that a person or a script gives on standard input.
#include "CommandLine/LineInput.h"

#include <QTimer>

#include <cerrno>
#include <cstdio>
#include <utility>

#include <unistd.h>

namespace korvane {
namespace {

constexpr qsizetype longestLine = 4096;

} // namespace

LineInput::LineInput() : _isTerminal(::isatty(STDIN_FILENO) == 1), _notifier(STDIN_FILENO, QSocketNotifier::Read) {
    _notifier.setEnabled(false);
    QObject::connect(&_notifier, &QSocketNotifier::activated, &_notifier, [this] { _read(); });
}

LineInput::~LineInput() {
    _show(true);
}

void LineInput::ask(const QString &question, Echo echo, Answer answer) {
    if (_isTerminal) std::fputs(question.toUtf8().constData(), stderr);
    _show(echo == Echo::Shown);
    _answer = std::move(answer);
    const bool isThere = _hasEnded || _pending.contains('\n');
    _notifier.setEnabled(!isThere);
    if (isThere) QTimer::singleShot(0, &_notifier, [this] { std::exchange(_answer, {})(_takeLine()); });
}

void LineInput::_read() {
    char buffer[longestLine];
    const ssize_t count = ::read(STDIN_FILENO, buffer, sizeof buffer);
    if (count < 0 && (errno == EINTR || errno == EAGAIN)) return;
    if (count > 0) _pending.append(buffer, count);
    _hasEnded = count <= 0;
    if (!_hasEnded && !_pending.contains('\n') && _pending.size() < longestLine) return;
    _notifier.setEnabled(false);
    if (_before) std::fputc('\n', stderr); // the one that was typed was hidden, too
    _show(true);
    std::exchange(_answer, {})(_takeLine());
}

std::optional<QString> LineInput::_takeLine() {
    if (_pending.isEmpty()) return std::nullopt;
    const qsizetype end = _pending.indexOf('\n');
    const QByteArray line = end < 0 ? _pending : _pending.left(end);
    _pending.remove(0, line.size() + 1);
    return QString::fromUtf8(line).trimmed();
}

void LineInput::_show(bool shown) {
    if (shown && _before) {
        ::tcsetattr(STDIN_FILENO, TCSANOW, &*_before);
        _before.reset();
    }
    termios state{};
    if (shown || !_isTerminal || _before || ::tcgetattr(STDIN_FILENO, &state) != 0) return;
    _before = state;
    state.c_lflag &= ~tcflag_t(ECHO);
    ::tcsetattr(STDIN_FILENO, TCSANOW, &state);
}

} // namespace korvane
