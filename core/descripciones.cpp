#include "core/descripciones.h"

#include "core/lineas.h"
#include "core/modulo.h"
#include "core/notas.h"

#include "host/letters.h"
#include "host/textsource.h"

#include <QHash>
#include <QSet>

#include <optional>

using namespace Qt::StringLiterals;

namespace core {

namespace {

// A list needs an empty key behind the last.
constexpr size_t MaxNotas = MaxROMs - 1;

struct Registro {
    QString clave; // in upper case
    QString texto;
    qsizetype desde = 0; // in the block
    qsizetype hasta = 0;
    bool suelto = false; // it has its lines for itself
};

// Where the block's records begin: behind the first line of that name.
std::optional<qsizetype> inicioDelBloque(const QString &texto, const QString &sistema)
{
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (linea.linea == sistema)
            return linea.fin.data() + linea.fin.size() - texto.constData();
    }
    return std::nullopt;
}

// As they are read.
std::vector<Registro> registrosDe(QStringView bloque)
{
    std::vector<Registro> registros;
    host::TextSource fuente(bloque.toString());
    const auto lugar = [&] { return bloque.size() - fuente.rest().size(); };
    const auto empiezaLinea = [&](qsizetype en) { return en == 0 || bloque[en - 1] == u'\n'; };
    while (!fuente.atEnd()) {
        Registro registro;
        registro.desde = lugar();
        const QString clave = fuente.readField();
        if (clave == u"'")
            break;
        registro.clave = host::upper(clave);
        registro.texto = fuente.atEnd() ? QString() : fuente.readField();
        registro.hasta = fuente.atEnd() ? bloque.size() : lugar();
        registro.suelto = empiezaLinea(registro.desde) && empiezaLinea(registro.hasta);
        registros.push_back(registro);
    }
    return registros;
}

QString conCambios(
    QStringView bloque, const std::vector<Registro> &registros, const QHash<size_t, QString> &cambios)
{
    QString texto;
    qsizetype copiado = 0;
    for (size_t i = 0; i < registros.size(); ++i) {
        const auto cambio = cambios.constFind(i);
        if (cambio == cambios.constEnd())
            continue;
        texto += bloque.sliced(copiado, registros[i].desde - copiado);
        texto += *cambio;
        copiado = registros[i].hasta;
    }
    return texto + bloque.sliced(copiado).toString();
}

} // namespace

Descritas ConDescripciones(const QString &texto, const QString &sistema,
    const std::vector<Descripcion> &descripciones, LasQueHay lasQueHay)
{
    Descritas descritas { texto, 0, 0, {} };
    const std::optional<qsizetype> inicio = inicioDelBloque(texto, sistema);
    if (!inicio)
        return descritas;
    const QStringView bloque = QStringView(texto).sliced(*inicio);
    const std::vector<Registro> registros = registrosDe(bloque);
    QHash<QString, size_t> porClave;
    QSet<QString> textos;
    for (size_t i = registros.size(); i > 0; --i) {
        porClave[registros[i - 1].clave] = i - 1;
        textos.insert(registros[i - 1].texto);
    }
    Copia nuevos;
    QHash<size_t, QString> cambios;
    for (const Descripcion &una : descripciones) {
        const std::optional<QString> registro = RegistroDeDescripcion(una.clave, una.texto);
        const auto suya = porClave.constFind(host::upper(una.clave));
        const bool hay = suya != porClave.constEnd();
        const bool cabe = hay || registros.size() + size_t(descritas.nuevas) < MaxNotas;
        if (hay
            && (lasQueHay == LasQueHay::Quedan || *suya >= registros.size()
                || registros[*suya].texto == una.texto))
            continue;
        if (!registro || !cabe || textos.contains(una.texto) || (hay && !registros[*suya].suelto)) {
            descritas.fuera.push_back(una);
            continue;
        }
        textos.insert(una.texto);
        if (hay) {
            Copia cambio;
            cambio.Nueva(*registro);
            cambios[*suya] = cambio.Texto();
            ++descritas.cambiadas;
        } else {
            nuevos.Nueva(*registro);
            ++descritas.nuevas;
            porClave[host::upper(una.clave)] = registros.size(); // the second of one key is none
        }
    }
    descritas.texto = texto.first(*inicio) + nuevos.Texto() + conCambios(bloque, registros, cambios);
    return descritas;
}

} // namespace core
