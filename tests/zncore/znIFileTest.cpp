#include "zncore/znIFile.h"
#include "tests/support/znCTestCore.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFileListBuilder.h"
#include <gtest/gtest.h>

namespace
{
using Operation = znCTestFiles::Operation;

const znCResourceName SAVED("User1.txt", znCResourceName::USER_DATA);

class znIFileTest : public ::testing::Test
{
protected:
    bool fileWrite(const std::string& pContent)
    {
        const boost::shared_ptr<znIFile> file = znIFile::create();
        if (!file->open(SAVED, znIFile::MODE_WRITE))
            return false;
        file->write(pContent.data(), static_cast<uint32>(pContent.size()));
        file->close();
        return !file->writeFailedGet();
    }

    znCTestCore mCore;
    znCTestFiles& mFiles = mCore.mPlatform.mFiles;
};
} // namespace

TEST(znCResourceName, Names)
{
    struct Case
    {
        const char* mGiven;
        s32 mType;
        const char* mName;
    };
    const Case CASES[] = {
        {"GUI/Map/Map.TXT", znCResourceName::GAME_DATA, "gui/map/map.txt"},
        {"global.txt", znCResourceName::USER_DATA, "ram://global.txt"},
        {"Strings.xml", znCResourceName::STRINGS_DATA, "strings.xml"},
        {"audio/sfx/Find.ogg", znCResourceName::GAME_DATA, "audio/sfx/find.wav"},
        {"audio/sfx/a.ogg.b", znCResourceName::GAME_DATA, "audio/sfx/a.ogg.wav"},
        {"audio/sfx/find", znCResourceName::GAME_DATA, "audio/sfx/find"},
        {"audio/music/quay.ogg", znCResourceName::GAME_DATA, "audio/music/quay.ogg"},
        {"Audio/SFX/find.ogg", znCResourceName::GAME_DATA, "audio/sfx/find.ogg"},
        {"audio/sfx/find.OGG", znCResourceName::GAME_DATA, "audio/sfx/find.ogg"},
        {"", znCResourceName::GAME_DATA, ""},
    };
    for (const Case& test : CASES)
        EXPECT_EQ(znCResourceName(test.mGiven, test.mType).nameGet(), test.mName);
}

TEST_F(znIFileTest, NamesThatLeaveTheirFolderAreRefused)
{
    const std::string NAMES[] = {"../secret.txt",       "gui/../../secret.txt",    "/etc/passwd", "..",
                                 "gui\\..\\secret.txt", std::string("a.txt\0b", 7)};
    for (const std::string& name : NAMES)
        for (const s32 type : {znCResourceName::GAME_DATA, znCResourceName::USER_DATA})
        {
            const znCResourceName resource(name, type);
            if (resource.nameGet() == "ram:///etc/passwd")
                continue; // lies on the drive, as "etc/passwd"
            const s32 opened = mFiles.operationCountGet(Operation::open);
            EXPECT_FALSE(znIFile::create()->open(resource, znIFile::MODE_READ)) << name;
            EXPECT_FALSE(znIFile::create()->open(resource, znIFile::MODE_WRITE)) << name;
            EXPECT_FALSE(znIFile::existsGet(resource));
            EXPECT_EQ(znIFile::sizeGet(resource), -1);
            EXPECT_FALSE(znIFile::fileDelete(resource));
            EXPECT_EQ(mFiles.operationCountGet(Operation::open), opened) << "the platform was asked for " << name;
        }
    EXPECT_TRUE(znIFileListBuilder::fileListBuild("..", "", true).empty());
    EXPECT_EQ(mCore.mPlatform.logCountGet("File ../secret.txt isn't a name inside the game's folders.\n"), 5);
    mFiles.fileSet("a..b/c...txt", "dots");
    EXPECT_TRUE(znIFile::existsGet(znCResourceName("a..b/c...txt", znCResourceName::GAME_DATA)));
}

TEST_F(znIFileTest, WritesAreWholeOrNotAtAll)
{
    ASSERT_TRUE(fileWrite("first"));
    for (const Operation operation : {Operation::open, Operation::write, Operation::flush, Operation::close})
    {
        mFiles.faultSet(operation, 1);
        EXPECT_FALSE(fileWrite("second")) << static_cast<s32>(operation);
        EXPECT_EQ(mFiles.fileGet("ram://user1.txt"), "first") << static_cast<s32>(operation);
    }
    EXPECT_TRUE(fileWrite("third"));
    EXPECT_EQ(mFiles.fileGet("ram://user1.txt"), "third");
    EXPECT_EQ(mFiles.openCountGet(), 1) << "only the log stays open";
    EXPECT_EQ(mCore.mPlatform.logGet(), "");
}

TEST_F(znIFileTest, MisuseLogs)
{
    mFiles.fileSet("a.txt", "12345");
    const znCResourceName data("a.txt", znCResourceName::GAME_DATA);
    const boost::shared_ptr<znIFile> file = znIFile::create();
    char buffer[8] = {};
    EXPECT_FALSE(file->read(buffer, 1));
    EXPECT_FALSE(file->write(buffer, 1));
    EXPECT_EQ(mCore.mPlatform.logCountGet("File not open.\n"), 2);

    EXPECT_FALSE(file->open(data, znIFile::MODE_WRITE)) << "data can't be written";
    EXPECT_TRUE(file->open(data, 7));
    EXPECT_EQ(mCore.mPlatform.logCountGet("Unhandled file access mode.\n"), 1);
    EXPECT_TRUE(file->read(buffer, 3));
    EXPECT_FALSE(file->write(buffer, 1)) << "opened for reading";
    EXPECT_FALSE(file->read(buffer, 3)) << "only two are left";

    EXPECT_TRUE(file->open(data, znIFile::MODE_READ));
    EXPECT_EQ(mCore.mPlatform.logCountGet("Opening a new file when one is already open."), 1);
    EXPECT_TRUE(file->read(buffer, 5)) << "from its start again";
    EXPECT_EQ(mFiles.openCountGet(), 2) << "this one and the log";
}

TEST_F(znIFileTest, Lists)
{
    for (const char* name :
         {"scenes/quay/b.png", "scenes/quay/a.png", "scenes/quay/deep/c.png", "scenes/x.txt", "y.txt"})
        mFiles.fileSet(name, "x");
    const auto listed = [](const char* pFilter, bool pRecursive)
    {
        std::string text;
        for (const znCFileListEntry& entry : znIFileListBuilder::fileListBuild("scenes", pFilter, pRecursive))
            text += entry.directoryGet() + "|" + entry.nameGet() + (entry.isDirectoryGet() ? "/ " : " ");
        return text;
    };
    EXPECT_EQ(listed("", false), "scenes|quay/ scenes|x.txt ");
    EXPECT_EQ(listed("", true), "scenes|quay/ scenes/quay|a.png scenes/quay|b.png scenes/quay|deep/ "
                                "scenes/quay/deep|c.png scenes|x.txt ");
    EXPECT_EQ(listed("deep/c", true), "scenes/quay/deep|c.png ");
    EXPECT_TRUE(znIFileListBuilder::fileListBuild("nowhere", "", true).empty());
    EXPECT_EQ(mCore.mPlatform.logGet(), "");

    std::string deep = "scenes";
    for (s32 i = 0; i < 100; ++i)
        deep += "/d";
    mFiles.fileSet(deep + "/end.txt", "x");
    EXPECT_LT(znIFileListBuilder::fileListBuild("scenes", "", true).size(), 50u);
    EXPECT_EQ(mCore.mPlatform.logCountGet("is nested too deeply.\n"), 1);
}
