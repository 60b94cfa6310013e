// A program directory in a temporary folder, written without the code under test.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <vector>

// The content of Zembro.cfg, line by line as it is read.
struct Settings {
    QString LastSisUsed = QStringLiteral("0");
    QString LastEmuUsed = QStringLiteral("0");
    QString SaveLast = QStringLiteral("1");
    QString TypeOfEditor = QStringLiteral("1");
    QString MsgEndDOS = QStringLiteral("Finalizado");
    QString LanguageFile = QStringLiteral("ZB-ESP.LNG");
    QString DebugMode = QStringLiteral("0");
    QStringList Filters { QStringLiteral("CFG"), QStringLiteral("ROMS") };

    QStringList lines() const;
};

struct EmulatorEntry {
    QString name;
    QString type; // the digit of the "XDI" line
    QString roms; // with its closing separator
    QString captures = {};
    QString executable = {};
};

struct SystemEntry {
    QString name;
    QStringList extensions; // without "*."
    std::vector<EmulatorEntry> emulators;
};

struct NoteEntry {
    QString key;
    QString description;
};

class ProgramDirectory {
public:
    // Holds all that the start asks for: settings, a language, and catalogues without a system. It is the
    // program's directory from then on.
    ProgramDirectory();

    QString path(const QString &name = {}) const;

    // Directories on the way are made.
    void write(const QString &name, const QByteArray &bytes) const;
    void writeLines(const QString &name, const QStringList &lines) const; // Windows-1252, CR LF
    void makeDirectory(const QString &name) const;
    void remove(const QString &name) const; // a file, or a directory with all in it
    QByteArray read(const QString &name) const; // fails the test if there is none
    bool exists(const QString &name) const;

    void writeSettings(const Settings &settings) const;
    void writeCatalogue(const std::vector<SystemEntry> &systems) const; // Zembro.emu
    void writeDatabase(const std::vector<SystemEntry> &systems) const; // Zembro.sye
    // One block a system in Zembro.rom, then the section of parameters.
    void writeNotes(const std::vector<std::pair<QString, std::vector<NoteEntry>>> &blocks) const;
    void writeSize(const QString &name, qsizetype bytes) const; // a file of so many bytes
    void writeGif(const QString &name, const QColor &colour) const; // a single dot of this colour

private:
    QTemporaryDir m_directory;
};

// A line of a language file.
QString languageLine(const QString &key, const QString &text);

// The language that the directory holds.
QStringList languageLines();
