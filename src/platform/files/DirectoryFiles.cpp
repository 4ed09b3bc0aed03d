#include "platform/files/DirectoryFiles.h"

#include "platform/files/FileRefusal.h"
#include "platform/files/RenameIfFree.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace lineforge
{

namespace
{
namespace fs = std::filesystem;

constexpr std::size_t block = 1 << 20;

fs::path PathOf(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

constexpr std::string_view partPrefix = ".lineforge-";

class FileHandle
{
public:
    explicit FileHandle(int handle) : handle_(handle) {}
    ~FileHandle() { Close(); }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    operator int() const { return handle_; }

    // Whether all has been taken: some disks tell only now that they are full.
    bool Close() { return handle_ < 0 || close(std::exchange(handle_, -1)) == 0; }

private:
    int handle_;
};

std::vector<fs::path> EntriesOf(const fs::path& directory)
{
    std::error_code error;
    std::vector<fs::path> entries;
    for (fs::directory_iterator at(directory, error); !error && at != fs::directory_iterator(); at.increment(error))
        entries.push_back(at->path());
    std::ranges::sort(entries);
    return entries;
}

bool WriteAll(int to, const char* bytes, ssize_t size)
{
    while (size > 0) {
        const ssize_t written = write(to, bytes, static_cast<std::size_t>(size));
        if (written <= 0)
            return false;
        bytes += written;
        size -= written;
    }
    return true;
}

bool CopyThroughMemory(int from, int to, const std::function<void()>& step)
{
    std::vector<char> bytes(block);
    for (;;) {
        const ssize_t count = read(from, bytes.data(), bytes.size());
        if (count <= 0)
            return count == 0;
        if (!WriteAll(to, bytes.data(), count))
            return false;
        step();
    }
}

// The system copies within itself where both disks let it; what it leaves goes through memory, from where the two files
// stand, which also tells what is wrong.
bool CopyContent(int from, int to, off_t size, const std::function<void()>& step)
{
    off_t copied = 0;
    ssize_t count = 0;
    while ((count = copy_file_range(from, nullptr, to, nullptr, block, 0)) > 0) {
        copied += count;
        step();
    }
    return (count == 0 && copied == size) || CopyThroughMemory(from, to, step);
}

mode_t UsualMode()
{
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

// The source's time and the mode of any new file, as far as the disk knows of such things.
void Dress(int to, const struct stat& source)
{
    static const mode_t mode = UsualMode();
    const timespec times[] = {source.st_atim, source.st_mtim};
    fchmod(to, mode);
    futimens(to, times);
}

// Under its name only when `fill` has done all of it; whether it is.
template <class Fill>
bool MakeFile(const fs::path& destination, const Fill& fill)
{
    std::string part = destination.parent_path() / (std::string(partPrefix) + "XXXXXX");
    FileHandle to(mkostemp(part.data(), O_CLOEXEC));
    if (to < 0)
        return false;
    const bool isWhole = fill(to);
    if (to.Close() && isWhole && RenameIfFree(part.c_str(), destination.c_str()))
        return true;
    unlink(part.c_str());
    return false;
}

void CopyFile(const fs::path& source, const fs::path& destination, const std::function<void()>& step)
{
    // Opening something that is no file may wait for ever.
    const FileHandle from(open(source.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {
    };
    if (from < 0 || fstat(from, &status) != 0 || !S_ISREG(status.st_mode))
        return;
    MakeFile(destination, [&](int to) {
        const bool isWhole = CopyContent(from, to, status.st_size, step);
        Dress(to, status);
        return isWhole;
    });
}

// Whether the directory really stands where its path says.
bool IsReached(const fs::path& directory, const fs::path& home)
{
    std::error_code error;
    const fs::path below = directory.lexically_normal().lexically_relative(home.lexically_normal());
    if (below.empty() || *below.begin() == ".." || *below.begin() == ".")
        return false;
    return fs::canonical(directory, error) == fs::canonical(home, error) / below && !error;
}
} // namespace

void CopyFiles(const QString& from, const QString& to, const std::function<void()>& step, const QStringList& without)
{
    const fs::path destination = PathOf(to);
    for (const fs::path& source : EntriesOf(PathOf(from))) {
        const std::string name = source.filename();
        // What a copy that was cut off has left behind is nobody's file.
        if (!name.starts_with(partPrefix) && !without.contains(QFile::decodeName(name.c_str())))
            CopyFile(source, destination / source.filename(), step);
        step();
    }
}

void CopyReadFile(const QString& from, const QByteArray& bytes, const QString& to)
{
    struct stat status {
    };
    if (stat(QFile::encodeName(from).constData(), &status) != 0)
        return;
    const auto make = [&] {
        return MakeFile(PathOf(to), [&](int file) {
            const bool isWhole = WriteAll(file, bytes.constData(), bytes.size());
            Dress(file, status);
            return isWhole;
        });
    };
    // A disk that has refused a file once gets it a second time, as it does when files are copied.
    if (!make())
        make();
}

void RemoveWithFiles(const QString& directory, const QString& home)
{
    const fs::path place = PathOf(directory);
    if (!IsReached(place, PathOf(home)) || !OwnerCanWrite(directory))
        return;
    for (const fs::path& entry : EntriesOf(place)) {
        std::error_code error;
        const fs::file_status status = fs::symlink_status(entry, error);
        const bool isKept =
            fs::is_directory(status) ||
            (fs::is_regular_file(status) && (status.permissions() & fs::perms::owner_write) == fs::perms::none);
        if (!error && !isKept)
            fs::remove(entry, error);
    }
    if (std::error_code error; OwnerCanWrite(QFileInfo(directory).path()))
        fs::remove(place, error); // refused while something is left in it
}

} // namespace lineforge
