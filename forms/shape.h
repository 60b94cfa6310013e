// A rectangle of one coloured line, for the eye alone: it takes no mouse.
#pragma once

#include <QColor>
#include <QWidget>

namespace forms {

class Shape : public QWidget {
public:
    Shape(const QColor &colour, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_colour;
};

} // namespace forms
