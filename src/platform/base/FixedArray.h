#pragma once

#include "platform/base/RuntimeError.h"

#include <array>
#include <cstddef>

namespace lineforge
{

// A table of fixed bounds Lo to Hi, both included. An index outside them is error 9.
template <class T, int Lo, int Hi>
class FixedArray
{
public:
    T& operator[](int index) { return items_[Checked(index)]; }
    const T& operator[](int index) const { return items_[Checked(index)]; }

    static constexpr int First() { return Lo; }
    static constexpr int Last() { return Hi; }

    // Back to the state before anything was stored.
    void Erase()
    {
        for (T& item : items_)
            if constexpr (requires { item.Erase(); })
                item.Erase();
            else
                item = T{};
    }

    friend bool operator==(const FixedArray&, const FixedArray&) = default;

private:
    static std::size_t Checked(int index)
    {
        if (index < Lo || index > Hi)
            throw RuntimeError(ErrorNumber::Subscript, QString::number(index));
        return static_cast<std::size_t>(index - Lo);
    }

    std::array<T, static_cast<std::size_t>(Hi - Lo + 1)> items_{};
};

} // namespace lineforge
