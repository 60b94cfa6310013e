// Runs that go on, are several, or left what can't be brought back yet.
#include "rescatetest.h"

#include "host/encoding.h"
#include "host/paths.h"

#include <optional>

#include <sys/wait.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

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
