#pragma once

#include <QString>

#include <optional>
#include <utility>

namespace lineforge
{

// What the platform refused. A mistake of our own is an assert, never one of these.
struct RuntimeError {
    int Number;
    QString Text;
    // What it was refused for, a line each: the path of a file, the words that are no number, a record. Empty where
    // whoever refuses doesn't know.
    QString Subject;
    // The user has been told and gone on: it ends the command, never the program.
    bool IsTold = false;

    explicit RuntimeError(int number, QString subject = {});

    // It was refused for that, too.
    void Concerns(const QString& what) { Subject += (Subject.isEmpty() ? QString() : QStringLiteral("\n")) + what; }
};

// Runs work that belongs to a file or a record; whatever is refused in it tells that too.
template <class Work>
decltype(auto) Concerning(const QString& subject, Work&& work)
{
    try {
        return std::forward<Work>(work)();
    } catch (RuntimeError& error) {
        error.Concerns(subject);
        throw;
    }
}

namespace ErrorNumber
{
inline constexpr int InvalidCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int OutOfMemory = 7;
inline constexpr int Subscript = 9;
inline constexpr int TypeMismatch = 13;
inline constexpr int BadFileNumber = 52;
inline constexpr int FileNotFound = 53;
inline constexpr int FileAlreadyOpen = 55;
inline constexpr int DeviceIo = 57;
inline constexpr int FileAlreadyExists = 58;
inline constexpr int DiskFull = 61;
inline constexpr int InputPastEnd = 62;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int ObjectNotSet = 91;
inline constexpr int InvalidUseOfNull = 94;
inline constexpr int InvalidFileFormat = 321;
inline constexpr int ArrayElementMissing = 340;
inline constexpr int ArrayElementLoaded = 360;
inline constexpr int InvalidPicture = 481;
inline constexpr int PrinterError = 482;
inline constexpr int UpdateWithoutEdit = 3020;
inline constexpr int NoCurrentRecord = 3021;
inline constexpr int DatabaseNotFound = 3024;
inline constexpr int DatabaseReadOnly = 3027;
inline constexpr int TableNotFound = 3078;
inline constexpr int NotABookmark = 3159;
inline constexpr int RecordDeleted = 3167;
inline constexpr int RecordChanged = 3197;
inline constexpr int DatabaseBusy = 3260;
inline constexpr int ItemNotFound = 3265;
inline constexpr int NotADatabase = 3343;
} // namespace ErrorNumber

// The platform's own text for an error number, in the words that users of such systems know.
QString RuntimeErrorText(int number);

// Remembers the last error of a stretch of statements that go on regardless of failures, and the first since it was
// cleared.
class ErrorState
{
public:
    // Runs one statement; a refusal abandons it and is remembered, anything else passes through.
    template <class Statement>
    void Ignoring(Statement&& statement)
    {
        try {
            std::forward<Statement>(statement)();
        } catch (const RuntimeError& error) {
            Last = error;
            if (!First)
                First = error;
        }
    }

    void Clear()
    {
        Last.reset();
        First.reset();
    }

    std::optional<RuntimeError> Last;
    std::optional<RuntimeError> First;
};

} // namespace lineforge
