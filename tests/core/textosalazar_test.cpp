// Random texts against models of their own: lines of languages and settings, keys of new notes, parameters.
// The models count whole characters.
#include "azar.h"
#include "directoriodeprograma.h"

#include "core/ajustes.h"
#include "core/notas.h"
#include "core/parrom.h"
#include "core/romelegida.h"
#include "core/textos.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int Veces = 2000;

// Now and then one of a hundred thousand letters.
Texto alAzar(Dado &dado, int maximo)
{
    static const Texto letras[] = { U"abñ.1 =", U"a𐐨𐐀😀𝔊=", U"אב ", U"字", Texto(1, U'\0') + U"a=" };
    const Texto &clase = letras[size_t(dado.hasta(int(std::size(letras)) - 1))];
    const bool sinFin = dado.hasta(199) == 0;
    return dado.palabra(clase, sinFin ? 100'000 : 0, sinFin ? 100'000 : maximo);
}

// None where reading fails for want of a text.
std::optional<Texto> leido(const std::function<QString()> &lee)
{
    std::optional<Texto> texto;
    const int fallo = NumeroDeFallo([&] { texto = lee().toStdU32String(); });
    EXPECT_TRUE(fallo == 0 || fallo == host::InvalidArgument);
    return texto;
}

struct Ficha {
    Texto clave;
    Texto sistema;
    Texto emulador;
    Texto parametros;
};

bool deLaMisma(const Ficha &una, const Ficha &otra)
{
    return mayus(una.clave) == mayus(otra.clave) && mayus(una.sistema) == mayus(otra.sistema)
        && mayus(una.emulador) == mayus(otra.emulador);
}

Ficha fichaAlAzar(Dado &dado)
{
    const Texto letras = U"a𐐨𐐀😀";
    return { dado.palabra(letras, 1, 2), dado.palabra(letras, 1, 1), dado.palabra(letras, 1, 1),
        U"-" + dado.palabra(U"𝔊😀a字א", 0, 5) };
}

core::Parametros parametros(const Ficha &ficha)
{
    return { texto(ficha.clave), texto(ficha.sistema), texto(ficha.emulador), texto(ficha.parametros) };
}

// Of the first record of this key, system and emulator.
Texto escritos(const std::vector<Ficha> &fichas, const Ficha &buscada)
{
    const auto hallada =
        std::ranges::find_if(fichas, [&](const Ficha &una) { return deLaMisma(una, buscada); });
    return hallada == fichas.end() ? Texto() : hallada->parametros;
}

QString fichero(const std::vector<Ficha> &fichas)
{
    QString todo = u"Sis\r\n'\r\n[\r\nParametros especificos\r\n"_s;
    for (const Ficha &una : fichas) {
        const core::Parametros campos = parametros(una);
        todo +=
            campos.clave + u',' + campos.sistema + u',' + campos.emulador + u',' + campos.texto + u"\r\n"_s;
    }
    return todo + u"'\r\nfin\r\nfin,\"fin\"\r\n"_s;
}

} // namespace

TEST(TextosAlAzar, LineOfALanguageLosesTwentyCharactersAndTheLast)
{
    Dado dado(1);
    int leidos = 0;
    for (int vez = 0; vez < Veces; ++vez) {
        const Texto linea = alAzar(dado, 40);
        std::optional<Texto> modelo;
        if (linea.size() > 20)
            modelo = linea.substr(20, linea.size() - 21);
        ASSERT_TRUE(leido([&] { return core::TextoDeLinea(texto(linea)); }) == modelo) << vez;
        leidos += modelo.has_value();
    }
    EXPECT_GT(leidos, Veces / 4);
}

TEST(TextosAlAzar, SettingStandsOneCharacterBehindTheLastSignOfEquality)
{
    Dado dado(2);
    int leidos = 0;
    for (int vez = 0; vez < Veces; ++vez) {
        const Texto linea = alAzar(dado, 12);
        const size_t igual = linea.rfind(U'=');
        const Texto detras = igual == Texto::npos ? linea : linea.substr(igual + 1);
        std::optional<Texto> modelo;
        if (!detras.empty())
            modelo = detras.substr(1);
        ASSERT_TRUE(leido([&] { return core::ValorDeAjuste(texto(linea)); }) == modelo) << vez;
        leidos += modelo.has_value();
    }
    EXPECT_GT(leidos, Veces / 4);
}

TEST(TextosAlAzar, KeyOfANewNoteIsInUpperCase_OfAZipWithoutFourCharacters)
{
    Dado dado(3);
    for (int vez = 0; vez < Veces; ++vez) {
        const Texto entrada = alAzar(dado, 8);
        const int tipo = dado.hasta(8);
        const bool zip = tipo == 2 || tipo == 3 || tipo == 7 || tipo == 8;
        Texto modelo = mayus(entrada);
        if (zip)
            modelo.resize(modelo.size() - std::min(modelo.size(), size_t(4)));
        ASSERT_TRUE(core::ClaveNueva(tipo, texto(entrada)).toStdU32String() == modelo) << vez;
    }
}

TEST(TextosAlAzar, ParametersAreFoundByKeySystemAndEmulatorWhateverTheirLetters)
{
    Dado dado(4);
    int hallados = 0;
    for (int vez = 0; vez < 300; ++vez) {
        std::vector<Ficha> fichas;
        for (int i = dado.hasta(6); i > 0; --i)
            fichas.push_back(fichaAlAzar(dado));
        const Ficha nueva = fichaAlAzar(dado);
        QString contenido = fichero(fichas);
        if (dado.hasta(1) == 0) {
            contenido = core::ConParametrosNuevos(contenido, parametros(nueva));
            fichas.insert(fichas.begin(), nueva);
        } else {
            contenido = core::ConParametrosCambiados(contenido, parametros(nueva));
            for (Ficha &una : fichas) {
                if (mayus(una.clave) == mayus(nueva.clave))
                    una = nueva;
            }
        }
        for (int busca = 0; busca < 10; ++busca) {
            const Ficha una = busca == 0 ? nueva : fichaAlAzar(dado);
            const core::Parametros campos = parametros(una);
            host::TextSource fuente(contenido);
            const Texto hallado =
                core::ParametrosEscritos(fuente, campos.clave, campos.sistema, campos.emulador)
                    .toStdU32String();
            ASSERT_TRUE(hallado == escritos(fichas, una)) << vez << contenido.toStdString();
            hallados += !hallado.empty();
        }
    }
    EXPECT_GT(hallados, 100);
}
