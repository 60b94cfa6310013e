#include <gmock/gmock.h>

#include <cstdlib>

int main(int argc, char **argv)
{
    setenv("LC_ALL", "C.UTF-8", 1); // the signs in the numbers
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
