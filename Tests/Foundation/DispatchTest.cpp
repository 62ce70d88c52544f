// Queues.
#include "Platform/Foundation/Dispatch.h"
#include "Tests/Support/Testing.h"

#include <atomic>
#include <barrier>
#include <vector>

using namespace korvane;
using namespace korvane::test;

TEST(Dispatch, RunsMainWorkInOrderOnTheMainThread) {
    std::vector<int> order;
    dispatchGlobal([&] {
        for (int i = 0; i < 1000; ++i)
            dispatchMain([&, i] {
                EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
                order.push_back(i);
            });
    });
    ASSERT_TRUE(waitFor([&] { return order.size() == 1000; }));
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(Dispatch, AddsThreadsWhileOthersBlock) {
    std::barrier together(41);
    for (int i = 0; i < 40; ++i)
        dispatchGlobal([&] { together.arrive_and_wait(); });
    together.arrive_and_wait(); // never ends with fewer than 40 threads
}

TEST(Dispatch, SerialQueueFinishesItsWorkAndMayDieOnItsOwnThread) {
    std::atomic<int> done = 0;
    {
        SerialQueue queue;
        for (int i = 0; i < 100; ++i)
            queue.async([&] { ++done; });
    }
    EXPECT_EQ(done, 100);

    auto queue = std::make_shared<SerialQueue>();
    std::atomic<bool> gone = false;
    queue->async([&, held = queue]() mutable {
        while (held.use_count() > 1)
            QThread::yieldCurrentThread();
        held.reset();
        gone = true;
    });
    queue.reset();
    EXPECT_TRUE(waitFor([&] { return gone.load(); }));
}
