// Follows uploads until none is left to wait for.
#include "CommandLine/UploadsWatch.h"

#include "CommandLine/Interruption.h"
#include "FrontEnd/ExitStatus.h"
#include "FrontEnd/UploadText.h"

#include <chrono>

namespace korvane {
namespace {

using namespace std::chrono_literals;

constexpr auto drawInterval = 150ms;
constexpr int mostReconnections = 5; // a bus that goes away again and again is no bus to wait on

} // namespace

UploadsWatch::UploadsWatch(UploadsClient &client, std::unique_ptr<ProgressView> view)
    : _client(client), _view(std::move(view)) {
    connect(&client, &UploadsClient::changed, this, &UploadsWatch::_changed);
    connect(&client, &UploadsClient::removed, this, &UploadsWatch::_removed);
    connect(&client, &UploadsClient::progressed, this, &UploadsWatch::_progressed);
    connect(&client, &UploadsClient::serviceStarted, this, &UploadsWatch::_resynchronize);
    connect(&client, &UploadsClient::serviceEnded, this, &UploadsWatch::_resynchronize);
    connect(&client, &UploadsClient::busLost, this, &UploadsWatch::_reconnect, Qt::QueuedConnection);
    connect(&_timer, &QTimer::timeout, this, &UploadsWatch::_tick);
}

void UploadsWatch::follow(const QStringList &ids, const QHash<QString, QString> &labels) {
    _followsAll = false;
    _labels = labels;
    for (const QString &id : ids)
        _uploads[id.toLongLong()].id = id;
}

int UploadsWatch::run(std::optional<NSError> *error) {
    if (!_client.subscribe(error) || !_synchronize(error)) return ExitUnreachable;
    const Interruption interruption([this](int signal) { _end(128 + signal); });
    _notePause();
    _timer.start(drawInterval);
    _tick();
    if (!_status) _loop.exec();
    _timer.stop();
    _view->finish();
    setError(error, _error);
    return _status.value_or(ExitDone);
}

bool UploadsWatch::_synchronize(std::optional<NSError> *error) {
    _dirty = true;
    _countsAreOld = true;
    return _followsAll ? _synchronizeAll(error) : _synchronizeFollowed(error);
}

bool UploadsWatch::_synchronizeFollowed(std::optional<NSError> *error) {
    QStringList ids;
    for (const auto &[number, upload] : _uploads)
        ids.append(upload.id);
    const auto found = _client.get(ids, error);
    if (!found) return false;
    for (const Upload &upload : *found) {
        ids.removeOne(upload.id);
        _changed(upload);
    }
    for (const QString &gone : std::as_const(ids))
        _removed(gone);
    return true;
}

bool UploadsWatch::_synchronizeAll(std::optional<NSError> *error) {
    _uploads.clear();
    return _client.forEach(
        [this](const Upload &upload) {
            if (upload.isRunning()) _uploads[upload.id.toLongLong()] = upload;
            if (upload.isWaiting()) _waitingReason = UploadText::reason(upload);
        },
        error);
}

void UploadsWatch::_notePause() {
    const bool isPaused = _client.isPaused(nullptr).value_or(false);
    if (isPaused && !_noted)
        _view->note(QStringLiteral("Uploads are paused. They go on after: korvane uploads resume"));
    _noted = isPaused;
}

// Signals that were sent before the answer to a look-up come after it: what is done stays done.
void UploadsWatch::_changed(const Upload &upload) {
    const qint64 number = upload.id.toLongLong();
    const auto known = _uploads.find(number);
    const bool isKnown = known != _uploads.end();
    if (!_followsAll && (!isKnown || known->second.isDone())) return;
    const bool isFirstLook = isKnown && known->second.state.isEmpty();
    const bool isNew = !isKnown || known->second.state != upload.state || known->second.waitingFor != upload.waitingFor;
    if (!_followsAll || upload.isRunning())
        _uploads[number] = upload;
    else if (isKnown)
        _uploads.erase(known);
    if (upload.isWaiting()) _waitingReason = UploadText::reason(upload);
    _dirty = _countsAreOld = true;
    if (!isNew || (isFirstLook && upload.state == QLatin1String("queued"))) return;
    _someFailed |= _followsAll && upload.hasFailed();
    _view->stateChanged(upload, _label(upload));
    if (_listener) _listener(upload);
}

void UploadsWatch::_removed(const QString &id) {
    const auto known = _uploads.find(id.toLongLong());
    _dirty = _countsAreOld = true;
    if (known == _uploads.end()) return;
    const QString label = _label(known->second);
    _someRemoved |= !_followsAll && !known->second.isDone();
    _uploads.erase(known);
    _view->removed(id, label);
}

void UploadsWatch::_progressed(const QString &id, qint64 bytesSent, qint64 bytesTotal) {
    const auto known = _uploads.find(id.toLongLong());
    if (known == _uploads.end() || !known->second.isRunning()) return;
    known->second.bytesSent = bytesSent;
    known->second.bytesTotal = bytesTotal;
    _dirty = true;
}

// The look-up also starts a service that has ended. Its end may be in order (nothing left to do), so one failure is
// final.
void UploadsWatch::_resynchronize() {
    if (_status || _synchronize(&_error)) return;
    _reconnect();
}

// A private bus ends with its service; both start again together. Any other bus is lost for good.
void UploadsWatch::_reconnect() {
    if (_status) return;
    _error.reset();
    if (++_reconnections > mostReconnections || !_client.connectToBus(&_error) || !_client.subscribe(&_error) ||
        !_synchronize(&_error))
        return _end(ExitUnreachable);
    _error.reset();
}

void UploadsWatch::_tick() {
    if (_status || !std::exchange(_dirty, false)) return;
    _lookForEnd();
    ProgressTally tally;
    tally.queued = _counts.queued;
    tally.waiting = _counts.waiting;
    tally.done = _counts.done;
    tally.failed = _counts.failed;
    tally.waitingReason = _waitingReason;
    for (const auto &[number, upload] : _uploads) {
        if (upload.isRunning()) tally.running.push_back({_label(upload), upload.bytesSent, upload.bytesTotal});
        if (_followsAll || upload.hasFailed()) continue;
        tally.bytesSent += upload.isDone() ? upload.bytesTotal : upload.bytesSent;
        tally.bytesTotal += upload.bytesTotal;
    }
    _view->progress(tally);
}

void UploadsWatch::_lookForEnd() {
    if (std::exchange(_countsAreOld, false)) {
        if (!_followsAll)
            _countFollowed();
        else if (const auto counts = _client.counts(&_error))
            _counts = *counts;
        else
            return _reconnect();
    }
    if (_counts.pending() == 0) _end(_someFailed ? ExitUploadFailed : ExitDone);
}

void UploadsWatch::_countFollowed() {
    _counts = {};
    for (const auto &[number, upload] : _uploads)
        _counts.add(upload.state);
    _someFailed = _someRemoved || _counts.failed > 0;
}

void UploadsWatch::_end(int status) {
    if (!_status) _status = status;
    _loop.quit();
}

QString UploadsWatch::_label(const Upload &upload) const {
    const QString label = _labels.value(upload.id, upload.title);
    return label.isEmpty() ? QStringLiteral("no title") : label;
}

} // namespace korvane
