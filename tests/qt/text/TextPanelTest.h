#pragma once

#include "platform/controls/TextPanel.h"
#include "qt/WindowTest.h"
#include "qt/text/TextPanelView.h"

#include <QScrollBar>

namespace lineforge
{

struct TextPanelForm : Form {
    TextPanelForm() : Form(u"TextPanelForm", u"Text", {6000, 4000})
    {
        Picture1.ToolTipText = QStringLiteral("Progress");
    }
    Button Command1{*this, u"Command1", {0, 0, 1000, 400}, u"Button"};
    TextPanel Picture1{*this, u"Picture1", {1200, 0, 4200, 4500}};
    ScrollBar VScroll1{*this, u"VScroll1", {5600, 0, 255, 4000}, 8000, 100, 1000};
};

// A panel taller than its window, with a bar that moves it as the program's panels are moved.
class TextPanelTest : public WindowTest
{
protected:
    void SetUp() override
    {
        Texts->VScroll1.Change = [this] { Texts->Picture1.Top = -2 * Texts->VScroll1.Value; };
        Texts->Visible = true;
        ServeEvents();
    }

    TextPanelView& View() { return Find<TextPanelView>(*Texts, QStringLiteral("Picture1")); }
    QScrollBar& Bar() { return Find<QScrollBar>(*Texts, QStringLiteral("VScroll1")); }

    void Print(int lines)
    {
        for (int line = 0; line < lines; ++line)
            Texts->Picture1.Print(QString(QStringLiteral("line %1 of the text").arg(Texts->Picture1.Lines.size())));
    }
    // As the progress does: the panel grows with its text, and the bar with the panel.
    void GrowTo(int lines)
    {
        Print(lines);
        const int growth = std::max(0, Texts->Picture1.CurrentY() - Texts->Picture1.Height) / 1000 * 1000 + 1000;
        Texts->Picture1.Height = Texts->Picture1.Height + growth;
        Texts->VScroll1.Max = Texts->VScroll1.Max + growth / 2;
        Texts->VScroll1.Value = growth / 2;
    }

    // The middle of a character as it stands in the view.
    QPoint At(qsizetype line, qsizetype column) { return View().PlaceOf({line, column}).center(); }
    QPoint LeftOf(qsizetype line, qsizetype column)
    {
        const QRect place = View().PlaceOf({line, column});
        return {place.left() + 1, place.center().y()};
    }

    Window<TextPanelForm> Texts{System()};
};

} // namespace lineforge
