#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace lineforge
{

struct RuntimeError;

// The boxes that the editor puts before its user. Names of files are shown as they are, never as markup.

enum class Leaving { Save, Discard, Cancel };
Leaving AskWhetherToSave(QWidget* parent, const QString& name);

// Escape and Enter both answer no.
bool AskYesNo(QWidget* parent, const QString& text);

void Tell(QWidget* parent, const QString& text);
void TellFailure(QWidget* parent, const QString& what, const QString& path, const RuntimeError& error);

// The path of the file to open; nothing when cancelled.
std::optional<QString> AskForFile(QWidget* parent, const QString& directory);
// The path to save under, which may stand already; nothing when cancelled.
std::optional<QString> AskForNewName(QWidget* parent, const QString& present);

} // namespace lineforge
