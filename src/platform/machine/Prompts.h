#pragma once

#include "platform/drawing/Surface.h"

#include <QString>

#include <optional>

namespace lineforge
{

// The sets of buttons and icons of a message box, by the platform's numbers.
enum class Buttons {
    Plain = 0,  // OK, no icon
    Error = 16, // OK
    ErrorYesNo = 20,
    QuestionOkCancel = 33,
    QuestionYesNo = 36,
    Information = 64, // OK
    InformationOkCancel = 65,
    InformationYesNo = 68,
    InformationRetryCancel = 69,
    QuestionYesNoDefaultNo = 292,
};

enum class Answer { Ok = 1, Cancel = 2, Retry = 4, Yes = 6, No = 7 };

// What a file dialog asks for. The filter is a run of "description|pattern|" pairs.
struct FileQuestion {
    QString Title;
    QString Filter;
};

// Everything that asks the user and waits.
class Prompts
{
public:
    virtual ~Prompts() = default;

    virtual Answer MsgBox(const QString& title, const QString& text, Buttons buttons) = 0;
    // The text entered, empty for none and for Cancel.
    [[nodiscard]] virtual QString InputBox(const QString& title, const QString& prompt) = 0;
    // The path of an existing file, nothing for Cancel.
    [[nodiscard]] virtual std::optional<QString> OpenFile(const FileQuestion& question) = 0;
    // The path of a file to be written, which may exist; nothing for Cancel. A name without an ending gets that of the
    // filter's first pattern.
    [[nodiscard]] virtual std::optional<QString> SaveFile(const FileQuestion& question) = 0;
    // The colour chosen, nothing for Cancel. The dialog opens on the present one.
    [[nodiscard]] virtual std::optional<Colour> PickColour(Colour present) = 0;
    // The font chosen, nothing for Cancel. The dialog opens on the present one.
    [[nodiscard]] virtual std::optional<TextFont> PickFont(const TextFont& present) = 0;
    // Which printer, or file, print jobs go to from now on.
    virtual void PickPrinter() = 0;
    // Opens the help file on its contents page.
    virtual void ShowHelp(const QString& helpFile) = 0;
};

} // namespace lineforge
