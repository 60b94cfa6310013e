// Every input that is kept, given to its topic: the seeds of the fuzzers, and whatever they have found.
#include "entrada.h"
#include "tema.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

struct Guardada {
    const pelusa::Tema *tema;
    QString ruta;
};

QStringList rutas(const QString &clase, const pelusa::Tema &tema)
{
    const QDir directorio(QStringLiteral(INPUTS) + u'/' + clase + u'/' + QLatin1String(tema.nombre));
    QStringList rutas;
    for (const QString &nombre : directorio.entryList(QDir::Files, QDir::Name))
        rutas << directorio.filePath(nombre);
    return rutas;
}

class Guardadas : public testing::Test {
public:
    explicit Guardadas(Guardada guardada)
        : m_guardada(std::move(guardada))
    {
    }

    void TestBody() override
    {
        QFile fichero(m_guardada.ruta);
        ASSERT_TRUE(fichero.open(QIODevice::ReadOnly));
        const QByteArray bytes = fichero.readAll();
        try {
            m_guardada.tema->probar(
                { reinterpret_cast<const std::uint8_t *>(bytes.constData()), std::size_t(bytes.size()) });
        } catch (const std::exception &fallo) {
            ADD_FAILURE() << m_guardada.ruta.toStdString() << '\n' << fallo.what();
        }
    }

private:
    Guardada m_guardada;
};

void apunta(const pelusa::Tema &tema, const QString &ruta)
{
    const std::string nombre = ruta.section(u'/', -3).toStdString();
    testing::RegisterTest("Guardadas", nombre.c_str(), nullptr, nullptr, __FILE__, __LINE__,
        [guardada = Guardada { &tema, ruta }]() -> testing::Test * { return new Guardadas(guardada); });
}

} // namespace

TEST(Temas, EachHasSeeds)
{
    for (const pelusa::Tema &tema : pelusa::Temas())
        EXPECT_FALSE(rutas(u"seeds"_s, tema).isEmpty()) << tema.nombre;
}

TEST(Temas, EachDirectoryOfInputsIsThatOfATopic)
{
    QStringList nombres;
    for (const pelusa::Tema &tema : pelusa::Temas())
        nombres << QLatin1String(tema.nombre);
    for (const QString &clase : { u"seeds"_s, u"found"_s }) {
        const QDir directorio(QStringLiteral(INPUTS) + u'/' + clase);
        for (const QString &nombre : directorio.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            EXPECT_TRUE(nombres.contains(nombre)) << nombre.toStdString();
    }
}

TEST(Temas, EachTakesNothingAtAll)
{
    for (const pelusa::Tema &tema : pelusa::Temas())
        EXPECT_NO_THROW(tema.probar({})) << tema.nombre;
}

TEST(Exige, SaysWhatDoesNotHoldAndForWhichTexts)
{
    EXPECT_NO_THROW(pelusa::Exige(true, "it is so"));
    EXPECT_NO_THROW(pelusa::ExigeIgual({}, u""_s, "both are equal"));
    try {
        pelusa::ExigeIgual(u"a\n"_s, {}, "both are equal");
        ADD_FAILURE() << "nothing thrown";
    } catch (const pelusa::Incumplido &incumplido) {
        EXPECT_STREQ(incumplido.what(), "it doesn't hold that both are equal\n  \"a%0A\"\n  \"\"");
    }
}

TEST(Entrada, IsTakenApartIntoNumbersAndFields)
{
    const QByteArray bytes("2two\0\xF1\0"
                           "5rest\0rest",
        17);
    pelusa::Entrada entrada(
        { reinterpret_cast<const std::uint8_t *>(bytes.constData()), std::size_t(bytes.size()) });
    EXPECT_EQ(entrada.Numero(3), 2);
    EXPECT_EQ(entrada.Campo(), "two");
    EXPECT_EQ(entrada.Texto(), u"\u00F1"_s);
    EXPECT_EQ(entrada.UnoDe({ u"0"_s, u"1"_s }), u"rest"_s); // 5 counts on from 0: the third is its own
    EXPECT_EQ(entrada.Resto(), "rest");
    EXPECT_TRUE(entrada.Acabada());
    EXPECT_EQ(entrada.Numero(3), 0);
    EXPECT_EQ(entrada.Campo(), "");
}

int main(int argc, char **argv)
{
    testing::InitGoogleMock(&argc, argv);
    const QCoreApplication application(argc, argv);
    for (const pelusa::Tema &tema : pelusa::Temas()) {
        for (const QString &clase : { u"seeds"_s, u"found"_s }) {
            for (const QString &ruta : rutas(clase, tema))
                apunta(tema, ruta);
        }
    }
    return RUN_ALL_TESTS();
}
