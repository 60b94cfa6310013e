// The toolkit's application with the program's own palette and the guard around every event.
#pragma once

#include <QApplication>

namespace forms {

class Application : public QApplication {
public:
    // Sets the palette, the style and the fonts, and keeps the process alive when the last window closes.
    Application(int &argc, char **argv);

    bool notify(QObject *receiver, QEvent *event) override;
};

// What Application does, for a test that brings its own application object.
void setLook(QApplication &application);

} // namespace forms
