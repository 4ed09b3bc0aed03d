#pragma once

#include "program/state/Program.h"

#include <memory>
#include <vector>

namespace lineforge::bench
{

class NoScreen : public WindowSystem
{
public:
    void Made(Form&) override {}
    void Retire(std::unique_ptr<Form> form) override { retired_.push_back(std::move(form)); }

private:
    std::vector<std::unique_ptr<Form>> retired_;
};

// Nothing may be asked while a benchmark runs.
class NoUser : public Prompts
{
public:
    Answer MsgBox(const QString& title, const QString& text, Buttons) override;
    QString InputBox(const QString&, const QString&) override { return {}; }
    std::optional<QString> OpenFile(const FileQuestion&) override { return {}; }
    std::optional<QString> SaveFile(const FileQuestion&) override { return {}; }
    std::optional<Colour> PickColour(Colour) override { return {}; }
    std::optional<TextFont> PickFont(const TextFont&) override { return {}; }
    void PickPrinter() override {}
    void ShowHelp(const QString&) override {}
};

class NoEvents : public EventLoop
{
public:
    void DoEvents() override {}
    void PaintWindows() override {}
    [[noreturn]] void End(int) override { throw ProgramEnded(); }
};

class NoClipboard : public Clipboard
{
public:
    void Clear() override {}
    void SetText(const QString&) override {}
    bool HasText() const override { return false; }
    QString GetText() const override { return {}; }
    void SetPicture(const QImage&) override {}
    bool HasPicture() const override { return false; }
    QImage GetPicture() const override { return {}; }
};

class NoPrinter : public PrintSystem
{
public:
    std::shared_ptr<QPagedPaintDevice> NewJob(bool landscape) override;
};

class NoProcesses : public Processes
{
public:
    qint64 Shell(const QString&, const QString&) override { return 0; }
};

// A program in that home with its main window loaded, and nobody before it.
class Machine
{
public:
    explicit Machine(const QString& home);
    Machine(const QString& home, EventLoop& loop);
    Machine(const QString& home, Prompts& user);

private:
    Machine(const QString& home, EventLoop& loop, Prompts& user);

    NoScreen windows_;
    NoUser user_;
    NoEvents loop_;
    Screen screen_{12000, 9000};
    NoClipboard clipboard_;
    NoPrinter printer_;
    NoProcesses processes_;

public:
    Program P;
};

} // namespace lineforge::bench
