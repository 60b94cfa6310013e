#include "host/tools.h"

#include "host/process.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>
#include <optional>
#include <span>

using namespace Qt::StringLiterals;

namespace host {

namespace {

struct Tool {
    QStringView program;
    QStringView arguments; // ahead of the file's; of a terminal ahead of a program to run in it
    QStringView desktop; // whose own tool it is; of none if empty
};

// With what keeps one from handing the file to an instance that runs already.
constexpr Tool Editors[] = {
    { u"gnome-text-editor", u"--standalone", u"GNOME" },
    { u"kate", u"--block", u"KDE" },
    { u"mousepad", u"--disable-server", u"XFCE" },
    { u"pluma", u"--wait", u"MATE" },
    { u"xed", u"--wait", u"X-Cinnamon" },
    { u"featherpad", u"--standalone", u"LXQt" },
    { u"gedit", u"--wait", u"" },
    { u"kwrite", u"", u"" },
    { u"geany", u"--new-instance", u"" },
    { u"leafpad", u"", u"" },
    { u"l3afpad", u"", u"" },
};

constexpr Tool TerminalEditors[] = {
    { u"nano", u"", u"" },
    { u"vim", u"", u"" },
    { u"vi", u"", u"" },
};

// Editors that a user may name in $VISUAL and that draw on a terminal.
constexpr QStringView DrawOnTerminal[] = { u"nano", u"vim", u"vi", u"nvim", u"micro", u"joe", u"jed", u"ne",
    u"mcedit", u"hx", u"helix", u"kak", u"pico", u"ed", u"nvi", u"elvis", u"mg", u"zile", u"tilde" };

constexpr Tool Terminals[] = {
    { u"gnome-terminal", u"--wait --", u"GNOME" },
    { u"kgx", u"-e", u"GNOME" },
    { u"konsole", u"-e", u"KDE" },
    { u"xfce4-terminal", u"-x", u"XFCE" },
    { u"mate-terminal", u"-x", u"MATE" },
    { u"qterminal", u"-e", u"LXQt" },
    { u"terminator", u"-x", u"" },
    { u"tilix", u"-e", u"" },
    { u"alacritty", u"-e", u"" },
    { u"kitty", u"", u"" },
    { u"foot", u"", u"" },
    { u"rxvt-unicode", u"-e", u"" },
    { u"urxvt", u"-e", u"" },
    { u"st", u"-e", u"" },
    { u"xterm", u"-e", u"" },
};

constexpr Tool FileManagers[] = {
    { u"nautilus", u"", u"GNOME" },
    { u"dolphin", u"", u"KDE" },
    { u"thunar", u"", u"XFCE" },
    { u"caja", u"", u"MATE" },
    { u"nemo", u"", u"X-Cinnamon" },
    { u"pcmanfm-qt", u"", u"LXQt" },
    { u"pcmanfm", u"", u"LXDE" },
    { u"krusader", u"", u"" },
    { u"doublecmd", u"", u"" },
    { u"spacefm", u"", u"" },
    { u"xfe", u"", u"" },
    { u"rox-filer", u"", u"" },
};

constexpr Tool DesktopOpener { u"xdg-open", u"", u"" };
constexpr Tool DebianTerminal { u"x-terminal-emulator", u"-e", u"" };

// Where a program lies; empty if it isn't installed.
QString placeOf(const QString &program)
{
    return QStandardPaths::findExecutable(program);
}

bool isDesktops(const Tool &tool)
{
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
    return !tool.desktop.isEmpty() && desktops.contains(tool.desktop, Qt::CaseInsensitive);
}

const Tool *find(std::span<const Tool> tools)
{
    const Tool *first = nullptr;
    for (const Tool &tool : tools) {
        if (placeOf(tool.program.toString()).isEmpty())
            continue;
        if (isDesktops(tool))
            return &tool;
        first = first ? first : &tool;
    }
    return first;
}

QStringList commandOf(const Tool &tool)
{
    return QStringList { placeOf(tool.program.toString()) } + splitArguments(tool.arguments);
}

// What the user's own setting names, if it is installed.
QStringList chosenCommand(const char *variable)
{
    QStringList command = splitArguments(qEnvironmentVariable(variable));
    if (command.isEmpty())
        return {};
    command.first() = placeOf(command.first());
    return command.first().isEmpty() ? QStringList() : command;
}

QString baseName(const QString &program)
{
    return QFileInfo(program).fileName();
}

struct Terminal {
    QStringList command;
    QStringList toRun; // what comes ahead of a program to run in it
};

Terminal chosenTerminal(const QStringList &command)
{
    const QString name = baseName(command.first());
    const auto known =
        std::ranges::find_if(Terminals, [&](const Tool &tool) { return tool.program == name; });
    const QStringView toRun = known == std::end(Terminals) ? QStringView(u"-e") : known->arguments;
    return { command, splitArguments(toRun) };
}

std::optional<Terminal> findTerminal()
{
    const QStringList chosen = chosenCommand("TERMINAL");
    if (!chosen.isEmpty())
        return chosenTerminal(chosen);
    const Tool *tool = find({ &DebianTerminal, 1 });
    if (!tool)
        tool = find(Terminals);
    if (!tool)
        return std::nullopt;
    return Terminal { { placeOf(tool->program.toString()) }, splitArguments(tool->arguments) };
}

QStringList inTerminal(const QStringList &command)
{
    const std::optional<Terminal> terminal = findTerminal();
    return terminal ? terminal->command + terminal->toRun + command : QStringList();
}

bool drawsOnTerminal(const QStringList &editor)
{
    const QString name = baseName(editor.first());
    const bool emacsInTerminal = name.startsWith(u"emacs") && editor.contains(u"-nw");
    return emacsInTerminal || std::ranges::find(DrawOnTerminal, name) != std::end(DrawOnTerminal);
}

QStringList with(QStringList command, const QString &argument)
{
    if (!command.isEmpty())
        command.append(argument);
    return command;
}

// A name that begins with a dash would pass for an option.
QString asArgument(const QString &file)
{
    return file.startsWith(u'-') ? u"./"_s + file : file;
}

QStringList found(std::span<const Tool> tools)
{
    const Tool *tool = find(tools);
    if (!tool)
        tool = find({ &DesktopOpener, 1 });
    return tool ? commandOf(*tool) : QStringList();
}

} // namespace

QStringList editorCommand(const QString &file)
{
    const QStringList chosen = chosenCommand("VISUAL");
    if (!chosen.isEmpty()) {
        const QStringList command = drawsOnTerminal(chosen) ? inTerminal(chosen) : chosen;
        if (!command.isEmpty())
            return with(command, asArgument(file));
    }
    return with(found(Editors), asArgument(file));
}

QStringList terminalEditorCommand(const QString &file)
{
    QStringList editor = chosenCommand("EDITOR");
    if (editor.isEmpty() || !drawsOnTerminal(editor)) {
        const Tool *tool = find(TerminalEditors);
        editor = tool ? commandOf(*tool) : QStringList();
    }
    return editor.isEmpty() ? QStringList() : with(inTerminal(editor), asArgument(file));
}

QStringList terminalCommand()
{
    const std::optional<Terminal> terminal = findTerminal();
    return terminal ? terminal->command : QStringList();
}

QStringList fileManagerCommand(const QString &directory)
{
    return with(found(FileManagers), asArgument(directory));
}

void openLink(const QString &address)
{
    QDesktopServices::openUrl(QUrl::fromUserInput(address));
}

} // namespace host
