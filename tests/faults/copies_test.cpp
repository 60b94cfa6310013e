// Keeping a copy of the text files, and bringing them back, with a fault at each call to the system.
#include "faulttest.h"

#include "companion/copias.h"

#include "host/failure.h"
#include "host/paths.h"

#include <QDir>
#include <QFile>

#include <cerrno>

using namespace Qt::StringLiterals;
using namespace faults;
using testing::AnyOf;

namespace {

class CopyUnderFaults : public FaultTest {
protected:
    CopyUnderFaults() { host::setProgramDirectory(path()); }
    ~CopyUnderFaults() override { host::setProgramDirectory({}); }

    void prepare() override
    {
        QDir(path(u"copias"_s)).removeRecursively();
        for (const auto &[name, text] : m_files)
            makeFile(name, text);
    }
    int operate() override
    {
        try {
            companion::Guarda();
            return 0;
        } catch (const host::Failure &) {
            return 1;
        }
    }
    void check(const Fault &fault, const End &end) override
    {
        for (const auto &[name, text] : m_files)
            EXPECT_EQ(bytes(name), text);
        const qsizetype copies = wholeCopies();
        if (!end.killed) {
            EXPECT_THAT(end.status, AnyOf(0, 1));
            EXPECT_TRUE(end.status != 0 || copies == 1);
        }
        if (!end.killed && (!end.reached || fault.error == EINTR || fault.kind == Kind::Short)) {
            EXPECT_EQ(end.status, 0);
        }
        // What is left over is in nobody's way.
        EXPECT_EQ(operate(), 0);
        EXPECT_EQ(wholeCopies(), 1);
        EXPECT_FALSE(exists("copias/.a-medias"));
    }

private:
    // Fails the test where one isn't whole.
    qsizetype wholeCopies() const
    {
        const QStringList copies = companion::Copias();
        for (const QString &copy : copies) {
            for (const auto &[name, text] : m_files)
                EXPECT_EQ(bytes("copias/" + copy.toUtf8() + '/' + name), text);
        }
        return copies.size();
    }

    const std::map<QByteArray, QByteArray> m_files { { "Zembro.cfg", "settings" },
        { "Zembro.emu", QByteArray(9000, 'e') }, { "Zembro.rom", "notes" }, { "Zembro.sye", "" } };
};

// Bringing back the files of a copy: all of them or none, or else it is told which.
class RestoreUnderFaults : public FaultTest {
protected:
    RestoreUnderFaults() { host::setProgramDirectory(path()); }
    ~RestoreUnderFaults() override { host::setProgramDirectory({}); }

    static constexpr int Told = 16; // and a bit for each file that is told to stand as in the copy

    void prepare() override
    {
        for (const auto &[name, text] : m_before)
            makeFile(name, text);
        QFile::remove(path(u"Zembro.sye"_s));
    }
    int operate() override
    {
        const companion::Reposicion restored = companion::Repon(m_names, m_copy, m_seen);
        if (!restored.fallo)
            return 0;
        int told = 0;
        for (int i = 0; i < m_names.size(); ++i)
            told |= restored.repuestos.contains(m_names[i]) ? 1 << i : 0;
        return told == 0 ? 1 : Told | told;
    }
    void check(const Fault &fault, const End &end) override
    {
        int restored = 0;
        for (int i = 0; i < m_names.size(); ++i) {
            const std::optional<QByteArray> now = bytes(m_names[i].toUtf8());
            const bool wasThere = m_seen.contains(m_names[i]);
            if (now == m_copy[m_names[i]])
                restored |= 1 << i;
            else
                EXPECT_EQ(now, wasThere ? std::optional(m_seen[m_names[i]]) : std::nullopt);
        }
        if (!end.killed) {
            const int all = (1 << m_names.size()) - 1;
            EXPECT_EQ(end.status, restored == all ? 0 : restored == 0 ? 1 : Told | restored);
            EXPECT_TRUE(fault.stays || restored == all || restored == 0);
        }
        if (!end.killed && (!end.reached || fault.error == EINTR || fault.kind == Kind::Short)) {
            EXPECT_EQ(end.status, 0);
        }
    }

private:
    const QStringList m_names { u"Zembro.cfg"_s, u"Zembro.emu"_s, u"Zembro.sye"_s };
    const companion::Ficheros m_copy { { u"Zembro.cfg"_s, "old settings" },
        { u"Zembro.emu"_s, QByteArray(9000, 'o') }, { u"Zembro.sye"_s, "old" } };
    const companion::Ficheros m_seen { { u"Zembro.cfg"_s, "settings" },
        { u"Zembro.emu"_s, QByteArray(9000, 'e') } };
    const std::map<QByteArray, QByteArray> m_before { { "Zembro.cfg", "settings" },
        { "Zembro.emu", QByteArray(9000, 'e') } };
};

} // namespace

TEST_F(CopyUnderFaults, StandsWholeOrNotAtAll)
{
    tryAll(11);
}

TEST_F(RestoreUnderFaults, BringsAllBackOrNone_OrTellsWhich)
{
    tryAll(13);
}
