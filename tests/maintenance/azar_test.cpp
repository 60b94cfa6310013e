// A random walk over the screens that change the catalogue, with names as odd as a user may type them,
// another language now and then, and another copy of the program that changes the files while a box stands.
// Whatever comes of a step: what the user didn't name stays line for line, the files stay readable, and the
// process goes on. The walk is the same for a seed.

#include "grabaciontest.h"

#include "core/altas.h"
#include "core/bajas.h"
#include "core/catalogo.h"
#include "core/notas.h"
#include "core/parrom.h"

#include "host/encoding.h"

#include <iostream>
#include <iterator>
#include <map>
#include <random>
#include <set>

using namespace Qt::StringLiterals;

namespace {

constexpr int Steps = 60; // of a walk
constexpr int MostEmulators = 6;
constexpr int MostSystems = 12;

// A system's own lines are those of no emulator.
using Pair = std::pair<QByteArray, QByteArray>;
using Lines = std::map<Pair, QByteArrayList>;

bool isKept(const QByteArray &line)
{
    static const char *const beginnings[] = { "-", "+", "*.", "EXE", "XDI", "ROM", "IMG", "PAR1", "PAR2",
        "WEB1", "WEB2" };
    return std::any_of(std::begin(beginnings), std::end(beginnings),
        [&line](const char *beginning) { return line.startsWith(beginning); });
}

QString textOf(const QByteArray &bytes)
{
    return host::decodeText(bytes).text;
}

// The lines that the program reads, by whose they are. Each system has its closing line, and the end its
// mark.
Lines linesOf(const QByteArray &bytes)
{
    Lines lines;
    Pair owner;
    bool open = false;
    bool ended = false;
    for (QByteArray line : textOf(bytes).toUtf8().split('\n')) {
        line = line.trimmed().isEmpty() ? QByteArray() : line.chopped(line.endsWith('\r') ? 1 : 0);
        EXPECT_FALSE(ended && isKept(line)) << "behind the end: " << line.toStdString();
        ended = ended || line.startsWith('[');
        if (line.startsWith('-')) {
            EXPECT_FALSE(open) << "not closed ahead of " << line.toStdString();
            owner = { line.sliced(1), {} };
            EXPECT_FALSE(lines.contains(owner)) << "twice: " << line.toStdString();
            open = true;
        } else if (line.startsWith('+')) {
            owner.second = line;
            EXPECT_FALSE(lines.contains(owner)) << "twice: " << line.toStdString();
        } else if (line.startsWith("'-")) {
            open = false;
        }
        if (isKept(line)) {
            EXPECT_TRUE(open) << "outside any system: " << line.toStdString();
            lines[owner] += line;
        }
    }
    EXPECT_FALSE(open);
    EXPECT_TRUE(ended);
    return lines;
}

class Azar : public GrabacionTest, public testing::WithParamInterface<unsigned> {
protected:
    Azar()
    {
        files.write(u"LNG/ZB-OTR.LNG"_s, files.read(u"LNG/ZB-ESP.LNG"_s).replace("TXT_Jugar\"", "Otro\""));
        notes.replace("Play Station\r\n'\r\n", "Play Station\r\n'\r\nPSX\r\n'\r\n");
        notes += "NEXT\r\nX,\"x\"\r\n'\r\n";
        whenever(u"Caja"_s, [this](forms::Form &box) { answer(box); });
    }

    size_t random(size_t total) { return m_random() % total; }
    template <typename Kind> const typename Kind::value_type &any(const Kind &kind)
    {
        return *std::next(
            kind.begin(), static_cast<std::ptrdiff_t>(random(static_cast<size_t>(kind.size()))));
    }

    // Steps. Each tells what the user names by it.
    void addSystem(forms::Form &form);
    void addEmulator(forms::Form &form);
    void deleteEmulator(forms::Form &form);
    void deleteSystem(forms::Form &form);
    void changeExtensions(forms::Form &form);
    void changeSystemsAddress(forms::Form &form);
    void changeEmulatorsAddress(forms::Form &form);
    void saveEmulator(forms::Form &form);
    void removeSystem();
    void removeEmulator();
    void changeLanguage();

    void walk();

    std::map<QByteArray, int> changes; // by the step's name
    int changedByOther = 0;

private:
    void answer(forms::Form &box);
    void other();
    QString oddName(const QString &kind);

    void look();
    void name(const QByteArray &system, const QByteArray &emulator) { m_named.insert({ system, emulator }); }
    void nameSystem(const Lines &lines, const QByteArray &system);
    void expectOthersAsTheyWere();
    void expectReadable();
    static void expectOnlyNamed(const Lines &before, const Lines &now, const std::set<Pair> &named);
    void check(const char *step, const std::function<void()> &act);
    void stepOf(forms::Form &form);

    static forms::ListBox &listOf(const forms::Form &form, const QString &which)
    {
        return controlOf<forms::ListBox>(form, which);
    }
    static void press(const forms::Form &form, const QString &button)
    {
        click(controlOf<QWidget>(form, button));
    }
    // Selects anything in one of the lists; false where there is nothing.
    bool selectAny(const forms::Form &form, const QString &which)
    {
        forms::ListBox &list = listOf(form, which);
        if (list.ListCount() == 0)
            return false;
        list.SetListIndex(static_cast<int>(random(static_cast<size_t>(list.ListCount()))));
        return true;
    }
    bool selectPair(const forms::Form &form)
    {
        return selectAny(form, u"Lista1"_s) && selectAny(form, u"Lista2"_s);
    }
    static QByteArray system(const forms::Form &form) { return listOf(form, u"Lista1"_s).Text().toUtf8(); }
    static QByteArray emulator(const forms::Form &form)
    {
        return '+' + listOf(form, u"Lista2"_s).Text().toUtf8();
    }

    const forms::Form *m_first = nullptr; // the first step, under the second one
    std::mt19937 m_random { GetParam() };
    int m_names = 0;
    QString m_typed; // the answer to the next input
    bool m_otherComes = false;
    std::set<Pair> m_named;
    Lines m_database;
    Lines m_catalogue;
    QByteArray m_settings = files.read(u"Zembro.cfg"_s);
};

QString Azar::oddName(const QString &kind)
{
    static const QString beginnings[] = { QString(), QString(), QString(), u"-"_s, u"+"_s, u"'"_s, u"["_s,
        u" "_s, u"*."_s, u"WEB1="_s, u"\""_s, u"Parametros "_s };
    static const QString ends[] = { QString(), QString(), u" ñ"_s, u"/b"_s, u" \"q\""_s, u" '"_s, u", c"_s,
        u" "_s, u",\"q\""_s };
    static const QString whole[] = { u"'"_s, u"fin"_s, u"-"_s, u"+"_s, u"["_s, u"'-"_s, u"Parametros"_s,
        u" "_s, u"NEXT"_s, u"X,\"x\""_s };
    if (random(4) == 0)
        return whole[random(std::size(whole))];
    return beginnings[random(std::size(beginnings))] + kind + QString::number(++m_names)
        + ends[random(std::size(ends))];
}

// Whatever comes up: inputs take what is to be typed, questions a yes, and the other copy works meanwhile.
void Azar::answer(forms::Form &box)
{
    if (std::exchange(m_otherComes, false))
        other();
    if (!controlOf<QWidget>(box, u"Casilla"_s).isHidden())
        controlOf<forms::TextBox>(box, u"Casilla"_s).SetText(m_typed);
    const bool canAccept = !controlOf<QWidget>(box, u"Aceptar2"_s).isHidden();
    click(controlOf<QWidget>(box, canAccept ? u"Aceptar2"_s : u"Flecha2"_s));
}

void Azar::other()
{
    const auto change = [this](const QString &file, const auto &function) {
        files.write(file, function(textOf(files.read(file))).toUtf8());
    };
    const QString added = u"Other%1"_s.arg(++m_names);
    const bool ofCatalogue = random(2) == 0;
    const Pair one = any(ofCatalogue ? m_catalogue : m_database).first;
    const QString system = QString::fromUtf8(one.first);
    const QString emulator = QString::fromUtf8(one.second.isEmpty() ? one.second : one.second.sliced(1));
    const core::EmuladorNuevo block { added, {}, u"/bin/o"_s, u"0"_s, u"/r"_s, {}, {}, {} };
    if (ofCatalogue && random(3) == 0)
        change(u"Zembro.emu"_s, [&](const QString &text) { return core::SinSistema(text, system); });
    else if (ofCatalogue)
        change(u"Zembro.emu"_s,
            [&](const QString &text) { return core::ConEmuladorConfigurado(text, u'-' + system, block); });
    else if (random(3) == 0)
        change(u"Zembro.sye"_s,
            [&](const QString &text) { return core::SinEmuladorEnBase(text, system, emulator); });
    else
        change(u"Zembro.sye"_s,
            [&](const QString &text) { return core::ConEmuladorEnBase(text, u'-' + system, added); });
    look();
    ++changedByOther;
}

void Azar::look()
{
    m_database = linesOf(files.read(u"Zembro.sye"_s));
    m_catalogue = linesOf(files.read(u"Zembro.emu"_s));
}

void Azar::nameSystem(const Lines &lines, const QByteArray &system)
{
    for (const auto &[pair, ignored] : lines) {
        if (pair.first == system)
            m_named.insert(pair);
    }
}

void Azar::expectOnlyNamed(const Lines &before, const Lines &now, const std::set<Pair> &named)
{
    for (const auto &[pair, lines] : before) {
        if (named.contains(pair))
            continue;
        EXPECT_TRUE(now.contains(pair))
            << "gone: " << pair.first.toStdString() << ' ' << pair.second.toStdString();
        if (now.contains(pair)) {
            EXPECT_EQ(now.at(pair), lines);
        }
    }
    for (const auto &[pair, ignored] : now)
        EXPECT_TRUE(before.contains(pair) || named.contains(pair))
            << "came: " << pair.first.toStdString() << ' ' << pair.second.toStdString();
}

void Azar::expectOthersAsTheyWere()
{
    expectOnlyNamed(m_database, linesOf(files.read(u"Zembro.sye"_s)), m_named);
    expectOnlyNamed(m_catalogue, linesOf(files.read(u"Zembro.emu"_s)), m_named);
    const QByteArray rom = files.read(u"Zembro.rom"_s);
    for (const char *kept : { "Arcade\r\n", "Parametros especificos\r\n", "NEXT\r\nX,\"x\"\r\n'\r\n" })
        EXPECT_EQ(rom.count(kept), 1) << kept;
    EXPECT_EQ(files.read(u"Zembro.cfg"_s), m_settings);
    EXPECT_FALSE(files.exists(u"Zembro.tmp"_s));
}

// By the program's own readers, in a state of their own.
void Azar::expectReadable()
{
    auto state = std::make_unique<core::Modulo>();
    EXPECT_NO_THROW(core::LeeCatalogo(*state));
    state->VerBaseDeDatos = 1;
    EXPECT_NO_THROW(core::LeeCatalogo(*state));
    for (int s = 0; s <= state->Indice_Sistema; ++s) {
        const QString system = core::Valor(state->Cat_Nombre(s, 0), 1);
        EXPECT_NO_THROW(core::CargaNotas(*state, system)) << system.toStdString();
        state->Ficheros.closeAll();
    }
    host::TextSource parameters(textOf(files.read(u"Zembro.rom"_s)));
    EXPECT_EQ(core::ParametrosDe(parameters, u"K"_s), u"-p"_s);
    EXPECT_EQ(M->Combo1Listo, systems().ListCount() > 0 ? 1 : 0);
}

void Azar::check(const char *step, const std::function<void()> &act)
{
    SCOPED_TRACE(step);
    const QByteArray before = files.read(u"Zembro.sye"_s) + files.read(u"Zembro.emu"_s);
    look();
    m_named.clear();
    m_otherComes = random(3) == 0 && !m_catalogue.empty();
    act();
    m_otherComes = false;
    expectOthersAsTheyWere();
    expectReadable();
    if (files.read(u"Zembro.sye"_s) + files.read(u"Zembro.emu"_s) != before)
        ++changes[step];
}

void Azar::addSystem(forms::Form &form)
{
    m_typed = oddName(u"S"_s);
    if (listOf(form, u"Lista1"_s).ListCount() >= MostSystems)
        return;
    name(m_typed.toUtf8(), {});
    press(form, u"Mas1"_s);
}

void Azar::addEmulator(forms::Form &form)
{
    m_typed = oddName(u"E"_s);
    if (!selectAny(form, u"Lista1"_s) || listOf(form, u"Lista2"_s).ListCount() >= MostEmulators)
        return;
    name(system(form), '+' + m_typed.toUtf8());
    press(form, u"Boton_Mas2"_s);
}

void Azar::deleteEmulator(forms::Form &form)
{
    if (!selectPair(form))
        return;
    name(system(form), emulator(form));
    press(form, u"Boton_Menos2"_s);
}

void Azar::deleteSystem(forms::Form &form)
{
    if (!selectAny(form, u"Lista1"_s) || system(form) == "Arcade" || system(form) == "NES")
        return;
    nameSystem(m_database, system(form));
    press(form, u"Menos1"_s);
}

// Without any the process ends, by design.
void Azar::changeExtensions(forms::Form &form)
{
    if (!selectAny(form, u"Lista1"_s)
        || M->BD_EXT(listOf(form, u"Lista1"_s).ItemData(listOf(form, u"Lista1"_s).ListIndex()), 0).isEmpty())
        return;
    m_typed = u"zip,e%1"_s.arg(random(50));
    name(system(form), {});
    press(form, u"Boton_E"_s);
}

void Azar::changeSystemsAddress(forms::Form &form)
{
    if (!selectAny(form, u"Lista1"_s))
        return;
    m_typed = u"http://%1"_s.arg(random(1000));
    name(system(form), {});
    press(form, u"Boton_W1"_s);
}

void Azar::changeEmulatorsAddress(forms::Form &form)
{
    if (!selectPair(form))
        return;
    m_typed = u"http://%1"_s.arg(random(1000));
    name(system(form), emulator(form));
    press(form, u"Boton_W2"_s);
}

void Azar::saveEmulator(forms::Form &form)
{
    if (!selectPair(form))
        return;
    name(system(form), emulator(form));
    if (!m_catalogue.contains({ system(form), {} }))
        name(system(form), {});
    atModal(u"Configuracion2"_s, [this](forms::Form &second) {
        controlOf<forms::TextBox>(second, u"Casilla1"_s).SetText(u"/bin/%1"_s.arg(random(1000)));
        controlOf<forms::TextBox>(second, u"Casilla2"_s)
            .SetText(files.path(random(2) == 0 ? u"a"_s : u"b/"_s));
        controlOf<forms::TextBox>(second, u"Casilla4"_s).SetText(u"-x %1"_s.arg(random(1000)));
        if (M->Config_Origen == 1)
            mark(second, random(2) == 0 ? 1 : 2);
        if (std::exchange(m_otherComes, false))
            other();
        // The other copy may have taken out the system, and with it what it held.
        if (!m_catalogue.contains({ system(*m_first), {} }))
            name(system(*m_first), {});
        save(second);
        if (second.isVisible())
            click(controlOf<QWidget>(second, u"Flecha1"_s));
    });
    m_first = &form;
    press(form, u"Aceptar2"_s);
}

void Azar::removeSystem()
{
    if (systems().Text().isEmpty())
        return;
    nameSystem(m_catalogue, systems().Text().toUtf8());
    click(control(u"Menos2a"_s));
}

void Azar::removeEmulator()
{
    if (emulators().ListCount() == 0)
        return;
    pick(emulators(),
        emulators().List(static_cast<int>(random(static_cast<size_t>(emulators().ListCount())))));
    name(systems().Text().toUtf8(), '+' + emulators().Text().toUtf8());
    click(control(u"Menos2b"_s));
}

void Azar::changeLanguage()
{
    M->LanguageFile = M->LanguageFile == u"ZB-ESP.LNG" ? u"ZB-OTR.LNG"_s : u"ZB-ESP.LNG"_s;
    portada->Textos();
}

void Azar::stepOf(forms::Form &form)
{
    static constexpr std::pair<const char *, void (Azar::*)(forms::Form &)> steps[] = {
        { "add a system", &Azar::addSystem }, { "add an emulator", &Azar::addEmulator },
        { "add an emulator", &Azar::addEmulator }, { "delete an emulator", &Azar::deleteEmulator },
        { "delete a system", &Azar::deleteSystem }, { "extensions", &Azar::changeExtensions },
        { "address of a system", &Azar::changeSystemsAddress },
        { "address of an emulator", &Azar::changeEmulatorsAddress }
    };
    const auto &[step, act] = steps[random(std::size(steps))];
    check(step, [&, act = act] { (this->*act)(form); });
}

void Azar::walk()
{
    if (random(4) == 0)
        check("language", [this] { changeLanguage(); });
    if (systems().ListCount() > 0 && random(2) == 0)
        pick(systems(), systems().List(static_cast<int>(random(static_cast<size_t>(systems().ListCount())))));
    const size_t kind = random(6);
    if (kind == 0)
        check("remove a system", [this] { removeSystem(); });
    else if (kind <= 2)
        check("remove an emulator", [this] { removeEmulator(); });
    else
        configure([this, kind](forms::Form &form) {
            for (size_t i = random(4); i > 0; --i)
                stepOf(form);
            if (kind > 3)
                check("save", [&] { saveEmulator(form); });
        });
}

TEST_P(Azar, WhatTheUserDidntNameStaysLineForLine)
{
    std::cout << "seed " << GetParam() << '\n';
    notes.replace("Parametros especificos\r\n", "Parametros especificos\r\nK,NES,N1,-p\r\n");
    catalogue = Top
        + configured("NES", "http://nes",
            GrabacionTest::emulator("N1", { .roms = at(u"a/"_s) }) + "'\r\n"
                + GrabacionTest::emulator("N2", { .roms = at(u"b/"_s) }))
        + configured("Own", "http://own", GrabacionTest::emulator("O1", { .roms = at(u"a/"_s) })) + End;
    database.replace(
        "+O1\r\nWEB2=http://o1\r\n+N1\r\nWEB2=http://n1", "+O1\r\nWEB2=http://o1\r\n+O2\r\nWEB2=http://o2");
    begin();
    for (int step = 0; step < Steps && !HasFailure(); ++step) {
        SCOPED_TRACE(step);
        walk();
    }
    for (const auto &[step, count] : changes)
        std::cout << step.toStdString() << ": " << count << '\n';
    EXPECT_GE(changes.size(), 8u);
    EXPECT_GT(changedByOther, 5);
}

// A long run asks for more.
unsigned walks()
{
    bool given = false;
    const unsigned number = qEnvironmentVariable("WALKS").toUInt(&given);
    return given ? number : 2;
}

INSTANTIATE_TEST_SUITE_P(Seeds, Azar, testing::Range(1u, 1 + walks()),
    [](const auto &tested) { return "Seed" + std::to_string(tested.param); });

} // namespace
