#pragma once

#include "platform/base/RuntimeError.h"

#include <utility>

namespace lineforge
{

// The number of the error that an action is refused with, 0 when it succeeds.
//     EXPECT_EQ(RefusalOf([&] { files.Kill(u"missing.txt"_s); }), ErrorNumber::FileNotFound);
template <class Action>
int RefusalOf(Action&& action)
{
    try {
        std::forward<Action>(action)();
    } catch (const RuntimeError& error) {
        return error.Number;
    }
    return 0;
}

} // namespace lineforge
