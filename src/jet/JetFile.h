#pragma once

#include "jet/Refused.h"
#include "platform/store/JetStreamFormat.h"

#include <array>
#include <functional>
#include <memory>
#include <string>

namespace lineforge::jet
{

struct Cell {
    bool IsNull = true;
    std::string Text; // UTF-8
};

using Row = std::array<Cell, jetstream::fields.size()>;

// A database of Access 97 or 2000, only read. It may be damaged or hostile in any way; what that can cost in time and
// memory is limited by the process, see `LimitProcess`.
class JetFile
{
public:
    // The path is an absolute one. Throws Refused for what is no such file or has no table of records.
    explicit JetFile(const std::string& path);
    ~JetFile();
    JetFile(const JetFile&) = delete;
    JetFile& operator=(const JetFile&) = delete;

    // Hands out every row in stored order; the row is good until the next one comes. Columns are found by their names
    // in any case, a missing one is Null.
    jetstream::Tally ReadRows(const std::function<void(const Row&)>& take);

private:
    class Reader;
    std::unique_ptr<Reader> reader_;
};

} // namespace lineforge::jet
