// What the queue keeps on disk.
#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Service/PostCheck.h"
#include "Service/RecordCodec.h"
#include "Service/Spool.h"
#include "Service/UploadStore.h"
#include "Tests/Service/Database.h"
#include "Tests/Support/Testing.h"

#include <sys/stat.h>

using namespace korvane;
using namespace korvane::test;

namespace {

NewUpload upload(const char *title) {
    NewUpload upload;
    upload.job.service = flickrServiceID;
    upload.job.title = QString::fromUtf8(title);
    upload.record = title;
    return upload;
}

// All of them: does not compile once there is another.
auto fieldsOf(auto &job) {
    auto &[id, service, state, waitReason, title, accountID, accountName, spoolFile, source, exportFile, photoID, video,
           bytesTotal, attempts, failures, failingSince, deaths, createdAt, finishedAt, nextTryAt, error] = job;
    return std::tie(id, service, state, waitReason, title, accountID, accountName, spoolFile, source, exportFile,
                    photoID, video, bytesTotal, attempts, failures, failingSince, deaths, createdAt, finishedAt,
                    nextTryAt, error);
}

struct Store : ::testing::Test {
    TemporaryHome home;
    const QString path = home.path("queue.sqlite");
    UploadStore store;
    void SetUp() override { ASSERT_TRUE(store.open(path, nullptr)); }

    std::vector<UploadJob> running(int count) {
        std::vector<NewUpload> uploads(size_t(count), upload("t"));
        EXPECT_TRUE(store.take(QStringLiteral("m%1").arg(count), uploads, nullptr));
        auto jobs = store.queued(flickrServiceID, count);
        for (UploadJob &job : jobs) {
            job.state = UploadState::Running;
            store.update(job, true);
        }
        return jobs;
    }
};

} // namespace

TEST(RecordCodec, KeepsEveryPropertyListValueAndDropsOthers) {
    const TemporaryHome home;
    const QByteArray bytes = jpegOfSize(9000);
    const auto file = NSData::dataWithContentsOfFile(home.file("bytes", "head" + bytes))->file();
    const QVariantMap record{{QStringLiteral("text"), QStringLiteral("日本")},
                             {QStringLiteral("empty"), QStringLiteral("")},
                             {QStringLiteral("texts"), QStringList{QStringLiteral("a"), QString()}},
                             {QStringLiteral("noTexts"), QStringList()},
                             {QStringLiteral("big"), Q_INT64_C(9007199254740993)},
                             {QStringLiteral("flag"), true},
                             {QStringLiteral("real"), 0.1},
                             {QStringLiteral("inline"), QByteArray("\0\xff", 2)}};
    QVariantMap more = record;
    more.insert(QStringLiteral("range"), QVariant::fromValue(NSData::dataWithFile(file, 4, bytes.size())));
    more.insert(QStringLiteral("map"), QVariantMap{{QStringLiteral("a"), 1}});
    const QByteArray encoded = RecordCodec::encode(more, file);
    EXPECT_LT(encoded.size(), 1000);
    QVariantMap decoded = RecordCodec::decode(encoded, file);
    EXPECT_EQ(decoded.take(QStringLiteral("range")).value<NSData>().bytes(), bytes);
    EXPECT_EQ(decoded, record);
    EXPECT_FALSE(RecordCodec::decode(encoded, nullptr).contains(QStringLiteral("range")));
    EXPECT_TRUE(RecordCodec::decode("damaged", file).isEmpty());
}

TEST_F(Store, KeepsEveryFieldOverAReopening) {
    NewUpload taken = upload("t");
    taken.job.accountName = QStringLiteral("name");
    taken.job.createdAt = 12;
    ASSERT_TRUE(store.take(QStringLiteral("m"), {taken}, nullptr));
    UploadJob job = store.jobsAfter(0, 1).at(0);
    taken.job.id = 1;
    EXPECT_EQ(fieldsOf(job), fieldsOf(taken.job));

    const FileIdentity source{1, 18446744073709551615ULL, 3, 4};
    const NSError error = NSError::errorWithDescription(QStringLiteral("D"), -7, QStringLiteral("text"));
    const VimeoCheckpoint video{QStringLiteral("t1"),      NSURL::URLWithString(QStringLiteral("http://v/u?t=1")),
                                Q_UINT64_C(6'442'450'944), true,
                                QStringLiteral("53"),      false};
    fieldsOf(job) =
        std::tuple(1, vimeoServiceID, UploadState::Waiting, WaitReason::SignIn, QStringLiteral("title"),
                   QStringLiteral("account"), QStringLiteral("name"), QStringLiteral("spooled"), source,
                   QStringLiteral("exported"), Q_INT64_C(53000000001), video, 5, 6, 7, 8, 9, 10, 11, 5000, error);
    ASSERT_TRUE(store.update(job, true));
    UploadStore second;
    ASSERT_TRUE(second.open(path, nullptr));
    const UploadJob read = *second.job(1);
    EXPECT_EQ(fieldsOf(read), fieldsOf(job));
    EXPECT_EQ(second.nextDue(), 5000);
    EXPECT_EQ(second.spoolFiles(), (QSet<QString>{QStringLiteral("spooled"), QStringLiteral("exported")}));
}

TEST_F(Store, RefusesADatabaseOfAnotherVersion) {
    sql(path, {QStringLiteral("PRAGMA user_version=99")});
    std::optional<NSError> refusal;
    EXPECT_FALSE(UploadStore().open(path, &refusal));
    EXPECT_TRUE(says(refusal, "another version"));
}

TEST_F(Store, DrawsInTimesThatAWrongClockLeft) {
    UploadJob job = running(1)[0];
    job.state = UploadState::Waiting;
    job.nextTryAt = 1'000'000;
    job.failingSince = 1'000'000;
    store.update(job, true);
    store.drawWaitsIn(500, 1000);
    EXPECT_EQ(store.job(job.id)->nextTryAt, 1500);
    EXPECT_EQ(store.job(job.id)->failingSince, 500);
}

TEST_F(Store, RefusesADatabaseThatIsDamagedAnywhere) {
    running(100);
    const qint64 page = sql(path, {QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"),
                                   QStringLiteral("SELECT rootpage FROM sqlite_master WHERE name = 'uploads_spool'")})
                            .toLongLong();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) && file.seek((page - 1) * 4096));
    file.write(QByteArray(64, '\xff'));
    std::optional<NSError> error;
    EXPECT_FALSE(UploadStore().open(path, &error));
    EXPECT_TRUE(says(error, "damaged"));
    EXPECT_FALSE(store.spoolFiles()) << "what the database does not say is not taken for nothing";
    home.file("none.sqlite", QByteArray(8192, 'x'));
    EXPECT_FALSE(UploadStore().open(home.path("none.sqlite"), &error));
    EXPECT_TRUE(says(error, "none.sqlite"));
}

TEST(Spool, LinksOrCopiesAndSweepsWhatNobodyKnows) {
    const TemporaryHome home;
    const Spool spool(home.path("spool"));
    const QByteArray bytes = jpegOfSize(300'000);
    const QByteArray named = home.file("named", bytes);
    const FileDescriptor unnamed(::open(QFile::encodeName(home.path()).constData(), O_TMPFILE | O_RDWR, 0600));
    ASSERT_EQ(::write(unnamed.get(), bytes.constData(), bytes.size()), bytes.size());
    const FileDescriptor unlinked(::open(named.constData(), O_RDONLY));
    ::unlink(named.constData());
    QSet<QString> names;
    for (const int file : {unnamed.get(), unlinked.get()}) {
        const auto name = spool.adopt(file, nullptr);
        ASSERT_TRUE(name);
        EXPECT_EQ(NSData::dataWithFile(spool.open(*name), 0, bytes.size()).bytes(), bytes);
        names.insert(*name);
    }
    EXPECT_EQ(names.size(), 2);
    spool.sweep({*names.begin()});
    EXPECT_EQ(QDir(home.path("spool")).entryList(QDir::Files), QStringList{*names.begin()});

    std::optional<NSError> error;
    const FileDescriptor folder(::open(QFile::encodeName(home.path()).constData(), O_RDONLY));
    EXPECT_FALSE(spool.adopt(folder.get(), &error));
    EXPECT_TRUE(error);
    EXPECT_EQ(QDir(home.path("spool")).entryList(QDir::Files).size(), 1) << "nothing is left behind";
}

TEST(PostCheck, ObjectsToWhatTheUploadCodeWouldDieOf) {
    const TemporaryHome home;
    const QByteArray photo = home.file("photo.jpg", jpegOfSize(100));
    const auto withURL = [](const NSURL &url) {
        const auto post = FlickrPost::init();
        post->assetURL = url;
        return post;
    };
    UploadJob job;
    const auto objectionTo = [&](const std::shared_ptr<FlickrPost> &post) {
        const auto objection = PostCheck::prepare(*post, job);
        return objection ? std::optional(objection->error) : std::nullopt;
    };
    const auto usable = withURL(NSURL::fileURLWithPath(photo));
    EXPECT_TRUE(objectionTo(usable)) << "it was not there when it was shared";
    job.source = FileIdentity::ofPath(photo);
    EXPECT_FALSE(objectionTo(usable));
    ::unlink(photo.constData());
    EXPECT_EQ(usable->photoData->bytes(), jpegOfSize(100)) << "the file that was looked at is the one that is sent";

    const QByteArray folder = QFile::encodeName(home.path());
    EXPECT_TRUE(says(objectionTo(withURL(NSURL::fileURLWithPath(folder))), "cannot be read"));
    const auto post = withURL(*NSURL::URLWithString(QStringLiteral("http://elsewhere/a.jpg")));
    home.file("photo.jpg", jpegOfSize(100));
    const auto file = std::make_shared<const FileDescriptor>(::open(photo.constData(), O_RDONLY));
    post->photoData = NSData::dataWithFile(file, 50, 100);
    EXPECT_TRUE(says(objectionTo(post), "damaged"));
    const QByteArray video = QByteArray::fromHex("00000020667479706d703432000000006d7034326d7034316973366d61766331");
    const QByteArray clip = home.file("library/clip.mp4", video + "moov");
    EXPECT_TRUE(says(objectionTo(withURL(*ALAssetsLibrary::assetURLForFile(clip))), "is a video"));
}
