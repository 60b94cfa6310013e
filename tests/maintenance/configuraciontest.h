// The configuring of systems and emulators over the main screen, with every message of the language named
// after its key.
#pragma once

#include "tests/support/portadatest.h"

#include "maintenance/bajas.h"
#include "maintenance/pasos.h"

#include <memory>

inline const QByteArray Closing =
    "'----------------------------------------------------------------------\r\n";

class ConfiguracionTest : public PortadaTest {
protected:
    ConfiguracionTest();

    // Starts the program over the files as they are.
    void begin();

    // Presses Boton1b, and drives the first step while it stands; left open, it is closed by its arrow.
    void configure(const std::function<void(forms::Form &)> &act);
    // Selects a pair in the first step, and drives the second one while it stands; left open, it is closed by
    // its arrow.
    void configurePair(
        const QString &system, const QString &emulator, const std::function<void(forms::Form &)> &act);
    // As configure, and the end of the process that comes of it.
    std::optional<ProcessEnd> endOfConfiguring(const std::function<void(forms::Form &)> &act);

    // Announce a message box, and answer it. An input shows the offer, which the typed text replaces.
    void atInput(const QString &key, const QString &offer, const QString &typed, bool accepted = true);
    void atQuestion(const QString &key, const QString &name, bool accepted);
    void atWarning(const QString &key);
    void atNotice(const QString &key);
    void atNotWritten(); // the warning that nothing can be written

    // The three files that configuring may change; the settings never change.
    void expectFiles(const QByteArray &database, const QByteArray &catalogue, const QByteArray &notes);
    void expectFilesUnchanged();

    static void write(
        forms::Form &form, const QString &box, const QString &text); // in place of what stands there
    static void select(forms::ListBox &list, const QString &text); // by a click on its row
    static QStringList entriesOf(const forms::ListBox &list);
    static QString captionOf(const forms::Form &form, const QString &label);

    QByteArray database; // Zembro.sye, as it was written last
    QByteArray catalogue; // Zembro.emu
    QByteArray notes; // Zembro.rom

private:
    void atBox(const QString &key, const QString &label, const QString &text, const QString &button);

    std::unique_ptr<maintenance::Pasos> m_steps;
    std::unique_ptr<maintenance::Bajas> m_removals;
    QByteArray m_settings;
};
