#ifndef TESTS_LOADER_LOADERRUN_H
#define TESTS_LOADER_LOADERRUN_H

#include <filesystem>
#include <string>
#include <vector>

// Folders of a test's own below the temporary folder, gone at the end of the object's life.
class TestFolder
{
public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    std::filesystem::path operator/(const std::string& pName) const { return mPath / pName; }
    const std::filesystem::path& pathGet() const { return mPath; }
    // Also makes the folders above.
    std::filesystem::path fileWrite(const std::string& pName, const std::string& pText) const;
    // Empty if there is no such file.
    std::string fileRead(const std::string& pName) const;

private:
    std::filesystem::path mPath;
};

// Runs of the loader's real program with the module of tests/loaderModule, headless.
class LoaderRun
{
public:
    // The exit status, -1 for an end by a signal, 124 after a minute without an end; "--headless", the data and the
    // user folder come first.
    int run(const std::vector<std::string>& pOptions);
    // Exactly this command line, behind settings of the environment such as "A=b".
    int programRun(const std::vector<std::string>& pOptions, const std::string& pEnvironment = "");

    std::string errorGet() const { return mFolder.fileRead("err.txt"); }
    std::string outputGet() const { return mFolder.fileRead("out.txt"); }
    std::string logGet() const { return mFolder.fileRead("user/log.txt"); }
    // The log's lines without those that tell of frames.
    std::vector<std::string> eventsGet() const;
    std::string scriptWrite(const std::string& pText) const { return mFolder.fileWrite("script.txt", pText); }
    const TestFolder& folderGet() const { return mFolder; }

    std::string mProgram = LOADER_TEST_FOLDER "/petrelmail";
    std::string mInput = "/dev/null"; // standard input

private:
    TestFolder mFolder;
};

#endif
