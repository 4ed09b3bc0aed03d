#include "platform/files/SequentialFile.h"
#include "platform/store/PeopleTable.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>
#include <unistd.h>

// What is told to be done is on the disk, and no power cut takes it back: whoever writes has the disk take the content
// of his file and then its name.
namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// What has been flushed since a test began to look, and what was in it then: files by their bytes, directories by the
// names in them.
struct Flush {
    QString Path;
    QByteArray Content;
};
QList<Flush>* flushes = nullptr;

QByteArray ContentOf(const QString& path)
{
    if (QFileInfo(path).isDir())
        return QDir(path).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name).join(u' ').toUtf8();
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

int Note(int descriptor, const char* flush)
{
    if (flushes) {
        QList<Flush>* const noted = std::exchange(flushes, nullptr);
        // A file that has no name yet is reached by its descriptor alone.
        const QString open = u"/proc/self/fd/%1"_s.arg(descriptor);
        noted->push_back({QFile::symLinkTarget(open), ContentOf(open)});
        flushes = noted;
    }
    return reinterpret_cast<int (*)(int)>(dlsym(RTLD_NEXT, flush))(descriptor);
}
} // namespace
} // namespace lineforge

extern "C" int fsync(int descriptor)
{
    return lineforge::Note(descriptor, "fsync");
}

extern "C" int fdatasync(int descriptor)
{
    return lineforge::Note(descriptor, "fdatasync");
}

namespace lineforge
{
namespace
{

class DurabilityTest : public PeopleTable
{
protected:
    ~DurabilityTest() override { flushes = nullptr; }

    template <class Act>
    QList<Flush> FlushesOf(const Act& act)
    {
        QList<Flush> noted;
        flushes = &noted;
        act();
        flushes = nullptr;
        return noted;
    }

    // The content first, under whatever name; then the directory with the name in it, after which nothing is changed.
    void ExpectFlushed(const QList<Flush>& noted, const QString& name, const QByteArray& content)
    {
        ASSERT_GE(noted.size(), 2);
        EXPECT_EQ(noted.front().Content, content);
        EXPECT_EQ(noted.back().Path, QFileInfo(home.Path(name)).path());
        EXPECT_EQ(noted.back().Content, ContentOf(noted.back().Path)) << "the name as it stays";
    }
};

TEST_F(DurabilityTest, ReplacedFile)
{
    home.WriteFile(u"AliasList.cfg", "old");
    ExpectFlushed(FlushesOf([&] { files.Replace(u"AliasList.cfg"_s, "new"); }), u"AliasList.cfg"_s, "new");
}

TEST_F(DurabilityTest, CopiedFile)
{
    home.WriteFile(u"a.jpg", "picture");
    ExpectFlushed(FlushesOf([&] { files.FileCopy(u"a.jpg"_s, u"b.jpg"_s); }), u"b.jpg"_s, "picture");
}

TEST_F(DurabilityTest, FileWrittenAsItGoes)
{
    ExpectFlushed(FlushesOf([&] {
                      SequentialFile file(files, u"Gedcom.tmp"_s);
                      file.Line(u"0 HEAD");
                      file.Close();
                  }),
                  u"Gedcom.tmp"_s, "0 HEAD\r\n");
}

TEST_F(DurabilityTest, RenamedFile)
{
    home.WriteFile(u"A001_01.jpg", "picture");
    const QList<Flush> noted = FlushesOf([&] { files.Rename(u"A001_01.jpg"_s, u"A001_02.jpg"_s); });
    ASSERT_EQ(noted.size(), 1);
    EXPECT_EQ(noted.front().Path, home.Path());
    EXPECT_EQ(noted.front().Content, "A001_02.jpg people.db");
}

TEST_F(DurabilityTest, NewDirectory)
{
    const QList<Flush> noted = FlushesOf([&] { files.MkDir(u"LfgDat_A"_s); });
    ASSERT_EQ(noted.size(), 1);
    EXPECT_EQ(noted.front().Path, home.Path());
    EXPECT_EQ(noted.front().Content, ContentOf(home.Path()));
}

// As long as the journal has its name, the next opening takes the change back.
TEST_F(DurabilityTest, ChangedRecord_WithTheJournalGone)
{
    GivenPeople({u"Ann"_s});
    Recordset people = Open();
    const QList<Flush> noted = FlushesOf([&] {
        people.Edit();
        people.Put(u"Name", u"Anna"_s);
        people.Update();
    });
    ASSERT_GE(noted.size(), 2);
    EXPECT_TRUE(std::ranges::any_of(
        noted, [&](const Flush& flush) { return flush.Path == FilePath() && flush.Content.contains("Anna"); }));
    EXPECT_EQ(noted.back().Path, home.Path());
    EXPECT_EQ(noted.back().Content, "people.db");
}

} // namespace
} // namespace lineforge
