// The list of uploads under any order of pages and news, and the numbers beside those that run.
#include "ShareSheet/UploadsModel.h"
#include "ShareSheet/TransferRate.h"
#include "ShareSheet/UploadWords.h"
#include "Tests/Support/Seed.h"
#include "Tests/Support/Testing.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>

using namespace korvane;
using namespace korvane::test;

namespace {

const QStringList states{QStringLiteral("queued"), QStringLiteral("running"), QStringLiteral("waiting"),
                         QStringLiteral("done"), QStringLiteral("failed")};

// What the service has; it answers as the service does.
class Queue {
public:
    std::map<qint64, Upload> uploads;

    Upload put(qint64 id, const QString &state) {
        Upload &upload = uploads[id];
        upload.id = QString::number(id);
        upload.state = state;
        return upload;
    }
    std::vector<Upload> recent(qint64 before, size_t limit, const QStringList &only) const {
        std::vector<Upload> page;
        for (auto it = uploads.rbegin(); it != uploads.rend() && page.size() < limit; ++it)
            if (it->first < before && (only.isEmpty() || only.contains(it->second.state))) page.push_back(it->second);
        return page;
    }
};

QStringList shown(const UploadsModel &model) {
    QStringList all;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row);
        all.append(index.data(UploadsModel::IDRole).toString() + u' ' + index.data(UploadsModel::StateRole).toString());
    }
    return all;
}

// The first rows that a person would have to see: those that run, then the others.
QStringList expected(const Queue &queue, const QStringList &only) {
    QStringList running, others;
    for (const Upload &upload : queue.recent(std::numeric_limits<qint64>::max(), queue.uploads.size(), only))
        (upload.isRunning() ? running : others).append(upload.id + u' ' + upload.state);
    return running + others;
}

void load(UploadsModel &model, const Queue &queue) {
    const auto count = size_t(model.countToAskFor());
    const auto page = queue.recent(std::numeric_limits<qint64>::max(), count, model.states());
    model.replace(page, queue.recent(std::numeric_limits<qint64>::max(), 1000, {states[1]}), page.size() < count);
}

} // namespace

TEST(UploadsModel, ShowsWhatTheServiceHasInOrderWhateverComesWhen) {
    QRandomGenerator random(seedOfRun());
    for (int round = 0; round < 20; ++round) {
        Queue queue;
        UploadsModel model;
        std::optional<QAbstractItemModelTester> tester; // takes its time
        if (round == 0) tester.emplace(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        bool isMoreWanted = false; // the service's answer takes its time
        QObject::connect(&model, &UploadsModel::moreWanted, [&] { isMoreWanted = true; });
        const auto answer = [&] {
            if (!std::exchange(isMoreWanted, false)) return;
            const auto page = queue.recent(model.oldest(), 100, model.states());
            model.append(model.oldest(), page, page.size() < 100);
        };
        qint64 newest = random.bounded(400);
        for (qint64 id = 1; id <= newest; ++id)
            queue.put(id, states[random.bounded(5)]);
        load(model, queue);
        for (int step = 0; step < 200; ++step) {
            const int what = random.bounded(100);
            if (what < 2) {
                model.setStates(random.bounded(2) ? QStringList() : QStringList{states[random.bounded(5)]});
                load(model, queue);
            } else if (what < 5) {
                load(model, queue);
            } else if (what < 10 && newest > 0) {
                const qint64 id = 1 + random.bounded(newest);
                queue.uploads.erase(id);
                model.remove(QString::number(id));
            } else if (what < 14) {
                model.fetchMore({});
            } else if (what < 20) { // many at once
                std::vector<Upload> added;
                for (int i = random.bounded(300); i > 0; --i)
                    added.push_back(queue.put(++newest, states[0]));
                model.apply(added);
            } else if (newest > 0) {
                const qint64 id = 1 + random.bounded(newest);
                if (queue.uploads.contains(id)) model.apply({queue.put(id, states[random.bounded(5)])});
            }
            if (random.bounded(2)) answer();
            const QStringList rows = shown(model);
            QStringList all = expected(queue, model.states());
            if (rows.size() < all.size()) { // what runs is all here; of the others as many as were scrolled to
                EXPECT_TRUE(model.canFetchMore({}) || isMoreWanted);
                all = all.mid(0, rows.size());
            }
            ASSERT_EQ(rows, all) << "round " << round << ", step " << step;
        }
        do
            answer();
        while (model.fetchMore({}), isMoreWanted);
        ASSERT_EQ(shown(model), expected(queue, model.states()));
    }
}

TEST(UploadsModel, HoldsNoMoreThanWasScrolledToWhileThousandsAreShared) {
    Queue queue;
    UploadsModel model;
    load(model, queue);
    for (qint64 id = 1; id <= 20'000; ++id)
        model.apply({queue.put(id, states[0])});
    EXPECT_LE(model.rowCount(), 200);
    EXPECT_EQ(model.index(0).data(UploadsModel::IDRole), QStringLiteral("20000"));
    EXPECT_TRUE(model.canFetchMore({}));
}

TEST(TransferRate, FollowsASpeedWithoutJumping) {
    TransferRate rate;
    EXPECT_FALSE(rate.bytesPerSecond());
    qint64 sent = 0, time = 5000;
    const auto run = [&](int seconds, qint64 bytesPerSecond, bool inChunks) {
        for (int quarter = 0; quarter < 4 * seconds; ++quarter, time += 250) {
            sent += inChunks ? (quarter % 8 == 7 ? 2 * bytesPerSecond : 0) : bytesPerSecond / 4;
            rate.add(sent, time);
        }
    };
    run(2, 1'000'000, false);
    EXPECT_NEAR(*rate.bytesPerSecond(), 1e6, 1e4) << "from the beginning";
    EXPECT_NEAR(double(*rate.secondsLeft(sent + 60'000'000)), 60, 1);
    run(60, 1'000'000, true);
    EXPECT_NEAR(*rate.bytesPerSecond(), 1e6, 2e5) << "chunks show little";
    run(60, 100'000, false);
    EXPECT_NEAR(*rate.bytesPerSecond(), 1e5, 2e4) << "a change shows after a while";
    run(200, 0, false);
    EXPECT_FALSE(rate.secondsLeft(sent + 1000)) << "at a standstill nobody knows";
    rate.add(0, time); // begun again
    EXPECT_FALSE(rate.bytesPerSecond());
}

TEST(UploadWords, RoundTimesAsPeopleDo) {
    const std::pair<qint64, const char *> cases[] = {
        {0, "a few seconds left"},        {6, "about 10 s left"},   {33, "about 40 s left"},
        {56, "about 1 min left"},         {75, "about 1 min left"}, {180, "about 3 min left"},
        {22 * 60, "about 25 min left"},   {3600, "about 1 h left"}, {5 * 3600 + 1800, "about 6 h left"},
        {200'000, "more than a day left"}};
    for (const auto &[seconds, words] : cases)
        EXPECT_EQ(UploadWords::timeLeft(seconds), QLatin1String(words)) << seconds;
}
