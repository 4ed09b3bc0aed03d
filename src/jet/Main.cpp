#include "jet/JetStream.h"
#include "jet/Limits.h"

#include <iostream>

int main(int argc, char* argv[])
{
    using namespace lineforge;

    if (argc != 2)
        return static_cast<int>(jetstream::Outcome::WrongCall);
    jet::LimitProcess();
    std::ios::sync_with_stdio(false);
    return static_cast<int>(jet::WriteRecords(argv[1], std::cout));
}
