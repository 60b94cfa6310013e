// Texts as fields of a record: what the field reader gives back, and what it can't.
#include "core/campos.h"

#include "host/textsource.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using core::CampoEscrito;

namespace {

// A record's middle field, read back with its neighbours.
bool vuelve(const QString &campo, const QString &texto)
{
    host::TextSource fuente(u"one,"_s + campo + u",three\r\nfour\r\n"_s);
    QStringList campos;
    while (!fuente.atEnd())
        campos << fuente.readField();
    return campos == QStringList { u"one"_s, texto, u"three"_s, u"four"_s };
}

} // namespace

TEST(Campo, StandsBare_WhereItComesBackSo)
{
    for (const QString &texto : { u"Amiga"_s, QString(), u"Amiga \"AGA\""_s, u"it's"_s, u"'"_s, u"[a]"_s,
             u"a  b"_s, u"\ta\t"_s, u"ñ€ゼ"_s })
        EXPECT_EQ(CampoEscrito(texto), texto) << texto.toStdString();
}

TEST(Campo, StandsInDoubleQuotes_WhereItComesBackOnlySo)
{
    for (const QString &texto : { u"a, b"_s, u","_s, u" a"_s, u"a "_s, u"  "_s, u", '"_s }) {
        EXPECT_EQ(CampoEscrito(texto), u'"' + texto + u'"') << texto.toStdString();
        EXPECT_TRUE(vuelve(u'"' + texto + u'"', texto)) << texto.toStdString();
    }
    EXPECT_EQ(CampoEscrito(u"a"_s, core::Comillas::Siempre), u"\"a\""_s);
}

TEST(Campo, CannotBeWritten_WhereItWouldNotComeBack)
{
    for (const QString &texto : { u"Amiga \"AGA\", CD32"_s, u"\"Amiga"_s, u"\"\""_s, u"\""_s, u" \"a"_s,
             u"a\" "_s, u"a\nb"_s, u"a\rb"_s, u"a\r"_s, QString(QChar(0xD800)) }) {
        EXPECT_EQ(CampoEscrito(texto), std::nullopt) << texto.toStdString();
        EXPECT_FALSE(core::CabeEnUnCampo(texto)) << texto.toStdString();
    }
    EXPECT_EQ(CampoEscrito(u"a \"b\""_s, core::Comillas::Siempre), std::nullopt);
}

// Every text of up to five of the characters that mean something to the reader.
TEST(Campo, ComesBackAsItWas_OrCannotBeWritten)
{
    const QString signos = u"a \",'\n\r["_s;
    QStringList textos { QString() };
    int escritos = 0;
    for (qsizetype desde = 0, largo = 0; largo < 5; ++largo) {
        const qsizetype hasta = textos.size();
        for (; desde < hasta; ++desde) {
            for (const QChar signo : signos)
                textos << textos[desde] + signo;
        }
    }
    for (const QString &texto : textos) {
        const std::optional<QString> campo = CampoEscrito(texto);
        escritos += campo.has_value();
        const bool puede = !texto.contains(u'\n') && !texto.contains(u'\r')
            && (vuelve(texto, texto) || vuelve(u'"' + texto + u'"', texto));
        ASSERT_EQ(campo.has_value(), puede) << texto.toUtf8().toPercentEncoding().constData();
        if (campo) {
            ASSERT_TRUE(vuelve(*campo, texto)) << texto.toUtf8().toPercentEncoding().constData();
        }
    }
    EXPECT_GT(escritos, 3000);
    EXPECT_GT(textos.size(), escritos + 3000);
}
