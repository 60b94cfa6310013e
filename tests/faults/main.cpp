#include <QCoreApplication>

#include <gmock/gmock.h>

#include <cstdio>
#include <cstdlib>

#include <unistd.h>

int main(int argc, char **argv)
{
    testing::InitGoogleMock(&argc, argv);
    // Each figure as it comes.
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    // Where flushing takes no time, unless another place is asked for.
    if (access("/dev/shm", W_OK | X_OK) == 0)
        setenv("TEST_TMPDIR", "/dev/shm/", 0);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
