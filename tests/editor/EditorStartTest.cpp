#include "editor/EditorStart.h"

#include "editor/EditorTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
using EditorStartTest = EditorTest;

TEST_F(EditorStartTest, FileOfTheCommandLine_IsOpenedMaximised)
{
    const QString path = Home.WriteFile(u"my \u00E9t\u00E9/-some notes.txt", "hello");
    EditorWindow started;
    ShowEditor(started, path);
    EXPECT_TRUE(started.isMaximized());
    EXPECT_TRUE(started.isVisible());
    EXPECT_EQ(started.windowTitle(), u"-some notes.txt[*] - Lineforge Editor"_s);
}

TEST_F(EditorStartTest, NoFile_IsAnEmptyText)
{
    EditorWindow started;
    ShowEditor(started, {});
    EXPECT_TRUE(started.isVisible());
    EXPECT_EQ(started.windowTitle(), u"Untitled[*] - Lineforge Editor"_s);
}

TEST_F(EditorStartTest, MissingFile_IsAskedForAboveTheMaximisedWindow)
{
    EditorWindow started;
    const NextDialog next([&started](QDialog& dialog) {
        EXPECT_TRUE(started.isMaximized());
        Press(AsMessageBox(dialog), QMessageBox::No);
    });
    ShowEditor(started, Home.Path(u"gone.txt"));
    EXPECT_FALSE(Home.Exists(u"gone.txt"));
}

TEST_F(EditorStartTest, SettingsOfTheToolkit_CannotBeWritten)
{
    PrepareEditorApplication();
    QSettings settings(QSettings::UserScope, u"QtProject"_s);
    EXPECT_FALSE(settings.isWritable());
    EXPECT_EQ(QLocale(), QLocale::c());
}

TEST_F(EditorStartTest, EveryControl_HasANameForThoseWhoCannotSeeIt)
{
    EXPECT_EQ(Area().accessibleName(), u"Text"_s);
    EXPECT_EQ(Find<QLineEdit>(u"Sought"_s).accessibleName(), u"Find what"_s);
    EXPECT_EQ(Find<QLineEdit>(u"Replacement"_s).accessibleName(), u"Replace with"_s);
    EXPECT_EQ(Find<QLabel>(u"LineEnds"_s).accessibleName(), u"Line ends: CR LF"_s);
    EXPECT_EQ(Find<QLabel>(u"Encoding"_s).accessibleName(), u"Encoding: UTF-8"_s);
    for (const QPushButton* button : Editor.findChildren<QPushButton*>())
        EXPECT_FALSE(button->text().isEmpty());
}
} // namespace

} // namespace lineforge
