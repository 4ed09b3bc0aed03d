#pragma once

#include "shell/ShellTest.h"

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
