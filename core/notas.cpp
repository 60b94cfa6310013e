#include "core/notas.h"

#include "core/campos.h"

#include "host/letters.h"
#include "host/paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr char16_t InicioParametros[] = u"Parametros";

// In upper case. A description is changed only in a line that begins behind the apostrophe in the code, or in
// double quotes: so they stand around a key that begins ahead of it, if it can have them.
std::optional<QString> claveDeNota(const QString &clave)
{
    const QString mayus = host::upper(clave);
    const bool delante = !mayus.isEmpty() && mayus[0] < u'\'';
    const std::optional<QString> entreComillas =
        delante ? CampoEscrito(mayus, Comillas::Siempre) : std::nullopt;
    return entreComillas ? entreComillas : ClaveEscrita(mayus);
}

QString registroDeNota(const QString &campoClave, const QString &descripcion)
{
    return campoClave + u",\""_s + descripcion + u'"';
}

// Behind a description's record, where the next begins.
constexpr QStringView Siguiente = u".";

// A description's record, with what follows it, read up to its description.
host::TextSource ensayoDeNota(const QString &descripcion)
{
    Copia copia;
    copia.Nueva(registroDeNota(u"K"_s, descripcion));
    host::TextSource fuente(copia.Texto() + Siguiente.toString());
    fuente.readField();
    return fuente;
}

QString sinBlancosEnLosExtremos(QStringView texto)
{
    while (texto.startsWith(u' '))
        texto = texto.sliced(1);
    while (texto.endsWith(u' '))
        texto.chop(1);
    return texto.toString();
}

// With double quotes in them the blanks at their ends would take others around them, which don't come back.
std::optional<QString> registroNuevo(Parametros parametros)
{
    if (!CabeEnUnCampo(parametros.texto))
        parametros.texto = sinBlancosEnLosExtremos(parametros.texto);
    return RegistroDeParametros(parametros);
}

// The description is what lies behind the first comma, or behind the one after a quoted key, without the
// quotes around it.
bool llevaDescripcion(QStringView linea, const QString &descripcion)
{
    const qsizetype desde = linea[0] == u'"' ? linea.indexOf(u'"', 1) : 0;
    const qsizetype coma = desde < 0 ? -1 : linea.indexOf(u',', desde);
    if (coma < 0)
        return false;
    return coma + 2 < linea.size() ? linea.sliced(coma + 2).chopped(1) == descripcion : descripcion.isEmpty();
}

// Whether the line is a record of its own that is read as this key and description: one with double quotes in
// it is read up to them.
bool seLeeComo(QStringView linea, const QString &clave, const QString &descripcion)
{
    if (!linea.contains(u','))
        return false;
    host::TextSource fuente(linea.toString() + u'\n' + Siguiente.toString());
    const bool esLaClave = host::sameName(fuente.readField(), clave);
    return esLaClave && fuente.readField() == descripcion && fuente.rest() == Siguiente;
}

// A line that begins with an apostrophe, or ahead of it in the code, holds no note, unless its key is quoted.
bool esLaNota(QStringView linea, const QString &descripcion, const QString &clave)
{
    if (linea.isEmpty() || (linea[0] <= u'\'' && linea[0] != u'"'))
        return false;
    return llevaDescripcion(linea, descripcion) || seLeeComo(linea, clave, descripcion);
}

// The records up to the closing one, or to the end of the text, without those of a system.
void copiaParametrosDeOtros(Copia &copia, host::TextSource &fuente, const QString &sistema)
{
    while (!fuente.atEnd()) {
        const RegistroLeido leido = LeeRegistro(fuente);
        if (leido.EsCierre()) {
            CopiaCierre(copia, leido);
            return;
        }
        if (!host::sameName(leido.campos.sistema, sistema))
            CopiaRegistro(copia, leido);
    }
}

// The next line with its end, as views into the source.
LineaConFin leeLineaConFin(host::TextSource &fuente)
{
    const QStringView antes = fuente.rest();
    const qsizetype largo = fuente.readLine().size();
    const qsizetype leido = fuente.atEnd() ? antes.size() : antes.size() - fuente.rest().size();
    return { antes.first(largo), antes.sliced(largo, leido - largo) };
}

void copiaSinVacias(Copia &copia, QStringView texto)
{
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (!linea.linea.isEmpty())
            copia.Copiar(linea);
    }
}

// The lines up to and with the one that begins the section; returns what lies behind it.
QStringView copiaHastaParametros(Copia &copia, QStringView texto)
{
    qsizetype leido = 0;
    for (const LineaConFin &linea : EnLineas(texto)) {
        leido += linea.linea.size() + linea.fin.size();
        if (!linea.linea.isEmpty())
            copia.Copiar(linea);
        if (linea.linea.startsWith(InicioParametros))
            return texto.sliced(leido);
    }
    throw host::Failure(host::PastEndOfFile, u"find the section of parameters"_s, u"Zembro.rom"_s);
}

// A key, bare or in double quotes, and a description that begins with double quotes behind the comma.
bool esRegistroDeNota(QStringView linea)
{
    linea = linea.trimmed();
    const qsizetype desde = linea.startsWith(u'"') ? linea.indexOf(u'"', 1) : 0;
    const qsizetype coma = desde < 0 ? -1 : linea.indexOf(u',', desde);
    return coma >= 0 && linea.sliced(coma + 1).trimmed().startsWith(u'"');
}

using Lineas = std::vector<LineaConFin>;

// A record may stand on two lines: this one is a key if a description in double quotes is alone on the next.
bool esClaveSola(const Lineas &lineas, size_t indice)
{
    if (indice + 1 >= lineas.size())
        return false;
    const QStringView siguiente = lineas[indice + 1].linea.trimmed();
    const qsizetype cierre = siguiente.startsWith(u'"') ? siguiente.indexOf(u'"', 1) : -1;
    return cierre > 0 && siguiente.indexOf(u',', cierre) < 0;
}

bool esCabecera(const Lineas &lineas, size_t indice, const QStringList &sistemas)
{
    return sistemas.contains(lineas[indice].linea) && !esClaveSola(lineas, indice);
}

} // namespace

// Where the description of a note has no quotes, the rest of its block follows.
bool AcabaLosSistemas(const Lineas &lineas, size_t indice, const QStringList &sistemas)
{
    const auto esNota = [&](size_t i) { return esRegistroDeNota(lineas[i].linea) || esClaveSola(lineas, i); };
    if (!lineas[indice].linea.startsWith(u'[') || esNota(indice))
        return false;
    if (!lineas[indice].linea.contains(u','))
        return true;
    for (size_t i = indice + 1; i < lineas.size(); ++i) {
        const QStringView linea = lineas[i].linea;
        if (linea.startsWith(u'\'') || esCabecera(lineas, i, sistemas))
            return false;
        if (linea.startsWith(InicioParametros)
            || (linea.startsWith(u'[') && !linea.contains(u',') && !esNota(i)))
            return true;
    }
    return true;
}

bool CierraLasNotas(QStringView linea)
{
    while (linea.startsWith(u' '))
        linea = linea.sliced(1);
    if (!linea.startsWith(u'\'') && !linea.startsWith(u'"'))
        return false;
    return host::TextSource(linea.toString()).readField() == u"'";
}

namespace {

// What ends a block that has lost its apostrophe.
bool acabaElBloque(const Lineas &lineas, size_t indice, const QStringList &otros)
{
    return lineas[indice].linea.startsWith(InicioParametros) || esCabecera(lineas, indice, otros)
        || AcabaLosSistemas(lineas, indice, otros);
}

// The next note, if there is one ahead of the closing apostrophe, at this index.
bool leeNota(Modulo &M, int indice)
{
    M.Nota_CampoClave = M.Ficheros.readField(1);
    if (M.Nota_CampoClave == u"'")
        return false;
    M.Nota_CampoTexto = M.Ficheros.atEnd(1) ? QString() : M.Ficheros.readField(1);
    M.Nota_Clave(indice) = M.Nota_CampoClave;
    M.Nota_Texto(indice) = M.Nota_CampoTexto;
    return true;
}

} // namespace

bool SePuedeEscribir(const QString &clave)
{
    return ClaveEscrita(clave).has_value();
}

bool SePuedeDescribir(const QString &clave)
{
    return !clave.isEmpty() && SePuedeEscribir(clave);
}

bool EsDescripcionEntera(const QString &descripcion)
{
    host::TextSource fuente = ensayoDeNota(descripcion);
    fuente.readField();
    return descripcion.isValidUtf16() && fuente.rest() == Siguiente;
}

QString DescripcionLeida(const QString &descripcion)
{
    return ensayoDeNota(descripcion).readField();
}

bool SonParametrosEnteros(const QString &texto)
{
    return !texto.contains(u',') && CabeEnUnCampo(sinBlancosEnLosExtremos(texto));
}

int CargaNotas(Modulo &M, const QString &sistema)
{
    M.Ficheros.openForInput(1, host::programFile(u"Zembro.rom"_s));
    while (M.Ficheros.readLine(1) != sistema) { }
    int total = 0;
    while (leeNota(M, total))
        ++total;
    M.Ficheros.close(1);
    return total;
}

int RecargaNotas(Modulo &M, const QString &sistema)
{
    M.Ficheros.openForInput(1, host::programFile(u"Zembro.rom"_s));
    while (!M.Ficheros.atEnd(1) && M.Ficheros.readLine(1) != sistema) { }
    int total = 0;
    while (!M.Ficheros.atEnd(1) && leeNota(M, total))
        ++total;
    M.Ficheros.close(1);
    return total;
}

int NotaConTexto(const Modulo &M, const QString &texto)
{
    int i = 0;
    do {
        if (M.Nota_Texto(i) == texto)
            return i;
        ++i;
    } while (i < M.Nota_Clave.tamaño() && !M.Nota_Clave(i).isEmpty());
    return -1;
}

std::optional<QString> RegistroDeDescripcion(const QString &clave, const QString &descripcion)
{
    const std::optional<QString> campo = claveDeNota(clave);
    if (!SePuedeDescribir(clave) || !EsDescripcionEntera(descripcion) || !campo)
        return std::nullopt;
    return registroDeNota(*campo, descripcion);
}

QString ConDescripcionNueva(
    const QString &texto, const QString &sistema, const QString &clave, const QString &descripcion)
{
    const std::optional<QString> registro = RegistroDeDescripcion(clave, descripcion);
    if (!registro)
        return texto;
    Copia copia;
    bool escrita = false;
    for (const LineaConFin &linea : EnLineas(texto)) {
        copia.Copiar(linea);
        if (!escrita && linea.linea == sistema) {
            copia.Nueva(*registro);
            escrita = true;
        }
    }
    return copia.Texto();
}

bool HayDescripcion(const QString &texto, const QString &descripcion, const QString &clave)
{
    return std::ranges::any_of(
        EnLineas(texto), [&](const LineaConFin &linea) { return esLaNota(linea.linea, descripcion, clave); });
}

QString ConDescripcionCambiada(
    const QString &texto, const QString &anterior, const QString &clave, const QString &descripcion)
{
    const std::optional<QString> registro = RegistroDeDescripcion(clave, descripcion);
    if (!registro)
        return texto;
    Copia copia;
    bool cambiada = false;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (!cambiada && esLaNota(linea.linea, anterior, clave)) {
            copia.Nueva(*registro);
            cambiada = true;
        } else {
            copia.Copiar(linea);
        }
    }
    return copia.Texto();
}

QString ConParametrosNuevos(const QString &texto, const Parametros &parametros)
{
    const std::optional<QString> registro = registroNuevo(parametros);
    if (!registro)
        return texto;
    Copia copia;
    bool escritos = false;
    for (const LineaConFin &linea : EnLineas(texto)) {
        copia.Copiar(linea);
        if (!escritos && linea.linea.startsWith(CabeceraParametros)) {
            copia.Nueva(*registro);
            escritos = true;
        }
    }
    return copia.Texto();
}

QString ConParametrosCambiados(const QString &texto, const Parametros &parametros)
{
    const std::optional<QString> registro = registroNuevo(parametros);
    if (!registro)
        return texto;
    Copia copia;
    host::TextSource fuente(copiaHastaParametros(copia, texto).toString());
    for (;;) {
        if (fuente.atEnd())
            throw host::Failure(host::PastEndOfFile, u"find the end of the parameters"_s, u"Zembro.rom"_s);
        const RegistroLeido leido = LeeRegistro(fuente);
        if (leido.EsCierre()) {
            CopiaCierre(copia, leido);
            break;
        }
        if (!host::sameName(leido.campos.clave, parametros.clave))
            CopiaRegistro(copia, leido);
        else if (!parametros.texto.isEmpty())
            copia.Nueva(*registro);
    }
    if (!fuente.atEnd())
        copiaSinVacias(copia, fuente.rest());
    return copia.Texto();
}

QString ConSistemaNuevo(const QString &texto, const QString &sistema)
{
    const Lineas lineas = EnLineas(texto);
    Copia copia;
    bool escrito = false;
    for (size_t i = 0; i < lineas.size(); ++i) {
        if (!escrito && AcabaLosSistemas(lineas, i, {})) {
            copia.Nueva(sistema);
            copia.Nueva(u"'"_s);
            escrito = true;
        }
        copia.Copiar(lineas[i]);
    }
    return copia.Texto();
}

QString SinParametrosDeSistema(const QString &texto, const QString &sistema)
{
    host::TextSource fuente(texto);
    Copia copia;
    while (!fuente.atEnd()) {
        const LineaConFin linea = leeLineaConFin(fuente);
        if (!linea.linea.isEmpty())
            copia.Copiar(linea);
        if (linea.linea.startsWith(InicioParametros))
            copiaParametrosDeOtros(copia, fuente, sistema);
    }
    return copia.Texto();
}

QString SinNotasDeSistema(const QString &texto, const QString &sistema, const QStringList &otros)
{
    const Lineas lineas = EnLineas(texto);
    Copia copia;
    bool dentro = false;
    for (size_t i = 0; i < lineas.size(); ++i) {
        const QStringView linea = lineas[i].linea;
        dentro = linea == sistema || (dentro && !acabaElBloque(lineas, i, otros));
        if (!dentro)
            copia.Copiar(lineas[i]);
        if (linea.startsWith(u'\''))
            dentro = false;
    }
    return copia.Texto();
}

} // namespace core
