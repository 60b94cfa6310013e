#include "core/lista.h"

#include "core/notas.h"

#include "host/letters.h"
#include "host/numbers.h"
#include "host/paths.h"

#include <QHash>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace core {

bool UnDirectorioPorJuego(int tipo)
{
    return tipo == 1 || tipo == 6;
}

bool FicherosSueltos(int tipo)
{
    return tipo == 0 || tipo == 5;
}

bool UnZipPorJuego(int tipo)
{
    return tipo == 2 || tipo == 3 || tipo == 7 || tipo == 8;
}

bool CargaSoloElEmulador(int tipo)
{
    return tipo >= 5 && tipo <= 8;
}

namespace {

bool pasaLosFiltros(const Modulo &M, const QString &nombreMayus)
{
    for (int f = 0; f < FiltrosMirados; ++f) {
        if (M.Filtros(f).isEmpty())
            return true;
        if (M.Filtros(f) == nombreMayus)
            return false;
    }
    return false;
}

} // namespace

int ExploraDirectorio(Modulo &M, int tipo, const QString &directorio)
{
    const bool directorios = UnDirectorioPorJuego(tipo);
    const QStringList nombres = directorios ? host::listDirectories(directorio) : host::listFiles(directorio);
    for (int i = 0; i < nombres.size(); ++i) {
        const QString mayus = host::upper(nombres[i]);
        const bool tomado = !directorios || pasaLosFiltros(M, mayus);
        M.Arch_Mayus(i) = tomado ? mayus : QString();
        M.Arch_Nombre(i) = directorios ? M.Arch_Mayus(i) : nombres[i];
    }
    return static_cast<int>(nombres.size());
}

int CargaNotasEnMayusculas(Modulo &M, const QString &sistema)
{
    const int total = CargaNotas(M, sistema);
    for (int i = 0; i < total; ++i)
        M.Nota_Clave(i) = host::upper(M.Nota_Clave(i));
    return total;
}

int CargaExtensiones(Modulo &M, int sistema)
{
    int total = 0;
    while (total < MaxSistemas && !M.Cat_EXT(sistema, total).isEmpty()) {
        M.ExtActivas(total) = Valor(M.Cat_EXT(sistema, total), 2);
        ++total;
    }
    return total;
}

ExtensionesEnVigor::ExtensionesEnVigor(const Modulo &M, int total)
{
    for (int e = 0; e < total; ++e)
        m_ordenadas.push_back(M.ExtActivas(e));
    std::ranges::sort(m_ordenadas);
}

int ExtensionesEnVigor::VecesQueEncaja(QStringView nombreMayus) const
{
    const auto antes = [](QStringView una, QStringView otra) { return una < otra; };
    qsizetype veces = 0;
    qsizetype anterior = -1;
    for (const int letras : { 1, 2, 3 }) {
        const qsizetype principio = host::startOfLast(nombreMayus, letras);
        if (principio == anterior)
            break; // the name is no longer than that
        const auto [una, pasada] =
            std::equal_range(m_ordenadas.begin(), m_ordenadas.end(), nombreMayus.sliced(principio), antes);
        veces += pasada - una;
        anterior = principio;
    }
    return static_cast<int>(veces);
}

namespace {

// One pass over a directory's entries.
class Emparejador {
public:
    Emparejador(const Modulo &modulo, int tipo, int notas, int extensiones)
        : M(modulo)
        , m_tipo(tipo)
        , m_notas(notas)
        , m_extensiones(modulo, extensiones)
    {
        m_porClave.reserve(notas);
        for (int j = notas - 1; j >= 0; --j)
            m_porClave[M.Nota_Clave(j)] = j; // the first of two with one key stays
    }

    // Takes the entries up to the first that fails.
    void Recorre(int entradas)
    {
        recuento.entradas.reserve(entradas);
        m_ficheros.reserve(entradas);
        try {
            for (; recuento.exploradas < entradas; ++recuento.exploradas)
                entrada(recuento.exploradas);
        } catch (const host::Failure &) {
            recuento.interrumpido = true;
        }
    }

    // A file is listed before it is measured: one without a length is the last of the list.
    void Mide(const LargosDeFicheros &largos)
    {
        const QList<qint64> bytes = largos(m_ficheros);
        for (qsizetype f = 0; f < bytes.size(); ++f)
            recuento.bytes += static_cast<double>(bytes[f]) * m_listados[f].veces;
        if (bytes.size() == m_ficheros.size())
            return;
        const Listado &ultimo = m_listados[bytes.size()];
        recuento.entradas.resize(ultimo.primera + 1);
        recuento.exploradas = ultimo.entrada;
        recuento.interrumpido = true;
    }

    Recuento recuento;

private:
    struct Listado {
        int entrada; // of the directory
        qsizetype primera; // of the list's
        int veces;
    };

    void entrada(int i)
    {
        const std::optional<QString> buscada =
            UnZipPorJuego(m_tipo) ? claveDeZip(M.Arch_Mayus(i)) : M.Arch_Mayus(i);
        const auto nota = buscada ? m_porClave.constFind(*buscada) : m_porClave.constEnd();
        if (nota != m_porClave.constEnd())
            conNota(i, *nota);
        else
            sinNota(i);
    }

    static std::optional<QString> claveDeZip(const QString &mayus)
    {
        return mayus.endsWith(u".ZIP") ? std::optional(mayus.chopped(4)) : std::nullopt;
    }

    void conNota(int i, int j)
    {
        if (UnDirectorioPorJuego(m_tipo)) {
            if (!M.Nota_Texto(j).isEmpty())
                recuento.entradas += M.Nota_Texto(j);
        } else if (FicherosSueltos(m_tipo)) {
            añade(m_extensiones.VecesQueEncaja(M.Arch_Mayus(i)), M.Nota_Texto(j), M.Nota_Clave(j));
        } else {
            añade(1, M.Nota_Texto(j), M.Nota_Clave(j) + u".ZIP"_s);
        }
    }

    void sinNota(int i)
    {
        // The walk through the notes ends at the empty one behind the last; a full table has none.
        M.Nota_Clave(m_notas);
        if (UnDirectorioPorJuego(m_tipo)) {
            if (!M.Arch_Nombre(i).isEmpty())
                recuento.entradas += M.Arch_Nombre(i);
        } else if (FicherosSueltos(m_tipo)) {
            añade(m_extensiones.VecesQueEncaja(M.Arch_Mayus(i)), M.Arch_Nombre(i), M.Arch_Nombre(i));
        } else if (M.Arch_Mayus(i).endsWith(u"ZIP")) {
            añade(1, M.Arch_Nombre(i), M.Arch_Nombre(i));
        }
    }

    void añade(int veces, const QString &texto, const QString &fichero)
    {
        if (veces == 0)
            return;
        m_ficheros += fichero;
        m_listados.push_back({ recuento.exploradas, recuento.entradas.size(), veces });
        for (int vez = 0; vez < veces; ++vez)
            recuento.entradas += texto;
    }

    const Modulo &M;
    int m_tipo;
    int m_notas;
    ExtensionesEnVigor m_extensiones;
    QHash<QString, int> m_porClave;
    QStringList m_ficheros; // of the entries listed, each once
    QList<Listado> m_listados; // as many
};

} // namespace

Recuento Empareja(
    const Modulo &M, int tipo, int entradas, int notas, int extensiones, const LargosDeFicheros &largos)
{
    if (!UnDirectorioPorJuego(tipo) && !FicherosSueltos(tipo) && !UnZipPorJuego(tipo))
        return {};
    Emparejador emparejador(M, tipo, notas, extensiones);
    emparejador.Recorre(entradas);
    emparejador.Mide(largos);
    return emparejador.recuento;
}

QString Resumen(int tipo, qsizetype listadas, const Recuento &recuento, const QString &TXT_Directorios)
{
    const int relleno = recuento.exploradas < 10 ? 0 : recuento.exploradas < 100 ? 1 : 2;
    const QString blancos(relleno, u' ');
    const QString total = QString::number(listadas);
    if (UnDirectorioPorJuego(tipo))
        return total + u' ' + TXT_Directorios + blancos;
    return total + u" ROMS - "_s + host::formatTwoDecimals(recuento.bytes / 1024 / 1024) + u"MB"_s + blancos;
}

} // namespace core
