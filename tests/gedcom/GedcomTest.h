#pragma once

#include "program/branch/WorkDatabase.h"
#include "shell/ShellTest.h"

namespace lineforge
{

// A record and its parents; nothing stands for Null.
struct Person {
    QString File;
    std::optional<QString> Father = {};
    std::optional<QString> Mother = {};
};

// A user of branch A, filled by the test, with branch B beside it, who makes a GEDCOM file.
class GedcomTest : public ShellTest
{
protected:
    GedcomTest()
    {
        GivenRegistry({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});
        WriteTemplates(Home);
    }

    // The first one is the subject of the map's first box.
    void GivenPeople(const std::vector<Person>& people)
    {
        BranchBuilder branch(Home, u'A');
        for (const Person& person : people) {
            std::vector<FieldText> fields{{u"File", person.File}};
            if (person.Father)
                fields.emplace_back(u"FatherRec", *person.Father);
            if (person.Mother)
                fields.emplace_back(u"MotherRec", *person.Mother);
            branch.Row(fields);
        }
        const QString first = people.front().File;
        branch.Boxes(u"1200,600,255,%1,John,"_s.arg(first)).Picture(first, Qt::red).Build();
        BranchOf(u'B').Build();
        StartProgram(P);
        Choose(u"Smiths");
        // What opening a branch leaves there is where the count of the first row begins.
        P.Scratch.IdxA = 0;
    }

    void CreateFile() { Click(P.Form12->Command1.Click); }
    QString FileName() { return Home.Path(u"LfgDat_A/Gedcom.tmp"); }
    QByteArray File() const { return Home.ReadFile(u"LfgDat_A/Gedcom.tmp"); }
    const QStringList& Panel() { return P.Form12->Picture1.Lines; }

    // The rows of the lineage's table up to the last that holds anything, the offspring with commas between them.
    QStringList Table() const
    {
        QStringList rows;
        qsizetype used = 0;
        for (int at = 0; at <= LineageState::LastRow; ++at) {
            const LineageState::Row& row = P.Lineage.LineageArr[at];
            QStringList cells;
            for (int column = 0; column < LineageColumn::Sib1; ++column)
                cells << row[column];
            QStringList siblings;
            for (int column = LineageColumn::Sib1; column <= LineageColumn::Last; ++column)
                siblings << row[column];
            while (!siblings.isEmpty() && siblings.last().isEmpty())
                siblings.removeLast();
            rows << cells.join(u'|') + u'|' + siblings.join(u',');
            if (rows.last() != u"|||||")
                used = rows.size();
        }
        return rows.first(used);
    }
};

} // namespace lineforge
