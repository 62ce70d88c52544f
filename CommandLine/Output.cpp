// Standard output and standard error, as the commands write them.
#include "CommandLine/Output.h"

#include "FrontEnd/UploadText.h"

#include <cerrno>
#include <cstring>

#include <sys/ioctl.h>
#include <unistd.h>

namespace korvane {
namespace {

void write(FILE *stream, const QByteArray &bytes) {
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
}

void writeLine(FILE *stream, const QString &text) {
    write(stream, UploadText::printable(text).toUtf8() + '\n');
}

} // namespace

void Output::line(const QString &text) {
    writeLine(stdout, text);
}

void Output::raw(const QByteArray &bytes) {
    write(stdout, bytes);
}

void Output::problem(const QString &text, const QStringList &further) {
    note(QStringLiteral("korvane: ") + text);
    for (const QString &line : further)
        note(line);
}

void Output::note(const QString &text) {
    std::fflush(stdout);
    writeLine(stderr, text);
}

bool Output::isTerminal(FILE *stream) {
    const QByteArray kind = qgetenv("TERM");
    return ::isatty(::fileno(stream)) == 1 && !kind.isEmpty() && kind != "dumb";
}

Output::Size Output::terminalSize(FILE *stream) {
    winsize size{};
    if (::ioctl(::fileno(stream), TIOCGWINSZ, &size) != 0 || size.ws_col == 0 || size.ws_row == 0) return {};
    return {size.ws_col, size.ws_row};
}

bool Output::finish() {
    const bool flushed = std::fflush(stdout) == 0;
    if (flushed && std::ferror(stdout) == 0) return true;
    problem(QStringLiteral("Not everything could be written: %1.").arg(QString::fromLocal8Bit(std::strerror(errno))));
    return false;
}

} // namespace korvane
