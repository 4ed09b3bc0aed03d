#pragma once

#include "map/MapTest.h"
#include "map/subjects/MapInteraction.h"

namespace lineforge
{

// A user's mouse on the map.
class MapInteractionTest : public MapTest
{
protected:
    MapInteractionTest()
    {
        P.Form1->MMControl1.Act = [this](QStringView command) { Sounds.push_back(command.toString()); };
    }

    void Press(Point at, int button = LeftButton) { Picture.MouseDown(button, 0, at.X, at.Y); }
    void Release(Point at) { Picture.MouseUp(LeftButton, 0, at.X, at.Y); }

    // The second press of the two is the double click.
    void DoubleClick(Point at)
    {
        Press(at);
        Release(at);
        Picture.DblClick();
        Release(at);
    }
    void DoubleClickBox(int row) { DoubleClick(InsideOf(row)); }

    Point InsideOf(int row) const
    {
        const auto& box = P.Map.BoxArr[row];
        return {box[BoxColumn::X].Number() + 300, box[BoxColumn::Y].Number() + 100};
    }

    QString FileOf(int row) const { return P.Map.BoxArr[row][BoxColumn::File].Text(); }
    QString Current() { return Records(P.Form3).Text(u"File"); }
    QString ShownNumber() { return P.Form1->Frame1.Caption; }

    void ExpectMissing(QStringView database)
    {
        const QString text =
            u"Cannot Access this External Database and subject.\n" + Home.Path(database) + u" not present.";
        Prompts.Expect(u"External Record not present.", text, Buttons::Information);
    }

    void GivenMarkerElsewhere()
    {
        P.Form1->Shape1.Move({77, 88});
        P.Form1->Shape1.Visible = true;
    }
    bool IsMarkerUntouched() const
    {
        const Shape& marker = Marker;
        return marker.Visible && marker.Left == 77 && marker.Top == 88;
    }
    bool IsMarkerOnBox(int row) const
    {
        const auto& box = P.Map.BoxArr[row];
        return Marker.Visible && Marker.Left == box[BoxColumn::X].Number() + 247 &&
               Marker.Top == box[BoxColumn::Y].Number() + 48;
    }

    static constexpr int LeftButton = 1;
    static constexpr int RightButton = 2;
    static constexpr Point Nowhere{5000, 5000};

    QStringList Sounds;
    Shape& Marker = P.Form1->Shape1;
};

} // namespace lineforge
