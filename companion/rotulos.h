// What a game is called, by what its file is called.
#pragma once

#include <QHash>
#include <QSet>
#include <QString>

#include <vector>

namespace companion {

// "Legend of Zelda, The (Europe) (Rev 1)" is "The Legend of Zelda", with the marks "(Europe) (Rev 1)".
struct Rotulo {
    QString titulo;
    QString marcas; // what stands in brackets at the end; may be empty

    QString Entero() const { return marcas.isEmpty() ? titulo : titulo + u' ' + marcas; }
};

// Of a name without its ending.
Rotulo RotuloDe(const QString &nombre);

// The name without its ending: up to four letters and digits behind the last point.
QString SinTerminacion(const QString &nombre);

// In one line, as a record of the notes can hold it; empty if it can't.
QString Anotable(const QString &descripcion);

// A game that is to be described.
struct PorDescribir {
    QString clave;
    QString entrada; // how it is told of
    QString titulo; // empty where nothing is known of it
    QString entero; // to tell it from another of that title
    bool estaDescrito = false; // it stays as it is, and its title tells it from the others
};

enum class Motivo { SinClave, Repetida, NoCabe };
struct Rechazado {
    QString entrada;
    Motivo motivo;
};

// What each is to be called: by its title, by all of it where another one has the title, or not at all where
// another is called so too, as a list leads from a description to one file. Texts of `ocupados` are others'.
struct Bautizados {
    std::vector<std::pair<QString, QString>> descripciones; // by their keys
    std::vector<Rechazado> rechazados;
};
Bautizados Bautiza(const std::vector<PorDescribir> &juegos, const QSet<QString> &ocupados);

} // namespace companion
