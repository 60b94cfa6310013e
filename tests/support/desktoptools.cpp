#include "tests/support/desktoptools.h"

#include "tests/support/input.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

DesktopTools::DesktopTools(const ProgramDirectory &files)
    : m_files(files)
{
    qputenv("PATH", files.path(u"tools"_s).toUtf8());
    for (const char *variable : { "VISUAL", "EDITOR", "TERMINAL", "XDG_CURRENT_DESKTOP" })
        qunsetenv(variable);
    files.makeDirectory(u"tools"_s);
}

DesktopTools::~DesktopTools()
{
    qputenv("PATH", m_path);
}

void DesktopTools::install(const QString &name) const
{
    const QByteArray record = m_files.path(u"record"_s).toUtf8();
    runnable(name,
        "#!/bin/sh\nprintf '%s|' '" + name.toUtf8() + "' \"$@\" \"$PWD\" > '" + record + ".new'\n"
            + "/bin/mv '" + record + ".new' '" + record + "'\n");
}

void DesktopTools::runnable(const QString &name, const QByteArray &content) const
{
    const QString file = u"tools/"_s + name;
    m_files.write(file, content);
    QFile(m_files.path(file)).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void DesktopTools::runs(const QString &name, const QByteArray &script) const
{
    runnable(name, "#!/bin/sh\n" + script);
}

void DesktopTools::broken(const QString &name) const
{
    runnable(name,
        "\x7f"
        "ELF of no kind");
}

QString DesktopTools::recorded() const
{
    EXPECT_TRUE(waitUntil([this] { return m_files.exists(u"record"_s); }));
    const QString record = QString::fromUtf8(m_files.read(u"record"_s));
    m_files.remove(u"record"_s);
    return record;
}
