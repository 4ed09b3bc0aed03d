#pragma once

#include <QtGlobal>

namespace lineforge
{

// Which sessions of chance a test plays: so many of the first as it says by itself, or as many as LINEFORGE_SESSIONS
// says, from LINEFORGE_FIRST_SESSION on.
struct Sessions {
    int First = 0;
    int Behind = 0;
};

inline Sessions SessionsToPlay(int usual)
{
    const auto fromEnvironment = [](const char* name, int otherwise) {
        bool isNumber = false;
        const int number = qEnvironmentVariableIntValue(name, &isNumber);
        return isNumber ? number : otherwise;
    };
    const int first = fromEnvironment("LINEFORGE_FIRST_SESSION", 0);
    return {first, first + fromEnvironment("LINEFORGE_SESSIONS", usual)};
}

} // namespace lineforge
