#include <gmock/gmock.h>

#include <QGuiApplication>

// Measuring text needs fonts, and fonts need an application.
int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
