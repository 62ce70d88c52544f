// Uploads in every state, for a picture of them.
#include "docs/screenshots/Uploading.h"

#include "docs/screenshots/Photographer.h"

#include <QFile>

namespace korvane::screenshots {
namespace {

constexpr qint64 videoBytes = 90'000'000;

void sharePhoto(test::ServiceHarness &service, const QByteArray &path, const char *title, const char *state) {
    const auto post = FlickrPost::init();
    post->photoData = NSData::dataWithContentsOfFile(path);
    post->title = QString::fromUtf8(title);
    const int before = service.countInState(state);
    if (!service.share({post})) qFatal("%s is not taken over", title);
    require(title, [&] { return service.countInState(state) > before; });
}

} // namespace

void shareInEveryState(test::ServiceHarness &service, const QByteArrayList &photos, const QString &video) {
    service.setEnvironment("KORVANE_RETRY_DELAYS", "600000");
    auto &server = service.flickr.server;
    sharePhoto(service, photos.value(0), "Dawn over the bay", "done");
    server.on("upload").answer(200, "text/xml",
                               R"(<rsp stat="fail"><err code="5" msg="Filetype was not recognised"/></rsp>)");
    sharePhoto(service, photos.value(1), "Fractal", "failed");
    server.on("upload").fail(503);
    sharePhoto(service, photos.value(2), "Leaf", "waiting");
    server.on("upload").hang();
    sharePhoto(service, photos.value(3), "Dusk", "running");
    // Large chunks with pauses are a slow line.
    server.on("chunk").delay(900, 1000);
    const QString film = service.home.path("waves.mp4");
    if (!QFile::copy(video, film) || !QFile::resize(film, videoBytes)) qFatal("%s cannot be written", qPrintable(film));
    const auto post = VimeoPost::init();
    post->assetURL = NSURL::fileURLWithPath(QFile::encodeName(film));
    post->title = QStringLiteral("Waves");
    if (!service.shareVideo(post)) qFatal("the video is not taken over");
    require("the video", [&] { return service.countInState("running") == 2; });
}

} // namespace korvane::screenshots
