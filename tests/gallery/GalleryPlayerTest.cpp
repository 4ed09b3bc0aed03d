#include "gallery/GalleryItem.h"
#include "gallery/GalleryTest.h"

#include <QFileInfo>

namespace lineforge
{
namespace
{

struct Panel {
    const char* Name;
    QStringView File;
    QStringView OtherFile;
    PictureBox forms::Form5::*Box;
    MultimediaControl forms::Form5::*Player;
    Button forms::Form5::*Exit;
    Button forms::Form5::*OtherExit;
    QStringView DeviceType;
    bool ShowsBeforeOpen;
};

const Panel sound{"Sound",
                  u"A001_01.wav",
                  u"A001_02.avi",
                  &forms::Form5::Picture1,
                  &forms::Form5::MMControl1,
                  &forms::Form5::Command3,
                  &forms::Form5::Command4,
                  u"WaveAudio",
                  true};
const Panel video{"Video",
                  u"A001_01.avi",
                  u"A001_02.wav",
                  &forms::Form5::Picture2,
                  &forms::Form5::MMControl2,
                  &forms::Form5::Command4,
                  &forms::Form5::Command3,
                  u"AviVideo",
                  false};

class GalleryPlayerTest : public GalleryTest, public testing::WithParamInterface<Panel>
{
protected:
    GalleryPlayerTest()
    {
        GivenFiles({GetParam().File.toString(), GetParam().OtherFile.toString()});
        OpenGallery();
        Player().Act = [this](QStringView command) {
            Commands << QString(command + (Player().Visible ? u" shown"_s : u" hidden"_s));
            if (command == u"Open" && !QFileInfo::exists(Player().FileName))
                throw RuntimeError(ErrorNumber::FileNotFound);
        };
    }

    PictureBox& Box() { return (*P.Form5).*GetParam().Box; }
    MultimediaControl& Player() { return (*P.Form5).*GetParam().Player; }
    void PressExit() { Click(((*P.Form5).*GetParam().Exit).Click); }
    void PressOtherExit() { Click(((*P.Form5).*GetParam().OtherExit).Click); }

    QStringList Commands;
};

TEST_P(GalleryPlayerTest, Click_OpensThePanelOnTheFile_WithoutTilesAndButtons)
{
    EXPECT_FALSE(Box().Visible);
    ClickTile(0);
    EXPECT_TRUE(Box().Visible);
    EXPECT_TRUE(Player().Visible);
    EXPECT_EQ(Commands, QStringList{GetParam().ShowsBeforeOpen ? u"Open shown"_s : u"Open hidden"_s});
    EXPECT_EQ(Player().FileName, GalleryPathOf(GetParam().File));
    EXPECT_EQ(Player().DeviceType, GetParam().DeviceType);
    EXPECT_FALSE(Player().Notify);
    EXPECT_TRUE(Player().Wait);
    EXPECT_FALSE(Player().Shareable);
    EXPECT_EQ(Page(), QStringList());
    EXPECT_FALSE(P.Form5->Command1.Visible);
    EXPECT_FALSE(P.Form5->Command2.Visible);
    EXPECT_EQ(State(), GalleryScan::ItemOpen);
    EXPECT_EQ(Caption(), QString(u"A001 Gallery of John  Smith   " + GetParam().File));
}

TEST_P(GalleryPlayerTest, Exit_ClosesIt_AndThePageComesBack)
{
    const QStringList page = Page();
    ClickTile(0);
    Commands.clear();
    PressExit();
    EXPECT_EQ(Commands, QStringList{u"Close shown"_s});
    EXPECT_FALSE(Box().Visible);
    EXPECT_FALSE(Player().Visible);
    EXPECT_EQ(Page(), page);
    EXPECT_TRUE(P.Form5->Command1.Visible);
    EXPECT_TRUE(P.Form5->Command2.Visible);
    EXPECT_EQ(State(), GalleryScan::Browsing);
    EXPECT_EQ(Caption(), u"A001 Gallery of  John  Smith"_s);
}

TEST_P(GalleryPlayerTest, ExitOfTheOtherPlayer_DoesNothing)
{
    ClickTile(0);
    Commands.clear();
    PressOtherExit();
    EXPECT_EQ(Commands, QStringList());
    EXPECT_EQ(State(), GalleryScan::ItemOpen);
    EXPECT_TRUE(Box().Visible);
}

TEST_P(GalleryPlayerTest, ExitWithNothingOpen_DoesNothing)
{
    P.Gallery.GallerySel = 0;
    const QString caption = Caption();
    PressExit();
    EXPECT_EQ(Commands, QStringList());
    EXPECT_EQ(Caption(), caption);
}

TEST_P(GalleryPlayerTest, ExitWhileADeletionWaits_OnlyEndsThat)
{
    ClickTile(0);
    Commands.clear();
    P.Scratch.ScanState = GalleryScan::Deleting;
    PressExit();
    EXPECT_EQ(State(), GalleryScan::Browsing);
    EXPECT_EQ(Commands, QStringList());
    EXPECT_TRUE(Box().Visible);
}

TEST_P(GalleryPlayerTest, FileThatIsGone_IsTold_WithButtonsAndTilesHidden_AndExitLeadsBack)
{
    const QStringList page = Page();
    P.Files.Kill(GalleryPathOf(GetParam().File));
    Prompts.Expect(u"File not Accessable.", u"Problem with File Path", Buttons::Information);
    ClickTile(0);
    EXPECT_EQ(Page(), QStringList());
    EXPECT_FALSE(P.Form5->Command1.Visible);
    EXPECT_FALSE(P.Form5->Command2.Visible);
    EXPECT_TRUE(Box().Visible);
    EXPECT_EQ(Player().Visible, GetParam().ShowsBeforeOpen);
    EXPECT_EQ(State(), GalleryScan::ItemOpen);

    PressExit();
    EXPECT_EQ(Page(), page);
    EXPECT_EQ(State(), GalleryScan::Browsing);
}

TEST_P(GalleryPlayerTest, FileReplacedSinceThePageWasBuilt_IsPlayedAsItIsNow)
{
    Home.WriteFile(InGallery(GetParam().File), "another clip");
    QByteArray played;
    Player().Act = [&](QStringView command) {
        QFile file(Player().FileName);
        if (command == u"Open" && file.open(QFile::ReadOnly))
            played = file.readAll();
    };
    ClickTile(0);
    EXPECT_EQ(played, "another clip");
}

TEST_P(GalleryPlayerTest, ClipAddedAMomentAgo_IsFoundByTheEndOfItsTag)
{
    Tile(0).Tag = GalleryPathOf(GetParam().File);
    ClickTile(0);
    EXPECT_EQ(Player().FileName, GalleryPathOf(GetParam().File));
}

TEST_P(GalleryPlayerTest, NewPageBehindAnOpenPlayer_PutsItAway_AndTheNextClickCloses)
{
    ClickTile(0);
    Commands.clear();
    Click(P.Form5->CloseByFrame);
    P.Form3->Data1.Records().MoveNext();
    P.Gallery.FirstShow = 1;
    Click(P.Form1->Command2.Click);
    EXPECT_EQ(Commands, QStringList{u"Close shown"_s});
    EXPECT_FALSE(Box().Visible);
    EXPECT_EQ(Page(), QStringList{u"0 1 empty"_s});
    EXPECT_EQ(State(), GalleryScan::ItemOpen);
    EXPECT_TRUE(P.Form5->Command1.Visible);
    ClickTile(0);
    EXPECT_EQ(State(), GalleryScan::Browsing);
    EXPECT_TRUE(P.Form5->Command1.Visible);
}

std::string NameOf(const testing::TestParamInfo<Panel>& panel)
{
    return panel.param.Name;
}

INSTANTIATE_TEST_SUITE_P(Panels, GalleryPlayerTest, testing::Values(sound, video), NameOf);

TEST(PlayerPanelLayoutTest, ButtonsAreNamedInTheirOrder)
{
    forms::Form5 form;
    const auto captions = [](std::initializer_list<const Label*> labels) {
        QStringList texts;
        for (const Label* label : labels)
            texts << label->Caption.value();
        return texts;
    };
    const QStringList names{u"Rewind"_s, u"Play"_s, u"Pause"_s, u"Step"_s, u"Stop"_s};
    EXPECT_EQ(captions({&form.Label1, &form.Label2, &form.Label3, &form.Label4, &form.Label5}), names);
    EXPECT_EQ(captions({&form.Label10, &form.Label9, &form.Label8, &form.Label7, &form.Label6}), names);
    EXPECT_LT(form.Label1.Left, form.Label2.Left);
    EXPECT_LT(form.Label10.Left, form.Label9.Left);
}

} // namespace
} // namespace lineforge
