#include "qt/machine/HomeClaim.h"

#include "qt/style/Desktop.h"
#include "qt/style/WindowInUse.h"

#include <QFile>
#include <QLocalSocket>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr char wasCalled = '!';

// The same for all paths that lead there. Each user has names of his own: nobody's windows come to another one's front.
QString NameOf(const struct stat& status)
{
    return u"lineforge-%1-%2-%3"_s.arg(getuid()).arg(status.st_dev).arg(status.st_ino);
}

void ComeToFront()
{
    if (QWidget* window = LastWindowInUse())
        ShowInFront(*window);
}

QString NameOf(int directory)
{
    struct stat status {
    };
    fstat(directory, &status);
    return NameOf(status);
}
} // namespace

HomeClaim::HomeClaim(const QString& home)
    : directory_(open(QFile::encodeName(home).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
      isOurs_(flock(directory_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK), name_(NameOf(directory_))
{
    // Without a file that a crash would leave behind.
    calls_.setSocketOptions(QLocalServer::AbstractNamespaceOption);
}

HomeClaim::~HomeClaim()
{
    if (directory_ >= 0)
        close(directory_);
}

bool HomeClaim::IsOf(const QString& home) const
{
    struct stat status {
    };
    return stat(QFile::encodeName(home).constData(), &status) == 0 && name_ == NameOf(status);
}

void HomeClaim::AnswerCalls()
{
    QObject::connect(&calls_, &QLocalServer::newConnection, &calls_, [this] { AnswerCall(); });
    FollowWindowsInUse();
    // Refused, it isn't reached, and the user of the other run is asked.
    calls_.listen(name_);
}

void HomeClaim::AnswerCall()
{
    while (QLocalSocket* caller = calls_.nextPendingConnection()) {
        ComeToFront();
        caller->write(&wasCalled, 1);
        QObject::connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        caller->disconnectFromServer();
    }
}

bool HomeClaim::CallOwner() const
{
    constexpr int patience = 2000; // milliseconds, for one that is busy
    QLocalSocket call;
    call.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
    call.connectToServer(name_);
    char answer = 0;
    return call.waitForConnected(patience) && call.waitForReadyRead(patience) && call.getChar(&answer) &&
           answer == wasCalled;
}

} // namespace lineforge
