#include "tests/support/znCTestPlatform.h"
#include "tests/support/znCTestSound.h"
#include "znappcore/znIAudioManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"

#include <gtest/gtest.h>

namespace
{
class znCAudioManagerTest : public ::testing::Test
{
protected:
    znCAudioManagerTest()
    {
        znIDebug::create();
        mPlatform.mFiles.fileSet("audio/sfx/find.wav", "find");
        mPlatform.mFiles.fileSet("audio/sfx/broken.wav", "bad");
        znIAudioManager::create();
        mAudio = znIAudioManager::instanceGet();
        mPlatform.mAudioCalls.clear();
    }

    ~znCAudioManagerTest() override
    {
        znIAudioManager::destroy();
        znIDebug::destroy();
    }

    void effectPlay(const char* pName, bool pLoop) { mAudio->effectPlay(znCResourceName(pName, 0), pLoop); }
    void musicPlay(const char* pName) { mAudio->musicPlay(znCResourceName(pName, 0)); }

    znCTestPlatform mPlatform;
    znCTestSound mSound;
    znIAudioManager* mAudio;
};
} // namespace

TEST_F(znCAudioManagerTest, volumesAreScaledByTheMasterAndComeBackWithIt)
{
    struct Case
    {
        float mMaster;
        float mVolume;
        const char* mMusic;
        s32 mEffects;
    };
    const Case cases[] = {{1.0f, 1.0f, "set 0 256", 4096}, {0.5f, 0.5f, "set 0 64", 1024},
                          {0.0f, 0.5f, "set 0 0", 0},      {1.0f, 1e30f, "set 0 256", 4096},
                          {1.0f, -1.0f, "set 0 0", 0},     {1.0f, 0.75f, "set 0 192", 3072}};
    for (const Case& c : cases)
    {
        mAudio->musicVolumeSet(c.mVolume);
        mAudio->effectsVolumeSet(c.mVolume);
        mAudio->masterVolumeSet(c.mMaster);
        mAudio->update(16);
        EXPECT_EQ(mPlatform.mAudioCalls.back(), c.mMusic);
        EXPECT_EQ(mSound.mVolume, c.mEffects);
    }
    mAudio->masterVolumeSet(0.0f);
    mAudio->masterVolumeSet(1.0f);
    mAudio->update(16);
    EXPECT_EQ(mSound.mVolume, 3072);
}

TEST_F(znCAudioManagerTest, musicStartsOnceForANameAndFailureForgetsIt)
{
    musicPlay("audio/music/harbour.ogg");
    musicPlay("audio/music/harbour.ogg");
    EXPECT_EQ(mPlatform.mAudioCalls, std::vector<std::string>{"play audio/music/harbour.ogg 0"});
    mAudio->musicStop();
    musicPlay("audio/music/harbour.ogg");
    EXPECT_EQ(mPlatform.mAudioCalls.back(), "stop");
    mPlatform.mAudioResult = S3E_RESULT_ERROR;
    musicPlay("audio/music/cabin.ogg");
    EXPECT_EQ(mAudio->musicNameGet(), "");
    EXPECT_EQ(mPlatform.logCountGet("Music audio/music/cabin.ogg can't be played."), 1);
    mPlatform.mAudioResult = S3E_RESULT_SUCCESS;
    musicPlay("audio/music/cabin.ogg");
    EXPECT_EQ(mAudio->musicNameGet(), "audio/music/cabin.ogg");
}

TEST_F(znCAudioManagerTest, aLoopGoesOnUntilTheEffectsAreCleared)
{
    effectPlay("audio/sfx/find.wav", true);
    for (u32 play = 1; play <= 3; ++play)
    {
        ASSERT_EQ(mSound.mPlays.count(play), 1u);
        mSound.end(play);
        mAudio->update(16);
    }
    EXPECT_EQ(mSound.mSamples.size(), 1u);
    mAudio->effectsClear();
    EXPECT_TRUE(mSound.mPlays.empty());
    EXPECT_TRUE(mSound.mSamples.empty());
}

TEST_F(znCAudioManagerTest, anEffectIsReadOnceAndItsPlacesAreUsedAgain)
{
    for (int i = 0; i < 100; ++i)
    {
        effectPlay("audio/sfx/find.ogg", false);
        mSound.end(mSound.mLastPlay);
        mAudio->update(16);
    }
    EXPECT_EQ(mSound.mLastPlay, 100u);
    EXPECT_EQ(mSound.mLastSample, 1u);
}

TEST_F(znCAudioManagerTest, missingBrokenAndTooManySoundsAreSilent)
{
    effectPlay("audio/sfx/missing.wav", true);
    EXPECT_EQ(mPlatform.logTake(), "");
    effectPlay("audio/sfx/broken.wav", true);
    effectPlay("audio/sfx/broken.wav", true);
    EXPECT_EQ(mPlatform.logCountGet("Sound audio/sfx/broken.wav can't be played."), 1);
    mSound.mChannels = 2;
    for (int i = 0; i < 3; ++i)
        effectPlay("audio/sfx/find.wav", true);
    EXPECT_EQ(mSound.mPlays.size(), 2u);
    mSound.mChannels = 0;
    mSound.end(1);
    mAudio->update(16);
    EXPECT_EQ(mSound.mPlays.size(), 1u);
}

TEST_F(znCAudioManagerTest, pauseHoldsWhatSoundsAlsoWithoutMusic)
{
    effectPlay("audio/sfx/find.wav", true);
    effectPlay("audio/sfx/find.wav", false);
    mAudio->pause();
    EXPECT_EQ(mSound.mPaused, (std::set<u32>{1, 2}));
    EXPECT_EQ(mPlatform.mAudioCalls.back(), "pause");
    mAudio->resume();
    EXPECT_TRUE(mSound.mPaused.empty());
    EXPECT_EQ(mPlatform.mAudioCalls.back(), "resume");
}
