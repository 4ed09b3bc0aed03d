#pragma once

#include "platform/machine/Prompts.h"

#include <deque>
#include <functional>
#include <stdexcept>

namespace lineforge
{

// Leaves the routine under test after a question that the script doesn't have: nothing may happen on a made-up answer.
struct UnscriptedPrompt : std::logic_error {
    using std::logic_error::logic_error;
};

// Where a test wrote an entry of its script.
struct ScriptPlace {
    const char* File;
    int Line;

    static ScriptPlace Here(const char* file = __builtin_FILE(), int line = __builtin_LINE()) { return {file, line}; }
};

// Answers questions from a script, in its order. A question that differs from the script, or comes when nothing is
// scripted, fails the test and throws UnscriptedPrompt; an entry that nothing asked for fails the test at the end.
//     prompts.Expect(u"Delete", u"Are you sure?", Buttons::QuestionYesNo, Answer::No);
class ScriptedPrompts : public Prompts
{
public:
    // Runs while the question is open, for tests of what the program does meanwhile.
    using WhileOpen = std::function<void()>;

    ScriptedPrompts() = default;
    ~ScriptedPrompts() override;
    ScriptedPrompts(const ScriptedPrompts&) = delete;
    ScriptedPrompts& operator=(const ScriptedPrompts&) = delete;

    void Expect(QStringView title, QStringView text, Buttons buttons, Answer answer = Answer::Ok,
                WhileOpen whileOpen = {}, ScriptPlace place = ScriptPlace::Here());
    // An empty answer is Cancel.
    void ExpectInput(QStringView title, QStringView prompt, QStringView answer, WhileOpen whileOpen = {},
                     ScriptPlace place = ScriptPlace::Here());
    // No path is Cancel.
    void ExpectOpenFile(QStringView title, QStringView filter, std::optional<QString> path = {},
                        WhileOpen whileOpen = {}, ScriptPlace place = ScriptPlace::Here());
    void ExpectSaveFile(QStringView title, QStringView filter, std::optional<QString> path = {},
                        WhileOpen whileOpen = {}, ScriptPlace place = ScriptPlace::Here());
    // No answer is Cancel.
    void ExpectColour(Colour present, std::optional<Colour> answer = {}, WhileOpen whileOpen = {},
                      ScriptPlace place = ScriptPlace::Here());
    void ExpectFont(const TextFont& present, std::optional<TextFont> answer = {}, WhileOpen whileOpen = {},
                    ScriptPlace place = ScriptPlace::Here());
    void ExpectPrinterSetup(WhileOpen whileOpen = {}, ScriptPlace place = ScriptPlace::Here());
    void ExpectHelp(QStringView helpFile, WhileOpen whileOpen = {}, ScriptPlace place = ScriptPlace::Here());

    // Fails the test for every entry still unused, and forgets them. The destructor does it as well.
    void Verify();
    bool IsUsedUp() const { return script_.empty(); }

    Answer MsgBox(const QString& title, const QString& text, Buttons buttons) override;
    QString InputBox(const QString& title, const QString& prompt) override;
    std::optional<QString> OpenFile(const FileQuestion& question) override;
    std::optional<QString> SaveFile(const FileQuestion& question) override;
    std::optional<Colour> PickColour(Colour present) override;
    std::optional<TextFont> PickFont(const TextFont& present) override;
    void PickPrinter() override;
    void ShowHelp(const QString& helpFile) override;

private:
    struct Entry {
        QString Question; // all that has to agree, in words
        Answer Button;
        std::optional<QString> Text;
        WhileOpen Meanwhile;
        ScriptPlace Place;
        std::optional<Colour> PickedColour = {};
        std::optional<TextFont> PickedFont = {};
    };

    void Add(Entry entry);
    Entry Next(const QString& question);

    std::deque<Entry> script_;
};

} // namespace lineforge
