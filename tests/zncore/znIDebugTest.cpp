#include "zncore/debug/znIDebug.h"
#include "tests/support/allocationCount.h"
#include "tests/support/znCTestCore.h"
#include <gtest/gtest.h>

namespace
{
constexpr const char* PLACE = "tests/zncore/znIDebugTest";

// Something with a method that fails, named like the classes of the program.
class znCFailing
{
public:
    static s32 partAdd(s32 pParts)
    {
        ZN_ASSERT(pParts > 0, "Expected %s of %d%%.\n", "parts", pParts);
        mLine = __LINE__ - 1;
        return pParts + 1;
    }
    static inline s32 mLine = 0;
};

s32 argumentCount(s32& pCount)
{
    return ++pCount;
}
} // namespace

TEST(znIDebug, FailureWritesTwoLinesAndGoesOn)
{
    znCTestCore core;
    EXPECT_EQ(znCFailing::partAdd(0), 1);
    const std::string start = "ERROR(znCFailing::partAdd) ";
    EXPECT_EQ(core.mPlatform.logGet(), start + "ASSERT failure (" + PLACE + " line " +
                                           std::to_string(znCFailing::mLine) + ")\n\r\n" + start +
                                           "Expected parts of 0%.\n\r\n");
}

TEST(znIDebug, ConditionCountsOnceAndArgumentsOnFailureOnly)
{
    znCTestCore core;
    s32 conditions = 0;
    s32 arguments = 0;
    const std::size_t allocations = allocationCountGet();
    ZN_ASSERT(argumentCount(conditions) != 0, "%d", argumentCount(arguments));
    EXPECT_EQ(allocationCountGet(), allocations);
    EXPECT_EQ(conditions, 1);
    EXPECT_EQ(arguments, 0);
    ZN_ASSERT(argumentCount(conditions) == 0, "%d", argumentCount(arguments));
    EXPECT_EQ(conditions, 2);
    EXPECT_EQ(arguments, 1);
}

TEST(znIDebug, LogLineHasOneLine)
{
    znCTestCore core;
    []
    {
        ZN_LOG("%s level skipped", "quay");
    }();
    EXPECT_EQ(core.mPlatform.logGet().find("LOG("), 0u);
    EXPECT_TRUE(core.mPlatform.logGet().ends_with(") quay level skipped\r\n")) << core.mPlatform.logGet();
}

TEST(znIDebug, MethodNames)
{
    const std::pair<const char*, const char*> CASES[] = {
        {"bool znCEntity::componentRemove(znIComponent*)", "znCEntity::componentRemove"},
        {"virtual void znCEntity::update(s32)", "znCEntity::update"},
        {"static const std::string& znCThing::nameGet() const", "znCThing::nameGet"},
        {"znStr znNCoreUtils::strGetFromFile(const znCResourceName &)", "znNCoreUtils::strGetFromFile"},
        {"std::map<int, std::function<void (int)> > znCThing::mapGet()", "znCThing::mapGet"},
        {"T znCGraph<T>::valueGet(s32) const [with T = float; s32 = int]", "znCGraph::valueGet"},
        {"float znCGraph<float>::valueGet(s32) const [T = float]", "znCGraph::valueGet"},
        {"znStr& znStr::operator+=(s32)", "znStr::operator+="},
        {"bool znCLess::operator()(int, int) const", "znCLess::operator()"},
        {"bool znCLess::operator<(const znCLess &) const", "znCLess::operator<"},
        {"void (anonymous namespace)::existsCheck(const znCResourceName &)", "existsCheck"},
        {"bool {anonymous}::existsCheck(const znCResourceName&)", "existsCheck"},
        {"void {anonymous}::Reader::next()", "Reader::next"},
        {"znCThing::znCThing(const string&)", "znCThing::znCThing"},
        {"int main()", "main"},
        {"noParameters", "noParameters"},
        {"", ""},
    };
    for (const auto& [pretty, name] : CASES)
        EXPECT_EQ(znIDebug::methodNameGet(pretty), name) << pretty;
}

TEST(znIDebug, TextIsCutAtItsLimit)
{
    znCTestCore core;
    const std::string longText(5000, 'x');
    EXPECT_EQ(znIDebug::instanceGet()->textFormat("%s", longText.c_str()), std::string(4095, 'x'));
    EXPECT_EQ(znIDebug::instanceGet()->textFormat("a%s", longText.substr(0, 4094).c_str()).size(), 4095u);
    ZN_ASSERT(false, "%s", longText.c_str());
    EXPECT_EQ(core.mPlatform.logGet().size() - core.mPlatform.logGet().rfind("ERROR("), 4095u + 2u);
}

TEST(znIDebug, SilentWithoutALog)
{
    znCTestPlatform platform;
    ZN_ASSERT(false, "Before there is a log.\n");
    EXPECT_EQ(znIDebug::instanceGet(), nullptr);
    znIDebug::destroy();
    platform.mFiles.faultSet(znCTestFiles::Operation::open, 1, 1, "ram://log.txt");
    znIDebug::create();
    ZN_ASSERT(false, "The log could not be opened.\n");
    znIDebug::destroy();
    ZN_ASSERT(false, "After there was a log.\n");
    EXPECT_EQ(platform.logGet(), "");
}

TEST(znIDebug, FullDiskIsNoLoop)
{
    znCTestCore core;
    core.mPlatform.mFiles.faultSet(znCTestFiles::Operation::write, 1, znCTestFiles::FOR_EVER, "ram://log.txt");
    core.mPlatform.mFiles.faultSet(znCTestFiles::Operation::close, 1, 1, "ram://log.txt");
    znCFailing::partAdd(0);
}

TEST(znIDebug, SecondCreateKeepsTheFirst)
{
    znCTestCore core;
    ZN_LOG("Before.");
    znIDebug* const first = znIDebug::instanceGet();
    znIDebug::create();
    EXPECT_EQ(znIDebug::instanceGet(), first);
    EXPECT_EQ(core.mPlatform.logCountGet("Before."), 1);
    EXPECT_EQ(core.mPlatform.logCountGet("znIDebug already created znIDebug.\n"), 1);
}

TEST(znIDebug, LogIsBounded)
{
    znCTestCore core;
    const std::string megabyte(1 << 20, 'x');
    for (u32 i = 0; i < (znIDebug::LOG_SIZE_LIMIT >> 20) + 8; ++i)
        znIDebug::instanceGet()->textWrite(megabyte);
    EXPECT_LT(core.mPlatform.logGet().size(), znIDebug::LOG_SIZE_LIMIT + 100u);
    EXPECT_TRUE(core.mPlatform.logGet().ends_with("The log is full; nothing more is written.\r\n"));
}

TEST(znIDebug, TextsOfTheMouseExtension)
{
    znCTestPlatform platform;
    znIDebug::create();
    EXPECT_TRUE(platform.mWindow.mMouseCursorVisible);
    platform.mWindow.mouseLogSend("100% of %s");
    EXPECT_EQ(platform.logGet(), "LOG(winMouseExtCallback) 100% of %s\r\n");
    EXPECT_EQ(platform.mWindow.mMouseLogReturned, std::vector<std::string>{"100% of %s"});
    znIDebug::destroy();
    EXPECT_EQ(platform.mWindow.mMouseLogCallback, nullptr);
}
