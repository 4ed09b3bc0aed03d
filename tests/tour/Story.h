#pragma once

#include "Tour.h"

#include <QDir>

#include <functional>
#include <vector>

namespace lineforge::tour
{

// One thing that a user does, with what is to be seen of it. Ends in a state that is worth a picture.
struct Step {
    QString Name; // of its picture, too
    std::function<void(Tour&)> Act;
};
using Steps = std::vector<Step>;

// All stops in the order in which a user comes by them.
Steps WholeStory();

// Tells each step and leaves its picture. The first failure ends the tour with false, a message and a picture.
bool Tell(Tour& tour, const Steps& steps, const QDir& pictures);

} // namespace lineforge::tour
