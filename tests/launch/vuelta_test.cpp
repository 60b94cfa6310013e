// What a run left behind, decided from plain values: whether it is brought back, where to, under which name.
#include "launch/nombresdos.h"
#include "launch/rescate.h"

#include <QHash>

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::StringLiterals;
using launch::EnCasa;
using launch::Resto;
using launch::Vuelta;
using launch::VueltaDe;

TEST(SeRecoge, SoloLoQueNadieUsa)
{
    struct Caso {
        Resto resto;
        bool seRecoge;
        const char *que;
    };
    for (const Caso &caso :
        std::initializer_list<Caso> { { { true, false, true, false, false }, true, "who made it was killed" },
            { { true, false, true, true, false }, true, "another process has its number by now" },
            { { true, true, false, true, false }, false, "who made it lives" },
            { { true, true, false, false, false }, false, "it lives where its number isn't seen" },
            { { true, false, true, false, true }, false, "the game goes on" },
            { { true, false, false, true, false }, false, "nothing can be locked, and it may live" },
            { { true, false, false, false, false }, true, "nothing can be locked, and it is dead" },
            { { false, false, true, false, false }, false, "somebody else's" } })
        EXPECT_EQ(launch::SeRecoge(caso.resto), caso.seRecoge) << caso.que;
}

TEST(NombreNuevoEnDOS, EsElQueDosLeDaEnCualquierOrden)
{
    struct Caso {
        QByteArrayList entradas;
        QByteArray nombre;
        QByteArray enDisco;
        QByteArray enDOS;
    };
    for (const Caso &caso : std::initializer_list<Caso> { { {}, "SUPERM~1", "superm~1", "SUPERM~1" },
             { { "a.exe", "MARIO.SAV" }, "MARIO", "mario", "MARIO" },
             { { "Mario" }, "MARIO", "Mario", "MARIO" },
             { { "Super Maker" }, "SUPERM~1", "superm~2", "SUPERM~2" },
             { { "Super Maker", "super man" }, "SUPERM~1", "superm~3", "SUPERM~3" },
             { { "superm~1" }, "SUPERM~1", "superm~1", "SUPERM~1" },
             { { "Super Maker", "superm~1" }, "SUPERM~1", "superm~1", "SUPERM~2" },
             { { "super maker.txt" }, "SUPERM~1", "superm~1", "SUPERM~1" } }) {
        const launch::NombreNuevo nuevo = launch::NombreNuevoEnDOS(caso.entradas, caso.nombre);
        EXPECT_EQ(nuevo.enDisco, caso.enDisco) << caso.entradas.join('|').constData();
        EXPECT_EQ(nuevo.enDOS, caso.enDOS) << caso.entradas.join('|').constData();
        for (const QByteArrayList &entradas : { QByteArrayList { nuevo.enDisco } + caso.entradas,
                 caso.entradas + QByteArrayList { nuevo.enDisco } }) {
            if (!caso.entradas.contains(nuevo.enDisco)) {
                EXPECT_EQ(launch::NombresDOS(entradas)[entradas.indexOf(nuevo.enDisco)], caso.enDOS);
            }
        }
    }
}

TEST(VueltaDe, NadaDeLoQueNoVioSeReemplaza)
{
    struct Caso {
        QString nombre;
        bool directorio;
        bool mostrado;
        QHash<QString, EnCasa> enCasa; // by the name that is tried
        QString adonde;
        bool escribe;
        bool aparta = false;
        qsizetype desde = 0;
    };
    const EnCasa suyo { u"Nino.sav"_s, false, false, false };
    for (const Caso &caso :
        std::initializer_list<Caso> { { u"NINO.SAV"_s, false, false, {}, u"NINO.SAV"_s, true },
            { u"NINO.SAV"_s, false, true, {}, u"NINO.SAV"_s, true },
            { u"NINO.SAV"_s, false, true, { { u"NINO.SAV"_s, suyo } }, u"Nino.sav"_s, true },
            { u"NINO.SAV"_s, false, false, { { u"NINO.SAV"_s, suyo } }, u"NINO-2.SAV"_s, true },
            { u"NINO.SAV"_s, false, false, { { u"NINO.SAV"_s, suyo }, { u"NINO-2.SAV"_s, suyo } },
                u"NINO-3.SAV"_s, true },
            { u"a.nes - NINO.SAV"_s, false, false, { { u"a.nes - NINO.SAV"_s, suyo } },
                u"a.nes - NINO-2.SAV"_s, true, false, 8 },
            { u"a.nes - .SAV"_s, false, false, { { u"a.nes - .SAV"_s, suyo } }, u"a.nes - 2.SAV"_s, true,
                false, 8 },
            // Somebody has changed it while the game ran.
            { u"NINO.SAV"_s, false, true, { { u"NINO.SAV"_s, { u"Nino.sav"_s, false, false, false, true } } },
                u"Nino.sav"_s, true, true },
            // Newer than what was saved: somebody has played there since.
            { u"NINO.SAV"_s, false, true, { { u"NINO.SAV"_s, { u"Nino.sav"_s, false, false, true } } },
                u"NINO-2.SAV"_s, true },
            // It was brought already, and the run was killed ahead of the end.
            { u"NINO.SAV"_s, false, false, { { u"NINO.SAV"_s, { u"Nino.sav"_s, false, true, true } } },
                u"Nino.sav"_s, false },
            { u"NINO.SAV"_s, false, false,
                { { u"NINO.SAV"_s, suyo }, { u"NINO-2.SAV"_s, { u"NINO-2.SAV"_s, false, true, false } } },
                u"NINO-2.SAV"_s, false },
            { u"SAVES"_s, true, false, { { u"SAVES"_s, { u"Saves"_s, true, false, false } } }, u"Saves"_s,
                false },
            { u"SAVES"_s, true, false, { { u"SAVES"_s, { u"saves"_s, false, false, false } } }, u"SAVES-2"_s,
                true },
            { u"NINO.SAV"_s, false, true, { { u"NINO.SAV"_s, { u"nino.sav"_s, true, false, false } } },
                u"NINO-2.SAV"_s, true } }) {
        const Vuelta vuelta = VueltaDe(
            caso.nombre, caso.directorio, caso.mostrado,
            [&](const QString &nombre) {
                return caso.enCasa.contains(nombre) ? std::optional(caso.enCasa[nombre]) : std::nullopt;
            },
            caso.desde);
        EXPECT_EQ(vuelta.nombre, caso.adonde) << caso.nombre.toStdString();
        EXPECT_EQ(vuelta.escribe, caso.escribe) << caso.adonde.toStdString();
        EXPECT_EQ(vuelta.aparta, caso.aparta) << caso.adonde.toStdString();
    }
}
