// Pairs that are configured and saved: a database of five systems, directories with games and captures, and
// what is on the disk then.
#pragma once

#include "configuraciontest.h"

inline const QByteArray Top = "' mine\r\n";
inline const QByteArray End = "[EOF]\r\n";

class GrabacionTest : public ConfiguracionTest {
protected:
    GrabacionTest();

    // A system of the database, with the extensions BIN and ZIP.
    static QByteArray known(
        const QByteArray &name, const QByteArray &web, const QList<QByteArray> &emulators);

    // What is configured of an emulator.
    struct Block {
        QByteArray exe = "/bin/emu";
        QByteArray type = "0";
        QByteArray roms = {};
        QByteArray captures = {};
        QByteArray before = {};
        QByteArray behind = {};
    };
    static QByteArray emulator(const QByteArray &name, const Block &block);
    static QByteArray configured(const QByteArray &name, const QByteArray &web, const QByteArray &blocks);
    // So many systems of one emulator each, named S000, S001 ...
    static QByteArray manyConfigured(int number);

    QByteArray at(const QString &name) const { return files.path(name).toUtf8(); }

    // Starts with the one emulator N1 of the NES, listed.
    void withNes(const Block &block);

    static void mark(const forms::Form &form, int number);
    static void save(const forms::Form &form);
    // Writes an executable and a directory, which is all that a game needs.
    static void writeMinimum(forms::Form &form, const QString &roms);

    // Saves with the notice that all is well, and both steps closed.
    void saveWell(forms::Form &form);
    void saveWithoutGames(forms::Form &form);
    void expectRefused(forms::Form &form, const QString &message);
    // Saves, and the process ends of this classic number.
    void expectEnd(const forms::Form &form, const char *number);

    // Puts red pictures in the place of the capture and of the enlarged one.
    void showRed();

    // What is saved of the catalogue; nothing else changes.
    void expectCatalogue(const QByteArray &expected) { expectFiles(database, expected, notes); }
};
