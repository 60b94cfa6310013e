// What is done to a ROM of the list: boxes answered, words told, the trash and the notes looked at.
#pragma once

#include "mundotest.h"

#include <QDir>

#include <functional>

class AccionesTest : public MundoTest {
protected:
    AccionesTest()
    {
        files.makeDirectory(QStringLiteral("home"));
        qputenv("HOME", files.path(QStringLiteral("home")).toUtf8());
        qputenv("XDG_DATA_HOME", files.path(QStringLiteral("home")).toUtf8());
    }
    ~AccionesTest() override
    {
        qputenv("HOME", m_home);
        qunsetenv("XDG_DATA_HOME");
    }
    void addWords()
    {
        M->Msg_Descripcion0 = QStringLiteral("Descripción");
        M->Msg_Descripcion1 = QStringLiteral("Describe:");
        M->Msg_Parametros0 = QStringLiteral("Parámetros");
        M->Msg_Parametros1 = QStringLiteral("Añade:");
    }
    QStringList trashed() const
    {
        return QDir(files.path(QStringLiteral("home/Trash/files")))
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    }
    // Runs the action and answers its input box.
    void answer(const QString &text, const std::function<void()> &action, const QString &offered)
    {
        bool shown = false;
        atModal(QStringLiteral("Caja"), [&, text](forms::Form &form) {
            shown = true;
            EXPECT_EQ(controlOf<forms::TextBox>(form, QStringLiteral("Casilla")).Text(), offered);
            controlOf<forms::TextBox>(form, QStringLiteral("Casilla")).SetText(text);
            click(controlOf<QWidget>(form, QStringLiteral("Aceptar2")));
        });
        action();
        EXPECT_TRUE(shown);
    }
    void goBack(const QString &text, const std::function<void()> &action)
    {
        atModal(QStringLiteral("Caja"), [text](forms::Form &form) {
            controlOf<forms::TextBox>(form, QStringLiteral("Casilla")).SetText(text);
            click(controlOf<QWidget>(form, QStringLiteral("Flecha2")));
        });
        action();
    }
    // The title and the words of the warning that the action shows.
    QStringList toldBy(const std::function<void()> &action)
    {
        QStringList told;
        atModal(QStringLiteral("Caja"), [&](forms::Form &form) {
            told << form.Caption() << controlOf<forms::Label>(form, QStringLiteral("Texto2")).Caption();
            click(controlOf<QWidget>(form, QStringLiteral("Flecha2")));
        });
        action();
        return told;
    }
    void describe() { click(control(QStringLiteral("BotonA2"))); }
    void discard() { click(control(QStringLiteral("BotonB2"))); }
    void parametersMenu()
    {
        EXPECT_TRUE(popsUp(
            *portada->Menu_Lista1, [&] { clickRow(list(), 0, Qt::RightButton); },
            portada->Menu_Parametros->action()));
    }
    QByteArray notes() const { return files.read(QStringLiteral("Zembro.rom")); }
    void setType(size_t system, const QString &type)
    {
        systemsOfCatalogue[system].emulators[0].type = type;
        files.writeCatalogue(systemsOfCatalogue);
    }

private:
    QByteArray m_home = qgetenv("HOME");
};

inline constexpr size_t ZetaSystem = 0;
