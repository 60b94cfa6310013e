// From an empty catalogue to played games and back, as a user goes the way, with the mouse and with the keys
// alone. After each step the four files are on the disk as they must be, byte for byte.

#include "configuraciontest.h"
#include "manos.h"

#include "forms/checks.h"

#include <QFile>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QByteArray Nes = "-NES\r\nWEB1=http://nes\r\n*.ZIP\r\n*.NES\r\n'\r\n+Nestopia\r\nWEB2=\r\n" + Closing;
const QByteArray NesNotes = "NES\r\nGAME.NES,\"A game\"\r\n'\r\n";

class Recorrido : public ConfiguracionTest, public testing::WithParamInterface<const char *> {
protected:
    Recorrido()
    {
        setDatabase({});
        setCatalogue({});
        notes = "' notes\r\n" + NesNotes + "[EOF]\r\n" + Parameters;
        files.write(u"bin/My Emu"_s,
            "#!/bin/sh\nfor a in \"$@\"; do printf '[%s]' \"$a\"; done >> \"$0.log\"\necho >> \"$0.log\"\n");
        QFile(files.path(u"bin/My Emu"_s))
            .setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        files.write(u"roms/Pong (1).ch8"_s, "pong");
        files.write(u"zips/Maze.zip"_s, "PK");
        files.writeGif(u"shots/PONG (1).GIF"_s, Qt::red);
        files.makeDirectory(u"tmp"_s);
        qputenv("TMPDIR", at(u"tmp"_s));
    }
    ~Recorrido() override
    {
        if (m_temporary.isNull())
            qunsetenv("TMPDIR");
        else
            qputenv("TMPDIR", m_temporary);
    }

    QByteArray at(const QString &name) const { return files.path(name).toUtf8(); }
    // The database has the NES besides, the catalogue nothing.
    void setDatabase(const QByteArray &chip8) { database = "' all\r\n" + Nes + chip8 + "[EOF]\r\n"; }
    void setCatalogue(const QByteArray &chip8) { catalogue = "' mine\r\n" + chip8 + "[EOF]\r\n"; }
    void expectOnDisk() { expectFiles(database, catalogue, notes); }

    // Boxes, answered the way of these hands.
    void atInput(const QString &key, const QString &offer, const QString &typed)
    {
        atModal(u"Caja"_s, [=, this](forms::Form &box) {
            EXPECT_EQ(box.Caption(), key + u'0');
            EXPECT_EQ(controlOf<forms::TextBox>(box, u"Casilla"_s).Text(), offer);
            hands->write(box, u"Casilla"_s, typed);
            hands->press(box, u"Aceptar2"_s);
        });
    }
    void atBox(const QString &key, const QString &button)
    {
        atModal(u"Caja"_s, [=, this](forms::Form &box) {
            EXPECT_EQ(box.Caption(), key + u'0');
            hands->press(box, button);
        });
    }
    void atNotice(const QString &key) { atBox(key, u"Aceptar2"_s); }
    void atWarning(const QString &key) { atBox(key, u"Flecha2"_s); }

    // Presses a button that asks for a text in the place of an old one.
    void change(forms::Form &form, const QString &button, const QString &key, const QString &offer,
        const QString &typed)
    {
        atInput(key, offer, typed);
        hands->press(form, button);
    }

    // The first step, from the main screen; left open, it is closed by its arrow.
    void firstStep(const std::function<void(forms::Form &)> &act)
    {
        atModal(u"Configuracion1"_s, [=, this](forms::Form &form) {
            act(form);
            if (form.isVisible())
                hands->press(form, u"Flecha2"_s);
        });
        hands->press(*portada, u"Boton1b"_s);
    }
    // The second one, of an emulator of the new system.
    void secondStep(const QString &emulator, const std::function<void(forms::Form &)> &act)
    {
        firstStep([=, this](forms::Form &first) {
            hands->select(first, u"Lista1"_s, u"Chip-8"_s);
            hands->select(first, u"Lista2"_s, emulator);
            EXPECT_EQ(captionOf(first, u"Texto5"_s), u"Chip-8 -> "_s + emulator);
            atModal(u"Configuracion2"_s, act);
            hands->press(first, u"Aceptar2"_s);
        });
    }

    void browseForProgram(forms::Form &form, const QString &directory, const QString &program)
    {
        atModal(u"Examinar"_s, [=, this](forms::Form &browser) {
            hands->open(controlOf<forms::DirectoryList>(browser, u"Directorios"_s), directory);
            hands->select(browser, u"Archivos"_s, program);
            hands->press(browser, u"Aceptar2"_s);
        });
        hands->press(form, u"Boton1"_s);
        EXPECT_EQ(textOf(form, u"Casilla1"_s), directory + u'/' + program);
    }
    void browseForDirectory(
        forms::Form &form, const QString &button, const QString &box, const QString &directory)
    {
        atModal(u"Examinar"_s, [=, this](forms::Form &browser) {
            hands->open(controlOf<forms::DirectoryList>(browser, u"Directorios"_s), directory);
            hands->press(browser, u"Aceptar2"_s);
        });
        hands->press(form, button);
        EXPECT_EQ(textOf(form, box), directory);
        EXPECT_EQ(form.focusWidget()->objectName(), box);
    }
    static QString textOf(const forms::Form &form, const QString &box)
    {
        return controlOf<forms::TextBox>(form, box).Text();
    }

    void mark(const forms::Form &form, int number) { hands->press(form, u"Check%1"_s.arg(number)); }
    // The numbers of the boxes that are set, and of those that can be.
    static QString marks(const forms::Form &form)
    {
        QString set;
        QString open;
        for (int i = 1; i <= 4; ++i) {
            const auto &check = controlOf<forms::CheckBox>(form, u"Check%1"_s.arg(i));
            set += check.Value() == 1 ? QString::number(i) : QString();
            open += check.isEnabled() ? QString::number(i) : QString();
        }
        return set + u" of "_s + open;
    }

    void save(forms::Form &form)
    {
        hands->press(form, u"Disco1"_s);
        EXPECT_FALSE(form.isVisible());
    }

    // Plays what stands selected; returns the arguments that the emulator got.
    QByteArray played()
    {
        hands->press(*portada, u"JugarB1"_s);
        const QString log = u"bin/My Emu.log"_s;
        if (!files.exists(log))
            return "not started";
        const QByteArray arguments = files.read(log);
        files.remove(log);
        return arguments;
    }

    // The steps of the way.
    void addSystemAndEmulators();
    void changeExtensionsAndAddresses();
    void configureSystem();
    void configureEmulator();
    void changeEmulator();
    void changeAddressesInUse();
    void removeEmulator();
    void removeSystem();

    std::unique_ptr<Manos> hands =
        GetParam() == std::string("Mouse") ? Manos::conRaton() : Manos::conTeclas();
    const QByteArray Parameters = "Parametros especificos\r\n'\r\nfin\r\nfin,\"fin\"\r\n";

    // What the catalogue holds of the new system.
    QByteArray head = "-Chip-8\r\nWEB1=http://chip8\r\n*.ZIP\r\n*.CH8\r\n'\r\n";
    QByteArray octo;
    QByteArray jaxe;

private:
    QByteArray m_temporary = qgetenv("TMPDIR");
};

INSTANTIATE_TEST_SUITE_P(By, Recorrido, testing::Values("Mouse", "Keys"),
    [](const auto &tested) { return std::string(tested.param); });

} // namespace

void Recorrido::addSystemAndEmulators()
{
    firstStep([this](forms::Form &form) {
        atInput(u"Msg_AñadirSis"_s, {}, u"Chip-8"_s);
        hands->press(form, u"Mas1"_s);
        setDatabase("-Chip-8\r\nWEB1=\r\n*.ZIP\r\n'\r\n" + Closing);
        notes = "' notes\r\n" + NesNotes + "Chip-8\r\n'\r\n[EOF]\r\n" + Parameters;
        expectOnDisk();
        for (const QString &emulator : { u"Octo"_s, u"Jaxe"_s }) {
            atInput(u"Msg_AñadirEmu"_s, {}, emulator);
            hands->press(form, u"Boton_Mas2"_s);
        }
        setDatabase("-Chip-8\r\nWEB1=\r\n*.ZIP\r\n'\r\n+Octo\r\nWEB2=\r\n+Jaxe\r\nWEB2=\r\n" + Closing);
        expectOnDisk();
        EXPECT_EQ(captionOf(form, u"Texto5"_s), u"Chip-8 -> Jaxe"_s);
    });
}

// The catalogue doesn't know them yet.
void Recorrido::changeExtensionsAndAddresses()
{
    firstStep([this](forms::Form &form) {
        hands->select(form, u"Lista1"_s, u"Chip-8"_s);
        hands->select(form, u"Lista2"_s, u"Octo"_s);
        change(form, u"Boton_E"_s, u"Msg_EXT"_s, u"ZIP"_s, u"zip,ch8"_s);
        change(form, u"Boton_W1"_s, u"Msg_NuevaWWWROMS"_s, {}, u"http://chip8"_s);
        change(form, u"Boton_W2"_s, u"Msg_NuevaWWW"_s, {}, u"http://octo"_s);
        setDatabase(head + "+Octo\r\nWEB2=http://octo\r\n+Jaxe\r\nWEB2=\r\n" + Closing);
        expectOnDisk();
    });
}

void Recorrido::configureSystem()
{
    EXPECT_THAT(entries(systems()), IsEmpty());
    secondStep(u"Octo"_s, [this](forms::Form &form) {
        browseForProgram(form, u"bin"_s, u"My Emu"_s);
        browseForDirectory(form, u"Boton2"_s, u"Casilla2"_s, u"roms"_s);
        browseForDirectory(form, u"Boton3"_s, u"Casilla3"_s, u"shots"_s);
        hands->write(form, u"Casilla4"_s, u"-f x"_s);
        hands->write(form, u"Casilla5"_s, u"--end"_s);
        const std::pair<int, QString> way[] = { { 1, u"1 of 14"_s }, { 1, u" of 124"_s },
            { 2, u"2 of 234"_s }, { 3, u"23 of 234"_s }, { 2, u" of 124"_s } };
        for (const auto &[number, state] : way) {
            mark(form, number);
            EXPECT_EQ(marks(form), state);
        }
        atNotice(u"Msg_CFGGrabada"_s);
        save(form);
    });
    octo = "+Octo\r\nWEB2=http://octo\r\nEXE=bin/My Emu\r\nXDI=0\r\nROM=roms/\r\nIMG=shots/\r\nPAR1=-f "
           "x\r\nPAR2=--end\r\n";
    setCatalogue(head + octo + Closing);
    expectOnDisk();
    EXPECT_EQ(emulators().Text(), u"Octo"_s);
    EXPECT_THAT(listed(), ElementsAre(u"Pong (1).ch8"_s));
    EXPECT_EQ(capture(), QColor(Qt::red));
    EXPECT_EQ(played(), "[-f][x][" + at(u"roms/Pong (1).ch8"_s) + "][--end]\n");
    expectOnDisk();
}

// Its games are archives that the emulator reads itself.
void Recorrido::configureEmulator()
{
    secondStep(u"Jaxe"_s, [this](forms::Form &form) {
        browseForProgram(form, u"bin"_s, u"My Emu"_s);
        browseForDirectory(form, u"Boton2"_s, u"Casilla2"_s, u"zips"_s);
        mark(form, 2);
        mark(form, 3);
        atNotice(u"Msg_CFGGrabada"_s);
        save(form);
    });
    jaxe = "+Jaxe\r\nWEB2=\r\nEXE=bin/My Emu\r\nXDI=3\r\nROM=zips/\r\nIMG=\r\nPAR1=\r\nPAR2=\r\n";
    setCatalogue(head + octo + "'\r\n" + jaxe + Closing);
    expectOnDisk();
    EXPECT_EQ(emulators().Text(), u"Jaxe"_s);
    EXPECT_THAT(listed(), ElementsAre(u"Maze.zip"_s));
    EXPECT_EQ(played(), "[maze]\n");
    EXPECT_EQ(word(), u"TXT_Jugar"_s);
}

void Recorrido::changeEmulator()
{
    secondStep(u"Jaxe"_s, [this](forms::Form &form) {
        EXPECT_EQ(marks(form), u"23 of 234"_s);
        atWarning(u"Msg_SinCambios"_s);
        hands->press(form, u"Disco1"_s);
        EXPECT_TRUE(form.isVisible());
        expectOnDisk();
        hands->write(form, u"Casilla4"_s, u" -q"_s);
        mark(form, 4);
        EXPECT_EQ(marks(form), u"234 of 234"_s);
        atNotice(u"Msg_CFGGrabada"_s);
        save(form);
    });
    jaxe.replace("XDI=3", "XDI=8").replace("PAR1=", "PAR1= -q");
    setCatalogue(head + octo + "'\r\n" + jaxe + Closing);
    expectOnDisk();
    EXPECT_EQ(word(), u"TXT_Cargar"_s);
    EXPECT_EQ(played(), "[-q]\n");
}

// Both files change.
void Recorrido::changeAddressesInUse()
{
    firstStep([this](forms::Form &form) {
        hands->select(form, u"Lista1"_s, u"Chip-8"_s);
        hands->select(form, u"Lista2"_s, u"Octo"_s);
        change(form, u"Boton_E"_s, u"Msg_EXT"_s, u"ZIP,CH8"_s, u"zip,ch8,c8x"_s);
        change(form, u"Boton_W1"_s, u"Msg_NuevaWWWROMS"_s, u"http://chip8"_s, u"http://games"_s);
        change(form, u"Boton_W2"_s, u"Msg_NuevaWWW"_s, u"http://octo"_s, {});
    });
    head = "-Chip-8\r\nWEB1=http://games\r\n*.ZIP\r\n*.CH8\r\n*.C8X\r\n'\r\n";
    octo.replace("http://octo", "");
    setDatabase(head + "+Octo\r\nWEB2=\r\n+Jaxe\r\nWEB2=\r\n" + Closing);
    setCatalogue(head + octo + "'\r\n" + jaxe + Closing);
    expectOnDisk();
}

// Out of the catalogue first, then out of the database.
void Recorrido::removeEmulator()
{
    const auto remove = [this](forms::Form &form, bool inUse) {
        hands->select(form, u"Lista1"_s, u"Chip-8"_s);
        hands->select(form, u"Lista2"_s, u"Jaxe"_s);
        atNotice(u"Msg_BorrarEmu"_s);
        if (inUse)
            atWarning(u"Msg_YaAñadido"_s);
        hands->press(form, u"Boton_Menos2"_s);
    };
    firstStep([&](forms::Form &form) { remove(form, true); });
    expectOnDisk();

    atNotice(u"Msg_BorrarEmu"_s);
    hands->press(*portada, u"Menos2b"_s);
    setCatalogue(head + octo + Closing);
    expectOnDisk();
    EXPECT_EQ(emulators().Text(), u"Octo"_s);
    EXPECT_THAT(listed(), ElementsAre(u"Pong (1).ch8"_s));

    firstStep([&](forms::Form &form) { remove(form, false); });
    setDatabase(head + "+Octo\r\nWEB2=\r\n" + Closing);
    expectOnDisk();
}

void Recorrido::removeSystem()
{
    const auto remove = [this](forms::Form &form, bool inUse) {
        hands->select(form, u"Lista1"_s, u"Chip-8"_s);
        atNotice(u"Msg_BorrarSis"_s);
        if (inUse)
            atWarning(u"Msg_YaAñadido"_s);
        hands->press(form, u"Menos1"_s);
    };
    firstStep([&](forms::Form &form) { remove(form, true); });
    expectOnDisk();

    atNotice(u"Msg_BorrarSis"_s);
    hands->press(*portada, u"Menos2a"_s);
    setCatalogue({});
    expectOnDisk();
    EXPECT_THAT(entries(systems()), IsEmpty());
    EXPECT_EQ(played(), "not started");

    firstStep([&](forms::Form &form) { remove(form, false); });
    setDatabase({});
    notes = "' notes\r\n" + NesNotes + "[EOF]\r\n" + Parameters;
    expectOnDisk();
}

TEST_P(Recorrido, FromAnEmptyCatalogueToPlayedGames_AndBack)
{
    begin();
    addSystemAndEmulators();
    changeExtensionsAndAddresses();
    configureSystem();
    configureEmulator();
    changeEmulator();
    changeAddressesInUse();
    removeEmulator();
    removeSystem();
}
