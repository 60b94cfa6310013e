// The names that a game and its saves go by in another system, and at home.
#include "launch/apodado.h"

#include "host/encoding.h"

#include <gtest/gtest.h>

#include <initializer_list>

TEST(Apodado, WhatAGameSavesComesHomeBehindItsName_AndIsShownAgain)
{
    struct Caso {
        QByteArray fichero;
        QByteArray apodo;
        QByteArray guardado;
        QByteArray enCasa;
    };
    const QByteArray largo(250, 'n');
    for (const Caso &caso : std::initializer_list<Caso> {
             { "ni\xC3\xB1o.nes", "NI012345.NES", "NI012345.SAV", "ni\xC3\xB1o.nes - .SAV" },
             { "ni\xC3\xB1o.nes", "NI012345.NES", "HISCORE.DAT", "ni\xC3\xB1o.nes - HISCORE.DAT" },
             { "ni\xC3\xB1o.nes", "NI012345.NES", "NI012345", "ni\xC3\xB1o.nes - NI012345" },
             { "ni\xC3\xB1o.nes", "NI012345.NES", "NI012345.NEW", "ni\xC3\xB1o.nes - .NEW" },
             { "ni\xC3\xB1o.nes", "NI012345.NES", "NI01234.SAV", "ni\xC3\xB1o.nes - NI01234.SAV" },
             { "ni\xC3\xB1o", "NI012345", "NI012345.SAV", "ni\xC3\xB1o - .SAV" },
             { "a.b?.nes", "a.b_-01234567.nes", "a.b_-01234567.nes.sav", "a.b?.nes - .nes.sav" },
             { "a.b?.nes", "a.b_-01234567.nes", "a.sav", "a.b?.nes - a.sav" } }) {
        EXPECT_EQ(launch::NombreEnCasa(caso.fichero, caso.apodo, caso.guardado), caso.enCasa);
        EXPECT_EQ(launch::NombreMostrado(caso.fichero, caso.apodo, caso.enCasa), caso.guardado);
    }
    EXPECT_EQ(
        launch::NombreEnCasa("ni\xC3\xB1o.nes", "NI012345.NES", "ni012345.sav"), "ni\xC3\xB1o.nes - .sav");
    for (const QByteArray &propio : { QByteArray("NI012345.NES"), QByteArray("ni012345.nes") })
        EXPECT_EQ(launch::NombreEnCasa("ni\xC3\xB1o.nes", "NI012345.NES", propio), "ni\xC3\xB1o.nes - .NEW");
    for (const QByteArray &ajeno :
        { QByteArray("ni\xC3\xB1o.nes"), QByteArray("ni\xC3\xB1o.nes - "), QByteArray("NI012345.SAV"),
            QByteArray("Ni\xC3\xB1o.nes - .SAV"), QByteArray("ni\xC3\xB1o.SAV") })
        EXPECT_EQ(launch::NombreMostrado("ni\xC3\xB1o.nes", "NI012345.NES", ajeno), QByteArray());
    // Cut between characters, and different for two that begin alike.
    const QByteArray prefijo = launch::PrefijoEnCasa(largo + ".nes");
    EXPECT_LE(prefijo.size(), 203);
    EXPECT_TRUE(prefijo.startsWith(QByteArray(191, 'n') + '~'));
    EXPECT_NE(prefijo, launch::PrefijoEnCasa(largo + ".gbc"));
    EXPECT_TRUE(host::nameFromDisk(launch::PrefijoEnCasa(QByteArray("\xC3\xB1").repeated(120)))
                    .startsWith(QString(95, u'\u00F1') + u'~'));
    EXPECT_NE(launch::PrefijoEnCasa("a\\b"), launch::PrefijoEnCasa("a_b"));
    EXPECT_EQ(host::nameToDisk(host::nameFromDisk(launch::PrefijoEnCasa("a\\b"))).count('\\'), 0);
}
