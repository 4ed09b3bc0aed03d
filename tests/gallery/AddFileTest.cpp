#include "gallery/AddFile.h"

#include "gallery/GalleryTest.h"
#include "program/branch/SiblingBranch.h"

namespace lineforge
{
namespace
{

struct Kind {
    GalleryKind Which;
    MenuItem forms::Form5::*Menu;
    QStringView Title;
    QStringView Question;
    QStringView DialogTitle;
    QStringView Filter;
    QStringView TableFull;
    QStringView Ending;
    QStringView Shown;
};

constexpr QStringView pictureTableFull =
    u"Last Gallery Picture used. You need to delete to have space for a new picture.";
const Kind picture{GalleryKind::Picture,
                   &forms::Form5::mnuPic,
                   u"Gallery Picture Addition.",
                   u"Add new *.bmp or *.jpg Gallery Picture ?",
                   u"Select Picture Source File",
                   u"Graphics(*.jpg)|*.jpg|Graphics(*.bmp)|*.bmp|All Files(*.*)|*.*|",
                   pictureTableFull,
                   u".JPG",
                   u"red"};
const Kind sound{GalleryKind::Sound,
                 &forms::Form5::mnuAud,
                 u"Gallery Sound Clip Addition.",
                 u"Add new *.Wav Sound clip ?",
                 u"Select Sound Clip Source File",
                 u"Audio(*.Wav)|*.Wav|All Files(*.*)|*.*|",
                 u"Last Gallery Container used. You need to delete to have space for a new File.",
                 u".wav",
                 u"sound"};
const Kind video{GalleryKind::Video,
                 &forms::Form5::mnuVid,
                 u"Gallery Video Clip Addition.",
                 u"Add new *.avi Gallery Video Clip ?",
                 u"Select Video Clip Source File",
                 u"Video(*.avi)|*.avi|All Files(*.*)|*.*|",
                 pictureTableFull,
                 u".avi",
                 u"video"};
const Kind text{GalleryKind::Text,
                &forms::Form5::mnuTxt,
                u"Gallery Text File Addition.",
                u"Add new *.txt Gallery Text File ?",
                u"Select Text Source File",
                u"Text(*.txt)|*.txt|All Files(*.*)|*.*|",
                pictureTableFull,
                u".txt",
                u"text"};

class AddFileTest : public GalleryTest, public testing::WithParamInterface<Kind>
{
protected:
    // A picture in all but its name, so that each addition can take it.
    AddFileTest() : Source(Home.WriteFile(u"Scans/Été 1901.JPG", PictureBytes(Qt::red))) {}

    void ExpectQuestion(Answer answer = Answer::Ok)
    {
        Prompts.Expect(GetParam().Title, GetParam().Question, Buttons::QuestionOkCancel, answer);
    }
    void ExpectDialog(std::optional<QString> path)
    {
        Prompts.ExpectOpenFile(GetParam().DialogTitle, GetParam().Filter, std::move(path));
    }
    void Add() { Click(((*P.Form5).*GetParam().Menu).Click); }
    void AddSource()
    {
        ExpectQuestion();
        ExpectDialog(Source);
        Add();
    }

    // The added file's name at that subscript, and its line on the page.
    QString Named(QStringView subscript) { return QString(u"A001_" + subscript + GetParam().Ending); }
    QString OnTile(int index, QStringView subscript)
    {
        return u"%1 %2 %3"_s.arg(QString::number(index), Named(subscript), GetParam().Shown);
    }

    QString Source;
};

TEST_P(AddFileTest, LowestFreeSubscriptInAGap_IsTaken_AndThePageDoesntGrow)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_03.jpg"_s});
    const Tree before = Home.Snapshot();
    AddSource();
    EXPECT_EQ(Page(),
              QStringList({u"0 A001_01.jpg blue"_s, OnTile(1, u"02"), u"2 A001_03.jpg blue"_s, u"3 4 empty"_s}));
    EXPECT_EQ(Top(), 3);
    EXPECT_EQ(Tile(1).Tag.value(), GalleryPathOf(Named(u"02")));
    const Tree after = Home.Snapshot();
    EXPECT_EQ(Differences(before, after), QStringList{u"new: "_s + InGallery(Named(u"02"))});
    EXPECT_EQ(after.value(InGallery(Named(u"02"))), before.value(u"Scans/Été 1901.JPG"_s));
    EXPECT_EQ(P.Files.CurDir(), Home.Path(u"LfgDat_A"));
}

TEST_P(AddFileTest, BehindTheLast_TheTrailingTileIsTaken_AndANewOneFollows)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.jpg"_s, u"A001_03.jpg"_s});
    AddSource();
    EXPECT_EQ(Page().sliced(2), QStringList({u"2 A001_03.jpg blue"_s, OnTile(3, u"04"), u"4 5 empty"_s}));
    EXPECT_EQ(Top(), 4);
}

TEST_P(AddFileTest, FirstFileOfARecord)
{
    OpenGallery();
    AddSource();
    EXPECT_EQ(Page(), QStringList({OnTile(0, u"01"), u"1 2 empty"_s}));
    EXPECT_EQ(FilesInGallery(), QStringList{Named(u"01")});
}

TEST_P(AddFileTest, QuestionDeclined_ChangesNothing)
{
    OpenGallery({u"A001_01.jpg"_s});
    const Tree before = Home.Snapshot();
    ExpectQuestion(Answer::Cancel);
    Add();
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(P.Files.CurDir(), Home.Path(u"LfgDat_A"));
}

TEST_P(AddFileTest, DialogCancelled_LeavesTheCurrentDirectoryInTheGallery)
{
    OpenGallery({u"A001_01.jpg"_s});
    const QStringList page = Page();
    const Tree before = Home.Snapshot();
    ExpectQuestion();
    ExpectDialog({});
    Add();
    EXPECT_EQ(Page(), page);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(P.Files.CurDir(), Home.Path(u"LfgDat_A/LfgGal_A"));
}

TEST_P(AddFileTest, SourceThatIsGone_EndsItInSilence_WithTheTrailingTileAsItIs)
{
    OpenGallery({u"A001_01.jpg"_s});
    const Tree before = Home.Snapshot();
    ExpectQuestion();
    ExpectDialog(Home.Path(u"nowhere.jpg"));
    Add();
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 2 empty"_s, u"2 3 empty"_s}));
    EXPECT_EQ(Top(), 2);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(P.Files.CurDir(), Home.Path(u"LfgDat_A/LfgGal_A"));
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_P(AddFileTest, TwoDigitSubscript_IsWrittenAsItIs)
{
    QStringList names;
    for (int subscript = 1; subscript <= 9; ++subscript)
        names << u"A001_0%1.txt"_s.arg(subscript);
    OpenGallery(names);
    AddSource();
    EXPECT_TRUE(Home.Exists(InGallery(Named(u"10"))));
}

TEST_P(AddFileTest, NinetyEighthFile_LacksItsSubscript)
{
    QStringList names;
    for (int subscript = 1; subscript <= 97; ++subscript)
        names << u"A001_%1.txt"_s.arg(subscript, 2, 10, QChar(u'0'));
    OpenGallery(names);
    AddSource();
    EXPECT_TRUE(Home.Exists(InGallery(Named(u""))));
    EXPECT_EQ(Top(), 98);
    EXPECT_EQ(Tile(97).Tag.value(), GalleryPathOf(Named(u"")));
}

TEST_P(AddFileTest, AllSubscriptsTaken_EndsWithoutAWord)
{
    QStringList names;
    for (int subscript = 1; subscript <= 98; ++subscript)
        names << u"A001_%1.txt"_s.arg(subscript, 2, 10, QChar(u'0'));
    OpenGallery(names);
    const Tree before = Home.Snapshot();
    ExpectQuestion();
    Add();
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_P(AddFileTest, NameThatEndsInAnAsterisk_IsTheOnlyOneThatMakesTheTableFull)
{
    OpenGallery({u"A001_01.jpg"_s});
    Home.WriteFile(InGallery(u"A001_98.*"), "x");
    const Tree before = Home.Snapshot();
    ExpectQuestion();
    Prompts.Expect(u"Directory Table Full.", GetParam().TableFull, Buttons::Information);
    Add();
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_P(AddFileTest, OtherRecordsFiles_TakeNoSubscript)
{
    OpenGallery({u"A002_01.jpg"_s});
    AddSource();
    EXPECT_TRUE(Home.Exists(InGallery(Named(u"01"))));
}

TEST_P(AddFileTest, SubscriptOf99_EndsTheProgram)
{
    OpenGallery({u"A001_01.jpg"_s});
    GivenFiles({u"A001_99.jpg"_s});
    ExpectQuestion();
    ExpectFatalBox(u"Run-time error '9':\n\nSubscript out of range",
                   u"The list or table that is needed has no place of this number:\n99\n"_s +
                       GalleryPathOf(u"A001_99.jpg"));
    Add();
    EXPECT_TRUE(ExitCode().has_value());
}

TEST_P(AddFileTest, SubscriptOf00_TakesNoPlace)
{
    OpenGallery();
    GivenFiles({u"A001_00.jpg"_s});
    AddSource();
    EXPECT_EQ(FilesInGallery(), QStringList({u"A001_00.jpg"_s, Named(u"01")}));
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_P(AddFileTest, SubscriptThatIsNoNumber_EndsTheProgram)
{
    OpenGallery({u"A001_01.jpg"_s});
    GivenFiles({u"A001_xx.jpg"_s});
    ExpectQuestion();
    ExpectFatalBox(u"Run-time error '13':\n\nType mismatch",
                   u"A number should stand where this stands:\n'xx'\n"_s + GalleryPathOf(u"A001_xx.jpg"));
    Add();
    EXPECT_TRUE(ExitCode().has_value());
}

TEST_P(AddFileTest, NoGalleryDirectory_EndsTheProgram)
{
    P.Files.RmDir(Home.Path(u"LfgDat_A/LfgGal_A"));
    OpenGallery();
    ExpectQuestion();
    ExpectFatalBox(u"Run-time error '76':\n\nPath not found",
                   u"There is no such directory:\n"_s + Home.Path(u"LfgDat_A/LfgGal_A"));
    Add();
    EXPECT_TRUE(ExitCode().has_value());
}

TEST_P(AddFileTest, WithoutARecord_NothingIsAdded)
{
    OpenGallery();
    P.Gallery.PageRecord.clear();
    ExpectQuestion();
    Prompts.Expect(u"Database Empty", u"The Database has no records to access", Buttons::Information);
    Add();
    EXPECT_EQ(FilesInGallery(), QStringList());
}

std::string NameOf(const testing::TestParamInfo<Kind>& kind)
{
    constexpr const char* names[] = {"Picture", "Sound", "Video", "Text"};
    return names[static_cast<int>(kind.param.Which)];
}

INSTANTIATE_TEST_SUITE_P(Kinds, AddFileTest, testing::Values(picture, sound, video, text), NameOf);

class AddPictureTest : public GalleryTest
{
protected:
    void ExpectQuestion(Answer answer = Answer::Ok)
    {
        Prompts.Expect(picture.Title, picture.Question, Buttons::QuestionOkCancel, answer);
    }
    void Add(const QString& source)
    {
        ExpectQuestion();
        Prompts.ExpectOpenFile(picture.DialogTitle, picture.Filter, source);
        Click(P.Form5->mnuPic.Click);
    }
};

TEST_F(AddPictureTest, EndingKeepsItsCase)
{
    OpenGallery();
    Add(Home.WriteFile(u"a.JpG", PictureBytes(Qt::red)));
    Add(Home.WriteFile(u"b.Bmp", BitmapBytes(Qt::blue)));
    EXPECT_EQ(FilesInGallery(), QStringList({u"A001_01.JpG"_s, u"A001_02.Bmp"_s}));
}

TEST_F(AddPictureTest, OpenItemIsClosedFirst_EvenIfTheQuestionIsDeclined)
{
    OpenGallery({u"A001_01.jpg"_s});
    ClickTile(0);
    ExpectQuestion(Answer::Cancel);
    Click(P.Form5->mnuPic.Click);
    EXPECT_EQ(State(), GalleryScan::Browsing);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 2 empty"_s}));
}

TEST_F(AddPictureTest, FileThatIsNoPicture_EndsItInSilence_AndLeavesNoCopy)
{
    OpenGallery({u"A001_01.jpg"_s});
    for (const QByteArray& bytes : {QByteArray(), QByteArray("no picture"), PictureBytes(Qt::red).first(100)}) {
        const QString source = Home.WriteFile(u"a.jpg", bytes);
        Add(source);
        EXPECT_EQ(FilesInGallery(), QStringList{u"A001_01.jpg"_s});
        EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 2 empty"_s, u"2 3 empty"_s}));
        EXPECT_TRUE(QFile::exists(source));
        EXPECT_EQ(ExitCode(), std::nullopt);
    }
    Add(Home.WriteFile(u"b.jpg", PictureBytes(Qt::red)));
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 A001_02.jpg red"_s, u"2 3 empty"_s}));
}

TEST_F(AddPictureTest, PictureOfAnotherFormat_IsCopiedUnderItsOwnEnding)
{
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QBuffer::WriteOnly);
    QImage(20, 20, QImage::Format_RGB32).save(&buffer, "PNG");
    OpenGallery();
    Add(Home.WriteFile(u"a.png", png));
    EXPECT_EQ(FilesInGallery(), QStringList{u"A001_01.png"_s});
}

TEST_F(AddPictureTest, BranchChangedBehindThePage_DoesntGetTheFile)
{
    OpenGallery();
    SwitchToSibling(P, u"B");
    Add(Home.WriteFile(u"a.jpg", PictureBytes(Qt::red)));
    EXPECT_EQ(FilesInGallery(), QStringList{u"A001_01.jpg"_s});
    EXPECT_FALSE(Home.Exists(u"LfgDat_B/LfgGal_B/A001_01.jpg"));
}

TEST_F(AddPictureTest, RecordTheUserHasGoneOnTo_DoesntGetTheFile)
{
    OpenGallery();
    P.Form3->Data1.Records().MoveNext(); // the scanner runs on behind the gallery
    Add(Home.WriteFile(u"a.jpg", PictureBytes(Qt::red)));
    EXPECT_EQ(FilesInGallery(), QStringList{u"A001_01.jpg"_s});
}

TEST_F(AddPictureTest, ScannerThatGoesOnBehindTheDialog_DoesntNameTheFile)
{
    OpenGallery();
    P.Form3->Picture2.Click();
    ExpectQuestion();
    Prompts.ExpectOpenFile(picture.DialogTitle, picture.Filter, Home.WriteFile(u"a.jpg", PictureBytes(Qt::red)),
                           [&] { Click(P.Form3->Timer1.Tick); });
    Click(P.Form5->mnuPic.Click);
    EXPECT_EQ(P.Form3->Label25.Caption.value(), u"A002"_s);
    EXPECT_EQ(FilesInGallery(), QStringList{u"A001_01.jpg"_s});
}

} // namespace
} // namespace lineforge
