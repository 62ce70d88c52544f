// Small videos made on the spot, exports of them, and what came out.
#pragma once

#include "Platform/AVFoundation/AVAssetExportSession.h"
#include "Tests/Support/Testing.h"

namespace korvane::test {

// Arguments of ffmpeg for H.264 and AAC.
inline const QByteArray usualVideo = "-c:v libx264 -preset ultrafast -pix_fmt yuv420p -c:a aac ";

class VideoTest : public testing::Test {
protected:
    // Makes a video with ffmpeg's arguments: two seconds of moving pictures, 320 x 240, are its input 0, a varied sound
    // its input 1. Returns its path below the Videos folder of the photo library.
    QByteArray makeVideo(const QByteArray &name, const QByteArray &arguments = usualVideo) const;

    // A copy of a video that players are told to turn by 90 degrees.
    QByteArray turn(const QByteArray &path) const;

    // A script of the shell in place of a program ("ffmpeg", "ffprobe"); its last argument is in $out, as a path.
    void replaceProgram(const QByteArray &program, const QByteArray &script);

    // A session that exports to the output.
    std::shared_ptr<AVAssetExportSession> sessionFor(const NSURL &url, const std::optional<QString> &preset = {},
                                                     const std::optional<QByteArray> &fallback = {}) const;

    TemporaryHome home;
    const QByteArray output = QFile::encodeName(home.path(QStringLiteral("made.mp4")));
};

// Starts the session, waits for its handler, and returns its error.
std::optional<NSError> runToEnd(const std::shared_ptr<AVAssetExportSession> &session);

// What ffprobe says of a file, in short: "mpeg4 320x240 yuv420p mp3"; a picture that players turn says so.
QByteArray streamsOf(const QByteArray &path);
// Of the file's first video, as it is stored: the same for two files with the same video. Expects that everything in
// the file can be decoded.
QByteArray checksumOfVideo(const QByteArray &path);

} // namespace korvane::test
