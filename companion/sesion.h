// One run of a command: what it was asked, the program's state, and where its answer goes.
#pragma once

#include "companion/orden.h"

#include "core/modulo.h"

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace companion {

// Where the answer goes, and what is said beside it.
struct Consola {
    std::function<void(const QByteArray &)> sale;
    std::function<void(const QByteArray &)> error;
    // At the end: whether all of the answer has been written; else errno says why not. None asks nobody.
    std::function<bool()> queda = {};
    // Whether a terminal shows the answer; none is for no terminal.
    std::function<bool()> esTerminal = {};
};

// What a command line asks for.
struct Pedido {
    QStringList argumentos;
    QHash<QString, QStringList> opciones; // by name; one without a value has an empty text for each time
};

class Sesion {
public:
    Sesion(const Pedido &pedido, const Palabras &palabrasDelIdioma, core::Modulo &modulo, Consola consola);

    const Palabras &palabras;
    core::Modulo &M; // of the program's directory; nothing but the language is read yet

    // An argument counted from 0, empty if it was left out.
    QString Argumento(qsizetype i) const { return m_pedido.argumentos.value(i); }
    QStringList Argumentos() const { return m_pedido.argumentos; }
    bool Tiene(const QString &opcion) const { return m_pedido.opciones.contains(opcion); }
    QString Valor(const QString &opcion) const; // the last one given, else empty
    bool EnJson() const { return Tiene(QStringLiteral("json")); }

    // Lines of the answer; what a terminal would obey is made visible.
    void Escribe(const QString &linea) const;
    void Escribe(const QStringList &lineas) const;
    // One line with a tab between two texts; those in them are made visible.
    void EscribeColumnas(const QStringList &columnas) const;
    // A text for another program, as it is; what a terminal would obey is made visible to one alone.
    void EscribeDocumento(const QString &texto) const;
    // The answer, asked for as JSON.
    void Json(const QJsonObject &objeto) const;

    // A line beside the answer, on the standard error.
    void Avisa(const QString &linea) const;

    // Says why it could not run; with --json the answer says so too. Yields NoPudo.
    int Falla(const QString &motivo) const;
    // The first line is why, the others are what it could have meant.
    int Falla(const QStringList &lineas) const;

private:
    Pedido m_pedido;
    Consola m_consola;
};

// What a failure is told as, in the words of the language.
QString TextoDe(const host::Failure &fallo, const Palabras &palabras);

} // namespace companion
