#include "companion/adopcion.h"

#include "companion/cambio.h"
#include "companion/diferencia.h"
#include "companion/impedimento.h"
#include "companion/otrosistema.h"
#include "companion/viejo.h"

#include "core/lista.h"

#include "host/drives.h"
#include "host/failure.h"
#include "host/numberedfiles.h"
#include "host/paths.h"
#include "host/replacement.h"

#include "launch/encargo.h"
#include "launch/intenta.h"

#include <QDir>
#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

const QString Unidades = u"Zembro.uni"_s;

struct Suerte {
    QString estado; // a word of English, the same in every language
    QString texto;
};

// A capture below the old directory, and where it goes.
struct Copia {
    QString de;
    QString a;
};

class Adopcion {
public:
    Adopcion(Sesion &sesion, const QString &ruta)
        : m_sesion(sesion)
        , m_viejo(LeeViejo(ruta))
        , m_escribe(sesion.Tiene(u"write"_s))
    {
    }

    int Haz();

private:
    Suerte suerteDe(const EmuladorViejo &uno) const;
    QString porQueNoSeLista(const EmuladorViejo &uno) const;
    QStringList unidadesDistintas() const;
    std::vector<host::Drive> unidadesDeAmbos() const;
    void buscaCapturas(EmuladorViejo &uno);
    QString conEmuladores(const QString &texto);
    int cambia(const QString &fichero, const CambioDeTexto &cambio);
    int ponUnidades();
    void ponCapturas();
    int responde(int estado);

    Sesion &m_sesion;
    DirectorioViejo m_viejo;
    const bool m_escribe;
    QStringList m_dichos;
    QJsonArray m_parejas;
    QJsonArray m_cambios;
    std::vector<Copia> m_capturas;
    QStringList m_distintas; // drives, in words
    QStringList m_malas; // lines of the old drives that don't count
    int m_puestos = 0;
    int m_descripciones = 0;
    int m_parametros = 0;
    int m_unidades = 0;
};

std::vector<host::Drive> Adopcion::unidadesDeAmbos() const
{
    std::vector<host::Drive> ambas = host::drives();
    for (const host::Drive &unidad : m_viejo.unidades) {
        if (std::ranges::find(ambas, unidad.letter, &host::Drive::letter) == ambas.end())
            ambas.push_back(unidad);
    }
    return ambas;
}

Suerte Adopcion::suerteDe(const EmuladorViejo &uno) const
{
    const Palabras &palabras = m_sesion.palabras;
    for (const QString &ruta : { uno.emulador.exe, uno.emulador.rom, uno.emulador.img }) {
        const QString falta = FaltaDeUnidad(ruta, palabras);
        if (!falta.isEmpty())
            return { host::driveNamed(host::driveLetter(ruta)) ? u"drive-missing"_s : u"no-drive"_s, falta };
    }
    const QString exe = host::trueSpelling(uno.emulador.exe);
    if (exe.isEmpty())
        return { u"no-program"_s, palabras.Zbo_NoHayEXE.arg(uno.emulador.exe) };
    launch::LineaDeOrden orden;
    orden.Ruta(exe, exe);
    const launch::Encargo encargo = launch::EncargoDe(orden);
    if (encargo.traba == launch::Traba::SinHerramienta)
        return { u"no-tool"_s, launch::TextoDe(encargo.traba, encargo.corredor, m_sesion.M.Palabras) };
    if (encargo.traba != launch::Traba::Ninguna)
        return { u"refused"_s, launch::TextoDe(encargo.traba, encargo.corredor, m_sesion.M.Palabras) };
    if (encargo.corredor == launch::Corredor::Ninguno) {
        if (const std::optional<Impedimento> falta = ImpedimentoDe(exe, palabras))
            return { u"refused"_s, falta->texto };
    }
    const QString sinLista = porQueNoSeLista(uno);
    if (!sinLista.isEmpty())
        return { u"no-games"_s, palabras.Zbo_SinListar.arg(sinLista) };
    return { u"works"_s, palabras.Zbo_Funciona };
}

// Of a type that lists games: its directory is none, or holds nothing. Empty where there is something.
QString Adopcion::porQueNoSeLista(const EmuladorViejo &uno) const
{
    if (core::CargaSoloElEmulador(uno.emulador.tipo.toInt()))
        return {};
    if (uno.emulador.rom.isEmpty())
        return u"ROM="_s;
    try {
        return host::listFilesAndDirectories(uno.emulador.rom).isEmpty() ? uno.emulador.rom : QString();
    } catch (const host::Failure &fallo) {
        return TextoDe(fallo, m_sesion.palabras);
    }
}

// Of a drive, without what leads up and down again.
QString sitio(const QString &lugar)
{
    QString enDisco = QDir::cleanPath(lugar);
    launch::Intenta([&] { enDisco = host::directoryPath(lugar); });
    return enDisco;
}

// Letters that mean one place here and another one there.
QStringList Adopcion::unidadesDistintas() const
{
    QStringList dichas;
    for (const host::Drive &alli : m_viejo.unidades) {
        const host::Drive *aqui = host::driveNamed(alli.letter);
        if (aqui && sitio(aqui->place) != sitio(alli.place))
            dichas += m_sesion.palabras.Zbo_OtraUnidad.arg(QString(alli.letter), aqui->place, alli.place);
    }
    return dichas;
}

// Those that lie below the old directory go with the rest, to the same place below this one.
void Adopcion::buscaCapturas(EmuladorViejo &uno)
{
    const QString alli = host::trueSpelling(m_viejo.ruta + u'/');
    const QString imagenes = host::trueSpelling(uno.emulador.img);
    if (imagenes.isEmpty() || !imagenes.startsWith(alli) || imagenes.contains(u"/../"))
        return;
    const QString dentro = host::withClosingSeparator(imagenes.sliced(alli.size()));
    if (dentro.isEmpty())
        return;
    launch::Intenta([&] {
        for (const QString &nombre : host::listFiles(imagenes, u"*.gif;*.pcx"_s)) {
            const Copia copia { host::withClosingSeparator(imagenes) + nombre, dentro + nombre };
            const auto igual = [&](const Copia &otra) { return otra.a == copia.a; };
            if (!host::exists(host::programFile(copia.a)) && std::ranges::none_of(m_capturas, igual))
                m_capturas.push_back(copia);
        }
    });
    uno.emulador.img = dentro;
}

// One after the other; what it can't take is told.
QString Adopcion::conEmuladores(const QString &texto)
{
    QString nuevo = texto;
    m_puestos = 0;
    m_dichos.clear();
    m_parejas = {};
    for (const EmuladorViejo &uno : m_viejo.emuladores) {
        Suerte suerte = suerteDe(uno);
        const std::optional<QString> con = ConEmuladorViejo(nuevo, uno);
        const bool puesto = con && *con != nuevo;
        if (!con)
            suerte = { u"kept"_s, m_sesion.palabras.Zbo_YaTiene };
        else if (!puesto)
            suerte = { u"refused"_s, m_sesion.palabras.Zbo_NoEncaja };
        nuevo = con.value_or(nuevo);
        m_puestos += puesto;
        m_dichos += uno.sistema + u" / "_s + uno.emulador.nombre + u": "_s + suerte.texto;
        m_parejas += QJsonObject { { u"system"_s, uno.sistema }, { u"emulator"_s, uno.emulador.nombre },
            { u"state"_s, suerte.estado }, { u"text"_s, suerte.texto } };
    }
    return nuevo;
}

int Adopcion::cambia(const QString &fichero, const CambioDeTexto &cambio)
{
    QJsonObject objeto;
    const int estado = HazCambio(m_sesion, fichero, cambio, objeto);
    if (objeto[u"changed"_s].toBool())
        m_cambios += QJsonObject { { u"file"_s, fichero }, { u"diff"_s, objeto[u"diff"_s] } };
    return estado;
}

// The file may not be there yet.
int Adopcion::ponUnidades()
{
    const std::vector<host::Drive> actuales = host::drives();
    const auto con = [&](const std::optional<QString> &texto) {
        return ConUnidadesViejas(texto, actuales, m_viejo.unidades);
    };
    m_unidades = static_cast<int>(unidadesDeAmbos().size() - actuales.size());
    if (host::exists(host::programFile(Unidades)))
        return cambia(Unidades, [&](const QString &texto) { return con(texto); });
    const QString nuevo = con(std::nullopt);
    if (nuevo.isEmpty())
        return Bien;
    const QStringList diferencia = Diferencia(Unidades, QString(), nuevo);
    m_cambios +=
        QJsonObject { { u"file"_s, Unidades }, { u"diff"_s, QJsonArray::fromStringList(diferencia) } };
    if (!m_escribe) {
        if (!m_sesion.EnJson())
            m_sesion.Escribe(diferencia);
        return Hallazgos;
    }
    host::Replacement fichero(host::programFile(Unidades), u"Zembro.tmp"_s);
    if (fichero.read())
        throw host::Failure(host::PathAccess, u"write a new file"_s, host::programFile(Unidades));
    fichero.write(host::encodeText({ nuevo }));
    fichero.commit();
    return Bien;
}

void Adopcion::ponCapturas()
{
    for (const Copia &copia : m_capturas) {
        QString directorio = host::programDirectory();
        const QStringList partes = copia.a.split(u'/');
        for (const QString &parte : partes.first(partes.size() - 1)) {
            directorio += u'/' + parte;
            if (!host::exists(directorio))
                host::makeDirectory(directorio);
        }
        host::Replacement fichero(directorio + u'/' + partes.last(), u"Zembro.tmp"_s);
        if (!fichero.read()) {
            fichero.write(host::readBytes(copia.de));
            fichero.commit();
        }
    }
}

int Adopcion::responde(int estado)
{
    const Palabras &palabras = m_sesion.palabras;
    const auto capturas = static_cast<qsizetype>(m_capturas.size());
    if (m_sesion.EnJson()) {
        m_sesion.Json({ { u"directory"_s, m_viejo.ruta }, { u"pairs"_s, m_parejas },
            { u"emulators"_s, m_puestos }, { u"descriptions"_s, m_descripciones },
            { u"parameters"_s, m_parametros }, { u"captures"_s, capturas }, { u"drives"_s, m_unidades },
            { u"drives_that_differ"_s, QJsonArray::fromStringList(m_distintas) },
            { u"drive_lines"_s, QJsonArray::fromStringList(m_malas) }, { u"written"_s, m_escribe },
            { u"changes"_s, m_cambios } });
        return estado;
    }
    m_sesion.Escribe(m_dichos + m_distintas + m_malas);
    m_sesion.Escribe((m_escribe ? palabras.Zbo_Adoptado : palabras.Zbo_Adoptaria)
                         .arg(m_puestos)
                         .arg(m_descripciones)
                         .arg(m_parametros)
                         .arg(capturas)
                         .arg(m_unidades));
    return estado;
}

// The drives first: what the catalogue then names is there.
int Adopcion::Haz()
{
    m_distintas = unidadesDistintas();
    for (const LineaDeUnidad &mala :
        LineasQueNoCuentan(m_viejo.textoDeUnidades, m_viejo.ruta, m_sesion.palabras)) {
        if (mala.clase != u"drive-missing") // which each pair tells
            m_malas += u"%1/%2:%3: %4"_s.arg(m_viejo.ruta, QString(Unidades)).arg(mala.linea).arg(mala.dicho);
    }
    int estado = ponUnidades();
    const host::OtherDrives ambas(unidadesDeAmbos());
    for (EmuladorViejo &uno : m_viejo.emuladores)
        buscaCapturas(uno);
    if (m_escribe)
        ponCapturas();
    else if (!m_capturas.empty())
        estado = Hallazgos;
    estado = std::max(
        estado, cambia(u"Zembro.emu"_s, [this](const QString &texto) { return conEmuladores(texto); }));
    estado = std::max(estado, cambia(u"Zembro.rom"_s, [this](const QString &texto) {
        const Anotado anotado = ConNotasViejas(texto, m_viejo);
        m_descripciones = anotado.descripciones;
        m_parametros = anotado.parametros;
        return anotado.texto;
    }));
    return responde(estado);
}

int adopta(Sesion &sesion)
{
    for (const QString &fichero : { u"Zembro.emu"_s, u"Zembro.rom"_s }) {
        if (!host::exists(host::programFile(fichero)))
            return sesion.Falla(sesion.palabras.Zbo_NoDir.arg(host::programDirectory()));
    }
    QString ruta;
    launch::Intenta([&] { ruta = host::directoryPath(sesion.Argumento(0)); });
    if (ruta.isEmpty() || !host::exists(ruta + u"/Zembro.emu"_s)
        || ruta == host::directoryPath(host::programDirectory()))
        return sesion.Falla(sesion.palabras.Zbo_NoDir.arg(sesion.Argumento(0)));
    return Adopcion(sesion, ruta).Haz();
}

} // namespace

const Orden &OrdenAdopcion()
{
    static const Orden orden { u"adopt"_s, u"DIR"_s, &Palabras::Zbo_Adopt, { OpcionWrite() }, adopta };
    return orden;
}

} // namespace companion
