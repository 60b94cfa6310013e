// Completions and the man page: those that are delivered are what the table of commands gives.
#include "mesadepruebas.h"

#include "companion/completado.h"
#include "companion/ordenes.h"

#include <QFile>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

QString entregado(const QString &nombre)
{
    QFile fichero(QStringLiteral(PROJECT_SOURCES "/packaging/") + nombre);
    EXPECT_TRUE(fichero.open(QIODevice::ReadOnly)) << nombre.toStdString();
    return QString::fromUtf8(fichero.readAll());
}

// What bash offers behind these words, the last one begun.
QStringList ofrecido(const QStringList &palabras)
{
    QProcess bash;
    bash.setProgram(u"bash"_s);
    bash.setArguments(
        QStringList { u"-c"_s,
            companion::ParaBash()
                + u"COMP_WORDS=(\"$@\"); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _zembro; printf '%s\\n' \"${COMPREPLY[@]}\""_s,
            u"bash"_s }
        + palabras);
    bash.start();
    EXPECT_TRUE(bash.waitForFinished());
    EXPECT_EQ(bash.readAllStandardError(), "");
    return QString::fromUtf8(bash.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

// packaging/zembro_page.sh BUILD makes them anew.
TEST(Completado, WhatIsDeliveredIsUpToDate)
{
    EXPECT_EQ(entregado(u"completions/zembro.bash"_s), companion::ParaBash());
    EXPECT_EQ(entregado(u"completions/_zembro"_s), companion::ParaZsh());
    EXPECT_EQ(entregado(u"completions/zembro.fish"_s), companion::ParaFish());
    EXPECT_EQ(entregado(u"zembro.1"_s), companion::PaginaMan());
}

TEST(Completado, BashOffersCommandsAndTheirOptions)
{
    EXPECT_EQ(ofrecido({ u"zembro"_s, u"ch"_s }), QStringList({ u"check"_s }));
    EXPECT_EQ(ofrecido({ u"zembro"_s, u"check"_s, u"--m"_s }), QStringList({ u"--mend"_s }));
    EXPECT_EQ(ofrecido({ u"zembro"_s, u"list"_s, u"--m"_s }), QStringList());
    EXPECT_EQ(ofrecido({ u"zembro"_s, u"--directory"_s, u"check"_s, u"why"_s, u"--js"_s }),
        QStringList({ u"--json"_s }));
    EXPECT_TRUE(ofrecido({ u"zembro"_s, u"list"_s, u"--directory"_s, u"/us"_s }).contains(u"/usr"_s));
    EXPECT_TRUE(ofrecido({ u"zembro"_s, u"describe"_s, u"x"_s, u"--from"_s, u"/etc/pass"_s })
                    .contains(u"/etc/passwd"_s));
    EXPECT_GE(ofrecido({ u"zembro"_s, QString() }).size(), qsizetype(companion::Ordenes().size()));
}

TEST(Completado, EveryCommandAndOptionIsInEachOfThem)
{
    for (const QString &texto :
        { companion::ParaBash(), companion::ParaZsh(), companion::ParaFish(), companion::PaginaMan() }) {
        for (const companion::Orden *orden : companion::Ordenes()) {
            EXPECT_TRUE(texto.contains(orden->nombre)) << orden->nombre.toStdString();
            for (const companion::Opcion &opcion : orden->opciones)
                EXPECT_TRUE(texto.contains(opcion.nombre)) << opcion.nombre.toStdString();
        }
    }
}

TEST(Completado, TheManPageIsOneThatManTakes)
{
    QProcess groff;
    groff.start(u"groff"_s, { u"-man"_s, u"-Tascii"_s, u"-ww"_s, u"-"_s });
    if (!groff.waitForStarted())
        GTEST_SKIP() << "there is no groff here";
    groff.write(companion::PaginaMan().toUtf8());
    groff.closeWriteChannel();
    ASSERT_TRUE(groff.waitForFinished());
    EXPECT_EQ(groff.readAllStandardError(), "");
}
