// The main screen over a program directory of the test's own, started as the program starts it.
#pragma once

#include "tests/support/input.h"
#include "tests/support/programdirectory.h"
#include "tests/support/screentest.h"

#include "core/modulo.h"

#include "mainscreen/portada.h"

#include <memory>

class PortadaTest : public ScreenTest {
protected:
    PortadaTest();

    // Loads the main screen; returns how the process ended, if it did.
    std::optional<ProcessEnd> load();

    // Loads it, and waits until it is the active window.
    void start();

    // A new process over the same directory: fresh state, fresh screen.
    void renew();
    void restart() // and started
    {
        renew();
        start();
    }

    template <typename Kind = QWidget> Kind &control(const QString &name)
    {
        return controlOf<Kind>(*portada, name);
    }
    forms::ListBox &list() { return control<forms::ListBox>(QStringLiteral("Lista1")); }
    forms::ComboBox &systems() { return control<forms::ComboBox>(QStringLiteral("Combo1")); }
    forms::ComboBox &emulators() { return control<forms::ComboBox>(QStringLiteral("Combo2")); }
    QString caption(const QString &label); // of a label
    QColor colour(const QString &label);
    QString info() { return caption(QStringLiteral("TXT_Info")); }
    QString summary() { return caption(QStringLiteral("TXT_InfoRoms")); }
    QString word() { return caption(QStringLiteral("TXT_Boton")); }
    QStringList listed();
    QStringList entries(const forms::ComboBox &combo) const;
    QString focused() const; // name of the screen's control that has the focus
    QColor capture(); // the colour in the middle of the picture in Graf_Imagen
    QColor zoomed(); // the same of the zoom screen

    ProgramDirectory files;
    std::unique_ptr<core::Modulo> M;
    std::unique_ptr<mainscreen::Portada> portada;
    bool firstRunShown = false;
};
