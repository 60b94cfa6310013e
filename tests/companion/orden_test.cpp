// The table of commands, and the help that is made from it.
#include "mesadepruebas.h"

#include "companion/ordenes.h"

#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;
using companion::CabidaDe;

TEST(Orden, TakesAsManyArgumentsAsItsHelpShows)
{
    const struct {
        QString argumentos;
        qsizetype minimo, maximo;
    } filas[] = {
        { QString(), 0, 0 },
        { u"SYSTEM"_s, 1, 1 },
        { u"[SYSTEM [EMULATOR]]"_s, 0, 2 },
        { u"SYSTEM [EMULATOR]"_s, 1, 2 },
        { u"[A] [B]"_s, 0, 2 },
        { u"SYSTEM EMULATOR ENTRY"_s, 3, 3 },
    };
    for (const auto &fila : filas) {
        EXPECT_EQ(CabidaDe(fila.argumentos).minimo, fila.minimo) << fila.argumentos.toStdString();
        EXPECT_EQ(CabidaDe(fila.argumentos).maximo, fila.maximo) << fila.argumentos.toStdString();
    }
}

TEST(Ordenes, HaveNamesAndOptionsOfTheirOwnThatAShellTakesAsTheyAre)
{
    static const QRegularExpression nombre(u"^[a-z][a-z-]*$"_s);
    QSet<QString> nombres;
    for (const companion::Orden *orden : companion::Ordenes()) {
        EXPECT_TRUE(orden->nombre.contains(nombre)) << orden->nombre.toStdString();
        EXPECT_FALSE(nombres.contains(orden->nombre)) << orden->nombre.toStdString();
        nombres.insert(orden->nombre);
        QSet<QString> opciones { u"version"_s };
        for (const auto *suyas : { &orden->opciones, &companion::OpcionesComunes() }) {
            for (const companion::Opcion &opcion : *suyas) {
                EXPECT_TRUE(opcion.nombre.contains(nombre)) << opcion.nombre.toStdString();
                EXPECT_FALSE(opciones.contains(opcion.nombre)) << opcion.nombre.toStdString();
                opciones.insert(opcion.nombre);
            }
        }
        EXPECT_EQ(companion::OrdenDe(orden->nombre), orden);
    }
    EXPECT_EQ(companion::OrdenDe(u"nothing"_s), nullptr);
    EXPECT_EQ(companion::OrdenDe({}), nullptr);
}

TEST(Ordenes, TellOfEachCommandInEveryHelp)
{
    const companion::Palabras palabras;
    const QString todo = companion::AyudaDeTodo(palabras).join(u'\n');
    for (const companion::Orden *orden : companion::Ordenes()) {
        EXPECT_TRUE(todo.contains(u"  "_s + orden->nombre + u' ')) << orden->nombre.toStdString();
        const QString suya = companion::AyudaDe(*orden, palabras).join(u'\n');
        EXPECT_TRUE(suya.startsWith(u"Usage: zembro "_s + orden->nombre)) << suya.toStdString();
        for (const companion::Opcion &opcion : orden->opciones)
            EXPECT_TRUE(suya.contains(u"  --"_s + opcion.nombre)) << suya.toStdString();
    }
}
