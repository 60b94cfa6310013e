#include "mesadepruebas.h"

#include "core/ajustes.h"

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
    EXPECT_EQ(respuesta.estado, estado) << respuesta.error.toStdString();
    const QJsonDocument documento = QJsonDocument::fromJson(respuesta.salida);
    EXPECT_TRUE(documento.isObject()) << respuesta.salida.toStdString();
    return documento.object();
}

void MesaDePruebas::PonAjustes(const QString &idioma) const
{
    Pon(u"Zembro.cfg"_s, core::AjustesPorDefecto(idioma).toUtf8());
}
