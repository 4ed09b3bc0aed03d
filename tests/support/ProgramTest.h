#pragma once

#include "program/state/Program.h"
#include "support/TestPlatform.h"
#include "support/Windows.h"

#include <gtest/gtest.h>

namespace lineforge
{

// A program with all its handlers, in a home of its own, nothing loaded yet.
class ProgramTest : public testing::Test
{
protected:
    ProgramTest();

    TestPlatform Machine;
    Program P{Machine.Platform};
    TemporaryHome& Home = Machine.Home;
    ScriptedPrompts& Prompts = Machine.Prompts;
};

} // namespace lineforge
