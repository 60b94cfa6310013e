#include "maquina.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

void PrintTo(const QString &texto, std::ostream *salida)
{
    *salida << '"' << texto.toStdString() << '"';
}

Maquina::Maquina()
{
    EXPECT_TRUE(m_directorio.isValid());
}

QString Maquina::Ruta(const QString &nombre) const
{
    return nombre.isEmpty() ? m_directorio.path() : m_directorio.filePath(nombre);
}

void Maquina::PonPrograma(const QString &nombre) const
{
    PonFichero(nombre, "#!/bin/sh\n");
    EXPECT_TRUE(QFile::setPermissions(Ruta(nombre), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void Maquina::PonFichero(const QString &nombre, const QByteArray &bytes) const
{
    EXPECT_TRUE(QDir().mkpath(QFileInfo(Ruta(nombre)).path()));
    QFile fichero(Ruta(nombre));
    EXPECT_TRUE(fichero.open(QIODevice::WriteOnly)) << nombre.toStdString();
    EXPECT_EQ(fichero.write(bytes), bytes.size());
}

QByteArray Maquina::Bytes(const QString &nombre) const
{
    QFile fichero(Ruta(nombre));
    EXPECT_TRUE(fichero.open(QIODevice::ReadOnly)) << nombre.toStdString();
    return fichero.readAll();
}

QStringList Maquina::Entradas(const QString &directorio) const
{
    const QDir raiz(Ruta(directorio));
    QStringList entradas;
    QDirIterator todas(
        raiz.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (todas.hasNext())
        entradas += raiz.relativeFilePath(todas.next());
    entradas.sort();
    return entradas;
}

finder::Lugares Maquina::Lugares() const
{
    return { { Ruta(u"bin"_s), Ruta(u"games"_s) }, { Ruta(u"cores"_s) } };
}
