// The desktop's tools: text editors, terminal, file manager, and what opens a link.
//
// Each is found as a command, the program first, by its whole path. A desktop's own tools come ahead of
// others ($XDG_CURRENT_DESKTOP). An empty command: there is none. Nothing is started here but what openLink
// hands on.
#pragma once

#include <QString>
#include <QStringList>

namespace host {

// An editor that stays in the foreground: $VISUAL (which may hold arguments, or an editor that wants a
// terminal), then the common graphical ones, then what the desktop opens texts with.
QStringList editorCommand(const QString &file);

// An editor in a terminal: $EDITOR, then the common ones.
QStringList terminalEditorCommand(const QString &file);

// A terminal, which begins in the working directory: $TERMINAL, then Debian's x-terminal-emulator, then the
// common ones.
QStringList terminalCommand();

// The file manager on a directory.
QStringList fileManagerCommand(const QString &directory);

// Opens a web page or a mail address with the desktop's program for it; an address without a scheme is one
// that a user would type. Whether anything opens isn't known.
void openLink(const QString &address);

} // namespace host
