#include "directoriodeprograma.h"

#include "core/lineas.h"

using namespace Qt::StringLiterals;

namespace {

// The lines of a text as "line|end" pieces, with the end's characters spelled out.
QStringList enLineas(const QString &texto)
{
    QStringList piezas;
    for (const core::LineaConFin &linea : core::EnLineas(texto)) {
        QString fin = linea.fin.toString();
        fin.replace(u'\r', u"CR"_s).replace(u'\n', u"LF"_s);
        piezas += linea.linea.toString() + u'|' + fin;
    }
    return piezas;
}

QString copiada(const QString &texto)
{
    core::Copia copia;
    for (const core::LineaConFin &linea : core::EnLineas(texto))
        copia.Copiar(linea);
    return copia.Texto();
}

} // namespace

TEST(EnLineas, EachLineKeepsItsOwnEnd)
{
    EXPECT_EQ(enLineas(u"a\r\nb\nc"_s), (QStringList { u"a|CRLF"_s, u"b|LF"_s, u"c|"_s }));
    EXPECT_EQ(enLineas(u"a\r\n\r\n\n"_s), (QStringList { u"a|CRLF"_s, u"|CRLF"_s, u"|LF"_s }));
}

TEST(EnLineas, OnlyOneCarriageReturnBelongsToTheEnd)
{
    EXPECT_EQ(enLineas(u"a\r\r\nb\rc\r"_s), (QStringList { u"a\r|CRLF"_s, u"b\rc\r|"_s }));
    EXPECT_EQ(enLineas(u"\r"_s), (QStringList { u"\r|"_s }));
}

TEST(EnLineas, AnEmptyTextHasNoLine)
{
    EXPECT_EQ(enLineas(QString()), QStringList());
}

TEST(Copia, ComesOutCharacterByCharacter_WhenEveryLineIsCopied)
{
    for (const QString &texto :
        { u""_s, u"a"_s, u"a\r\n"_s, u"a\n\nb\r\n\r\nc"_s, u"\r\r\n\n\r"_s, u"  a \t\r\n"_s })
        EXPECT_EQ(copiada(texto), texto);
}

TEST(Copia, NewLinesEndInCarriageReturnAndLineFeed)
{
    core::Copia copia;
    copia.Nueva(u"a"_s);
    copia.Nueva(QString());
    copia.Nueva(u"b"_s);
    EXPECT_EQ(copia.Texto(), u"a\r\n\r\nb\r\n");
}

TEST(Copia, ALastLineWithoutEndGetsOne_WhenSomethingFollowsIt)
{
    core::Copia copia;
    copia.Copiar(core::EnLineas(u"a").front());
    EXPECT_EQ(copia.Texto(), u"a");
    copia.Nueva(u"b"_s);
    EXPECT_EQ(copia.Texto(), u"a\r\nb\r\n");
}
