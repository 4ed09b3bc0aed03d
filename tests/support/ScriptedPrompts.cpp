#include "support/ScriptedPrompts.h"

#include "support/Printing.h"

#include <gtest/gtest.h>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr QStringView toOpen = u"file to open";
constexpr QStringView toSave = u"file to save";
QString MessageQuestion(QStringView title, QStringView text, Buttons buttons)
{
    return u"message, title \"%1\", text \"%2\", buttons %3"_s.arg(title, text,
                                                                   QString::number(static_cast<int>(buttons)));
}

QString InputQuestion(QStringView title, QStringView prompt)
{
    return u"input box, title \"%1\", prompt \"%2\""_s.arg(title, prompt);
}

QString FileQuestionText(QStringView wanted, QStringView title, QStringView filter)
{
    return u"%1, title \"%2\", filter \"%3\""_s.arg(wanted, title, filter);
}

QString ColourQuestion(Colour present)
{
    return u"colour, present %1"_s.arg(present, 6, 16, QChar(u'0'));
}

QString FontQuestion(const TextFont& present)
{
    const QString style = (present.Bold ? u" bold"_s : QString()) + (present.Italic ? u" italic"_s : QString());
    return u"font, present \"%1\" %2%3"_s.arg(present.Name, QString::number(present.Size), style);
}

const QString printerQuestion = QStringLiteral("printer set-up");

QString HelpQuestion(QStringView helpFile)
{
    return u"help file \"%1\""_s.arg(helpFile);
}
} // namespace

ScriptedPrompts::~ScriptedPrompts()
{
    Verify();
}

void ScriptedPrompts::Add(Entry entry)
{
    script_.push_back(std::move(entry));
}

void ScriptedPrompts::Expect(QStringView title, QStringView text, Buttons buttons, Answer answer, WhileOpen whileOpen,
                             ScriptPlace place)
{
    Add({MessageQuestion(title, text, buttons), answer, {}, std::move(whileOpen), place});
}

void ScriptedPrompts::ExpectInput(QStringView title, QStringView prompt, QStringView answer, WhileOpen whileOpen,
                                  ScriptPlace place)
{
    Add({InputQuestion(title, prompt), Answer::Ok, answer.toString(), std::move(whileOpen), place});
}

void ScriptedPrompts::ExpectOpenFile(QStringView title, QStringView filter, std::optional<QString> path,
                                     WhileOpen whileOpen, ScriptPlace place)
{
    Add({FileQuestionText(toOpen, title, filter), Answer::Ok, std::move(path), std::move(whileOpen), place});
}

void ScriptedPrompts::ExpectSaveFile(QStringView title, QStringView filter, std::optional<QString> path,
                                     WhileOpen whileOpen, ScriptPlace place)
{
    Add({FileQuestionText(toSave, title, filter), Answer::Ok, std::move(path), std::move(whileOpen), place});
}

void ScriptedPrompts::ExpectColour(Colour present, std::optional<Colour> answer, WhileOpen whileOpen, ScriptPlace place)
{
    Add({ColourQuestion(present), Answer::Ok, {}, std::move(whileOpen), place, answer});
}

void ScriptedPrompts::ExpectFont(const TextFont& present, std::optional<TextFont> answer, WhileOpen whileOpen,
                                 ScriptPlace place)
{
    Add({FontQuestion(present), Answer::Ok, {}, std::move(whileOpen), place, {}, std::move(answer)});
}

void ScriptedPrompts::ExpectHelp(QStringView helpFile, WhileOpen whileOpen, ScriptPlace place)
{
    Add({HelpQuestion(helpFile), Answer::Ok, {}, std::move(whileOpen), place});
}

void ScriptedPrompts::ExpectPrinterSetup(WhileOpen whileOpen, ScriptPlace place)
{
    Add({printerQuestion, Answer::Ok, {}, std::move(whileOpen), place});
}

void ScriptedPrompts::Verify()
{
    for (const Entry& entry : std::exchange(script_, {}))
        ADD_FAILURE_AT(entry.Place.File, entry.Place.Line) << "never asked: " << qUtf8Printable(entry.Question);
}

ScriptedPrompts::Entry ScriptedPrompts::Next(const QString& question)
{
    if (script_.empty()) {
        ADD_FAILURE() << "nothing is scripted, but asked: " << qUtf8Printable(question);
        throw UnscriptedPrompt(question.toStdString());
    }
    Entry entry = std::move(script_.front());
    script_.pop_front();
    if (entry.Question != question) {
        ADD_FAILURE_AT(entry.Place.File, entry.Place.Line)
            << "scripted: " << qUtf8Printable(entry.Question) << "\n   asked: " << qUtf8Printable(question);
        // What follows in the script belongs to a story that isn't told any more.
        script_.clear();
        throw UnscriptedPrompt(question.toStdString());
    }
    if (entry.Meanwhile)
        entry.Meanwhile();
    return entry;
}

Answer ScriptedPrompts::MsgBox(const QString& title, const QString& text, Buttons buttons)
{
    return Next(MessageQuestion(title, text, buttons)).Button;
}

QString ScriptedPrompts::InputBox(const QString& title, const QString& prompt)
{
    return Next(InputQuestion(title, prompt)).Text.value_or(QString());
}

std::optional<QString> ScriptedPrompts::OpenFile(const FileQuestion& question)
{
    return Next(FileQuestionText(toOpen, question.Title, question.Filter)).Text;
}

std::optional<QString> ScriptedPrompts::SaveFile(const FileQuestion& question)
{
    return Next(FileQuestionText(toSave, question.Title, question.Filter)).Text;
}

std::optional<Colour> ScriptedPrompts::PickColour(Colour present)
{
    return Next(ColourQuestion(present)).PickedColour;
}

std::optional<TextFont> ScriptedPrompts::PickFont(const TextFont& present)
{
    return Next(FontQuestion(present)).PickedFont;
}

void ScriptedPrompts::PickPrinter()
{
    Next(printerQuestion);
}

void ScriptedPrompts::ShowHelp(const QString& helpFile)
{
    Next(HelpQuestion(helpFile));
}

} // namespace lineforge
