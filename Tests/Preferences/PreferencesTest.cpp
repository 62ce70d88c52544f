// Preference domains and user defaults.
#include "Platform/Preferences/CFPreferences.h"
#include "Platform/Preferences/NSUserDefaults.h"
#include "Tests/Preferences/PreferencesFixture.h"

#include <QCoreApplication>

#include <sys/stat.h>
#include <sys/wait.h>

#include <limits>
#include <thread>

namespace korvane::test {
namespace {

const QString domain = QStringLiteral("com.zorvex.test");

QVariant valueOf(QAnyStringView key) {
    return CFPreferencesCopyAppValue(key.toString(), domain);
}
void set(QAnyStringView key, const QVariant &value) {
    CFPreferencesSetAppValue(key.toString(), value, domain);
}
bool synchronize() {
    return CFPreferencesAppSynchronize(domain);
}

class Preferences : public PreferencesFixture {};

TEST_F(Preferences, LosesNothingWhenProcessesAndThreadsWriteAtOnce) {
    const auto writeKeys = [](const char *name) {
        bool saved = true;
        for (int i = 0; i < 40; ++i) {
            set(QLatin1String(name) + QString::number(i), i);
            saved = synchronize() && saved;
        }
        return saved;
    };
    const pid_t child = ::fork();
    if (child == 0) ::_exit(writeKeys("child") ? 0 : 1);
    std::thread thread([&] { EXPECT_TRUE(writeKeys("thread")); });
    EXPECT_TRUE(writeKeys("main"));
    thread.join();
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    ASSERT_TRUE(synchronize());
    for (const auto *name : {"child", "thread", "main"})
        for (int i = 0; i < 40; ++i)
            EXPECT_EQ(valueOf(QLatin1String(name) + QString::number(i)), QVariant(i)) << name << i;
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
    put(domain, R"({"flag": 1})"); // changes its type alone
    for (auto value = values.begin(); value != values.end(); ++value)
        set(value.key(), *value);
    ASSERT_TRUE(synchronize());
    for (auto value = values.begin(); value != values.end(); ++value) {
        EXPECT_EQ(valueOf(value.key()), *value) << value.key().toStdString();
        EXPECT_EQ(valueOf(value.key()).typeId(), value->typeId()) << value.key().toStdString();
    }
    struct stat status;
    ASSERT_EQ(::stat(qPrintable(home.path(fileOf(domain))), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(Preferences, ShowsOwnChangesAtOnceAndOthersAfterSynchronizing) {
    put(domain, R"({"a": 1, "b": 2})");
    EXPECT_EQ(valueOf("a"), QVariant(1));
    EXPECT_FALSE(valueOf("absent").isValid());
    set("a", {});
    put(domain, R"({"a": 1, "b": 3, "c": null})");
    EXPECT_FALSE(valueOf("a").isValid());
    EXPECT_EQ(valueOf("b"), QVariant(2));
    ASSERT_TRUE(synchronize());
    EXPECT_FALSE(valueOf("a").isValid());
    EXPECT_EQ(valueOf("b"), QVariant(3));
    EXPECT_EQ(home.contents(fileOf(domain)).simplified(), R"({ "b": 3, "c": null })");
}

TEST_F(Preferences, SetsDamagedFilesAsideAndGoesOn) {
    const QByteArray damaged[] = {"{\"a\": 1", "[1, 2]", "", QByteArray(100000, '['), "{\"a\": 1e999}", "\xff\xfe"};
    for (const QByteArray &text : damaged) {
        put(domain, text);
        const LogCapture ofThis;
        ASSERT_TRUE(synchronize());
        EXPECT_EQ(ofThis.lines().size(), 1) << text.left(20).constData();
        EXPECT_FALSE(valueOf("a").isValid());
    }
    EXPECT_EQ(home.contents(fileOf(domain) + QStringLiteral(".damaged")), damaged[0]);
    EXPECT_EQ(home.contents(fileOf(domain) + QStringLiteral(".damaged.2")), damaged[1]);
    put(domain, "not JSON");
    set("a", 7);
    ASSERT_TRUE(synchronize());
    EXPECT_EQ(valueOf("a"), QVariant(7));
}

TEST_F(Preferences, RefusesWhatCannotBeStoredAndKeepsWhatCouldNotBeSaved) {
    const QString key = QStringLiteral("key");
    for (const QVariant &value : {QVariant(QByteArray("bytes")), QVariant(std::numeric_limits<double>::quiet_NaN()),
                                  QVariant(QVariantList{QByteArray("bytes")})}) {
        set(key, value);
        EXPECT_FALSE(valueOf(key).isValid()) << value.typeName();
    }
    EXPECT_EQ(log.lines().size(), 3);
    const QString inTheWay = home.path(fileOf(domain)); // a folder stands where the file belongs
    ASSERT_TRUE(QDir().mkpath(inTheWay));
    set(key, 1);
    EXPECT_FALSE(synchronize());
    ASSERT_TRUE(QDir().rmdir(inTheWay));
    EXPECT_TRUE(synchronize());
    EXPECT_TRUE(says(home.contents(fileOf(domain)), "\"key\": 1"));
}

TEST_F(Preferences, UserDefaultsLookInTheProgramsDomainThenInGlobalAndSeeChangesAtOnce) {
    const QString own = QStringLiteral("some-program"), global = QStringLiteral("global");
    const QString flag = QStringLiteral("flag"), number = QStringLiteral("number");
    QCoreApplication::setApplicationName(own);
    const NSUserDefaults &defaults = NSUserDefaults::standardUserDefaults();
    EXPECT_FALSE(defaults.boolForKey(flag));
    put(global, R"({"flag": "YES", "number": "12abc"})");
    EXPECT_TRUE(defaults.boolForKey(flag));
    EXPECT_EQ(defaults.integerForKey(number), 12);
    put(own, R"({"flag": "no"})");
    EXPECT_FALSE(defaults.boolForKey(flag));
    EXPECT_EQ(defaults.integerForKey(number), 12);
    put(own, R"({"flag": "ye"})"); // same size, and perhaps the same moment
    EXPECT_TRUE(defaults.boolForKey(flag));
    QFile::remove(home.path(fileOf(own)));
    EXPECT_EQ(defaults.objectForKey(flag), QVariant(QStringLiteral("YES")));
    CFPreferencesSetAppValue(number, 5, global);
    EXPECT_EQ(defaults.integerForKey(number), 5);
}

} // namespace
} // namespace korvane::test
