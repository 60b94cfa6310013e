// The whole of a text that has no room where it stands, in the light colours of a note.
#pragma once

#include <QColor>
#include <QWidget>

namespace forms {

constexpr QRgb NotePaper = qRgb(255, 255, 192);

// Lies over what shows the text, in the middle, within the window; on several lines where that is too narrow.
// It takes neither the mouse nor the focus.
class WholeText final : public QWidget {
public:
    explicit WholeText(QWidget &window);

    void ShowOver(const QWidget &control, const QString &text);
    QString Text() const { return m_text; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
};

} // namespace forms
