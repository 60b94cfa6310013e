// A walk through made-up worlds, a pair of a system and an emulator each: the main screen lists them as
// `list` does, and its launches start what `command` tells.
#include "tests/launch/zipdeprueba.h"
#include "tests/support/portadatest.h"

#include "companion/zembro.h"

#include "host/paths.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <random>

using namespace Qt::StringLiterals;

namespace {

// With PASEO=whole in the environment a thousand worlds are walked through, and each is played in; a start
// takes a while.
const bool Entero = qgetenv("PASEO") == "whole";
const int Sistemas = Entero ? 125 : 25;
constexpr int Emuladores = 8; // of each
const int CadaCuantos = Entero ? 1 : 3; // one of so many worlds is played in

QJsonObject json(const QStringList &argumentos)
{
    QByteArray salida;
    companion::Zembro(QStringList { u"--json"_s } + argumentos,
        { [&](const QByteArray &bytes) { salida += bytes; }, [](const QByteArray &) {} });
    return QJsonDocument::fromJson(salida).object();
}

QStringList textos(const QJsonArray &lista)
{
    QStringList todos;
    for (const QJsonValue &uno : lista)
        todos += uno.toString();
    return todos;
}

class Paseo : public PortadaTest {
protected:
    Paseo()
        : m_azar(4711)
    {
        files.write(u"emu/emu.sh"_s,
            "#!/bin/sh\nprintf '%s\\0' \"$PWD\" \"$0\" \"$@\" >'" + files.path(u"out"_s).toUtf8() + "'\n");
        QFile::setPermissions(
            files.path(u"emu/emu.sh"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        for (int s = 0; s < Sistemas; ++s)
            haceSistema(s);
        files.writeCatalogue(m_sistemas);
        files.writeNotes(m_notas);
        whenever(u"Caja"_s, [](forms::Form &caja) {
            auto &acepta = controlOf<QWidget>(caja, u"Aceptar2"_s);
            click(acepta.isHidden() ? controlOf<QWidget>(caja, u"Flecha2"_s) : acepta);
        });
    }

    int hasta(int maximo) { return std::uniform_int_distribution<int>(0, maximo)(m_azar); }

    QString uno(const QStringList &textos) { return textos[hasta(int(textos.size()) - 1)]; }

    QString nombre()
    {
        QString nombre;
        for (int letras = hasta(3); letras >= 0; --letras)
            nombre += uno({ u"a"_s, u"A"_s, u"B"_s, u"b"_s, u"\\"_s, u"ñ"_s, u"1"_s, u" "_s, u"."_s, u"(x)"_s,
                u"'"_s });
        return u"g"_s + nombre;
    }

    void haceSistema(int s)
    {
        SystemEntry sistema { u"Sis%1"_s.arg(hasta(1) * 1000 + s),
            { u"ZIP"_s, uno({ u"NES"_s, u"B"_s, u"x)"_s }) }, {} };
        std::vector<NoteEntry> notas;
        for (int e = 0; e < Emuladores; ++e) {
            const QString lugar = u"w%1/%2/"_s.arg(s).arg(e);
            const int tipo = hasta(8);
            sistema.emulators.push_back({ u"Emu%1"_s.arg(hasta(1) * 100 + e), QString::number(tipo),
                files.path(lugar), files.path(u"img/"_s), files.path(u"emu/emu.sh"_s) });
            files.makeDirectory(lugar);
            for (int f = hasta(3); f >= 0; --f)
                hazJuego(lugar, tipo, notas);
        }
        m_notas.emplace_back(sistema.name, notas);
        m_sistemas.push_back(sistema);
    }

    void hazJuego(const QString &lugar, int tipo, std::vector<NoteEntry> &notas)
    {
        const bool directorio = tipo == 1 || tipo == 6;
        const bool zip = !directorio && hasta(2) == 0;
        const QString suyo = nombre()
            + (directorio ? QString()
                    : zip ? u".zip"_s
                          : uno({ u".nes"_s, u".b"_s, u".Nes"_s, u""_s }));
        if (directorio)
            files.makeDirectory(lugar + suyo);
        else
            files.write(lugar + suyo,
                zip ? Zip({ { "one.txt" }, { uno({ u"two.nes"_s, u"two.b"_s, u"two"_s }).toLatin1() } })
                    : QByteArray(hasta(3) * 1024, 'x'));
        if (hasta(2) == 0)
            notas.push_back({ zip && tipo != 0 && tipo != 5 ? suyo.chopped(4) : suyo,
                uno({ u"One game"_s, u"The same"_s, nombre() }) });
    }

    std::mt19937 m_azar;
    std::vector<SystemEntry> m_sistemas;
    std::vector<std::pair<QString, std::vector<NoteEntry>>> m_notas;
};

} // namespace

TEST_F(Paseo, TheScreenListsEveryPairAsListDoes_AndPlaysAsCommandTells)
{
    start();
    const QJsonArray parejas = json({ u"list"_s })[u"pairs"_s].toArray();
    ASSERT_EQ(parejas.size(), Sistemas * Emuladores);
    int jugadas = 0;
    int arrancadas = 0;
    int conJuegos = 0;
    for (int mundo = 0; mundo < parejas.size(); ++mundo) {
        const QJsonObject pareja = parejas[mundo].toObject();
        const QString sistema = pareja[u"system"_s].toString();
        const QString emulador = pareja[u"emulator"_s].toString();
        SCOPED_TRACE((sistema + u' ' + emulador).toStdString());
        ASSERT_EQ(systems().List(mundo / Emuladores), sistema);
        if (systems().Text() != sistema)
            systems().SetText(sistema);
        ASSERT_EQ(emulators().List(mundo % Emuladores), emulador);
        emulators().SetText(emulador);
        QStringList entradas;
        const QJsonArray juegos = pareja[u"games"_s].toArray();
        for (const QJsonValue &juego : juegos)
            entradas += juego[u"entry"_s].toString();
        ASSERT_EQ(listed(), entradas);
        EXPECT_EQ(summary().trimmed(), pareja[u"summary"_s].toString());
        if (entradas.isEmpty())
            continue;
        ++conJuegos;
        const int cual = hasta(int(entradas.size()) - 1);
        list().SetListIndex(cual);
        const QString datos = juegos[cual][u"facts"_s].toString();
        if (!datos.isEmpty()) {
            EXPECT_EQ(info(), datos);
        }
        if (mundo % CadaCuantos != 0 || entradas.indexOf(entradas[cual]) != cual)
            continue;
        ++jugadas;
        const QJsonObject dicho = json({ u"command"_s, sistema, emulador, u"--"_s, entradas[cual] });
        files.write(u"out"_s, "");
        list().DblClick.raise();
        QStringList hecho = QString::fromUtf8(files.read(u"out"_s)).split(u'\0');
        hecho.removeLast();
        EXPECT_EQ(!hecho.isEmpty(), dicho[u"starts"_s].toBool())
            << QJsonDocument(dicho).toJson().toStdString();
        if (hecho.isEmpty())
            continue;
        ++arrancadas;
        EXPECT_EQ(hecho[0], dicho[u"directory"_s].toString());
        EXPECT_EQ(hecho.mid(2), textos(dicho[u"arguments"_s].toArray()).mid(1))
            << dicho[u"text"_s].toString().toStdString();
    }
    EXPECT_GT(conJuegos, 100);
    EXPECT_GT(jugadas, 20);
    EXPECT_GT(arrancadas, 10);
}
