#pragma once

#include <QStringList>

#include <cstdint>
#include <iterator>

namespace lineforge::monkey
{

// What a seed decides: the same on every machine, and nothing else decides anything.
class Chance
{
public:
    explicit Chance(std::uint64_t seed) : state_(seed) {}

    // From 0 on.
    int Below(int count) { return static_cast<int>(Next() % static_cast<std::uint64_t>(count)); }
    int Between(int least, int most) { return least + Below(most - least + 1); }
    bool OneIn(int count) { return Below(count) == 0; }
    bool Percent(int likelihood) { return Below(100) < likelihood; }

    template <class List>
    const auto& OneOf(const List& list)
    {
        return *std::next(std::begin(list), Below(static_cast<int>(std::size(list))));
    }

    // Each as often as its Weight tells, compared with those of the others.
    template <class List>
    const auto& OneByWeight(const List& list)
    {
        int all = 0;
        for (const auto& one : list)
            all += one.Weight;
        int drawn = Below(all);
        const auto* chosen = std::data(list);
        for (; drawn >= chosen->Weight; ++chosen)
            drawn -= chosen->Weight;
        return *chosen;
    }

private:
    // Steele, Lea and Flood's generator that splits.
    std::uint64_t Next()
    {
        std::uint64_t mixed = state_ += 0x9e3779b97f4a7c15;
        mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9;
        mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111eb;
        return mixed ^ (mixed >> 31);
    }

    std::uint64_t state_;
};

// A text as people type it: mostly a name, a number or a date, at times nothing of the kind.
QString TypedText(Chance& chance);

} // namespace lineforge::monkey
