#pragma once

#include "ShellTest.h"

namespace lineforge
{

inline const QByteArray registryOfTwo =
    "This File Contains Graphic Data crucial to your program. Warning: DO NOT MODIFY.\r\n"
    "[Alias]\r\n[Smiths=LfgDat_A,Jones=LfgDat_B,]\r\n[CFG]\r\n[1,]\r\n";

inline QByteArray RegistryWith(const QByteArray& entry)
{
    return QByteArray(registryOfTwo).replace(",]\r\n[CFG]", QByteArray("," + entry + ",]\r\n[CFG]"));
}

class NewBranchTest : public ShellTest
{
protected:
    void AnswerName(QStringView name, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        Prompts.ExpectInput(u"New Tree Branch name", u"Enter the name for this new Tree Branch Map", name,
                            std::move(whileOpen));
    }

    void ExpectDuplicateBox()
    {
        Prompts.Expect(u"Duplicate Name entered.", u"Cannot have Tree Branch databases with same name",
                       Buttons::Information);
    }

    void ExpectFullBox()
    {
        Prompts.Expect(u"Directory Table Full.",
                       u"Last Directory(LFGDAT_Z) used. You need to have space for a new directory(maximum 26 "
                       u"allowed).Contact software vendor for support.",
                       Buttons::Information);
    }

    void ExpectDirectoryThereBox()
    {
        Prompts.Expect(u"Error Setting New Directory", u" sDir & ' directory already exists.'", Buttons::Information);
    }

    void Confirm(QStringView name, QStringView directory, Answer answer = Answer::Ok,
                 ScriptedPrompts::WhileOpen whileOpen = {})
    {
        const QString title = name + u" Tree Branch new Directory and Files"_s;
        const QString text = u"New '%1' Tree Branch Database and new map file will be \n"
                             u"placed in new Directory %2%3.\n"
                             u"New '%1' Subject and Gallery files will be copied to this \n"
                             u"directory when presented."_s.arg(name, P.Branch.HomeDir, directory);
        Prompts.Expect(title, text, Buttons::InformationOkCancel, answer, std::move(whileOpen));
    }

    void Make(QStringView name, QStringView directory)
    {
        AnswerName(name);
        Confirm(name, directory);
        ExpectEmptyBox();
        P.Form1->New.Click();
    }
};

class MadeBranchTest : public NewBranchTest
{
protected:
    MadeBranchTest() { GivenSmithsAndJones(); }
};

} // namespace lineforge
