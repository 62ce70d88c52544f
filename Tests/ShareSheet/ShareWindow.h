// The window with something to share in it.
#pragma once

#include "Tests/ShareSheet/SheetHarness.h"
#include "Tests/Support/Film.h"

namespace korvane::test {

struct ShareWindow : SheetTest {
    void leaveForSettings() {
        user->clicks(QStringLiteral("Settings"));
        ASSERT_TRUE(waitFor([&] { return application->settings(); }));
        user->waitsUntilStill();
    }
    // Opens it, until what is shared has been looked at.
    void openFully(const QByteArrayList &arguments) {
        open(arguments);
        ASSERT_TRUE(waitFor([this] { return !sheet().attachments()->isPreparing(); }));
    }
    // On the option screen behind that row.
    void choose(const char *row, const char *choice) {
        user->clicks(text(row));
        user->clicks(text(choice));
        user->clicks(text("Back"));
    }
    // Presses Post, until so many uploads have arrived, those before included.
    void postUntilDone(int uploads = 1) {
        user->clicks(text("Post"));
        ASSERT_TRUE(waitForEnd());
        EXPECT_EQ(*status, 0);
        ASSERT_TRUE(waitForState("done", uploads)) << qPrintable(errorOf(0));
    }
    QByteArray titleOf(size_t upload) const { return standin::valueOf(server.photos().at(upload).parameters, "title"); }
};

} // namespace korvane::test
