#include "launch/vbunzbas.h"

#include "launch/destino.h"
#include "launch/fuentezip.h"
#include "launch/libarchive.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/paths.h"
#include "host/questions.h"
#include "host/retried.h"

#include <array>
#include <climits>
#include <memory>

#include <fcntl.h>

using namespace Qt::StringLiterals;

namespace launch {

namespace {

constexpr int MaxIntentos = 3; // passwords asked for one member
constexpr qsizetype MaxContraseña = 256; // in bytes
constexpr qsizetype MaxNombre =
    2048; // of a member, in bytes: a file far below could not be reached by its path
constexpr size_t BloqueDeCopia = 65536;

bool saltarContraseña = false;

// The passwords of one archive. The library tries those that fitted before by itself and comes for a further
// one.
class Contraseñas {
public:
    explicit Contraseñas(bool pregunta)
        : m_pregunta(pregunta)
    {
    }

    void NuevoMiembro();
    const char *Otra();

    // Whether the member asked for one more than there was.
    bool Falto() const { return m_falto; }

private:
    void Pregunta();

    const bool m_pregunta; // else there are none
    bool m_falto = false;
    int m_intentos = 0;
    QByteArrayList m_porProbar;
    QByteArray m_actual;
};

void Contraseñas::NuevoMiembro()
{
    m_falto = false;
    m_intentos = 0;
    m_porProbar.clear();
}

const char *Contraseñas::Otra()
{
    if (m_porProbar.isEmpty())
        Pregunta();
    m_falto = m_porProbar.isEmpty();
    if (m_falto)
        return nullptr;
    m_actual = m_porProbar.takeFirst();
    return m_actual.constData();
}

// Archives keep bytes, not characters: a password is tried as older systems write it, then as this one does.
void Contraseñas::Pregunta()
{
    if (!m_pregunta || saltarContraseña || m_intentos == MaxIntentos)
        return;
    ++m_intentos;
    const QString respuesta = host::questions().askText(u"Please Enter The Password!"_s);
    saltarContraseña = respuesta.isEmpty();
    for (const QByteArray &bytes : { host::encodeText({ respuesta }), respuesta.toUtf8() }) {
        const QByteArray contraseña = bytes.first(qMin(bytes.size(), MaxContraseña));
        if (!contraseña.isEmpty() && !m_porProbar.contains(contraseña))
            m_porProbar << contraseña;
    }
}

const char *otraContraseña(archive *, void *contraseñas)
{
    try {
        return static_cast<Contraseñas *>(contraseñas)->Otra();
    } catch (const host::Failure &) {
        return nullptr;
    }
}

// The archive as it stands, or without the blanks at the end of its name. What is no plain file must not hold
// us up.
host::Descriptor abre(const QString &ruta)
{
    QByteArray enDisco = host::findOnDisk(ruta);
    QString sinBlancos = ruta;
    while (sinBlancos.endsWith(u' '))
        sinBlancos.chop(1);
    if (enDisco.isEmpty())
        enDisco = host::findOnDisk(sinBlancos);
    return host::Descriptor(
        host::retried([&] { return open(enDisco.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); }));
}

struct Cierra {
    void operator()(archive *a) const { libarchive::read_free(a); }
};
using Archivo = std::unique_ptr<archive, Cierra>;

Archivo leeZip(FuenteZip &fuente, Contraseñas &contraseñas)
{
    if (!libarchive::Esta())
        return {};
    Archivo archivo(libarchive::read_new());
    libarchive::read_support_format_zip(archivo.get());
    libarchive::read_set_options(
        archivo.get(), "zip:hdrcharset=CP437"); // of names that aren't marked as UTF-8
    libarchive::read_set_passphrase_callback(archivo.get(), &contraseñas, otraContraseña);
    if (!fuente.AbrePara(archivo.get()))
        archivo.reset();
    return archivo;
}

// Without a destination everything is read, and nothing written.
class Extraccion {
public:
    Extraccion(archive *archivo, const Destino *destino, Contraseñas &contraseñas)
        : m_archivo(archivo)
        , m_destino(destino)
        , m_contraseñas(contraseñas)
    {
    }

    Desempaquetado Todo();

private:
    enum class Lectura { Entera, Dañada, Desconocida, DiscoLleno };

    void Miembro(archive_entry *miembro);
    void Fichero(archive_entry *miembro, QList<QByteArray> partes);
    void FicheroEn(const host::Descriptor &directorio, const QByteArray &lugar, const QByteArray &nombre,
        archive_entry *miembro);
    void Leido(archive_entry *miembro, Lectura lectura, const QByteArray &lugar, const QByteArray &nombre,
        bool puesto);
    void Subdirectorio(const QList<QByteArray> &partes);
    bool PuedeOcupar(
        const host::Descriptor &directorio, const QByteArray &nombre, const QByteArray &enArchivo);
    Lectura Copia(FicheroNuevo *fichero);
    bool EsIlegible(archive_entry *miembro, Lectura lectura) const;

    archive *m_archivo;
    const Destino *m_destino;
    Contraseñas &m_contraseñas;
    Desempaquetado m_resultado;
    int m_enteros = 0;
    int m_ilegibles = 0;
    bool m_ningunoMas = false; // existing files are not to be replaced, and not to be asked about
    bool m_discoLleno = false;
};

Desempaquetado Extraccion::Todo()
{
    archive_entry *miembro = nullptr;
    int estado = ARCHIVE_OK;
    while (!m_discoLleno && estado >= ARCHIVE_WARN) {
        estado = libarchive::read_next_header(m_archivo, &miembro);
        if (estado == ARCHIVE_EOF)
            break;
        if (estado >= ARCHIVE_WARN)
            Miembro(miembro);
    }
    m_resultado.nadaLegible = m_ilegibles > 0 && m_enteros == 0;
    return m_resultado;
}

// Links and devices are passed over, and names that can't be read.
void Extraccion::Miembro(archive_entry *miembro)
{
    const QByteArray nombre = libarchive::entry_pathname(miembro);
    const QList<QByteArray> partes = PartesDe(nombre);
    const auto clase = libarchive::entry_filetype(miembro);
    if (partes.isEmpty() || nombre.size() > MaxNombre)
        return;
    m_contraseñas.NuevoMiembro();
    m_discoLleno = m_destino && !m_destino->QuedaSitio();
    if (m_discoLleno)
        return;
    if (clase == AE_IFDIR || nombre.endsWith('/') || nombre.endsWith('\\')) {
        Subdirectorio(partes);
        if (m_destino)
            m_destino->Directorio(partes);
    } else if (clase == AE_IFREG) {
        Fichero(miembro, partes);
    }
}

void Extraccion::Fichero(archive_entry *miembro, QList<QByteArray> partes)
{
    const QByteArray nombre = partes.takeLast();
    const QByteArray lugar = partes.isEmpty() ? QByteArray() : partes.join('/') + '/';
    Subdirectorio(partes);
    if (m_destino)
        FicheroEn(m_destino->Directorio(partes), lugar, nombre, miembro);
    else if (nombre.size() <= NAME_MAX)
        Leido(miembro, Copia(nullptr), lugar, nombre, true);
}

void Extraccion::Subdirectorio(const QList<QByteArray> &partes)
{
    const QString primero = partes.isEmpty() ? QString() : host::nameFromDisk(partes.first());
    if (!primero.isEmpty() && !m_resultado.subdirectorios.contains(primero))
        m_resultado.subdirectorios << primero;
}

void Extraccion::FicheroEn(const host::Descriptor &directorio, const QByteArray &lugar,
    const QByteArray &nombre, archive_entry *miembro)
{
    if (!directorio.isOpen() || !PuedeOcupar(directorio, nombre, libarchive::entry_pathname(miembro)))
        return;
    FicheroNuevo fichero(directorio);
    if (!fichero.Abierto())
        return;
    const Lectura lectura = Copia(&fichero);
    m_discoLleno = lectura == Lectura::DiscoLleno;
    const bool soloLectura = (libarchive::entry_perm(miembro) & 0200) == 0;
    Leido(
        miembro, lectura, lugar, nombre, lectura == Lectura::Entera && fichero.Termina(nombre, soloLectura));
}

void Extraccion::Leido(
    archive_entry *miembro, Lectura lectura, const QByteArray &lugar, const QByteArray &nombre, bool puesto)
{
    const QString ruta = host::nameFromDisk(lugar + nombre);
    m_enteros += lectura == Lectura::Entera ? 1 : 0;
    if (EsIlegible(miembro, lectura)) {
        ++m_ilegibles;
        (lugar.isEmpty() ? m_resultado.ilegibles : m_resultado.ilegiblesMasAbajo) << ruta;
    }
    if (lectura == Lectura::Entera && puesto)
        (lugar.isEmpty() ? m_resultado.ficheros : m_resultado.masAbajo) << ruta;
}

bool Extraccion::PuedeOcupar(
    const host::Descriptor &directorio, const QByteArray &nombre, const QByteArray &enArchivo)
{
    using Answer = host::Questions::Answer;
    const Destino::Ocupante ocupante = Destino::QuienOcupa(directorio, nombre);
    if (ocupante == Destino::Ocupante::Nadie)
        return true;
    if (m_ningunoMas || ocupante == Destino::Ocupante::Directorio)
        return false;
    const Answer respuesta = host::questions().askYesNoCancel(
        u"VBUnZip32 - File Already Exists!"_s, u"Overwrite "_s + host::nameFromDisk(enArchivo) + u'?');
    m_ningunoMas = respuesta == Answer::Cancel;
    return respuesta == Answer::Yes;
}

// Of an encrypted member wrong data may as well mean a wrong password, which its user knows of.
bool Extraccion::EsIlegible(archive_entry *miembro, Lectura lectura) const
{
    const bool dañada = lectura == Lectura::Dañada && libarchive::entry_is_data_encrypted(miembro) == 0;
    return (dañada || lectura == Lectura::Desconocida) && !m_contraseñas.Falto();
}

// A warning at the end of the data means that it doesn't agree with its checksum; a member that fails alone
// is compressed in a way that the library doesn't know.
Extraccion::Lectura Extraccion::Copia(FicheroNuevo *fichero)
{
    std::array<char, BloqueDeCopia> bloque;
    for (;;) {
        const la_ssize_t leidos = libarchive::read_data(m_archivo, bloque.data(), bloque.size());
        if (leidos == 0)
            return Lectura::Entera;
        if (leidos < 0)
            return leidos == ARCHIVE_FAILED ? Lectura::Desconocida : Lectura::Dañada;
        if (fichero && !fichero->Escribe(bloque.data(), leidos))
            return Lectura::DiscoLleno;
    }
}

} // namespace

namespace {

Desempaquetado lee(const QString &ArchivoZip, const Destino *destino)
{
    FuenteZip fuente(abre(ArchivoZip));
    if (!fuente.Abierta())
        return {};
    Contraseñas contraseñas(destino != nullptr);
    const Archivo archivo = leeZip(fuente, contraseñas);
    return archivo ? Extraccion(archivo.get(), destino, contraseñas).Todo() : Desempaquetado();
}

} // namespace

Desempaquetado Descomprimir(const QString &ArchivoZip, const QString &DirectorioDestino)
{
    const Destino destino(host::findOnDisk(DirectorioDestino));
    return destino.Abierto() ? lee(ArchivoZip, &destino) : Desempaquetado();
}

Desempaquetado ContenidoDe(const QString &ArchivoZip)
{
    return lee(ArchivoZip, nullptr);
}

void OlvidaSaltarContraseña()
{
    saltarContraseña = false;
}

} // namespace launch
