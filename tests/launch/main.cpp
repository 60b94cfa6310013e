#include <QCoreApplication>

#include <gmock/gmock.h>

int main(int argc, char **argv)
{
    testing::InitGoogleMock(&argc, argv);
    const QCoreApplication aplicacion(argc, argv);
    return RUN_ALL_TESTS();
}
