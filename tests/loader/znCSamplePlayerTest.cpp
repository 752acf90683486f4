#include "loader/znCSamplePlayer.h"
#include "loader/znCSilentAudioDevice.h"
#include "loader/znCVoice.h"
#include "loader/znCWavHeader.h"
#include "loader/znNVolume.h"
#include "tests/loader/wavOf.h"

#include <functional>
#include <gmock/gmock.h>

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class znCSamplePlayerTest : public testing::Test
{
protected:
    znCSamplePlayerTest() { mPlayer.endCallbackSet(endCb, this); }

    u32 sampleOf(u32 pMs)
    {
        const std::string bytes = wavOf(pMs * 8, 8000, 1); // eight frames a millisecond
        return mPlayer.sampleCreate(bytes.data(), static_cast<u32>(bytes.size()));
    }

    // The plays that an update of so many milliseconds reports.
    std::vector<u32> ends(s32 pMs)
    {
        mEnds.clear();
        mPlayer.update(pMs);
        return mEnds;
    }

    static s32 endCb(void* pPlay, void* pTest)
    {
        auto* test = static_cast<znCSamplePlayerTest*>(pTest);
        test->mEnds.push_back(*static_cast<u32*>(pPlay));
        if (test->mAtEnd)
            test->mAtEnd();
        return 0;
    }

    znCSilentAudioDevice mDevice;
    znCSamplePlayer mPlayer{mDevice};
    std::vector<u32> mEnds;
    std::function<void()> mAtEnd;
};
} // namespace

TEST_F(znCSamplePlayerTest, EndsComeByTheClockInTheOrderOfTheirBeginning)
{
    const u32 longer = mPlayer.play(sampleOf(40));
    const u32 shorter = mPlayer.play(sampleOf(25));
    const u32 same = mPlayer.play(sampleOf(40));
    EXPECT_THAT(ends(24), IsEmpty());
    EXPECT_THAT(ends(1), ElementsAre(shorter));
    mPlayer.pauseSet(same, true);
    EXPECT_THAT(ends(100), ElementsAre(longer));
    mPlayer.pauseSet(same, false);
    mPlayer.stop(longer); // long over
    EXPECT_THAT(ends(14), IsEmpty());
    EXPECT_THAT(ends(1), ElementsAre(same));
    EXPECT_THAT(ends(100), IsEmpty());
    EXPECT_EQ(mPlayer.play(77), 0u);
}

TEST_F(znCSamplePlayerTest, NoChannelIsFreeBeyondTheLast)
{
    const u32 sample = sampleOf(50);
    std::vector<u32> plays;
    for (s32 i = 0; i < S3E_SOUND_CHANNELS; ++i)
        plays.push_back(mPlayer.play(sample));
    EXPECT_THAT(plays, Each(testing::Gt(0u)));
    EXPECT_EQ(mPlayer.play(sample), 0u);
    mPlayer.stop(plays[5]);
    plays[5] = mPlayer.play(sample); // a number of its own, the last of all
    EXPECT_EQ(plays[5], plays.back() + 1);
    EXPECT_EQ(mPlayer.play(sample), 0u);
    EXPECT_EQ(ends(50).size(), plays.size());
    EXPECT_NE(mPlayer.play(sample), 0u);
}

TEST_F(znCSamplePlayerTest, WhatIsStoppedOrFreedIsNotReported)
{
    const u32 kept = sampleOf(10);
    const u32 freed = sampleOf(10);
    const u32 first = mPlayer.play(kept);
    mPlayer.stop(mPlayer.play(kept));
    mPlayer.play(freed);
    mPlayer.sampleFree(freed);
    EXPECT_EQ(mPlayer.play(freed), 0u);
    EXPECT_THAT(ends(10), ElementsAre(first));
    // Three end at once, and the first to be told frees the sample of all.
    const u32 second = mPlayer.play(kept);
    mPlayer.play(kept);
    mPlayer.play(kept);
    mAtEnd = [this, kept]
    {
        mPlayer.sampleFree(kept);
    };
    EXPECT_THAT(ends(10), ElementsAre(second));
}

TEST_F(znCSamplePlayerTest, APlayFromWithinAnEndWaitsForTheNextUpdate)
{
    const u32 sample = sampleOf(10);
    u32 last = mPlayer.play(sample);
    mAtEnd = [this, sample, &last]
    {
        last = mPlayer.play(sample);
    };
    for (int i = 0; i < 3; ++i)
    {
        const u32 ending = last;
        EXPECT_THAT(ends(10), ElementsAre(ending));
        EXPECT_GT(last, ending);
    }
    mPlayer.endCallbackSet(nullptr, nullptr);
    EXPECT_THAT(ends(10), IsEmpty());
}

TEST(znCWavHeaderTest, OnlyWholeFilesOfPlainSamplesAreSound)
{
    const std::string whole = wavOf(441);
    const auto with = [&whole](size_t pAt, const std::string& pBytes)
    {
        return std::string(whole).replace(pAt, pBytes.size(), pBytes);
    };
    const struct
    {
        std::string mName;
        std::string mBytes;
        u32 mLengthMs; // 0: no sound
    } cases[] = {
        {"whole", whole, 10},
        {"one frame, its time rounded up", wavOf(1), 1},
        {"more behind the sound", whole + "LIST\x04\0\0\0abcd", 10},
        {"a chunk of odd size before it", std::string(whole).insert(12, std::string("LIST\x03\0\0\0abc\0", 12)), 10},
        {"no frame", wavOf(0), 0},
        {"cut off", whole.substr(0, whole.size() - 1), 0},
        {"cut off in the header", whole.substr(0, 30), 0},
        {"nothing", "", 0},
        {"other bytes", std::string(200, 'x'), 0},
        {"another kind of RIFF", with(8, "AVI "), 0},
        {"compressed", with(20, "\x02"), 0},
        {"no channel", with(22, std::string(1, '\0')), 0},
        {"no rate", with(24, std::string(4, '\0')), 0},
        {"twelve bits", with(34, "\x0c"), 0},
        {"frames of another size", with(32, "\x03"), 0},
        {"a length beyond the file", with(40, "\xff\xff\xff\xff"), 0},
        {"too long", wavOf((znCWavHeader::LENGTH_MAX_MS + 1000) * 4, 4000, 1), 0},
    };
    for (const auto& [name, bytes, lengthMs] : cases)
    {
        znCWavHeader header;
        const bool sound = header.parse(reinterpret_cast<const u8*>(bytes.data()), static_cast<u32>(bytes.size()));
        EXPECT_EQ(sound ? header.mLengthMs : 0, lengthMs) << name;
    }
}

// The mixer's pieces here are of 1,000 bytes and full of 1; it cuts them where a pass ends.
TEST(znCVoiceTest, OnePassAfterAnotherSoundsForAsLongAsItIsRenewed)
{
    static constexpr u32 PIECE = 1000;
    static constexpr u32 LENGTH = znCVoice::LEAD_BYTES + 2 * PIECE;
    znCVoice voice;
    u32 left = LENGTH;
    const auto pieceSounds = [&voice, &left]
    {
        char piece[PIECE];
        std::fill_n(piece, PIECE, 1);
        const u32 bytes = std::min(PIECE, left);
        left = left == bytes ? LENGTH : left - bytes;
        voice.mix(piece, bytes);
        return piece[0] == 1 && piece[bytes - 1] == 1;
    };
    voice.begin(LENGTH);
    EXPECT_TRUE(pieceSounds());
    EXPECT_FALSE(voice.isEnding());
    EXPECT_FALSE(voice.continueAsk()); // too early: its end wasn't told
    for (int pass = 0; pass < 3; ++pass)
    {
        while (!voice.isEnding())
            ASSERT_TRUE(pieceSounds());
        EXPECT_FALSE(voice.isOver());
        EXPECT_TRUE(voice.continueAsk());
        while (left != LENGTH)
            ASSERT_TRUE(pieceSounds());
    }
    while (left != LENGTH || !voice.isEnding())
        ASSERT_TRUE(pieceSounds());
    EXPECT_FALSE(voice.isOver()); // one more pass could still join
    EXPECT_FALSE(pieceSounds());
    EXPECT_TRUE(voice.isOver());
    EXPECT_FALSE(voice.continueAsk());
    EXPECT_FALSE(pieceSounds());
}

TEST(znNVolumeTest, QuietIsNotSilent)
{
    const s32 cases[][4] = {{0, 256, 128, 0},   {1, 256, 128, 1},      {64, 256, 128, 32},    {256, 256, 128, 128},
                            {-5, 256, 128, 0},  {999, 256, 128, 128},  {1, 4096, 128, 1},     {47, 4096, 128, 1},
                            {48, 4096, 128, 2}, {3072, 4096, 128, 96}, {4096, 4096, 128, 128}};
    for (const auto& [volume, from, to, expected] : cases)
        EXPECT_EQ(znNVolume::scale(volume, from, to), expected) << volume << " of " << from;
}
