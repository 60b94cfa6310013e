// A desktop whose tools are those that the test installs. They write down what they were given.
#pragma once

#include "tests/support/programdirectory.h"

#include <QByteArray>
#include <QString>

class DesktopTools {
public:
    // From now on programs are looked for in the directory's "tools" alone.
    explicit DesktopTools(const ProgramDirectory &files);
    ~DesktopTools();
    DesktopTools(const DesktopTools &) = delete;
    DesktopTools &operator=(const DesktopTools &) = delete;

    // A tool that writes its name, its arguments and its directory down, each in one go.
    void install(const QString &name) const;
    void runs(const QString &name, const QByteArray &script) const; // one of the test's own, for sh
    void broken(const QString &name) const; // one that doesn't start

    // What the last tool wrote, each part closed by a bar; waits for it.
    QString recorded() const;

private:
    void runnable(const QString &name, const QByteArray &content) const;

    const ProgramDirectory &m_files;
    QByteArray m_path = qgetenv("PATH");
};
