// How the uploads of a share go on.
#pragma once

#include "CommandLine/UploadsClient.h"
#include "Platform/Foundation/NSError.h"

#include <QByteArrayList>
#include <QString>

#include <optional>

namespace CLI {
class App;
}

namespace korvane {

// The options --wait and --json, and what they ask for. what: "photo" or "video".
class ShareReport {
public:
    explicit ShareReport(QString what) : _what(std::move(what)) {}
    void addOptions(CLI::App &command);

    // Says which account of the service is used. False, after saying what to do, if there is none.
    static bool hasAccount(const QString &service);
    // Says why nothing was shared; returns the exit status.
    static int failed(const std::optional<NSError> &error);
    // After the hand-over of these files; blocks with --wait. Returns the exit status.
    int succeeded(const QByteArrayList &files, const QString &messageID) const;

private:
    QString _counted(qsizetype count) const;
    int _wait(UploadsClient &client, const QStringList &ids, const QByteArrayList &files,
              std::optional<NSError> *error) const;

    const QString _what;
    bool _waits = false;
    bool _json = false;
};

} // namespace korvane
