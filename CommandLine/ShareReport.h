// How the uploads of a share go on.
#pragma once

#include "FrontEnd/UploadsClient.h"

#include <QByteArrayList>
#include <QString>

#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace korvane {

// The options --wait and --json, and what they ask for. what: "photo" or "video".
class ShareReport {
public:
    explicit ShareReport(QString what) : _what(std::move(what)) {}
    // explanation: the command's own, put before what is true of every share.
    void addTo(CLI::App &command, const std::string &explanation);
    // After the hand-over of these files; blocks with --wait. choices: what people should know that it was shared with,
    // as "Audience: Public". Returns the exit status.
    int succeeded(const QByteArrayList &files, const QString &messageID, const QStringList &choices) const;

private:
    QString _counted(qsizetype count) const;
    int _wait(UploadsClient &client, const QStringList &ids, const QByteArrayList &files,
              std::optional<NSError> *error) const;

    const QString _what;
    bool _waits = false;
    bool _json = false;
};

} // namespace korvane
