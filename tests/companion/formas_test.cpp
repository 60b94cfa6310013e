// The documented shapes of what zembro answers with --json.
#include "mesadepruebas.h"

#include "companion/ordenes.h"

#include "tests/launch/zipdeprueba.h"

#include "host/aside.h"
#include "host/paths.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

QJsonObject definiciones()
{
    QFile fichero(QStringLiteral(PROJECT_SOURCES "/docs/zembro.schema.json"));
    EXPECT_TRUE(fichero.open(QIODevice::ReadOnly));
    return QJsonDocument::fromJson(fichero.readAll())[u"$defs"_s].toObject();
}

bool esDeTipo(const QJsonValue &valor, const QString &tipo)
{
    return (tipo == u"string" && valor.isString()) || (tipo == u"boolean" && valor.isBool())
        || (tipo == u"number" && valor.isDouble()) || (tipo == u"array" && valor.isArray())
        || (tipo == u"object" && valor.isObject())
        || (tipo == u"integer" && valor.isDouble() && valor.toDouble() == double(valor.toInteger()));
}

// What of a value is not as the schema says; empty if all is. Of the schema's words those that the file uses.
QString falta(
    const QJsonObject &defs, const QJsonObject &forma, const QJsonValue &valor, const QString &lugar);

QString faltaDeObjeto(
    const QJsonObject &defs, const QJsonObject &forma, const QJsonObject &objeto, const QString &lugar)
{
    const QJsonObject propias = forma[u"properties"_s].toObject();
    for (const QJsonValue &nombre : forma[u"required"_s].toArray()) {
        if (!objeto.contains(nombre.toString()))
            return lugar + u": lacks "_s + nombre.toString();
    }
    for (auto una = objeto.begin(); una != objeto.end(); ++una) {
        if (!propias.contains(una.key()))
            return lugar + u": has "_s + una.key();
        const QString suya =
            falta(defs, propias[una.key()].toObject(), una.value(), lugar + u'/' + una.key());
        if (!suya.isEmpty())
            return suya;
    }
    return {};
}

QString falta(
    const QJsonObject &defs, const QJsonObject &forma, const QJsonValue &valor, const QString &lugar)
{
    if (forma.contains(u"$ref"_s)) {
        const QString nombre = forma[u"$ref"_s].toString().section(u'/', -1);
        return defs.contains(nombre) ? falta(defs, defs[nombre].toObject(), valor, lugar) : u"no "_s + nombre;
    }
    if (forma.contains(u"oneOf"_s)) {
        QString todas;
        for (const QJsonValue &una : forma[u"oneOf"_s].toArray()) {
            const QString suya = falta(defs, una.toObject(), valor, lugar);
            if (suya.isEmpty())
                return {};
            todas += suya + u' ';
        }
        return todas;
    }
    if (forma.contains(u"enum"_s))
        return forma[u"enum"_s].toArray().contains(valor) ? QString() : lugar + u": none of the values"_s;
    const QString tipo = forma[u"type"_s].toString();
    if (!esDeTipo(valor, tipo))
        return lugar + u": no "_s + tipo;
    if (tipo == u"object")
        return faltaDeObjeto(defs, forma, valor.toObject(), lugar);
    for (const QJsonValue &uno : valor.toArray()) {
        const QString suya = falta(defs, forma[u"items"_s].toObject(), uno, lugar + u"[]"_s);
        if (!suya.isEmpty())
            return suya;
    }
    return {};
}

class Shape : public MesaConJuegos {
protected:
    Shape()
    {
        qputenv(host::AsideFileVariable, Ruta(u"log"_s).toUtf8());
        Pon(u"log"_s,
            "zembrolix T 1.1 game a b c\nzembrolix T 1.1 start x\nzembrolix T 1.1 status 3 after 0.1\n");
        Pon(u"Zembro.sye"_s, "[EOF]\r\n");
        Pon(u"roms/pack.zip"_s, Zip({ { "x.nes" } }));
        Cambia(u"Zembro.emu"_s, "*.NES", "*.ZIP\r\n*.NES");
        Pon(u"pics/zelda.png"_s, "no picture");
        EXPECT_TRUE(QFile::link(QStringLiteral(CAPTURE_CONVERTER), Ruta(u"Cvtcap.exe"_s)));
    }
    ~Shape() override
    {
        qunsetenv(host::AsideFileVariable);
        host::changeDirectory(u"/"_s);
    }
};

} // namespace

TEST_F(Shape, OfEveryAnswerIsAsDocumented)
{
    const QJsonObject defs = definiciones();
    Pon(u"old/Zembro.emu"_s, "-Old\r\n'\r\n+Emu\r\nEXE=C:\\EMU.EXE\r\nXDI=0\r\n'------\r\n[EOF]\r\n");
    const QList<QStringList> pedidos { { u"help"_s }, { u"list"_s },
        { u"command"_s, u"Sis"_s, u"Uno"_s, u"pack"_s }, { u"command"_s, u"Sis"_s, u"Uno"_s, u"super"_s },
        { u"play"_s, u"Sis"_s, u"Uno"_s, u"super"_s }, { u"why"_s }, { u"check"_s },
        { u"check"_s, u"--mend"_s }, { u"find"_s }, { u"move"_s }, { u"save"_s },
        { u"move"_s, u"--old"_s, Ruta(u"roms"_s), u"--write"_s }, { u"restore"_s, u"--list"_s },
        { u"restore"_s }, { u"restore"_s, u"--write"_s }, { u"describe"_s, u"Sis"_s },
        { u"adopt"_s, Ruta(u"old"_s) }, { u"captures"_s, u"Sis"_s }, { u"captures"_s, u"Sis"_s, u"--last"_s },
        { u"captures"_s, u"Sis"_s, u"--from"_s, Ruta(u"pics"_s) },
        { u"captures"_s, u"Sis"_s, u"--from"_s, Ruta(u"pics"_s), u"--write"_s }, { u"export"_s, u"Sis"_s },
        { u"export"_s, u"Sis"_s, u"--to"_s, Ruta(u"x"_s) } };
    for (const QStringList &pedido : pedidos) {
        const Respuesta respuesta = Zembro(pedido + QStringList { u"--json"_s });
        const QJsonDocument json = QJsonDocument::fromJson(respuesta.salida);
        ASSERT_TRUE(json.isObject()) << respuesta.salida.toStdString();
        EXPECT_EQ(falta(defs, defs[pedido.first()].toObject(), json.object(), pedido.first()), QString())
            << respuesta.salida.toStdString();
    }
}

TEST_F(Shape, OfAnErrorIsAsDocumented)
{
    const QJsonObject defs = definiciones();
    for (const QStringList &pedido :
        QList<QStringList> { { u"nada"_s }, { u"list"_s, u"Sis"_s, u"o"_s }, { u"play"_s } }) {
        const QJsonDocument json =
            QJsonDocument::fromJson(Zembro(pedido + QStringList { u"--json"_s }).salida);
        EXPECT_EQ(falta(defs, defs[u"error"_s].toObject(), json.object(), pedido.first()), QString());
    }
}

TEST(Shapes, AreDocumentedOfEveryCommand)
{
    const QJsonObject defs = definiciones();
    for (const companion::Orden *orden : companion::Ordenes())
        EXPECT_TRUE(defs.contains(orden->nombre)) << orden->nombre.toStdString();
}

TEST(Shapes, TheComparisonSeesWhatDiffers)
{
    const QJsonObject defs = definiciones();
    EXPECT_NE(falta(defs, defs[u"error"_s].toObject(), QJsonObject(), u"x"_s), QString());
    EXPECT_NE(falta(defs, defs[u"error"_s].toObject(), QJsonObject { { u"error"_s, 1 } }, u"x"_s), QString());
    EXPECT_NE(falta(defs, defs[u"error"_s].toObject(), QJsonObject { { u"error"_s, u"a"_s }, { u"b"_s, 1 } },
                  u"x"_s),
        QString());
}
