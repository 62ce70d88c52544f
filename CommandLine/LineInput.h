// Lines that a person or a script gives on standard input.
#pragma once

#include <QSocketNotifier>
#include <QString>

#include <functional>
#include <optional>

#include <termios.h>

namespace korvane {

// One question at a time. Thread: the main one, whose event loop goes on meanwhile.
class LineInput {
public:
    enum class Echo { Shown, Hidden };
    // The line without its end; null where the input has ended.
    using Answer = std::function<void(const std::optional<QString> &line)>;

    LineInput();
    ~LineInput(); // the terminal shows again what is typed
    LineInput(const LineInput &) = delete;
    LineInput &operator=(const LineInput &) = delete;

    bool isTerminal() const { return _isTerminal; }
    // Asks, on standard error and of a terminal only, and reads a line. The answer comes once, from the event loop.
    void ask(const QString &question, Echo echo, Answer answer);

private:
    void _read();
    std::optional<QString> _takeLine();
    void _show(bool shown);

    const bool _isTerminal;
    QSocketNotifier _notifier;
    Answer _answer;
    QByteArray _pending;
    bool _hasEnded = false;
    std::optional<termios> _before; // of a terminal that hides what is typed
};

} // namespace korvane
