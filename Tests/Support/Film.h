// A film of a second, made on the spot.
#pragma once

#include "Platform/Foundation/ChildProcess.h"
#include "Tests/Support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <QDir>

namespace korvane::test {

// Below the home folder; returns its path. source: what it shows or sounds like, as ffmpeg's lavfi names it. QProcess
// would confuse the thread sanitizer.
inline QString makeFilm(const TemporaryHome &home, const char *name, const QByteArray &source = "testsrc2=s=320x180") {
    const QString path = home.path(name);
    QDir().mkpath(path.section(u'/', 0, -2));
    const auto result =
        ChildProcess("ffmpeg", {"-v", "error", "-f", "lavfi", "-i", source, "-t", "1", QFile::encodeName(path)}).run();
    EXPECT_TRUE(result && result->succeeded()) << (result ? result->standardError.constData() : "");
    return path;
}

} // namespace korvane::test
