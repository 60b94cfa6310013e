// Which of the desktop's tools are taken, among those that lie in PATH.
#include "tests/host/disktest.h"
#include "tests/support/browser.h"

#include "host/tools.h"

using namespace Qt::StringLiterals;

namespace {

class ToolsTest : public DiskTest {
protected:
    ToolsTest()
    {
        qputenv("PATH", place());
        for (const char *variable : { "VISUAL", "EDITOR", "TERMINAL", "XDG_CURRENT_DESKTOP" })
            qunsetenv(variable);
    }
    ~ToolsTest() override { qputenv("PATH", m_path); }

    void install(std::initializer_list<QByteArray> programs) const
    {
        for (const QByteArray &program : programs) {
            makeFile(program, "#!/bin/sh\n");
            setMode(program, 0755);
        }
    }

private:
    const QByteArray m_path = qgetenv("PATH");
};

} // namespace

TEST_F(ToolsTest, ThereIsNoToolWhereNothingIsInstalled)
{
    EXPECT_EQ(host::editorCommand(u"f"_s), QStringList());
    EXPECT_EQ(host::terminalEditorCommand(u"f"_s), QStringList());
    EXPECT_EQ(host::terminalCommand(), QStringList());
    EXPECT_EQ(host::fileManagerCommand(u"d"_s), QStringList());
}

TEST_F(ToolsTest, FileIsOneArgument)
{
    install({ "mousepad", "xterm", "nano", "thunar" });
    const QString file = u"/a b/\"c\" $(d)'.txt"_s;
    EXPECT_EQ(host::editorCommand(file), (QStringList { path(u"mousepad"_s), u"--disable-server"_s, file }));
    EXPECT_EQ(host::terminalEditorCommand(file),
        (QStringList { path(u"xterm"_s), u"-e"_s, path(u"nano"_s), file }));
    EXPECT_EQ(host::fileManagerCommand(u"/a b/"_s), (QStringList { path(u"thunar"_s), u"/a b/"_s }));
}

TEST_F(ToolsTest, NameWithADashIsNoOption)
{
    install({ "leafpad" });
    EXPECT_EQ(host::editorCommand(u"-x.txt"_s), (QStringList { path(u"leafpad"_s), u"./-x.txt"_s }));
}

TEST_F(ToolsTest, OwnEditorComesFirstWithItsArguments)
{
    install({ "mousepad", "mine" });
    qputenv("VISUAL", "mine -w \"two words\"");
    EXPECT_EQ(
        host::editorCommand(u"f"_s), (QStringList { path(u"mine"_s), u"-w"_s, u"two words"_s, u"f"_s }));
}

TEST_F(ToolsTest, OwnEditorThatIsNotInstalledGivesWay)
{
    install({ "mousepad" });
    qputenv("VISUAL", "mine");
    EXPECT_EQ(
        host::editorCommand(u"f"_s), (QStringList { path(u"mousepad"_s), u"--disable-server"_s, u"f"_s }));
}

TEST_F(ToolsTest, OwnEditorThatDrawsOnATerminalGetsOne)
{
    install({ "mousepad", "vim", "konsole", "emacs" });
    qputenv("VISUAL", place("vim") + " -R");
    EXPECT_EQ(host::editorCommand(u"f"_s),
        (QStringList { path(u"konsole"_s), u"-e"_s, path(u"vim"_s), u"-R"_s, u"f"_s }));
    qputenv("VISUAL", "emacs -nw");
    EXPECT_EQ(host::editorCommand(u"f"_s),
        (QStringList { path(u"konsole"_s), u"-e"_s, path(u"emacs"_s), u"-nw"_s, u"f"_s }));
    qputenv("VISUAL", "emacs");
    EXPECT_EQ(host::editorCommand(u"f"_s), (QStringList { path(u"emacs"_s), u"f"_s }));
}

TEST_F(ToolsTest, OwnEditorForATerminalGivesWayWithoutOne)
{
    install({ "mousepad", "vim" });
    qputenv("VISUAL", "vim");
    EXPECT_EQ(
        host::editorCommand(u"f"_s), (QStringList { path(u"mousepad"_s), u"--disable-server"_s, u"f"_s }));
}

TEST_F(ToolsTest, DesktopsOwnToolsComeAheadOfOthers)
{
    install({ "kate", "mousepad", "gnome-terminal", "xfce4-terminal", "nautilus", "thunar" });
    EXPECT_EQ(host::editorCommand(u"f"_s).first(), path(u"kate"_s));
    EXPECT_EQ(host::terminalCommand(), QStringList { path(u"gnome-terminal"_s) });
    EXPECT_EQ(host::fileManagerCommand(u"d"_s).first(), path(u"nautilus"_s));
    qputenv("XDG_CURRENT_DESKTOP", "some:xfce");
    EXPECT_EQ(host::editorCommand(u"f"_s).first(), path(u"mousepad"_s));
    EXPECT_EQ(host::terminalCommand(), QStringList { path(u"xfce4-terminal"_s) });
    EXPECT_EQ(host::fileManagerCommand(u"d"_s).first(), path(u"thunar"_s));
}

TEST_F(ToolsTest, DesktopsOpenerIsTheLastResort)
{
    install({ "xdg-open" });
    EXPECT_EQ(host::editorCommand(u"f"_s), (QStringList { path(u"xdg-open"_s), u"f"_s }));
    EXPECT_EQ(host::fileManagerCommand(u"d"_s), (QStringList { path(u"xdg-open"_s), u"d"_s }));
    EXPECT_EQ(host::terminalCommand(), QStringList());
    EXPECT_EQ(host::terminalEditorCommand(u"f"_s), QStringList());
}

TEST_F(ToolsTest, TerminalIsTheUsersThenDebiansThenAnyOther)
{
    install({ "xterm" });
    EXPECT_EQ(host::terminalCommand(), QStringList { path(u"xterm"_s) });
    install({ "x-terminal-emulator" });
    EXPECT_EQ(host::terminalCommand(), QStringList { path(u"x-terminal-emulator"_s) });
    install({ "own" });
    qputenv("TERMINAL", "own --big");
    EXPECT_EQ(host::terminalCommand(), (QStringList { path(u"own"_s), u"--big"_s }));
    qputenv("TERMINAL", "absent");
    EXPECT_EQ(host::terminalCommand(), QStringList { path(u"x-terminal-emulator"_s) });
}

TEST_F(ToolsTest, EveryTerminalIsToldItsOwnWayToRunAProgram)
{
    install({ "vi", "kitty", "own", "gnome-terminal" });
    EXPECT_EQ(host::terminalEditorCommand(u"f"_s),
        (QStringList { path(u"gnome-terminal"_s), u"--wait"_s, u"--"_s, path(u"vi"_s), u"f"_s }));
    qputenv("TERMINAL", "kitty");
    EXPECT_EQ(host::terminalEditorCommand(u"f"_s), (QStringList { path(u"kitty"_s), path(u"vi"_s), u"f"_s }));
    qputenv("TERMINAL", "own");
    EXPECT_EQ(host::terminalEditorCommand(u"f"_s),
        (QStringList { path(u"own"_s), u"-e"_s, path(u"vi"_s), u"f"_s }));
}

TEST_F(ToolsTest, EditorOfTheTerminalIsTheUsersIfItDrawsThere)
{
    install({ "xterm", "nano", "micro", "gedit" });
    qputenv("EDITOR", "micro -wrap");
    EXPECT_EQ(host::terminalEditorCommand(u"f"_s),
        (QStringList { path(u"xterm"_s), u"-e"_s, path(u"micro"_s), u"-wrap"_s, u"f"_s }));
    qputenv("EDITOR", "gedit");
    EXPECT_EQ(host::terminalEditorCommand(u"f"_s),
        (QStringList { path(u"xterm"_s), u"-e"_s, path(u"nano"_s), u"f"_s }));
}

TEST_F(ToolsTest, EditorWithoutATerminalIsNone)
{
    install({ "nano" });
    EXPECT_EQ(host::terminalEditorCommand(u"f"_s), QStringList());
}

TEST_F(ToolsTest, LinkOpensWithOrWithoutAScheme)
{
    Browser browser;
    host::openLink(u"www.example.org/a b"_s);
    host::openLink(u"http://example.org/?x=1&y"_s);
    EXPECT_EQ(
        browser.opened, (QStringList { u"http://www.example.org/a b"_s, u"http://example.org/?x=1&y"_s }));
}
