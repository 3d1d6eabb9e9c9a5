#include "speaking/SpeechWorker.h"

#include <QCoreApplication>
#include <QTest>
#include <QThread>
#include <future>
#include <gtest/gtest.h>
#include <memory>

namespace {

QThread *mainThread()
{
    return QCoreApplication::instance()->thread();
}

} // namespace

TEST(SpeechWorkerTest, RunsJobsOneAtATimeInOrderAndDeliversOnTheUiThread)
{
    QObject context;
    QList<int> delivered;
    std::atomic<int> running{0};
    std::atomic<bool> overlapped{false};
    std::atomic<bool> ranOnUiThread{false};
    bool deliveredElsewhere = false;
    for (int job = 0; job < 5; ++job) {
        SpeechWorker::instance().post(
            &context,
            [&, job] {
                overlapped = overlapped || running.fetch_add(1) > 0;
                ranOnUiThread = ranOnUiThread || QThread::currentThread() == mainThread();
                QThread::msleep(5);
                running.fetch_sub(1);
                return job;
            },
            [&](int result) {
                deliveredElsewhere = deliveredElsewhere || QThread::currentThread() != mainThread();
                delivered.append(result);
            });
    }
    // The caller is not held up by the jobs it posts.
    EXPECT_LT(delivered.size(), 5);
    ASSERT_TRUE(QTest::qWaitFor([&] { return delivered.size() == 5; }));
    EXPECT_EQ(delivered, (QList<int>{0, 1, 2, 3, 4}));
    EXPECT_FALSE(overlapped);
    EXPECT_FALSE(ranOnUiThread);
    EXPECT_FALSE(deliveredElsewhere);
}

TEST(SpeechWorkerTest, DropsTheResultOfAContextDestroyedWhileItsJobRan)
{
    std::promise<void> release;
    std::shared_future<void> released = release.get_future().share();
    std::promise<void> started;
    auto context = std::make_unique<QObject>();
    bool goneDelivered = false;
    SpeechWorker::instance().post(
        context.get(),
        [released, &started] {
            started.set_value();
            released.wait();
            return 1;
        },
        [&](int) { goneDelivered = true; });
    started.get_future().wait();
    context.reset();
    release.set_value();

    // A later job's result arrives, so the earlier one has been through the queue by then.
    QObject living;
    bool livingDelivered = false;
    SpeechWorker::instance().post(
        &living, [] { return 2; }, [&](int) { livingDelivered = true; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return livingDelivered; }));
    EXPECT_FALSE(goneDelivered);
}
