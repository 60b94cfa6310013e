// Sees what passes too quickly for a test that only looks afterwards.
#pragma once

#include <QEvent>
#include <QWidget>

#include <functional>
#include <utility>

// Calls back for every event of one kind that a widget gets, ahead of the widget.
class Witness final : public QObject {
public:
    Witness(QWidget &widget, QEvent::Type type, std::function<void()> seen)
        : m_type(type)
        , m_seen(std::move(seen))
    {
        widget.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == m_type)
            m_seen();
        return false;
    }

private:
    QEvent::Type m_type;
    std::function<void()> m_seen;
};
