#include "directoriodeprograma.h"

#include "host/paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <ctime>

using namespace Qt::StringLiterals;

qint64 TiempoDeTrabajo()
{
    return qint64(std::clock()) * 1000 / CLOCKS_PER_SEC;
}

int NumeroDeFallo(const std::function<void()> &operacion)
{
    try {
        operacion();
    } catch (const host::Failure &fallo) {
        return fallo.number();
    }
    return 0;
}

QByteArray BytesSinOrden()
{
    QByteArray bytes;
    quint32 estado = 12345;
    for (int i = 0; i < 20000; ++i) {
        estado = estado * 1664525 + 1013904223;
        bytes += static_cast<char>(estado >> 24);
    }
    return bytes;
}

DirectorioDePrograma::DirectorioDePrograma()
{
    EXPECT_TRUE(m_directorio.isValid());
    host::setProgramDirectory(m_directorio.path());
}

DirectorioDePrograma::~DirectorioDePrograma()
{
    host::setProgramDirectory({});
}

QString DirectorioDePrograma::Ruta(const QString &nombre) const
{
    return m_directorio.path() + u'/' + nombre;
}

void DirectorioDePrograma::Pon(const QString &nombre, const QByteArray &bytes) const
{
    QFile fichero(Ruta(nombre));
    const bool haySitio = fichero.open(QIODevice::WriteOnly);
    ASSERT_TRUE(haySitio || QDir().mkpath(QFileInfo(Ruta(nombre)).path()));
    ASSERT_TRUE(haySitio || fichero.open(QIODevice::WriteOnly));
    ASSERT_EQ(fichero.write(bytes), bytes.size());
}

void DirectorioDePrograma::PonDirectorio(const QString &nombre) const
{
    ASSERT_TRUE(QDir().mkpath(Ruta(nombre)));
}

void DirectorioDePrograma::Borra(const QString &nombre) const
{
    ASSERT_TRUE(QFile::remove(Ruta(nombre)));
}

QByteArray DirectorioDePrograma::Bytes(const QString &nombre) const
{
    QFile fichero(Ruta(nombre));
    EXPECT_TRUE(fichero.open(QIODevice::ReadOnly));
    return fichero.readAll();
}

QStringList DirectorioDePrograma::Nombres() const
{
    return QDir(m_directorio.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

void DirectorioDePrograma::Reescribe(
    const QString &nombre, const std::function<QString(const QString &)> &cambio)
{
    M.Ficheros.rewrite(host::programFile(nombre), u"Zembro.tmp"_s, cambio);
}
