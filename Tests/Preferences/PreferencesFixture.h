// A configuration folder of its own, and the log lines that a test causes.
#pragma once

#include "Tests/Support/Testing.h"

namespace korvane::test {

class PreferencesFixture : public testing::Test {
protected:
    PreferencesFixture() {
        for (const auto *variable : {"KORVANE_FLICKR_URL", "KORVANE_VIMEO_URL"})
            home.setEnvironment(variable, {});
    }

    // The domain's file, below the home folder.
    static QString fileOf(const QString &domain) {
        return QStringLiteral("config/korvane/preferences/%1.json").arg(domain);
    }
    // Replaces it the way another program would.
    void put(const QString &domain, const QByteArray &text) const {
        QFile::remove(home.path(fileOf(domain)));
        home.file(fileOf(domain), text);
    }

    TemporaryHome home;
    LogCapture log;
};

} // namespace korvane::test
