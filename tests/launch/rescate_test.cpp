// What games have saved on drives with other names, brought back after any end of a run.
#include "rescatetest.h"

#include "launch/apodado.h"

#include "host/encoding.h"
#include "host/paths.h"

#include <optional>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

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
