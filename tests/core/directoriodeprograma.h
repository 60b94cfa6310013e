// A program directory in a temporary folder, a fresh state, and the ways to put files there byte for byte
// without the code under test.
#pragma once

#include "core/modulo.h"

#include "host/failure.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <functional>
#include <ostream>

// How the test program shows texts.
inline void PrintTo(const QString &texto, std::ostream *salida)
{
    *salida << '"' << texto.toStdString() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *salida)
{
    *salida << '"' << bytes.toPercentEncoding(" !'\"(),-.:;=[]*+\\/").toStdString() << '"';
}

// How long this process has been working, in milliseconds; waiting for other processes doesn't count.
qint64 TiempoDeTrabajo();

// The number of the failure that the operation ends with; 0 if it ends without one.
int NumeroDeFallo(const std::function<void()> &operacion);

// Every byte there is, in an order without pattern, the same at every call.
QByteArray BytesSinOrden();

class DirectorioDePrograma : public testing::Test {
protected:
    DirectorioDePrograma();
    ~DirectorioDePrograma() override;

    QString Ruta(const QString &nombre) const;
    void Pon(const QString &nombre, const QByteArray &bytes) const; // makes the directories on the way
    void PonDirectorio(const QString &nombre) const;
    void Borra(const QString &nombre) const;
    QByteArray Bytes(const QString &nombre) const;
    QStringList Nombres() const; // all that lies in the program directory, sorted

    // Rewrites a file of the program with a function from text to text.
    void Reescribe(const QString &nombre, const std::function<QString(const QString &)> &cambio);

    core::Modulo M;

private:
    QTemporaryDir m_directorio;
};
