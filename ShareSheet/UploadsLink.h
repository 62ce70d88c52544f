// The upload service, asked without holding up the window.
#pragma once

#include "FrontEnd/UploadsClient.h"

#include <QElapsedTimer>
#include <QObject>
#include <QThread>
#include <QTimer>

#include <functional>

namespace korvane {

// The client's calls block, for as long as the service takes; so it lives on a thread of its own. What is asked is
// answered one after another. Thread: the main one; so are answers.
class UploadsLink : public QObject {
    Q_OBJECT

public:
    explicit UploadsLink(QObject *parent = nullptr);
    // Breaks off what is asked; nothing is answered any more.
    ~UploadsLink() override;

    // For its signals.
    const UploadsClient &client() const { return *_client; }

    // Runs the work on the link's thread, and then what it returns on the main one.
    using Answer = std::function<void()>;
    void ask(std::function<Answer(UploadsClient &client)> work);

    // For seconds now the service has not answered what it was asked.
    bool isSilent() const { return _isSilent; }

Q_SIGNALS:
    void silentChanged();

private:
    void _look();

    QThread _thread;
    UploadsClient *_client; // on the thread
    QTimer _silenceTimer;
    QElapsedTimer _asked; // since the oldest question without an answer
    int _open = 0;        // questions without one
    bool _isSilent = false;
};

} // namespace korvane
