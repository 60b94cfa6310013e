#include "tests/support/programdirectory.h"

#include "host/encoding.h"
#include "host/paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray bytesOf(const QStringList &lines)
{
    QString text;
    for (const QString &line : lines)
        text += line + u"\r\n"_s;
    return host::encodeText({ text });
}

const QString EndOfSystem = u"'"_s + QString(70, u'-');

} // namespace

QStringList Settings::lines() const
{
    const QString comment = u"'"_s;
    QStringList lines(9, comment);
    lines << QString() << u"[General]"_s << u"LastSisUsed = "_s + LastSisUsed
          << u"LastEmuUsed = "_s + LastEmuUsed << u"SaveLastEmu&Sis = "_s + SaveLast
          << u"TypeOfEditor = "_s + TypeOfEditor << u"MsgEndDOS = "_s + MsgEndDOS
          << u"LanguageFile = "_s + LanguageFile << u"DebugMode = "_s + DebugMode << QString()
          << u"[Filters]"_s << Filters << QString() << u"[EOF]"_s;
    return lines;
}

ProgramDirectory::ProgramDirectory()
{
    EXPECT_TRUE(m_directory.isValid());
    for (const QString &name : { u"Zembro.faq"_s, u"Zembro.txt"_s, u"Cvtgif15.exe"_s })
        write(name, "x");
    writeSettings({});
    writeLines(u"LNG/ZB-ESP.LNG"_s, languageLines());
    writeCatalogue({});
    writeDatabase({});
    writeNotes({});
    host::setProgramDirectory(m_directory.path());
}

QString ProgramDirectory::path(const QString &name) const
{
    return name.isEmpty() ? m_directory.path() : m_directory.filePath(name);
}

void ProgramDirectory::write(const QString &name, const QByteArray &bytes) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

void ProgramDirectory::writeLines(const QString &name, const QStringList &lines) const
{
    write(name, bytesOf(lines));
}

void ProgramDirectory::makeDirectory(const QString &name) const
{
    ASSERT_TRUE(QDir().mkpath(path(name)));
}

void ProgramDirectory::remove(const QString &name) const
{
    const bool gone =
        QFileInfo(path(name)).isDir() ? QDir(path(name)).removeRecursively() : QFile::remove(path(name));
    ASSERT_TRUE(gone) << name.toStdString();
}

QByteArray ProgramDirectory::read(const QString &name) const
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

bool ProgramDirectory::exists(const QString &name) const
{
    return QFileInfo::exists(path(name));
}

void ProgramDirectory::writeSettings(const Settings &settings) const
{
    writeLines(u"Zembro.cfg"_s, settings.lines());
}

void ProgramDirectory::writeCatalogue(const std::vector<SystemEntry> &systems) const
{
    QStringList lines { u"' configured"_s };
    for (const SystemEntry &system : systems) {
        lines << u'-' + system.name << u"WEB1="_s;
        for (const QString &extension : system.extensions)
            lines << u"*."_s + extension;
        for (const EmulatorEntry &emulator : system.emulators) {
            lines << u"'"_s << u'+' + emulator.name << u"WEB2="_s << u"EXE="_s + emulator.executable
                  << u"XDI="_s + emulator.type << u"ROM="_s + emulator.roms << u"IMG="_s + emulator.captures
                  << u"PAR1="_s << u"PAR2="_s;
        }
        lines << EndOfSystem;
    }
    lines << u"[EOF]"_s;
    writeLines(u"Zembro.emu"_s, lines);
}

void ProgramDirectory::writeDatabase(const std::vector<SystemEntry> &systems) const
{
    QStringList lines { u"' all"_s };
    for (const SystemEntry &system : systems) {
        lines << u'-' + system.name << u"WEB1="_s;
        for (const QString &extension : system.extensions)
            lines << u"*."_s + extension;
        lines << u"'"_s;
        for (const EmulatorEntry &emulator : system.emulators)
            lines << u'+' + emulator.name << u"WEB2="_s;
        lines << EndOfSystem;
    }
    lines << u"[EOF]"_s;
    writeLines(u"Zembro.sye"_s, lines);
}

void ProgramDirectory::writeNotes(const std::vector<std::pair<QString, std::vector<NoteEntry>>> &blocks) const
{
    QStringList lines { u"' notes"_s };
    for (const auto &[system, notes] : blocks) {
        lines << system;
        for (const NoteEntry &note : notes)
            lines << note.key + u",\""_s + note.description + u'"';
        lines << u"'"_s;
    }
    lines << u"[Parametros]"_s << u"Parametros especificos"_s << u"'"_s << u"fin"_s << u"fin,\"fin\""_s;
    writeLines(u"Zembro.rom"_s, lines);
}

void ProgramDirectory::writeSize(const QString &name, qsizetype bytes) const
{
    write(name, QByteArray(bytes, 'x'));
}

void ProgramDirectory::writeGif(const QString &name, const QColor &colour) const
{
    QByteArray gif = QByteArray::fromHex("474946383961010001008000 00");
    gif += static_cast<char>(colour.red());
    gif += static_cast<char>(colour.green());
    gif += static_cast<char>(colour.blue());
    gif += QByteArray::fromHex("000000 2c000000000100010000 0202440100 3b");
    write(name, gif);
}

QString languageLine(const QString &key, const QString &text)
{
    return key.leftJustified(18, u'.') + u"=\""_s + text + u'"';
}

QStringList languageLines()
{
    const std::pair<QString, QString> texts[] = {
        { u"TXT_Volver"_s, u"Volver"_s },
        { u"TXT_Aceptar"_s, u"Aceptar"_s },
        { u"TXT_NingunaROM"_s, u"Ninguna ROM"_s },
        { u"TXT_Cargando"_s, u"Cargando"_s },
        { u"TXT_BaseDeDatos"_s, u"Base de datos"_s },
        { u"TXT_EmuNoSelec"_s, u"Elige emulador"_s },
        { u"TXT_Directorios"_s, u"directorios"_s },
        { u"TXT_Jugar"_s, u"Jugar"_s },
        { u"TXT_Cargar"_s, u"Cargar"_s },
        { u"TXT_Leyendo"_s, u"Leyendo"_s },
        { u"TXT_Añadiendo"_s, u"Añadiendo"_s },
        { u"TXT_InfoLNG"_s, u"Lng: Español"_s },
    };
    QStringList lines { u"' a language"_s };
    for (const auto &[key, text] : texts)
        lines << languageLine(key, text);
    return lines;
}
