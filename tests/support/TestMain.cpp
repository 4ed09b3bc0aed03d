#include <QGuiApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    // Fonts and images need the toolkit's application, but no screen: the tests run anywhere.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
