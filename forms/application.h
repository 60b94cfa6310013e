// The toolkit's application with the program's own palette, the guard around every event, and the sign of a
// repeat on each press of a key held down.
#pragma once

#include <QApplication>

class QKeyEvent;

namespace forms {

class Application : public QApplication {
public:
    // Sets the palette, the style and the fonts, and keeps the process alive when the last window closes.
    Application(int &argc, char **argv);

    bool notify(QObject *receiver, QEvent *event) override;

private:
    bool deliver(QObject *receiver, QEvent *event);
    bool isRepeat(const QKeyEvent &press) const;
    bool deliverKey(QObject *receiver, QKeyEvent *event);

    quint64 m_released = 0; // when the last key was
    quint32 m_releasedCode = 0; // and which, as the keyboard numbers its keys; 0: none
};

// What Application does, for a test that brings its own application object.
void setLook(QApplication &application);

} // namespace forms
