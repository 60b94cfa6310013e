// A destination that can't be opened or gone on with, and what a killed run left in one.
#include "launch/destino.h"

#include "launch/vbunzbas.h"

#include "escenario.h"
#include "zipdeprueba.h"

#include <QDir>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using launch::Destino;
using launch::FicheroNuevo;
using testing::ElementsAre;

namespace {

class DestinoTest : public DiskTest {
protected:
    DestinoTest() { makeDirectory("to"); }

    host::Descriptor abre(const QByteArray &nombre) const
    {
        return host::Descriptor(open(place(nombre).constData(), O_RDONLY | O_DIRECTORY));
    }
    static QByteArray provisional(pid_t proceso, int numero)
    {
        return ".unpacking-" + QByteArray::number(proceso) + '-' + QByteArray::number(numero);
    }
    QByteArrayList en(const QByteArray &nombre) const
    {
        QByteArrayList encontrado;
        for (const QString &entrada : QDir(path(QString::fromUtf8(nombre)))
                                          .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
            encontrado << entrada.toUtf8();
        return encontrado;
    }
    QStringList descomprime(const QList<MiembroZip> &miembros) const
    {
        makeFile("a.zip", Zip(miembros));
        return launch::Descomprimir(path(u"a.zip"_s), path(u"to"_s)).ficheros;
    }
};

// The number of a process that is gone.
pid_t terminado()
{
    const pid_t hijo = fork();
    if (hijo == 0)
        _exit(0);
    waitpid(hijo, nullptr, 0);
    return hijo;
}

TEST_F(DestinoTest, IsClosedWhereThereIsNone_OrAFile_OrALink)
{
    makeFile("file");
    makeLink("to", "link");
    EXPECT_TRUE(Destino(place("to")).Abierto());
    EXPECT_FALSE(Destino(place("none")).Abierto());
    EXPECT_FALSE(Destino(place("file")).Abierto());
    EXPECT_FALSE(Destino(place("link")).Abierto());
    EXPECT_FALSE(Destino(QByteArray()).Abierto());
}

TEST_F(DestinoTest, AnUnfinishedFileTakesTheNextNameThatIsFree)
{
    makeFile("to/" + provisional(getpid(), 0), "kept");
    const host::Descriptor directorio = abre("to");
    {
        FicheroNuevo fichero(directorio);
        ASSERT_TRUE(fichero.Abierto());
        EXPECT_TRUE(fichero.Escribe("abc", 3));
        EXPECT_THAT(en("to"), ElementsAre(provisional(getpid(), 0), provisional(getpid(), 1)));
        EXPECT_TRUE(fichero.Termina("a.nes", false));
    }
    EXPECT_EQ(bytes("to/a.nes"), "abc");
    EXPECT_EQ(bytes("to/" + provisional(getpid(), 0)), "kept");
    EXPECT_THAT(en("to"), ElementsAre(provisional(getpid(), 0), "a.nes"));
}

TEST_F(DestinoTest, OneThatIsNotFinishedIsGone)
{
    const host::Descriptor directorio = abre("to");
    {
        FicheroNuevo fichero(directorio);
        EXPECT_TRUE(fichero.Escribe("abc", 3));
        EXPECT_EQ(en("to").size(), 1);
    }
    EXPECT_THAT(en("to"), ElementsAre());
}

TEST_F(DestinoTest, OneThatCanNotHaveItsNameIsGone)
{
    makeDirectory("to/a.nes");
    const host::Descriptor directorio = abre("to");
    {
        FicheroNuevo fichero(directorio);
        EXPECT_TRUE(fichero.Escribe("abc", 3));
        EXPECT_FALSE(fichero.Termina("a.nes", false));
    }
    EXPECT_THAT(en("to"), ElementsAre("a.nes"));
}

TEST_F(DestinoTest, WhereAllNamesAreTakenNoneIsMade_AndNoneOfThemGoes)
{
    for (int i = 0; i < 100; ++i)
        makeFile("to/" + provisional(getpid(), i));
    const host::Descriptor directorio = abre("to");
    {
        const FicheroNuevo fichero(directorio);
        EXPECT_FALSE(fichero.Abierto());
    }
    EXPECT_EQ(en("to").size(), 100);
}

TEST_F(DestinoTest, WhereNothingCanBeMadeAllMembersAreLeftOut)
{
    makeFile("a.zip", Zip({ { "a.nes" }, { "sub/b.nes" } }));
    setMode("to", 0555);
    const int resultado = inChildOfOrdinaryUser([this] {
        const launch::Desempaquetado d = launch::Descomprimir(path(u"a.zip"_s), path(u"to"_s));
        return d.ficheros.isEmpty() && d.ilegibles.isEmpty() && !d.nadaLegible ? 0 : 1;
    });
    EXPECT_EQ(resultado, 0);
    EXPECT_THAT(en("to"), ElementsAre());
}

TEST_F(DestinoTest, ADirectoryThatGoesMeanwhileTakesNoFile)
{
    makeDirectory("to/sub");
    const host::Descriptor directorio = abre("to/sub");
    ASSERT_EQ(rmdir(place("to/sub").constData()), 0);
    EXPECT_FALSE(FicheroNuevo(directorio).Abierto());
}

TEST_F(DestinoTest, ANameIsTakenOnlyWhereNothingOfItCanBeThere)
{
    using Ocupante = Destino::Ocupante;
    makeFile("to/own.txt");
    makeDirectory("to/docs");
    const host::Descriptor directorio = abre("to");
    EXPECT_EQ(Destino::QuienOcupa(directorio, "own.txt"), Ocupante::Fichero);
    EXPECT_EQ(Destino::QuienOcupa(directorio, "docs"), Ocupante::Directorio);
    EXPECT_EQ(Destino::QuienOcupa(directorio, "new.txt"), Ocupante::Nadie);
    EXPECT_EQ(Destino::QuienOcupa(directorio, QByteArray(256, 'n')), Ocupante::Nadie);

    setMode("to", 0644); // its names can be read, but not be looked at
    EXPECT_EQ(inChildOfOrdinaryUser([&] {
        const host::Descriptor sinPaso = abre("to");
        return int(Destino::QuienOcupa(sinPaso, "own.txt"));
    }),
        int(Ocupante::Fichero));
}

TEST_F(DestinoTest, WhatAKilledRunLeftGoes_BelowTooWhereItIsUnpacked)
{
    const QByteArray nombre = provisional(terminado(), 0);
    makeDirectory("to/sub");
    makeDirectory("to/other");
    for (const char *lugar : { "to/", "to/sub/", "to/other/" })
        makeFile(QByteArray(lugar) + nombre);
    makeFile("to/" + provisional(getppid(), 0));
    EXPECT_EQ(descomprime({ { "a.nes" }, { "sub/b.nes" } }), QStringList({ u"a.nes"_s }));
    EXPECT_THAT(en("to"), testing::UnorderedElementsAre(provisional(getppid(), 0), "a.nes", "other", "sub"));
    EXPECT_THAT(en("to/sub"), ElementsAre("b.nes"));
    EXPECT_THAT(en("to/other"), ElementsAre(nombre)) << "nothing of this archive goes there";
}

// For real: a process that is killed in the middle of a member.
TEST_F(DestinoTest, OfARunThatIsKilledNothingStaysBehindTheNext)
{
    makeFile("a.zip", Zip({ { "big.nes", QByteArray(1'000'000, 'x') } }));
    const pid_t hijo = fork();
    if (hijo == 0) {
        int bloques = 0;
        launch::PonEspacioLibre([&](int) {
            if (++bloques == 5)
                raise(SIGKILL);
            return std::int64_t(1) << 40;
        });
        launch::Descomprimir(path(u"a.zip"_s), path(u"to"_s));
        _exit(0);
    }
    int estado = 0;
    ASSERT_EQ(waitpid(hijo, &estado, 0), hijo);
    ASSERT_TRUE(WIFSIGNALED(estado));
    EXPECT_THAT(en("to"), ElementsAre(provisional(hijo, 0)));
    EXPECT_EQ(descomprime({ { "small.nes" } }), QStringList({ u"small.nes"_s }));
    EXPECT_THAT(en("to"), ElementsAre("small.nes"));
}

} // namespace
