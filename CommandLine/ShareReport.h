// How the uploads of a share go on.
#pragma once

#include "CommandLine/UploadsClient.h"

#include <QByteArrayList>
#include <QString>

#include <optional>

namespace CLI {
class App;
}

namespace korvane {

class SLComposeServiceViewController;

// The options --wait and --json, and what they ask for. what: "photo" or "video".
class ShareReport {
public:
    explicit ShareReport(QString what) : _what(std::move(what)) {}
    void addOptions(CLI::App &command);

    // Of a sheet that has been opened: says which of several accounts is used. False, after saying what to do, if the
    // sheet finds none. service: "flickr" or "vimeo".
    static bool hasAccount(const SLComposeServiceViewController &sheet, const QString &service);
    // Posts; returns the exit status if nothing was shared, after saying why.
    static std::optional<int> post(SLComposeServiceViewController &sheet);
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
