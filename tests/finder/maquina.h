// A machine of its own for each test: directories in a temporary folder with executables that do nothing.
#pragma once

#include "finder/lugares.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <ostream>

void PrintTo(const QString &texto, std::ostream *salida);

class Maquina {
public:
    Maquina();

    QString Ruta(const QString &nombre = {}) const;
    void PonPrograma(const QString &nombre) const; // directories on the way are made
    void PonFichero(const QString &nombre, const QByteArray &bytes = {}) const;
    QByteArray Bytes(const QString &nombre) const;
    QStringList Entradas(const QString &directorio = {}) const; // files and directories below, sorted

    // Programs in "bin" and "games", cores in "cores".
    finder::Lugares Lugares() const;

private:
    QTemporaryDir m_directorio;
};
