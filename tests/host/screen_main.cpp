#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char **argv)
{
    testing::InitGoogleMock(&argc, argv);
    // A forked copy of the toolkit doesn't run: each death test starts the program anew.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
