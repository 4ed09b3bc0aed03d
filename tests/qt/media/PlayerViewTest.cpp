#include "qt/text/Panels.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
const QStringList words{u"Rewind"_s, u"Play"_s, u"Pause"_s, u"Step"_s, u"Stop"_s};

struct PlayerViewTest : WindowTest {
    PlayerViewTest()
    {
        Panels->Show();
        for (MultimediaControl* control : {&Panels->MMControl1, &Panels->MMControl2})
            control->Act = [this](QStringView command) { Commands.push_back(command.toString()); };
    }

    QAbstractButton& ButtonOf(const QString& player, const QString& word)
    {
        return Find<QAbstractButton>(*Panels, player + word);
    }
    QImage Seen(const QString& name) { return Find<QWidget>(*Panels, name).grab().toImage(); }

    Window<PanelForm> Panels{System()};
    QStringList Commands;
};

TEST_F(PlayerViewTest, StandsWhereItsControlDoes_AndCanBeHidden)
{
    auto& view = Find<QWidget>(*Panels, u"MMControl2"_s);
    EXPECT_EQ(view.geometry(), PixelScale().ToPixels(Rectangle{150, 150, 3150, 900}));
    EXPECT_EQ(view.parentWidget()->objectName(), u"Picture2"_s);
    EXPECT_TRUE(view.isVisible());
    Panels->MMControl2.Visible = false;
    EXPECT_FALSE(view.isVisible());
}

TEST_F(PlayerViewTest, FiveButtonsOfEqualWidthInARow_BelowTheFilm)
{
    const int width = Find<QWidget>(*Panels, u"MMControl1"_s).width();
    int left = 0;
    for (const QString& word : words) {
        const QAbstractButton& button = ButtonOf(u"MMControl1"_s, word);
        EXPECT_EQ(button.x(), left) << word.toStdString();
        EXPECT_NEAR(button.width(), width / 5, 1) << word.toStdString();
        EXPECT_GE(button.y(), PixelScale().ToPixels(2700)) << word.toStdString();
        left += button.width();
    }
    EXPECT_EQ(left, width);
}

TEST_F(PlayerViewTest, ButtonsHaveNamesForReaders_AndTakeTheFocus)
{
    for (const QString& word : words) {
        const QAbstractButton& button = ButtonOf(u"MMControl2"_s, word);
        EXPECT_EQ(button.accessibleName(), word);
        EXPECT_EQ(button.toolTip(), word);
        EXPECT_EQ(button.focusPolicy(), Qt::StrongFocus);
    }
}

TEST_F(PlayerViewTest, ButtonsServeOnlyWhileSomethingIsOpen)
{
    for (const QString& word : words) {
        QTest::mouseClick(&ButtonOf(u"MMControl1"_s, word), Qt::LeftButton);
        EXPECT_FALSE(ButtonOf(u"MMControl1"_s, word).isEnabled());
    }
    EXPECT_EQ(Commands, QStringList());
    Panels->MMControl1.IsOpen = true;
    for (const QString& word : words) {
        EXPECT_TRUE(ButtonOf(u"MMControl1"_s, word).isEnabled());
        EXPECT_FALSE(ButtonOf(u"MMControl2"_s, word).isEnabled());
    }
    Panels->MMControl1.IsOpen = false;
    EXPECT_FALSE(ButtonOf(u"MMControl1"_s, u"Play"_s).isEnabled());
}

TEST_F(PlayerViewTest, EachButtonGivesItsCommand_ByMouseAndByKey)
{
    Panels->MMControl1.IsOpen = true;
    for (const QString& word : words)
        QTest::mouseClick(&ButtonOf(u"MMControl1"_s, word), Qt::LeftButton);
    EXPECT_EQ(Commands, words);
    QTest::keyClick(&ButtonOf(u"MMControl1"_s, u"Step"_s), Qt::Key_Space);
    EXPECT_EQ(Commands.last(), u"Step"_s);
    EXPECT_EQ(Commands.size(), 6);
}

TEST_F(PlayerViewTest, AButtonShowsThatItIsHeldDown_CannotBePressed_HasTheFocus)
{
    const QImage unusable = Seen(u"MMControl1Play"_s);
    Panels->MMControl1.IsOpen = true;
    const QImage up = Seen(u"MMControl1Play"_s);
    EXPECT_NE(up, unusable);
    ButtonOf(u"MMControl1"_s, u"Play"_s).setDown(true);
    EXPECT_NE(Seen(u"MMControl1Play"_s), up);
    ButtonOf(u"MMControl1"_s, u"Play"_s).setDown(false);
    Activate(*Panels);
    ButtonOf(u"MMControl1"_s, u"Play"_s).setFocus();
    EXPECT_NE(Seen(u"MMControl1Play"_s), up);
}

TEST_F(PlayerViewTest, TheFilmKeepsItsProportions_OnBlack)
{
    QImage film(40, 40, QImage::Format_RGB32);
    film.fill(Qt::red);
    Panels->MMControl1.Screen = film;
    const QImage seen = Seen(u"MMControl1Screen"_s);
    const QRgb red = QColor(Qt::red).rgb();
    const QRgb black = QColor(Qt::black).rgb();
    const int middle = seen.height() / 2;
    const int edge = (seen.width() - seen.height()) / 2;
    ASSERT_GT(edge, 4);
    EXPECT_EQ(seen.pixel(seen.width() / 2, 2), red);
    EXPECT_EQ(seen.pixel(seen.width() / 2, seen.height() - 3), red);
    EXPECT_EQ(seen.pixel(edge + 2, middle), red);
    EXPECT_EQ(seen.pixel(edge - 3, middle), black);
    EXPECT_EQ(seen.pixel(seen.width() - edge + 2, middle), black);
    Panels->MMControl1.Screen = QImage();
    EXPECT_EQ(Seen(u"MMControl1Screen"_s).pixel(seen.width() / 2, middle), black);
}

TEST_F(PlayerViewTest, AFilmThatRunsWithoutAPicture_SaysSo_UntilItIsClosed)
{
    const auto& film = Find<QWidget>(*Panels, u"MMControl1Screen"_s);
    const QImage black = Seen(u"MMControl1Screen"_s);
    EXPECT_EQ(film.accessibleDescription(), QString());
    Panels->MMControl1.IsOpen = true;
    for (const int position : {40, 0}) { // stopped, it is at its beginning
        Panels->MMControl1.Position = position;
        EXPECT_NE(Seen(u"MMControl1Screen"_s), black) << position;
        EXPECT_EQ(film.accessibleDescription(), u"This film's picture can't be shown here."_s) << position;
    }
    QImage picture(black.size(), QImage::Format_RGB32);
    picture.fill(Qt::black);
    Panels->MMControl1.Screen = picture;
    EXPECT_EQ(Seen(u"MMControl1Screen"_s), black);
    EXPECT_EQ(film.accessibleDescription(), QString());
    Panels->MMControl1.Screen = QImage();
    Panels->MMControl1.IsOpen = false;
    EXPECT_EQ(Seen(u"MMControl1Screen"_s), black);
    EXPECT_EQ(film.accessibleDescription(), QString());
    Panels->MMControl1.IsOpen = true; // another one
    EXPECT_EQ(film.accessibleDescription(), QString());
}

TEST_F(PlayerViewTest, APlayerOfSoundsHasNoScreen)
{
    QImage film(4, 4, QImage::Format_RGB32);
    film.fill(Qt::red);
    Panels->MMControl2.Screen = film;
    EXPECT_EQ(ViewOf(*Panels).findChild<QWidget*>(u"MMControl2Screen"_s), nullptr);
    EXPECT_NE(ViewOf(*Panels).findChild<QWidget*>(u"MMControl1Screen"_s), nullptr);
}

TEST_F(PlayerViewTest, ShowsTheTime_WhereThereIsRoom)
{
    const auto& time = Find<QLabel>(*Panels, u"MMControl1Time"_s);
    EXPECT_EQ(time.text(), QString());
    Panels->MMControl1.Length = 72000;
    EXPECT_EQ(time.text(), u"0:00 / 1:12"_s);
    Panels->MMControl1.Position = 3999;
    EXPECT_EQ(time.text(), u"0:03 / 1:12"_s);
    EXPECT_TRUE(time.isVisible());
    Panels->MMControl1.Height = 2700 + 500;
    EXPECT_FALSE(time.isVisible());
}
} // namespace

} // namespace lineforge
