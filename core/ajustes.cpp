#include "core/ajustes.h"

#include "core/arranque.h"
#include "core/catalogo.h"
#include "core/lineas.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/letters.h"
#include "host/numberedfiles.h"
#include "host/paths.h"
#include "host/textsource.h"

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr int PrimeraLineaDeFiltros = 20; // counted from 0
constexpr int MaxFiltrosEscritos = 101;

// Which line, counted from 0, holds which setting.
struct LineaDeAjuste {
    int numero;
    QString Modulo::*variable;
};
constexpr LineaDeAjuste LineasDeAjustes[] = {
    { 11, &Modulo::UltimoSistema },
    { 12, &Modulo::UltimoEmulador },
    { 13, &Modulo::GuardarUltimo },
    { 14, &Modulo::TypeOfEditor },
    { 15, &Modulo::MsgEndDOS },
    { 16, &Modulo::LanguageFile },
    { 17, &Modulo::DebugMode },
};

QString sinBlancosFinales(const QString &texto)
{
    qsizetype final = texto.size();
    while (final > 0 && texto[final - 1] == u' ')
        --final;
    return texto.left(final);
}

void leeLineas(Modulo &M)
{
    int filtro = 0;
    int n = 0;
    do {
        const QString linea = M.Ficheros.readLine(1);
        for (const LineaDeAjuste &ajuste : LineasDeAjustes) {
            if (ajuste.numero == n)
                M.*(ajuste.variable) = linea;
        }
        if (n >= PrimeraLineaDeFiltros) {
            if (linea.isEmpty())
                return;
            M.Filtros(filtro++) = sinBlancosFinales(linea);
        }
        ++n;
    } while (!M.Ficheros.atEnd(1));
}

// Every filter and a comma, an empty one as the last; the two commas at the end are cut.
QString filtrosEnTexto(const Tabla<QString> &filtros)
{
    QString texto;
    for (int i = 0;; ++i) {
        texto += filtros(i) + u',';
        if (filtros(i).isEmpty())
            break;
    }
    if (texto.size() < 2)
        throw host::Failure(host::InvalidArgument, u"read the [Filters] section"_s);
    return texto.chopped(2);
}

// Whether the start would take a field of this line for the first-run mark.
bool llevaMarca(const QString &linea)
{
    host::TextSource fuente(linea);
    while (!fuente.atEnd()) {
        if (fuente.readField() == MarcaVacio)
            return true;
    }
    return false;
}

bool quedaEnSuLinea(const QString &linea)
{
    return !linea.contains(u'\n') && !linea.contains(u'\r') && linea.isValidUtf16() && !llevaMarca(linea);
}

// The value begins behind the line's last equal sign.
bool vuelveValor(const QString &valor, const QString &linea)
{
    return !valor.contains(u'=') && quedaEnSuLinea(linea);
}

bool esBlanco(const QString &nombre)
{
    return sinBlancosFinales(nombre).isEmpty();
}

bool vuelveFiltro(const QString &nombre)
{
    return !esBlanco(nombre) && quedaEnSuLinea(host::upper(nombre));
}

// Empty if it can't be read: then the tables count.
QString textoDelCatalogo()
{
    try {
        return host::decodeText(host::readBytes(host::programFile(u"Zembro.emu"_s))).text;
    } catch (const host::Failure &) {
        return {};
    }
}

void reescribe(Modulo &M, const std::function<QString(const QString &)> &cambio)
{
    M.Ficheros.rewrite(host::programFile(u"Zembro.cfg"_s), u"Zembro.tmp"_s, cambio);
}

} // namespace

bool EsPrimeraVez(Modulo &M)
{
    M.Ficheros.openForInput(1, host::programFile(u"Zembro.cfg"_s));
    bool vacio = false;
    do
        vacio = M.Ficheros.readField(1) == MarcaVacio;
    while (!vacio && !M.Ficheros.atEnd(1));
    M.Ficheros.close(1);
    return vacio;
}

void LeeAjustes(Modulo &M)
{
    for (const LineaDeAjuste &ajuste : LineasDeAjustes)
        (M.*(ajuste.variable)).clear();
    const QString fichero = host::programFile(u"Zembro.cfg"_s);
    LeeFichero(fichero, [&] {
        if (M.AjustesSinGrabar.isEmpty())
            M.Ficheros.openForInput(1, fichero);
        else
            M.Ficheros.openText(1, fichero, M.AjustesSinGrabar);
        leeLineas(M);
        M.Ficheros.close(1);
        for (const LineaDeAjuste &ajuste : LineasDeAjustes)
            M.*(ajuste.variable) = ValorDeAjuste(M.*(ajuste.variable));
        M.FiltrosTexto = filtrosEnTexto(M.Filtros);
    });
}

QString ValorDeAjuste(const QString &linea)
{
    const QStringView detras = QStringView(linea).sliced(linea.lastIndexOf(u'=') + 1);
    if (detras.isEmpty())
        throw host::Failure(host::InvalidArgument, u"read a setting"_s, linea);
    return detras.sliced(host::behindFirst(detras, 1)).toString();
}

QString AjustesPorDefecto(const QString &LanguageFile)
{
    const QStringList lineas {
        u"'                +----------------------------------+"_s,
        u"'                |            Zembrolix             |"_s,
        u"'                |  =- Archivo de configuracion -=  |"_s,
        u"'                |     =- Configuration file -=     |"_s,
        u"'                +----------------------------------+"_s,
        u"'"_s,
        u"'          * Please don't manipulate this file manually"_s,
        u"'          * Por favor no manipular este archivo manualmente"_s,
        u"'"_s,
        QString(),
        u"[General]"_s,
        u"LastSisUsed = 0"_s,
        u"LastEmuUsed = 0"_s,
        u"SaveLastEmu&Sis = 1"_s,
        u"TypeOfEditor = 1"_s,
        u"MsgEndDOS = Finalizado"_s,
        u"LanguageFile = "_s + LanguageFile,
        u"DebugMode = 0"_s,
        QString(),
        u"[Filters]"_s,
        u"ARTWORK"_s,
        u"CABINETS"_s,
        u"CFG"_s,
        u"DATAS"_s,
        u"FLYERS"_s,
        u"HI"_s,
        u"ICONS"_s,
        u"IMAGES"_s,
        u"INP"_s,
        u"LOGS"_s,
        u"MEMCARD"_s,
        u"PCX"_s,
        u"ROMS"_s,
        u"SAMPLES"_s,
        u"SAVES"_s,
        u"SNAP"_s,
        u"TRACPLAY"_s,
        u"ZIPROMS"_s,
        u"ZIPSAMPL"_s,
        QString(),
        u"[EOF]"_s,
    };
    return lineas.join(u"\r\n"_s) + u"\r\n"_s;
}

QString ConAjuste(const QString &texto, Ajuste ajuste, const QStringList &lineasNuevas)
{
    // Lines are told by their first nine characters: behind which the new lines come, and where copying goes
    // on.
    struct Anclas {
        Ajuste ajuste;
        QLatin1StringView detras;
        QLatin1StringView hasta;
        bool repite; // the line to go on at is copied wherever it stands, and so a second time where all is
    };
    static constexpr Anclas anclas[] = {
        { Ajuste::UltimaSeleccion, "[General]"_L1, "SaveLastE"_L1, false },
        { Ajuste::GuardarUltimo, "LastEmuUs"_L1, "TypeOfEdi"_L1, true },
        { Ajuste::TypeOfEditor, "SaveLastE"_L1, "MsgEndDOS"_L1, true },
        { Ajuste::MsgEndDOS, "TypeOfEdi"_L1, "LanguageF"_L1, true },
        { Ajuste::LanguageFile, "MsgEndDOS"_L1, "DebugMode"_L1, true },
    };
    const Anclas &ancla = anclas[static_cast<int>(ajuste)];

    Copia copia;
    bool saltando = false;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (!saltando)
            copia.Copiar(linea);
        if (linea.linea.startsWith(ancla.hasta)) {
            if (saltando || ancla.repite)
                copia.Copiar(linea);
            saltando = false;
        }
        if (linea.linea.startsWith(ancla.detras)) {
            for (const QString &nueva : lineasNuevas)
                copia.Nueva(nueva);
            saltando = true;
        }
    }
    return copia.Texto();
}

QStringList LineasDeUltimaSeleccion(int sistema, int emulador)
{
    return { u"LastSisUsed = "_s + QString::number(sistema),
        u"LastEmuUsed = "_s + QString::number(emulador) };
}

QString LineaDeGuardarUltimo(int valor)
{
    return u"SaveLastEmu&Sis = "_s + QString::number(valor);
}

QString LineaDeEditor(int tipo)
{
    return u"TypeOfEditor = "_s + QString::number(tipo);
}

QString LineaDeMsgEndDOS(const QString &texto)
{
    return u"MsgEndDOS = "_s + texto;
}

QString LineaDeIdioma(const QString &fichero)
{
    return u"LanguageFile = "_s + host::upper(fichero);
}

QStringList FiltrosDeTexto(const QString &texto)
{
    Tabla<QString> nombres { MaxFiltrosEscritos };
    int indice = 0;
    for (const QChar letra : texto) {
        if (letra == u',')
            ++indice;
        else
            nombres(indice) += letra;
    }
    QStringList filtros { nombres(0) };
    for (int i = 1; i < MaxFiltrosEscritos && !nombres(i).isEmpty(); ++i)
        filtros << nombres(i);
    return filtros;
}

bool VuelveIdioma(const QString &fichero)
{
    // The word for the end of a program, which stands ahead, may open double quotes that this line closes.
    const QString linea = LineaDeIdioma(fichero);
    return vuelveValor(fichero, linea) && !llevaMarca(u'"' + linea);
}

bool VuelveMsgEndDOS(const QString &texto)
{
    return vuelveValor(texto, LineaDeMsgEndDOS(texto));
}

bool VuelvenFiltros(const QString &texto)
{
    const QStringList nombres = texto.split(u',');
    auto fin = std::find(nombres.begin(), nombres.end(), QString());
    while (fin != nombres.begin() && esBlanco(*(fin - 1))) // blank lines at the end lose nothing
        --fin;
    return texto.isEmpty() || (fin != nombres.begin() && std::all_of(nombres.begin(), fin, vuelveFiltro));
}

QString ConFiltros(const QString &texto, const QStringList &filtros)
{
    Copia copia;
    for (const LineaConFin &linea : EnLineas(texto)) {
        copia.Copiar(linea);
        if (!linea.linea.startsWith(u"[Filters]"))
            continue;
        for (const QString &filtro : filtros)
            copia.Nueva(host::upper(filtro));
        copia.Nueva(QString());
        copia.Nueva(u"[EOF]"_s);
        break;
    }
    return copia.Texto();
}

namespace {

constexpr size_t LineaDeSistema = 11; // counted from 0; the emulator's stands below

// True if the texts have the same lines but for the selection's.
bool sonIgualesSalvoSeleccion(const QString &uno, const QString &otro)
{
    const std::vector<LineaConFin> lineas = EnLineas(uno);
    const std::vector<LineaConFin> otras = EnLineas(otro);
    if (lineas.size() != otras.size())
        return false;
    for (size_t i = 0; i < lineas.size(); ++i) {
        if (i != LineaDeSistema && i != LineaDeSistema + 1 && lineas[i].linea != otras[i].linea)
            return false;
    }
    return true;
}

} // namespace

QString ConSeleccionEn(const QString &texto, const Modulo &despues, const Modulo &antes)
{
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    if (lineas.size() <= LineaDeSistema + 1 || llevaMarca(texto))
        return texto;
    const auto numero = [&lineas](size_t i) {
        const QString linea = lineas[i].linea.toString();
        return linea.endsWith(u'=') ? 0 : NumeroDeAjuste(ValorDeAjuste(linea));
    };
    const Posiciones antiguas { numero(LineaDeSistema), numero(LineaDeSistema + 1) };
    const Posiciones nuevas = PosicionesEn(despues, antes, antiguas);
    if (nuevas.sistema == antiguas.sistema && nuevas.emulador == antiguas.emulador)
        return texto;
    const QString cambiado =
        ConAjuste(texto, Ajuste::UltimaSeleccion, LineasDeUltimaSeleccion(nuevas.sistema, nuevas.emulador));
    return sonIgualesSalvoSeleccion(texto, cambiado) ? cambiado : texto;
}

void GuardaAjuste(Modulo &M, Ajuste ajuste, const QStringList &lineasNuevas)
{
    reescribe(M, [&](const QString &texto) { return ConAjuste(texto, ajuste, lineasNuevas); });
}

void GuardaUltimaSeleccion(Modulo &M, const QString &sistema, const QString &emulador)
{
    bool igual = false;
    try {
        reescribe(M, [&](const QString &texto) {
            const Posiciones posiciones = PosicionesEnTexto(M, textoDelCatalogo(), sistema, emulador);
            const QString nuevo = ConAjuste(texto, Ajuste::UltimaSeleccion,
                LineasDeUltimaSeleccion(posiciones.sistema, posiciones.emulador));
            igual = nuevo == texto;
            return nuevo;
        });
    } catch (const host::ReadOnlyPlace &) {
        if (!igual)
            throw;
    }
}

void GuardaFiltros(Modulo &M, const QStringList &filtros)
{
    reescribe(M, [&](const QString &texto) { return ConFiltros(texto, filtros); });
}

} // namespace core
