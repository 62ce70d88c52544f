// What the tests of whole videos share.
#pragma once

#include "Tests/EndToEnd/ServiceHarness.h"
#include "Tests/Support/Film.h"

namespace korvane::test {

class VideoServiceTest : public ServiceTest {
protected:
    standin::StandIn &vimeo = flickr.server;

    static std::shared_ptr<VimeoPost> libraryVideo(const char *name) {
        const auto post = VimeoPost::init();
        post->assetURL = NSURL::URLWithString(QStringLiteral("assets-library://asset/asset.MP4?id=videos%2F") +
                                              QLatin1String(name) + QStringLiteral("&ext=MP4"));
        post->title = QLatin1String(name);
        return post;
    }

    // Exports of services that are started from now on begin and hang, until there is a file "go" in the home folder.
    void holdExports() {
        const QByteArray folder = QFile::encodeName(home.path());
        const QByteArray script = home.file("ffmpeg", "#!/bin/sh\ncd " + folder + " || exit\n" +
                                                          "[ -e go ] && exec /usr/bin/env ffmpeg \"$@\"\n"
                                                          "echo $$ > held && exec sleep 1000\n");
        QFile::setPermissions(QFile::decodeName(script), QFile::ReadOwner | QFile::ExeOwner);
        setEnvironment("KORVANE_FFMPEG", script);
    }
    // Waits for an export to begin, and returns its process.
    pid_t heldExport() {
        EXPECT_TRUE(waitFor([&] { return home.contents("held").endsWith('\n'); }));
        const int held = home.contents("held").trimmed().toInt();
        home.file("held", {});
        return held;
    }
    static bool isGone(pid_t process) { return ::kill(process, 0) != 0; }

    bool isEmpty(const char *folder) const { return QDir(home.path(folder)).isEmpty(); }

    qsizetype requestsFor(const QByteArray &operation) const {
        const auto all = vimeo.requests();
        return std::ranges::count(all, operation, &standin::Request::operation);
    }

    // The whole video with all that belongs to it.
    static void expectArrived(const standin::Video &video, const VimeoPost &post, const QByteArray &bytes) {
        EXPECT_EQ(video.sha256, sha256Of(bytes));
        EXPECT_EQ(video.title, post.title);
        EXPECT_EQ(video.description, post.postDescription);
        EXPECT_EQ(video.tags, post.tags);
        EXPECT_EQ(video.privacy, QStringLiteral("nobody"));
    }
};

} // namespace korvane::test
