#include "qt/WindowTest.h"
#include "qt/machine/QtProcesses.h"
#include "support/TemporaryHome.h"

#include <QEventLoop>
#include <QThread>

#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <unistd.h>

namespace lineforge
{
namespace
{

using namespace Qt::StringLiterals;

struct Shown : Form {
    Shown() : Form(u"Shown", u"Shown", {6000, 3000}) {}
};

// Two runs of the program: one here, one in a thread of its own, for each waits for the other.
class HomeClaimTest : public WindowTest
{
protected:
    HomeOwner ClaimFromElsewhere(const QString& home)
    {
        HomeOwner owner{};
        const std::unique_ptr<QThread> other(QThread::create([&] { owner = QtProcesses().ClaimHome(home); }));
        QEventLoop loop;
        QObject::connect(other.get(), &QThread::finished, &loop, &QEventLoop::quit);
        other->start();
        loop.exec();
        other->wait();
        return owner;
    }

    TemporaryHome Home;
    std::unique_ptr<QtProcesses> Here = std::make_unique<QtProcesses>();
};

TEST_F(HomeClaimTest, SecondRun_IsToldThatTheFirstHasCome)
{
    EXPECT_EQ(Here->ClaimHome(Home.Path()), HomeOwner::ThisRun);
    EXPECT_EQ(ClaimFromElsewhere(Home.Path()), HomeOwner::OtherInFront);
    EXPECT_EQ(ClaimFromElsewhere(Home.Path()), HomeOwner::OtherInFront) << "each time";
}

TEST_F(HomeClaimTest, FirstRun_ComesToTheFront_WithTheWindowLastInUse)
{
    Here->ClaimHome(Home.Path());
    Window<Shown> one(System());
    Window<Shown> two(System());
    one->Show();
    two->Show();
    Activate(*one);
    QWidget& inUse = ViewOf(*one);
    inUse.showMinimized();
    Activate(*two);
    Activate(*one);
    inUse.setWindowState(Qt::WindowMinimized);

    ClaimFromElsewhere(Home.Path());

    EXPECT_FALSE(inUse.isMinimized());
    EXPECT_EQ(QApplication::activeWindow(), &inUse);
}

TEST_F(HomeClaimTest, OtherHomes_AreFree_AndEachIsHeldUntilItIsLeft)
{
    TemporaryHome other;
    Here->ClaimHome(Home.Path());
    EXPECT_EQ(ClaimFromElsewhere(other.Path()), HomeOwner::ThisRun);
    EXPECT_EQ(Here->ClaimHome(other.Path()), HomeOwner::ThisRun);
    EXPECT_EQ(ClaimFromElsewhere(Home.Path()), HomeOwner::OtherInFront);
    Here->LeaveHomesBut({other.Path() + u"/."_s, Home.Path(u"nowhere")});
    EXPECT_EQ(ClaimFromElsewhere(Home.Path()), HomeOwner::ThisRun);
    EXPECT_EQ(ClaimFromElsewhere(other.Path()), HomeOwner::OtherInFront);
}

TEST_F(HomeClaimTest, OwnHome_IsNobodyElses_ByWhateverPath)
{
    EXPECT_EQ(Here->ClaimHome(Home.Path()), HomeOwner::ThisRun);
    EXPECT_EQ(Here->ClaimHome(Home.Path() + u"/../"_s + QDir(Home.Path()).dirName() + u'/'), HomeOwner::ThisRun);
    EXPECT_EQ(ClaimFromElsewhere(Home.Path() + u"/."_s), HomeOwner::OtherInFront);
}

TEST_F(HomeClaimTest, RunThatHasEnded_LeavesTheHomeFree_AndNothingInIt)
{
    Here->ClaimHome(Home.Path());
    EXPECT_EQ(Home.Snapshot().keys(), QStringList());
    Here.reset();
    EXPECT_EQ(ClaimFromElsewhere(Home.Path()), HomeOwner::ThisRun);
    EXPECT_EQ(Home.Snapshot().keys(), QStringList());
}

TEST_F(HomeClaimTest, OwnerThatListensToNobody_IsOutOfReach)
{
    const int directory = open(QFile::encodeName(Home.Path()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(flock(directory, LOCK_EX | LOCK_NB), 0);
    EXPECT_EQ(ClaimFromElsewhere(Home.Path()), HomeOwner::OtherOutOfReach);
    close(directory);
}

TEST_F(HomeClaimTest, DirectoryThatIsNotThere_IsNobodys)
{
    EXPECT_EQ(Here->ClaimHome(Home.Path(u"nowhere")), HomeOwner::ThisRun);
}

} // namespace
} // namespace lineforge
