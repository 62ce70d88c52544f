// The window with something to share in it.
#pragma once

#include "Tests/ShareSheet/SheetHarness.h"

#include <QProcess>

namespace korvane::test {

struct ShareWindow : SheetTest {
    QString film(const char *name = "film.mp4") {
        const QString path = home.path(name);
        const QString arguments = QStringLiteral("-v error -f lavfi -i testsrc2=s=320x180 -t 1 %1").arg(path);
        EXPECT_EQ(QProcess::execute(QStringLiteral("ffmpeg"), arguments.split(u' ')), 0);
        return path;
    }
    void leaveForSettings() {
        user->clicks(QStringLiteral("Settings"));
        ASSERT_TRUE(waitFor([&] { return application->settings(); }));
        user->waitsUntilStill();
    }
    QString value(int item) const { return sheet().items().at(item).toMap().value(QStringLiteral("value")).toString(); }
    QByteArray titleOf(size_t upload) const { return standin::valueOf(server.photos().at(upload).parameters, "title"); }
};

} // namespace korvane::test
