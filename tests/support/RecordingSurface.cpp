#include "support/RecordingSurface.h"

#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

QString RecordingSurface::Pen() const
{
    return u"pen %1 colour %2 mode %3"_s.arg(DrawWidth).arg(ForeColor).arg(static_cast<int>(Mode));
}

void RecordingSurface::Line(Point from, Point to)
{
    Calls.push_back(u"Line %1,%2 %3,%4 "_s.arg(from.X).arg(from.Y).arg(to.X).arg(to.Y) + Pen());
}

void RecordingSurface::Box(Rectangle place)
{
    Calls.push_back(u"Box %1,%2 %3x%4 "_s.arg(place.Left).arg(place.Top).arg(place.Width).arg(place.Height) + Pen());
}

void RecordingSurface::Print(const QString& text)
{
    Calls.push_back(u"Print %1,%2 \""_s.arg(CurrentX).arg(CurrentY) + text + u"\" "_s + Font.Name +
                    u" %1"_s.arg(Font.Size) + (Font.Bold ? u" bold"_s : QString()) +
                    (Font.Italic ? u" italic"_s : QString()) + u" colour %1"_s.arg(ForeColor));
    CurrentX = 0;
    CurrentY += TextHeight(text);
}

int RecordingSurface::TextWidth(const QString& text) const
{
    return qRound(10 * Font.Size * static_cast<double>(text.size()));
}

int RecordingSurface::TextHeight(const QString&) const
{
    return qRound(25 * Font.Size);
}

QStringList RecordingSurface::Take()
{
    return std::exchange(Calls, {});
}

} // namespace lineforge
