// A configuration folder of its own, and the log lines that a test causes.
#pragma once

#include "Platform/Foundation/NSLog.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <mutex>

namespace korvane {

class PreferencesFixture : public testing::Test {
protected:
    PreferencesFixture() {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
        qunsetenv("KORVANE_FLICKR_URL");
        qunsetenv("KORVANE_VIMEO_URL");
        setLogSink([this](const QString &line) {
            const std::lock_guard lock(logMutex);
            log.append(line);
        });
    }
    ~PreferencesFixture() override { setLogSink(nullptr); }

    QString fileOf(const QString &domain) const {
        return folder.path() + QStringLiteral("/korvane/preferences/") + domain + QStringLiteral(".json");
    }
    // Replaces the domain's file the way another program would.
    void put(const QString &domain, const QByteArray &text) {
        ASSERT_TRUE(QDir().mkpath(folder.path() + QStringLiteral("/korvane/preferences")));
        QFile::remove(fileOf(domain));
        QFile file(fileOf(domain));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QByteArray contents(const QString &path) const {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    std::mutex logMutex;
    QStringList log;
};

} // namespace korvane
