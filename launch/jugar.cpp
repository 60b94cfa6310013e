#include "launch/jugar.h"

#include "core/catalogo.h"
#include "core/clasedeprograma.h"
#include "core/parrom.h"
#include "core/rutas.h"
#include "launch/busquedarom.h"
#include "launch/carpetadejuego.h"
#include "launch/cronica.h"
#include "launch/dosbox.h"
#include "launch/encargo.h"
#include "launch/intenta.h"
#include "launch/nombresdos.h"
#include "launch/obras.h"
#include "launch/piezas.h"
#include "launch/vbunzbas.h"
#include "launch/wine.h"

#include "host/aside.h"
#include "host/encoding.h"
#include "host/letters.h"
#include "host/paths.h"
#include "host/questions.h"
#include "host/replacement.h"

#include <chrono>
#include <optional>

using namespace Qt::StringLiterals;

namespace launch {

namespace {

struct Seleccion {
    int sistema;
    int fila; // the emulator's row: row 0 is the system itself
    int tipo;
};

// One launch. Its steps run in the order in which they stand here; none of them lets a failure out.
class Lanzamiento {
public:
    Lanzamiento(core::Modulo &modulo, Pantalla &pantalla, Obras &obras, Seleccion seleccion)
        : M(modulo)
        , m_pantalla(pantalla)
        , m_obras(obras)
        , m_seleccion(seleccion)
    {
    }

    void SoloExe();
    void ConROM(const QString &entrada);

private:
    using Tabla = core::Tabla2<QString>;

    void BuscaPorNota(const Busqueda &busqueda);
    void BuscaPorFichero(const Busqueda &busqueda);
    QString EXE() const { return LeeRuta(M.Cat_EXE); }
    void MiraSiEsDeDOS();
    void PonUnidadDelJuego();
    bool QuiereLaRuta() const { return host::upper(m_pantalla.TextoCombo2()) == u"NEORAGE"; }
    // Where it gets the name alone, it looks for that in a place of its own.
    bool ConApodos() const { return m_seleccion.tipo != 1 && (m_seleccion.tipo != 3 || QuiereLaRuta()); }
    void ReunePiezasDelEmulador();
    void LeeParRom(const QString &clave);

    void Tipo0();
    void Tipo0Zip();
    struct FicheroDelZip {
        std::optional<QString> elegido;
        bool ilegible = false; // there is one to be chosen, but it can't be unpacked
    };
    FicheroDelZip BuscaEnElZip(const QString &carpeta);
    void Tipo2();
    QString CarpetaEnDOS(QString &nombre) const;
    bool NadaSeDesempaquetaEn(const QString &Carpeta) const;
    void Tipo3();

    QString LeeCatalogo(const Tabla &tabla, int prefijo) const;
    QString LeeRuta(const Tabla &tabla) const;
    QStringList Extensiones() const;
    Desempaquetado Desempaqueta(const Ruta &ArchivoZip, const QString &DirectorioDestino);
    void Corre(Caso caso);

    core::Modulo &M;
    Pantalla &m_pantalla;
    Obras &m_obras;
    const Seleccion m_seleccion;
    Via m_via = Via::Fichero;
    Piezas m_piezas;
    UnidadesDOS m_unidades;
    UnidadesDOS *m_dos = nullptr; // them, if the emulator is a program for DOS
};

void Lanzamiento::SoloExe()
{
    m_piezas.Par1 = host::lower(LeeCatalogo(M.Cat_PAR1, core::PrefijoParametro));
    MiraSiEsDeDOS();
    m_piezas.programa = ProgramaDe(EXE(), m_dos);
    Corre(Caso::SoloExe);
}

void Lanzamiento::ConROM(const QString &entrada)
{
    MiraSiEsDeDOS();
    m_piezas.RomDir = RomDirDe(LeeRuta(M.Cat_ROM));
    const Busqueda busqueda = BuscaROM(M, m_seleccion.tipo, entrada);
    m_via = busqueda.via;
    if (m_via == Via::Nota)
        BuscaPorNota(busqueda);
    else
        BuscaPorFichero(busqueda);

    switch (m_seleccion.tipo) {
    case 0:
        return Tipo0();
    case 1:
        return Corre(Caso::Directorio);
    case 2:
        return Tipo2();
    case 3:
        return Tipo3();
    default:
        return;
    }
}

void Lanzamiento::BuscaPorNota(const Busqueda &busqueda)
{
    m_piezas.RomCorto = RomCortoDe(m_piezas.RomDir, busqueda.nombre, m_dos, ConApodos());
    PonUnidadDelJuego();
    if (m_seleccion.tipo == 2 || m_seleccion.tipo == 3)
        m_piezas.RomCorto.texto.truncate(host::startOfLast(m_piezas.RomCorto.texto, 4));
    M.Nota_Clave(busqueda.nota) = host::lower(busqueda.clave);
    ReunePiezasDelEmulador();
    LeeParRom(busqueda.clave);
}

// On this route the parameters are kept under the short name.
void Lanzamiento::BuscaPorFichero(const Busqueda &busqueda)
{
    m_piezas.RomCorto = RomCortoDe(m_piezas.RomDir, busqueda.nombre, m_dos, ConApodos());
    PonUnidadDelJuego();
    m_piezas.RomBase = RomBaseDe(m_piezas.RomCorto.texto);
    ReunePiezasDelEmulador();
    LeeParRom(m_piezas.RomCorto.texto);
}

// The letter of its own drive is given out first.
void Lanzamiento::MiraSiEsDeDOS()
{
    if (core::ClaseDe(EXE()) != core::ClaseDePrograma::DOS)
        return;
    m_dos = &m_unidades;
    m_unidades.Prefiere(EXE());
    m_unidades.Prefiere(LeeRuta(M.Cat_ROM));
    ProgramaDe(EXE(), m_dos);
}

// DOS gets no other drive for the directory, whose letter would be another than the game's.
void Lanzamiento::PonUnidadDelJuego()
{
    if (!m_dos || !ConApodos())
        return;
    if (const auto dicho = m_dos->RutaOApodo(m_piezas.RomDir.enDisco + m_piezas.RomCorto.enDisco))
        m_piezas.RomDir.texto = host::lower(QString::fromLatin1(dicho->first(dicho->lastIndexOf('\\') + 1)));
}

void Lanzamiento::ReunePiezasDelEmulador()
{
    m_piezas.Par1 = host::lower(LeeCatalogo(M.Cat_PAR1, core::PrefijoParametro));
    m_piezas.Par2 = host::lower(LeeCatalogo(M.Cat_PAR2, core::PrefijoParametro));
    m_piezas.programa = ProgramaDe(EXE(), m_dos);
    M.TituloDOS = TituloDe(m_piezas.programa.ExeNombre.texto);
}

// All files are closed at the end, also one that an earlier failure left open under the number.
void Lanzamiento::LeeParRom(const QString &clave)
{
    constexpr int numero = 1;
    Intenta([&] { M.Ficheros.openForInput(numero, host::programFile(u"Zembro.rom"_s)); });
    QString texto;
    Intenta([&] { texto = M.Ficheros.rest(numero); });
    M.Ficheros.closeAll();
    host::TextSource fuente(texto);
    m_piezas.ParRom = core::ParametrosDe(fuente, clave);
}

void Lanzamiento::Tipo0()
{
    if (host::upper(m_piezas.RomCorto.texto).endsWith(u"ZIP"))
        Tipo0Zip();
    else
        Corre(Caso::Suelto);
}

void Lanzamiento::Tipo0Zip()
{
    const QString carpeta = RutaZBTMP();
    const FicheroDelZip fichero = m_obras.HazTemporal(carpeta) ? BuscaEnElZip(carpeta) : FicheroDelZip();
    if (fichero.elegido) {
        m_piezas.Desempaquetada = { DirectorioTemporal() + u"ZB-TMP/"_s + host::lower(*fichero.elegido),
            carpeta + u'/' + *fichero.elegido };
        Corre(Caso::Desempaquetado);
    } else if (fichero.ilegible) {
        m_obras.Aviso(M.Palabras.Zem_NoZip0, M.Palabras.Zem_NoZip1);
    } else {
        m_obras.Aviso(M.Msg_ZipSinRoms0, M.Msg_ZipSinRoms1);
    }
    m_obras.VaciaTemporal(carpeta);
}

Lanzamiento::FicheroDelZip Lanzamiento::BuscaEnElZip(const QString &carpeta)
{
    const Desempaquetado miembros = Desempaqueta(m_piezas.RomDir + m_piezas.RomCorto, carpeta);
    M.RutaTrabajo = carpeta + u'/';
    const QStringList enCarpeta = m_obras.FicherosEn(carpeta);
    M.DirActual = enCarpeta.value(enCarpeta.size() - 1);
    // A search that ran past the last name chose nothing.
    const QString ilegible = EligeFichero(miembros.ilegibles, Extensiones()).value_or(QString());
    return { EligeFichero(Candidatos(enCarpeta, miembros.ficheros), Extensiones()),
        miembros.nadaLegible || !ilegible.isEmpty() };
}

void Lanzamiento::Tipo2()
{
    const Ruta archivo = ArchivoZipDe(m_via, m_piezas);
    QString &nombre = m_via == Via::Nota ? m_piezas.RomCorto.texto : m_piezas.RomBase;
    const QString Carpeta = m_dos ? CarpetaEnDOS(nombre) : nombre;
    const QString ruta = m_obras.AbreCarpeta(m_piezas.programa.ExeDir.enDisco, Carpeta);
    Desempaquetado miembros;
    if (!ruta.isEmpty())
        miembros = Desempaqueta(archivo, ruta);
    if (miembros.nadaLegible)
        m_obras.AvisoPrevio(M.Palabras.Zem_NoZip0, M.Palabras.Zem_NoZip1);
    else if (host::exists(archivo.enDisco) && NadaSeDesempaquetaEn(Carpeta))
        m_obras.AvisoPrevio(M.Palabras.Zem_NoJunto0, M.Palabras.Zem_NoJunto1);
    Corre(Caso::Comprimido);
    m_obras.LimpiaCarpeta(miembros.ficheros);
}

// On a disk that can't be written to. What was unpacked there beforehand serves.
bool Lanzamiento::NadaSeDesempaquetaEn(const QString &Carpeta) const
{
    const QString &ExeDir = m_piezas.programa.ExeDir.enDisco;
    if (ExeDir.isEmpty() || Carpeta.isEmpty())
        return false;
    if (!host::exists(ExeDir + Carpeta))
        return host::liesInReadOnlyPlace(ExeDir + Carpeta);
    QByteArrayList entradas;
    return Intenta([&] { entradas = host::listInDiskOrder(ExeDir + Carpeta); }) && entradas.isEmpty()
        && host::liesInReadOnlyPlace(ExeDir + Carpeta + u"/x"_s);
}

// The name was short among the archives: beside the emulator it may be something else's. DOS gets the one
// that it is known by there; yields the disk's.
QString Lanzamiento::CarpetaEnDOS(QString &nombre) const
{
    const QByteArray corto = host::nameToDisk(host::upper(nombre));
    if (!SeAbreEnDOS(corto))
        return nombre;
    QByteArrayList entradas;
    Intenta([&] { entradas = host::listInDiskOrder(m_piezas.programa.ExeDir.enDisco); });
    const NombreNuevo nuevo = NombreNuevoEnDOS(entradas, corto);
    nombre = host::lower(host::nameFromDisk(nuevo.enDOS));
    return host::nameFromDisk(nuevo.enDisco);
}

void Lanzamiento::Tipo3()
{
    Corre(QuiereLaRuta() ? Caso::NeoRage : Caso::AutoComprimido);
}

// A row that the tables don't have leaves the piece empty.
QString Lanzamiento::LeeCatalogo(const Tabla &tabla, int prefijo) const
{
    QString valor;
    Intenta([&] { valor = core::Valor(tabla(m_seleccion.sistema, m_seleccion.fila), prefijo); });
    return valor;
}

QString Lanzamiento::LeeRuta(const Tabla &tabla) const
{
    return core::RutaDeValor(LeeCatalogo(tabla, core::PrefijoRuta));
}

QStringList Lanzamiento::Extensiones() const
{
    QStringList extensiones;
    Intenta([&] {
        for (int k = 0; k < M.Cat_EXT.columnas(); ++k)
            extensiones << M.Cat_EXT(m_seleccion.sistema, k);
    });
    return extensiones;
}

// Read by the disk's own spelling: a short name can't be looked up where the directory can't be listed.
Desempaquetado Lanzamiento::Desempaqueta(const Ruta &ArchivoZip, const QString &DirectorioDestino)
{
    M.ArchivoZip = ArchivoZip.texto;
    M.DirectorioDestino = DirectorioDestino;
    return m_obras.Desempaqueta(ArchivoZip.enDisco, M.DirectorioDestino);
}

void Lanzamiento::Corre(Caso caso)
{
    // From another directory a bare name would lead to another program.
    if (!Intenta([&] { host::changeDirectory(m_piezas.programa.ExeDir.enDisco); }))
        m_piezas.programa.ExeNombre.enDisco = m_piezas.programa.ExeCorto.enDisco;
    const LineaDeOrden orden = Compone(caso, m_via, m_piezas);
    if (core::NumeroDeAjuste(M.DebugMode) == 1)
        m_obras.EnsenaOrden(orden.EnTexto());
    m_obras.Arranca(orden, EXE(), LugaresDe(M, m_seleccion.sistema, m_seleccion.fila));
}

QString NombreDeSistema(const core::Modulo &M, int sistema)
{
    QString nombre;
    Intenta([&] { nombre = core::Valor(M.Cat_Nombre(sistema, 0), 1); });
    return nombre;
}

void Termina(Pantalla &pantalla, const QString &entrada)
{
    Intenta([&] { pantalla.InfoEnColorDelSistema(); });
    Intenta([&] { pantalla.SeleccionaEnLista1(entrada); });
    Intenta([&] { pantalla.EnfocaLista1(); });
    Intenta([&] {
        if (pantalla.EntradasLista1() == 0)
            pantalla.MuestraNingunaROM();
    });
}

// The launch itself.
class ObrasDeVerdad : public Obras {
public:
    ObrasDeVerdad(core::Modulo &modulo, Pantalla &pantalla, const Voz &voz)
        : M(modulo)
        , m_pantalla(pantalla)
        , m_cronica(voz)
    {
    }

    void Juego(const QString &sistema, const QString &emulador, const QString &entrada) override
    {
        m_cronica.Juego(sistema, emulador, entrada);
    }
    void BarreTemporal() override
    {
        Intenta([&] { BarreZBTMP(M); });
    }
    void RecogeTemporal() override { launch::RecogeTemporal(); }
    bool HazTemporal(const QString &carpeta) override
    {
        HazZBTMP(carpeta);
        return EsDirectorioPropio(carpeta);
    }
    void VaciaTemporal(const QString &carpeta) override { VaciaZBTMP(carpeta); }
    QString AbreCarpeta(const QString &ExeDir, const QString &Carpeta) override
    {
        return m_carpeta.emplace(ExeDir, Carpeta).Ruta();
    }
    void LimpiaCarpeta(const QStringList &desempaquetados) override { m_carpeta->Limpia(desempaquetados); }
    Desempaquetado Desempaqueta(const QString &ArchivoZip, const QString &destino) override
    {
        return Descomprimir(ArchivoZip, destino);
    }
    QStringList FicherosEn(const QString &carpeta) override
    {
        QStringList ficheros;
        Intenta([&] { ficheros = host::listPlainFiles(carpeta); });
        return ficheros;
    }
    void Aviso(const QString &titulo, const QString &texto) override
    {
        m_cronica.Fallo(texto);
        Intenta([&] { m_pantalla.Aviso(titulo, texto); });
    }
    void AvisoPrevio(const QString &titulo, const QString &texto) override
    {
        m_cronica.Aviso(texto);
        Intenta([&] { m_pantalla.Aviso(titulo, texto); });
    }
    void EnsenaOrden(const QString &texto) override { host::questions().tell(u"Zembrolix"_s, texto); }
    void Arranca(const LineaDeOrden &orden, const QString &exe, const Lugares &lugares) override;

    Cronica &LaCronica() { return m_cronica; }

private:
    void Corre(const QStringList &argumentos);
    template <typename Carpeta> void CorreEn(Carpeta &&carpeta);

    core::Modulo &M;
    Pantalla &m_pantalla;
    Cronica m_cronica;
    std::optional<CarpetaDeJuego> m_carpeta;
};

void ObrasDeVerdad::Arranca(const LineaDeOrden &orden, const QString &exe, const Lugares &lugares)
{
    const Encargo encargo = EncargoDe(orden, lugares);
    if (encargo.argumentos.isEmpty()) {
        m_cronica.Fallo(SinEjecutable + exe);
        const QChar unidad = core::UnidadQueFalta(exe);
        if (!unidad.isNull())
            Intenta([&] { m_pantalla.Aviso(M.Palabras.Zem_Discos, M.Palabras.Zem_SinUnidad.arg(unidad)); });
        return;
    }
    if (encargo.traba != Traba::Ninguna) {
        Aviso(TituloDe(encargo.traba, encargo.corredor, M.Palabras),
            TextoDe(encargo.traba, encargo.corredor, M.Palabras));
        return;
    }
    if (encargo.corredor == Corredor::Wine)
        CorreEn(CarpetaDeWine(encargo));
    else if (encargo.corredor == Corredor::DOSBox)
        CorreEn(CarpetaDOS(encargo));
    else
        Corre(encargo.argumentos);
}

template <typename Carpeta> void ObrasDeVerdad::CorreEn(Carpeta &&carpeta)
{
    if (carpeta.Argumentos().isEmpty()) {
        m_cronica.Fallo(u"Failed to write the files of a run into the temporary directory"_s);
        Intenta([&] { m_pantalla.Aviso(M.Palabras.Zem_NoTmp0, M.Palabras.Zem_NoTmp1); });
        return;
    }
    Corre(carpeta.Argumentos());
    for (const Pendiente &pendiente : carpeta.Recoge().pendientes)
        DiPendiente(pendiente, M.Palabras);
}

void ObrasDeVerdad::Corre(const QStringList &argumentos)
{
    m_cronica.Orden(argumentos, host::currentDirectory());
    const auto principio = std::chrono::steady_clock::now();
    try {
        const host::ProcessEnd final = EsperarEmulador(M, m_pantalla, argumentos);
        const std::chrono::duration<double> duracion = std::chrono::steady_clock::now() - principio;
        m_cronica.Final(final, duracion.count());
    } catch (const host::Failure &fallo) {
        m_cronica.Fallo(u"Failed to "_s + fallo.operation() + u": "_s + fallo.about());
    }
}

} // namespace

Partida Jugar(core::Modulo &M, Pantalla &pantalla, const Voz &voz)
{
    ObrasDeVerdad obras(M, pantalla, voz);
    Juega(M, pantalla, obras);
    return obras.LaCronica().LaPartida();
}

void Jugar(core::Modulo &M, Pantalla &pantalla)
{
    Jugar(M, pantalla, [](const QString &linea) { host::tellAside(host::nameToDisk(linea)); });
}

void Juega(core::Modulo &M, Pantalla &pantalla, Obras &obras)
{
    // The database lists no games, whatever its file may hold of a configuration.
    if (pantalla.TextoCombo2().isEmpty() || M.VerBaseDeDatos == 1)
        return;
    const int sistema = pantalla.Sistema();
    const int fila = pantalla.Emulador() + 1;
    // A row that the table doesn't have gives no type, and then nothing starts.
    M.TipoEmu.clear();
    Intenta([&] { M.TipoEmu = core::TipoDe(M.Cat_XDI(sistema, fila)); });
    const int tipo = core::Numero(M.TipoEmu);
    if (tipo < 5 && pantalla.EntradasLista1() == 0)
        return;

    pantalla.MuestraCargando();
    const QString entrada = pantalla.TextoLista1();
    obras.Juego(NombreDeSistema(M, sistema), pantalla.TextoCombo2(), entrada);
    obras.BarreTemporal();
    Lanzamiento lanzamiento(M, pantalla, obras, { sistema, fila, tipo });
    if (tipo >= 5 && tipo <= 8)
        lanzamiento.SoloExe();
    else
        lanzamiento.ConROM(entrada);
    obras.RecogeTemporal();
    Termina(pantalla, entrada);
}

} // namespace launch
