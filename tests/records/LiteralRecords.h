#pragma once

#include "platform/machine/Prompts.h"
#include "records/LiteralTables.h"

#include <array>
#include <functional>
#include <random>

namespace lineforge
{

// What the program asks in a step, and what the user answers.
struct LiteralQuestion {
    enum class Kind { Message, Input, File };
    Kind Asked = Kind::Message;
    QString Title;
    QString Text; // or the prompt, or the filter
    Buttons Set = Buttons::Information;
    Answer Button = Answer::Ok;
    QString Input;               // or the path of the file; empty for Cancel
    bool TicksMeanwhile = false; // the scanner makes a step while it is open
};

// Thrown where the model has no word for what comes; such a step is not played.
struct Unmodelled {
};

struct LiteralBox {
    int X = 0;
    int Y = 0;
    QString Colour;
    QString File;
    QString Name;
};

struct LiteralMarker {
    bool IsShown = false;
    int X = 0;
    int Y = 0;
    Colour Border = Black;
    friend bool operator==(const LiteralMarker&, const LiteralMarker&) = default;
};

// The record form and what of the map goes with it, step by step as they are told, over plain tables. A step that ends
// the program throws what ends it.
class LiteralRecords : public LiteralTables
{
public:
    LiteralRecords(QString home, unsigned seed) : LiteralTables(std::move(home)), dice_(seed) {}

    // What has been asked in the step at hand.
    std::vector<LiteralQuestion> Script;

    LiteralCursor Current;
    std::optional<int> SavedBookmark; // in its table
    bool HasBranch = false;           // by the name of the database
    QChar WorkLetter;                 // of the branch that is worked in; of the sibling while its record is shown
    QChar OwnLetter;                  // the map's, meanwhile
    bool IsAlternate = false;
    QString BranchName;
    QString CurrentDirectory;
    QString NewDirectory;

    std::vector<LiteralBox> Boxes;
    int HighestBox = 0;
    int HitBox = 0;
    QMap<int, QString> Labels; // of the panel, by their numbers
    QString PanelFrame = QStringLiteral("Ref  ");
    QString PanelPicture;
    LiteralMarker Marker;
    QString MapCaption;
    QString RecordsCaption;
    bool IsMapVisible = true;

    LiteralFields Typed; // not yet stored
    LiteralFields Shown; // on the record form
    bool IsFormLoaded = false;
    bool IsFormVisible = false;
    QString RecordPicture;
    QString RecordPictureOf; // letter and number
    QString CurFile;
    QString PicFile;
    QString ShownName;
    bool IsBarEnabled = true;
    int FirstShow = 1;

    int ScanMode = 0;
    bool IsTimerOn = false;
    int Interval = 100;
    std::array<int, 5> Faces{2, 4, 7, 8, 10}; // numbers of the images that the buttons show
    bool AreTransportsEnabled = true;
    bool AreTransportsVisible = true;

    QString ClipText;
    int ClipSource = 0;
    std::optional<QString> Clipboard;
    int SelectionStart = 0; // in the box that was clicked
    QString Selection;

    bool IsOver = false; // by the menu
    bool IsEnlarged = false;
    bool IsGalleryVisible = false;
    QString GalleryRecord;
    QChar GalleryLetter;
    int ScanState = 0;

    static QString NameOf(QChar letter);
    void Roll(unsigned seed) { dice_.seed(seed); }
    int Dice(int sides) { return static_cast<int>(dice_() % static_cast<unsigned>(sides)); }

    void OpenBranch(QChar letter);
    void CloseBranch();
    void Exit();
    // By an error: what is typed is stored, what a command had begun isn't.
    void EndWithError();
    void DoubleClick(int x, int y);
    void ShowRecords();
    void PressTree();
    void PressGalleryOnRecords();
    void PressGalleryOnMap();
    void LeaveGalleryForTree();
    void LeaveGalleryForRecords();
    void Enlarge();
    void Type(const QString& field, const QString& text);
    void StepByBar(int direction); // -2 first, -1 previous, 1 next, 2 last
    // The picture goes with the record where the form is on the screen.
    void FollowWithPicture();
    // When the move has ended.
    void FollowSubject();
    void OpenRecordMenu() { IsBarEnabled = false; }

    void StartScan(int mode);
    void StopScan();
    void Tick();

    enum class Search { DataRef, Surname, BirthPlace, Word };
    void SearchBy(Search search);
    void ShowFirstRecord();

    void AddRecord();
    void DeleteRecord();
    void ChangePicture();
    void Transfer();

    void ClickBox(int number, int start, const QString& selection);
    void LoseSelection();
    void Cut();
    void Copy();
    void Paste();
    void CopyRecord();

protected:
    void Leaving(LiteralCursor& cursor) override;
    void Updating(LiteralCursor& cursor) override;
    void Arrived(LiteralCursor& cursor) override;
    // The name of the open branch goes to the comparison, which is made by that.
    virtual void NameBranch() = 0;
    virtual void UnloadComparison() = 0;

    Answer Ask(const QString& title, const QString& text, Buttons buttons, const std::vector<Answer>& answers);
    void Tell(const QString& title, const QString& text);
    bool TellIfAlternate(const QString& title, const QString& text);
    QString PictureIn(QChar letter, const QString& number) const;
    template <class Step>
    void PassOver(Step&& step)
    {
        try {
            step();
        } catch (const RuntimeError&) {
        }
    }
    template <class Pool>
    QString OneOf(const Pool& pool)
    {
        return pool[static_cast<typename Pool::size_type>(Dice(static_cast<int>(pool.size())))];
    }
    QStringList Numbers() const;

private:
    QString AskInput(const QString& title, const QString& prompt, const QStringList& pool);
    void TickUnderBox();
    void Open(QChar letter);
    void ReadMap();
    void SaveBoxes();
    void EndAlternate();
    void ReturnFromSibling();
    int RowOf(const LiteralField& file) const;
    void MarkCurrentBox();
    void SetPictureName();
    void PutRecordPicture(const QString& colour);
    void ShowNamedPicture();
    void ShowRecordPicture(const QString& directory);
    void FillLabels();
    void ShowRecordOnMap();
    void TellPictureMissing();
    void CarryForename();
    void RenameBox(QString name);
    void KeepGender();
    bool NeedsPage() const;
    void ShowGallery();
    void EndScan(bool hasMoved);
    void TellNoMatch(const QString& text);
    void Unlink();
    void DeleteWithFiles();
    QString AskDestination();
    bool CopyPicture(QChar from, const QString& source, QChar to, const QString& destination);
    void PutPictureBack(QChar letter, const QString& file, const QString& before);
    void ReplaceSelection(const QString& text);

    std::mt19937 dice_;
};

} // namespace lineforge
