// Notes and parameters written into any file: what no change may do, whatever stands there.
#include "catalogos.h"
#include "mundo.h"
#include "parametros.h"
#include "temas.h"

#include "core/lineas.h"
#include "core/notas.h"
#include "core/romelegida.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/letters.h"
#include "host/textsource.h"

using namespace Qt::StringLiterals;

namespace pelusa {

namespace {

QStringList desnudas(const QString &texto)
{
    QStringList lineas;
    for (const core::LineaConFin &linea : core::EnLineas(texto))
        lineas << linea.linea.toString();
    return lineas;
}

void descripcionNueva(
    const QString &texto, const QString &sistema, const QString &clave, const QString &descripcion)
{
    const QString despues = core::ConDescripcionNueva(texto, sistema, clave, descripcion);
    ExigeSoloAñade(texto, despues);
    const QStringList lineas = desnudas(texto);
    const qsizetype cabecera = lineas.indexOf(sistema);
    if (cabecera < 0 || !core::SePuedeDescribir(clave) || !core::EsDescripcionEntera(descripcion)) {
        ExigeIgual(despues, texto, "without a place nothing changes");
        return;
    }
    const QStringList nuevas = desnudas(despues);
    Exige(nuevas.size() == lineas.size() + 1, "one line is new");
    host::TextSource fuente(nuevas[cabecera + 1] + u'\n');
    ExigeIgual(fuente.readField(), host::upper(clave), "the key is read back");
    const QString leida = fuente.readField();
    if (!descripcion.contains(u'"'))
        ExigeIgual(leida, descripcion, "the description is read back");
    Exige(fuente.atEnd(), "the record ends with its line", descripcion);
}

void descripcionCambiada(
    const QString &texto, const QString &anterior, const QString &clave, const QString &descripcion)
{
    const QString despues = core::ConDescripcionCambiada(texto, anterior, clave, descripcion);
    const QStringList lineas = desnudas(texto);
    const QStringList nuevas = desnudas(despues);
    Exige(lineas.size() == nuevas.size(), "a note is changed in its place", texto, despues);
    int cambiadas = 0;
    for (qsizetype i = 0; i < lineas.size(); ++i)
        cambiadas += lineas[i] == nuevas[i] ? 0 : 1;
    Exige(cambiadas <= 1, "one note is changed", texto, despues);
    Exige(cambiadas == 0 || core::SePuedeDescribir(clave), "what can't be written isn't", clave);
    Exige(cambiadas == 0 || core::EsDescripcionEntera(descripcion), "nor what would shift", descripcion);
}

void sistemaNuevo(const QString &texto, const QString &sistema)
{
    const QString despues = core::ConSistemaNuevo(texto, sistema);
    ExigeSoloAñade(texto, despues);
    const QStringList lineas = desnudas(texto);
    const qsizetype nuevas = desnudas(despues).size() - lineas.size();
    Exige(nuevas == 0 || nuevas == 2, "a system is two lines");
    // A line that begins so may also be a note's.
    const auto empieza = [](const QString &l) { return l.startsWith(u'['); };
    const auto acaba = [](const QString &l) { return l.startsWith(u'[') && !l.contains(u','); };
    Exige(nuevas == 0 || std::ranges::any_of(lineas, empieza), "without their end no system is new");
    Exige(
        nuevas == 2 || texto.contains(u'"') || std::ranges::none_of(lineas, acaba), "a system finds a place");
}

void sinNotas(const QString &texto, const QString &sistema)
{
    const QString despues = core::SinNotasDeSistema(texto, sistema);
    ExigeSoloQuita(texto, despues);
    Exige(!desnudas(despues).contains(sistema), "the header goes", sistema, despues);
    ExigeIgual(core::SinNotasDeSistema(despues, sistema), despues, "twice is the same");
}

using Registros = QList<QStringList>;

QString enTexto(const Registros &registros)
{
    QStringList lineas;
    for (const QStringList &registro : registros)
        lineas << registro.join(u'|');
    return lineas.join(u'\n');
}

// The records of the section, each as its four fields, up to the closing one.
std::optional<Registros> registros(const QString &texto)
{
    host::TextSource fuente(texto);
    try {
        while (!fuente.readLine().startsWith(u"Parametros")) { }
        Registros registros;
        for (;;) {
            QStringList campos { fuente.readField() };
            if (campos[0] == u"'")
                return registros;
            for (int i = 0; i < 3; ++i)
                campos << (fuente.atEnd() ? QString() : fuente.readField());
            registros << campos;
        }
    } catch (const host::Failure &) {
        return {};
    }
}

void parametrosNuevos(const QString &texto, const core::Parametros &nuevos)
{
    const QString despues = core::ConParametrosNuevos(texto, nuevos);
    ExigeSoloAñade(texto, despues);
    const QStringList lineas = desnudas(texto);
    const bool haySeccion = std::ranges::any_of(
        lineas, [](const QString &linea) { return linea.startsWith(u"Parametros especificos"); });
    const qsizetype mas = desnudas(despues).size() - lineas.size();
    Exige(mas == 0 || mas == 1, "one line is new", despues);
    if (mas == 0 || !haySeccion)
        return;
    host::TextSource fuente(despues);
    ExigeIgual(core::ParametrosEscritos(fuente, nuevos.clave, nuevos.sistema, nuevos.emulador),
        ParametrosLeidos(nuevos.texto), "the parameters are read back");
}

// The records of other keys are read as they were; a change leaves as many as there were, a removal none.
void parametrosCambiados(const QString &texto, const core::Parametros &nuevos)
{
    QString despues;
    const int fallo = Fallo({ host::PastEndOfFile }, "changing parameters",
        [&] { despues = core::ConParametrosCambiados(texto, nuevos); });
    if (fallo != 0)
        return;
    const std::optional<Registros> antiguos = registros(texto);
    const std::optional<Registros> leidos = registros(despues);
    Exige(antiguos.has_value() == leidos.has_value(), "the section stays one", texto, despues);
    if (!antiguos || despues == texto)
        return;
    Registros serian;
    for (const QStringList &registro : *antiguos) {
        if (!host::sameName(registro[0], nuevos.clave))
            serian << registro;
        else if (!nuevos.texto.isEmpty())
            serian << QStringList { nuevos.clave, nuevos.sistema, nuevos.emulador,
                ParametrosLeidos(nuevos.texto) };
    }
    ExigeIgual(enTexto(*leidos), enTexto(serian), "the other records stay as they are");
}

void sinParametros(const QString &texto, const QString &sistema)
{
    const QString despues = core::SinParametrosDeSistema(texto, sistema);
    std::optional<Registros> serian = registros(texto);
    if (!serian)
        return;
    serian->removeIf(
        [&sistema](const QStringList &registro) { return host::sameName(registro[1], sistema); });
    const std::optional<Registros> leidos = registros(despues);
    Exige(leidos.has_value(), "the section stays one", texto, despues);
    ExigeIgual(enTexto(*leidos), enTexto(*serian), "the other records stay as they are");
    ExigeIgual(core::SinParametrosDeSistema(despues, sistema), despues, "twice is the same");
}

} // namespace

void probarNotasEscritas(Bytes bytes)
{
    Entrada entrada(bytes);
    const int clase = entrada.Numero(7);
    const int cual = entrada.Numero(128);
    core::Parametros nuevos;
    nuevos.clave = entrada.Nombre();
    nuevos.sistema = UnaLinea(entrada);
    nuevos.emulador = UnaLinea(entrada);
    nuevos.texto = UnaLinea(entrada);
    const QString texto = host::decodeText(entrada.Resto()).text;
    const QString linea = desnudas(texto).value(cual, nuevos.sistema);
    switch (clase) {
    case 0:
        descripcionNueva(texto, linea, nuevos.clave, nuevos.texto);
        break;
    case 1:
        descripcionCambiada(texto, nuevos.emulador, nuevos.clave, nuevos.texto);
        break;
    case 2:
        sistemaNuevo(texto, nuevos.sistema);
        break;
    case 3:
        sinNotas(texto, linea);
        break;
    case 4:
        if (core::SonParametrosEnteros(nuevos.texto))
            parametrosNuevos(texto, nuevos);
        break;
    case 5:
        if (core::SonParametrosEnteros(nuevos.texto))
            parametrosCambiados(texto, nuevos);
        break;
    default:
        sinParametros(texto, nuevos.sistema);
    }
}

} // namespace pelusa
