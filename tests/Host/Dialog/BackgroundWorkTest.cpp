// Work that the thread of the dialog does not wait for.
#include "Dialog/BackgroundWork.h"

#include "Print.h"

#include <QElapsedTimer>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>

using host::BackgroundWork;

namespace {

constexpr int kMilliseconds = 10000;

/// Until it is asked to stop.
int waitForStop(const std::stop_token &stop)
{
    while (!stop.stop_requested())
        QThread::msleep(1);
    return 1;
}

TEST(Background, AnswersOnTheThreadOfTheReceiver)
{
    QObject receiver;
    int answer = 0;
    const QThread *where = nullptr;
    const BackgroundWork work(
        receiver, [](const std::stop_token &) { return 42; },
        [&](int result) {
            answer = result;
            where = QThread::currentThread();
        });
    ASSERT_TRUE(QTest::qWaitFor([&] { return answer != 0; }, kMilliseconds));
    EXPECT_EQ(answer, 42);
    EXPECT_EQ(where, QThread::currentThread());
}

TEST(Background, AnswersNobodyWhenTheReceiverIsGone)
{
    bool isAnswered = false;
    std::atomic<bool> isDone = false;
    auto receiver = std::make_unique<QObject>();
    {
        const BackgroundWork work(
            *receiver,
            [&](const std::stop_token &) {
                isDone = true;
                return 0;
            },
            [&](int) { isAnswered = true; });
    }
    ASSERT_TRUE(isDone); // the answer is posted by now
    receiver.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(isAnswered);
}

TEST(Background, IsStoppedAndWaitedFor)
{
    QObject receiver;
    bool isAnswered = false;
    {
        const BackgroundWork work(receiver, waitForStop, [&](int) { isAnswered = true; });
    }
    QCoreApplication::processEvents();
    EXPECT_TRUE(isAnswered);
}

TEST(Background, TakesThePlaceOfEarlierWorkWhichIsStopped)
{
    QObject receiver;
    QList<int> answers;
    const auto note = [&](int answer) { answers.append(answer); };
    BackgroundWork work(receiver, waitForStop, note);
    work = BackgroundWork(receiver, [](const std::stop_token &) { return 2; }, note);
    ASSERT_TRUE(QTest::qWaitFor([&] { return answers.size() == 2; }, kMilliseconds));
    std::ranges::sort(answers); // the later work may well be done first
    EXPECT_EQ(answers, QList<int>({1, 2}));
}

} // namespace
