#include "interchange/InterchangeTest.h"

#include <dlfcn.h>
#include <unistd.h>
#include <utility>

// A branch that has come in or gone out is on the disk when it is told to be.
namespace lineforge
{
namespace
{
// What stood in a home when its disk was flushed last.
struct Flush {
    const TemporaryHome& Home;
    Tree Standing{};
};
Flush* watched = nullptr;
} // namespace
} // namespace lineforge

extern "C" int syncfs(int descriptor)
{
    using lineforge::watched;
    if (lineforge::Flush* const flush = std::exchange(watched, nullptr)) {
        flush->Standing = flush->Home.Snapshot();
        watched = flush;
    }
    return reinterpret_cast<int (*)(int)>(dlsym(RTLD_NEXT, "syncfs"))(descriptor);
}

namespace lineforge
{
namespace
{

class FlushedCopiesTest : public InterchangeTest
{
protected:
    FlushedCopiesTest()
    {
        GivenBranchesOfBoth();
        watched = &flush_;
    }
    ~FlushedCopiesTest() override { watched = nullptr; }

    Flush flush_{Home};
};

TEST_F(FlushedCopiesTest, ImportedFiles_AreOnTheDisk_BeforeTheListNamesTheirBranch)
{
    const QByteArray list = Registry();
    ExpectImportDialog(Home.Path(u"gift/LfgDat_C/LfgDat_C.mdb"));
    ExpectImportName(u"Jones");
    ExpectImportQuestion(u"Jones"_s, u"LfgDat_C"_s);

    Import();

    for (const auto& [file, bytes] : TreeOf(u"LfgDat_C"_s).asKeyValueRange())
        EXPECT_EQ(flush_.Standing.value(u"LfgDat_C/"_s + file), bytes) << qUtf8Printable(file);
    EXPECT_EQ(flush_.Standing.value(u"AliasList.cfg"_s), list);
    EXPECT_TRUE(Registry().contains("Jones=LfgDat_C"));
}

TEST_F(FlushedCopiesTest, ExportedFiles_AreOnTheDisk_WhenThePointerIsBack)
{
    Export(u'A', Home.Path(u"stick"));

    EXPECT_EQ(flush_.Standing, Home.Snapshot());
    EXPECT_TRUE(Home.Exists(u"stick/LfgDat_A/LfgGal_A/A001_01.jpg"));
}

} // namespace
} // namespace lineforge
