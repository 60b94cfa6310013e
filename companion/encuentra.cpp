#include "companion/encuentra.h"

#include "companion/diferencia.h"
#include "companion/sesion.h"

#include "finder/configura.h"

#include "host/paths.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

QJsonArray enJson(const std::vector<finder::Hallazgo> &puestos)
{
    QJsonArray todos;
    for (const finder::Hallazgo &puesto : puestos)
        todos += QJsonObject { { u"system"_s, puesto.sistema }, { u"emulator"_s, puesto.emulador.nombre },
            { u"program"_s, puesto.programa } };
    return todos;
}

QJsonArray enJson(const std::vector<finder::Cambio> &cambios)
{
    QJsonArray todos;
    for (const finder::Cambio &cambio : cambios)
        todos += QJsonObject { { u"file"_s, cambio.fichero },
            { u"diff"_s,
                QJsonArray::fromStringList(Diferencia(cambio.fichero, cambio.antes, cambio.despues)) } };
    return todos;
}

// What it would change and make.
void cuentaEnsayo(const Sesion &sesion, const finder::Resultado &resultado)
{
    for (const finder::Cambio &cambio : resultado.cambios)
        sesion.Escribe(Diferencia(cambio.fichero, cambio.antes, cambio.despues));
    for (const QString &hecho : resultado.hechos)
        sesion.Escribe(sesion.palabras.Zbo_SeHaria.arg(hecho));
}

void cuenta(const Sesion &sesion, const finder::Resultado &resultado, const finder::Encargo &encargo)
{
    const Palabras &palabras = sesion.palabras;
    if (resultado.puestos.empty()) {
        sesion.Escribe(encargo.todo ? palabras.Zbo_NadaMas
                                    : palabras.Zbo_NadaNuevo.arg(encargo.directorio + u"/roms"_s));
    } else if (!encargo.ensayo) {
        for (const finder::Hallazgo &puesto : resultado.puestos)
            sesion.Escribe(
                palabras.Zbo_Configurado.arg(puesto.sistema, puesto.emulador.nombre, puesto.programa));
        sesion.Escribe(palabras.Zbo_Reinicia);
    }
    if (encargo.ensayo)
        cuentaEnsayo(sesion, resultado);
}

int encuentra(Sesion &sesion)
{
    const QString directorio = host::programDirectory();
    const finder::Encargo encargo { {}, directorio, {}, sesion.Tiene(u"all"_s), !sesion.Tiene(u"write"_s) };
    const finder::Resultado resultado = finder::Configura(encargo);
    for (const QString &aviso : resultado.avisos)
        sesion.Avisa(aviso);
    if (sesion.EnJson())
        sesion.Json({ { u"written"_s, !encargo.ensayo }, { u"found"_s, enJson(resultado.puestos) },
            { u"changes"_s, enJson(resultado.cambios) },
            { u"makes"_s, QJsonArray::fromStringList(resultado.hechos) },
            { u"notices"_s, QJsonArray::fromStringList(resultado.avisos) } });
    else
        cuenta(sesion, resultado, encargo);
    return encargo.ensayo && !resultado.puestos.empty() ? Hallazgos : Bien;
}

} // namespace

const Orden &OrdenEncuentra()
{
    static const Orden orden { u"find"_s, {}, &Palabras::Zbo_Find,
        { { u"all"_s, {}, &Palabras::Zbo_OpAll }, { u"write"_s, {}, &Palabras::Zbo_OpWrite } }, encuentra };
    return orden;
}

} // namespace companion
