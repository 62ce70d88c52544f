// The upload service, asked without holding up the window.
#include "ShareSheet/UploadsLink.h"

namespace korvane {
namespace {

constexpr int silenceMilliseconds = 4'000;

} // namespace

UploadsLink::UploadsLink(QObject *parent) : QObject(parent), _client(new UploadsClient) {
    qRegisterMetaType<Upload>();
    _client->moveToThread(&_thread);
    connect(&_thread, &QThread::finished, _client, &QObject::deleteLater);
    connect(&_silenceTimer, &QTimer::timeout, this, &UploadsLink::_look);
    _silenceTimer.setInterval(silenceMilliseconds / 8);
    _thread.setObjectName(QStringLiteral("uploads"));
    _thread.start();
}

UploadsLink::~UploadsLink() {
    _client->interrupt();
    _thread.quit();
    _thread.wait();
}

void UploadsLink::ask(std::function<Answer(UploadsClient &client)> work) {
    if (_open++ == 0) {
        _asked.start();
        _silenceTimer.start();
    }
    QMetaObject::invokeMethod(_client, [this, work = std::move(work)] {
        const Answer answer = work(*_client);
        QMetaObject::invokeMethod(this, [this, answer] {
            --_open;
            _asked.start();
            _look();
            if (answer) answer();
        });
    });
}

void UploadsLink::_look() {
    if (_open == 0) _silenceTimer.stop();
    const bool isSilent = _open > 0 && _asked.hasExpired(silenceMilliseconds);
    if (std::exchange(_isSilent, isSilent) != isSilent) Q_EMIT silentChanged();
}

} // namespace korvane
