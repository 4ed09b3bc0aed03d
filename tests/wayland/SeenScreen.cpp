#include "wayland/SeenScreen.h"

#include <QDir>
#include <QImage>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstring>
#include <functional>
#include <numeric>
#include <stdexcept>
#include <vector>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
QImage SeenScreen()
{
    const QTemporaryDir directory;
    QProcess camera;
    camera.setWorkingDirectory(directory.path());
    camera.start(u"weston-screenshooter"_s, QStringList());
    if (!camera.waitForFinished() || camera.exitCode() != 0)
        throw std::runtime_error("no picture of the screen");
    const QString taken = QDir(directory.path()).entryList({u"*.png"_s}).value(0);
    return QImage(directory.filePath(taken)).convertToFormat(QImage::Format_RGB32);
}

// The one with the most in it. Others are as empty as much of the screen.
int TellingRow(const QImage& picture)
{
    std::vector<int> changes;
    for (int row = 0; row < picture.height(); ++row) {
        const auto* dots = reinterpret_cast<const QRgb*>(picture.constScanLine(row));
        changes.push_back(
            std::inner_product(dots + 1, dots + picture.width(), dots, 0, std::plus(), std::not_equal_to()));
    }
    return static_cast<int>(std::ranges::max_element(changes) - changes.begin());
}

bool ShowsRow(const QImage& screen, const QImage& wanted, QPoint corner, int row)
{
    const auto length = static_cast<std::size_t>(wanted.width()) * sizeof(QRgb);
    const auto* seen = reinterpret_cast<const QRgb*>(screen.constScanLine(corner.y() + row)) + corner.x();
    return std::memcmp(seen, wanted.constScanLine(row), length) == 0;
}

bool ShowsAt(const QImage& screen, const QImage& wanted, QPoint corner)
{
    for (int row = 0; row < wanted.height(); ++row)
        if (!ShowsRow(screen, wanted, corner, row))
            return false;
    return true;
}

bool Shows(const QImage& screen, const QImage& wanted)
{
    const int telling = TellingRow(wanted);
    for (int top = 0; top + wanted.height() <= screen.height(); ++top)
        for (int left = 0; left + wanted.width() <= screen.width(); ++left)
            if (ShowsRow(screen, wanted, {left, top}, telling) && ShowsAt(screen, wanted, {left, top}))
                return true;
    return false;
}
} // namespace

bool IsSeen(QWidget& window)
{
    constexpr int patience = 60'000; // milliseconds
    QWidget& client = *static_cast<QMainWindow&>(window).centralWidget();
    return QTest::qWaitFor(
        [&client] {
            const QImage wanted = client.grab().toImage().convertToFormat(QImage::Format_RGB32);
            return Shows(SeenScreen(), wanted);
        },
        patience);
}

} // namespace lineforge
