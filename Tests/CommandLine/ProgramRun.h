// A program, korvane if nothing else is said, run to its end.
#pragma once

#include "Tests/Support/Testing.h"

#include <QProcess>

namespace korvane::test {

struct Ending {
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

inline Ending run(const QByteArrayList &arguments, const QByteArray &input = {},
                  const QString &path = QStringLiteral(KORVANE_PROGRAM)) {
    QStringList texts;
    for (const QByteArray &argument : arguments)
        texts.append(QString::fromUtf8(argument));
    QProcess program;
    program.start(path, texts);
    program.write(input);
    program.closeWriteChannel();
    EXPECT_TRUE(program.waitForFinished(60'000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << program.readAllStandardError().constData();
    return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
}

} // namespace korvane::test
