#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace lineforge::manual
{

// A place in the sources at which a routine is called, its arguments as they are written there.
struct Call {
    QString File; // relative to the sources
    QStringList Arguments;
};

QString SourceText(const QString& file);

// The calls of all routines of that name, declarations and definitions left out.
QList<Call> CallsOf(const QString& routine);

// The texts in an expression, in order: `name + u" Records"` has one.
QStringList Literals(const QString& expression);

} // namespace lineforge::manual
