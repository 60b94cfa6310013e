#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char **argv)
{
    testing::InitGoogleMock(&argc, argv);
    const QApplication aplicacion(argc, argv);
    return RUN_ALL_TESTS();
}
