// The toolkit's application with the program's own palette, the guard around every event, and the sign of a
// repeat on each press of a key held down. Of its pairs of release and press only the presses are delivered.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>

#include <memory>

namespace host {
class FontsAhead;
}

namespace forms {

class Hold;
class WholeFrames;

class Application : public QApplication {
public:
    // Sets the palette, the style and the fonts, and keeps the process alive when the last window closes. The
    // machine's fonts are waited for where they are being read.
    Application(int &argc, char **argv, host::FontsAhead *fonts = nullptr);

    ~Application() override;

    bool notify(QObject *receiver, QEvent *event) override;

private:
    bool deliver(QObject *receiver, QEvent *event);
    bool isRepeat(const QKeyEvent &press) const;
    bool deliverKey(QObject *receiver, QKeyEvent *event);
    bool deliverOverride(QObject *receiver, QKeyEvent *event);
    bool deliverRelease(QObject *receiver, QKeyEvent *event);
    void putOff(QObject *receiver, const QKeyEvent &release);
    void deliverPutOff();
    void hold(QObject *receiver, const QMouseEvent &press);

    quint64 m_released = 0; // when the last key was
    quint32 m_releasedCode = 0; // and which, as the keyboard numbers its keys; 0: none

    int m_shutBy = 0; // the key that has shut a list or a menu ahead of its press; 0: none

    std::unique_ptr<QKeyEvent> m_putOff; // a release that may be half of a repeat
    QPointer<QObject> m_putOffFor;
    QTimer m_wait;
    int m_waits = 0; // how often it is yet to run out

    std::unique_ptr<Hold> m_hold; // of a control of the toolkit's
    std::unique_ptr<WholeFrames> m_wholeFrames;
};

// Hides the toolkit's tip at once, so that the next one comes up at its own place.
void hideTip();

// What Application does, for a test that brings its own application object.
void setLook(QApplication &application);

} // namespace forms
