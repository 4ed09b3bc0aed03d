#include "platform/files/MediaSignature.h"

#include "support/TemporaryHome.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

struct Row {
    QByteArray Beginning;
    bool IsMedia;
};

class MediaSignatureTest : public testing::TestWithParam<Row>
{
};

TEST_P(MediaSignatureTest, BytesTellWhetherItIsSoundOrFilm)
{
    EXPECT_EQ(BeginsAsMedia(GetParam().Beginning), GetParam().IsMedia);
}

INSTANTIATE_TEST_SUITE_P(
    Media, MediaSignatureTest,
    testing::Values(Row{"RIFF\x24\x08\x20\x20WAVEfmt ", true}, Row{"RIFFxxxxAVI LIST", true},
                    Row{"FORMxxxxAIFFCOMM", true}, Row{"FORMxxxxAIFCFVER", true}, Row{"RIFXxxxxWAVEfmt ", true},
                    Row{"RF64xxxxWAVEds64", true}, Row{"caff", true}, Row{"wvpk", true}, Row{"#!AMR\n", true},
                    Row{QByteArray("\0\0\0\x08", 4) + "wide", true}, Row{QByteArray("\0\0\0\x08", 4) + "free", true},
                    Row{QByteArray("\0\0\0\x08", 4) + "skip", true}, Row{QByteArray("\0\0\0\x14", 4) + "pnot", true},
                    Row{".snd\x20", true}, Row{"OggS\x20\x02", true}, Row{"fLaC\x20", true}, Row{"ID3\x04", true},
                    Row{"\xFF\xFB\x90\x64", true}, Row{QByteArray("\0\0\0\x18", 4) + "ftypisom", true},
                    Row{QByteArray("\0\1\0\0", 4) + "moov", true}, Row{"\x1A\x45\xDF\xA3\x9F", true},
                    Row{QByteArray("\0\0\1\xBA\x44", 5), true}));

INSTANTIATE_TEST_SUITE_P(Others, MediaSignatureTest,
                         testing::Values(Row{"", false}, Row{"RIFF", false}, Row{"RIFFxxxxWEBPVP8 ", false},
                                         Row{"RIFFxxxxAVI", false}, Row{"#EXTM3U\nhttp://somewhere/", false},
                                         Row{"[playlist]\nFile1=", false}, Row{"RTSPtextrtsp://somewhere", false},
                                         Row{"v=0\r\no=- 0 0 IN IP4", false}, Row{"<smil>", false},
                                         Row{"\xFF\xFEt\x20", false}, Row{"\xFF", false},
                                         Row{QByteArray(64, '\xFF'), false}, Row{QByteArray(64, '\0'), false},
                                         Row{"A text about an ftyp", false}, Row{"\xFF\xD8\xFF\xE0", false}));

TEST(MediaFileTest, FileIsToldByItsBytes_AndWhatIsNoFileByNothing)
{
    TemporaryHome home;
    EXPECT_TRUE(IsMediaFile(home.WriteFile(u"a.avi", "RIFFxxxxAVI LIST")));
    EXPECT_FALSE(IsMediaFile(home.WriteFile(u"b.avi", "text")));
    EXPECT_FALSE(IsMediaFile(home.WriteFile(u"c.avi", "")));
    EXPECT_FALSE(IsMediaFile(home.Path(u"none.avi")));
    EXPECT_FALSE(IsMediaFile(home.MakeDirectory(u"d.avi")));
    ASSERT_EQ(mkfifo(home.Path(u"e.avi").toLocal8Bit().constData(), 0600), 0);
    EXPECT_FALSE(IsMediaFile(home.Path(u"e.avi")));
}

} // namespace
} // namespace lineforge
