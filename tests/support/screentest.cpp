#include "tests/support/screentest.h"

#include "host/paths.h"

#include <QApplication>
#include <QImage>
#include <QPixmap>

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <utility>

#include <unistd.h>

namespace {

constexpr int Bound = 5000; // milliseconds

void closeModal(QWidget *window)
{
    window->hide();
}

} // namespace

ScreenTest::ScreenTest()
{
    std::array<char, PATH_MAX> buffer;
    m_workingDirectory = getcwd(buffer.data(), buffer.size());
    host::setQuestions(&questions);
    QObject::connect(&m_watch, &QTimer::timeout, &m_watch, [this] { look(); });
    m_watch.setSingleShot(true);
    m_watch.start(1);
}

ScreenTest::~ScreenTest()
{
    for (const Announced &form : m_announced)
        ADD_FAILURE() << "the form never came: " << form.formName.toStdString();
    host::setQuestions(nullptr);
    host::setProgramDirectory({});
    EXPECT_EQ(chdir(m_workingDirectory.constData()), 0);
}

void ScreenTest::atModal(const QString &formName, std::function<void(forms::Form &)> act)
{
    m_announced.push_back({ formName, std::move(act), {} });
    m_announced.back().since.start();
}

void ScreenTest::whenever(const QString &formName, std::function<void(forms::Form &)> act)
{
    m_always[formName] = std::move(act);
}

// Nothing for a form that nobody expects.
std::optional<std::function<void(forms::Form &)>> ScreenTest::takeActFor(const QString &formName)
{
    if (!m_announced.empty() && m_announced.front().formName == formName) {
        const std::function<void(forms::Form &)> act = std::move(m_announced.front().act);
        m_announced.pop_front();
        return act;
    }
    const auto always = m_always.find(formName);
    return always == m_always.end() ? std::nullopt : std::optional(always->second);
}

std::optional<ProcessEnd> ScreenTest::endOf(const std::function<void()> &action)
{
    try {
        action();
    } catch (const ProcessEnd &) {
        // The questions keep it.
    }
    return questions.takeEnd();
}

void ScreenTest::look()
{
    // Anew each time: a timer doesn't come in a loop that it has opened itself.
    m_watch.start(1);
    QWidget *const window = QApplication::activeModalWidget();
    if (window && std::find(m_acting.begin(), m_acting.end(), window) != m_acting.end()) {
        // What its action starts may work for long before the next form comes.
        if (!m_announced.empty())
            m_announced.front().since.restart();
        return;
    }
    if (!window) {
        overdue();
        return;
    }
    const bool announced = !m_announced.empty() && m_announced.front().formName == window->objectName();
    if (!announced && !m_always.contains(window->objectName())) {
        ADD_FAILURE() << "unexpected modal form: " << window->objectName().toStdString();
        closeModal(window);
        return;
    }
    auto *const form = dynamic_cast<forms::Form *>(window);
    if (!form || !form->isVisible() || QApplication::activeWindow() != form) {
        overdue();
        return;
    }
    const auto act = takeActFor(window->objectName());
    m_acting.push_back(window);
    try {
        (*act)(*form);
    } catch (const std::exception &failure) {
        ADD_FAILURE() << failure.what();
    }
    m_acting.pop_back();
}

void ScreenTest::overdue()
{
    if (m_announced.empty() || m_announced.front().since.elapsed() < Bound)
        return;
    ADD_FAILURE() << "the form didn't come in time: " << m_announced.front().formName.toStdString();
    m_announced.clear();
    if (QWidget *window = QApplication::activeModalWidget())
        closeModal(window);
}

QRect designPlace(int left, int top, int width, int height)
{
    const auto pixels = [](int twips) { return static_cast<int>(std::lround(twips / 15.0)); };
    return { pixels(left), pixels(top), pixels(width), pixels(height) };
}

QImage pictureOf(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}
