// Another copy of the program, or an editor, changes the files while this one stands over tables that it read
// before.
#pragma once

#include "grabaciontest.h"

class OtraCopiaTest : public GrabacionTest {
protected:
    OtraCopiaTest()
    {
        catalogue = Top + nes({ "N1", "N2" }) + own({ "O1" }) + End;
        notes =
            "' notes\r\nNES\r\n'\r\nArcade\r\n'\r\nOwn\r\n'\r\nNew\r\nK,\"d\"\r\n'\r\n[EOF]\r\nParametros "
            "especificos\r\nK,NES,N1,-p\r\n'\r\nfin\r\nfin,\"fin\"\r\n";
    }

    QByteArray nes(const QList<QByteArray> &names) const { return blocks("NES", "http://nes", names); }
    QByteArray own(const QList<QByteArray> &names) const { return blocks("Own", "http://own", names); }
    QByteArray blocks(const QByteArray &name, const QByteArray &web, const QList<QByteArray> &names) const
    {
        QByteArrayList each;
        for (const QByteArray &one : names)
            each += emulator(
                one, { .roms = at(one.endsWith('1') ? QStringLiteral("a/") : QStringLiteral("b/")) });
        return configured(name, web, each.join("'\r\n"));
    }

    // What the other copy writes.
    void writeCatalogue(const QByteArray &bytes)
    {
        catalogue = bytes;
        files.write(QStringLiteral("Zembro.emu"), catalogue);
    }
    void writeDatabase(const QByteArray &bytes)
    {
        database = bytes;
        files.write(QStringLiteral("Zembro.sye"), database);
    }

    void atWord(const QString &title, const QString &text)
    {
        atModal(QStringLiteral("Caja"), [=](forms::Form &box) {
            EXPECT_EQ(box.Caption(), title);
            EXPECT_EQ(captionOf(box, QStringLiteral("Texto2")), text);
            click(controlOf<QWidget>(box, QStringLiteral("Flecha2")));
        });
    }
    void atChanged() { atWord(M->Palabras.Zem_Cambiado0, M->Palabras.Zem_Cambiado1); }
    void atBadName() { atWord(M->Palabras.Zem_NoNombre0, M->Palabras.Zem_NoNombre1); }

    // Presses a removal of the main screen; `other` happens while its question stands.
    void remove(const QString &button, const std::function<void()> &other)
    {
        atModal(QStringLiteral("Caja"), [other](forms::Form &box) {
            other();
            click(controlOf<QWidget>(box, QStringLiteral("Aceptar2")));
        });
        click(control(button));
    }

    static forms::ListBox &listOf(const forms::Form &form, const QString &name)
    {
        return controlOf<forms::ListBox>(form, name);
    }
    static void press(const forms::Form &form, const QString &button)
    {
        click(controlOf<QWidget>(form, button));
    }
    static QStringList systemsOf(const forms::Form &form)
    {
        return entriesOf(listOf(form, QStringLiteral("Lista1")));
    }
    static QString pairOf(const forms::Form &form) { return captionOf(form, QStringLiteral("Texto5")); }

    const QByteArray Added = known("New", "", {});
};
