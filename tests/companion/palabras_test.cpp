// The words of zembro.
#include "mesadepruebas.h"

#include "companion/palabras.h"
#include "core/textos.h"

#include <QSet>

using namespace Qt::StringLiterals;

TEST(Palabras, HaveATextOfTheirOwn)
{
    const companion::Palabras palabras;
    for (const companion::ClaveDePalabra &clave : companion::ClavesDePalabras())
        EXPECT_FALSE((palabras.*clave.variable).isEmpty()) << clave.nombre.toUtf8().toStdString();
}

TEST(Palabras, TableHoldsEveryWordOnce)
{
    QSet<QString> nombres;
    QSet<const QString *> variables;
    const companion::Palabras palabras;
    for (const companion::ClaveDePalabra &clave : companion::ClavesDePalabras()) {
        EXPECT_LE(clave.nombre.size(), core::AnchoClave);
        nombres.insert(clave.nombre.toString());
        variables.insert(&(palabras.*clave.variable));
    }
    EXPECT_EQ(size_t(nombres.size()), companion::ClavesDePalabras().size());
    EXPECT_EQ(size_t(variables.size()), sizeof(companion::Palabras) / sizeof(QString));
    EXPECT_EQ(size_t(variables.size()), companion::ClavesDePalabras().size());
}

TEST(Palabras, EveryKeyOfALanguageFileReachesItsWord)
{
    for (const companion::ClaveDePalabra &clave : companion::ClavesDePalabras()) {
        companion::Palabras palabras;
        companion::LeePalabra(
            palabras, clave.nombre.toString().leftJustified(core::AnchoClave, u'.') + u"=\"new\""_s);
        EXPECT_EQ(palabras.*clave.variable, u"new"_s);
    }
}

TEST(Palabras, OtherLinesChangeNothing)
{
    companion::Palabras palabras;
    const QString lineas[] = { u""_s, u"'Zbo_OpAyuda......=\"no\""_s, u"TXT_Grabar........=\"no\""_s,
        u"zbo_OpAyuda.......=\"no\""_s };
    for (const QString &linea : lineas)
        companion::LeePalabra(palabras, linea);
    EXPECT_EQ(palabras.Zbo_OpAyuda, companion::Palabras().Zbo_OpAyuda);
}

TEST(Palabras, LineTooShortForATextFails)
{
    companion::Palabras palabras;
    EXPECT_EQ(NumeroDeFallo([&] { companion::LeePalabra(palabras, u"Zbo_OpAyuda......."_s); }),
        host::InvalidArgument);
}
