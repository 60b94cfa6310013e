// The plain system boxes on a screen: what they show, which answer each button and key gives.
#include "host/desktopquestions.h"

#include <QAccessible>
#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gmock/gmock.h>

#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

inline void PrintTo(host::Questions::Answer answer, std::ostream *out)
{
    *out << int(answer);
}

// What assistive programs are told.
QString told(QObject &object)
{
    return QAccessible::queryAccessibleInterface(&object)->text(QAccessible::Name);
}

class QuestionsTest : public testing::Test {
protected:
    // Does this to the box of the kind as soon as it is up.
    template <typename Box> void whenUp(std::function<void(Box *)> act)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, act = std::move(act)] {
            auto *box = qobject_cast<Box *>(QApplication::activeModalWidget());
            if (!box || !box->isVisible())
                return;
            m_timer.stop();
            ++m_boxes;
            act(box);
        });
        m_timer.start(5);
    }

    void TearDown() override { EXPECT_EQ(m_boxes, 1); }

    host::DesktopQuestions m_questions;

private:
    QTimer m_timer;
    int m_boxes = 0;
};

TEST_F(QuestionsTest, TheOverwriteBoxShowsTitleAndText_AndEnterMeansNo)
{
    whenUp<QMessageBox>([](QMessageBox *box) {
        EXPECT_EQ(box->windowTitle(), u"Title"_s);
        EXPECT_EQ(box->text(), u"Overwrite a & b?"_s);
        EXPECT_EQ(box->standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        QTest::keyClick(box, Qt::Key_Return);
    });
    EXPECT_EQ(m_questions.askYesNoCancel(u"Title"_s, u"Overwrite a & b?"_s), host::Questions::Answer::No);
}

TEST_F(QuestionsTest, TheOverwriteBoxIsYes_ByItsButton)
{
    whenUp<QMessageBox>(
        [](QMessageBox *box) { QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton); });
    EXPECT_EQ(m_questions.askYesNoCancel(u"T"_s, u"x"_s), host::Questions::Answer::Yes);
}

TEST_F(QuestionsTest, TheOverwriteBoxIsCancel_WhenItIsClosed)
{
    whenUp<QMessageBox>([](QMessageBox *box) { box->close(); });
    EXPECT_EQ(m_questions.askYesNoCancel(u"T"_s, u"x"_s), host::Questions::Answer::Cancel);
}

TEST_F(QuestionsTest, YesOrNoIsNo_ByEnter)
{
    whenUp<QMessageBox>([](QMessageBox *box) { QTest::keyClick(box, Qt::Key_Return); });
    EXPECT_FALSE(m_questions.askYesNo(u"T"_s, u"x"_s));
}

TEST_F(QuestionsTest, YesOrNoIsYes_ByItsButton)
{
    whenUp<QMessageBox>(
        [](QMessageBox *box) { QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton); });
    EXPECT_TRUE(m_questions.askYesNo(u"T"_s, u"x"_s));
}

TEST_F(QuestionsTest, YesAndNoHaveTheWordsThatWereSet_OrElseTheToolkits)
{
    QStringList words;
    const auto read = [&words](QMessageBox *box) {
        words << box->button(QMessageBox::Yes)->text() << box->button(QMessageBox::No)->text();
        box->close();
    };
    whenUp<QMessageBox>(read);
    host::setAnswerWords({ u"Ja"_s, {}, {}, {} });
    m_questions.askYesNo(u"T"_s, u"x"_s);
    host::setAnswerWords({});
    EXPECT_EQ(words, QStringList({ u"Ja"_s, u"&No"_s }));
}

class WordsOfAnswers : public QuestionsTest {
protected:
    WordsOfAnswers() { host::setAnswerWords({ u"Ja"_s, u"Nein"_s, u"Gut & schön"_s, u"Abbrechen"_s }); }
    ~WordsOfAnswers() override { host::setAnswerWords({}); }

    template <typename Box> void readWhenUp()
    {
        whenUp<Box>([this](Box *box) {
            for (QAbstractButton *button : box->template findChildren<QAbstractButton *>())
                words << told(*button);
            words.sort();
            box->close();
        });
    }

    QStringList words;
};

TEST_F(WordsOfAnswers, AreThoseThatWereSet_OnTheOverwriteBox)
{
    readWhenUp<QMessageBox>();
    m_questions.askYesNoCancel(u"T"_s, u"x"_s);
    EXPECT_EQ(words, QStringList({ u"Abbrechen"_s, u"Ja"_s, u"Nein"_s }));
}

TEST_F(WordsOfAnswers, AreThoseThatWereSet_OnTheBoxThatTells)
{
    readWhenUp<QMessageBox>();
    m_questions.tell(u"T"_s, u"x"_s);
    EXPECT_EQ(words, QStringList({ u"Gut & schön"_s }));
}

TEST_F(WordsOfAnswers, AreThoseThatWereSet_OnTheBoxOfThePassword)
{
    readWhenUp<QInputDialog>();
    m_questions.askText(u"x"_s);
    EXPECT_EQ(words, QStringList({ u"Abbrechen"_s, u"Gut & schön"_s }));
}

TEST_F(QuestionsTest, MarkupInTheOverwriteBoxIsText)
{
    whenUp<QMessageBox>([](QMessageBox *box) {
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->text(), u"Overwrite <b>a</b>?"_s);
        box->close();
    });
    m_questions.askYesNoCancel(u"T"_s, u"Overwrite <b>a</b>?"_s);
}

TEST_F(QuestionsTest, MarkupInAYesOrNoIsText)
{
    whenUp<QMessageBox>([](QMessageBox *box) {
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        box->close();
    });
    m_questions.askYesNo(u"T"_s, u"<b>a</b>?"_s);
}

TEST(QuestionsDeathTest, MarkupInTheBoxOfAFatalEndIsText)
{
    EXPECT_EXIT(
        {
            QTimer::singleShot(0, [] {
                auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                std::fputs(box && box->textFormat() == Qt::PlainText ? "plain\n" : "marked up\n", stderr);
                QApplication::activeModalWidget()->close();
            });
            host::DesktopQuestions().endWithError(u"ERROR"_s, u"<b>file</b>"_s);
        },
        testing::ExitedWithCode(1), "ERROR: <b>file</b>\nplain");
}

TEST_F(QuestionsTest, MarksInTitlesAndWordsStandForThemselves)
{
    host::setAnswerWords({ u"R&D"_s, u"&&"_s, {}, {} });
    whenUp<QMessageBox>([](QMessageBox *box) {
        EXPECT_EQ(box->windowHandle()->title(), u"Title [*]"_s);
        EXPECT_EQ(told(*box->button(QMessageBox::Yes)), u"R&D"_s);
        EXPECT_EQ(told(*box->button(QMessageBox::No)), u"&&"_s);
        EXPECT_TRUE(box->button(QMessageBox::Yes)->shortcut().isEmpty());
        box->close();
    });
    m_questions.askYesNo(u"Title [*]"_s, u"x"_s);
    host::setAnswerWords({});
}

TEST_F(QuestionsTest, MarkupInThePromptOfThePasswordIsText)
{
    whenUp<QInputDialog>([](QInputDialog *box) {
        EXPECT_EQ(told(*box->findChild<QLabel *>()), u"<b>a</b> & [*]"_s);
        box->close();
    });
    m_questions.askText(u"<b>a</b> & [*]"_s);
}

TEST(QuestionsDeathTest, AFatalEndTellsTheTerminalNothingButText)
{
    EXPECT_EXIT(
        {
            QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
            host::DesktopQuestions().endWithError(u"ERROR"_s, u"one\ntwo\x1B[2J\x07\u009B.\x7F"_s);
        },
        testing::ExitedWithCode(1), "ERROR: one\ntwo\\?\\[2J\\?\\?\\.\\?\n");
}

TEST_F(QuestionsTest, ThePasswordIsHiddenAndHandedOver)
{
    whenUp<QInputDialog>([](QInputDialog *box) {
        EXPECT_EQ(box->labelText(), u"The prompt"_s);
        EXPECT_EQ(box->textEchoMode(), QLineEdit::Password);
        QTest::keyClicks(box->findChild<QLineEdit *>(), u"open sesame"_s);
        QTest::keyClick(box, Qt::Key_Return);
    });
    EXPECT_EQ(m_questions.askText(u"The prompt"_s), u"open sesame"_s);
}

TEST_F(QuestionsTest, ThePasswordIsEmpty_WhenThePromptIsClosed)
{
    whenUp<QInputDialog>([](QInputDialog *box) {
        QTest::keyClicks(box->findChild<QLineEdit *>(), u"half"_s);
        QTest::keyClick(box, Qt::Key_Escape);
    });
    EXPECT_EQ(m_questions.askText(u"The prompt"_s), QString());
}

TEST_F(QuestionsTest, TellShowsOneTextAsItStandsAndOneButton)
{
    whenUp<QMessageBox>([](QMessageBox *box) {
        EXPECT_EQ(box->windowTitle(), u"Title"_s);
        EXPECT_EQ(box->text(), u"/emu/x.exe  -a <b>  /roms/a.nes "_s);
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->buttons().size(), 1);
        QTest::keyClick(box, Qt::Key_Return);
    });
    m_questions.tell(u"Title"_s, u"/emu/x.exe  -a <b>  /roms/a.nes "_s);
}

TEST(QuestionsDeathTest, AFatalEndTellsOnTheStandardError_AndEndsWithStatusOne)
{
    EXPECT_EXIT(
        {
            QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
            host::DesktopQuestions().endWithError(u"ERROR"_s, u"no such file"_s);
        },
        testing::ExitedWithCode(1), "ERROR: no such file");
}

TEST(QuestionsDeathTest, AFatalEndUnderTheBoxOfAnotherEndsWithoutASecondBox)
{
    EXPECT_EXIT(
        {
            host::DesktopQuestions questions;
            QTimer::singleShot(0, [&] { questions.endWithError(u"ERROR"_s, u"second"_s); });
            questions.endWithError(u"ERROR"_s, u"first"_s);
        },
        testing::ExitedWithCode(1), "ERROR: first\nERROR: second");
}

TEST(QuestionsDeathTest, TheRegularEndHandsItsStatusOn)
{
    EXPECT_EXIT(host::DesktopQuestions().endProcess(0), testing::ExitedWithCode(0), "");
}

TEST(Questions, TheAnswersInForceAreTheOnesThatWereSet)
{
    host::DesktopQuestions first;
    host::DesktopQuestions second;
    host::setQuestions(&first);
    EXPECT_EQ(&host::questions(), &first);
    host::setQuestions(&second);
    EXPECT_EQ(&host::questions(), &second);
    host::setQuestions(nullptr);
}

} // namespace
