#include "platform/canvas/PictureBox.h"
#include "qt/WindowTest.h"

#include <QClipboard>
#include <QMimeData>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct ClipboardTest : WindowTest {
    ClipboardTest() { Board().Clear(); }
    ~ClipboardTest() override { QGuiApplication::clipboard()->clear(); }
    Clipboard& Board() { return Machine().Bundle().Clipboard; }

    static QImage Dots()
    {
        QImage image(20, 10, QImage::Format_RGB32);
        image.fill(Qt::blue);
        image.setPixelColor(3, 4, Qt::red);
        return image;
    }
};

TEST_F(ClipboardTest, EmptyItHoldsNothing)
{
    EXPECT_FALSE(Board().HasText());
    EXPECT_FALSE(Board().HasPicture());
    EXPECT_EQ(Board().GetText(), QString());
    EXPECT_TRUE(Board().GetPicture().isNull());
}

TEST_F(ClipboardTest, TextIsThereForAllPrograms_AndComesBackAsItWas)
{
    const QString text = u"Zo\u00eb\r\n\u20ac \U0001F600"_s;
    Board().SetText(text);
    EXPECT_TRUE(Board().HasText());
    EXPECT_FALSE(Board().HasPicture());
    EXPECT_EQ(Board().GetText(), text);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), text);
}

TEST_F(ClipboardTest, PictureIsThereForAllPrograms_AndComesBackAsItWas)
{
    Board().SetPicture(Dots());
    EXPECT_TRUE(Board().HasPicture());
    EXPECT_FALSE(Board().HasText());
    EXPECT_EQ(Board().GetPicture(), Dots());
    EXPECT_EQ(QGuiApplication::clipboard()->image(), Dots());
}

TEST_F(ClipboardTest, LastThingPutThere_TakesThePlaceOfTheOneBefore)
{
    Board().SetText(u"text"_s);
    Board().SetPicture(Dots());
    EXPECT_FALSE(Board().HasText());
    Board().SetText(u"text"_s);
    EXPECT_FALSE(Board().HasPicture());
    EXPECT_EQ(Board().GetText(), u"text"_s);
}

TEST_F(ClipboardTest, ClearTakesAway)
{
    Board().SetText(u"text"_s);
    Board().Clear();
    EXPECT_FALSE(Board().HasText());
    Board().SetPicture(Dots());
    Board().Clear();
    EXPECT_FALSE(Board().HasPicture());
}

TEST_F(ClipboardTest, WhatAnotherProgramPutThere_IsFound)
{
    auto* content = new QMimeData;
    content->setText(u"both"_s);
    content->setImageData(Dots());
    QGuiApplication::clipboard()->setMimeData(content);
    EXPECT_TRUE(Board().HasText());
    EXPECT_TRUE(Board().HasPicture());
    EXPECT_EQ(Board().GetText(), u"both"_s);
    EXPECT_EQ(Board().GetPicture(), Dots());
}

TEST_F(ClipboardTest, PictureCopiedFromABox_PastesWithTheSamePixels)
{
    Container window;
    PictureBox one(window, u"Picture1", {0, 0, 2000, 1500});
    PictureBox other(window, u"Picture2", {0, 0, 2000, 1500});
    one.PrintAt({300, 200}, u"The Smiths"_s);
    one.Line({100, 1300}, {1700, 90});

    Board().SetPicture(one.Image());
    other.ShowPicture(Board().GetPicture());

    EXPECT_EQ(other.Drawing(), one.Drawing());
}
} // namespace

} // namespace lineforge
