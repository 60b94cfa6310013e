// Every kind of rewrite of the program's four files, with a fault at each call to the system.
#include "faulttest.h"
#include "rewrites.h"

#include "host/paths.h"

#include <algorithm>
#include <cerrno>

using namespace faults;
using testing::AnyOf;
using testing::ElementsAre;

namespace {

// The four files behind each step of a rewrite, the first ahead of it.
using Stages = std::vector<std::map<QByteArray, Likeness>>;

class RewriteUnderFaults : public FaultTest, public testing::WithParamInterface<Rewrite> {
protected:
    RewriteUnderFaults() { host::setProgramDirectory(path()); }
    ~RewriteUnderFaults() override { host::setProgramDirectory({}); }

    void SetUp() override
    {
        FaultTest::SetUp();
        if (IsSkipped())
            return;
        prepare();
        m_stages.push_back(now());
        for (const Step &step : GetParam().steps) {
            host::NumberedFiles files;
            make(step, files);
            m_stages.push_back(now());
            ASSERT_NE(m_stages[m_stages.size() - 2], m_stages.back()) << "the rewrite changes nothing";
        }
        for (const auto &[name, file] : m_stages.back()) {
            Likeness before = m_stages.front().at(name);
            before.bytes = file.bytes;
            EXPECT_EQ(file, before) << name.toStdString() << " isn't like the old one";
        }
    }

    void prepare() override
    {
        for (const auto &[name, text] : m_files) {
            makeFile(name, text);
            makeUnusual(name, name == "Zembro.rom" ? 0664 : 0640);
        }
    }

    int operate() override
    {
        host::NumberedFiles files;
        try {
            for (const Step &step : GetParam().steps)
                make(step, files);
        } catch (const host::Failure &) {
            return 1;
        }
        return 0;
    }

    void check(const Fault &fault, const End &end) override
    {
        const auto stage = std::ranges::find(m_stages, now());
        ASSERT_NE(stage, m_stages.end()) << "neither the old files nor the new ones";
        const bool done = stage + 1 == m_stages.end();
        if (!end.killed) {
            EXPECT_THAT(end.status, AnyOf(0, 1));
            EXPECT_EQ(end.status == 0, done);
        }
        const bool harmless = !end.reached || fault.error == EINTR || fault.kind == Kind::Short;
        if (harmless && !end.killed) {
            EXPECT_EQ(end.status, 0);
        }
        if (end.killed || fault.stays)
            checkNextRun();
        else
            checkNames();
    }

private:
    std::map<QByteArray, Likeness> now() const
    {
        std::map<QByteArray, Likeness> files;
        for (const auto &[name, text] : m_files)
            files[name] = likeness(name);
        return files;
    }
    void checkNames() const
    {
        EXPECT_THAT(names(), ElementsAre("Zembro.cfg", "Zembro.emu", "Zembro.rom", "Zembro.sye"));
    }
    // What the last one has left stands in nobody's way.
    void checkNextRun()
    {
        prepare();
        EXPECT_EQ(operate(), 0);
        EXPECT_EQ(now(), m_stages.back());
        checkNames();
    }

    const Files m_files = filesToRewrite();
    Stages m_stages;
};

std::string nameOf(const testing::TestParamInfo<Rewrite> &info)
{
    std::string name;
    for (const char character : info.param.name)
        name += std::isalnum(static_cast<unsigned char>(character)) ? character : '_';
    return name;
}

} // namespace

// In the quick run each takes a share of the calls, and several together take each.
TEST_P(RewriteUnderFaults, LeavesTheOldFilesOrTheNewOnesWhole)
{
    const auto all = rewrites();
    const auto own =
        std::ranges::find_if(all, [](const Rewrite &rewrite) { return rewrite.name == GetParam().name; });
    tryAll(8, int(own - all.begin()));
}

INSTANTIATE_TEST_SUITE_P(Faults, RewriteUnderFaults, testing::ValuesIn(rewrites()), nameOf);
