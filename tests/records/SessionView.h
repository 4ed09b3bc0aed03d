#pragma once

#include "program/state/Program.h"
#include "records/LiteralSession.h"
#include "support/Windows.h"

namespace lineforge
{

// All that can be seen of a session, by its name: windows, labels, boxes, positions and the words that commands leave
// for each other.
using SessionView = QMap<QString, QString>;

SessionView ViewOf(const LiteralSession& session);
SessionView ViewOf(Program& p);

// What differs, a line each.
QStringList DifferencesOf(const SessionView& program, const SessionView& model);

// The boxes of the record form by the fields that they show.
struct FieldBox {
    QString Field;
    TextBox forms::Form3::*Box;
};
const std::vector<FieldBox>& FieldBoxes();

// A picture of one colour, by the name of its colour; nothing where there is none.
QColor ColourNamed(const QString& name);

} // namespace lineforge
