#include "qt/QtPlatform.h"

#include "qt/style/Desktop.h"
#include "qt/style/ScaledStyle.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QScreen>
#include <QStyle>

#include <utility>

namespace lineforge
{

namespace
{
constexpr double usualPoints = 8;

Scale ScaleFor(Size mainWindow)
{
    const int title = QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QScreen& screen = *QGuiApplication::primaryScreen();
    if (DesktopArrangesWindows())
        return ScaleForRoom(mainWindow, GrantedRoom(), screen.devicePixelRatio());
    return FittingScale(mainWindow, screen.availableSize(), title, screen.devicePixelRatio());
}

// The places of all texts were measured with the design's own font. The system's font takes its part, unless it runs so
// much wider that captions would be cut off.
QFont UsualFont(const Scale& scale)
{
    constexpr double barelyWider = 1.04;
    const QString sample = QStringLiteral("Heredity Maiden Name Surname 0123456789");
    QFont design{TextFont().Name};
    QFont system = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    for (QFont* font : {&design, &system})
        font->setPixelSize(scale.FontPixels(usualPoints));
    const int designed = QFontMetrics(design).horizontalAdvance(sample);
    return QFontMetrics(system).horizontalAdvance(sample) > barelyWider * designed ? design : system;
}

Screen MakeScreen(const Scale& scale)
{
    const QScreen& screen = *QGuiApplication::primaryScreen();
    const Size area = scale.ToTwips(screen.size());
    return {area.Width, area.Height, {}, scale.TwipsAPixel(), screen.devicePixelRatio()};
}
} // namespace

QtPlatform::QtPlatform(Size mainWindow, std::function<QString()> currentDirectory)
    : scale_(ScaleFor(mainWindow)), screen_(MakeScreen(scale_)), pointer_(screen_),
      prompts_(loop_, printers_, std::move(currentDirectory)), windows_(scale_, media_)
{
    QApplication::setFont(UsualFont(scale_));
    QApplication::setStyle(new ScaledStyle(scale_.Magnification()));
    QApplication::setQuitOnLastWindowClosed(false);
}

Platform QtPlatform::Bundle()
{
    return {windows_,   prompts_,  loop_,      screen_,
            clipboard_, printers_, processes_, QDir::cleanPath(QCoreApplication::applicationDirPath()) + u'/'};
}

} // namespace lineforge
