// The main screen with an emulator that runs: a script in "bin", which counts its runs unless a test gives it
// another one. It starts without a ROM.
#pragma once

#include "mundotest.h"

#include <QFile>

class LanzamientoTest : public MundoTest {
protected:
    LanzamientoTest()
    {
        files.makeDirectory(QStringLiteral("tmp"));
        qputenv("TMPDIR", files.path(QStringLiteral("tmp")).toUtf8());
        makeEmulator("echo run >> runs\n");
        configure(QStringLiteral("5"));
    }
    ~LanzamientoTest() override
    {
        if (m_temporary.isNull())
            qunsetenv("TMPDIR");
        else
            qputenv("TMPDIR", m_temporary);
    }

    void makeEmulator(const QByteArray &script)
    {
        files.write(QStringLiteral("bin/emu"), "#!/bin/sh\n" + script);
        QFile(files.path(QStringLiteral("bin/emu")))
            .setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    void configure(const QString &type)
    {
        systemsOfCatalogue[0].emulators[0].executable = files.path(QStringLiteral("bin/emu"));
        systemsOfCatalogue[0].emulators[0].type = type;
        files.writeCatalogue(systemsOfCatalogue);
    }
    // The runs since the last call.
    qsizetype runs()
    {
        const QString log = QStringLiteral("bin/runs");
        if (!files.exists(log))
            return 0;
        const qsizetype count = files.read(log).count("run");
        files.remove(log);
        return count;
    }
    // Starts an emulator that runs until `act`, which comes once the screen is back at rest, is over; then it
    // makes the file "ended".
    void duringARun(const std::function<void()> &start, const std::function<void()> &act)
    {
        makeEmulator("echo run >> runs\ntouch started\n"
                     "for _ in $(seq 6000); do [ -e go ] && break; sleep 0.01; done\ntouch ended\n");
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, portada.get(), [&] {
            if (!files.exists(QStringLiteral("bin/started")) || info() == QStringLiteral("CARGANDO"))
                return;
            watch.stop();
            act();
            files.write(QStringLiteral("bin/go"), {});
        });
        watch.start(0);
        start();
        EXPECT_TRUE(waitUntil([this] { return files.exists(QStringLiteral("bin/go")); }));
    }
    void focus(const QString &name)
    {
        control(name).setFocus();
        ASSERT_EQ(focused(), name);
    }

private:
    QByteArray m_temporary = qgetenv("TMPDIR");
};
