#include "forms/latehourglass.h"

#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

#include <utility>

using namespace std::chrono_literals;

namespace forms {

namespace {

constexpr auto Late = 50ms;

// The toolkit keeps a pointer's shape from the first window that it was for.
void loadHourglass()
{
    QWindow unseen;
    unseen.create();
    unseen.setCursor(Qt::WaitCursor);
}

} // namespace

LateHourglass::LateHourglass()
    : m_watch([this] {
        if (std::chrono::steady_clock::now() - m_begun > Late)
            show();
    })
{
    QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
}

LateHourglass::~LateHourglass()
{
    show();
    QTimer::singleShot(1ms, qGuiApp, loadHourglass); // behind what waits to be painted
}

void LateHourglass::show()
{
    if (!std::exchange(m_shown, true))
        QGuiApplication::restoreOverrideCursor();
}

} // namespace forms
