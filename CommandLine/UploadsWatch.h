// Follows uploads until none is left to wait for.
#pragma once

#include "CommandLine/ProgressView.h"
#include "FrontEnd/UploadsClient.h"

#include <QEventLoop>
#include <QHash>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace korvane {

// Follows either the given uploads or all there are. Of all uploads only those that run are kept in memory.
// Outlives restarts of the service. Thread: the main one.
class UploadsWatch : public QObject {
    Q_OBJECT

public:
    UploadsWatch(UploadsClient &client, std::unique_ptr<ProgressView> view);

    // The uploads to follow and what people know them by (titles are used where there is no such name). Without a call
    // of this, all uploads are followed.
    void follow(const QStringList &ids, const QHash<QString, QString> &labels);
    // Hears of each change of state, after the view. For JSON lines.
    void setListener(std::function<void(const Upload &upload)> listener) { _listener = std::move(listener); }

    // Blocks until all followed uploads are done, failed or removed. Returns an exit status: 1 where one has failed, 4
    // with the error placed where the service is lost for good, 128 + N after signal N.
    int run(std::optional<NSError> *error);

private:
    bool _synchronize(std::optional<NSError> *error);
    bool _synchronizeFollowed(std::optional<NSError> *error);
    bool _synchronizeAll(std::optional<NSError> *error);
    void _notePause();
    void _changed(const Upload &upload);
    void _removed(const QString &id);
    void _progressed(const QString &id, qint64 bytesSent, qint64 bytesTotal);
    void _resynchronize();
    void _reconnect();
    void _tick();
    void _lookForEnd();
    void _countFollowed();
    void _end(int status);
    QString _label(const Upload &upload) const;

    UploadsClient &_client;
    std::unique_ptr<ProgressView> _view;
    std::function<void(const Upload &upload)> _listener;
    bool _followsAll = true;
    QHash<QString, QString> _labels;
    std::map<qint64, Upload> _uploads; // the followed ones; of all uploads those that run
    UploadCounts _counts;
    QString _waitingReason;
    QEventLoop _loop;
    QTimer _timer;
    bool _dirty = true;        // something moved since the view was last told
    bool _countsAreOld = true; // states changed since the counts were last read
    bool _someFailed = false;
    bool _someRemoved = false; // of those followed, before they were done
    bool _noted = false;       // the pause was told of
    int _reconnections = 0;
    std::optional<int> _status;
    std::optional<NSError> _error;
};

} // namespace korvane
