// The ground of the tests of screens: boxes that nobody announced fail, modal forms are driven while they
// stand.
#pragma once

#include "tests/support/printing.h"
#include "tests/support/testquestions.h"

#include "forms/form.h"

#include <QElapsedTimer>
#include <QTimer>

#include <gmock/gmock.h>

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <vector>

class ScreenTest : public testing::Test {
protected:
    ScreenTest();
    ~ScreenTest() override;

    // Runs `act` once the form of this name is up as the active modal window. Announced forms come in the
    // order in which they were announced. A modal form that wasn't, or that the last `act` for it left open,
    // fails the test and is closed; one that doesn't come within seconds fails it too.
    void atModal(const QString &formName, std::function<void(forms::Form &)> act);

    // Runs `act` for each form of this name that comes up unannounced.
    void whenever(const QString &formName, std::function<void(forms::Form &)> act);

    // How the process ended in this action; nothing if it goes on.
    std::optional<ProcessEnd> endOf(const std::function<void()> &action);

    TestQuestions questions;

private:
    struct Announced {
        QString formName;
        std::function<void(forms::Form &)> act;
        QElapsedTimer since;
    };
    void look();
    void overdue();
    std::optional<std::function<void(forms::Form &)>> takeActFor(const QString &formName);

    std::deque<Announced> m_announced;
    std::map<QString, std::function<void(forms::Form &)>> m_always;
    QTimer m_watch;
    std::vector<QWidget *> m_acting; // forms whose action runs, the innermost last
    QByteArray m_workingDirectory;
};

// The control of this name on a form; the test fails, and ends, without one of this kind.
template <typename Kind> Kind &controlOf(const forms::Form &form, const QString &name)
{
    auto *control = dynamic_cast<Kind *>(form.Control(name));
    if (!control)
        throw std::runtime_error("no such control: " + name.toStdString());
    return *control;
}

// The place of a control in its parent, in pixels, as its twips of the design say.
QRect designPlace(int left, int top, int width, int height);

// What a widget shows, as it stands on the screen.
QImage pictureOf(QWidget &widget);
