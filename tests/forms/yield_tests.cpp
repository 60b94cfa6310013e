#include "drive.h"

#include "forms/form.h"
#include "forms/yield.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>

#include <gtest/gtest.h>

#include <ctime>
#include <thread>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class PaintCounter final : public QWidget {
public:
    using QWidget::QWidget;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *) override { ++paints; }
};

class Pipe {
public:
    Pipe() { EXPECT_EQ(::pipe(m_ends), 0); }
    ~Pipe()
    {
        ::close(m_ends[0]);
        ::close(m_ends[1]);
    }
    int readEnd() const { return m_ends[0]; }
    void write() const { EXPECT_EQ(::write(m_ends[1], "x", 1), 1); }

private:
    int m_ends[2] = { -1, -1 };
};

void settle()
{
    for (int i = 0; i < 5; ++i)
        forms::DoEvents();
}

double processorSeconds()
{
    timespec used {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9;
}

qint64 waited(int descriptor, int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    forms::WaitForEvents(descriptor, milliseconds);
    return clock.elapsed();
}

TEST(Yield, WhatIsPosted_IsDone)
{
    int done = 0;
    QMetaObject::invokeMethod(
        qApp, [&] { ++done; }, Qt::QueuedConnection);
    forms::DoEvents();
    EXPECT_EQ(done, 1);
}

TEST(Yield, WhatWasToBeDeletedLater_IsGone)
{
    const QPointer<QObject> object(new QObject);
    object->deleteLater();
    forms::DoEvents();
    EXPECT_TRUE(object.isNull());
}

TEST(Yield, WhatWasToBePainted_IsPainted)
{
    forms::Form form(u"Form"_s, 3000, 3000, forms::Form::Border::None);
    PaintCounter counter(&form);
    counter.setGeometry(0, 0, 20, 20);
    drive::show(form);
    settle();
    counter.paints = 0;
    counter.update();
    forms::DoEvents();
    EXPECT_EQ(counter.paints, 1);
}

TEST(Yield, OneUnderWay_IsKnownAsSuch)
{
    bool within = false;
    QMetaObject::invokeMethod(
        qApp, [&] { within = forms::IsYielding(); }, Qt::QueuedConnection);
    EXPECT_FALSE(forms::IsYielding());
    forms::DoEvents();
    EXPECT_TRUE(within);
    EXPECT_FALSE(forms::IsYielding());
}

TEST(Yield, WithinAnother_StillDoesWhatIsPosted)
{
    std::vector<int> order;
    const auto post = [](auto work) { QMetaObject::invokeMethod(qApp, work, Qt::QueuedConnection); };
    post([&] {
        post([&] { order.push_back(1); });
        forms::DoEvents();
        order.push_back(2);
        EXPECT_TRUE(forms::IsYielding());
    });
    forms::DoEvents();
    EXPECT_EQ(order, (std::vector<int> { 1, 2 }));
}

TEST(Waiting, WhenNothingHappens_EndsWithTheTime)
{
    settle();
    const qint64 took = waited(-1, 100);
    EXPECT_GE(took, 99);
    EXPECT_LT(took, 400);
}

TEST(Waiting, WhatIsPostedAlready_EndsItAtOnce)
{
    settle();
    int done = 0;
    QMetaObject::invokeMethod(
        qApp, [&] { ++done; }, Qt::QueuedConnection);
    EXPECT_LT(waited(-1, 5000), 1000);
    EXPECT_EQ(done, 1);
}

TEST(Waiting, AReadableDescriptor_EndsItAtOnce)
{
    settle();
    const Pipe pipe;
    pipe.write();
    EXPECT_LT(waited(pipe.readEnd(), 5000), 1000);
    // It stays readable, and wakes the next call again.
    EXPECT_LT(waited(pipe.readEnd(), 5000), 1000);
}

TEST(Waiting, ADescriptorThatTurnsReadable_EndsIt)
{
    settle();
    const Pipe pipe;
    std::thread writer([&] {
        ::usleep(50'000);
        pipe.write();
    });
    const qint64 took = waited(pipe.readEnd(), 5000);
    writer.join();
    EXPECT_GE(took, 30);
    EXPECT_LT(took, 1500);
}

TEST(Waiting, ADescriptor_IsNotWatchedBetweenTheCalls)
{
    settle();
    const Pipe pipe;
    forms::WaitForEvents(pipe.readEnd(), 1);
    pipe.write();
    const double before = processorSeconds();
    EXPECT_GE(waited(-1, 200), 199);
    EXPECT_LT(processorSeconds() - before, 0.1);
}

TEST(Waiting, AnEventFromAnotherThread_EndsIt)
{
    settle();
    std::thread poster([] {
        ::usleep(50'000);
        QMetaObject::invokeMethod(
            qApp, [] {}, Qt::QueuedConnection);
    });
    EXPECT_LT(waited(-1, 5000), 1500);
    poster.join();
}

TEST(Waiting, ATimer_EndsIt)
{
    settle();
    int fired = 0;
    QTimer::singleShot(20, [&] { ++fired; });
    EXPECT_LT(waited(-1, 5000), 1500);
    EXPECT_EQ(fired, 1);
}

TEST(Waiting, InIdleness_CostsNextToNothing)
{
    forms::Form form(u"Form"_s, 3000, 3000, forms::Form::Border::None);
    drive::show(form);
    settle();
    const double before = processorSeconds();
    for (int pass = 0; pass < 4; ++pass)
        forms::WaitForEvents(-1, 100);
    EXPECT_LT(processorSeconds() - before, 0.05);
}

} // namespace
