// The edge of a window that nobody frames.
#pragma once

#include <QObject>

class QPainter;
class QWidget;

namespace forms {

// One line in the colour of frames, where no window manager frames the window: nothing else would tell it
// from the one that it stands over.
void drawOwnEdge(QPainter &painter, const QWidget &window);

// Draws it on a window that paints itself.
class OwnEdge final : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject *window, QEvent *event) override;
};

} // namespace forms
