#include "host/desktopquestions.h"

#include "host/focus.h"
#include "host/process.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace host {

namespace {

AnswerWords &words()
{
    static AnswerWords words;
    return words;
}

// Of a button, or of a label beside what it names: '&' would mark an accelerator.
QString caption(const QString &text)
{
    return QString(text).replace(u'&', u"&&"_s);
}

void name(QAbstractButton *button, const QString &word)
{
    if (button && !word.isEmpty())
        button->setText(caption(word));
}

// All texts come from outside: the toolkit reads no marks in them.
class PlainBox final : public QMessageBox {
public:
    PlainBox(Icon icon, const QString &title, const QString &text, StandardButtons buttons, QWidget *parent)
        : QMessageBox(icon, QString(title).replace(u"[*]"_s, u"[*][*]"_s), QString(), buttons, parent)
    {
        setTextFormat(Qt::PlainText);
        setText(text);
        name(button(Yes), words().yes);
        name(button(No), words().no);
        name(button(Ok), words().accept);
        name(button(Cancel), words().cancel);
    }

protected:
    void showEvent(QShowEvent *event) override
    {
        QMessageBox::showEvent(event);
        centreWithoutManager(*this);
    }
};

class PasswordBox final : public QInputDialog {
public:
    using QInputDialog::QInputDialog;

protected:
    void showEvent(QShowEvent *event) override
    {
        QInputDialog::showEvent(event);
        centreWithoutManager(*this);
    }
};

// The window below may be gone by the end.
int answerTo(QDialog &box)
{
    const QPointer<QWidget> below = box.parentWidget();
    const int answer = box.exec();
    if (below)
        takeFreeFocus(*below);
    return answer;
}

QMessageBox::StandardButton ask(
    const QString &title, const QString &text, QMessageBox::StandardButtons buttons)
{
    PlainBox box(QMessageBox::Question, title, text, buttons, QApplication::activeWindow());
    box.setDefaultButton(QMessageBox::No);
    return QMessageBox::StandardButton(answerTo(box));
}

// Without what a terminal would obey.
QString forTerminal(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control && character != u'\n')
            character = u'?';
    }
    return text;
}

bool hasDisplay()
{
    return qobject_cast<QApplication *>(QCoreApplication::instance());
}

} // namespace

void setAnswerWords(const AnswerWords &answers)
{
    words() = answers;
}

const AnswerWords &answerWords()
{
    return words();
}

QString DesktopQuestions::askText(const QString &prompt)
{
    PasswordBox box(QApplication::activeWindow());
    box.setWindowTitle(QGuiApplication::applicationDisplayName());
    box.setTextEchoMode(QLineEdit::Password);
    box.setLabelText(caption(prompt));
    box.findChild<QLabel *>()->setTextFormat(Qt::PlainText);
    if (!words().accept.isEmpty())
        box.setOkButtonText(caption(words().accept));
    if (!words().cancel.isEmpty())
        box.setCancelButtonText(caption(words().cancel));
    return answerTo(box) == QDialog::Accepted ? box.textValue() : QString();
}

Questions::Answer DesktopQuestions::askYesNoCancel(const QString &title, const QString &text)
{
    switch (ask(title, text, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

bool DesktopQuestions::askYesNo(const QString &title, const QString &text)
{
    return ask(title, text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

void DesktopQuestions::tell(const QString &title, const QString &text)
{
    PlainBox box(QMessageBox::NoIcon, title, text, QMessageBox::Ok, QApplication::activeWindow());
    answerTo(box);
}

void DesktopQuestions::endWithError(const QString &title, const QString &text)
{
    const QString line = forTerminal(title + u": "_s + text);
    std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
    std::fflush(stderr);

    // A second failure, raised by what runs under the box, must not open a second box.
    static bool ending = false;
    if (hasDisplay() && !ending) {
        ending = true;
        PlainBox(QMessageBox::Critical, title, text, QMessageBox::Ok, nullptr).exec();
    }
    endProcess(1);
}

void DesktopQuestions::endProcess(int status)
{
    host::endProcess(status);
}

} // namespace host
