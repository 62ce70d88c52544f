// The uploads page: what it shows and what can be done there.
#include "ShareSheet/Uploads.h"

#include "ShareSheet/ThumbnailProvider.h"

#include <QSet>

#include <algorithm>
#include <chrono>
#include <limits>

namespace korvane {
namespace {

using namespace std::chrono_literals;

constexpr auto changeInterval = 50ms; // more often nobody sees it
constexpr auto countInterval = 250ms;
constexpr auto retryDelay = 1000ms;
constexpr int longestRetryDelays = 30; // of those
constexpr quint32 pageRows = 200;
constexpr quint32 mostRunning = 100;
constexpr qint64 newestID = std::numeric_limits<qint64>::max();

QStringList statesOf(Uploads::Filter filter) {
    switch (filter) {
    case Uploads::Filter::Pending:
        return {QStringLiteral("queued"), QStringLiteral("running"), QStringLiteral("waiting")};
    case Uploads::Filter::Failed:
        return {QStringLiteral("failed")};
    case Uploads::Filter::Done:
        return {QStringLiteral("done")};
    case Uploads::Filter::All:
        break;
    }
    return {};
}

} // namespace

struct Uploads::Snapshot {
    std::optional<NSError> error;
    std::optional<std::vector<Upload>> page;
    std::optional<std::vector<Upload>> running;
    std::optional<UploadCounts> counts;
    std::optional<bool> paused;
    bool isLast = false;
};

Uploads::Uploads(QObject *parent) : QObject(parent) {
    const UploadsClient *client = &_link.client();
    connect(client, &UploadsClient::changed, this, &Uploads::_changed);
    connect(client, &UploadsClient::removed, this, [this](const QString &id) {
        _changes.remove(id);
        _model.remove(id);
        _countTimer.start();
    });
    connect(client, &UploadsClient::progressed, &_model, &UploadsModel::setProgress);
    connect(client, &UploadsClient::serviceStarted, this, &Uploads::_load);
    connect(client, &UploadsClient::serviceEnded, this, &Uploads::_serviceEnded);
    connect(client, &UploadsClient::busLost, this, [this] { _retryTimer.start(retryDelay); });
    connect(&_link, &UploadsLink::silentChanged, this, &Uploads::connectionChanged);
    connect(&_model, &UploadsModel::moreWanted, this, &Uploads::_fetchMore);
    connect(&_model, &UploadsModel::thumbnailWanted, this, [this](const QString &id) {
        _thumbnailsWanted.append(id);
        if (!_thumbnailTimer.isActive()) _thumbnailTimer.start();
    });
    for (const auto &[timer, work] : {std::pair{&_changeTimer, &Uploads::_applyChanges},
                                      {&_thumbnailTimer, &Uploads::_askForThumbnails},
                                      {&_countTimer, &Uploads::_lookAtCounts},
                                      {&_retryTimer, &Uploads::reconnect}}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, work);
    }
    _changeTimer.setInterval(changeInterval);
    _thumbnailTimer.setInterval(changeInterval);
    _countTimer.setInterval(countInterval);
    reconnect();
}

void Uploads::reconnect() {
    _retryTimer.stop();
    if (_state == Connection::Ended) _setState(Connection::Connecting);
    _link.ask([this](UploadsClient &client) -> UploadsLink::Answer {
        std::optional<NSError> error;
        const bool connected = client.connectToBus(&error) && client.subscribe(&error);
        return [this, connected, error] { connected ? _load() : _lost(*error); };
    });
}

void Uploads::_load() {
    const quint64 loading = ++_loading;
    const auto count = quint32(_model.countToAskFor());
    _link.ask([this, loading, count, states = _model.states()](UploadsClient &client) -> UploadsLink::Answer {
        Snapshot now;
        now.page = client.recent(newestID, count, states, &now.error);
        if (now.page) now.running = client.recent(newestID, mostRunning, {QStringLiteral("running")}, &now.error);
        if (now.running) now.counts = client.counts(&now.error);
        if (now.counts) now.paused = client.isPaused(&now.error);
        now.isLast = now.page && now.page->size() < count;
        return [this, loading, now] {
            if (loading == _loading) _loaded(now);
        };
    });
}

void Uploads::_loaded(const Snapshot &snapshot) {
    if (!snapshot.paused) return _lost(*snapshot.error);
    if (_failures > 0) _setProblem({});
    _failures = 0;
    _setState(Connection::Connected);
    _model.replace(*snapshot.page, *snapshot.running, snapshot.isLast);
    _setCounts(*snapshot.counts, *snapshot.paused);
}

// Here and below: asking would start a service that has ended.
void Uploads::_fetchMore() {
    if (_state != Connection::Connected) return _model.fetchFailed();
    const qint64 before = _model.oldest();
    const quint32 count = pageRows;
    const quint64 loading = _loading;
    _link.ask([=, this, states = _model.states()](UploadsClient &client) -> UploadsLink::Answer {
        std::optional<NSError> error;
        const auto page = client.recent(before, count, states, &error);
        return [=, this] {
            if (loading != _loading) return _model.fetchFailed();
            if (page) return _model.append(before, *page, page->size() < count);
            _model.fetchFailed();
            _lost(*error);
        };
    });
}

void Uploads::_changed(const Upload &upload) {
    _changes.insert(upload.id, upload);
    _countsAreOld = true;
    if (!_changeTimer.isActive()) _changeTimer.start();
}

void Uploads::_applyChanges() {
    const QHash<QString, Upload> changes = std::exchange(_changes, {});
    _model.apply({changes.begin(), changes.end()});
    if (!_countTimer.isActive()) _countTimer.start();
}

void Uploads::_lookAtCounts() {
    if (_state != Connection::Connected) return;
    _link.ask([this](UploadsClient &client) -> UploadsLink::Answer {
        std::optional<NSError> error;
        const auto counts = client.counts(&error);
        const auto paused = counts ? client.isPaused(&error) : std::nullopt;
        return [this, counts, paused] {
            if (paused) _setCounts(*counts, *paused);
        };
    });
}

// What is nowhere to be read has none, and its row shows a sign instead.
void Uploads::_askForThumbnails() {
    const QStringList ids = std::exchange(_thumbnailsWanted, {});
    if (_state != Connection::Connected) return _model.forgetThumbnails(ids);
    _link.ask([this, ids](UploadsClient &client) -> UploadsLink::Answer {
        std::optional<NSError> error;
        const auto uploads = client.get(ids, &error);
        const auto sources = uploads ? client.sources(ids, &error) : std::nullopt;
        if (!sources) return [this, ids] { _model.forgetThumbnails(ids); };
        QSet<QString> videos;
        for (const Upload &upload : *uploads)
            if (upload.service == QLatin1String("vimeo")) videos.insert(upload.id);
        QHash<QString, QString> addresses;
        for (const UploadSource &source : *sources)
            addresses.insert(source.id, ThumbnailProvider::address(source.path, source.offset, source.length,
                                                                   videos.contains(source.id)));
        return [this, addresses] { _model.setThumbnails(addresses); };
    });
}

// With nothing left to do it has ended for good reason, and asking would only start it again.
void Uploads::_serviceEnded() {
    if (pending() > 0 || _countsAreOld)
        _retryTimer.start(retryDelay);
    else
        _setState(Connection::Ended);
}

void Uploads::_lost(const NSError &error) {
    _setProblem(error.localizedDescription());
    _setState(Connection::Lost);
    _failures = std::min(_failures * 2 + 1, longestRetryDelays);
    _retryTimer.start(retryDelay * _failures);
}

void Uploads::setFilter(Filter filter) {
    if (filter == _filter) return;
    _filter = filter;
    _model.setStates(statesOf(filter));
    Q_EMIT filterChanged();
    if (_state == Connection::Connected) _load();
    if (_state == Connection::Ended) reconnect(); // the person wants to see them
}

void Uploads::_act(std::function<bool(UploadsClient &client, std::optional<NSError> *error)> action) {
    _setProblem({});
    _link.ask([this, action = std::move(action)](UploadsClient &client) -> UploadsLink::Answer {
        std::optional<NSError> error;
        const bool done = action(client, &error);
        return [this, done, error] { done ? _lookAtCounts() : _setProblem(error->localizedDescription()); };
    });
}

void Uploads::retry(const QString &id) {
    _act([id](UploadsClient &client, std::optional<NSError> *error) { return client.retry({id}, error).has_value(); });
}

void Uploads::retryAll() {
    _act([](UploadsClient &client, std::optional<NSError> *error) {
        QStringList ids;
        const auto collect = [&](const Upload &upload) {
            if (upload.isRetriedWithAll()) ids.append(upload.id);
        };
        return client.forEach(collect, error) && client.retry(ids, error);
    });
}

void Uploads::remove(const QString &id) {
    _act([id](UploadsClient &client, std::optional<NSError> *error) { return client.remove({id}, error).has_value(); });
}

void Uploads::clearDone() {
    _act([](UploadsClient &client, std::optional<NSError> *error) { return client.clear(error).has_value(); });
}

void Uploads::setPaused(bool paused) {
    _act([paused](UploadsClient &client, std::optional<NSError> *error) { return client.setPaused(paused, error); });
}

void Uploads::_setCounts(const UploadCounts &counts, bool paused) {
    _counts = counts;
    _countsAreOld = _changeTimer.isActive() || _countTimer.isActive();
    _isPaused = paused;
    Q_EMIT countsChanged();
}

void Uploads::_setState(Connection state) {
    _state = state;
    Q_EMIT connectionChanged();
}

void Uploads::_setProblem(const QString &problem) {
    if (std::exchange(_problem, problem) != problem) Q_EMIT problemChanged();
}

} // namespace korvane
