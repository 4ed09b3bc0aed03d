#pragma once

#include "records/RecordTest.h"

namespace lineforge
{

// A user who searches the records of branch A.
class RecordSearchTest : public RecordTest
{
protected:
    RecordSearchTest() { GivenRecordForm(); }

    // A change from outside is seen by a cursor that is opened afresh.
    void Reopen() { P.Form3->Data1.Refresh(P.Databases, P.Files); }
    void Store(const char* file, const char* field, QStringView text)
    {
        SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb"))
            .Query(QByteArray("UPDATE Tree99 SET ") + field + " = ?1 WHERE File = '" + file + "'", {text.toString()});
        Reopen();
    }

    void ExpectAnswer(QStringView prompt, QStringView answer)
    {
        Prompts.ExpectInput(u"Search Database", prompt, answer);
    }
    void ExpectHit(Answer answer, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        Prompts.Expect(u"Search Word Found", u"Continue this Search ?", Buttons::QuestionYesNo, answer,
                       std::move(whileOpen));
    }
    void ExpectNoMatch(const QString& text, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        Prompts.Expect(u"Database Result", text, Buttons::Information, Answer::Ok, std::move(whileOpen));
    }

    void SearchDataRef(QStringView answer)
    {
        ExpectAnswer(u"Enter the Data Reference number", answer);
        P.Form3->mnuSearchDataRef.Click();
    }

    QString Picture() { return ColourOf(P.Form3->Image1); }
};

} // namespace lineforge
