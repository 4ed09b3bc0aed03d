#pragma once

#include "platform/machine/Prompts.h"
#include "program/state/Program.h"
#include "support/TestPlatform.h"
#include "support/Windows.h"

#include <memory>

namespace lineforge::faults
{

// Agrees to everything, types and picks what is laid ready, and remembers what he was told.
class User : public Prompts
{
public:
    Answer MsgBox(const QString& title, const QString& text, Buttons buttons) override;
    QString InputBox(const QString&, const QString&) override { return Typed; }
    std::optional<QString> OpenFile(const FileQuestion&) override { return Picked; }
    std::optional<QString> SaveFile(const FileQuestion&) override { return Picked; }
    std::optional<Colour> PickColour(Colour) override { return {}; }
    std::optional<TextFont> PickFont(const TextFont&) override { return {}; }
    void PickPrinter() override {}
    void ShowHelp(const QString&) override {}

    QString Typed;
    QString Picked;
    QStringList Told;
};

// A user of branch A, the open one, with branch B beside it; both have records, pictures, a map and a gallery. Beside
// the home's own files stand some that may be picked, in "things".
class World
{
public:
    // With the machine's own printer unless another is given.
    explicit World(PrintSystem* printer = nullptr);

    // As a window fires what the user clicks: nothing leaves a handler.
    void Click(const Event& handler);
    void DoubleClick(Point at);
    void Choose(QStringView name);
    // The program is gone, and has no file open any more.
    void LetGo() { program_.reset(); }

    TestPlatform Machine;
    TemporaryHome& Home = Machine.Home;
    User Person;

private:
    void BuildHome();

    std::unique_ptr<Program> program_;

public:
    Program& P;
};

} // namespace lineforge::faults
