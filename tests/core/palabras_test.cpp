// The words that a language file may lack.
#include "directoriodeprograma.h"

#include "core/palabras.h"
#include "core/textos.h"

#include <QSet>

using namespace Qt::StringLiterals;

TEST(Palabras, HaveATextOfTheirOwn)
{
    const core::Palabras palabras;
    for (const core::ClaveDePalabra &clave : core::ClavesDePalabras())
        EXPECT_FALSE((palabras.*clave.variable).isEmpty()) << clave.nombre.toUtf8().toStdString();
}

TEST(Palabras, TableHoldsEveryWordOnce)
{
    QSet<QString> nombres;
    QSet<const QString *> variables;
    const core::Palabras palabras;
    for (const core::ClaveDePalabra &clave : core::ClavesDePalabras()) {
        EXPECT_LE(clave.nombre.size(), core::AnchoClave);
        nombres.insert(clave.nombre.toString());
        variables.insert(&(palabras.*clave.variable));
    }
    EXPECT_EQ(size_t(nombres.size()), core::ClavesDePalabras().size());
    EXPECT_EQ(size_t(variables.size()), sizeof(core::Palabras) / sizeof(QString));
    EXPECT_EQ(size_t(variables.size()), core::ClavesDePalabras().size());
}

TEST(Palabras, EveryKeyOfALanguageFileReachesItsWord)
{
    for (const core::ClaveDePalabra &clave : core::ClavesDePalabras()) {
        core::Palabras palabras;
        core::LeePalabra(
            palabras, clave.nombre.toString().leftJustified(core::AnchoClave, u'.') + u"=\"new\""_s);
        EXPECT_EQ(palabras.*clave.variable, u"new"_s);
    }
}

TEST(Palabras, OtherLinesChangeNothing)
{
    core::Palabras palabras;
    const QString lineas[] = { u""_s, u"'Zem_Papelera0....=\"no\""_s, u"TXT_Grabar........=\"no\""_s,
        u"zem_papelera0.....=\"no\""_s };
    for (const QString &linea : lineas)
        core::LeePalabra(palabras, linea);
    EXPECT_EQ(palabras.Zem_Papelera0, core::Palabras().Zem_Papelera0);
}

TEST(Palabras, LineTooShortForATextFails)
{
    core::Palabras palabras;
    EXPECT_EQ(
        NumeroDeFallo([&] { core::LeePalabra(palabras, u"Zem_Papelera0....."_s); }), host::InvalidArgument);
}
