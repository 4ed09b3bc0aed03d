#pragma once

#include "editor/TextFormat.h"
#include "platform/files/FileSystem.h"

#include <optional>

namespace lineforge
{

// The file that a text comes from and goes to; none for a new text. What the disk refuses is a RuntimeError, and then
// everything stays as it was, here and there.
class EditedFile
{
public:
    EditedFile();

    // Absolute, spelt as it stands on disk; empty for none.
    const QString& Path() const { return path_; }
    // Without its directory; a word of its own for none.
    QString Name() const;
    const TextForm& Form() const { return form_; }

    void StartNew();

    // Nothing when the file is no text; then the one before stays.
    std::optional<QString> Load(const QString& path);

    // Lines end with a line feed in `text`. The path is this object's from now on.
    void Save(const QString& path, const QString& text);

    // Whether somebody else has put other bytes into the file since it was read or written here.
    bool HasChangedOnDisk() const;

    // The path as Load and Save take it: a name that differs from a standing file's in case alone is that file.
    QString Resolve(const QString& path) const { return files_.Resolve(path); }

private:
    FileSystem files_;
    QString path_;
    TextForm form_;
    QByteArray fingerprint_;
};

} // namespace lineforge
