// The uploads page: what it shows and what can be done there.
#pragma once

#include "ShareSheet/UploadsLink.h"
#include "ShareSheet/UploadsModel.h"

#include <QHash>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>

namespace korvane {

// Follows the upload service through its restarts. Thread: main.
class Uploads : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the program has it")
    Q_PROPERTY(korvane::UploadsModel *model READ model CONSTANT)
    Q_PROPERTY(Connection connection READ connection NOTIFY connectionChanged)
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)
    Q_PROPERTY(bool paused READ isPaused NOTIFY countsChanged)
    Q_PROPERTY(Filter filter READ filter WRITE setFilter NOTIFY filterChanged)
    Q_PROPERTY(qint64 total READ total NOTIFY countsChanged)
    Q_PROPERTY(qint64 pending READ pending NOTIFY countsChanged)
    Q_PROPERTY(qint64 waiting READ waiting NOTIFY countsChanged)
    Q_PROPERTY(qint64 failed READ failed NOTIFY countsChanged)
    Q_PROPERTY(qint64 done READ done NOTIFY countsChanged)

public:
    // To the upload service.
    enum class Connection {
        Connecting,
        Connected,
        Silent, // it does not answer for now
        Ended,  // nothing is left to do
        Lost    // it is tried again
    };
    Q_ENUM(Connection)
    // What is shown.
    enum class Filter {
        All,
        Pending, // queued, running, waiting
        Failed,
        Done
    };
    Q_ENUM(Filter)

    explicit Uploads(QObject *parent = nullptr);

    UploadsModel *model() { return &_model; }
    Connection connection() const { return _link.isSilent() ? Connection::Silent : _state; }
    // What went wrong last, for people; empty if nothing did.
    QString problem() const { return _problem; }
    bool isPaused() const { return _isPaused; }

    Filter filter() const { return _filter; }
    void setFilter(Filter filter);

    // How many there are.
    qint64 total() const { return _counts.total(); }
    qint64 pending() const { return _counts.pending(); }
    qint64 waiting() const { return _counts.waiting; } // of those
    qint64 failed() const { return _counts.failed; }
    qint64 done() const { return _counts.done; }

    Q_INVOKABLE void retry(const QString &id);
    Q_INVOKABLE void retryAll();
    Q_INVOKABLE void remove(const QString &id);
    Q_INVOKABLE void clearDone();
    Q_INVOKABLE void setPaused(bool paused);
    Q_INVOKABLE void reconnect();
    Q_INVOKABLE void forgetProblem() { _setProblem({}); }

Q_SIGNALS:
    void connectionChanged();
    void problemChanged();
    void countsChanged();
    void filterChanged();

private:
    struct Snapshot;

    void _load();
    void _loaded(const Snapshot &snapshot);
    void _fetchMore();
    void _changed(const Upload &upload);
    void _applyChanges();
    void _lookAtCounts();
    void _askForThumbnails();
    void _serviceEnded();
    void _lost(const NSError &error);
    // Does something to uploads; the outcome comes back as changes.
    void _act(std::function<bool(UploadsClient &client, std::optional<NSError> *error)> action);
    void _setState(Connection state);
    void _setProblem(const QString &problem);
    void _setCounts(const UploadCounts &counts, bool paused);

    UploadsModel _model;
    Connection _state = Connection::Connecting; // but for silence
    QString _problem;
    Filter _filter = Filter::All;
    UploadCounts _counts;
    bool _countsAreOld = false; // there was news since
    bool _isPaused = false;
    quint64 _loading = 0;            // the number of the load that counts
    QHash<QString, Upload> _changes; // not shown yet
    QStringList _thumbnailsWanted;   // ids
    QTimer _thumbnailTimer;
    QTimer _changeTimer;
    QTimer _countTimer;
    QTimer _retryTimer;
    int _failures = 0; // to reach the service, in a row
    UploadsLink _link; // last: it ends before what it answers to
};

} // namespace korvane
