// Processes that rewrite all four files at once, while another one reads them.
#include "rewrites.h"

#include "tests/host/disktest.h"

#include "core/altas.h"
#include "core/notas.h"
#include "host/paths.h"

#include <chrono>
#include <csignal>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace faults;
using host::NumberedFiles;

namespace {

constexpr int Writers = 2;

// Rounds of one writer, in each of which it rewrites each file once.
int rounds()
{
    const int asked = qgetenv("RACES").toInt();
    return asked > 0 ? asked : 40;
}

QString nameOf(int writer, int round)
{
    return u"Writer %1 round %2"_s.arg(writer).arg(round, 6, 10, QChar(u'0'));
}

// An addition by each writer in each round, as the screens make them.
std::vector<Step> additions(const QString &name)
{
    const core::EmuladorNuevo emulator { name, {}, u"/bin/emu"_s, u"0"_s, u"/roms"_s, {}, {}, {} };
    return {
        { u"Zembro.cfg"_s, [=](const QString &text) { return text + name + u"\r\n"_s; }, {} },
        { u"Zembro.sye"_s,
            [=](const QString &text) { return core::ConEmuladorEnBase(text, u"-Beta"_s, name); }, {} },
        { u"Zembro.emu"_s,
            [=](const QString &text) { return core::ConEmuladorConfigurado(text, u"-Beta"_s, emulator); },
            {} },
        { u"Zembro.rom"_s,
            [=](const QString &text) {
                return core::ConDescripcionNueva(text, u"Alfa"_s, name, u"described"_s);
            },
            {} },
    };
}

class Races : public DiskTest {
protected:
    Races()
    {
        host::setProgramDirectory(path());
        for (const auto &[name, text] : m_files)
            makeFile(name, text);
    }
    ~Races() override { host::setProgramDirectory({}); }

    // One file after the other, each writer beginning with another one.
    static int write(int writer)
    {
        NumberedFiles files;
        for (int round = 0; round < rounds(); ++round) {
            std::vector<Step> steps = additions(nameOf(writer, round));
            std::ranges::rotate(steps, steps.begin() + writer % int(steps.size()));
            for (const Step &step : steps)
                make(step, files);
        }
        return 0;
    }

    // Until it is ended; 1 for a file that isn't there or isn't whole.
    int read() const
    {
        for (;;) {
            for (const auto &[name, text] : m_files) {
                const QByteArray last = text.sliced(text.lastIndexOf('\n', -2) + 1);
                const auto now = bytes(name);
                const bool whole = now
                    && (name == "Zembro.cfg" ? now->startsWith(text) && now->endsWith("\r\n")
                                             : now->endsWith(last));
                if (!whole)
                    return 1;
            }
        }
    }

    // How often the file holds what this writer added in each round; -1 where one is missing or doubled.
    int count(const QByteArray &file, int writer) const
    {
        const QByteArray text = bytes(file).value_or(QByteArray());
        for (int round = 0; round < rounds(); ++round) {
            const QByteArray name = nameOf(writer, round).toLatin1();
            if (text.count(file == "Zembro.rom" ? name.toUpper() : name) != 1)
                return -1;
        }
        return rounds();
    }

    const Files m_files = filesToRewrite();
};

} // namespace

TEST_F(Races, LoseNoChange_AndAReaderSeesEveryFileWhole)
{
    const auto begin = std::chrono::steady_clock::now();
    const pid_t reader = startChild([this] { return read(); });
    QList<pid_t> writers;
    for (int i = 0; i < Writers; ++i)
        writers.append(startChild([i] { return write(i); }));
    for (const pid_t writer : writers)
        EXPECT_EQ(endOf(writer), 0);
    EXPECT_EQ(kill(reader, SIGTERM), 0);
    EXPECT_EQ(endOf(reader), 254) << "a file was read that wasn't whole";
    for (const auto &[file, text] : m_files) {
        for (int i = 0; i < Writers; ++i)
            EXPECT_EQ(count(file, i), rounds()) << file.toStdString() << ", writer " << i;
    }
    EXPECT_EQ(names().size(), 4) << "something is left over";
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    std::printf("%d rewrites, %.1f s\n", Writers * rounds() * int(m_files.size()), time.count());
}
