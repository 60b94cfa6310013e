#include "drive.h"

#include "forms/event.h"

#include "host/failure.h"
#include "host/questions.h"

#include <QApplication>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;
using forms::Event;
using host::Failure;

namespace {

class Guard : public testing::Test {
protected:
    ~Guard() override { forms::setFatalWords({}); }
};

// The desktop's box runs the event loop: here the second failure comes while it is open.
class BoxWithEvents final : public host::Questions {
public:
    explicit BoxWithEvents(std::function<void()> meanwhile)
        : m_meanwhile(std::move(meanwhile))
        , m_previous(host::questions())
    {
        host::setQuestions(this);
    }
    ~BoxWithEvents() override { host::setQuestions(&m_previous); }

    QString askText(const QString &) override { return {}; }
    Answer askYesNoCancel(const QString &, const QString &) override { return Answer::Cancel; }
    bool askYesNo(const QString &, const QString &) override { return false; }
    void tell(const QString &, const QString &) override { }
    [[noreturn]] void endWithError(const QString &title, const QString &text) override
    {
        ++ends;
        m_meanwhile();
        throw drive::ProcessEnd { title, text };
    }
    [[noreturn]] void endProcess(int) override { throw drive::ProcessEnd {}; }

    int ends = 0;

private:
    std::function<void()> m_meanwhile;
    Questions &m_previous;
};

class FailingWidget final : public QWidget {
protected:
    void mousePressEvent(QMouseEvent *) override { throw Failure(53, u"open a file"_s, u"Zembro.emu"_s); }
};

TEST_F(Guard, AFailureOutOfAHandler_EndsTheProcessInTheProgramsWords)
{
    forms::setFatalWords([](const Failure &failure) {
        return forms::FatalWords { u"Title"_s, u"%1 %2"_s.arg(failure.number()).arg(failure.about()) };
    });
    Event<> event;
    event = [] { throw Failure(53, u"open a file"_s, u"Zembro.emu"_s); };
    try {
        event.raise();
        FAIL() << "the failure was not reported";
    } catch (const drive::ProcessEnd &end) {
        EXPECT_EQ(end.title, u"Title"_s);
        EXPECT_EQ(end.text, u"53 Zembro.emu"_s);
    }
}

TEST_F(Guard, WithoutWords_TheFailureSpeaksForItself)
{
    const Failure failure(53, u"open a file"_s, u"Zembro.emu"_s);
    try {
        forms::guarded([&] { throw failure; });
        FAIL() << "the failure was not reported";
    } catch (const drive::ProcessEnd &end) {
        EXPECT_EQ(end.text, QString::fromUtf8(failure.what()));
    }
}

TEST_F(Guard, AFailureInAnEventRaisedByCode_DoesNotReachTheCallersHandler)
{
    Event<> event;
    event = [] { throw Failure(9, u"read a table"_s); };
    bool caught = false;
    EXPECT_THROW(
        {
            try {
                event.raise();
            } catch (const Failure &) {
                caught = true;
            }
        },
        drive::ProcessEnd);
    EXPECT_FALSE(caught);
}

TEST_F(Guard, AFailureInsideNestedGuards_IsReportedOnce)
{
    BoxWithEvents box([] {});
    EXPECT_THROW(forms::guarded(
                     [] { forms::guarded([] { forms::guarded([] { throw Failure(5, u"anything"_s); }); }); }),
        drive::ProcessEnd);
    EXPECT_EQ(box.ends, 1);
}

TEST_F(Guard, AFailureWhileTheFatalBoxIsOpen_IsNotReported)
{
    BoxWithEvents box([] { forms::guarded([] { throw Failure(61, u"write"_s); }); });
    EXPECT_THROW(forms::guarded([] { throw Failure(5, u"anything"_s); }), drive::ProcessEnd);
    EXPECT_EQ(box.ends, 1);
    EXPECT_THROW(forms::guarded([] { throw Failure(5, u"anything"_s); }), drive::ProcessEnd);
    EXPECT_EQ(box.ends, 2);
}

TEST_F(Guard, WhatIsNoFailure_PassesThrough)
{
    EXPECT_THROW(forms::guarded([] { throw std::runtime_error("other"); }), std::runtime_error);
}

TEST_F(Guard, AFailureOutOfAWidgetsOwnEvent_IsCaughtByTheApplication)
{
    FailingWidget widget;
    widget.resize(20, 20);
    EXPECT_THROW(QTest::mousePress(&widget, Qt::LeftButton), drive::ProcessEnd);
}

TEST_F(Guard, AnEventWithoutAHandler_DoesNothing)
{
    const Event<int> event;
    EXPECT_FALSE(event.hasHandler());
    event.raise(7);
}

TEST_F(Guard, AHandlerThatReplacesItself_RunsToItsEnd)
{
    Event<int> event;
    int sum = 0;
    event = [&, own = std::make_shared<int>(10)](int number) {
        event = [](int) {};
        sum = *own + number;
    };
    event.raise(5);
    EXPECT_EQ(sum, 15);
}

} // namespace
