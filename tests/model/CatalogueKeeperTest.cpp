#include "tests/support/Catalogue.h"
#include "tests/support/ForeignLock.h"
#include "tests/support/FullDisk.h"

#include <QFile>

namespace {

using namespace std::chrono_literals;

class CatalogueKeeperTest : public CatalogueTest
{
protected:
    static void refuse(const char* name)
    {
        context().insert<Movies>()->setMovieName(QString::fromLatin1(name));
        EXPECT_FALSE(context().save());
    }

    static CatalogueKeeper& keeper() { return AppDelegate::shared().keeper(); }
};

TEST_F(CatalogueKeeperTest, SavesWhatWasRefusedAsSoonAsItCan)
{
    given({.name = "Ran"});
    {
        const ForeignLock lock;
        refuse("Kagemusha");
        EXPECT_EQ(keeper().notice(),
                  "Not saved yet: another program uses the catalogue. Marrowvale keeps trying.");
        refuse("Ikiru");
        EXPECT_TRUE(keeper().notice().endsWith(" 2 changes wait."));
        EXPECT_EQ(keeper().refusedChanges(), QStringList({"Movies: Kagemusha", "Movies: Ikiru"}));
        queue.advance(10s);
        EXPECT_EQ(keeper().refusedCount(), 2U);
    }
    queue.advance(3s);
    EXPECT_EQ(keeper().refusedCount(), 0U);
    EXPECT_EQ(keeper().notice(), QString());
}

TEST_F(CatalogueKeeperTest, NamesABrokenDiskAndAReplacedFile)
{
    given({.name = "Ran"});
    {
        const FullDisk disk(4096);
        refuse("Kagemusha");
        // A limit on the length of files is an error of the disk; only a full one has a code of its own.
        EXPECT_EQ(keeper().notice(), "Not saved yet: the disk reports an error. Marrowvale keeps trying.");
    }
    keeper().tryAgain();
    EXPECT_EQ(keeper().notice(), QString());
    const QString store = qEnvironmentVariable("XDG_DATA_HOME") + "/marrowvale/Marrowvale.sqlite";
    ASSERT_TRUE(QFile::rename(store, store + ".away"));
    refuse("Ikiru");
    EXPECT_EQ(keeper().notice(), "Not saved: the catalogue's file was replaced or removed.");
    ASSERT_TRUE(QFile::rename(store + ".away", store));
    keeper().insist(0ms);
    EXPECT_EQ(keeper().refusedCount(), 0U);
}

} // namespace
