// korvane-uploadd: the upload service.
#include "Platform/Foundation/NSLog.h"
#include "Service/UploadService.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QSocketNotifier>

#include <sys/signalfd.h>
#include <sys/stat.h>

#include <csignal>

namespace {

// The signals that ask for an orderly end, as a descriptor for the event loop. Before the first thread starts.
int endSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&signals, signal);
    ::sigprocmask(SIG_BLOCK, &signals, nullptr);
    return ::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

int main(int argc, char **argv) {
    const int signals = endSignals();
    ::umask(077); // what people share is nobody else's business
    ::signal(SIGPIPE, SIG_IGN);
    ::signal(SIGIO, SIG_IGN); // a broken lease on a client's file is no reason to end
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("korvane-uploadd"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Uploads what was shared to Flickr and Vimeo. Started by the session bus, systemd or the "
                       "desktop; goes on with what is queued.\n"
                       "Exit status: 0 asked to end or already running, 1 bus or queue unusable."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption privateBus(
        QStringLiteral("private-bus"),
        QStringLiteral("Run a message bus of its own, for a session without one, and end when the queue is empty."));
    parser.addOption(privateBus);
    parser.process(application);

    korvane::UploadService service(parser.isSet(privateBus));
    switch (service.start()) {
    case korvane::UploadService::Running:
        break;
    case korvane::UploadService::AlreadyRunning:
        return 0;
    case korvane::UploadService::Unable:
        return 1;
    }
    QSocketNotifier notifier(signals, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &service, [&service] { service.stop(0); });
    return QCoreApplication::exec();
}
