#pragma once

#include "platform/machine/Prompts.h"

#include <functional>
#include <memory>

class QDialog;
class QFileDialog;

namespace lineforge
{

class HelpWindow;
class QtEventLoop;
class QtPrintSystem;

// Asks the user with boxes above the window in use. Each throws ProgramEnded when the program has been told to end
// while it was open, or before.
class QtPrompts : public Prompts
{
public:
    QtPrompts(const QtEventLoop& loop, QtPrintSystem& printers, std::function<QString()> currentDirectory);
    ~QtPrompts() override;

    Answer MsgBox(const QString& title, const QString& text, Buttons buttons) override;
    QString InputBox(const QString& title, const QString& prompt) override;
    std::optional<QString> OpenFile(const FileQuestion& question) override;
    std::optional<QString> SaveFile(const FileQuestion& question) override;
    std::optional<Colour> PickColour(Colour present) override;
    std::optional<TextFont> PickFont(const TextFont& present) override;
    void PickPrinter() override;
    void ShowHelp(const QString& helpFile) override;

private:
    int Ask(QDialog& box) const;
    std::optional<QString> AskFile(QFileDialog& box, const FileQuestion& question) const;

    const QtEventLoop& loop_;
    QtPrintSystem& printers_;
    std::function<QString()> currentDirectory_;
    std::unique_ptr<HelpWindow> help_;
};

} // namespace lineforge
