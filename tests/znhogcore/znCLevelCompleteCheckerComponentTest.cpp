#include "znhogcore/components/znCLevelCompleteCheckerComponent.h"

#include "tests/znhogcore/znCLevelEndTest.h"

namespace
{
// A checker of its own, without a level.
class znCLevelCompleteCheckerComponentTest : public znCLevelEndTest
{
protected:
    void SetUp() override
    {
        znCLevelEndTest::SetUp();
        anew();
    }
    void TearDown() override
    {
        mHolder.reset();
        znCLevelEndTest::TearDown();
    }
    void anew()
    {
        mHolder = std::make_unique<znCEntity>("holder");
        mChecker = mHolder->componentAdd<znCLevelCompleteCheckerComponent>();
    }
    static bool say(const znCUniqueId& pType, std::string pName)
    {
        return znCHogMessageDispatcher::instanceGet()->messageSend(pType, &pName);
    }
    static bool add(const char* pName) { return say(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_ADD, pName); }
    static bool met(const char* pName) { return say(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_MET, pName); }
    static bool clear(const char* pName) { return say(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_CLEAR, pName); }

    std::unique_ptr<znCEntity> mHolder;
    znCLevelCompleteCheckerComponent* mChecker = nullptr;
};

TEST_F(znCLevelCompleteCheckerComponentTest, announcesTheEndWhenTheLastRequirementIsMet)
{
    struct Case
    {
        bool mWait;
        bool mCongratulate;
        const char* mAnnounced;
        const char* mContinued; // heard when the player asks to go on
    };
    const Case cases[] = {
        {false, false, "LevelComplete ", ""},
        {false, true, "LevelCompleteCongrats ", ""},
        {true, false, "LevelCompleteWaiting ", "LevelCompleteWaiting LevelComplete "},
        {true, true, "LevelCompleteWaitingCongrats ", "LevelCompleteWaitingCongrats LevelComplete "},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mAnnounced);
        anew();
        if (c.mWait)
            mChecker->waitForPlayerSet();
        if (c.mCongratulate)
            mChecker->congratulateSet();
        EXPECT_TRUE(add("list"));
        EXPECT_TRUE(add("lost"));
        EXPECT_TRUE(met("list"));
        EXPECT_FALSE(mChecker->continueRequest());
        EXPECT_FALSE(clear("list"));
        EXPECT_TRUE(met("lost"));
        EXPECT_EQ(mEndEar.take(), "");
        met("list");
        EXPECT_EQ(mEndEar.take(), c.mAnnounced);
        EXPECT_EQ(mChecker->continueRequest(), c.mWait);
        EXPECT_EQ(mEndEar.take(), c.mContinued);
    }
}

TEST_F(znCLevelCompleteCheckerComponentTest, logsReportsThatDoNotFit)
{
    struct Case
    {
        const char* mWhat;
        bool (*mReport)(const char* pName);
        const char* mName;
        const char* mLogged;
        const char* mAnnounced;
    };
    const Case cases[] = {
        {"added twice: stays met", add, "list", "Requirement list already registered.", ""},
        {"met twice", met, "list", "Requirement list already flagged as complete.", "LevelComplete "},
        {"met, but nobody's", met, "nobody", "Requirement nobody not registered.", ""},
        {"cleared, but nobody's", clear, "nobody", "Requirement nobody not registered.", ""},
        {"met still", met, "list", "Requirement list already flagged as complete.", "LevelComplete "},
    };
    add("list");
    met("list");
    mEndEar.take();
    for (const Case& c : cases)
    {
        c.mReport(c.mName);
        EXPECT_EQ(errorsTake(), std::vector<std::string>{c.mLogged}) << c.mWhat;
        EXPECT_EQ(mEndEar.take(), c.mAnnounced) << c.mWhat;
    }
    clear("list");
    clear("list");
    EXPECT_EQ(errorsTake(), std::vector<std::string>{"Requirement list already flagged as not complete."});
}
} // namespace
