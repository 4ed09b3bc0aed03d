#include "support/CutOffChange.h"

#include "support/ChildProcess.h"
#include "support/SqliteFile.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace lineforge
{

void CutOffChange(const QString& database, const QByteArray& change, const QByteArray& insertion)
{
    const Pipe pipe;
    ChildProcess child([&] {
        SqliteFile file(database);
        // So small a cache that the half-done work is in the file already.
        file.Execute("PRAGMA cache_size = 1; BEGIN; " + change);
        for (int row = 0; row < 2000; ++row)
            file.Execute(insertion);
        pipe.Tell(1);
        pause();
        return 0;
    });
    ASSERT_EQ(pipe.Hear(), 1);
    child.KillNow();
    child.Wait();
}

} // namespace lineforge
