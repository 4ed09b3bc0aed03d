#include "program/branch/OldDatabase.h"
#include "program/branch/WorkDatabase.h"
#include "support/BranchBuilder.h"
#include "support/ProgramTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

const QByteArray oldBeginning = QByteArray("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24);

// A program that was built where the library was missing: no reader stands beside it.
class OldDatabaseWithoutReaderTest : public ProgramTest
{
protected:
    OldDatabaseWithoutReaderTest() { WriteAliasList(Home, {}); }

    // Opening that file is refused, with one box that has this text; nothing on the disk changes.
    void ExpectRefusal(const QString& path, QStringView text)
    {
        const Tree before = Home.Snapshot();
        Prompts.Expect(u"Read Only or Incorrect Database", text, Buttons::Information);
        try {
            PointAtDatabase(P, path);
        } catch (const RuntimeError& refusal) {
            TellDatabaseRefused(P, path, refusal);
        }
        Prompts.Verify();
        EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    }
};

TEST_F(OldDatabaseWithoutReaderTest, OldDatabase_IsRefused_AndTheBoxSaysWhy)
{
    for (const char version : {'\0', '\1'}) {
        QByteArray old = oldBeginning + QByteArray(4096, 'x');
        old[0x14] = version;
        ExpectRefusal(Home.WriteFile(u"LfgDat_A/LfgDat_A.mdb", old),
                      u"This build can't read the databases of older installations.\n"
                      u"It was made without the library that reads them.");
    }
}

TEST_F(OldDatabaseWithoutReaderTest, RefusalItself_SaysWhyToo)
{
    const QString path = Home.WriteFile(u"LfgDat_A/LfgDat_A.mdb", oldBeginning + QByteArray(4096, 'x'));
    QString subject;

    try {
        PointAtDatabase(P, path);
    } catch (const RuntimeError& refusal) {
        subject = refusal.Subject;
    }

    EXPECT_EQ(subject, path + u"\nThis build can't read the databases of older installations.\n"
                              u"It was made without the library that reads them.");
}

TEST_F(OldDatabaseWithoutReaderTest, AnythingElse_IsRefusedAsEver)
{
    QByteArray newer = oldBeginning;
    newer[0x14] = 2;
    for (const QByteArray& bytes : {newer, QByteArray("This is a text, and no database."), QByteArray()})
        ExpectRefusal(Home.WriteFile(u"LfgDat_A/LfgDat_A.mdb", bytes), u"Cannot open this database");
    ExpectRefusal(Home.Path(u"LfgDat_B/LfgDat_B.mdb"), u"Cannot open this database");
}

TEST_F(OldDatabaseWithoutReaderTest, OwnDatabase_IsOpened)
{
    const QString directory = BranchBuilder(Home, u'A').Row({{u"File", u"A001"}}).Build();

    PointAtDatabase(P, directory + u"/LfgDat_A.mdb");

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
}

} // namespace
} // namespace lineforge
