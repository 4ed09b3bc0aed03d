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
QString Ask(const BranchState& branch, Prompts& prompts, const QString& prompt)
{
    if (branch.IsSiblingShown())
        return {};
    return prompts.InputBox(u"Search Database"_s, prompt);
}

// Looked for where `sNewDir` says, whoever wrote that last.
// KEPT(RecordSearchTest.AfterATransportClick_TheHitHasNoPicture): elsewhere than in the branch it isn't found, and none
// is shown.
// Mended, a hit would show its picture after a scan and after a page of the gallery as well.
void ShowPictureOfHit(const SubjectPictures& pictures, const ScratchState& scratch)
{
    ShowRecordPicture(pictures, scratch.sNewDir);
}

void TellNoMatch(const SubjectPictures& pictures, const QString& text)
{
    PutRecordPicture(pictures.Branch, pictures.Form3, QImage());
    pictures.Prompts.MsgBox(u"Database Result"_s, text, Buttons::Information);
}

// From the current record on; false at the end.
bool WalkToMatch(Recordset& records, EventLoop& loop, const std::vector<int>& columns, const LikePattern& pattern)
{
    Meanwhile meanwhile(loop);
    const auto matches = [&](int column) { return records.IsLike(column, pattern); };
    while (!records.Eof() && !std::ranges::any_of(columns, matches)) {
        records.MoveNext();
        meanwhile.KeepPainted();
    }
    return !records.Eof();
}

bool AskToContinue(Prompts& prompts)
{
    return prompts.MsgBox(u"Search Word Found"_s, u"Continue this Search ?"_s, Buttons::QuestionYesNo) == Answer::Yes;
}

// Whether the search goes on from this hit.
bool ShowHit(const SubjectPictures& pictures, const ScratchState& scratch, Picture shown)
{
    if (shown == Picture::BeforeTheQuestion)
        ShowPictureOfHit(pictures, scratch);
    const bool goesOn = AskToContinue(pictures.Prompts);
    if (shown == Picture::AfterTheQuestion)
        ShowPictureOfHit(pictures, scratch);
    return goesOn;
}

void Run(const SubjectPictures& pictures, const ScratchState& scratch, EventLoop& loop, const PatternSearch& wanted)
{
    const QString answer = Ask(pictures.Branch, pictures.Prompts, wanted.Prompt);
    if (answer.isEmpty())
        return;
    const QString pattern = u'*' + answer + u'*';
    const LikePattern compiled(pattern);
    std::vector<int> columns;
    for (const QStringView field : wanted.Fields)
        columns.push_back(Records(pictures.Form3).Column(field));

    Records(pictures.Form3).MoveFirst();
    for (;;) {
        pictures.Record.sCurFile = pattern;
        if (!WalkToMatch(Records(pictures.Form3), loop, columns, compiled)) {
            // Also at the end of a search that has had its hits.
            TellNoMatch(pictures, wanted.NoMatch + answer);
            return;
        }
        if (!ShowHit(pictures, scratch, wanted.Shown))
            return;
        Records(pictures.Form3).MoveNext();
    }
}
} // namespace

void SearchByDataRef(const SubjectPictures& pictures, const ScratchState& scratch)
{
    const QString answer = Ask(pictures.Branch, pictures.Prompts, u"Enter the Data Reference number"_s);
    if (answer.isEmpty())
        return;
    pictures.Record.sCurFile = answer;
    if (Records(pictures.Form3).Seek(Field::File, answer))
        ShowPictureOfHit(pictures, scratch);
    else
        TellNoMatch(pictures, u"No Match Found for Data Ref: "_s + answer);
}

void SearchBySurname(const SubjectPictures& pictures, const ScratchState& scratch, EventLoop& loop)
{
    Run(pictures, scratch, loop,
        {u"Enter the Surname or partial Surname"_s,
         u"No Match Found for Surname: "_s,
         {Field::Surname},
         Picture::BeforeTheQuestion});
}

void SearchByBirthPlace(const SubjectPictures& pictures, const ScratchState& scratch, EventLoop& loop)
{
    Run(pictures, scratch, loop,
        {u"Enter the BirthPlace"_s,
         u"No Match Found for BirthPlace: "_s,
         {Field::BirthPlace},
         Picture::AfterTheQuestion});
}

void SearchByWord(const SubjectPictures& pictures, const ScratchState& scratch, EventLoop& loop)
{
    Run(pictures, scratch, loop,
        {u"Enter the search Word or partial Word "_s,
         u"No Match Found for search Word: "_s,
         {WordFields.begin(), WordFields.end()},
         Picture::BeforeTheQuestion});
}

void ShowFirstRecord(const SubjectPictures& pictures, const ScratchState& scratch)
{
    Records(pictures.Form3).MoveFirst();
    pictures.Form3->Data1.Enabled = true;
    ShowPictureOfHit(pictures, scratch);
}

} // namespace lineforge
