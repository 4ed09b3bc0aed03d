#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>

class QDialog;
class QPrintDialog;
class QPrinter;

namespace lineforge
{

// What the user has set for a queue.
struct QueueSetup {
    QString Queue;
    QStringList Options; // what the server is told, names and values in turn
    QString Pages;       // which are listed, in the user's own words; empty where none are
    QStringList Inputs;  // what the window of the queue's properties says, box by box; empty until it has been opened
};

// Has a print dialog show again what the toolkit's forgets from one time to the next: the pages that are listed, the
// set of pages, and what stands in the window of the queue's properties, which is made when the user opens it.
class QueueDialog : public QObject
{
public:
    QueueDialog(QPrintDialog& dialog, QueueSetup before);

    // After the dialog has been accepted. What the user hasn't opened stays as it was, also on the printer.
    QueueSetup Taken(QPrinter& printer) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowPageSet();
    void FollowPageList();
    void ShowPageList();
    QString ListedPages() const;
    void TakePageList(QPrinter& printer) const;
    void ShowProperties();

    QPrintDialog& dialog_;
    QueueSetup before_;
    QPointer<QDialog> properties_;
};

} // namespace lineforge
