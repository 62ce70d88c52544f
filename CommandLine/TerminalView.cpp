// Progress as bars at the bottom of a terminal.
#include "CommandLine/TerminalView.h"

#include "CommandLine/Output.h"
#include "CommandLine/PlainView.h"
#include "FrontEnd/UploadText.h"

#include <algorithm>

namespace korvane {
namespace {

constexpr int barColumns = 22;
constexpr int figureColumns = 20; // "999.9 MB of 999.9 MB"
constexpr int leastLabelColumns = 8;
constexpr int mostLabelColumns = 40;

QString percent(qint64 sent, qint64 total) {
    return QStringLiteral("%1%").arg(total > 0 ? int(100.0 * double(std::min(sent, total)) / double(total)) : 0, 4);
}

// The bar gives way on a narrow terminal first, the figures next. No line ends in spaces: terminals that wrap what they
// show anew do not count them.
TerminalView::Line lineWithBar(const QString &label, int labelColumns, qint64 sent, qint64 total, int columns) {
    const QString share = percent(sent, total);
    const QString figures =
        share + QStringLiteral("  ") + UploadText::cut(UploadText::progress(sent, total), figureColumns);
    const int labelAndBar = columns - figureColumns - 8; // beside percentage and spaces
    if (labelAndBar < leastLabelColumns)
        return {UploadText::cut(UploadText::padded(label, std::max(1, columns - 6)) + share, columns)};
    if (labelAndBar < leastLabelColumns + barColumns + 1)
        return {UploadText::padded(label, std::min(labelAndBar, labelColumns)) + u' ' + figures};
    const QString start = UploadText::padded(label, std::min(labelAndBar - barColumns - 1, labelColumns)) + u' ';
    const QString bar = TerminalView::bar(sent, total, barColumns);
    return {start + bar + u' ' + figures, start.size() + 1, bar.count(u'#')};
}

// As many columns as the longest label needs, within reason.
int labelColumnsOf(const ProgressTally &tally) {
    int columns = leastLabelColumns;
    for (const auto &upload : tally.running)
        columns = std::max(columns, UploadText::width(UploadText::printable(upload.label)));
    return std::min(columns, mostLabelColumns);
}

QString summary(const ProgressTally &tally) {
    QStringList parts;
    const auto add = [&](qint64 count, const QString &what) {
        if (count > 0) parts.append(QStringLiteral("%1 %2").arg(count).arg(what));
    };
    add(tally.done, QStringLiteral("done"));
    add(qint64(tally.running.size()), QStringLiteral("running"));
    add(tally.queued, QStringLiteral("queued"));
    add(tally.waiting, QStringLiteral("waiting"));
    add(tally.failed, QStringLiteral("failed"));
    QString text = parts.join(QStringLiteral(", "));
    if (tally.waiting > 0 && !tally.waitingReason.isEmpty()) text += QStringLiteral(" - ") + tally.waitingReason;
    return text;
}

} // namespace

QString TerminalView::bar(qint64 sent, qint64 total, int columns) {
    const int inner = std::max(0, columns - 2);
    const double share = total > 0 ? std::clamp(double(sent) / double(total), 0.0, 1.0) : 0.0;
    const int filled = int(share * inner);
    return u'[' + QString(filled, u'#') + QString(inner - filled, u'-') + u']';
}

std::vector<TerminalView::Line> TerminalView::lines(const ProgressTally &tally, int columns, int rows) {
    const int usable = std::max(1, columns - 1);
    const qsizetype bars = std::min<qsizetype>(qsizetype(tally.running.size()), std::max(0, rows - 3));
    const int labelColumns = labelColumnsOf(tally);
    std::vector<Line> lines;
    for (qsizetype i = 0; i < bars; ++i) {
        const auto &upload = tally.running[size_t(i)];
        lines.push_back(lineWithBar(UploadText::printable(upload.label), labelColumns, upload.bytesSent,
                                    upload.bytesTotal, usable));
    }
    if (tally.bytesTotal > 0 && rows > 2)
        lines.push_back(lineWithBar(QStringLiteral("Total"), labelColumns, tally.bytesSent, tally.bytesTotal, usable));
    lines.push_back({UploadText::cut(UploadText::printable(summary(tally)), usable)});
    return lines;
}

TerminalView::TerminalView(FILE *stream) : _stream(stream), _hasColours(qEnvironmentVariableIsEmpty("NO_COLOR")) {}

void TerminalView::stateChanged(const Upload &upload, const QString &label) {
    if (upload.hasFailed()) _permanent(PlainView::lineOf(upload, label), "31");
    if (upload.isWaiting()) _permanent(PlainView::lineOf(upload, label), "33");
}

void TerminalView::removed(const QString &id, const QString &label) {
    _permanent(QStringLiteral("%1 (%2): removed").arg(id, label), "33");
}

void TerminalView::note(const QString &text) {
    _permanent(text, "1");
}

void TerminalView::progress(const ProgressTally &tally) {
    const auto size = Output::terminalSize(_stream);
    QByteArray bytes = _eraseDrawn();
    _drawn = lines(tally, size.columns, size.rows);
    for (const Line &line : _drawn)
        bytes += _coloured(line) + '\n';
    _write(bytes);
}

void TerminalView::finish() {
    _drawn.clear(); // the last bars stay
}

// A terminal that became narrower has wrapped the lines that were drawn: they take more rows now.
QByteArray TerminalView::_eraseDrawn() {
    if (_drawn.empty()) return {};
    const auto size = Output::terminalSize(_stream);
    int rows = 0;
    for (const Line &line : _drawn)
        rows += std::max(1, (UploadText::width(line.text) + size.columns - 1) / size.columns);
    _drawn.clear();
    return "\x1b[" + QByteArray::number(std::min(rows, size.rows - 1)) + "F\x1b[J";
}

QByteArray TerminalView::_coloured(const Line &line) const {
    if (!_hasColours || line.filledLength == 0) return line.text.toUtf8();
    const qsizetype end = line.filledStart + line.filledLength;
    return line.text.left(line.filledStart).toUtf8() + "\x1b[32m" +
           line.text.mid(line.filledStart, line.filledLength).toUtf8() + "\x1b[0m" + line.text.mid(end).toUtf8();
}

void TerminalView::_permanent(const QString &text, const char *colour) {
    const QByteArray plain = UploadText::printable(text).toUtf8();
    const QByteArray shown = _hasColours ? "\x1b[" + QByteArray(colour) + 'm' + plain + "\x1b[0m" : plain;
    _write(_eraseDrawn() + shown + '\n');
}

void TerminalView::_write(const QByteArray &bytes) {
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), _stream);
    std::fflush(_stream);
}

} // namespace korvane
