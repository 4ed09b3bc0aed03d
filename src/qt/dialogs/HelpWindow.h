#pragma once

#include <QMainWindow>
#include <QTextCursor>

#include <memory>

class QListWidget;
class QLineEdit;
class QStackedWidget;
class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;

namespace lineforge
{

class HelpBook;
struct HelpPage;

// Shows the manual beside the program's windows: its contents and a search on the left, a page on the right.
class HelpWindow : public QMainWindow
{
public:
    HelpWindow();
    ~HelpWindow() override;

    // Shows the contents page of that file. False when the file isn't the manual; what is shown then stays.
    bool Open(const QString& path);

protected:
    void changeEvent(QEvent* event) override;

private:
    void BuildMiddle();
    QWidget* BuildSide();
    void BuildCommands();

    void FillContents();
    void AddPage(QTreeWidgetItem& chapter, const HelpPage& page);
    void GoTo(const QUrl& place);
    void GoToContentsPage();
    void Follow(const QUrl& place);
    QTreeWidgetItem* ContentsEntryFor(const QUrl& place) const;
    void ShowHits();
    void LeaveSearchOrWindow();
    void GoToSearch();
    void GoToHits();

    void MarkHits();
    QTextCursor Here() const;
    QList<QTextCursor>::const_iterator MarkFrom(int position) const;
    void NextHit();
    void PreviousHit();
    void StandOn(const QTextCursor& hit);

    void Enlarge();
    void Reduce();
    void SetLetters(int pixels);
    void ResetSize();
    void TakeColours();

    std::unique_ptr<HelpBook> book_;
    QTextBrowser* browser_;
    QTreeWidget* contents_;
    QListWidget* hits_;
    QLineEdit* search_;
    QStackedWidget* side_; // the contents, or what has been found
    QList<QTextCursor> marked_;
};

} // namespace lineforge
