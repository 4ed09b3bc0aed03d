#pragma once

#include "qt/text/Panels.h"
#include "support/TemporaryHome.h"

#include <QDir>
#include <QTest>

#include <stdexcept>
#include <vector>

namespace lineforge
{

// The first file of that kind in the gallery of the example home.
inline QString GalleryFile(const QString& pattern)
{
    const QDir gallery(QStringLiteral(LINEFORGE_EXAMPLE_GALLERY));
    const QStringList names = gallery.entryList({pattern}, QDir::Files, QDir::Name);
    if (names.isEmpty())
        throw std::runtime_error("the gallery has no " + pattern.toStdString());
    return gallery.filePath(names.first());
}

// A player in a window that hasn't been shown, and the files that the gallery of the example home has for it.
class PlayerTest : public WindowTest
{
protected:
    // No machine is so busy that it takes longer than this, in milliseconds.
    static constexpr int Patience = 40000;
    // In which something that goes on would do so on an idle machine.
    static constexpr int AWhile = 250;

    void Open(const QString& path)
    {
        Player().FileName = path;
        Player().Command(u"Open");
    }
    void OpenFilm() { Open(Film); }
    void OpenSound() { Open(Sound); }
    void Press(QStringView command) { Player().Command(command); }

    MultimediaControl& Player() { return Panels->MMControl1; }
    int Position() { return Player().Position; }
    bool Reaches(int position)
    {
        return QTest::qWaitFor([this, position] { return Position() >= position; }, Patience);
    }
    bool ReachesItsEnd() { return Reaches(Player().Length); }
    bool GoesOn()
    {
        return QTest::qWaitFor([this, from = Position()] { return Position() > from; }, Patience);
    }
    bool Moves()
    {
        return QTest::qWaitFor([this, from = Position()] { return Position() != from; }, AWhile);
    }
    // What has just been stopped may still settle.
    bool StandsStill() { return !Moves() || !Moves(); }
    // What the film showed from now on is in `Pictures`.
    void Watch()
    {
        watching_ = Player().Screen.addNotifier([this] { Pictures.push_back(Player().Screen); });
    }
    bool ShowsAPicture()
    {
        return QTest::qWaitFor([this] { return !Player().Screen.value().isNull(); }, Patience);
    }

    const QString Film = GalleryFile(QStringLiteral("*.avi"));
    const QString Sound = GalleryFile(QStringLiteral("*.wav"));
    TemporaryHome Home;
    Window<PanelForm> Panels{System()};
    std::vector<QImage> Pictures;

private:
    QPropertyNotifier watching_;
};

} // namespace lineforge
