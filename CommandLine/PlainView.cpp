// Progress as plain lines.
#include "CommandLine/PlainView.h"

#include "FrontEnd/UploadText.h"

namespace korvane {

QString PlainView::lineOf(const Upload &upload, const QString &label) {
    QString line = QStringLiteral("%1 (%2): ").arg(upload.id, UploadText::printable(label)) + UploadText::state(upload);
    if (upload.isRunning() && upload.attempts > 1) line += QStringLiteral(", attempt %1").arg(upload.attempts);
    if (upload.isDone() && upload.bytesTotal > 0) line += QStringLiteral(", ") + UploadText::bytes(upload.bytesTotal);
    return line;
}

void PlainView::stateChanged(const Upload &upload, const QString &label) {
    note(lineOf(upload, label));
}

void PlainView::removed(const QString &id, const QString &label) {
    note(QStringLiteral("%1 (%2): removed").arg(id, label));
}

void PlainView::note(const QString &text) {
    std::fputs((UploadText::printable(text).toUtf8() + '\n').constData(), _stream);
    std::fflush(_stream);
}

} // namespace korvane
