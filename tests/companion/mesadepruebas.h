// zembro in a program directory of its own: what it answers, what it says beside that, and its status.
#pragma once

#include "tests/core/directoriodeprograma.h"

#include "companion/zembro.h"

#include <QJsonObject>

class MesaDePruebas : public DirectorioDePrograma {
protected:
    struct Respuesta {
        int estado = -1;
        QByteArray salida;
        QByteArray error;
    };

    Respuesta Zembro(const QStringList &argumentos) const;

    // The answer with --json; fails the test if it is none.
    QJsonObject Json(const QStringList &argumentos, int estado = companion::Bien) const;

    // The settings as written at the first run, in that language.
    void PonAjustes(const QString &idioma = QStringLiteral("ZB-ENG.LNG")) const;
};

// With a system, its emulators and its games.
class MesaConJuegos : public MesaDePruebas {
protected:
    // "Sis" with the emulators "Uno" (loose files *.nes, and ZIPs of them) and "Dos" (a directory a game), an
    // executable, three games, a description, a capture.
    MesaConJuegos();

    // A picture of one pixel.
    static QByteArray UnGif();

    // An executable of the emulators.
    void PonGuion(const QString &nombre, const QByteArray &lineas) const;

    // Replaces in a file of the program.
    void Cambia(const QString &fichero, const QByteArray &antes, const QByteArray &despues) const;
};
