// A configuration folder of its own, without a keyring, and the log lines that a test causes.
#pragma once

#include "Platform/Accounts/ACAccountStore.h"
#include "Platform/Foundation/NSLog.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <mutex>

namespace korvane {

class AccountsFixture : public testing::Test {
protected:
    AccountsFixture() {
        for (const auto *variable : {"XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "XDG_DATA_HOME", "HOME"})
            qputenv(variable, QFile::encodeName(folder.path()));
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qunsetenv("KORVANE_SECRETS");
        setLogSink([this](const QString &line) {
            const std::lock_guard lock(logMutex);
            log.append(line);
        });
    }
    ~AccountsFixture() override { setLogSink(nullptr); }

    QString path(const char *name) const { return folder.path() + QStringLiteral("/korvane/") + QLatin1String(name); }
    QByteArray contents(const char *name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static ACAccountCredential credentialOf(const char *owner) {
        const QString name = QLatin1String(owner);
        return {name + QStringLiteral("-key"), name + QStringLiteral("-hush1"), name + QStringLiteral("-hush2"),
                name + QStringLiteral("-hush3")};
    }

    const ACAccountType flickr{ACAccountTypeIdentifierFlickr};
    const ACAccountType vimeo{ACAccountTypeIdentifierVimeo};
    QTemporaryDir folder;
    std::mutex logMutex;
    QStringList log;
    ACAccountStore store;
};

} // namespace korvane
