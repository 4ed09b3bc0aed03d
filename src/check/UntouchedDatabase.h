#pragma once

#include "platform/store/Database.h"

#include <QTemporaryDir>

#include <chrono>
#include <memory>
#include <optional>

namespace lineforge::check
{

// A database of ours that is read and left as it is, with all that lies beside it, to the last byte. What a writer that
// was cut off has left to be taken back is taken back in a copy, which goes with this.
class UntouchedDatabase
{
public:
    // Waits that long for whoever has locked it. RuntimeError as `Statement`, and what the disk refuses to the copy.
    UntouchedDatabase(const QString& file, std::chrono::milliseconds patience);

    std::unique_ptr<Statement> Prepare(const QByteArray& sql) const;

private:
    struct Closing {
        void operator()(sqlite3* handle) const;
    };

    void Open(const QString& file, const QByteArray& how);
    void OpenInPlace(const QString& file);
    void OpenCopy(const QString& file);

    const std::chrono::milliseconds patience_;
    std::optional<QTemporaryDir> copy_;
    std::unique_ptr<sqlite3, Closing> handle_;
};

} // namespace lineforge::check
