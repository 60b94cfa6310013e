#include "mesadepruebas.h"

#include "core/ajustes.h"

#include <QFile>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

MesaDePruebas::Respuesta MesaDePruebas::Zembro(const QStringList &argumentos) const
{
    Respuesta respuesta;
    respuesta.estado = companion::Zembro(argumentos,
        { [&](const QByteArray &bytes) { respuesta.salida += bytes; },
            [&](const QByteArray &bytes) { respuesta.error += bytes; } });
    return respuesta;
}

QJsonObject MesaDePruebas::Json(const QStringList &argumentos, int estado) const
{
    const Respuesta respuesta = Zembro(argumentos + QStringList { u"--json"_s });
    EXPECT_EQ(respuesta.estado, estado) << respuesta.error.toStdString() << respuesta.salida.toStdString();
    const QJsonDocument documento = QJsonDocument::fromJson(respuesta.salida);
    EXPECT_TRUE(documento.isObject()) << respuesta.salida.toStdString();
    return documento.object();
}

void MesaDePruebas::PonAjustes(const QString &idioma) const
{
    Pon(u"Zembro.cfg"_s, core::AjustesPorDefecto(idioma).toUtf8());
}

MesaConJuegos::MesaConJuegos()
{
    PonAjustes();
    Pon(u"LNG/ZB-ENG.LNG"_s, "' no words of its own\r\n");
    Pon(u"Zembro.rom"_s,
        "Sis\r\nMARIO.NES,\"Super Mario\"\r\n'\r\n'------\r\n[EOF]\r\n\r\n"
        "Parametros especificos\r\nMARIO.NES,Sis,Uno,-fast\r\n'\r\n");
    const QByteArray uno = Ruta(u"emu/uno.sh"_s).toUtf8();
    const QByteArray base = Ruta(QString()).toUtf8();
    Pon(u"Zembro.emu"_s,
        "-Sis\r\nWEB1=\r\n*.NES\r\n'\r\n+Uno\r\nEXE=" + uno + "\r\nXDI=NO.0\r\nROM=" + base + "roms/\r\nIMG="
            + base + "img/\r\nPAR1=-a\r\nPAR2=\r\nWEB2=\r\n'\r\n+Dos\r\nEXE=" + uno + "\r\nXDI=NO.1\r\nROM="
            + base + "dirs/\r\nIMG=" + base + "img/\r\nPAR1=\r\nPAR2=\r\nWEB2=\r\n'------\r\n[EOF]\r\n");
    PonGuion(u"emu/uno.sh"_s, "exit 0\n");
    Pon(u"roms/Mario.nes"_s, QByteArray(2048, 'm'));
    Pon(u"roms/Zelda.nes"_s, QByteArray(1024, 'z'));
    Pon(u"roms/Zelda II.nes"_s, QByteArray(1024, 'z'));
    Pon(u"roms/other.txt"_s, "no game");
    PonDirectorio(u"dirs/Sonic"_s);
    Pon(u"img/mario.gif"_s, UnGif());
}

QByteArray MesaConJuegos::UnGif()
{
    return QByteArray::fromBase64("R0lGODlhAQABAIAAAP///wAAACH5BAAAAAAALAAAAAABAAEAAAICRAEAOw==");
}

void MesaConJuegos::PonGuion(const QString &nombre, const QByteArray &lineas) const
{
    Pon(nombre, "#!/bin/sh\n" + lineas);
    QFile::setPermissions(Ruta(nombre), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void MesaConJuegos::Cambia(const QString &fichero, const QByteArray &antes, const QByteArray &despues) const
{
    QByteArray bytes = Bytes(fichero);
    ASSERT_TRUE(bytes.contains(antes)) << antes.toStdString();
    Pon(fichero, bytes.replace(antes, despues));
}
