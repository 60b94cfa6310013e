// Keeping a copy of the text files, with a fault at each call to the system.
#include "faulttest.h"

#include "companion/copias.h"

#include "host/failure.h"
#include "host/paths.h"

#include <QDir>

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

} // namespace

TEST_F(CopyUnderFaults, StandsWholeOrNotAtAll)
{
    tryAll(11);
}
