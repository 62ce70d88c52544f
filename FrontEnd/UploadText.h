// How uploads are told of in words, columns and JSON.
#pragma once

#include "FrontEnd/Upload.h"

#include <QByteArray>
#include <QString>

namespace korvane {

namespace UploadText {

// "512 bytes", "12 kB", "12.3 MB", "1.25 GB"; a unit is 1000 of the one before.
QString bytes(qint64 count);
// "1.2 MB of 4.1 MB"; only the first where the total is not known; empty where nothing is known.
QString progress(qint64 sent, qint64 total);

// The text without anything that a terminal takes as a command or that hides other text: white-space controls become
// spaces, other controls, bidirectional overrides and broken characters become U+FFFD.
QString printable(const QString &text);
// Columns that printable text takes on a terminal.
int width(const QString &text);
// The text in at most that many columns, with an ellipsis where something was left off. Characters are never cut in
// two.
QString cut(const QString &text, int columns);
// A name from elsewhere as it stands in a sentence: printable, and cut to what is read at a glance.
QString brief(const QString &name);
// The text cut or filled with spaces to exactly that many columns.
QString padded(const QString &text, int columns);

// Why an upload is waiting or has failed, in one line; empty in other states.
QString reason(const Upload &upload);
// The state with its reason: "waiting for the network until 14:05 at the latest: …".
QString state(const Upload &upload);
// One row of the table of uploads, and the row above it. columns: 0 for as wide as it gets.
QString tableRow(const Upload &upload, int columns);
QString tableHead();

// One JSON object, on one line, without line break.
QByteArray json(const Upload &upload);

} // namespace UploadText

} // namespace korvane
