#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "wayland");
    qputenv("QT_STYLE_OVERRIDE", "Fusion");
    const QApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
