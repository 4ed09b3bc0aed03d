#pragma once

#include <cstdlib>
#include <memory>

namespace lineforge::tour
{

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};

// An answer of the X server, which it hands over by malloc; null when it has refused the request.
template <class T>
using Reply = std::unique_ptr<T, FreeReply>;

} // namespace lineforge::tour
