#pragma once

#include "qt/Dialogs.h"
#include "qt/dialogs/QtPrompts.h"
#include "qt/machine/QtEventLoop.h"
#include "qt/machine/QtPrintSystem.h"
#include "support/Printing.h"
#include "support/TemporaryHome.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>

#include <gmock/gmock.h>
#include <stdexcept>

namespace lineforge
{

using namespace Qt::StringLiterals;

// A user who opens the help, on a screen that nobody sees.
class HelpWindowTest : public testing::Test
{
protected:
    static QWidgetList HelpWindows()
    {
        QWidgetList found;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == u"HelpWindow" && window->isVisible())
                found += window;
        return found;
    }
    static QWidget& Window()
    {
        if (HelpWindows().isEmpty())
            throw std::runtime_error("no help window");
        return *HelpWindows().first();
    }
    template <class Widget>
    static Widget& Find(const QString& name)
    {
        auto* found = Window().findChild<Widget*>(name);
        if (!found)
            throw std::runtime_error("nothing of the name " + name.toStdString());
        return *found;
    }
    static QTextBrowser& Page() { return Find<QTextBrowser>(u"HelpText"_s); }
    static QTreeWidget& Contents() { return Find<QTreeWidget>(u"HelpContents"_s); }
    static QListWidget& Hits() { return Find<QListWidget>(u"HelpHits"_s); }
    static QLineEdit& Search() { return Find<QLineEdit>(u"HelpSearch"_s); }

    static QString Place() { return Page().source().fileName() + u'#' + Page().source().fragment(); }
    static QString ChosenEntry() { return Contents().currentItem() ? Contents().currentItem()->text(0) : QString(); }

    static QAction& Command(const QString& text)
    {
        for (QAction* action : Window().findChildren<QAction*>())
            if (action->text() == text)
                return *action;
        throw std::runtime_error("no command " + text.toStdString());
    }

    void OpenHelp(const QString& path)
    {
        Ask->ShowHelp(path);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    }

    static void ClickLink(const QString& text)
    {
        const QTextCursor link = Page().document()->find(text);
        ASSERT_FALSE(link.isNull()) << text.toStdString();
        QTextCursor inside = link;
        inside.setPosition(link.selectionStart() + 1);
        QTest::mouseClick(Page().viewport(), Qt::LeftButton, {}, Page().cursorRect(inside).center());
    }
    static void ClickEntry(const QString& text)
    {
        const QList<QTreeWidgetItem*> entries = Contents().findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_EQ(entries.size(), 1) << text.toStdString();
        for (QTreeWidgetItem* above = entries.first()->parent(); above; above = above->parent())
            above->setExpanded(true);
        QTest::mouseClick(Contents().viewport(), Qt::LeftButton, {},
                          Contents().visualItemRect(entries.first()).center());
    }
    static void Seek(const QString& words)
    {
        Search().clear();
        QTest::keyClicks(&Search(), words);
    }
    static QStringList Found()
    {
        QStringList found;
        for (int row = 0; row < Hits().count(); ++row)
            found += Hits().item(row)->text();
        return found;
    }
    static QStringList Marked()
    {
        QStringList marked;
        for (const QTextEdit::ExtraSelection& mark : Page().extraSelections())
            marked += mark.cursor.selectedText();
        return marked;
    }

    const QString SmallManual = QStringLiteral(LINEFORGE_TEST_MANUAL);
    const QString WholeManual = QStringLiteral(LINEFORGE_MANUAL);

    TemporaryHome Home;
    QtEventLoop Loop;
    QtPrintSystem Printers;
    std::unique_ptr<QtPrompts> Ask = std::make_unique<QtPrompts>(Loop, Printers, [this] { return Home.Path(); });
};

} // namespace lineforge
