#include "support/SmallDisk.h"

#include <QByteArray>
#include <QFile>

#include <csignal>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
bool WriteSetting(const char* path, const QByteArray& text)
{
    QFile file(QString::fromLatin1(path));
    return file.open(QFile::WriteOnly | QFile::Unbuffered) && file.write(text) == text.size();
}

// A name space in which this process may mount; without an administrator's rights one in which it has them.
bool EnterOwnNameSpace()
{
    if (unshare(CLONE_NEWNS) == 0)
        return true;
    const QByteArray user = QByteArray::number(getuid());
    const QByteArray group = QByteArray::number(getgid());
    return unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && WriteSetting("/proc/self/uid_map", "0 " + user + " 1") &&
           WriteSetting("/proc/self/setgroups", "deny") && WriteSetting("/proc/self/gid_map", "0 " + group + " 1");
}
} // namespace

void LimitFileSize(rlim_t bytes)
{
    const rlimit limit{bytes, bytes};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0 || std::signal(SIGXFSZ, SIG_IGN) == SIG_ERR)
        _exit(254);
}

bool MountSmallDisk(const QString& directory, int bytes)
{
    const QByteArray place = QFile::encodeName(directory);
    const QByteArray size = "size=" + QByteArray::number(bytes);
    return EnterOwnNameSpace() && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("tmpfs", place.constData(), "tmpfs", 0, size.constData()) == 0;
}

SmallDisk::SmallDisk(const QString& directory)
    : directory_(directory), isMounted_(MountSmallDisk(directory, 4 * 1024 * 1024))
{
    if (isMounted_)
        qputenv("TMPDIR", QFile::encodeName(directory));
}

void SmallDisk::Fill()
{
    if (!isMounted_)
        return LimitFileSize(1);
    QFile filler(directory_ + u"/filler");
    if (!filler.open(QFile::WriteOnly | QFile::Unbuffered))
        _exit(254);
    for (int block = 4096; block > 0; block /= 2)
        while (filler.write(QByteArray(block, 'x')) == block) {}
}

QString SmallDisk::Refusal(const QString& subject) const
{
    const QString text = isMounted_ ? u"Run-time error '61':\n\nDisk full\n\nThe disk has no room left for this:\n"_s
                                    : u"Run-time error '57':\n\nDevice I/O error\n\nThe disk failed at this:\n"_s;
    return text + subject;
}

} // namespace lineforge
