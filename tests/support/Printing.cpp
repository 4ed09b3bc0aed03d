#include "support/Printing.h"

#include <ostream>

void PrintTo(const QString& text, std::ostream* out)
{
    PrintTo(QStringView(text), out);
}

void PrintTo(QStringView text, std::ostream* out)
{
    QString shown = text.toString();
    shown.replace(u'\r', QStringLiteral("\\r")).replace(u'\n', QStringLiteral("\\n"));
    *out << '"' << shown.toUtf8().constData() << '"';
}

void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    // Whole pictures would bury the message.
    constexpr qsizetype shownBytes = 200;
    *out << bytes.size() << " bytes \"" << bytes.left(shownBytes).toPercentEncoding(" ,;:[]=/\\!'()").constData()
         << (bytes.size() > shownBytes ? "\"..." : "\"");
}

namespace lineforge
{

void PrintTo(Point point, std::ostream* out)
{
    *out << "(" << point.X << ", " << point.Y << ")";
}

void PrintTo(Size size, std::ostream* out)
{
    *out << size.Width << " x " << size.Height;
}

void PrintTo(Rectangle place, std::ostream* out)
{
    *out << "(" << place.Left << ", " << place.Top << ") " << place.Width << " x " << place.Height;
}

void PrintTo(Buttons buttons, std::ostream* out)
{
    *out << "buttons " << static_cast<int>(buttons);
}

void PrintTo(Answer answer, std::ostream* out)
{
    *out << "answer " << static_cast<int>(answer);
}

} // namespace lineforge
