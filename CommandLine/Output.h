// Standard output and standard error, as the commands write them.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdio>

namespace korvane {

namespace Output {

// One line on standard output; text is written as UTF-8, with control characters replaced.
void line(const QString &text);
// Bytes on standard output as they are.
void raw(const QByteArray &bytes);
// One line on standard error, as "korvane: TEXT", and further lines as they are; written as above.
void problem(const QString &text, const QStringList &further = {});
// One line on standard error, for what is worth knowing and no problem.
void note(const QString &text);

// Whether the stream is a terminal that understands cursor movement.
bool isTerminal(FILE *stream);
// Columns and rows of the terminal behind the stream; 80 and 24 where that cannot be told.
struct Size {
    int columns = 80;
    int rows = 24;
};
Size terminalSize(FILE *stream);

// Writes what is buffered. False, after saying so, if standard output did not take everything.
bool finish();

} // namespace Output

} // namespace korvane
