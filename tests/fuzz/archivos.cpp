// Archives: nothing is written outside the destination, and nothing half written stays.
#include "../launch/zipdeprueba.h"
#include "entrada.h"
#include "mundo.h"
#include "temas.h"

#include "host/encoding.h"
#include "host/questions.h"

#include "launch/destino.h"
#include "launch/vbunzbas.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <utility>

#include <unistd.h>

namespace pelusa {

namespace {

namespace fs = std::filesystem;

constexpr std::int64_t DeSobra = std::int64_t(1) << 40;
constexpr std::int64_t CasiNada = 100 * 1024 * 1024 + 300; // a few bytes more than have to be left
constexpr int MaxMiembros = 6;

// The user who answers what the input says.
class Respuestas : public host::Questions {
public:
    explicit Respuestas(Entrada &entrada)
        : m_contraseña(entrada.Texto())
        , m_siempre(entrada.Numero(3))
    {
    }
    QString askText(const QString &) override { return m_contraseña; }
    Answer askYesNoCancel(const QString &, const QString &) override
    {
        return std::array { Answer::Yes, Answer::No, Answer::Cancel }[std::size_t(m_siempre)];
    }
    bool askYesNo(const QString &, const QString &) override { return false; }
    void tell(const QString &, const QString &) override { }
    [[noreturn]] void endWithError(const QString &, const QString &texto) override
    {
        throw Incumplido("the end of the process: " + texto.toStdString());
    }
    [[noreturn]] void endProcess(int) override { throw Incumplido("the end of the process"); }

private:
    QString m_contraseña;
    int m_siempre;
};

std::string contenido(const fs::path &ruta)
{
    std::ifstream fichero(ruta, std::ios::binary);
    return { std::istreambuf_iterator<char>(fichero), {} };
}

// A destination with something in it, a neighbour that a link leads to, and the archive.
class Mesa {
public:
    Mesa(const QByteArray &zip)
        : m_raiz((Rincon() + "zip").toStdString())
    {
        fs::create_directories(Destino());
        fs::create_directories(m_raiz / "fuera");
        std::ofstream(m_raiz / "fuera" / "guardado") << "kept";
        std::ofstream(Destino() / "antes") << "old";
        fs::create_symlink("../fuera", Destino() / "enlace");
        fs::create_symlink("../fuera/guardado", Destino() / "enlace2");
        std::ofstream(Archivo(), std::ios::binary).write(zip.constData(), zip.size());
    }
    ~Mesa()
    {
        std::error_code ninguno;
        for (const fs::directory_entry &entrada : fs::recursive_directory_iterator(m_raiz, ninguno)) {
            if (entrada.is_directory() && !entrada.is_symlink())
                fs::permissions(entrada, fs::perms::owner_all, ninguno);
        }
        fs::remove_all(m_raiz, ninguno);
    }
    Mesa(const Mesa &) = delete;
    Mesa &operator=(const Mesa &) = delete;

    fs::path Destino() const { return m_raiz / "destino"; }
    fs::path Archivo() const { return m_raiz / "a.zip"; }

    void NadaFuera() const
    {
        std::set<std::string> nombres;
        for (const fs::directory_entry &entrada : fs::directory_iterator(m_raiz))
            nombres.insert(entrada.path().filename());
        Exige(nombres == std::set<std::string> { "a.zip", "destino", "fuera" }, "nothing is outside");
        const auto guardados =
            std::distance(fs::directory_iterator(m_raiz / "fuera"), fs::directory_iterator());
        Exige(guardados == 1 && contenido(m_raiz / "fuera" / "guardado") == "kept", "nothing is outside");
    }

    // A member may by chance be called as what is being written, its letters in another code.
    void SoloFicheros(const QByteArray &zip) const
    {
        const std::string aMedias = ".unpacking-" + std::to_string(getpid());
        for (const fs::directory_entry &entrada : fs::recursive_directory_iterator(Destino())) {
            const fs::path relativa = entrada.path().lexically_relative(Destino());
            const bool estaba = relativa == "enlace" || relativa == "enlace2";
            const fs::file_type clase = entrada.symlink_status().type();
            Exige(clase == fs::file_type::regular || clase == fs::file_type::directory
                    || (estaba && clase == fs::file_type::symlink),
                "only files and directories are made", QString::fromStdString(relativa));
            const std::string nombre = entrada.path().filename();
            Exige(
                !nombre.starts_with(aMedias) || zip.contains(aMedias.c_str()), "nothing stays half written");
        }
    }

private:
    fs::path m_raiz;
};

constexpr int Unix = 3; // as the format numbers it

QList<MiembroZip> miembros(Entrada &entrada)
{
    QList<MiembroZip> miembros;
    for (int i = 0; i < MaxMiembros && !entrada.Acabada(); ++i) {
        MiembroZip miembro;
        const int marcas = entrada.Numero(256);
        miembro.utf8 = (marcas & 1) != 0;
        miembro.comprimido = (marcas & 2) != 0;
        miembro.sumaFalsa = (marcas & 4) != 0;
        miembro.datosRotos = (marcas & 8) != 0;
        miembro.sistema = (marcas & 64) != 0 ? Unix : 0;
        miembro.atributos = quint32(entrada.Numero(256)) | quint32(entrada.Numero(256)) << 24;
        miembro.nombre = entrada.Campo();
        miembro.datos = entrada.Campo();
        miembros << miembro;
    }
    return miembros;
}

bool esLlano(const MiembroZip &miembro)
{
    const auto letra = [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); };
    return !miembro.nombre.isEmpty() && std::ranges::all_of(miembro.nombre, letra) && !miembro.sumaFalsa
        && !miembro.datosRotos && miembro.sistema != Unix && (miembro.atributos & 0x10) == 0;
}

// Members with plain names, nothing wrong with any, none twice: all lie there in their order.
void enteros(const Mesa &mesa, const QList<MiembroZip> &miembros, const launch::Desempaquetado &resultado)
{
    QByteArrayList nombres { "antes", "enlace", "enlace2" };
    for (const MiembroZip &miembro : miembros) {
        if (!esLlano(miembro) || nombres.contains(miembro.nombre))
            return;
        nombres << miembro.nombre;
    }
    Exige(resultado.ficheros.size() == miembros.size(), "every member is unpacked");
    for (qsizetype i = 0; i < miembros.size(); ++i) {
        ExigeIgual(resultado.ficheros[i], QString::fromLatin1(miembros[i].nombre), "members stay in order");
        const std::string datos = contenido(mesa.Destino() / miembros[i].nombre.toStdString());
        Exige(datos == miembros[i].datos.toStdString(), "a member is unpacked as it was",
            resultado.ficheros[i]);
    }
}

// What doesn't agree with its checksum leaves nothing.
void dañados(const Mesa &mesa, const QList<MiembroZip> &miembros)
{
    QByteArrayList nombres { "antes", "enlace", "enlace2" };
    for (const MiembroZip &miembro : miembros)
        nombres << miembro.nombre;
    for (MiembroZip miembro : miembros) {
        const bool falsa = std::exchange(miembro.sumaFalsa, false) && !miembro.datos.isEmpty();
        if (falsa && esLlano(miembro) && nombres.count(miembro.nombre) == 1) {
            Exige(!fs::exists(mesa.Destino() / miembro.nombre.toStdString()),
                "a damaged member leaves nothing", QString::fromLatin1(miembro.nombre));
        }
    }
}

} // namespace

void probarArchivos(Bytes bytes)
{
    Entrada entrada(bytes);
    const int clase = entrada.Numero(4); // as it comes, made, made with a password, made and no room
    Respuestas respuestas(entrada);
    const QByteArray clave = clase == 2 ? entrada.Campo() : QByteArray();
    const QList<MiembroZip> hechos = clase == 0 ? QList<MiembroZip>() : miembros(entrada);
    QByteArray zip = clase == 0 ? entrada.Resto() : Zip(hechos);
    if (!clave.isEmpty())
        zip = ZipCifrado(hechos, clave);
    const Mesa mesa(zip);
    host::setQuestions(&respuestas);
    launch::OlvidaSaltarContraseña();
    launch::PonEspacioLibre([clase](int) { return clase == 3 ? CasiNada : DeSobra; });
    const launch::Desempaquetado resultado =
        launch::Descomprimir(QString::fromStdString(mesa.Archivo()), QString::fromStdString(mesa.Destino()));
    launch::PonEspacioLibre({});
    host::setQuestions(nullptr);
    mesa.NadaFuera();
    mesa.SoloFicheros(zip);
    for (const QString &fichero : resultado.ficheros) {
        const fs::path ruta = mesa.Destino() / host::nameToDisk(fichero).toStdString();
        Exige(fs::symlink_status(ruta).type() == fs::file_type::regular, "what is told of is there", fichero);
    }
    if (clase == 1) {
        enteros(mesa, hechos, resultado);
        dañados(mesa, hechos);
    }
}

} // namespace pelusa
