#pragma once

#include "records/LiteralRecords.h"

namespace lineforge
{

// One of the two sides of the comparison, as the window shows it.
struct LiteralSide {
    QString Number;
    QString Picture;
    QString Surname;
    QString Forename;
    QString FieldCaption = QStringLiteral("Field");
    QString Field;
    QChar Letter; // of the branch whose record it shows, and that record's row; 0 for nobody's
    int Id = 0;
};

// The same for the comparison: every pair is walked, field by field.
class LiteralSession : public LiteralRecords
{
public:
    using LiteralRecords::LiteralRecords;

    bool IsCompareLoaded = false;
    bool IsCompareVisible = false;
    bool IsCompareButtonVisible = false;
    QString OpenName; // of the two branches in the window
    QString CompareName;
    LiteralCursor Compare;
    LiteralSide Ours;
    LiteralSide Theirs;
    bool IsKeyTicked[3] = {}; // number, surname, birth
    bool GoesToCompare = true;

    QString CompName;
    QChar CompLetter; // of the directory whose pictures are shown
    QString CompField;
    int FieldStep = 0;
    int SearchEnded = 0;
    int ResetDone = 0;
    QString SelText;
    int SelBox = 0;
    QMap<int, QString> ZNumbers;
    Colour Light = 0; // 0 for the button as it is made

    void OpenComparison();
    void ReturnToComparison();
    void ShowTree() { IsMapVisible = true; }
    void CloseComparison();
    void OpenCompare(QChar letter);
    void CancelCompare();

    void Press(int key) { IsKeyTicked[key] = !IsKeyTicked[key]; }
    void TurnDirection() { GoesToCompare = !GoesToCompare; }
    void SearchPairs();
    void Reset();
    void Next(bool isCompare);
    void StepCompareByBar(int direction);

    void CopyField();
    void CopyAllFields();
    void Append();

    void TypeInBox(int number, const QString& text);
    void ClickCompareBox(int number, const QString& selection);
    void CopyCompare();
    void CutCompare();
    void PasteCompare();

protected:
    void NameBranch() override;
    void UnloadComparison() override;
    void Changing() override;

private:
    bool TellIfComparesAlternate();
    void Load();
    LiteralCursor& RequireCompare();
    LiteralSide ReadSide(const LiteralCursor& cursor, bool allowsNull) const;
    void ShowSide(LiteralSide& side, const LiteralSide& read);
    void ShowPair();
    void ShowStepped(bool isCompare, bool allowsNull);
    void ForgetPair();
    bool IsElsewhere(const LiteralSide& side, const LiteralCursor& cursor) const;
    void ShowSidesAnew();
    bool IsSeen();
    bool IsPairSeen();
    void EndAt(const QString& which);
    void SetCaptions(const QString& ours, const QString& theirs);
    bool IsFieldNamed(const LiteralSide& side) const; // the one at hand
    void ShowFields(const QString& ours, const QString& theirs);
    bool Agrees() const;
    void SearchWhereSame();
    bool FindDifference();
    void SearchFields();
    void StoreTypedIfOneRecord();
    LiteralCursor& Target();
    QString& BoxText(int number);
    void Store(const QString& text);
};

} // namespace lineforge
