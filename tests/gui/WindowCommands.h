#pragma once

#include "gui/EveryWindow.h"

#include <QFile>
#include <QTest>

#include <stdexcept>
#include <vector>

namespace lineforge
{

// A control that is pressed in a window, behind the menus that lead to it, and the window that this brings.
struct PressedControl {
    const char* Window;
    std::vector<const char*> Path;
    const char* Brings;
};

// How a window is asked for while it is on the screen already.
struct WindowCommand {
    const char* Name;
    PressedControl Control;
    std::vector<PressedControl> Opening; // where it isn't the control itself that the window is opened by
    BoxesGoTo Boxes = BoxesGoTo::Script;
    void (*Expect)(ScriptedPrompts& prompts, TemporaryHome& home) = nullptr; // what the control asks
};

inline std::ostream& operator<<(std::ostream& out, const WindowCommand& command)
{
    return out << command.Name;
}

inline std::string NameOfCommand(const testing::TestParamInfo<WindowCommand>& info)
{
    return info.param.Name;
}

namespace window_commands
{
inline void ChooseDatabase(ScriptedPrompts& prompts, TemporaryHome& home)
{
    prompts.ExpectOpenFile(u"Select Export Database source File", u"DataBase *.mdb|*.mdb|All Files|*.*|",
                           home.Path(u"LfgDat_B/LfgDat_B.mdb"));
}

inline void ChooseGedcom(ScriptedPrompts& prompts, TemporaryHome& home)
{
    const QString path = home.WriteFile(u"family.ged", "0 HEAD\r\n0 @I1@ INDI\r\n1 NAME John /Smith/\r\n0 TRLR\r\n");
    prompts.ExpectOpenFile(u"Select Import GedCom File", u"GedCom *.ged|*.ged|All Files|*.*|", path);
    prompts.Expect(QString(path + u" Gedcom file selected."),
                   u"The selected Gedcom file will be re formatted and\nplaced in the above directory as a text file.",
                   Buttons::Information);
}

inline const PressedControl records{"Form1", {"Command1"}, "Form3"};
inline const PressedControl comparison{"Form1", {"mnuEdit", "mnuDataBase", "mnuComp"}, "Form6"};
inline const PressedControl picture{"Form3", {"Image1"}, "Form2"};

inline const WindowCommand all[] = {
    {"Records", records, {}},
    {"RecordsByMenu", {"Form1", {"mnuEdit", "mnuDataBase", "mnuViewRecs"}, "Form3"}, {}},
    {"RecordsFromTheGallery", {"Form5", {"Command2"}, "Form3"}, {records, {"Form1", {"Command2"}, "Form5"}}},
    {"Picture", picture, {records, picture}},
    {"Gallery", {"Form1", {"Command2"}, "Form5"}, {records, {"Form3", {"Command1"}, "Form5"}}},
    {"Open", {"Form1", {"mnuFile", "Open"}, "Form8"}, {}},
    {"Export", {"Form1", {"mnuFile", "mnuExport", "mnuExpSub"}, "Form4"}, {}, BoxesGoTo::Script, ChooseDatabase},
    {"ExportGedcom", {"Form1", {"mnuFile", "mnuExport", "mnuExpGedcom"}, "Form12"}, {}},
    {"ImportGedcom",
     {"Form1", {"mnuFile", "mnuImport", "mnuImpGedcom"}, "Form11"},
     {},
     BoxesGoTo::Script,
     ChooseGedcom},
    {"CompareByMenu", comparison, {}},
    {"Compare", {"Form1", {"Command5"}, "Form6"}, {comparison}},
    {"MapSubject", {"Form1", {"mnuTreeGraphics", "mnuMapSubject"}, "Form7"}, {}},
    {"Help", {"Form1", {"mnuHelp", "mnuConts"}, "HelpWindow"}, {}, BoxesGoTo::Screen},
};
} // namespace window_commands

// A window that is open and is asked for again. What a user does to windows, and with what hands, is the desktop's.
class WindowCommandTest : public ProgramWindowTest, public testing::WithParamInterface<WindowCommand>
{
protected:
    WindowCommandTest() : ProgramWindowTest(GetParam().Boxes)
    {
        BuildTwoBranches(Home);
        QFile::copy(QStringLiteral(LINEFORGE_MANUAL), Home.Path(u"LfgHelp.hlp"));
        OpenBranchUnseen(QStringLiteral("Smiths"));
    }

    // The last two as the user does them, the first as he sees it.
    virtual bool ComesToFront(QWidget& window) = 0;
    virtual void PutInFront(QWidget& window) = 0;
    virtual void Press(QWidget& window, const std::vector<const char*>& path) = 0;

    void OpenWindow()
    {
        for (const PressedControl& control : GetParam().Opening) {
            PressInFront(control);
            ASSERT_TRUE(ComesToFront(WindowOf(control.Brings))) << control.Brings;
        }
        if (!GetParam().Opening.empty())
            return;
        GiveCommand();
        ASSERT_TRUE(ComesToFront(AskedFor()));
    }
    void GiveCommand()
    {
        if (GetParam().Expect)
            GetParam().Expect(Prompts, Home);
        PressInFront(GetParam().Control);
    }
    // The one that is asked for, and the one that has the control.
    QWidget& AskedFor() { return WindowOf(GetParam().Control.Brings); }
    QWidget& Asking() { return WindowOf(GetParam().Control.Window); }

private:
    static QWidget* Find(const char* name)
    {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == QLatin1StringView(name) && window->isVisible())
                return window;
        return nullptr;
    }
    // Menus run their entries when the event loop has control again.
    static QWidget& WindowOf(const char* name)
    {
        if (!QTest::qWaitFor([name] { return Find(name) != nullptr; }, 30'000))
            throw std::runtime_error(std::string("no window of the name ") + name);
        return *Find(name);
    }
    void PressInFront(const PressedControl& control)
    {
        QWidget& window = WindowOf(control.Window);
        PutInFront(window);
        Press(window, control.Path);
    }
};

} // namespace lineforge
