#include "qt/media/PlayerTest.h"

#include "platform/base/RuntimeError.h"
#include "qt/media/Films.h"
#include "support/Refusal.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
QByteArray BytesOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QFile::ReadOnly));
    return file.readAll();
}

bool IsHeldOpen(const QString& path)
{
    for (const QFileInfo& descriptor :
         QDir(u"/proc/self/fd"_s).entryInfoList(QDir::Files | QDir::System | QDir::NoDotAndDotDot))
        if (descriptor.symLinkTarget() == QFileInfo(path).canonicalFilePath())
            return true;
    return false;
}

TEST_F(PlayerTest, AnOpenFileStandsAtItsBeginning_AndNothingPlays)
{
    OpenFilm();
    EXPECT_TRUE(Player().IsOpen);
    EXPECT_GT(Player().Length, 0);
    EXPECT_TRUE(ShowsAPicture());
    EXPECT_TRUE(StandsStill());
    EXPECT_EQ(Position(), 0);
}

TEST_F(PlayerTest, TheSoundOfTheGalleryPlaysToItsEnd)
{
    OpenSound();
    EXPECT_GT(Player().Length, 1000);
    Press(u"Play");
    EXPECT_TRUE(ReachesItsEnd());
    EXPECT_TRUE(Player().Screen.value().isNull());
    EXPECT_TRUE(Player().IsOpen);
}

TEST_F(PlayerTest, TheFilmOfTheGalleryPlaysToItsEnd_AndItsPictureChanges)
{
    OpenFilm();
    ASSERT_TRUE(ShowsAPicture());
    const QImage first = Player().Screen;
    EXPECT_EQ(first.size(), QSize(160, 120));
    Watch();
    Press(u"Play");
    EXPECT_TRUE(ReachesItsEnd());
    EXPECT_GT(Pictures.size(), 5U);
    EXPECT_NE(Player().Screen.value(), first);
}

TEST_F(PlayerTest, AFilmIsSeenInItsWindow_WhicheverCameFirst)
{
    OpenFilm();
    ASSERT_TRUE(ShowsAPicture());
    Panels->Show();
    const auto seen = [this] { return Find<QWidget>(*Panels, u"MMControl1Screen"_s).grab().toImage(); };
    const QImage first = seen();
    const QPoint middle = first.rect().center();
    EXPECT_NE(first.pixelColor(middle), QColor(Qt::black));
    QTest::mouseClick(&Find<QAbstractButton>(*Panels, u"MMControl1Play"_s), Qt::LeftButton);
    EXPECT_TRUE(ReachesItsEnd());
    EXPECT_NE(seen(), first);
    Press(u"Close");
    EXPECT_EQ(seen().pixelColor(middle), QColor(Qt::black));
    OpenFilm();
    ASSERT_TRUE(ShowsAPicture());
    EXPECT_EQ(seen(), first);
}

TEST_F(PlayerTest, AFilmWhosePictureIsInAFormThatNobodyKnows_IsHeard_AndSaysSo)
{
    Open(Home.WriteFile(u"unseen.avi", FilmThatNobodyCanSee()));
    EXPECT_TRUE(Player().IsOpen);
    Press(u"Play");
    EXPECT_TRUE(ReachesItsEnd());
    EXPECT_TRUE(Player().Screen.value().isNull());
    Panels->Show();
    const auto& film = Find<QWidget>(*Panels, u"MMControl1Screen"_s);
    EXPECT_NE(film.accessibleDescription(), QString());
    Press(u"Stop");
    EXPECT_NE(film.accessibleDescription(), QString());
    Press(u"Close");
    EXPECT_EQ(film.accessibleDescription(), QString());
}

TEST_F(PlayerTest, AFileThatIsNotThereIsRefused)
{
    EXPECT_EQ(RefusalOf([this] { Open(Home.Path() + u"/nowhere.avi"_s); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(RefusalOf([this] { Open(QString()); }), ErrorNumber::FileNotFound);
    EXPECT_FALSE(Player().IsOpen);
}

TEST_F(PlayerTest, WhatCannotBePlayedIsRefused)
{
    const QByteArray film = BytesOf(Film);
    const QByteArray sound = BytesOf(Sound);
    QByteArray noise;
    for (int at = 0; at < 50000; ++at)
        noise += static_cast<char>((at * 7919) >> 5);
    const QMap<QString, QByteArray> files{{u"rubbish.avi"_s, noise},
                                          {u"rubbish.wav"_s, noise},
                                          {u"empty.avi"_s, {}},
                                          {u"empty.wav"_s, {}},
                                          {u"text.avi"_s, "A text that has been given another name.\r\n"},
                                          {u"text.wav"_s, "A text that has been given another name.\r\n"},
                                          {u"head.avi"_s, film.first(12)},
                                          {u"cut.avi"_s, film.first(300)},
                                          {u"cut.wav"_s, sound.first(30)},
                                          {u"unseen.avi"_s, FilmThatNobodyCanSee(false)}};
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QString path = Home.WriteFile(file.key(), file.value());
        EXPECT_EQ(RefusalOf([this, path] { Open(path); }), ErrorNumber::InvalidFileFormat) << qPrintable(file.key());
        EXPECT_FALSE(Player().IsOpen);
        EXPECT_FALSE(IsHeldOpen(path)) << qPrintable(file.key());
    }
    const QString directory = Home.MakeDirectory(u"directory.avi");
    EXPECT_EQ(RefusalOf([this, directory] { Open(directory); }), ErrorNumber::InvalidFileFormat);
}

TEST_F(PlayerTest, AFilmThatWasCutOffPlaysAsFarAsItGoes)
{
    const QByteArray film = BytesOf(Film);
    Open(Home.WriteFile(u"half.avi", film.first(film.size() / 2)));
    ASSERT_TRUE(ShowsAPicture());
    Watch();
    Press(u"Play");
    EXPECT_TRUE(ReachesItsEnd());
    EXPECT_GT(Pictures.size(), 5U);
}

TEST_F(PlayerTest, AFilmWithADamagedStretchDoesNoHarm)
{
    QByteArray film = BytesOf(Film);
    for (qsizetype at = film.size() / 3; at < film.size() / 2; ++at)
        film[at] = static_cast<char>(at * 31);
    Open(Home.WriteFile(u"damaged.avi", film));
    Press(u"Play");
    EXPECT_TRUE(Reaches(400));
    EXPECT_TRUE(QTest::qWaitFor([this] { return Position() == 0 || Position() == Player().Length; }, Patience));
    Press(u"Stop");
    EXPECT_EQ(Position(), 0);
}

TEST_F(PlayerTest, OddNamesAreNoHindrance)
{
    const QString path = Home.WriteFile(u"Gr\u00f6\u00dfe #1 50%25?.avi", BytesOf(Film));
    Open(path);
    EXPECT_TRUE(Player().IsOpen);
    EXPECT_TRUE(IsHeldOpen(path));
}

TEST_F(PlayerTest, CloseStopsAndLetsGoOfTheFile)
{
    OpenFilm();
    Press(u"Play");
    ASSERT_TRUE(GoesOn());
    EXPECT_TRUE(IsHeldOpen(Film));
    Press(u"Close");
    EXPECT_FALSE(IsHeldOpen(Film));
    EXPECT_FALSE(Player().IsOpen);
    EXPECT_EQ(Position(), 0);
    EXPECT_EQ(Player().Length, 0);
    EXPECT_TRUE(Player().Screen.value().isNull());
    EXPECT_TRUE(StandsStill());
    Press(u"Close");
    EXPECT_FALSE(Player().IsOpen);
}

TEST_F(PlayerTest, OpeningAgainClosesWhatWasOpen_AlsoWhenItIsRefused)
{
    OpenFilm();
    Press(u"Play");
    ASSERT_TRUE(GoesOn());
    OpenSound();
    EXPECT_FALSE(IsHeldOpen(Film));
    EXPECT_TRUE(IsHeldOpen(Sound));
    EXPECT_TRUE(Player().Screen.value().isNull());
    EXPECT_EQ(Position(), 0);
    EXPECT_EQ(RefusalOf([this] { Open(Home.Path() + u"/nowhere.avi"_s); }), ErrorNumber::FileNotFound);
    EXPECT_FALSE(IsHeldOpen(Sound));
    EXPECT_FALSE(Player().IsOpen);
    OpenFilm();
    EXPECT_TRUE(Player().IsOpen);
}

TEST_F(PlayerTest, TwoPlayersPlayAtTheSameTime)
{
    OpenFilm();
    Panels->MMControl2.FileName = Sound;
    Panels->MMControl2.Command(u"Open");
    Press(u"Play");
    Panels->MMControl2.Command(u"Play");
    EXPECT_TRUE(ReachesItsEnd());
    EXPECT_TRUE(QTest::qWaitFor([this] { return Panels->MMControl2.Position > 500; }, Patience));
}

TEST_F(PlayerTest, UnloadingTheWindowWhileItPlaysEndsThePlaying)
{
    OpenFilm();
    Panels->Show();
    Press(u"Play");
    ASSERT_TRUE(GoesOn());
    Panels.Unload();
    EXPECT_FALSE(IsHeldOpen(Film));
    PassEventLoop();
    EXPECT_FALSE(Panels.IsLoaded());
}

TEST_F(PlayerTest, AHandlerMayUnloadTheWindowWhileItPlays)
{
    Panels->Show();
    OpenFilm();
    Press(u"Play");
    ASSERT_TRUE(GoesOn());
    Panels->Picture1.MouseDown = [this](int, int, double, double) { Panels.Unload(); };
    QTest::mouseClick(&Find<QWidget>(*Panels, u"Picture1"_s), Qt::LeftButton, {}, {2, 2});
    EXPECT_FALSE(Panels.IsLoaded());
    EXPECT_FALSE(IsHeldOpen(Film));
    PassEventLoop();
}

struct ImpatientForm : PanelForm {
    Timer Timer1{*this, u"Timer1", 1};
};

TEST_F(PlayerTest, ATimerMayCloseOrUnloadWhileAFileIsOpened)
{
    Window<ImpatientForm> impatient(System());
    MultimediaControl& player = impatient->MMControl1;
    player.FileName = Film;
    impatient->Timer1.Tick = [&player] { player.Command(u"Close"); };
    impatient->Timer1.Enabled = true;
    player.Command(u"Open");
    PassEventLoop();
    EXPECT_TRUE(QTest::qWaitFor([&player] { return !player.IsOpen; }, Patience));
    EXPECT_FALSE(IsHeldOpen(Film));
    impatient->Timer1.Tick = [&impatient] { impatient.Unload(); };
    System().Run([&player] { player.Command(u"Open"); });
    EXPECT_TRUE(QTest::qWaitFor([&impatient] { return !impatient.IsLoaded(); }, Patience));
    EXPECT_FALSE(IsHeldOpen(Film));
}
} // namespace

} // namespace lineforge
