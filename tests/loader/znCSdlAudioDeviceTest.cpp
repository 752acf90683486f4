#include "loader/znCSdlAudioDevice.h"
#include "loader/znCFiles.h"
#include "loader/znCMusicPlayer.h"
#include "loader/znCSamplePlayer.h"
#include "tests/loader/loaderRun.h"
#include "tests/loader/wavOf.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <gmock/gmock.h>
#include <thread>

using testing::HasSubstr;

namespace
{
// The real mixer, its sound going to a file several times as fast as it would be heard. What a test looks at is the
// file's end, after it has grown enough for all that was asked before.
class znCSdlAudioDeviceTest : public testing::Test
{
protected:
    void SetUp() override
    {
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILE", (mFolder / "sound.raw").c_str(), 1);
        setenv("SDL_DISKAUDIODELAY", "3", 1);
        std::string error;
        mDevice = znCSdlAudioDevice::open(error);
        ASSERT_NE(mDevice, nullptr) << error;
    }

    void TearDown() override
    {
        mDevice.reset();
        for (const char* name : {"SDL_AUDIODRIVER", "SDL_DISKAUDIOFILE", "SDL_DISKAUDIODELAY"})
            unsetenv(name);
    }

    std::vector<s16> soundGet() const
    {
        const std::string bytes = mFolder.fileRead("sound.raw");
        std::vector<s16> sound(bytes.size() / sizeof(s16));
        if (!sound.empty())
            std::memcpy(sound.data(), bytes.data(), sound.size() * sizeof(s16));
        return sound;
    }

    // The next buffers that are mixed after what was asked so far.
    std::vector<s16> heard()
    {
        constexpr size_t BUFFER = 2 * znCSdlAudioDevice::BUFFER_FRAMES;
        const size_t from = soundGet().size() + 4 * BUFFER; // one in the making, and what the file's own buffer holds
        std::vector<s16> sound;
        for (int i = 0; i < 2000 && sound.size() < from + 4 * BUFFER; ++i, sound = soundGet())
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        sound.erase(sound.begin(), sound.begin() + static_cast<ptrdiff_t>(std::min(from, sound.size())));
        return sound;
    }

    s32 loudestHeard()
    {
        s32 loudest = -1; // nothing was mixed
        for (const s16 value : heard())
            loudest = std::max(loudest, std::abs(s32(value)));
        return loudest;
    }

    TestFolder mFolder;
    std::unique_ptr<znCSdlAudioDevice> mDevice;
};

s32 endCount(void*, void* pCount)
{
    ++*static_cast<int*>(pCount);
    return 0;
}
} // namespace

TEST_F(znCSdlAudioDeviceTest, ASampleSoundsOnceWithItsVolumeAndItsEndIsReportedOnce)
{
    constexpr u32 FRAMES = 20000;
    const std::string wav = wavOf(FRAMES);
    int ends = 0;
    znCSamplePlayer player(*mDevice);
    player.endCallbackSet(endCount, &ends);
    player.volumeSet(S3E_SOUND_MAX_VOLUME / 2);
    EXPECT_EQ(player.sampleCreate(wav.data(), static_cast<u32>(wav.size() - 2)), 0u);
    const u32 sample = player.sampleCreate(wav.data(), static_cast<u32>(wav.size()));
    ASSERT_NE(player.play(sample), 0u);
    for (int i = 0; i < 2000 && ends == 0; ++i)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        player.update(0);
    }
    EXPECT_EQ(loudestHeard(), 0);
    player.update(0);
    EXPECT_EQ(ends, 1);
    const std::vector<s16> sound = soundGet();
    const auto first = std::find(sound.begin(), sound.end(), 4000);
    const auto last = std::find_if(first, sound.end(), [](s16 pValue) { return pValue != 4000; });
    EXPECT_EQ(last - first, 2 * FRAMES);
    EXPECT_TRUE(std::all_of(last, sound.end(), [](s16 pValue) { return pValue == 0; }));
}

TEST_F(znCSdlAudioDeviceTest, PlaysPauseGoOnAndStop)
{
    const std::string wav = wavOf(100 * 44100, 44100, 1);
    znCSamplePlayer player(*mDevice);
    const u32 sample = player.sampleCreate(wav.data(), static_cast<u32>(wav.size()));
    const u32 one = player.play(sample);
    const u32 two = player.play(sample);
    EXPECT_EQ(loudestHeard(), 16000);
    player.pauseSet(one, true);
    EXPECT_EQ(loudestHeard(), 8000);
    player.pauseSet(two, true);
    EXPECT_EQ(loudestHeard(), 0);
    player.pauseSet(one, false);
    EXPECT_EQ(loudestHeard(), 8000);
    player.stop(one);
    EXPECT_EQ(loudestHeard(), 0);
    player.pauseSet(two, false);
    player.play(sample);
    EXPECT_EQ(loudestHeard(), 16000);
    player.sampleFree(sample);
    EXPECT_EQ(loudestHeard(), 0);
}

TEST_F(znCSdlAudioDeviceTest, TheTrackIsOneOfTwoKindsAndObeys)
{
    const std::filesystem::path music = PETREL_ROOT "/data/audio/music";
    std::filesystem::create_directories(mFolder / "data");
    std::filesystem::copy(music / "harbour.ogg", mFolder / "data/a.ogg");
    std::filesystem::copy(music / "mainmenumusic.mp3", mFolder / "data/b.mp3");
    mFolder.fileWrite("data/broken.ogg", "OggS" + std::string(500, 'x'));
    mFolder.fileWrite("data/broken.mp3", "ID3" + std::string(500, 'x'));
    mFolder.fileWrite("data/c.wav", wavOf(500));
    znCFiles files(mFolder / "data", mFolder / "user");
    znCMusicPlayer player(files, *mDevice);
    for (const char* name : {"a.ogg", "b.mp3"})
    {
        ASSERT_TRUE(player.play(name, 0));
        mDevice->trackVolumeSet(S3E_AUDIO_MAX_VOLUME);
        EXPECT_GT(loudestHeard(), 0) << name;
        mDevice->trackVolumeSet(0);
        EXPECT_EQ(loudestHeard(), 0) << name;
        mDevice->trackVolumeSet(S3E_AUDIO_MAX_VOLUME);
        mDevice->trackPauseSet(true);
        EXPECT_EQ(loudestHeard(), 0) << name;
        mDevice->trackPauseSet(false);
        EXPECT_GT(loudestHeard(), 0) << name;
    }
    mDevice->trackStop();
    EXPECT_EQ(loudestHeard(), 0);
    const char* const faults[][2] = {
        {"none.ogg", "there is no such file"},      {"broken.ogg", "cannot play broken.ogg: "},
        {"broken.mp3", "cannot play broken.mp3: "}, {"c.wav", "neither Ogg Vorbis nor MP3"},
        {"../data/a.ogg", "leaves its folder"},     {"", "cannot play : "}};
    for (const auto& [name, says] : faults)
    {
        ASSERT_TRUE(player.play("a.ogg", 0));
        testing::internal::CaptureStderr();
        EXPECT_FALSE(player.play(name, 0));
        EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr(says));
    }
    EXPECT_EQ(loudestHeard(), 0); // nor does the track before go on
}
