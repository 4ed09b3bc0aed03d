#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    // No display is needed, and what stands on the desk of whoever runs the tests has no say in them.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_STYLE_OVERRIDE", "Fusion");
    const QApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
