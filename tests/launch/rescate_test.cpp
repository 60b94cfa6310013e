// What games have saved on drives with other names, brought back after any end of a run.
#include "escenario.h"

#include "launch/apodos.h"
#include "launch/rescate.h"

#include "host/encoding.h"
#include "host/paths.h"
#include "host/process.h"

#include <array>
#include <csignal>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// A game "niño.nes", which a run shows as NINO.NES.
class RescateTest : public Escenario {
protected:
    RescateTest()
    {
        PonPalabrasDeEncargo();
        PonROM("ni\xC3\xB1o.nes", "the game");
        makeFile("roms/Nino.sav", "before");
        makeFile("roms/hiscore.dat", "records");
        makeDirectory("roms/Docs");
    }

    launch::UnidadesDOS::Montaje Montaje() const
    {
        return { 'E', place("roms"), false, { { "NINO.NES", "ni\xC3\xB1o.nes" } } };
    }

    // A run that saves by these lines of a shell, in its drive, and is then killed. Yields its directory's
    // name.
    QByteArray Matada(const QByteArray &lineas) const
    {
        const pid_t hijo = startChild([&] {
            const launch::CarpetaDeCorrida corrida;
            const QByteArray lugar = launch::HazCarpetaDeApodos(corrida, Montaje());
            corrida.Escribe("dosbox.conf", "x");
            makeLink(place("roms"), lugar.sliced(place().size()) + "/../C");
            if (lugar.isEmpty() || system(("cd '" + lugar + "' && " + lineas).constData()) != 0)
                return 1;
            kill(getpid(), SIGKILL);
            return 0;
        });
        EXPECT_EQ(endOf(hijo), 254);
        return Temporales().value(0);
    }
    void setTime(const QByteArray &fichero, time_t segundos) const
    {
        const std::array<timespec, 2> tiempos { timespec { segundos, 0 }, timespec { segundos, 0 } };
        utimensat(AT_FDCWD, place(fichero).constData(), tiempos.data(), 0);
    }
    QByteArrayList Temporales() const { return host::listInDiskOrder(path(u"tmp"_s)); }
};

} // namespace

TEST_F(RescateTest, LoQueDejaUnaMuerteVuelve_DirectoriosTambien)
{
    Matada("echo new > NINO.NEW; rm NINO.SAV; echo saved > NINO.SAV; echo mine > HISCORE.DAT; "
           "mkdir -p SAVES/DEEP; echo one > SAVES/ONE; echo two > SAVES/DEEP/TWO; echo doc > Docs/DOC");
    EXPECT_EQ(bytes("roms/Docs/DOC"), "doc\n") << "the directories beside the game are there";
    const launch::Rescate rescate = launch::RescataRestos();
    EXPECT_THAT(rescate.pendientes, IsEmpty());
    EXPECT_EQ(rescate.vueltos.size(), 5);
    EXPECT_EQ(bytes("roms/NINO.NEW"), "new\n");
    EXPECT_EQ(bytes("roms/Nino.sav"), "saved\n");
    EXPECT_EQ(bytes("roms/hiscore.dat"), "records");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - HISCORE.DAT"), "mine\n");
    EXPECT_EQ(bytes("roms/SAVES/ONE"), "one\n");
    EXPECT_EQ(bytes("roms/SAVES/DEEP/TWO"), "two\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes"), "the game");
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LoQueElJuegoRenombraNoSePierde)
{
    makeFile("roms/NINO.SV1", "state A");
    makeFile("roms/Nino.sv2", "state B");
    makeFile("roms/Docs/OLD", "old");
    makeLink("../Nino.sav", "roms/Docs/Sav"); // the user's own, from before
    makeLink(place("roms/Nino.sav"), "roms/Docs/Far");
    Matada("mv NINO.SV2 NINO.SV3; mv NINO.SV1 NINO.SV2; echo state C > NINO.SV1; mkdir BACK; mv NINO.SAV "
           "BACK/NINO.SAV; echo after > NINO.SAV");
    const launch::Rescate rescate = launch::RescataRestos();
    EXPECT_THAT(rescate.pendientes, IsEmpty());
    EXPECT_EQ(rescate.vueltos.size(), 5);
    EXPECT_EQ(bytes("roms/NINO.SV1"), "state C\n");
    EXPECT_EQ(bytes("roms/Nino.sv2"), "state A");
    EXPECT_EQ(bytes("roms/NINO.SV3"), "state B");
    EXPECT_EQ(bytes("roms/BACK/NINO.SAV"), "before");
    EXPECT_EQ(bytes("roms/Nino.sav"), "after\n");
    EXPECT_EQ(host::listInDiskOrder(path(u"roms/Docs"_s)).size(), 3);
    EXPECT_EQ(bytes("roms/hiscore.dat"), "records");
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LoQueSeLlamaDeOtroModoSigueEnUnSoloFichero)
{
    const QByteArray enCasa = "roms/ni\xC3\xB1o.nes - HISCORE.DAT";
    Matada("echo 1 > HISCORE.DAT; echo cfg > CONFIG");
    EXPECT_EQ(launch::RescataRestos().vueltos.size(), 2);
    EXPECT_EQ(bytes(enCasa), "1\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - CONFIG"), "cfg\n");
    Matada("cat HISCORE.DAT CONFIG > NINO.SEE; echo 2 >> HISCORE.DAT"); // in its place
    EXPECT_EQ(bytes(enCasa), "1\n2\n");
    launch::RescataRestos();
    EXPECT_EQ(bytes("roms/NINO.SEE"), "1\ncfg\n");
    Matada("cat HISCORE.DAT > X; echo 3 >> X; rm HISCORE.DAT; mv X HISCORE.DAT"); // by a new file
    launch::RescataRestos();
    EXPECT_EQ(bytes(enCasa), "1\n2\n3\n");
    Matada("mv HISCORE.DAT HISCORE.BAK; echo 4 > HISCORE.DAT");
    launch::RescataRestos();
    EXPECT_EQ(bytes(enCasa), "4\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - HISCORE.BAK"), "1\n2\n3\n");
    Matada("mv HISCORE.BAK OLDER.BAK");
    launch::RescataRestos();
    EXPECT_FALSE(exists("roms/ni\xC3\xB1o.nes - HISCORE.BAK"));
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - OLDER.BAK"), "1\n2\n3\n");
    EXPECT_EQ(bytes("roms/hiscore.dat"), "records") << "nobody's but the user's";
    EXPECT_THAT(host::listInDiskOrder(path(u"roms"_s)), testing::SizeIs(8));
    EXPECT_THAT(Temporales(), IsEmpty());
}

// In the name that it was shown under it would be a neighbour of that name, and the game get another one.
TEST_F(RescateTest, LoQueElJuegoPoneEnSuLugarQuedaConSuNombre)
{
    const auto apodo = [&] {
        launch::UnidadesDOS unidades;
        return unidades.RutaOApodo(path(u"roms/ni\u00F1o.nes"_s)).value_or(QByteArray()).sliced(3);
    };
    EXPECT_EQ(apodo(), "NINO.NES");
    for (const auto &[linea, fichero] : { std::pair("echo new > X; mv X NINO.NES", "NINO.NES"),
             { "rm NINO.NES; echo newer > NINO.NES", "NINO-2.NES" } }) {
        Matada(linea);
        EXPECT_THAT(launch::RescataRestos().pendientes, IsEmpty());
        EXPECT_TRUE(exists(QByteArray("roms/ni\xC3\xB1o.nes - ") + fichero)) << fichero;
        EXPECT_EQ(apodo(), "NINO.NES");
    }
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - NINO.NES"), "new\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes"), "the game");
    EXPECT_FALSE(exists("roms/NINO.NES"));
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LosQueEscribenElMismoNombreTienenCadaUnoElSuyo)
{
    PonROM("ni\xC3\xB1"
           "a.nes",
        "another game");
    Matada("echo boy > HISCORE.DAT");
    launch::RescataRestos();
    const launch::UnidadesDOS::Montaje otro { 'E', place("roms"), false,
        { { "NINA.NES",
            "ni\xC3\xB1"
            "a.nes" } } };
    {
        const launch::CarpetaDeCorrida corrida;
        const QByteArray lugar = launch::HazCarpetaDeApodos(corrida, otro).sliced(place().size());
        EXPECT_FALSE(exists(lugar + "/HISCORE.DAT"));
        makeFile(lugar + "/HISCORE.DAT", "girl");
    }
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - HISCORE.DAT"), "boy\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1"
                    "a.nes - HISCORE.DAT"),
        "girl");
}

// Its files differ by their case alone: what it saved goes to the one that it saw.
TEST_F(RescateTest, DeDosQueSoloLasMayusculasDistinguenVuelveAlQueVio)
{
    makeFile("roms/NINO.sav", "the other");
    Matada("cat NINO.SAV > NINO.SEE; rm NINO.SAV; echo after > NINO.SAV");
    launch::RescataRestos();
    const bool vioElOtro = bytes("roms/NINO.SEE") == "the other";
    EXPECT_EQ(bytes(vioElOtro ? "roms/NINO.sav" : "roms/Nino.sav"), "after\n");
    EXPECT_EQ(bytes(vioElOtro ? "roms/Nino.sav" : "roms/NINO.sav"), vioElOtro ? "before" : "the other");
}

// Nobody has seen what lies there now.
TEST_F(RescateTest, LoCambiadoEnCasaEntretantoQuedaJuntoALoNuevo)
{
    Matada("echo 1 > HISCORE.DAT");
    launch::RescataRestos();
    Matada("rm HISCORE.DAT; echo 2 > HISCORE.DAT");
    makeFile("roms/ni\xC3\xB1o.nes - HISCORE.DAT", "of another machine");
    const std::array<timespec, 2> luego { timespec { 4'000'000'000, 0 }, timespec { 4'000'000'000, 0 } };
    utimensat(AT_FDCWD, place("roms/ni\xC3\xB1o.nes - HISCORE.DAT").constData(), luego.data(), 0);
    launch::RescataRestos();
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - HISCORE.DAT"), "of another machine");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - HISCORE-2.DAT"), "2\n");
}

TEST_F(RescateTest, LoQueRenombraSinMasLoEstaEnSuSitio)
{
    makeFile("roms/NINO.SV1", "state A");
    Matada("mv NINO.SV1 HISCORE.DAT; mv NINO.SAV NINO.BAK; mv NINO.NES NINO.OLD");
    EXPECT_THAT(launch::RescataRestos().pendientes, IsEmpty());
    EXPECT_EQ(bytes("roms/NINO.BAK"), "before");
    EXPECT_FALSE(exists("roms/Nino.sav"));
    EXPECT_EQ(bytes("roms/hiscore.dat"), "records") << "it hadn't seen that";
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - HISCORE.DAT"), "state A");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes"), "the game") << "the user's name for it stays";
    EXPECT_EQ(bytes("roms/NINO.OLD"), "the game");
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LoRenombradoAUnDirectorioDelUsuarioQuedaAlli)
{
    makeFile("roms/NINO.SV1", "state A");
    makeDirectory("roms/Docs/DEEP");
    makeLink(place("roms/NINO.SV1"), "roms/Docs/Far"); // the user's own, from before
    Matada("mv NINO.SV1 Docs/DEEP/NINO.SV1; echo state B > NINO.SV1; mv NINO.SAV Docs/NINO.SAV; mv NINO.NES "
           "Docs/NINO.NES");
    const launch::Rescate rescate = launch::RescataRestos();
    EXPECT_THAT(rescate.pendientes, IsEmpty());
    EXPECT_EQ(bytes("roms/NINO.SV1"), "state B\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes"), "the game");
    struct stat estado;
    for (const auto &[fichero, dicho] : { std::pair("roms/Docs/DEEP/NINO.SV1", "state A"),
             { "roms/Docs/NINO.SAV", "before" }, { "roms/Docs/NINO.NES", "the game" } }) {
        EXPECT_EQ(bytes(fichero), dicho);
        EXPECT_TRUE(lstat(place(fichero).constData(), &estado) == 0 && S_ISREG(estado.st_mode)) << fichero;
    }
    EXPECT_TRUE(lstat(place("roms/Docs/Far").constData(), &estado) == 0 && S_ISLNK(estado.st_mode));
    EXPECT_FALSE(exists("roms/Nino.sav"));
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LoRenombradoEsperaAlDiscoQueFalta)
{
    makeFile("roms/NINO.SV1", "state A");
    Matada("mv NINO.SV1 NINO.SV2; echo state B > NINO.SV1");
    rename(place("roms").constData(), place("away").constData());
    EXPECT_EQ(launch::RescataRestos().pendientes.size(), 1);
    rename(place("away").constData(), place("roms").constData());
    EXPECT_EQ(launch::RescataRestos().vueltos.size(), 2);
    EXPECT_EQ(bytes("roms/NINO.SV1"), "state B\n");
    EXPECT_EQ(bytes("roms/NINO.SV2"), "state A");
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, UnJuegoQueSigueConservaSuUnidad)
{
    const QByteArray corrida = Matada("echo new > NINO.NEW");
    const pid_t juego = fork();
    if (juego == 0) {
        execl("/usr/bin/tail", "tail", "-f", (place("tmp/") + corrida + "/dosbox.conf").constData(), nullptr);
        _exit(1);
    }
    ASSERT_GT(juego, 0);
    const QString ruta = path(u"tmp/"_s) + QString::fromLatin1(corrida);
    while (!launch::SigueEnMarcha(ruta) && waitpid(juego, nullptr, WNOHANG) == 0)
        usleep(1000);
    ASSERT_TRUE(launch::SigueEnMarcha(ruta));
    EXPECT_THAT(launch::RescataRestos().vueltos, IsEmpty());
    EXPECT_TRUE(exists("tmp/" + corrida + "/C"));
    EXPECT_TRUE(exists("tmp/" + corrida + "/files-E/NINO.NES"));
    kill(juego, SIGKILL);
    waitpid(juego, nullptr, 0);
    EXPECT_THAT(launch::RescataRestos().vueltos, ElementsAre(path(u"roms/NINO.NEW"_s)));
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LaCorridaDeOtroProcesoVivoNoSeToca)
{
    launch::CarpetaDeCorrida corrida;
    const QByteArray lugar = launch::HazCarpetaDeApodos(corrida, Montaje());
    makeFile(lugar.sliced(place().size()) + "/NINO.NEW", "new");
    EXPECT_EQ(inChild([] { return launch::RescataRestos().vueltos.isEmpty() ? 0 : 1; }), 0);
    EXPECT_FALSE(exists("roms/NINO.NEW"));
    EXPECT_THAT(corrida.Recoge().vueltos, ElementsAre(path(u"roms/NINO.NEW"_s)));
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LoQueNoCabeSeDiceUnaVez_YLaProximaPartidaLoVe_YAlFinVuelve)
{
    Matada("echo new > NINO.NEW; mkdir SAVES; echo one > SAVES/ONE");
    rename(place("roms").constData(), place("away").constData());
    makeDirectory("roms"); // what is left of a disk that was taken out
    for (int i = 0; i < 2; ++i)
        launch::RescataAlEmpezar(M.Palabras);
    EXPECT_EQ(respuestas.dichos.size(), 1);
    EXPECT_TRUE(respuestas.dichos.value(0).startsWith(
        u"Kept: "_s + path(u"roms"_s) + u" in "_s + path(u"tmp/ZB-DOS-"_s)));
    EXPECT_THAT(host::listInDiskOrder(path(u"roms"_s)), IsEmpty());
    {
        const launch::CarpetaDeCorrida corrida;
        const QByteArray lugar = launch::HazCarpetaDeApodos(corrida, Montaje()).sliced(place().size());
        EXPECT_EQ(bytes(lugar + "/NINO.NEW"), "new\n");
        EXPECT_EQ(bytes(lugar + "/SAVES/ONE"), "one\n");
    }
    rmdir(place("roms").constData());
    rename(place("away").constData(), place("roms").constData());
    EXPECT_EQ(launch::RescataRestos().vueltos.size(), 2);
    EXPECT_EQ(bytes("roms/NINO.NEW"), "new\n");
    EXPECT_EQ(bytes("roms/SAVES/ONE"), "one\n");
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LoPendienteMasNuevoEsLoQueElJuegoVe)
{
    for (const bool masNuevo : { true, false }) {
        makeFile("roms/Nino.sav", "before");
        Matada("rm NINO.SAV; echo later > NINO.SAV; echo mine > NINO.NES.tmp; mv NINO.NES.tmp NINO.NES");
        const std::array<timespec, 2> tiempos { timespec { masNuevo ? 1'000'000'000 : 4'000'000'000, 0 },
            timespec { masNuevo ? 1'000'000'000 : 4'000'000'000, 0 } };
        utimensat(AT_FDCWD, place("roms/Nino.sav").constData(), tiempos.data(), 0);
        rename(place("roms").constData(), place("away").constData());
        const launch::CarpetaDeCorrida corrida;
        rename(place("away").constData(), place("roms").constData());
        ASSERT_EQ(corrida.DeAntes().size(), 1);
        const QByteArray lugar = launch::HazCarpetaDeApodos(corrida, Montaje()).sliced(place().size());
        EXPECT_EQ(bytes(lugar + "/NINO.SAV"), masNuevo ? "later\n" : "before");
        EXPECT_EQ(bytes(lugar + "/NINO.NES"), "the game");
    }
    launch::RescataRestos();
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LoRenombradoPendienteNoSePierdeEnLaProximaPartida)
{
    makeFile("roms/NINO.SV1", "state A");
    makeFile("roms/NINO.SV2", "earlier");
    Matada("mv NINO.SV2 NINO.SV3; mv NINO.SV1 NINO.SV2; echo state B > NINO.SV1");
    rename(place("roms").constData(), place("away").constData());
    {
        const launch::CarpetaDeCorrida corrida;
        rename(place("away").constData(), place("roms").constData());
        const QByteArray lugar = launch::HazCarpetaDeApodos(corrida, Montaje()).sliced(place().size());
        EXPECT_EQ(bytes(lugar + "/NINO.SV1"), "state B\n");
        EXPECT_EQ(bytes(lugar + "/NINO.SV2"), "state A");
        EXPECT_EQ(bytes(lugar + "/NINO.SV3"), "earlier");
    }
    launch::RescataRestos();
    EXPECT_EQ(bytes("roms/NINO.SV1"), "state B\n");
    EXPECT_EQ(bytes("roms/NINO.SV2"), "state A");
    EXPECT_EQ(bytes("roms/NINO.SV3"), "earlier");
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, VariasCorridasVuelvenPorSuOrden_CadaUnaConSuHora)
{
    const std::array<timespec, 2> hora { timespec { 1'500'000'000, 0 }, timespec { 1'500'000'000, 0 } };
    const std::array<timespec, 2> antes { timespec { 1'000'000'000, 0 }, timespec { 1'000'000'000, 0 } };
    utimensat(AT_FDCWD, place("roms/Nino.sav").constData(), antes.data(), 0);
    makeDirectory("kept");
    const QByteArray primera = Matada("rm NINO.SAV; echo first > NINO.SAV");
    rename(place("tmp/" + primera).constData(), place("kept/" + primera).constData());
    const QByteArray segunda = Matada("rm NINO.SAV; echo second > NINO.SAV");
    // By their names the later one is the first.
    const QByteArray alFinal = "tmp/ZB-DOS-" + QByteArray::number(99999999) + "-999";
    rename(place("kept/" + primera).constData(), place(alFinal).constData());
    for (const QByteArray &fichero : { alFinal + "/lock", alFinal + "/files-E/NINO.SAV" })
        utimensat(AT_FDCWD, place(fichero).constData(), hora.data(), 0);
    const std::array<timespec, 2> luego { timespec { 1'600'000'000, 0 }, timespec { 1'600'000'000, 0 } };
    for (const QByteArray &fichero : { "tmp/" + segunda + "/lock", "tmp/" + segunda + "/files-E/NINO.SAV" })
        utimensat(AT_FDCWD, place(fichero).constData(), luego.data(), 0);
    launch::RescataRestos();
    EXPECT_EQ(bytes("roms/Nino.sav"), "second\n");
    EXPECT_FALSE(exists("roms/NINO-2.SAV"));
    struct stat estado;
    ASSERT_EQ(stat(place("roms/Nino.sav").constData(), &estado), 0);
    EXPECT_EQ(estado.st_mtim.tv_sec, 1'600'000'000);
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, DeUnDirectorioQueNoSeEscribeNadaSePierde)
{
    setMode("roms", 0555);
    setMode("tmp", 0777);
    EXPECT_EQ(inChildOfOrdinaryUser([&] {
        launch::CarpetaDeCorrida corrida;
        const QByteArray lugar = launch::HazCarpetaDeApodos(corrida, Montaje());
        if (system(("echo new > '" + lugar + "/NINO.NEW'").constData()) != 0)
            return 1;
        const launch::Rescate rescate = corrida.Recoge();
        if (rescate.pendientes.size() != 1 || !rescate.vueltos.isEmpty())
            return 2;
        launch::DiPendiente(rescate.pendientes[0], M.Palabras);
        return respuestas.dichos
                == QStringList { u"Kept: "_s + path(u"roms"_s) + u" in "_s + host::nameFromDisk(lugar) }
            ? 0
            : 3;
    }),
        0);
    setMode("roms", 0755);
    setMode("tmp", 0700);
    const QByteArray dentro = Temporales().value(0);
    EXPECT_NE(dentro, QByteArray()) << "it lies in a directory of the other user, and stays";
}

// Both runs were shown what stood there at their beginning.
TEST_F(RescateTest, DeDosPartidasALaVezNoSePierdeNinguna)
{
    setTime("roms/Nino.sav", 1'000'000'000);
    std::optional<launch::CarpetaDeCorrida> una(std::in_place);
    const QByteArray enUna = launch::HazCarpetaDeApodos(*una, Montaje()).sliced(place().size());
    unlink(place(enUna + "/NINO.SAV").constData());
    makeFile(enUna + "/NINO.SAV", "one");
    setTime(enUna + "/NINO.SAV", 1'500'000'000); // ahead of the second's beginning
    std::optional<launch::CarpetaDeCorrida> otra(std::in_place);
    const QByteArray enOtra = launch::HazCarpetaDeApodos(*otra, Montaje()).sliced(place().size());
    una.reset();
    EXPECT_EQ(bytes("roms/Nino.sav"), "one");
    unlink(place(enOtra + "/NINO.SAV").constData());
    makeFile(enOtra + "/NINO.SAV", "other");
    otra.reset();
    EXPECT_EQ(bytes("roms/Nino.sav"), "other") << "the last one goes on";
    EXPECT_EQ(bytes("roms/Nino-2.sav"), "before") << "which the other one may have under another name";
    EXPECT_EQ(bytes("roms/Nino-3.sav"), "one") << "which the other one was not shown";
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LoMismoDeUnLugarSeDiceUnaVezMientrasElProgramaDura)
{
    const auto quita = [&] { rename(place("roms").constData(), place("away").constData()); };
    const auto repon = [&] { rename(place("away").constData(), place("roms").constData()); };
    const auto dichosTras = [&](const QByteArray &nueva) {
        quita();
        launch::CarpetaDeCorrida corrida;
        repon();
        const QByteArray lugar = launch::HazCarpetaDeApodos(corrida, Montaje()).sliced(place().size());
        if (!nueva.isEmpty())
            makeFile(lugar + '/' + nueva, "saved");
        quita();
        for (const launch::Pendiente &pendiente : corrida.Recoge().pendientes)
            launch::DiPendiente(pendiente, M.Palabras);
        repon();
        return respuestas.dichos.size();
    };
    EXPECT_EQ(dichosTras("NINO.NEW"), 1);
    EXPECT_EQ(dichosTras(""), 1);
    EXPECT_EQ(dichosTras("NINO.SV9"), 2);
    EXPECT_EQ(dichosTras(""), 2);
    launch::RescataRestos();
    EXPECT_EQ(bytes("roms/NINO.NEW"), "saved");
    EXPECT_EQ(bytes("roms/NINO.SV9"), "saved");
    EXPECT_THAT(Temporales(), IsEmpty());
}

// One has renamed what the other replaces.
TEST_F(RescateTest, LoQueOtraPartidaTieneConOtroNombreNoSePierde)
{
    std::optional<launch::CarpetaDeCorrida> una(std::in_place);
    const QByteArray enUna = launch::HazCarpetaDeApodos(*una, Montaje());
    rename((enUna + "/NINO.SAV").constData(), (enUna + "/NINO.BAK").constData());
    std::optional<launch::CarpetaDeCorrida> otra(std::in_place);
    const QByteArray enOtra = launch::HazCarpetaDeApodos(*otra, Montaje()).sliced(place().size());
    unlink(place(enOtra + "/NINO.SAV").constData());
    makeFile(enOtra + "/NINO.SAV", "other");
    otra.reset();
    EXPECT_EQ(bytes("roms/Nino.sav"), "other");
    EXPECT_EQ(bytes("roms/Nino-2.sav"), "before");
    una.reset();
    EXPECT_EQ(bytes("roms/Nino.sav"), "other");
    EXPECT_EQ(bytes("roms/Nino-2.sav"), "before");
    EXPECT_EQ(bytes("roms/NINO.BAK"), "other") << "where one file had two names";
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, UnFicheroDelUsuarioConElNombreDelBorradorQueda)
{
    makeFile("roms/Zembro.tmp", "the user's");
    Matada("echo new > NINO.NEW; mkdir SAVES; echo inner > SAVES/Zembro.tmp; echo one > SAVES/a; echo two > "
           "SAVES/zz; "
           "echo tmp > ZEMBRO.TMP");
    EXPECT_THAT(launch::RescataRestos().pendientes, IsEmpty());
    EXPECT_EQ(bytes("roms/Zembro.tmp"), "the user's");
    EXPECT_EQ(bytes("roms/NINO.NEW"), "new\n");
    EXPECT_EQ(bytes("roms/SAVES/Zembro.tmp"), "inner\n");
    EXPECT_EQ(bytes("roms/SAVES/a"), "one\n");
    EXPECT_EQ(bytes("roms/SAVES/zz"), "two\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - ZEMBRO.TMP"), "tmp\n");
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, DeUnEnlaceDelUsuarioCuentaAdondeLleva)
{
    makeDirectory("other disk");
    makeDirectory("other disk/saves");
    makeFile("other disk/nino.sv1", "far");
    makeLink("../other disk/nino.sv1", "roms/NINO.SV1");
    makeLink("../other disk/saves", "roms/Saves");
    makeLink("nowhere", "roms/NINO.SV2");
    Matada("echo two > NINO.SV2; rm NINO.SV1; echo mine > NINO.SV1; echo one > Saves/ONE");
    setTime("other disk/nino.sv1", 4'000'000'000);
    launch::RescataRestos();
    EXPECT_EQ(bytes("other disk/nino.sv1"), "far") << "newer than what was saved";
    EXPECT_EQ(bytes("roms/NINO-2.SV1"), "mine\n");
    EXPECT_EQ(bytes("roms/NINO-2.SV2"), "two\n");
    EXPECT_EQ(bytes("other disk/saves/ONE"), "one\n");
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, JuegosDeCualquierNombreTienenSuRecord)
{
    for (const QByteArray &nombre : { QByteArray("a\\b.nes"), QByteArray("ni\xA4o.nes"), QByteArray("c:.nes"),
             QByteArray("two\nlines. "), QByteArray("*?.nes"), QByteArray(248, 'n') + ".nes" }) {
        PonROM(nombre);
        const launch::UnidadesDOS::Montaje montaje { 'E', place("roms"), false, { { "GAME.NES", nombre } } };
        for (const QByteArray &dicho : { QByteArray("1"), QByteArray("2") }) {
            launch::CarpetaDeCorrida corrida;
            const QByteArray lugar = launch::HazCarpetaDeApodos(corrida, montaje).sliced(place().size());
            if (nombre.size() < 200) {
                EXPECT_EQ(exists(lugar + "/REC"), dicho == "2") << nombre.constData();
            }
            unlink(place(lugar + "/REC").constData());
            makeFile(lugar + "/REC", dicho);
            EXPECT_THAT(corrida.Recoge().pendientes, IsEmpty()) << nombre.constData();
        }
        const QByteArray enCasa =
            nombre.size() < 200 ? QByteArray(nombre).replace('\\', '_') + " - REC" : QByteArray("REC-2");
        EXPECT_EQ(bytes("roms/" + enCasa), "2") << enCasa.constData();
    }
    EXPECT_THAT(Temporales(), IsEmpty());
}

// A disk that has no second names for links: nothing there tells a link that was moved from one that was
// deleted.
TEST_F(RescateTest, LoMovidoNoSePierdeTampocoDondeLosEnlacesTienenUnSoloNombre)
{
    setTime("roms/Nino.sav", 1'000'000'000);
    makeLink(place("roms/Nino.sav"), "roms/Docs/Far"); // the user's own, from before
    Matada("for f in *; do cp -P --preserve=timestamps $f ../copy && mv -T ../copy $f; done; mv NINO.SAV "
           "Docs/NINO.SAV; "
           "echo after > NINO.SAV");
    EXPECT_THAT(launch::RescataRestos().pendientes, IsEmpty());
    EXPECT_EQ(bytes("roms/Nino.sav"), "after\n");
    EXPECT_EQ(bytes("roms/Docs/NINO.SAV"), "before");
    struct stat estado;
    EXPECT_TRUE(lstat(place("roms/Docs/Far").constData(), &estado) == 0 && S_ISLNK(estado.st_mode));
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, UnNombreDeCorridaQueYaEstaSeSalta)
{
    const QByteArray propio = "tmp/ZB-DOS-" + QByteArray::number(getpid()) + "-";
    for (int i = 1; i < 40; ++i)
        makeDirectory(propio + QByteArray::number(i));
    const launch::CarpetaDeCorrida corrida;
    EXPECT_FALSE(corrida.Ruta().isEmpty());
}
