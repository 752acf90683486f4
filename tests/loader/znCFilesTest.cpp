#include "loader/znCFiles.h"
#include "tests/loader/loaderRun.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <gmock/gmock.h>
#include <map>
#include <memory>
#include <set>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

// The calls that put a file in its place, with a fault in the one of that number: this program's own definitions stand
// before those of the C library.
namespace
{
enum class Fault
{
    once,         // the call fails
    forEver,      // it and all that follow fail
    killed,       // the process ends
    contentsLost, // the power fails: names are on the disk, what was written and not flushed is not
    namesLost     // the power fails: the folder is as it was when it was flushed last
};

// A folder on a disk that loses its power.
struct Disk
{
    void flushed(int pFile)
    {
        struct stat info = {};
        fstat(pFile, &info);
        if (S_ISDIR(info.st_mode))
            mFlushedNames = filesGet();
        else
            mFlushedFiles.insert(info.st_ino);
    }
    void start(const fs::path& pFolder)
    {
        mFolder = pFolder;
        mFlushedNames = filesGet();
        for (const auto& [name, content] : mFlushedNames)
            mFlushedFiles.insert(inodeGet(name));
    }
    void contentsLose() const
    {
        for (const auto& [name, content] : filesGet())
            if (mFlushedFiles.count(inodeGet(name)) == 0)
                std::ofstream(mFolder / name) << std::string(content.size(), '\0');
    }
    void namesLose() const
    {
        for (const auto& [name, content] : filesGet())
            fs::remove(mFolder / name);
        for (const auto& [name, content] : mFlushedNames)
            std::ofstream(mFolder / name) << content;
    }

private:
    std::map<std::string, std::string> filesGet() const
    {
        std::map<std::string, std::string> files;
        for (const auto& entry : fs::directory_iterator(mFolder))
        {
            std::ifstream file(entry.path());
            files[entry.path().filename()] = std::string(std::istreambuf_iterator<char>(file), {});
        }
        return files;
    }
    ino_t inodeGet(const std::string& pName) const
    {
        struct stat info = {};
        stat((mFolder / pName).c_str(), &info);
        return info.st_ino;
    }

    fs::path mFolder;
    std::map<std::string, std::string> mFlushedNames; // with their contents
    std::set<ino_t> mFlushedFiles;
};

int sCallsToFault = -1; // none
Fault sFault = Fault::once;
std::unique_ptr<Disk> sDisk;

bool isFaulty()
{
    if (sCallsToFault < 0 || sCallsToFault-- > 0)
        return false;
    if (sFault == Fault::forEver)
        sCallsToFault = 0;
    errno = EIO;
    if (sFault == Fault::once || sFault == Fault::forEver)
        return true;
    if (sFault == Fault::contentsLost)
        sDisk->contentsLose();
    if (sFault == Fault::namesLost)
        sDisk->namesLose();
    _exit(0);
}
} // namespace

extern "C"
{
    int fsync(int pFile)
    {
        if (isFaulty())
            return -1;
        const int result = static_cast<int>(syscall(SYS_fsync, pFile));
        if (sDisk != nullptr)
            sDisk->flushed(pFile);
        return result;
    }
    int rename(const char* pFrom, const char* pTo) noexcept
    {
        return isFaulty() ? -1 : static_cast<int>(syscall(SYS_rename, pFrom, pTo));
    }
    int link(const char* pFrom, const char* pTo) noexcept
    {
        return isFaulty() ? -1 : static_cast<int>(syscall(SYS_link, pFrom, pTo));
    }
    int unlink(const char* pName) noexcept
    {
        return isFaulty() ? -1 : static_cast<int>(syscall(SYS_unlink, pName));
    }
}

namespace
{
class znCFilesTest : public testing::Test
{
protected:
    znCFilesTest()
    {
        fs::create_directories(mFolder / "data");
        fs::create_directories(mFolder / "user");
    }
    ~znCFilesTest() override { sCallsToFault = -1; }

    znCFiles files() const { return znCFiles(mFolder / "data", mFolder / "user"); }

    bool write(const std::string& pName, const std::string& pText) const
    {
        znCFiles all = files();
        s3eFile* file = all.open(pName.c_str(), "wb");
        if (file == nullptr)
            return false;
        const bool written = all.write(pText.data(), static_cast<u32>(pText.size()), file) == pText.size();
        const bool flushed = all.flush(file);
        return all.close(file) && written && flushed;
    }

    // "-" if it can't be opened; its size must agree.
    std::string read(const std::string& pName) const
    {
        znCFiles all = files();
        s3eFile* file = all.open(pName.c_str(), "rb");
        EXPECT_EQ(file != nullptr, all.exists(pName.c_str())) << pName;
        if (file == nullptr)
            return "-";
        std::string text(1 << 20, '\0');
        text.resize(all.read(text.data(), static_cast<u32>(text.size()), file));
        EXPECT_EQ(all.sizeGet(pName.c_str()), static_cast<s32>(text.size())) << pName;
        EXPECT_TRUE(all.close(file));
        return text;
    }

    std::vector<std::string> names(const std::string& pName) const
    {
        znCFiles all = files();
        std::vector<std::string> result;
        s3eFileList* list = all.listOpen(pName.c_str());
        char name[16];
        while (list != nullptr && all.listNext(list, name, sizeof(name)))
            result.emplace_back(name);
        EXPECT_EQ(all.listClose(list), list != nullptr);
        return result;
    }

    TestFolder mFolder;
};

// Runs pAction in a process of its own.
template <class Action>
void apart(Action pAction)
{
    const pid_t child = fork();
    if (child == 0)
    {
        pAction();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
}
} // namespace

TEST_F(znCFilesTest, NamesThatLeaveTheirFolderAreRefused)
{
    mFolder.fileWrite("secret.txt", "s");
    mFolder.fileWrite("datalike/x.txt", "s");
    mFolder.fileWrite("data/in/a.txt", "a");
    fs::create_symlink(mFolder / "secret.txt", mFolder / "data/out.txt");
    fs::create_directory_symlink(mFolder.pathGet(), mFolder / "data/outside");
    fs::create_symlink("in/a.txt", mFolder / "data/inside.txt");
    fs::create_directory_symlink(mFolder.pathGet(), mFolder / "user/outside");
    const std::string absolute = mFolder / "secret.txt";
    for (const std::string name : {"../secret.txt", "in/../../secret.txt", "in/../in/a.txt", "..", absolute.c_str(),
                                   "out.txt", "outside/secret.txt", "outside/data/../secret.txt", "rom://in/a.txt",
                                   "ram://../secret.txt", "ram:///etc/passwd", "ram://outside/secret.txt"})
    {
        EXPECT_EQ(read(name), "-") << name;
        EXPECT_FALSE(files().isFolder(name.c_str())) << name;
        EXPECT_EQ(files().sizeGet(name.c_str()), -1) << name;
        EXPECT_FALSE(write(name, "harm")) << name;
        EXPECT_FALSE(files().remove(name.c_str())) << name;
        EXPECT_THAT(names(name), testing::IsEmpty()) << name;
    }
    EXPECT_EQ(mFolder.fileRead("secret.txt"), "s");
    EXPECT_EQ(read("in/a.txt"), "a");
    EXPECT_EQ(read("inside.txt"), "a");
}

TEST_F(znCFilesTest, WhatCanBeNeitherReadNorWritten)
{
    mFolder.fileWrite("data/a.txt", "a");
    mkfifo((mFolder / "data/pipe").c_str(), 0644);
    for (const char* name : {"", ".", "missing.txt", "a.txt/b", "pipe", "ram://", "ram://missing"})
        EXPECT_EQ(read(name), "-") << name;
    EXPECT_EQ(read(std::string(10000, 'x')), "-");
    for (const char* name : {"", "a.txt", "new.txt", "ram://", "ram://.", "ram://a~", "ram://a.txt~12"})
        EXPECT_FALSE(write(name, "x")) << name;
    EXPECT_EQ(read("a.txt"), "a");
    znCFiles all = files();
    EXPECT_EQ(all.open("a.txt", "r+b"), nullptr);
    EXPECT_EQ(all.open("a.txt", nullptr), nullptr);
    EXPECT_EQ(all.open(nullptr, "rb"), nullptr);
    EXPECT_FALSE(all.close(nullptr));
    s3eFile* file = all.open("a.txt", "rb");
    EXPECT_EQ(all.write("x", 1, file), 0u);
    EXPECT_TRUE(all.close(file));
    EXPECT_FALSE(all.close(file)); // it was let go
}

TEST_F(znCFilesTest, TheGenerationBeforeStandsInForAMissingOrEmptyFile)
{
    EXPECT_TRUE(write("ram://s.txt", "one"));
    EXPECT_TRUE(write("ram://s.txt", "two"));
    EXPECT_EQ(mFolder.fileRead("user/s.txt~"), "one");
    EXPECT_EQ(read("ram://s.txt"), "two");
    EXPECT_EQ(read("ram://s.txt~"), "one");
    EXPECT_EQ(files().sizeGet("ram://s.txt~"), 3);
    mFolder.fileWrite("user/s.txt", "");
    EXPECT_EQ(read("ram://s.txt"), "one");
    fs::remove(mFolder / "user/s.txt");
    EXPECT_EQ(read("ram://s.txt"), "one");
    EXPECT_THAT(names("ram://"), testing::ElementsAre("s.txt"));
    mFolder.fileWrite("user/s.txt", "");
    EXPECT_TRUE(write("ram://s.txt", "three")); // the empty one is no generation
    EXPECT_EQ(mFolder.fileRead("user/s.txt~"), "one");
    EXPECT_TRUE(files().remove("ram://s.txt"));
    EXPECT_EQ(read("ram://s.txt"), "-");
    EXPECT_FALSE(files().remove("ram://s.txt"));
}

TEST_F(znCFilesTest, AFileAppearsWhenItIsClosed)
{
    write("ram://s.txt", "old");
    {
        znCFiles all = files();
        s3eFile* file = all.open("ram://s.txt", "wb");
        all.write("new", 3, file);
        EXPECT_TRUE(all.flush(file));
        EXPECT_EQ(read("ram://s.txt"), "old");
        EXPECT_EQ(all.open("ram://s.txt", "wb"), nullptr); // one writer at a time
    }                                                      // never closed
    EXPECT_EQ(read("ram://s.txt"), "old");
    EXPECT_THAT(names("ram://"), testing::ElementsAre("s.txt"));
    EXPECT_TRUE(write("ram://deep/er/s.txt", "deep"));
    EXPECT_EQ(read("ram://deep/er/s.txt"), "deep");
}

TEST_F(znCFilesTest, TheLogIsThereAsItGoes)
{
    znCFiles all = files();
    s3eFile* file = all.open("ram://log.txt", "wb");
    all.write("line\n", 5, file);
    EXPECT_EQ(mFolder.fileRead("user/log.txt"), "line\n");
    all.write("more\n", 5, file);
    EXPECT_EQ(mFolder.fileRead("user/log.txt"), "line\nmore\n");
    EXPECT_TRUE(all.close(file));
    fs::remove(mFolder / "user/log.txt");
    fs::create_symlink(mFolder / "elsewhere.txt", mFolder / "user/log.txt");
    EXPECT_EQ(files().open("ram://log.txt", "wb"), nullptr);
    EXPECT_FALSE(fs::exists(mFolder / "elsewhere.txt"));
}

// Whichever step of saving fails or is the last one, a whole file is read afterwards, the old or the new one; close
// tells the truth about a failure, and the next save goes through.
TEST_F(znCFilesTest, EveryStepOfSavingMayFailOrBeTheLast)
{
    const std::string older(5000, '1');
    const std::string old(6000, '2');
    const std::string fresh(70000, '3');
    for (const Fault fault : {Fault::once, Fault::forEver, Fault::killed, Fault::contentsLost, Fault::namesLost})
    {
        int steps = 0;
        for (bool reached = true; reached; ++steps)
        {
            SCOPED_TRACE("fault " + std::to_string(static_cast<int>(fault)) + " step " + std::to_string(steps));
            for (const std::string& text : {older, old})
                ASSERT_TRUE(write("ram://s.txt", text));
            apart(
                [&]
                {
                    sDisk = std::make_unique<Disk>();
                    sDisk->start(mFolder / "user");
                    sFault = fault;
                    sCallsToFault = steps;
                    const bool saved = write("ram://s.txt", fresh);
                    if (sCallsToFault >= 0 && fault != Fault::forEver)
                        mFolder.fileWrite("through.txt", "");
                    if (saved)
                        mFolder.fileWrite("saved.txt", "");
                });
            reached = steps < 20 && !fs::remove(mFolder / "through.txt");
            const std::string found = read("ram://s.txt");
            EXPECT_TRUE(found == old || found == fresh);
            EXPECT_TRUE(!fs::remove(mFolder / "saved.txt") || found == fresh);
            EXPECT_THAT(read("ram://s.txt~"), testing::AnyOf(older, old));
            EXPECT_THAT(names("ram://"), testing::ElementsAre("s.txt"));
        }
        EXPECT_GE(steps, 7); // content flushed, older held, renamed, folder flushed, held renamed, and none
    }
}

// The generation before is all there is then, so nothing may happen to it before the new file stands.
TEST_F(znCFilesTest, ADamagedFileNeverReplacesTheGoodOneBeforeIt)
{
    for (int step = 0; step < 10; ++step)
    {
        write("ram://s.txt", "good");
        write("ram://s.txt", "also good");
        mFolder.fileWrite("user/s.txt", "damaged");
        apart(
            [&]
            {
                sFault = Fault::killed;
                sCallsToFault = step;
                write("ram://s.txt", "new");
            });
        if (read("ram://s.txt") != "new")
        {
            EXPECT_EQ(read("ram://s.txt~"), "good") << step;
        }
    }
}

TEST_F(znCFilesTest, AFullDiskKeepsTheOlderFile)
{
    ASSERT_TRUE(write("ram://s.txt", "old"));
    apart(
        [this]
        {
            const rlimit limit = {1000, 1000};
            std::signal(SIGXFSZ, SIG_IGN);
            setrlimit(RLIMIT_FSIZE, &limit);
            const bool saved = write("ram://s.txt", std::string(100000, 'x'));
            const bool small = write("ram://t.txt", "fits");
            if (!saved && small && read("ram://s.txt") == "old")
                fs::remove(mFolder / "user/t.txt"); // the parent sees by this that all was well
        });
    EXPECT_EQ(read("ram://s.txt"), "old");
    EXPECT_THAT(names("ram://"), testing::ElementsAre("s.txt"));
    EXPECT_FALSE(fs::exists(mFolder / "user/t.txt"));
}

TEST_F(znCFilesTest, WhereNothingCanBeWrittenTheRestGoesOn)
{
    fs::remove_all(mFolder / "user");
    mFolder.fileWrite("user", "a file stands where the folder should be");
    mFolder.fileWrite("data/a.txt", "a");
    EXPECT_FALSE(write("ram://s.txt", "x"));
    EXPECT_EQ(read("ram://s.txt"), "-");
    EXPECT_THAT(names("ram://"), testing::IsEmpty());
    EXPECT_EQ(read("a.txt"), "a");
}

TEST_F(znCFilesTest, ListsAreSortedAndHideWhatIsTheFoldersOwn)
{
    for (const char* name : {"data/d/b.txt", "data/d/B.txt", "data/d/a/x", "data/d/a-very-long-name-of-a-file"})
        mFolder.fileWrite(name, "x");
    for (const char* name :
         {"user/z.txt", "user/z.txt~", "user/a.txt~", "user/half.txt~99999999", "user/held.txt~99999999~"})
        mFolder.fileWrite(name, "x");
    EXPECT_THAT(names("d"), testing::ElementsAre("B.txt", "a", "b.txt")); // the long one doesn't fit into the buffer
    EXPECT_THAT(names("d/"), testing::ElementsAre("B.txt", "a", "b.txt"));
    EXPECT_THAT(names("missing"), testing::IsEmpty());
    EXPECT_THAT(names("ram://"), testing::ElementsAre("a.txt", "z.txt"));
    EXPECT_TRUE(files().isFolder("d") && files().isFolder("d/a"));
    EXPECT_FALSE(files().isFolder("d/b.txt") || files().isFolder("missing"));
    EXPECT_EQ(files().sizeGet("d"), -1);
    // That process is gone: what it left half written was cleared away.
    EXPECT_FALSE(fs::exists(mFolder / "user/half.txt~99999999"));
    EXPECT_FALSE(fs::exists(mFolder / "user/held.txt~99999999~"));
}
