// Random worlds against a model of their own: which entries a directory and its notes list, what is said of
// each, and where its capture lies. The model counts whole characters and walks as plainly as it can.
#include "azar.h"
#include "directoriodeprograma.h"

#include "core/info.h"
#include "core/lista.h"

#include "host/lengths.h"
#include "host/paths.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Fichero {
    Texto nombre;
    int kilobytes; // none for a directory
};

struct Nota {
    Texto clave;
    Texto texto;
};

struct Mundo {
    int tipo = 0;
    std::vector<Fichero> ficheros; // in the order of their upper-cased names, each of which stands once
    std::vector<Nota> notas;
    std::vector<Texto> extensiones;
};

enum class Clase { Corriente, MasAllaDelPlanoBasico, DescripcionesIguales, LineasSinFin };

void PrintTo(Clase clase, std::ostream *salida)
{
    static constexpr const char *nombres[] = { "plain", "beyond the basic plane", "equal descriptions",
        "endless lines" };
    *salida << nombres[size_t(clase)];
}

bool acaba(const Texto &texto, const Texto &final)
{
    return texto.ends_with(final);
}

bool deDirectorios(int tipo)
{
    return tipo == 1 || tipo == 6;
}

bool deFicheros(int tipo)
{
    return tipo == 0 || tipo == 5;
}

// What the list shows, and how many kilobytes that is.
struct Listado {
    std::vector<Texto> entradas;
    int kilobytes = 0;
};

int vecesQueEncaja(const Mundo &mundo, const Texto &nombre)
{
    int veces = 0;
    for (const Texto &extension : mundo.extensiones)
        veces += extension.size() <= 3 && !extension.empty() && acaba(mayus(nombre), extension);
    return veces;
}

Listado listado(const Mundo &mundo)
{
    Listado lista;
    for (const Fichero &fichero : mundo.ficheros) {
        const Texto nombre = mayus(fichero.nombre);
        const bool zips = !deDirectorios(mundo.tipo) && !deFicheros(mundo.tipo);
        const auto nota = std::ranges::find_if(mundo.notas,
            [&](const Nota &una) { return mayus(una.clave) + (zips ? U".ZIP" : U"") == nombre; });
        const bool hay = nota != mundo.notas.end();
        int veces = 1;
        if (mundo.tipo == 4 || (zips && !hay && !acaba(nombre, U"ZIP")))
            veces = 0;
        else if (deFicheros(mundo.tipo))
            veces = vecesQueEncaja(mundo, fichero.nombre);
        const Texto sinNota = deDirectorios(mundo.tipo) ? nombre : fichero.nombre;
        for (int vez = 0; vez < veces; ++vez) {
            lista.entradas.push_back(hay ? nota->texto : sinNota);
            lista.kilobytes += fichero.kilobytes;
        }
    }
    return lista;
}

std::optional<int> kilobytesDe(const Mundo &mundo, const Texto &nombre)
{
    for (const Fichero &fichero : mundo.ficheros) {
        if (mayus(fichero.nombre) == mayus(nombre))
            return fichero.kilobytes;
    }
    return std::nullopt;
}

Texto enCifras(int numero)
{
    return numero == 0 ? Texto() : Texto(1, U'0' + char32_t(numero));
}

// The line of one hit; none where its file is gone, or where a size of nothing is read as a number.
std::optional<Texto> linea(const Mundo &mundo, const Texto &nombre, bool conNota)
{
    if (mundo.tipo == 4)
        return Texto();
    if (deDirectorios(mundo.tipo))
        return mayus(nombre) + U" [DIR]";
    const bool sueltos = deFicheros(mundo.tipo);
    const std::optional<int> tamaño = kilobytesDe(mundo, nombre + (!sueltos && conNota ? U".ZIP" : U""));
    if (!tamaño || (!sueltos && conNota && *tamaño == 0))
        return std::nullopt;
    if (sueltos)
        return nombre + U' ' + enCifras(*tamaño) + U"Kb "
            + (acaba(mayus(nombre), U"ZIP") ? U" [ZIP]" : U" [NOR]");
    return mayus(nombre) + (conNota ? U".ZIP  " : U" ") + enCifras(*tamaño) + U"Kb [ZIP]";
}

std::optional<Texto> captura(const Mundo &mundo, const Texto &nombre, bool conNota)
{
    if (mundo.tipo == 4)
        return Texto();
    if (deDirectorios(mundo.tipo) || (conNota && !deFicheros(mundo.tipo)))
        return nombre + U".GIF";
    const size_t punto = nombre.find(U'.');
    return punto == Texto::npos ? std::nullopt : std::optional(nombre.substr(0, punto) + U".GIF");
}

// What is known of an entry: of every note with this text in its turn, up to the first that fails.
struct Sabido {
    std::vector<Texto> lineas;
    std::vector<Texto> capturas;
};

Sabido sabido(const Mundo &mundo, const Texto &entrada)
{
    std::vector<Texto> claves;
    for (const Nota &nota : mundo.notas) {
        if (nota.texto == entrada)
            claves.push_back(mayus(nota.clave));
    }
    const bool conNota = !claves.empty();
    if (!conNota)
        claves.push_back(entrada);
    Sabido todo;
    for (const Texto &clave : claves) {
        const std::optional<Texto> una = linea(mundo, clave, conNota);
        if (!una)
            break;
        todo.lineas.push_back(*una);
    }
    for (const Texto &clave : claves) {
        const std::optional<Texto> una = captura(mundo, clave, conNota);
        if (!una)
            break;
        todo.capturas.push_back(*una);
    }
    return todo;
}

const Texto &letrasDe(Clase clase)
{
    static const Texto corrientes = U"abBcñÑ1";
    static const Texto lejanas = U"a𐐨𐐀😀𝔊";
    return clase == Clase::MasAllaDelPlanoBasico ? lejanas : corrientes;
}

// A million letters of one kind or, with blanks between, of several; a NUL is a letter too.
const Texto &sinFin(int clase)
{
    static const Texto trozos[] = { U"x", U"𐐨", U"אב ", U"字", Texto(1, U'\0') };
    static Texto todos[std::size(trozos)];
    const size_t cual = size_t(clase) % std::size(trozos);
    while (todos[cual].size() < 1'000'000)
        todos[cual] += trozos[cual];
    return todos[cual];
}

Texto descripcion(Dado &dado, Clase clase, int mundo, int cual)
{
    if (clase == Clase::DescripcionesIguales)
        return U"Igual";
    if (clase == Clase::LineasSinFin && cual == 1)
        return sinFin(mundo);
    return dado.palabra(letrasDe(clase), 1, 3);
}

Mundo mundoAlAzar(Dado &dado, Clase clase, int cual)
{
    const Texto &letras = letrasDe(clase);
    const std::vector<Texto> finales { U".zip", U".ZIP", U".b", U".😀a", U"ZIP", U"", U".ñ.b" };
    Mundo mundo;
    mundo.tipo = dado.hasta(8);
    for (int i = dado.hasta(8); i > 0; --i) {
        const Texto nombre =
            dado.palabra(letras, 1, 3) + finales[size_t(dado.hasta(int(finales.size()) - 1))];
        if (!kilobytesDe(mundo, nombre))
            mundo.ficheros.push_back({ nombre, deDirectorios(mundo.tipo) ? 0 : dado.hasta(9) });
    }
    std::ranges::sort(mundo.ficheros, {}, [](const Fichero &fichero) { return mayus(fichero.nombre); });
    for (int i = dado.hasta(8); i > 0; --i) {
        Texto clave = dado.palabra(letras, 1, 4);
        if (!mundo.ficheros.empty() && dado.hasta(3) > 0)
            clave = mundo.ficheros[size_t(dado.hasta(int(mundo.ficheros.size()) - 1))].nombre;
        if (dado.hasta(1) == 0 && acaba(mayus(clave), U".ZIP") && clave.size() > 4)
            clave.resize(clave.size() - 4);
        mundo.notas.push_back({ clave, descripcion(dado, clase, cual, i) });
    }
    if (clase == Clase::LineasSinFin && cual == 1)
        mundo.notas.push_back({ Texto(1'000'000, U'k'), U"x" });
    for (int i = dado.hasta(4); i > 0; --i) {
        Texto extension = dado.palabra(U"bZIP😀añ", 1, 4);
        if (!mundo.ficheros.empty() && dado.hasta(1) == 0) {
            const Texto &nombre = mundo.ficheros[size_t(dado.hasta(int(mundo.ficheros.size()) - 1))].nombre;
            extension = nombre.substr(nombre.size() - std::min(nombre.size(), size_t(1 + dado.hasta(3))));
        }
        mundo.extensiones.push_back(mayus(extension));
    }
    return mundo;
}

class Mundos : public DirectorioDePrograma, public testing::WithParamInterface<Clase> {
protected:
    // Lays the world on the disk and reads it as the main screen does.
    core::Recuento Lee(const Mundo &mundo, const QString &directorio)
    {
        PonDirectorio(directorio);
        for (const Fichero &fichero : mundo.ficheros) {
            if (deDirectorios(mundo.tipo))
                PonDirectorio(directorio + texto(fichero.nombre));
            else
                Pon(directorio + texto(fichero.nombre), QByteArray(fichero.kilobytes * 1024, 'x'));
        }
        QByteArray notas = "Sis\r\n";
        for (const Nota &nota : mundo.notas)
            notas += texto(nota.clave).toUtf8() + ",\"" + texto(nota.texto).toUtf8() + "\"\r\n";
        Pon(u"Zembro.rom"_s, notas + "'\r\n");
        M.Nota_Clave.vacia();
        M.Nota_Texto.vacia();
        M.Cat_EXT.vacia();
        for (size_t i = 0; i < mundo.extensiones.size(); ++i)
            M.Cat_EXT(0, int(i)) = u"*."_s + texto(mundo.extensiones[i]);
        const int entradas = core::ExploraDirectorio(M, mundo.tipo, Ruta(directorio));
        const int leidas = core::CargaNotasEnMayusculas(M, u"Sis"_s);
        const host::LengthsIn largos(Ruta(directorio));
        return core::Empareja(M, mundo.tipo, entradas, leidas, core::CargaExtensiones(M, 0),
            [&largos](const QStringList &nombres) { return largos.ofAll(nombres); });
    }

    // As `sabido`, of the program.
    Sabido Sabe(const Mundo &mundo, const QString &directorio, const Texto &entrada)
    {
        Sabido todo;
        const QString buscada = texto(entrada);
        const host::LengthsIn largo(Ruta(directorio));
        NumeroDeFallo([&] {
            core::BuscaROM(M, buscada, [&](const core::FichaDeROM &ficha) {
                const std::optional<QString> fichero = core::FicheroMedido(mundo.tipo, ficha);
                const qint64 bytes = fichero ? largo(Ruta(directorio) + *fichero) : 0;
                todo.lineas.push_back(core::LineaDeInfo(mundo.tipo, ficha, bytes).toStdU32String());
            });
        });
        NumeroDeFallo([&] {
            core::BuscaROM(M, buscada, [&](const core::FichaDeROM &ficha) {
                todo.capturas.push_back(core::RutaDeCaptura(mundo.tipo, QString(), ficha).toStdU32String());
            });
        });
        return todo;
    }
};

} // namespace

TEST_P(Mundos, AreListedAndToldAsTheModelDoes)
{
    const Clase clase = GetParam();
    const int mundos = clase == Clase::LineasSinFin ? 5 : 150;
    int listadas = 0;
    for (int semilla = 1; semilla <= mundos; ++semilla) {
        SCOPED_TRACE("seed " + std::to_string(semilla));
        Dado dado(unsigned(semilla) * 7919);
        const Mundo mundo = mundoAlAzar(dado, clase, semilla);
        const QString directorio = u"roms%1/"_s.arg(semilla);
        const core::Recuento recuento = Lee(mundo, directorio);
        const Listado modelo = listado(mundo);
        QStringList entradas;
        for (const Texto &entrada : modelo.entradas)
            entradas += texto(entrada);
        ASSERT_TRUE(recuento.entradas == entradas);
        ASSERT_EQ(recuento.bytes, modelo.kilobytes * 1024.0);
        for (const Texto &entrada : modelo.entradas) {
            const Sabido esperado = sabido(mundo, entrada);
            const Sabido hallado = Sabe(mundo, directorio, entrada);
            ASSERT_TRUE(hallado.lineas == esperado.lineas);
            const host::LengthsIn largos(Ruta(directorio));
            ASSERT_TRUE(core::UltimaLineaDeInfo(
                            M, texto(entrada), mundo.tipo, Ruta(directorio),
                            [&](const QStringList &nombres) { return largos.ofAll(nombres); },
                            [&](const QString &ruta) { return largos.lists(ruta); })
                == (esperado.lineas.empty() ? QString() : texto(esperado.lineas.back())));
            ASSERT_TRUE(hallado.capturas == esperado.capturas);
        }
        listadas += int(entradas.size());
    }
    EXPECT_GT(listadas, mundos); // else nothing was tried
}

INSTANTIATE_TEST_SUITE_P(Clases, Mundos,
    testing::Values(
        Clase::Corriente, Clase::MasAllaDelPlanoBasico, Clase::DescripcionesIguales, Clase::LineasSinFin));
