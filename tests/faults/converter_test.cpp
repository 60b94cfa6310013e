// The converter of captures, with a fault at each call to the system.
#include "faulttest.h"

#include "converter/capturefiles.h"
#include "converter/gif.h"
#include "converter/pcx.h"
#include "tests/converter/pcxfile.h"

#include <cerrno>

using namespace faults;
using testing::AnyOf;
using testing::Contains;
using testing::ElementsAre;

namespace {

class ConverterUnderFaults : public FaultTest {
protected:
    void SetUp() override
    {
        FaultTest::SetUp();
        if (IsSkipped())
            return;
        makeFile("GAME.PCX", Capture);
        ASSERT_EQ(inChild([this] { return operate(); }), 0);
        m_new = bytes("GAME.GIF").value_or(QByteArray());
        m_newMode = mode("GAME.GIF");
        ASSERT_NE(m_newMode, OldMode);
        ASSERT_TRUE(m_new.startsWith("GIF8") && m_new.endsWith(';'));
    }

    void prepare() override
    {
        unlink(place("GAME.GIF").constData());
        if (m_withOld)
            makeOld();
    }
    // As the program does it.
    int operate() override
    {
        try {
            const std::string name = place("GAME.PCX").toStdString();
            const auto read = converter::readCapture(name);
            converter::replaceFile(
                converter::gifNameFor(name), converter::writeGif(converter::readPcx(read)));
        } catch (const std::exception &) {
            return 1;
        }
        return 0;
    }
    void check(const Fault &fault, const End &end) override
    {
        const auto gif = bytes("GAME.GIF");
        EXPECT_THAT(gif, AnyOf(std::optional(m_new), old()));
        if (gif) {
            EXPECT_EQ(mode("GAME.GIF"), gif == m_new ? m_newMode : OldMode);
        }
        EXPECT_EQ(bytes("GAME.PCX"), Capture);
        if (!end.killed) {
            EXPECT_THAT(end.status, AnyOf(0, 1));
            EXPECT_EQ(end.status == 0, gif == m_new);
        }
        if (!end.killed && (!end.reached || fault.error == EINTR || fault.kind == Kind::Short)) {
            EXPECT_EQ(end.status, 0);
        }
        if (!end.killed && !fault.stays)
            checkNames(gif.has_value());
        else
            checkNextRun();
    }

    bool m_withOld = false;

private:
    static constexpr mode_t OldMode = 0600;

    void makeOld() const
    {
        makeFile("GAME.GIF", "the old picture");
        setMode("GAME.GIF", OldMode);
    }
    std::optional<QByteArray> old() const
    {
        return m_withOld ? std::optional(QByteArray("the old picture")) : std::nullopt;
    }
    void checkNames(bool withGif) const
    {
        QList<QByteArray> expected { "GAME.PCX" };
        if (withGif)
            expected.prepend("GAME.GIF");
        EXPECT_EQ(names(), expected);
    }
    void checkNextRun()
    {
        EXPECT_EQ(inChild([this] { return operate(); }), 0);
        EXPECT_EQ(bytes("GAME.GIF"), m_new);
        checkNames(true);
    }

    const QByteArray Capture = PcxFile { .data = "5500" }.bytes();
    QByteArray m_new;
    mode_t m_newMode = 0;
};

} // namespace

TEST_F(ConverterUnderFaults, LeavesNoPictureOrTheNewOneWhole)
{
    tryAll(6);
}

TEST_F(ConverterUnderFaults, LeavesTheOldPictureOrTheNewOneWhole)
{
    m_withOld = true;
    tryAll(6, 3);
}
