// Small videos made on the spot, exports of them, and what came out.
#include "Tests/AVFoundation/VideoFixture.h"

#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/Foundation/ChildProcess.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <atomic>
#include <thread>

namespace korvane::test {

namespace {

// What the program wrote to its standard output; a program that fails says why in the test's own output. QProcess
// would confuse the thread sanitizer.
QByteArray outputOf(const char *program, const QByteArray &arguments, const QByteArray &path) {
    QByteArrayList list = arguments.simplified().split(' ');
    std::replace(list.begin(), list.end(), QByteArray("FILE"), path);
    ChildProcess child(program, list);
    QByteArray output;
    child.setOutputHandler([&output](const QByteArray &piece) { output += piece; });
    const auto result = child.run();
    EXPECT_TRUE(result && result->succeeded())
        << arguments.constData() << (result ? result->standardError.constData() : "");
    return output;
}

QByteArray ffmpeg(const QByteArray &arguments, const QByteArray &path) {
    return outputOf("ffmpeg", "-nostdin -v error -threads 2 " + arguments, path);
}

} // namespace

QByteArray VideoTest::makeVideo(const QByteArray &name, const QByteArray &arguments) const {
    const QByteArray path = home.file("library/Videos/" + name, {});
    ffmpeg("-y -f lavfi -i testsrc2=s=320x240:r=25:d=2,noise=alls=20:allf=t "
           "-f lavfi -i anoisesrc=d=2:a=0.3,lowpass=4000 " +
               arguments + " FILE",
           path);
    return path;
}

QByteArray VideoTest::turn(const QByteArray &path) const {
    const QByteArray turned = path + ".turned.mp4";
    ffmpeg("-i " + path + " -c copy -metadata:s:v rotate=90 FILE", turned);
    return turned;
}

void VideoTest::replaceProgram(const QByteArray &program, const QByteArray &script) {
    const QByteArray path =
        home.file("replaced-" + program, "#!/bin/sh\nfor out; do :; done; out=${out#file:}\n" + script);
    QFile::setPermissions(QFile::decodeName(path), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    home.setEnvironment("KORVANE_" + program.toUpper(), path);
}

std::shared_ptr<AVAssetExportSession> VideoTest::sessionFor(const NSURL &url, const std::optional<QString> &preset,
                                                            const std::optional<QByteArray> &fallback) const {
    const auto session = ALAssetsLibrary::_exportSessionForVideoURL(url, fallback, preset);
    session->setOutputFileType(AVFileTypeMPEG4);
    session->setOutputURL(NSURL::fileURLWithPath(output));
    return session;
}

std::optional<NSError> runToEnd(const std::shared_ptr<AVAssetExportSession> &session) {
    std::atomic<int> calls = 0;
    std::atomic<bool> onOtherThread = false;
    session->exportAsynchronouslyWithCompletionHandler([&, caller = std::this_thread::get_id()] {
        onOtherThread = std::this_thread::get_id() != caller;
        ++calls;
    });
    if (!waitFor([&] { return calls > 0; }, 200'000)) qFatal("an export does not end");
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(onOtherThread);
    return session->error();
}

QByteArray streamsOf(const QByteArray &path) {
    const QByteArray answer = outputOf("ffprobe", "-v error -of json -show_streams FILE", path);
    QStringList words;
    for (const QJsonValue &stream : QJsonDocument::fromJson(answer)[u"streams"].toArray()) {
        words << stream[u"codec_name"].toString();
        if (stream[u"codec_type"].toString() == QLatin1String("video"))
            words << QStringLiteral("%1x%2").arg(stream[u"width"].toInt()).arg(stream[u"height"].toInt())
                  << stream[u"pix_fmt"].toString();
        for (const QJsonValue &data : stream[u"side_data_list"].toArray())
            words << QStringLiteral("turned by %1").arg(data[u"rotation"].toInt());
    }
    return words.join(u' ').toUtf8();
}

QByteArray checksumOfVideo(const QByteArray &path) {
    return ffmpeg("-xerror -i FILE -f null - -map 0:v:0 -c copy -f md5 pipe:1", path);
}

} // namespace korvane::test
