// A rectangle of one coloured line, for the eye alone: it takes no mouse. Its line is interrupted behind a
// heading that lies on it.
#pragma once

#include <QColor>
#include <QPointer>
#include <QWidget>

class QLabel;

namespace forms {

class Shape : public QWidget {
public:
    Shape(const QColor &colour, QWidget *parent);
    ~Shape() override;

    const QLabel *Heading() const { return m_heading; }
    void SetHeading(const QLabel *heading); // a sibling of one line; null for none

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect headingRect() const;

    QColor m_colour;
    QPointer<const QLabel> m_heading;
};

} // namespace forms
