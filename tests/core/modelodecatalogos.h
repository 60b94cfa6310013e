// A simple model of the two catalogue files and of the notes: every line with its end, in its place. What an
// operation does to the model is told in terms of systems and emulators, without looking at a line.
#pragma once

#include <QStringList>

#include <vector>

// Every line holds its end.
struct EmuladorDeBase {
    QString nombre;
    QString linea; // "+"
    QStringList antesDeWeb;
    QString web;
    QStringList detras;
};

struct SistemaDeBase {
    QString nombre;
    QString linea; // "-"
    QStringList antesDeWeb;
    QString web;
    QStringList extensiones; // and lines of the user's own among them
    QString apostrofo;
    QStringList detrasDelApostrofo;
    std::vector<EmuladorDeBase> emuladores;
    QString cierre;
    QStringList detras;
};

struct EmuladorDeCatalogo {
    QString nombre;
    QString apostrofo;
    QStringList antes;
    QString linea; // "+"
    QStringList antesDeWeb;
    QString web;
    QStringList resto;
};

struct SistemaDeCatalogo {
    QString nombre;
    QString linea; // "-"
    QStringList antesDeWeb;
    QString web;
    QStringList extensiones;
    QString apostrofoSuelto; // behind the extensions, of a system that had no emulators when they changed
    std::vector<EmuladorDeCatalogo> emuladores;
    QString cierre;
    QStringList detras;
};

struct NotasDeUnSistema {
    QString nombre;
    QString linea;
    QStringList notas;
    QString apostrofo;
};

struct RegistroDeParametros {
    QString sistema;
    QString linea;
};

template <typename Sistema> struct Fichero {
    QStringList cabecera;
    std::vector<Sistema> sistemas;
    QStringList fin;
};

struct FicheroDeNotas {
    QStringList cabecera;
    std::vector<NotasDeUnSistema> sistemas;
    QStringList fin; // from the bracket to the header of the parameters
    std::vector<RegistroDeParametros> parametros;
    QStringList cierre;
    QStringList detras;
};

QString TextoDe(const SistemaDeCatalogo &sistema);
QString TextoDe(const Fichero<SistemaDeBase> &fichero);
QString TextoDe(const Fichero<SistemaDeCatalogo> &fichero);
QString TextoDe(const FicheroDeNotas &fichero);
