// What a refusal of the system to start a program becomes.
#include "host/process.h"

#include "disktest.h"

#include <cerrno>

#include <dlfcn.h>
#include <spawn.h>

using namespace Qt::StringLiterals;

namespace {

int spawnError = 0; // what the next starts end with, if it isn't 0

struct RefusedStart {
    int systemError;
    int number;
};

class RefusedStarts : public testing::TestWithParam<RefusedStart> {
protected:
    ~RefusedStarts() override { spawnError = 0; }
};

TEST_P(RefusedStarts, FailWithTheNumberOfTheirReason_AndNameTheProgram)
{
    spawnError = GetParam().systemError;
    try {
        host::Process::start({ u"true"_s });
        FAIL();
    } catch (const host::Failure &failure) {
        EXPECT_EQ(failure.number(), GetParam().number);
        EXPECT_EQ(failure.operation(), u"start a program"_s);
        EXPECT_EQ(failure.about(), u"true"_s);
    }
}

INSTANTIATE_TEST_SUITE_P(Process, RefusedStarts,
    testing::Values(RefusedStart { ENOENT, host::FileNotFound }, RefusedStart { ENOTDIR, host::FileNotFound },
        RefusedStart { EACCES, host::PermissionDenied }, RefusedStart { EPERM, host::PermissionDenied },
        RefusedStart { ENOEXEC, host::InvalidArgument }, RefusedStart { E2BIG, host::InvalidArgument },
        RefusedStart { EAGAIN, host::InvalidArgument }, RefusedStart { ENOMEM, host::InvalidArgument }));

} // namespace

// The test program's own definition takes precedence over the library's.
extern "C" int posix_spawn(pid_t *id, const char *path, const posix_spawn_file_actions_t *actions,
    const posix_spawnattr_t *attributes, char *const arguments[], char *const environment[])
{
    if (spawnError != 0)
        return spawnError;
    static const auto real = reinterpret_cast<decltype(&posix_spawn)>(dlsym(RTLD_NEXT, "posix_spawn"));
    return real(id, path, actions, attributes, arguments, environment);
}
