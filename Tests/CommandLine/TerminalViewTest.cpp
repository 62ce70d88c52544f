// Bars on a terminal.
#include "CommandLine/TerminalView.h"

#include "FrontEnd/UploadText.h"
#include "Tests/Support/Testing.h"

using namespace korvane;
using namespace korvane::test;

namespace {

ProgressTally tallyOf(size_t running) {
    ProgressTally tally;
    for (size_t i = 0; i < running; ++i)
        tally.running.push_back(
            {QStringLiteral("夏休み🌅の写真 %1 \x1b[2J.jpg").arg(i), qint64(i) * 1'000'000, 4'100'000});
    tally.queued = 7;
    tally.waiting = 1;
    tally.waitingReason = QStringLiteral("waiting for the network:\n\x1b[5m HTTP status 503");
    tally.bytesSent = 12'300'000;
    tally.bytesTotal = 45'600'000;
    return tally;
}

} // namespace

TEST(TerminalView, LinesFitEveryTerminal) {
    for (int columns = 1; columns < 140; ++columns) {
        for (const int rows : {1, 2, 3, 5, 24}) {
            const auto lines = TerminalView::lines(tallyOf(6), columns, rows);
            EXPECT_LE(int(lines.size()), std::max(1, rows - 1)) << columns << "x" << rows;
            for (const auto &line : lines) {
                EXPECT_LE(UploadText::width(line.text), std::max(1, columns - 1))
                    << columns << ": " << line.text.toStdString();
                EXPECT_EQ(UploadText::printable(line.text), line.text);
                EXPECT_FALSE(line.text.endsWith(u' '));
                EXPECT_EQ(line.text.mid(line.filledStart, line.filledLength), QString(line.filledLength, u'#'));
            }
        }
    }
}

TEST(TerminalView, LinesTellTheShareOfTheBytes) {
    const auto lines = TerminalView::lines(tallyOf(3), 100, 24);
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_TRUE(says(lines[2].text, "[#########-----------]   48%  2.0 MB of 4.1 MB"));
    EXPECT_TRUE(says(lines[3].text, "Total"));
    EXPECT_TRUE(says(lines[3].text, " 26%  12.3 MB of 45.6 MB"));
    EXPECT_TRUE(says(lines[4].text, "3 running, 7 queued, 1 waiting - waiting for the network:"));

    EXPECT_EQ(TerminalView::bar(0, 0, 12), QStringLiteral("[----------]"));
    EXPECT_EQ(TerminalView::bar(11, 10, 12), QStringLiteral("[##########]"));
}

TEST(TerminalView, ColoursAreLeftOutWhereTheyAreNotWanted) {
    TemporaryHome home; // puts the environment back
    for (const bool plain : {false, true}) {
        home.setEnvironment("NO_COLOR", plain ? "1" : "");
        FILE *stream = std::fopen(qPrintable(home.path("written")), "w");
        TerminalView view(stream);
        Upload upload = Upload::fromDictionary(
            {{QStringLiteral("id"), QStringLiteral("3")}, {QStringLiteral("state"), QStringLiteral("failed")}});
        upload.error = NSError::errorWithDescription(NSPOSIXErrorDomain, 5, QStringLiteral("bad \x1b[2Jtext"));
        view.progress(tallyOf(2));
        view.stateChanged(upload, QStringLiteral("x.jpg"));
        view.progress(tallyOf(1));
        view.finish();
        std::fclose(stream);
        const QByteArray written = home.contents("written");
        EXPECT_EQ(written.contains("\x1b[31m"), !plain);
        EXPECT_EQ(written.contains("\x1b[32m"), !plain);
        EXPECT_FALSE(says(written, "\x1b[2J"));
        EXPECT_TRUE(says(written, "3 (x.jpg): failed: bad \uFFFD[2Jtext"));
        EXPECT_EQ(written.count("\x1b[4F\x1b[J"), 1) << "two bars, the total and the summary are erased once";
    }
}
