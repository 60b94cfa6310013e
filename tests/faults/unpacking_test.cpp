// Unpacking an archive, with a fault at each call to the system.
#include "faulttest.h"

#include "host/questions.h"
#include "host/retried.h"
#include "launch/vbunzbas.h"
#include "tests/launch/escenario.h"
#include "tests/launch/zipdeprueba.h"

#include <QDir>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace faults;
using testing::AnyOf;

namespace {

// Every file may be replaced but one.
class OneIsWanted final : public Respuestas {
    Answer askYesNoCancel(const QString &, const QString &text) override
    {
        return text.contains(u"mine.txt") ? Answer::No : Answer::Yes;
    }
};

class UnpackingUnderFaults : public FaultTest {
protected:
    UnpackingUnderFaults()
    {
        makeFile("game.zip",
            Zip({ { .nombre = "disk1.d64", .datos = m_disk },
                { .nombre = "old.txt", .datos = "the new text" },
                { .nombre = "mine.txt", .datos = "not wanted" },
                { .nombre = "docs/read me.txt", .datos = m_text, .comprimido = true },
                { .nombre = "last.bin", .datos = "last" } }));
    }

    void prepare() override
    {
        QDir(path(u"to"_s)).removeRecursively();
        makeDirectory("to");
        makeFile("to/old.txt", "the old text");
        setMode("to/old.txt", OldMode);
        makeFile("to/mine.txt", "mine");
    }
    // 0 if all of it was unpacked.
    int operate() override
    {
        const auto unpacked = launch::Descomprimir(path(u"game.zip"_s), path(u"to"_s));
        // This call too may be interrupted.
        const bool inDocs =
            host::retried([this] { return access(place("to/docs/read me.txt").constData(), F_OK); }) == 0;
        return unpacked.ficheros.size() == 3 && inDocs ? 0 : 1;
    }
    void check(const Fault &fault, const End &end) override
    {
        EXPECT_THAT(bytes("to/disk1.d64"), AnyOf(std::nullopt, std::optional(m_disk)));
        EXPECT_THAT(bytes("to/old.txt"),
            AnyOf(std::optional(QByteArray("the old text")), std::optional(QByteArray("the new text"))));
        EXPECT_EQ(mode("to/old.txt"), bytes("to/old.txt") == "the old text" ? OldMode : mode("game.zip"));
        EXPECT_EQ(bytes("to/mine.txt"), "mine");
        EXPECT_THAT(bytes("to/docs/read me.txt"), AnyOf(std::nullopt, std::optional(m_text)));
        EXPECT_THAT(bytes("to/last.bin"), AnyOf(std::nullopt, std::optional(QByteArray("last"))));
        EXPECT_THAT(names(), testing::ElementsAre("game.zip", "to")) << "something outside";
        if (!end.killed) {
            EXPECT_THAT(end.status, AnyOf(0, 1));
        }
        if (!end.killed && (!end.reached || fault.error == EINTR || fault.kind == Kind::Short)) {
            EXPECT_EQ(end.status, 0);
        }
        if (!end.killed && !fault.stays) {
            EXPECT_THAT(strays(), testing::IsEmpty());
        }
        checkNextRun();
    }

private:
    static constexpr mode_t OldMode = 0600;

    // What no member is called.
    QStringList strays() const
    {
        QStringList found =
            QDir(path(u"to"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        found += QDir(path(u"to/docs"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        for (const QString &member :
            { u"disk1.d64"_s, u"old.txt"_s, u"mine.txt"_s, u"docs"_s, u"read me.txt"_s, u"last.bin"_s })
            found.removeAll(member);
        return found;
    }
    void checkNextRun()
    {
        for (const char *member : { "to/disk1.d64", "to/docs/read me.txt", "to/last.bin" })
            unlink(place(member).constData());
        EXPECT_EQ(operate(), 0);
        EXPECT_EQ(bytes("to/disk1.d64"), m_disk);
        EXPECT_EQ(bytes("to/old.txt"), "the new text");
        EXPECT_EQ(bytes("to/docs/read me.txt"), m_text);
        EXPECT_EQ(bytes("to/mine.txt"), "mine");
        EXPECT_THAT(strays(), testing::IsEmpty());
    }

    const QByteArray m_disk = QByteArray(200'000, 'd');
    const QByteArray m_text = QByteArray("Press fire. ").repeated(1000);
    OneIsWanted m_answers;
};

} // namespace

TEST_F(UnpackingUnderFaults, LeavesEachMemberWholeOrNoneOfIt)
{
    tryAll(5);
}
