// A large video, against curl that sends the same requests over one connection; and the memory that it takes.
#include "Benchmarks/VideoStream.h"

#include "Benchmarks/Measure.h"
#include "Benchmarks/Workload.h"
#include "Platform/Foundation/NSJSONSerialization.h"
#include "Platform/Foundation/NSURLConnection.h"
#include "Platform/Social/SLRequest.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <algorithm>

namespace korvane::bench {
namespace {

using test::ServiceHarness;

constexpr qint64 chunkSize = 2'097'152;
constexpr qint64 largeVideo = qint64(2) << 30;
constexpr qint64 slowVideo = 40 * chunkSize;

QByteArray makeVideo(const ServiceHarness &harness, const QString &name, qint64 bytes) {
    const QByteArray path = harness.home.file(name, {});
    QFile file(QFile::decodeName(path));
    const QByteArray block = test::variedBytes(chunkSize + 7);
    if (!file.open(QIODevice::WriteOnly)) qFatal("no video");
    for (qint64 written = 0; written < bytes; written += block.size())
        file.write(block.constData(), std::min<qint64>(block.size(), bytes - written));
    return path;
}

std::shared_ptr<VimeoPost> videoOf(const QByteArray &path) {
    const auto post = VimeoPost::init();
    post->assetURL = NSURL::fileURLWithPath(path);
    post->title = QStringLiteral("Large");
    return post;
}

NSURL newEndpoint(const ServiceHarness &harness) {
    const auto request = SLRequest::requestForServiceType(
        SLServiceTypeVimeo, SLRequestMethodPOST,
        *NSURL::URLWithString(harness.flickr.server.url() + QStringLiteral("/api/rest/v2?format=json")),
        {{QStringLiteral("method"), QStringLiteral("vimeo.videos.upload.getTicket")},
         {QStringLiteral("upload_method"), QStringLiteral("streaming")}});
    request->setAccount(harness.flickr.vimeoAccount);
    const auto answer = NSURLConnection::sendSynchronousRequest(request->preparedURLRequest(), nullptr, nullptr);
    const auto value = NSJSONSerialization::JSONObjectWithData(answer.value_or(NSData()).bytes());
    const QVariantMap ticket = value.value_or(QVariant()).toMap().value(QStringLiteral("ticket")).toMap();
    return *NSURL::URLWithString(ticket.value(QStringLiteral("endpoint")).toString());
}

QByteArray authorization(const ServiceHarness &harness, const NSURL &endpoint) {
    const auto request = SLRequest::requestForServiceType(SLServiceTypeVimeo, SLRequestMethodPUT, endpoint, {});
    request->setAccount(harness.flickr.vimeoAccount);
    return request->preparedURLRequest().valueForHTTPHeaderField("Authorization").value_or(QByteArray());
}

// One transfer of curl's configuration file: url and headers.
QByteArray transfer(const ServiceHarness &harness, const NSURL &endpoint, const QByteArray &rest) {
    return "url = \"" + endpoint.absoluteString().toUtf8() + "\"\nrequest = PUT\nsilent\nfail\noutput = /dev/null\n" +
           "header = \"Expect:\"\nheader = \"Authorization: " + authorization(harness, endpoint).replace('"', "\\\"") +
           "\"\n" + rest;
}

// The same chunk and verify requests; the chunks stand in files of their own, since curl sends whole files.
double sendWithCurl(const ServiceHarness &harness, const QByteArray &path) {
    const NSURL endpoint = newEndpoint(harness);
    const qint64 size = QFile(QFile::decodeName(path)).size();
    const QString folder = harness.home.path(u"chunks");
    run(QStringLiteral("mkdir"), {QStringLiteral("-p"), folder});
    run(QStringLiteral("split"),
        {QStringLiteral("-b"), QString::number(chunkSize), QStringLiteral("-a"), QStringLiteral("4"),
         QStringLiteral("-d"), QFile::decodeName(path), folder + QStringLiteral("/c")});
    QByteArray config;
    int index = 0;
    for (qint64 start = 0; start < size; start += chunkSize, ++index) {
        const QByteArray chunk = QFile::encodeName(folder) + "/c" + QByteArray::number(index).rightJustified(4, '0');
        const QByteArray range = start == 0
                                     ? QByteArray()
                                     : "header = \"Content-Range: bytes " + QByteArray::number(start) + '-' +
                                           QByteArray::number(size - 1) + '/' + QByteArray::number(size) + "\"\n";
        config +=
            (start == 0 ? "" : "next\n") +
            transfer(harness, endpoint,
                     "header = \"Content-Type: video/mp4\"\n" + range + "upload-file = \"" + chunk + "\"\n") +
            "next\n" +
            transfer(harness, endpoint, "header = \"Content-Range: bytes */*\"\nheader = \"Content-Length: 0\"\n");
    }
    const QString file = QFile::decodeName(harness.home.file("curl.config", config));
    const double seconds = secondsOf([&] { run(QStringLiteral("curl"), {QStringLiteral("-K"), file}); });
    run(QStringLiteral("rm"), {QStringLiteral("-rf"), folder});
    return seconds;
}

// From the go-ahead until the last verify has been answered: the quota and the ticket, then two requests a chunk.
double sendWithService(ServiceHarness &harness, const QByteArray &path) {
    harness.ask("Pause");
    if (!harness.shareVideo(videoOf(path))) qFatal("the hand-over failed");
    const standin::StandIn &server = harness.flickr.server;
    const qint64 chunks = (QFile(QFile::decodeName(path)).size() + chunkSize - 1) / chunkSize;
    const size_t last = server.countOfAnsweredRequests() + 2 + 2 * size_t(chunks);
    const double seconds = secondsOf([&] {
        harness.ask("Resume");
        while (server.countOfAnsweredRequests() < last)
            QThread::msleep(2);
    });
    if (!harness.waitForState("queued", 0) || !harness.waitForState("running", 0)) qFatal("the upload did not end");
    harness.ask("Clear");
    return seconds;
}

bool timeOfAChunkIsThatOfItsAnswers() {
    ServiceHarness harness({.keepBodies = false, .keepRequests = false, .delay = std::chrono::milliseconds(50)});
    const QByteArray path = makeVideo(harness, QStringLiteral("slow.mp4"), slowVideo);
    std::vector<double> chunks;
    for (int round = 0; round < 3; ++round)
        chunks.push_back((sendWithService(harness, path) - 0.1) * 1000 * chunkSize /
                         slowVideo); // less quota and ticket
    return printBound("a chunk and its verify with 50 ms an answer", median(chunks), "ms", 110);
}

} // namespace

bool videoStream() {
    ServiceHarness harness({.keepBodies = false, .keepRequests = false});
    const QByteArray path = makeVideo(harness, QStringLiteral("large.mp4"), largeVideo);
    const auto speed = [](double seconds) { return double(largeVideo) / double(megabyte) / seconds; };
    sendWithService(harness, path); // warms the page cache
    const auto memory = [pid = harness.servicePid()] { return anonymousMemory(pid); };
    const qint64 idle = memory();
    const qint64 peak = peakDuring(memory, [&] { sendWithService(harness, path); });
    bool holds = printRatio(
        "a video of 2 GiB: service / curl with the same requests (MB/s)", 3,
        [&] { return speed(sendWithService(harness, path)); }, [&] { return speed(sendWithCurl(harness, path)); }, 0.9,
        false);
    holds &=
        printBound("  service with a video of 2 GiB over its idle size", double(peak - idle) / (1 << 20), "MiB", 64);
    return timeOfAChunkIsThatOfItsAnswers() && holds;
}

} // namespace korvane::bench
