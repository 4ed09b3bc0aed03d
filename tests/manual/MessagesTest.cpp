#include "manual/Pages.h"
#include "manual/Sources.h"

#include <QSet>

#include <algorithm>
#include <gmock/gmock.h>

namespace lineforge::manual
{

using namespace Qt::StringLiterals;

namespace
{
// The routines that show a box, and which of their arguments is its title.
struct TitledRoutine {
    QString Name;
    int Title;
};
const TitledRoutine titledRoutines[] = {
    {u"MsgBox"_s, 0},          {u"InputBox"_s, 0},      {u"Tell"_s, 1},
    {u"TellIfAlternate"_s, 2}, {u"AskBranchName"_s, 2}, {u"refuse"_s, 0},
};

// Where a box gets its title by a name, the titles that stand behind the name: none where the name is an argument of
// one of the routines above, since their calls tell.
struct NamedTitles {
    QString File;
    QString Expression;
    QStringList Titles = {};
};
const NamedTitles namedTitles[] = {
    {u"compare/CompareEnds.cpp"_s, u"title"_s},
    {u"compare/FieldCopy.cpp"_s,
     u"way.Title.toString()"_s,
     {u"Append Record to Database."_s, u"Append Compare Record to Current Database."_s}},
    {u"gallery/AddFile.cpp"_s,
     u"addition.Title.toString()"_s,
     {u"Gallery Picture Addition."_s, u"Gallery Sound Clip Addition."_s, u"Gallery Video Clip Addition."_s,
      u"Gallery Text File Addition."_s}},
    {u"gedcom/writer/GedcomWriter.cpp"_s,
     u"requirement.Title.toString()"_s,
     {u"Incomplete Name"_s, u"Incomplete Address"_s, u"Incomplete Record number"_s}},
    {u"interchange/BranchDatabase.cpp"_s, u"title"_s},
    {u"interchange/BranchDatabase.cpp"_s, u"why"_s},
    {u"map/subjects/MapInteraction.cpp"_s, u"title"_s},
    {u"program/branch/AliasList.cpp"_s, u"title"_s},
    {u"program/branch/SiblingBranch.cpp"_s, u"title"_s},
};

// A title as its expression gives it: one text, or texts with something in between.
struct Title {
    QString File;
    QStringList Pieces;
};

class ManualMessages : public testing::Test
{
protected:
    ManualMessages()
    {
        for (const TitledRoutine& routine : titledRoutines)
            for (const Call& call : CallsOf(routine.Name))
                AddTitle(call, routine.Title);
    }

    void AddTitle(const Call& call, qsizetype argument)
    {
        // The text editor's boxes share one title, and are described by their texts.
        const bool isEditor = call.File.startsWith(u"editor/");
        // The widgets of the map tell of the mouse by a routine of that name, and the check of its findings.
        const bool isOther = call.File.startsWith(u"qt/") || call.File.startsWith(u"check/");
        if (isEditor || isOther || argument >= call.Arguments.size())
            return;
        const QString expression = call.Arguments[argument];
        if (const QStringList pieces = Literals(expression); !pieces.isEmpty())
            Titles.append({call.File, pieces});
        else
            AddNamedTitles(call.File, expression);
    }

    void AddNamedTitles(const QString& file, const QString& expression)
    {
        const auto named = std::ranges::find_if(
            namedTitles, [&](const NamedTitles& each) { return each.File == file && each.Expression == expression; });
        ASSERT_NE(named, std::end(namedTitles))
            << file.toStdString() << " has a box whose title this test doesn't know: " << expression.toStdString();
        for (const QString& title : named->Titles) {
            EXPECT_TRUE(SourceText(file).contains(u'"' + title + u'"')) << title.toStdString();
            Titles.append({file, {title}});
        }
    }

    static bool Tells(const QString& described, const Title& title)
    {
        if (described == title.Pieces.join(u"…"_s).simplified())
            return true;
        qsizetype from = 0;
        for (const QString& piece : title.Pieces) {
            const qsizetype at = described.indexOf(piece.simplified(), from);
            if (at < 0)
                return false;
            from = at + piece.size();
        }
        return described.contains(u'…');
    }

    QList<Title> Titles;
    QStringList Described = PageNamed(u"messages.html"_s).Names(u"messages"_s);
};

TEST_F(ManualMessages, EveryTitleOfTheProgramIsDescribed)
{
    EXPECT_GT(Titles.size(), 60) << "the sources were found";
    for (const Title& title : Titles)
        EXPECT_TRUE(std::ranges::any_of(Described, [&](const QString& each) { return Tells(each, title); }))
            << title.File.toStdString() << ": " << title.Pieces.join(u"…"_s).toStdString();
}

TEST_F(ManualMessages, NoTitleIsDescribedThatTheProgramDoesNotHave)
{
    for (const QString& described : Described)
        EXPECT_TRUE(std::ranges::any_of(Titles, [&](const Title& each) { return Tells(described, each); }))
            << described.toStdString();
}

TEST_F(ManualMessages, NoneIsDescribedTwice)
{
    EXPECT_EQ(Described.size(), QSet<QString>(Described.begin(), Described.end()).size());
}
} // namespace

} // namespace lineforge::manual
