#include "host/desktopquestions.h"

#include "host/process.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

#include <cstdio>

namespace host {

namespace {

AnswerWords &words()
{
    static AnswerWords words;
    return words;
}

void name(QAbstractButton *button, const QString &word)
{
    if (!word.isEmpty())
        button->setText(word);
}

QMessageBox::StandardButton ask(
    const QString &title, const QString &text, QMessageBox::StandardButtons buttons)
{
    QMessageBox box(QMessageBox::Question, title, text, buttons, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    name(box.button(QMessageBox::Yes), words().yes);
    name(box.button(QMessageBox::No), words().no);
    return QMessageBox::StandardButton(box.exec());
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
    return QInputDialog::getText(
        QApplication::activeWindow(), QGuiApplication::applicationDisplayName(), prompt, QLineEdit::Password);
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
    QMessageBox box(QMessageBox::NoIcon, title, text, QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void DesktopQuestions::endWithError(const QString &title, const QString &text)
{
    std::fprintf(stderr, "%s: %s\n", title.toLocal8Bit().constData(), text.toLocal8Bit().constData());
    std::fflush(stderr);

    // A second failure, raised by what runs under the box, must not open a second box.
    static bool ending = false;
    if (hasDisplay() && !ending) {
        ending = true;
        QMessageBox box(QMessageBox::Critical, title, text, QMessageBox::Ok);
        box.setTextFormat(Qt::PlainText);
        box.exec();
    }
    endProcess(1);
}

void DesktopQuestions::endProcess(int status)
{
    host::endProcess(status);
}

} // namespace host
