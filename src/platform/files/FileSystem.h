#pragma once

#include <QString>
#include <QStringList>

namespace lineforge
{

// Between the parts of a path, inside and in messages.
inline constexpr QChar PathSeparator = u'/';

// The disk as the program sees it. Names are found without regard to case, an exact match first; relative names are
// taken from a current directory of this object's own, so that two programs in one process never disturb each other.
// A file or directory is read-only when its owner's write bit is missing, whoever runs the program.
// Every refusal is a RuntimeError: 53 file not found, 58 exists already, 61 disk full, 70 permission denied,
// 75 path or file access, 76 path not found.
class FileSystem
{
public:
    static constexpr int ReadOnly = 1;
    static constexpr int Directory = 16;

    explicit FileSystem(QString currentDirectory);

    // The first file name, without its directory, that fits the path; its last part may hold * and ?. Empty for none.
    QString Dir(const QString& path) const;

    // All files, or all directories, that fit, sorted without regard to case; "." and ".." are never among them.
    QStringList Files(const QString& path) const;
    QStringList Directories(const QString& path) const;

    // Whether a look-up of the path gives back the last `length` characters of that path, case ignored. That is how
    // the program asks whether a file is there, and it is not the same as existence for names of another length.
    [[nodiscard]] bool LookUpGivesTail(const QString& path, int length) const;

    // An existing file is overwritten; the copy keeps the source's time. It appears whole or not at all.
    void FileCopy(const QString& source, const QString& destination) const;
    void Kill(const QString& path) const;
    // Gives a file another name, on the same disk. Nothing is overwritten: 58 when that name is taken.
    void Rename(const QString& from, const QString& to) const;
    void MkDir(const QString& path) const;
    void RmDir(const QString& path) const;
    void ChDir(const QString& path);
    QString CurDir() const { return currentDirectory_; }

    // ReadOnly, Directory, both or 0.
    int GetAttr(const QString& path) const;

    // Puts `bytes` in the place of the file; the file that stood there stays whole until the new one is complete.
    void Replace(const QString& path, const QByteArray& bytes) const;

    // All bytes of a file.
    QByteArray Read(const QString& path) const;

    // The absolute path with every part spelt as it stands on disk, as far as the parts exist.
    QString Resolve(const QString& path) const;

private:
    QStringList List(const QString& path, bool directories) const;

    QString currentDirectory_;
};

} // namespace lineforge
