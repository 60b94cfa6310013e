// The message box over an owner of its own, with a tile of three colours.
#pragma once

#include "tests/support/input.h"
#include "tests/support/screentest.h"

#include "core/modulo.h"

#include "dialogs/mensaje.h"

class MensajeTest : public ScreenTest {
protected:
    MensajeTest();

    // Shows a box with the words "Mensaje", "Título", "Sí", "No" and "entrada"; `act` drives it, and has to
    // close it.
    void show(int type, std::function<void(forms::Form &)> act);
    void show(int type, const QString &message, std::function<void(forms::Form &)> act);

    core::Modulo M;
    forms::Form owner;
    dialogs::CajaDeMensajes box;
};

forms::Label &labelOf(const forms::Form &form, const QString &name);
forms::PictureButton &buttonOf(const forms::Form &form, const QString &name);
