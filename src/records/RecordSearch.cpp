#include "records/RecordSearch.h"

#include "forms/Form3.h"
#include "map/subjects/RecordFormPicture.h"
#include "platform/base/Like.h"
#include "platform/store/Fields.h"
#include "program/branch/WorkDatabase.h"
#include "program/ui/Meanwhile.h"
#include "records/RecordPicture.h"

#include <algorithm>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
enum class Picture { BeforeTheQuestion, AfterTheQuestion };

struct PatternSearch {
    QString Prompt;
    QString NoMatch;
    std::vector<QStringView> Fields;
    Picture Shown;
};

// The menu has told that the records of another branch aren't searched.
QString Ask(Program& p, const QString& prompt)
{
    if (p.Branch.IsSiblingShown())
        return {};
    return p.Prompts.InputBox(u"Search Database"_s, prompt);
}

// Looked for where `sNewDir` says, whoever wrote that last.
// KEPT(RecordSearchTest.AfterATransportClick_TheHitHasNoPicture): elsewhere than in the branch it isn't found, and none
// is shown.
// Mended, a hit would show its picture after a scan and after a page of the gallery as well.
void ShowPictureOfHit(Program& p)
{
    ShowRecordPicture(p, p.Scratch.sNewDir);
}

void TellNoMatch(Program& p, const QString& text)
{
    PutRecordPicture(p, QImage());
    p.Prompts.MsgBox(u"Database Result"_s, text, Buttons::Information);
}

// From the current record on; false at the end.
bool WalkToMatch(Program& p, const std::vector<int>& columns, const LikePattern& pattern)
{
    Recordset& records = Records(p.Form3);
    Meanwhile meanwhile(p.Loop);
    const auto matches = [&](int column) { return records.IsLike(column, pattern); };
    while (!records.Eof() && !std::ranges::any_of(columns, matches)) {
        records.MoveNext();
        meanwhile.KeepPainted();
    }
    return !records.Eof();
}

bool AskToContinue(Program& p)
{
    return p.Prompts.MsgBox(u"Search Word Found"_s, u"Continue this Search ?"_s, Buttons::QuestionYesNo) == Answer::Yes;
}

// Whether the search goes on from this hit.
bool ShowHit(Program& p, Picture shown)
{
    if (shown == Picture::BeforeTheQuestion)
        ShowPictureOfHit(p);
    const bool goesOn = AskToContinue(p);
    if (shown == Picture::AfterTheQuestion)
        ShowPictureOfHit(p);
    return goesOn;
}

void Run(Program& p, const PatternSearch& search)
{
    const QString answer = Ask(p, search.Prompt);
    if (answer.isEmpty())
        return;
    const QString pattern = u'*' + answer + u'*';
    const LikePattern compiled(pattern);
    std::vector<int> columns;
    for (const QStringView field : search.Fields)
        columns.push_back(Records(p.Form3).Column(field));

    Records(p.Form3).MoveFirst();
    for (;;) {
        p.Record.sCurFile = pattern;
        if (!WalkToMatch(p, columns, compiled)) {
            // Also at the end of a search that has had its hits.
            TellNoMatch(p, search.NoMatch + answer);
            return;
        }
        if (!ShowHit(p, search.Shown))
            return;
        Records(p.Form3).MoveNext();
    }
}
} // namespace

void SearchByDataRef(Program& p)
{
    const QString answer = Ask(p, u"Enter the Data Reference number"_s);
    if (answer.isEmpty())
        return;
    p.Record.sCurFile = answer;
    if (Records(p.Form3).Seek(Field::File, answer))
        ShowPictureOfHit(p);
    else
        TellNoMatch(p, u"No Match Found for Data Ref: "_s + answer);
}

void SearchBySurname(Program& p)
{
    Run(p, {u"Enter the Surname or partial Surname"_s,
            u"No Match Found for Surname: "_s,
            {Field::Surname},
            Picture::BeforeTheQuestion});
}

void SearchByBirthPlace(Program& p)
{
    Run(p, {u"Enter the BirthPlace"_s,
            u"No Match Found for BirthPlace: "_s,
            {Field::BirthPlace},
            Picture::AfterTheQuestion});
}

void SearchByWord(Program& p)
{
    Run(p, {u"Enter the search Word or partial Word "_s,
            u"No Match Found for search Word: "_s,
            {WordFields.begin(), WordFields.end()},
            Picture::BeforeTheQuestion});
}

void ShowFirstRecord(Program& p)
{
    Records(p.Form3).MoveFirst();
    p.Form3->Data1.Enabled = true;
    ShowPictureOfHit(p);
}

} // namespace lineforge
