#include "editor/EditedFile.h"

#include "platform/base/RuntimeError.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
QByteArray FingerprintOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}
} // namespace

EditedFile::EditedFile() : files_(QDir::currentPath()) {}

QString EditedFile::Name() const
{
    return path_.isEmpty() ? u"Untitled"_s : QFileInfo(path_).fileName();
}

void EditedFile::StartNew()
{
    path_.clear();
    form_ = {};
    fingerprint_.clear();
}

std::optional<QString> EditedFile::Load(const QString& path)
{
    const QByteArray bytes = files_.Read(path);
    std::optional<FormedText> formed = ReadForm(bytes);
    if (!formed)
        return std::nullopt;
    path_ = files_.Resolve(path);
    form_ = formed->Form;
    fingerprint_ = FingerprintOf(bytes);
    return std::move(formed->Text);
}

void EditedFile::Save(const QString& path, const QString& text)
{
    const FormedBytes formed = WriteForm({text, form_});
    const QString resolved = files_.Resolve(path);
    files_.Replace(resolved, formed.Bytes);
    path_ = resolved;
    form_ = formed.Form;
    fingerprint_ = FingerprintOf(formed.Bytes);
}

bool EditedFile::HasChangedOnDisk() const
{
    // A file that has gone can't be overwritten, and what isn't a file any more is refused when it is saved.
    if (!QFileInfo(path_).isFile())
        return false;
    try {
        return FingerprintOf(files_.Read(path_)) != fingerprint_;
    } catch (const RuntimeError&) {
        return true;
    }
}

} // namespace lineforge
