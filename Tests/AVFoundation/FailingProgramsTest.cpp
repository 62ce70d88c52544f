// Exports with programs that fail, hang or talk nonsense in place of ffmpeg and ffprobe.
#include "Platform/AVFoundation/AVError.h"
#include "Tests/AVFoundation/VideoFixture.h"

#include <atomic>
#include <csignal>

namespace korvane::test {
namespace {

using namespace std::chrono_literals;

class ExportProgram : public VideoTest {
protected:
    ExportProgram() { replaceProgram("ffprobe", "echo '" + answer() + "'"); }
    static QByteArray answer(const QByteArray &duration = "10.0") {
        return R"({"streams": [{"index": 0, "codec_type": "video", "codec_name": "h264", "pix_fmt": "yuv420p",)"
               R"("width": 320, "height": 240, "disposition": {"attached_pic": 0}}], "format": {"duration": ")" +
               duration + "\"}}";
    }

    std::shared_ptr<AVAssetExportSession> makeSession() const {
        auto session = sessionFor(NSURL::fileURLWithPath(clip));
        session->setStallLimit(stallLimit);
        return session;
    }
    bool hasOutput() const { return QFile::exists(QFile::decodeName(output)); }
    // The child that wrote its number to that file; 0 if none did.
    int childIn(const char *name) const { return home.contents(name).trimmed().toInt(); }
    // Its path, for scripts.
    QByteArray below(const char *name) const { return QFile::encodeName(home.path(name)); }

    std::chrono::milliseconds stallLimit = 30s;
    const QByteArray clip = home.file("clip.mp4", "seen by scripts only");
};

TEST_F(ExportProgram, FailsTheExportWithAClearErrorAndLeavesNoFile) {
    const std::tuple<QByteArray, QByteArray, AVErrorCode, QByteArray> table[] = {
        {"ffmpeg", "echo half > $out; exec sleep 1000", AVErrorExportFailed, "took too long"},
        {"ffmpeg", "while :; do echo out_time_us=7; done", AVErrorExportFailed, "took too long"},
        {"ffmpeg", "echo half > $out; kill -SEGV $$", AVErrorExportFailed, "stopped by signal 11"},
        {"ffmpeg", "exec cat /dev/zero", AVErrorExportFailed, "not understood"},
        {"ffmpeg", "echo out_time_us=soon; exec sleep 1000", AVErrorExportFailed, "not understood"},
        {"ffmpeg", "echo half > $out; echo progress=end; echo 'clip: corrupt input' >&2; exit 1",
         AVErrorFileFailedToParse, "damaged or incomplete"},
        {"ffmpeg", "echo out_time_us=10000000; echo progress=end", AVErrorFileFailedToParse, "ends too early"},
        {"ffmpeg", "echo half > $out; echo out_time_us=5000000", AVErrorFileFailedToParse, "ends too early"},
        {"ffmpeg", "echo half > $out; echo Error writing trailer: No space left on device >&2; exit 1", AVErrorDiskFull,
         "Free some space"},
        {"ffmpeg", "ulimit -f 1; head -c 100000 /dev/zero > $out; exec head -c 100000 /dev/zero > $out",
         AVErrorDiskFull, "Free some space"},
        {"ffmpeg", "echo made > $out; echo out_time_us=10000000; echo more >> " + clip, AVErrorContentIsUnavailable,
         "was changed"},
        {"ffmpeg", "echo \"Unknown encoder 'libx264'\" >&2; exit 1", AVErrorEncoderNotFound, "libx264"},
        {"ffprobe", "exec sleep 1000", AVErrorExportFailed, "took too long"},
        {"ffprobe", "kill -9 $$", AVErrorExportFailed, "stopped by signal 9"},
        {"ffprobe", "exec cat /dev/zero", AVErrorExportFailed, "could not be looked at"},
        {"ffprobe", "echo '[1, 2]'", AVErrorExportFailed, "not understood"},
        {"ffprobe", "echo '{\"format\": 7, \"streams\": {\"a\": [-1]}}'", AVErrorFileFormatNotRecognized,
         "is not a video"},
        {"ffprobe", "echo '" + answer("0.000000") + "'", AVErrorInvalidSourceMedia, "0 seconds"},
    };
    for (const auto &[program, script, code, text] : table) {
        SCOPED_TRACE(script.constData());
        replaceProgram("ffmpeg", "exit 99");
        replaceProgram("ffprobe", "echo '" + answer() + "'");
        replaceProgram(program, script);
        stallLimit = text == "took too long" ? 300ms : 30s;
        const auto session = makeSession();
        const auto error = runToEnd(session);
        ASSERT_TRUE(says(error, text));
        EXPECT_EQ(error->domain(), AVFoundationErrorDomain);
        EXPECT_EQ(error->code(), code);
        EXPECT_EQ(session->status(), AVAssetExportSessionStatusFailed);
        EXPECT_FALSE(hasOutput());
    }
    replaceProgram("ffprobe", "echo '" + answer() + "'");
    for (const char *variable : {"KORVANE_FFMPEG", "KORVANE_FFPROBE"}) {
        home.setEnvironment(variable, "/no/such/program");
        const auto error = runToEnd(makeSession());
        ASSERT_TRUE(says(error, "package “ffmpeg”"));
        EXPECT_EQ(error->code(), AVErrorEncoderNotFound);
    }
}

TEST_F(ExportProgram, IsNotGivenUpWhileItsFileChangesOrTheVideoCanBeEncoded) {
    stallLimit = 700ms;
    for (const char *script :
         {"echo out_time_us=9900000; for i in 1 2 3 4 5 6 7 8 9 10; do sleep 0.1; echo $i >> $out; done",
          "case \"$*\" in *'-c:v copy'*) echo 'Could not write header' >&2; exit 1;; esac; "
          "echo made > $out; echo out_time_us=10000000"}) {
        replaceProgram("ffmpeg", script);
        EXPECT_EQ(runToEnd(makeSession()), std::nullopt) << script;
        EXPECT_TRUE(hasOutput());
    }
}

TEST_F(ExportProgram, TellsHowFarItIsAndKeepsItsFileFromAnotherExport) {
    replaceProgram("ffmpeg", "printf 'frame=1\nout_time_us=N/A\nout_time_'; echo us=2500000; until [ -e " +
                                 below("go") +
                                 " ]; do echo first >> $out; sleep 0.01; done; echo out_time_us=10000000");
    const auto first = makeSession();
    EXPECT_EQ(first->progress(), 0);
    std::atomic<bool> ended = false;
    first->exportAsynchronouslyWithCompletionHandler([&] { ended = true; });
    EXPECT_TRUE(waitFor([&] { return first->progress() == 0.25F && hasOutput(); }));
    EXPECT_EQ(first->status(), AVAssetExportSessionStatusExporting);
    replaceProgram("ffmpeg", "echo second > $out; echo out_time_us=10000000");
    EXPECT_EQ(runToEnd(makeSession())->code(), AVErrorFileAlreadyExists);
    EXPECT_FALSE(ended);
    home.file("go", {});
    ASSERT_TRUE(waitFor([&] { return ended.load(); }));
    EXPECT_EQ(first->error(), std::nullopt);
    EXPECT_EQ(first->status(), AVAssetExportSessionStatusCompleted);
    EXPECT_EQ(first->progress(), 1);
    EXPECT_TRUE(home.contents("made.mp4").startsWith("first"));
}

TEST_F(ExportProgram, EndsAtOnceWhenItsJobIsCancelled) {
    for (const char *program : {"ffmpeg", "ffprobe"}) {
        replaceProgram(program, "echo $$ > " + below(program) + "; exec sleep 1000");
        const auto session = makeSession();
        const auto context = std::make_shared<UploadContext>();
        session->setUploadContext(context);
        std::atomic<bool> ended = false;
        session->exportAsynchronouslyWithCompletionHandler([&] { ended = true; });
        ASSERT_TRUE(waitFor([&] { return childIn(program) != 0; }));
        context->cancel();
        ASSERT_TRUE(waitFor([&] { return ended.load(); }, 1000));
        EXPECT_NE(::kill(childIn(program), 0), 0) << "the child is gone";
        EXPECT_EQ(session->status(), AVAssetExportSessionStatusCancelled);
        EXPECT_EQ(session->error()->domain(), NSURLErrorDomain);
        EXPECT_EQ(session->error()->code(), NSURLErrorCancelled);
        EXPECT_FALSE(hasOutput());
    }
}

} // namespace
} // namespace korvane::test
