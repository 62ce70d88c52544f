// Preference domains and user defaults.
#include "Platform/Preferences/CFPreferences.h"
#include "Platform/Preferences/NSUserDefaults.h"
#include "Tests/Preferences/PreferencesFixture.h"

#include <QCoreApplication>

#include <sys/stat.h>
#include <sys/wait.h>

#include <limits>
#include <thread>

namespace korvane {
namespace {

const QString domain = QStringLiteral("com.zorvex.test");

class Preferences : public PreferencesFixture {};

// Sets keys "<name>0"… one by one, synchronizing after each. False if one could not be saved.
bool writeKeys(const QString &name, int count) {
    bool saved = true;
    for (int i = 0; i < count; ++i) {
        CFPreferencesSetAppValue(name + QString::number(i), i, domain);
        saved = CFPreferencesAppSynchronize(domain) && saved;
    }
    return saved;
}

TEST_F(Preferences, LosesNothingWhenProcessesAndThreadsWriteAtOnce) {
    constexpr int keys = 40;
    std::vector<pid_t> children;
    for (int process = 0; process < 2; ++process) {
        const pid_t child = ::fork();
        if (child == 0) ::_exit(writeKeys(QStringLiteral("process%1.").arg(process), keys) ? 0 : 1);
        children.push_back(child);
    }
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 2; ++thread)
        threads.emplace_back([thread] { writeKeys(QStringLiteral("thread%1.").arg(thread), keys); });
    for (auto &thread : threads)
        thread.join();
    for (const pid_t child : children) {
        int status = -1;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
    }
    ASSERT_TRUE(CFPreferencesAppSynchronize(domain));
    for (const auto *name : {"process0.", "process1.", "thread0.", "thread1."})
        for (int i = 0; i < keys; ++i)
            EXPECT_EQ(CFPreferencesCopyAppValue(QLatin1String(name) + QString::number(i), domain), QVariant(i))
                << name << i;
}

TEST_F(Preferences, KeepsTypesAndExactNumbersThroughTheFile) {
    const QVariantMap values{
        {QStringLiteral("most"), std::numeric_limits<qint64>::max()},
        {QStringLiteral("least"), std::numeric_limits<qint64>::min()},
        {QStringLiteral("odd"), Q_INT64_C(9007199254740993)}, // no double has this value
        {QStringLiteral("third"), 1.0 / 3},
        {QStringLiteral("whole"), 3.0},
        {QStringLiteral("flag"), true},
        {QStringLiteral("text"), QStringLiteral("Überfahrt \U0001F6A2 \"\n")},
        {QStringLiteral("list"), QVariantList{Q_INT64_C(1), QStringLiteral("b"), QVariantList{}}},
        {QStringLiteral("map"), QVariantMap{{QStringLiteral("k"), QVariantMap{{QString(), false}}}}},
    };
    for (auto value = values.begin(); value != values.end(); ++value)
        CFPreferencesSetAppValue(value.key(), *value, domain);
    ASSERT_TRUE(CFPreferencesAppSynchronize(domain));
    for (auto value = values.begin(); value != values.end(); ++value) {
        const QVariant read = CFPreferencesCopyAppValue(value.key(), domain);
        EXPECT_EQ(read, *value) << value.key().toStdString();
        EXPECT_EQ(read.typeId(), value->typeId()) << value.key().toStdString();
    }
    struct stat status;
    ASSERT_EQ(::stat(qPrintable(fileOf(domain)), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(Preferences, SavesAValueThatOnlyChangesItsType) {
    put(domain, R"({"on": 1})");
    CFPreferencesSetAppValue(QStringLiteral("on"), true, domain);
    ASSERT_TRUE(CFPreferencesAppSynchronize(domain));
    EXPECT_EQ(CFPreferencesCopyAppValue(QStringLiteral("on"), domain).typeId(), QMetaType::Bool);
}

TEST_F(Preferences, ShowsOwnChangesAtOnceAndOthersAfterSynchronizing) {
    put(domain, R"({"a": 1, "b": 2})");
    const QString a = QStringLiteral("a"), b = QStringLiteral("b"), absent = QStringLiteral("absent");
    EXPECT_EQ(CFPreferencesCopyAppValue(a, domain), QVariant(1));
    EXPECT_FALSE(CFPreferencesCopyAppValue(absent, domain).isValid());
    CFPreferencesSetAppValue(a, {}, domain);
    put(domain, R"({"a": 1, "b": 3, "c": null})");
    EXPECT_FALSE(CFPreferencesCopyAppValue(a, domain).isValid());
    EXPECT_EQ(CFPreferencesCopyAppValue(b, domain), QVariant(2));
    ASSERT_TRUE(CFPreferencesAppSynchronize(domain));
    EXPECT_FALSE(CFPreferencesCopyAppValue(a, domain).isValid());
    EXPECT_EQ(CFPreferencesCopyAppValue(b, domain), QVariant(3));
    EXPECT_EQ(contents(fileOf(domain)).simplified(), R"({ "b": 3, "c": null })");
}

TEST_F(Preferences, SetsDamagedFilesAsideAndGoesOn) {
    const QByteArray damaged[] = {"{\"a\": 1", "[1, 2]", "", QByteArray(100000, '['), "{\"a\": 1e999}", "\xff\xfe"};
    for (const QByteArray &text : damaged) {
        put(domain, text);
        log.clear();
        ASSERT_TRUE(CFPreferencesAppSynchronize(domain));
        EXPECT_EQ(log.size(), 1) << text.left(20).constData();
        EXPECT_FALSE(CFPreferencesCopyAppValue(QStringLiteral("a"), domain).isValid());
    }
    EXPECT_EQ(contents(fileOf(domain) + QStringLiteral(".damaged")), damaged[0]);
    EXPECT_EQ(contents(fileOf(domain) + QStringLiteral(".damaged.2")), damaged[1]);
    put(domain, "not JSON");
    CFPreferencesSetAppValue(QStringLiteral("a"), 7, domain);
    ASSERT_TRUE(CFPreferencesAppSynchronize(domain));
    EXPECT_EQ(CFPreferencesCopyAppValue(QStringLiteral("a"), domain), QVariant(7));
}

TEST_F(Preferences, RefusesWhatCannotBeStoredAndKeepsWhatCouldNotBeSaved) {
    const QString key = QStringLiteral("key");
    for (const QVariant &value : {QVariant(QByteArray("bytes")), QVariant(std::numeric_limits<double>::quiet_NaN()),
                                  QVariant(QVariantList{QByteArray("bytes")})}) {
        CFPreferencesSetAppValue(key, value, domain);
        EXPECT_FALSE(CFPreferencesCopyAppValue(key, domain).isValid()) << value.typeName();
    }
    EXPECT_EQ(log.size(), 3);
    ASSERT_TRUE(QDir().mkpath(fileOf(domain))); // a folder stands where the file belongs
    CFPreferencesSetAppValue(key, 1, domain);
    EXPECT_FALSE(CFPreferencesAppSynchronize(domain));
    ASSERT_TRUE(QDir().rmdir(fileOf(domain)));
    EXPECT_TRUE(CFPreferencesAppSynchronize(domain));
    EXPECT_TRUE(contents(fileOf(domain)).contains("\"key\": 1"));
}

TEST_F(Preferences, KeepsDomainsInTheirFolder) {
    const QString outside = QStringLiteral("../../outside");
    CFPreferencesSetAppValue(QStringLiteral("a"), 1, outside);
    ASSERT_TRUE(CFPreferencesAppSynchronize(outside));
    EXPECT_EQ(CFPreferencesCopyAppValue(QStringLiteral("a"), outside), QVariant(1));
    EXPECT_TRUE(QDir(folder.path()).entryList({QStringLiteral("outside*")}).isEmpty());
}

TEST_F(Preferences, UserDefaultsLookInTheProgramsDomainThenInGlobalAndSeeChangesAtOnce) {
    QCoreApplication::setApplicationName(QStringLiteral("some-program"));
    const NSUserDefaults &defaults = NSUserDefaults::standardUserDefaults();
    const QString flag = QStringLiteral("flag"), number = QStringLiteral("number");
    EXPECT_FALSE(defaults.boolForKey(flag));
    put(QStringLiteral("global"), R"({"flag": "YES", "number": "12abc"})");
    EXPECT_TRUE(defaults.boolForKey(flag));
    EXPECT_EQ(defaults.integerForKey(number), 12);
    put(QStringLiteral("some-program"), R"({"flag": "no"})");
    EXPECT_FALSE(defaults.boolForKey(flag));
    EXPECT_EQ(defaults.integerForKey(number), 12);
    put(QStringLiteral("some-program"), R"({"flag": "ye"})"); // same size, and perhaps the same moment
    EXPECT_TRUE(defaults.boolForKey(flag));
    QFile::remove(fileOf(QStringLiteral("some-program")));
    EXPECT_EQ(defaults.objectForKey(flag), QVariant(QStringLiteral("YES")));
    CFPreferencesSetAppValue(number, 5, QStringLiteral("global"));
    EXPECT_EQ(defaults.integerForKey(number), 5);
}

} // namespace
} // namespace korvane
