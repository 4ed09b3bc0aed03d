#pragma once

#include "Machine.h"
#include "support/FakeClipboard.h"

#include <QTemporaryDir>

#include <cstdint>

namespace lineforge::fuzz
{

// A run in which it doesn't hold is a finding.
void Require(bool holds);

inline QByteArray BytesOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)};
}

// Keeps one window that has been unloaded, since its handlers may still be running.
class Windows : public WindowSystem
{
public:
    void Made(Form&) override {}
    void Retire(std::unique_ptr<Form> form) override { retired_ = std::move(form); }

private:
    std::unique_ptr<Form> retired_;
};

// Agrees to everything, and always picks the same file.
class User : public bench::NoUser
{
public:
    Answer MsgBox(const QString&, const QString&, Buttons buttons) override;
    std::optional<QString> OpenFile(const FileQuestion&) override { return Picked; }

    QString Picked;
};

// A program in a home of its own: its branch A has three people, a map and a gallery, and is open.
class FuzzHome
{
public:
    FuzzHome();

    QString Path(const QString& name) const { return directory_.filePath(name); }
    void Write(const QString& name, const QByteArray& bytes) const;

private:
    // The toolkit's application, without a screen.
    struct Application {
        Application();
    };

    void MakeBranch() const;

    Application application_;
    QTemporaryDir directory_;
    Windows windows_;
    bench::NoEvents loop_;
    Screen screen_{12000, 9000};
    bench::NoPrinter printer_;
    bench::NoProcesses processes_;

public:
    fuzz::User User;
    FakeClipboard Clipboard;
    Program P;
};

} // namespace lineforge::fuzz
