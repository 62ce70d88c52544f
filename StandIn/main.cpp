// The stand-in web services as a program.
#include "StandIn/StandIn.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

#include <csignal>
#include <cstdio>
#include <optional>

namespace {

constexpr int Usage = 2;

QString standardStateFolder() {
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    return (state.startsWith(QLatin1Char('/')) ? state : QDir::homePath() + QStringLiteral("/.local/state")) +
           QStringLiteral("/korvane/standin");
}

int complain(const QString &what) {
    fprintf(stderr, "korvane-standin: %s\n", what.toLocal8Bit().constData());
    return Usage;
}

int printCredential(const QString &service) {
    const bool isFlickr = service == QLatin1String("flickr");
    if (!isFlickr && service != QLatin1String("vimeo"))
        return complain(QStringLiteral("there are only credentials for \"flickr\" and \"vimeo\""));
    const standin::Credential credential =
        isFlickr ? standin::StandIn::flickrCredential() : standin::StandIn::vimeoCredential();
    const auto text = [](const QByteArray &bytes) { return QString::fromUtf8(bytes); };
    const QJsonObject object{{QStringLiteral("username"), text(credential.username)},
                             {QStringLiteral("consumerKey"), text(credential.consumerKey)},
                             {QStringLiteral("consumerSecret"), text(credential.consumerSecret)},
                             {QStringLiteral("token"), text(credential.token)},
                             {QStringLiteral("tokenSecret"), text(credential.tokenSecret)}};
    fputs(QJsonDocument(object).toJson().constData(), stdout);
    return 0;
}

// A whole number within the limits; nothing after a complaint.
std::optional<int> number(const QCommandLineParser &parser, const QString &name, int least, int most) {
    bool isNumber = false;
    const int value = parser.value(name).toInt(&isNumber);
    if (isNumber && value >= least && value <= most) return value;
    complain(QStringLiteral("--%1 takes a number from %2 to %3").arg(name).arg(least).arg(most));
    return std::nullopt;
}

int serve(const standin::StandInOptions &options) {
    // A shell starts background jobs with SIGINT ignored, and an ignored signal never reaches sigwait().
    std::signal(SIGINT, SIG_DFL);
    sigset_t ends;
    sigemptyset(&ends);
    sigaddset(&ends, SIGINT);
    sigaddset(&ends, SIGTERM);
    // Before there are threads, so that all of them leave the signals to sigwait().
    pthread_sigmask(SIG_BLOCK, &ends, nullptr);

    standin::StandIn server(options);
    QString error;
    if (!server.start(&error)) {
        complain(error);
        return 1;
    }
    printf("Korvane stand-in: %s/\n", qUtf8Printable(server.url()));
    fflush(stdout);
    int signal = 0;
    sigwait(&ends, &signal);
    return 0;
}

} // namespace

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("korvane-standin"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Local stand-in for Flickr and Vimeo. Shows the photos and videos that it received on a web page, and tells "
        "scripts about them as JSON at /api/state. To be told to fail, it takes JSON at /control/faults."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({
        {QStringLiteral("port"), QStringLiteral("Port on 127.0.0.1 to listen on; 0 takes a free one."),
         QStringLiteral("P"), QStringLiteral("8743")},
        {QStringLiteral("state"), QStringLiteral("Folder for what is received."), QStringLiteral("DIR"),
         standardStateFolder()},
        {QStringLiteral("delay"), QStringLiteral("Milliseconds to wait before each answer."), QStringLiteral("MS"),
         QStringLiteral("0")},
        {QStringLiteral("albums"), QStringLiteral("Number of Flickr albums that exist from the start, 3 or more."),
         QStringLiteral("N"), QStringLiteral("3")},
        {QStringLiteral("print-credential"),
         QStringLiteral("Print the credential of the test user of a service (flickr, vimeo) as JSON and exit."),
         QStringLiteral("SERVICE")},
    });
    parser.process(application);
    if (!parser.positionalArguments().isEmpty())
        return complain(QStringLiteral("unexpected argument: ") + parser.positionalArguments().first());
    if (parser.isSet(QStringLiteral("print-credential")))
        return printCredential(parser.value(QStringLiteral("print-credential")));

    const auto port = number(parser, QStringLiteral("port"), 0, 65535);
    const auto delay = number(parser, QStringLiteral("delay"), 0, 3'600'000);
    const auto albums = number(parser, QStringLiteral("albums"), 3, 100'000);
    if (!port || !delay || !albums) return Usage;
    standin::StandInOptions options;
    options.port = *port;
    options.stateFolder = QDir(parser.value(QStringLiteral("state"))).absolutePath();
    options.albums = *albums;
    options.delay = std::chrono::milliseconds(*delay);
    options.keepRequests = false;
    return serve(options);
}
