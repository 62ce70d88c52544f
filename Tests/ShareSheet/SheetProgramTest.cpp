// The program korvane-sheet, from outside.
#include "Tests/CommandLine/ProgramRun.h"

#include "Tests/Support/TestBus.h"

#include <QDBusConnectionInterface>
#include <QFile>

using namespace korvane::test;

namespace {

const QString sheetProgram = QStringLiteral(KORVANE_SHEET_PROGRAM);

Ending runSheet(const QByteArrayList &arguments) {
    return run(arguments, {}, sheetProgram);
}

} // namespace

TEST(SheetProgram, SaysWhatItIsAndWhatItWants) {
    const Ending help = runSheet({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.output.startsWith("Usage: korvane-sheet flickr FILE...")) << help.output.constData();
    EXPECT_EQ(runSheet({"--version"}).output, "korvane-sheet " KORVANE_VERSION "\n");
    const Ending bad = runSheet({"smoke", "a.jpg"});
    EXPECT_EQ(bad.status, 2);
    EXPECT_TRUE(bad.errors.startsWith("korvane-sheet: ") && bad.errors.contains("--help"));
    EXPECT_TRUE(bad.output.isEmpty());
}

TEST(SheetProgram, IsWhatComposeOpens) {
    TemporaryHome home;
    QProcess program;
    program.start(QStringLiteral(KORVANE_PROGRAM), {QStringLiteral("compose"), QStringLiteral("flickr"),
                                                    QString::fromUtf8(home.file("sea.jpg", jpegOfSize(9000)))});
    ASSERT_TRUE(program.waitForStarted());
    const QString executable = QStringLiteral("/proc/%1/exe").arg(program.processId());
    EXPECT_TRUE(waitFor([&] { return QFile::symLinkTarget(executable) == sheetProgram; }));
    program.terminate();
    EXPECT_TRUE(program.waitForFinished());
}

TEST(SheetProgram, ShowsUploadsInOneWindowHoweverOftenItIsAskedTo) {
    TemporaryHome home;
    TestBus bus;
    ASSERT_TRUE(bus.start());
    home.setEnvironment("DBUS_SESSION_BUS_ADDRESS", bus.address());
    QProcess first;
    first.start(sheetProgram, {QStringLiteral("--uploads")});
    const QString name = QStringLiteral("com.zorvex.korvane.UploadsWindow");
    ASSERT_TRUE(waitFor([&] { return bus.connection().interface()->isServiceRegistered(name).value(); }));
    QProcess second;
    second.start(sheetProgram, {QStringLiteral("--uploads")});
    EXPECT_TRUE(second.waitForFinished(10'000)) << "the first one is raised";
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(first.state(), QProcess::Running);
    first.kill(); // as it may end: another is opened then
    EXPECT_TRUE(first.waitForFinished());
    ASSERT_TRUE(waitFor([&] { return !bus.connection().interface()->isServiceRegistered(name).value(); }));
    second.start(sheetProgram, {QStringLiteral("--uploads")});
    EXPECT_TRUE(waitFor([&] { return bus.connection().interface()->isServiceRegistered(name).value(); }));
    second.kill();
    second.waitForFinished();
}
