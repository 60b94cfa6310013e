// What games have saved on drives with other names, brought back after any end of a run.
#include "escenario.h"

#include "launch/apodado.h"
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
        makeFile("roms/ni\xC3\xB1o.nes - .SAV", "before");
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
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .NEW"), "new\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SAV"), "saved\n");
    EXPECT_EQ(bytes("roms/hiscore.dat"), "records");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - HISCORE.DAT"), "mine\n");
    EXPECT_EQ(bytes("roms/SAVES/ONE"), "one\n");
    EXPECT_EQ(bytes("roms/SAVES/DEEP/TWO"), "two\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes"), "the game");
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LoQueElJuegoRenombraNoSePierde)
{
    makeFile("roms/ni\xC3\xB1o.nes - .SV1", "state A");
    makeFile("roms/ni\xC3\xB1o.nes - .SV2", "state B");
    makeFile("roms/Docs/OLD", "old");
    makeLink("../Nino.sav", "roms/Docs/Sav"); // the user's own, from before
    makeLink(place("roms/ni\xC3\xB1o.nes - .SAV"), "roms/Docs/Far");
    Matada("mv NINO.SV2 NINO.SV3; mv NINO.SV1 NINO.SV2; echo state C > NINO.SV1; mkdir BACK; mv NINO.SAV "
           "BACK/NINO.SAV; echo after > NINO.SAV");
    const launch::Rescate rescate = launch::RescataRestos();
    EXPECT_THAT(rescate.pendientes, IsEmpty());
    EXPECT_EQ(rescate.vueltos.size(), 5);
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SV1"), "state C\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SV2"), "state A");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SV3"), "state B");
    EXPECT_EQ(bytes("roms/BACK/NINO.SAV"), "before");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SAV"), "after\n");
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
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SEE"), "1\ncfg\n");
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

// Under an extension that isn't the game's: it is no other game for a list.
TEST_F(RescateTest, LoQueElJuegoPoneEnSuLugarQuedaJuntoAEl)
{
    const QByteArray enCasa = "roms/ni\xC3\xB1o.nes - ";
    Matada("echo new > X; mv X NINO.NES");
    EXPECT_THAT(launch::RescataRestos().pendientes, IsEmpty());
    EXPECT_EQ(bytes(enCasa + ".NEW"), "new\n");
    Matada("cat NINO.NEW NINO.NES > NINO.SEE; rm NINO.NES; echo newer > NINO.NES");
    EXPECT_THAT(launch::RescataRestos().pendientes, IsEmpty());
    EXPECT_EQ(bytes(enCasa + ".SEE"), "new\nthe game");
    EXPECT_EQ(bytes(enCasa + ".NEW"), "new\n");
    EXPECT_EQ(bytes(enCasa + "2.NEW"), "newer\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes"), "the game");
    EXPECT_THAT(host::listInDiskOrder(path(u"roms"_s)), testing::SizeIs(7));
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

// Its files differ by their case alone: it sees one, and what it saves goes there.
TEST_F(RescateTest, DeDosQueSoloLasMayusculasDistinguenVeUno)
{
    makeFile("roms/ni\xC3\xB1o.nes - .sav", "the other");
    Matada("cat NINO.[sS][aA]* > NINO.TWO; rm NINO.[sS][aA]*; echo after > NINO.SAV");
    launch::RescataRestos();
    const bool vioElOtro = bytes("roms/ni\xC3\xB1o.nes - .TWO") == "the other";
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .TWO"), vioElOtro ? "the other" : "before");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .sav"), vioElOtro ? "after\n" : "the other");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SAV"), vioElOtro ? "before" : "after\n");
}

// Each has its own, whatever they save under.
TEST_F(RescateTest, DeDosJuegosQueSoloLasMayusculasDistinguenCadaUnoVeLoSuyo)
{
    const QByteArray otro = "Ni\xC3\xB1O.nes";
    PonROM(otro, "another game");
    for (const QByteArray &dicho : { QByteArray("one"), QByteArray("two") }) {
        const launch::CarpetaDeCorrida corrida;
        const QByteArray lugar =
            launch::HazCarpetaDeApodos(corrida, { 'E', place("roms"), false, { { "NINO.NES", otro } } })
                .sliced(place().size());
        EXPECT_EQ(
            bytes(lugar + "/NINO.SAV"), dicho == "one" ? std::nullopt : std::optional(QByteArray("one")));
        EXPECT_EQ(bytes(lugar + "/REC"), dicho == "one" ? std::nullopt : std::optional(QByteArray("one")));
        for (const QByteArray &nombre : { QByteArray("/NINO.SAV"), QByteArray("/REC") }) {
            unlink(place(lugar + nombre).constData());
            makeFile(lugar + nombre, dicho);
        }
    }
    Matada("cat NINO.SAV > NINO.SEE; rm NINO.SAV; echo mine > NINO.SAV");
    EXPECT_THAT(launch::RescataRestos().pendientes, IsEmpty());
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SEE"), "before");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SAV"), "mine\n");
    EXPECT_EQ(bytes("roms/Ni\xC3\xB1O.nes - .SAV"), "two");
    EXPECT_EQ(bytes("roms/Ni\xC3\xB1O.nes - REC"), "two");
    EXPECT_THAT(host::listInDiskOrder(path(u"roms"_s)), testing::SizeIs(8));
    EXPECT_THAT(Temporales(), IsEmpty());
}

// What lies beside a game under a name that DOS opens is somebody else's.
TEST_F(RescateTest, DeLosVecinosNoSeVeNada)
{
    PonROM("NINO.SAV", "of NINO.NES");
    PonROM("ni\xC3\xB1o.nes - More.nes", "its sequel");
    PonROM("ni\xC3\xB1o.nes - More.nes - .SAV", "the sequel's");
    Matada("ls > NINO.SEE");
    launch::RescataRestos();
    const QByteArrayList visto = bytes("roms/ni\xC3\xB1o.nes - .SEE").value_or(QByteArray()).split('\n');
    EXPECT_THAT(
        visto, testing::UnorderedElementsAre("Docs", "NINO.NES", "NINO.SAV", "NINO.SEE", "More.nes", ""));
    EXPECT_EQ(bytes("roms/NINO.SAV"), "of NINO.NES");
    Matada("rm NINO.SAV; echo mine > NINO.SAV");
    launch::RescataRestos();
    EXPECT_EQ(bytes("roms/NINO.SAV"), "of NINO.NES");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SAV"), "mine\n");
}

TEST_F(RescateTest, LoPendienteEsSoloDelJuegoQueLoGuardo)
{
    PonROM("nin\xC3\xB3.nes", "another game");
    Matada("echo new > NINO.NEW");
    rename(place("roms").constData(), place("away").constData());
    const launch::CarpetaDeCorrida corrida;
    rename(place("away").constData(), place("roms").constData());
    ASSERT_EQ(corrida.DeAntes().size(), 1);
    const launch::UnidadesDOS::Montaje otro { 'E', place("roms"), false,
        { { "NINO.NES", "nin\xC3\xB3.nes" } } };
    const QByteArray lugar = launch::HazCarpetaDeApodos(corrida, otro).sliced(place().size());
    EXPECT_FALSE(exists(lugar + "/NINO.NEW"));
    launch::RescataRestos();
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .NEW"), "new\n");
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
    makeFile("roms/ni\xC3\xB1o.nes - .SV1", "state A");
    Matada("mv NINO.SV1 HISCORE.DAT; mv NINO.SAV NINO.BAK; mv NINO.NES NINO.OLD");
    EXPECT_THAT(launch::RescataRestos().pendientes, IsEmpty());
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .BAK"), "before");
    EXPECT_FALSE(exists("roms/ni\xC3\xB1o.nes - .SAV"));
    EXPECT_EQ(bytes("roms/hiscore.dat"), "records") << "it hadn't seen that";
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - HISCORE.DAT"), "state A");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes"), "the game") << "the user's name for it stays";
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .OLD"), "the game");
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LoRenombradoAUnDirectorioDelUsuarioQuedaAlli)
{
    makeFile("roms/ni\xC3\xB1o.nes - .SV1", "state A");
    makeDirectory("roms/Docs/DEEP");
    makeLink(place("roms/ni\xC3\xB1o.nes - .SV1"), "roms/Docs/Far"); // the user's own, from before
    Matada("mv NINO.SV1 Docs/DEEP/NINO.SV1; echo state B > NINO.SV1; mv NINO.SAV Docs/NINO.SAV; mv NINO.NES "
           "Docs/NINO.NES");
    const launch::Rescate rescate = launch::RescataRestos();
    EXPECT_THAT(rescate.pendientes, IsEmpty());
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SV1"), "state B\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes"), "the game");
    struct stat estado;
    for (const auto &[fichero, dicho] : { std::pair("roms/Docs/DEEP/NINO.SV1", "state A"),
             { "roms/Docs/NINO.SAV", "before" }, { "roms/Docs/NINO.NES", "the game" } }) {
        EXPECT_EQ(bytes(fichero), dicho);
        EXPECT_TRUE(lstat(place(fichero).constData(), &estado) == 0 && S_ISREG(estado.st_mode)) << fichero;
    }
    EXPECT_TRUE(lstat(place("roms/Docs/Far").constData(), &estado) == 0 && S_ISLNK(estado.st_mode));
    EXPECT_FALSE(exists("roms/ni\xC3\xB1o.nes - .SAV"));
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LoRenombradoEsperaAlDiscoQueFalta)
{
    makeFile("roms/ni\xC3\xB1o.nes - .SV1", "state A");
    Matada("mv NINO.SV1 NINO.SV2; echo state B > NINO.SV1");
    rename(place("roms").constData(), place("away").constData());
    EXPECT_EQ(launch::RescataRestos().pendientes.size(), 1);
    rename(place("away").constData(), place("roms").constData());
    EXPECT_EQ(launch::RescataRestos().vueltos.size(), 2);
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SV1"), "state B\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SV2"), "state A");
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LoDeUnJuegoRenombradoOBorradoVuelve)
{
    const QByteArray juego = "roms/ni\xC3\xB1o.nes";
    unlink(place(juego + " - .SAV").constData());
    rmdir(place("roms/Docs").constData());
    Matada("echo first > NINO.SAV");
    rename(place(juego).constData(),
        place("roms/ni\xC3\xB1"
              "a.nes")
            .constData());
    EXPECT_THAT(launch::RescataRestos().pendientes, IsEmpty());
    EXPECT_EQ(bytes(juego + " - .SAV"), "first\n");
    EXPECT_THAT(Temporales(), IsEmpty());

    unlink(place(juego + " - .SAV").constData());
    makeFile(juego, "the game");
    Matada("echo second > NINO.SAV");
    unlink(place(juego).constData());
    EXPECT_THAT(launch::RescataRestos().pendientes, IsEmpty());
    EXPECT_EQ(bytes(juego + " - .SAV"), "second\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1"
                    "a.nes"),
        "the game");
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
    EXPECT_THAT(launch::RescataRestos().vueltos, ElementsAre(path(u"roms/ni\u00F1o.nes - .NEW"_s)));
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LaCorridaDeOtroProcesoVivoNoSeToca)
{
    launch::CarpetaDeCorrida corrida;
    const QByteArray lugar = launch::HazCarpetaDeApodos(corrida, Montaje());
    makeFile(lugar.sliced(place().size()) + "/NINO.NEW", "new");
    EXPECT_EQ(inChild([] { return launch::RescataRestos().vueltos.isEmpty() ? 0 : 1; }), 0);
    EXPECT_FALSE(exists("roms/ni\xC3\xB1o.nes - .NEW"));
    EXPECT_THAT(corrida.Recoge().vueltos, ElementsAre(path(u"roms/ni\u00F1o.nes - .NEW"_s)));
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
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .NEW"), "new\n");
    EXPECT_EQ(bytes("roms/SAVES/ONE"), "one\n");
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, LoPendienteMasNuevoEsLoQueElJuegoVe)
{
    for (const bool masNuevo : { true, false }) {
        makeFile("roms/ni\xC3\xB1o.nes - .SAV", "before");
        Matada("rm NINO.SAV; echo later > NINO.SAV; echo mine > NINO.NES.tmp; mv NINO.NES.tmp NINO.NES");
        const std::array<timespec, 2> tiempos { timespec { masNuevo ? 1'000'000'000 : 4'000'000'000, 0 },
            timespec { masNuevo ? 1'000'000'000 : 4'000'000'000, 0 } };
        utimensat(AT_FDCWD, place("roms/ni\xC3\xB1o.nes - .SAV").constData(), tiempos.data(), 0);
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
    makeFile("roms/ni\xC3\xB1o.nes - .SV1", "state A");
    makeFile("roms/ni\xC3\xB1o.nes - .SV2", "earlier");
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
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SV1"), "state B\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SV2"), "state A");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SV3"), "earlier");
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, VariasCorridasVuelvenPorSuOrden_CadaUnaConSuHora)
{
    const std::array<timespec, 2> hora { timespec { 1'500'000'000, 0 }, timespec { 1'500'000'000, 0 } };
    const std::array<timespec, 2> antes { timespec { 1'000'000'000, 0 }, timespec { 1'000'000'000, 0 } };
    utimensat(AT_FDCWD, place("roms/ni\xC3\xB1o.nes - .SAV").constData(), antes.data(), 0);
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
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SAV"), "second\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - 2.SAV"), "before");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - 3.SAV"), "first\n");
    struct stat estado;
    ASSERT_EQ(stat(place("roms/ni\xC3\xB1o.nes - .SAV").constData(), &estado), 0);
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
    setTime("roms/ni\xC3\xB1o.nes - .SAV", 1'000'000'000);
    std::optional<launch::CarpetaDeCorrida> una(std::in_place);
    const QByteArray enUna = launch::HazCarpetaDeApodos(*una, Montaje()).sliced(place().size());
    unlink(place(enUna + "/NINO.SAV").constData());
    makeFile(enUna + "/NINO.SAV", "one");
    setTime(enUna + "/NINO.SAV", 1'500'000'000); // ahead of the second's beginning
    std::optional<launch::CarpetaDeCorrida> otra(std::in_place);
    const QByteArray enOtra = launch::HazCarpetaDeApodos(*otra, Montaje()).sliced(place().size());
    una.reset();
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SAV"), "one");
    unlink(place(enOtra + "/NINO.SAV").constData());
    makeFile(enOtra + "/NINO.SAV", "other");
    otra.reset();
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SAV"), "other") << "the last one goes on";
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - 2.SAV"), "before")
        << "which the other one may have under another name";
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - 3.SAV"), "one") << "which the other one was not shown";
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
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .NEW"), "saved");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SV9"), "saved");
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
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SAV"), "other");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - 2.SAV"), "before");
    una.reset();
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SAV"), "other");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - 2.SAV"), "before");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .BAK"), "other") << "where one file had two names";
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
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .NEW"), "new\n");
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
    makeLink("../other disk/nino.sv1", "roms/ni\xC3\xB1o.nes - .SV1");
    makeLink("../other disk/saves", "roms/Saves");
    makeLink("nowhere", "roms/ni\xC3\xB1o.nes - .SV2");
    Matada("echo two > NINO.SV2; rm NINO.SV1; echo mine > NINO.SV1; echo one > Saves/ONE");
    setTime("other disk/nino.sv1", 4'000'000'000);
    launch::RescataRestos();
    EXPECT_EQ(bytes("other disk/nino.sv1"), "far") << "newer than what was saved";
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - 2.SV1"), "mine\n");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - 2.SV2"), "two\n");
    EXPECT_EQ(bytes("other disk/saves/ONE"), "one\n");
    EXPECT_THAT(Temporales(), IsEmpty());
}

TEST_F(RescateTest, JuegosDeCualquierNombreTienenSuRecord)
{
    const QByteArray largo(120, '\xC3'); // bytes that are no text
    for (const QByteArray &nombre :
        { QByteArray("a\\b.nes"), QByteArray("a_b=.nes"), QByteArray("ni\xA4o.nes"), QByteArray("c:.nes"),
            QByteArray("two\nlines. "), QByteArray("*?.nes"), QByteArray(248, 'n') + ".nes",
            QByteArray(247, 'n') + "m.nes", QByteArray("\xC3\xB1").repeated(120) + ".nes", largo + ".nes" }) {
        PonROM(nombre);
        const launch::UnidadesDOS::Montaje montaje { 'E', place("roms"), false, { { "GAME.NES", nombre } } };
        for (const QByteArray &dicho : { QByteArray("1"), QByteArray("2") }) {
            launch::CarpetaDeCorrida corrida;
            const QByteArray lugar = launch::HazCarpetaDeApodos(corrida, montaje).sliced(place().size());
            for (const QByteArray &guardado : { QByteArray("/REC"), QByteArray("/GAME.SAV") }) {
                EXPECT_EQ(exists(lugar + guardado), dicho == "2") << nombre.constData();
                unlink(place(lugar + guardado).constData());
                makeFile(lugar + guardado, dicho);
            }
            EXPECT_THAT(corrida.Recoge().pendientes, IsEmpty()) << nombre.constData();
        }
        EXPECT_EQ(bytes("roms/" + launch::PrefijoEnCasa(nombre) + "REC"), "2") << nombre.constData();
        EXPECT_EQ(bytes("roms/" + launch::PrefijoEnCasa(nombre) + ".SAV"), "2") << nombre.constData();
    }
    EXPECT_THAT(Temporales(), IsEmpty());
}

// Windows has longer ones than DOS.
TEST_F(RescateTest, LoQueConElNombreDelJuegoNoCabeEspera)
{
    const launch::CarpetaDeCorrida corrida;
    const QByteArray lugar = launch::HazCarpetaDeApodos(corrida, Montaje()).sliced(place().size());
    const QByteArray largo(250, 'x');
    makeFile(lugar + '/' + largo, "saved");
    makeFile(lugar + "/NINO.NEW", "new");
    EXPECT_EQ(launch::RescataCorrida(corrida.Ruta()).pendientes.size(), 1);
    EXPECT_EQ(bytes(lugar + '/' + largo), "saved");
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .NEW"), "new");
}

// A disk that has no second names for links: nothing there tells a link that was moved from one that was
// deleted.
TEST_F(RescateTest, LoMovidoNoSePierdeTampocoDondeLosEnlacesTienenUnSoloNombre)
{
    setTime("roms/ni\xC3\xB1o.nes - .SAV", 1'000'000'000);
    makeLink(place("roms/ni\xC3\xB1o.nes - .SAV"), "roms/Docs/Far"); // the user's own, from before
    Matada("for f in *; do cp -P --preserve=timestamps $f ../copy && mv -T ../copy $f; done; mv NINO.SAV "
           "Docs/NINO.SAV; "
           "echo after > NINO.SAV");
    EXPECT_THAT(launch::RescataRestos().pendientes, IsEmpty());
    EXPECT_EQ(bytes("roms/ni\xC3\xB1o.nes - .SAV"), "after\n");
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
