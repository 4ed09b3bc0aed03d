#pragma once

#include "platform/drawing/Geometry.h"
#include "platform/machine/Prompts.h"

#include <QByteArray>
#include <QString>

#include <iosfwd>

// How a failed expectation shows values of the toolkit and of the platform. GoogleTest looks for these next to the
// type.
void PrintTo(const QString& text, std::ostream* out);
void PrintTo(QStringView text, std::ostream* out);
void PrintTo(const QByteArray& bytes, std::ostream* out);

namespace lineforge
{

void PrintTo(Point point, std::ostream* out);
void PrintTo(Size size, std::ostream* out);
void PrintTo(Rectangle place, std::ostream* out);
void PrintTo(Buttons buttons, std::ostream* out);
void PrintTo(Answer answer, std::ostream* out);

} // namespace lineforge
