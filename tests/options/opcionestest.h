// The screens of the options over the main screen, joined as in the program. Two languages say every text
// as its key behind a letter: S in ZB-ESP.LNG, the one at the start, and E in ZB-ENG.LNG.
#pragma once

#include "tests/mainscreen/mundotest.h"

#include "options/pantallas.h"

#include <QStringList>

#include <memory>
#include <vector>

// A message box as it stood.
struct Box {
    QString title;
    QString text;
    QStringList words; // under its buttons
    bool warning = false;

    bool operator==(const Box &) const = default;
};
void PrintTo(const Box &box, std::ostream *out);

class OpcionesTest : public MundoTest {
protected:
    OpcionesTest();
    ~OpcionesTest() override;

    // A new process over the same directory.
    void renewJoined();

    void writeLanguage(const QString &file, const QString &letter);

    // Announces a form, which is closed by its arrow if `act` leaves it open.
    void at(const QString &form, const std::function<void(forms::Form &)> &act);
    void open(const QString &button, const QString &form, const std::function<void(forms::Form &)> &act);
    void options(const std::function<void(forms::Form &)> &act); // Opciones1
    void advanced(const std::function<void(forms::Form &)> &act); // Opciones2 by way of Opciones1
    // The end of the process that comes of it.
    std::optional<ProcessEnd> endOfOptions(const std::function<void(forms::Form &)> &act);

    // Presses the disk, and takes the box that comes.
    Box save(forms::Form &form);
    void announceBox(Box &box);

    static forms::ComboBox &comboOf(const forms::Form &form, const QString &name);
    static QString captionOf(const forms::Form &form, const QString &label);
    // Every text that a form shows, with the names for screen readers, by control.
    static QStringList textsOf(const forms::Form &form);

    // Where controls stand, in pixels (designPlace).
    struct Stands {
        QString name;
        QRect place;
    };
    static void expectPlaces(const forms::Form &form, const std::vector<Stands> &controls);

    // The form has the main screen's tile in rows and columns behind its controls.
    void expectTiled(forms::Form &form);

    QByteArray settings() { return files.read(QStringLiteral("Zembro.cfg")); }
    // What identifies one writing of the settings.
    std::vector<qint64> stampOfSettings();

    static Box warningOf(const QString &message); // by the name of the message's keys
    static Box noticeOf(const QString &message);

private:
    std::unique_ptr<options::Pantallas> m_screens;
};
