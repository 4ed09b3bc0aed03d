#include "qt/WindowTest.h"

#include <QScreen>

namespace lineforge
{

namespace
{
using PlatformTest = WindowTest;

TEST_F(PlatformTest, TheScreenIsTheWholeOneInTwips)
{
    const QSize pixels = QGuiApplication::primaryScreen()->size();
    const Screen& screen = Machine().Bundle().Screen;
    EXPECT_EQ(screen.Area(), (Size{PixelScale().ToTwips(pixels.width()), PixelScale().ToTwips(pixels.height())}));
}

TEST_F(PlatformTest, TheScaleIsTheOneThatFitsTheMainWindow)
{
    const QSize available = QGuiApplication::primaryScreen()->availableSize();
    const QSize mainWindow = PixelScale().ToPixels(MainWindowSize);
    EXPECT_LT(mainWindow.width(), available.width());
    EXPECT_LT(mainWindow.height(), available.height());
}

TEST_F(PlatformTest, TheUsualFontIsEightPointsHigh)
{
    EXPECT_EQ(QApplication::font().pixelSize(), PixelScale().FontPixels(8));
}

TEST_F(PlatformTest, TheExecutablesDirectoryEndsInASeparator)
{
    const QString directory = Machine().Bundle().ExecutableDirectory;
    EXPECT_TRUE(directory.endsWith(u'/'));
    EXPECT_TRUE(QDir(directory).exists());
}

TEST_F(PlatformTest, TheLastWindowClosedDoesNotEndTheProgram)
{
    EXPECT_FALSE(QApplication::quitOnLastWindowClosed());
}
} // namespace

} // namespace lineforge
