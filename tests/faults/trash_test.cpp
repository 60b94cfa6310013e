// Moving a game to the trash, with a fault at each call to the system.
#include "faulttest.h"

#include "host/trash.h"

#include <QDir>

#include <cerrno>

using namespace Qt::StringLiterals;
using namespace faults;
using testing::AnyOf;

namespace {

class TrashUnderFaults : public FaultTest {
protected:
    TrashUnderFaults()
    {
        for (const QByteArray &directory :
            { QByteArray("games"), QByteArray("home"), QByteArray("home/data") })
            makeDirectory(directory);
        qputenv("XDG_DATA_HOME", place("home/data"));
    }
    ~TrashUnderFaults() override { qunsetenv("XDG_DATA_HOME"); }

    void prepare() override
    {
        QDir(path(u"home/data"_s)).removeRecursively();
        makeDirectory("home/data");
        if (m_withTrash)
            makeOldTrash();
        makeFile("games/a.bin", Game);
        makeUnusual("games/a.bin", 0640);
        m_game = likeness("games/a.bin");
    }
    int operate() override { return host::moveToTrash(path(u"games/a.bin"_s)) ? 0 : 1; }
    void check(const Fault &fault, const End &end) override
    {
        const bool moved = !exists("games/a.bin");
        EXPECT_EQ(places(), 1) << "the game is there once";
        EXPECT_EQ(moved, isWholeInTheTrash());
        EXPECT_TRUE(moved || likeness("games/a.bin") == m_game);
        if (!end.killed) {
            EXPECT_THAT(end.status, AnyOf(0, 1));
            EXPECT_EQ(end.status == 0, moved);
        }
        if (!end.killed && (!end.reached || fault.error == EINTR || fault.kind == Kind::Short)) {
            EXPECT_EQ(end.status, 0);
        }
        if (!end.killed && !fault.stays) {
            EXPECT_EQ(names("info"), names("files")) << "an origin without its file";
        }
        checkOldTrash();
        if (!moved) {
            EXPECT_EQ(operate(), 0);
            EXPECT_TRUE(isWholeInTheTrash());
        }
    }

    bool m_withTrash = false;

private:
    void makeOldTrash() const
    {
        for (const QByteArray &part : { QByteArray(), QByteArray("/files"), QByteArray("/info") })
            makeDirectory("home/data/Trash" + part);
        makeFile("home/data/Trash/files/a.bin", "an older one");
        makeFile("home/data/Trash/info/a.bin.trashinfo", "its origin");
    }
    void checkOldTrash() const
    {
        if (!m_withTrash)
            return;
        EXPECT_EQ(bytes("home/data/Trash/files/a.bin"), "an older one");
        EXPECT_EQ(bytes("home/data/Trash/info/a.bin.trashinfo"), "its origin");
    }
    QStringList names(const QString &part) const
    {
        return QDir(path(u"home/data/Trash/"_s + part))
            .entryList(QDir::Files)
            .replaceInStrings(u".trashinfo"_s, QString());
    }
    QStringList names(const char *part) const { return names(QString::fromLatin1(part)); }
    int places() const
    {
        int count = bytes("games/a.bin") == Game ? 1 : 0;
        for (const QString &name : names("files"))
            count += bytes("home/data/Trash/files/" + name.toUtf8()) == Game ? 1 : 0;
        return count;
    }
    bool isWholeInTheTrash() const
    {
        for (const QString &name : names("files")) {
            const QByteArray file = name.toUtf8();
            const auto info = bytes("home/data/Trash/info/" + file + ".trashinfo");
            if (bytes("home/data/Trash/files/" + file) == Game
                && likeness("home/data/Trash/files/" + file) == m_game && info
                && info->startsWith("[Trash Info]\nPath=" + place("games/a.bin") + "\nDeletionDate=2")
                && info->endsWith('\n'))
                return true;
        }
        return false;
    }

    const QByteArray Game = QByteArray(1000, 'g');
    Likeness m_game;
};

} // namespace

TEST_F(TrashUnderFaults, HasTheGameOrLeavesItWhereItWas)
{
    tryAll(3);
}

TEST_F(TrashUnderFaults, HasTheGameBesideAnOlderOneOfItsName)
{
    m_withTrash = true;
    tryAll(3, 1);
}
