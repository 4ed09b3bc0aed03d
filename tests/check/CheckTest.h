#pragma once

#include "check/HomeCheck.h"
#include "support/BranchBuilder.h"
#include "support/SqliteFile.h"
#include "support/TemporaryHome.h"

#include <QColor>

#include <gtest/gtest.h>
#include <ostream>

namespace lineforge::check
{

// How a failed expectation shows a finding; GoogleTest looks for it next to the type.
inline void PrintTo(const Finding& finding, std::ostream* out)
{
    *out << static_cast<int>(finding.Kind) << " | " << qUtf8Printable(finding.File) << " | "
         << qUtf8Printable(finding.Record) << " | " << qUtf8Printable(finding.Text);
}

using Found = std::vector<Finding>;

inline Finding Of(Kind kind, QStringView file, QStringView record, QStringView text)
{
    return {kind, file.toString(), record.toString(), text.toString()};
}

// A home with the branch of a small family, in which nothing is wrong.
class CheckTest : public testing::Test
{
protected:
    CheckTest()
    {
        WriteAliasList(home, {{u"Smiths", u"LfgDat_A"}});
        WriteTemplates(home);
        BranchBuilder(home, u'A')
            .Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"SpouseRec", u"A002"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Mary"}, {u"SpouseRec", u"a001"}, {u"FatherRec", u"0"}})
            .Row({{u"File", u"A003"}, {u"Forename", u"Ann"}, {u"FatherRec", u"A001"}, {u"MotherRec", u"A002"}})
            .Boxes(u"1200,600,255,A001,John,2200,600,255,A002,Mary,1700,1600,255,A003,Ann,3000,600,0,0,,")
            .Lines(u"1507,817,2307,817,0,")
            .Texts(u"300,150,The Smiths [sic],Arial,8.25,0,")
            .Picture(u"A001", Qt::red)
            .Picture(u"A002", Qt::green)
            .Picture(u"A003", Qt::blue)
            .Gallery({{QStringLiteral("A001_01.jpg"), PictureBytes(Qt::red)},
                      {QStringLiteral("A001_2.txt"), "text"},
                      {QStringLiteral("a003_98.WAV"), "RIFFxxxxWAVEfmt "}})
            .Build();
    }

    // What is wrong, notes among it. No look changes anything.
    Found Findings() const
    {
        const Tree before = home.Snapshot();
        Found found = CheckHome(home.Path()).Findings;
        EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
        return found;
    }

    void Sql(const QByteArray& statements) const { SqliteFile(home.Path(database)).Execute(statements); }
    void WriteMap(QStringView boxes, QStringView lines, QStringView texts)
    {
        home.WriteFile(map, MapFileBytes(u"LfgDat_A", boxes, lines, texts));
    }

    static constexpr QStringView database = u"LfgDat_A/LfgDat_A.mdb";
    static constexpr QStringView map = u"LfgDat_A/LfgDat_A.cfg";
    TemporaryHome home;
};

} // namespace lineforge::check
