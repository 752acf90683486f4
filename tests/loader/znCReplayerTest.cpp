#include "loader/znCReplayer.h"
#include "loader/znCRecorder.h"
#include "tests/loader/loaderRun.h"

#include <gmock/gmock.h>

using Kind = znCInputEvent::Kind;

namespace
{
const std::vector<std::string> HEADER = {"petrelmail recording 1", "start 5", "step 16",
                                         "size 640x480",           "touch 0", "begin"};

std::string readError(std::vector<std::string> pLines)
{
    znCReplayer replayer;
    std::string error;
    EXPECT_FALSE(replayer.linesParse(pLines, "r.txt", error));
    return error;
}
} // namespace

TEST(znCReplayerTest, EverythingRecordedComesBack)
{
    const TestFolder folder;
    const std::vector<znCInputEvent> all = {
        {Kind::KEY, 99, true, 0, 0},       {Kind::CHARACTER, 0xd83d, false, 0, 0},
        {Kind::BUTTON, 2, false, -5, 600}, {Kind::MOTION, 0, false, 1, 2},
        {Kind::TOUCH, 9, true, 3, 4},      {Kind::TOUCH_MOTION, 8, false, 5, 6},
        {.mKind = Kind::CLIENT_AREA},      {.mKind = Kind::SUSPEND},
        {.mKind = Kind::RESUME},           {.mKind = Kind::QUIT},
    };
    znCRecordingHeader header;
    header.mStartMs = 18446744073709551000u;
    header.mWidth = 480;
    header.mHeight = 800;
    header.mTouch = true;
    header.mDisplayModes = "800x600x32x0,1024x768x24x60";
    header.mSettings = {{"a", "b", "x\\y\nz = "}, {"s3e", "FullScreen", ""}};
    header.mArguments = {"", " blanks ", "--data"};
    std::string error;
    {
        znCRecorder recorder;
        ASSERT_TRUE(recorder.open(folder / "r.txt", header, error)) << error;
        recorder.frameAdd(18446744073709551010u);
        recorder.frameAdd(18446744073709551020u);
        for (const znCInputEvent& event : all)
            recorder.eventAdd(event);
        recorder.answerAdd(" Anna\n\\n ");
        recorder.answerAdd(std::nullopt);
        recorder.answerAdd("");
    }
    znCReplayer replayer;
    ASSERT_TRUE(replayer.read(folder / "r.txt", error)) << error;
    EXPECT_EQ(replayer.headerGet().textGet(), header.textGet());
    EXPECT_EQ(replayer.headerGet().mSettings[0].mValue, "x\\y\nz = ");
    EXPECT_EQ(replayer.headerGet().mArguments, header.mArguments);
    u64 now = 0;
    std::vector<znCInputEvent> events;
    ASSERT_TRUE(replayer.frameTake(now, events));
    EXPECT_EQ(now, 18446744073709551010u);
    EXPECT_THAT(events, testing::IsEmpty());
    EXPECT_EQ(replayer.answerTake(), std::nullopt);
    ASSERT_TRUE(replayer.frameTake(now, events));
    EXPECT_EQ(events, all);
    EXPECT_EQ(replayer.answerTake(), " Anna\n\\n ");
    EXPECT_EQ(replayer.answerTake(), std::nullopt);
    EXPECT_EQ(replayer.answerTake(), "");
    EXPECT_FALSE(replayer.frameTake(now, events));
}

TEST(znCReplayerTest, ARepeatTakesTheDeviceFromTheRecording)
{
    znCReplayer replayer;
    std::string error;
    std::vector<std::string> lines = HEADER;
    lines.insert(lines.end() - 1, {"set a.b=recorded", "arg one"});
    ASSERT_TRUE(replayer.linesParse(lines, "r.txt", error)) << error;
    znCOptions options;
    options.mSettings = {{"a", "b", "given"}};
    replayer.headerGet().optionsApply(options);
    EXPECT_EQ(options.mSeed, 5u);
    EXPECT_EQ(options.mStepMs, 16);
    EXPECT_EQ(options.mWidth, 640);
    EXPECT_EQ(options.mSettings.back().mValue, "given"); // the later one counts
    EXPECT_THAT(options.mArguments, testing::ElementsAre("one"));
}

TEST(znCReplayerTest, DamagedRecordingsAreNamedWithFileAndLine)
{
    EXPECT_EQ(readError({}), "r.txt:1: this is no recording");
    EXPECT_EQ(readError({"tap 1 2"}), "r.txt:1: this is no recording");
    EXPECT_THAT(readError({HEADER[0], HEADER[1]}), testing::HasSubstr("ends before its first frame"));
    EXPECT_THAT(readError({HEADER[0], "start x", "begin"}), testing::HasSubstr("r.txt:2: cannot read \"start x\""));
    EXPECT_THAT(readError({HEADER[0], "begin"}), testing::HasSubstr("ends before"));
    for (const char* line : {"", "frame", "frame -1", "frame 1 2", "key 4", "key 4 2", "button 0 1 5", "motion 1 2 3",
                             "wheel 1", "quit 1"})
    {
        std::vector<std::string> lines = HEADER;
        lines.insert(lines.end(), {"frame 10", line, "frame 20"});
        EXPECT_EQ(readError(lines), std::string("r.txt:8: cannot read \"") + line + "\"");
    }
    std::vector<std::string> early = HEADER;
    early.insert(early.end(), {"quit", "frame 20"});
    EXPECT_THAT(readError(early), testing::HasSubstr("r.txt:7:"));
}

TEST(znCReplayerTest, ALineThatWasCutOffAtTheEndIsPassedOver)
{
    znCReplayer replayer;
    std::string error;
    std::vector<std::string> lines = HEADER;
    lines.insert(lines.end(), {"frame 10", "button 0 1"});
    ASSERT_TRUE(replayer.linesParse(lines, "r.txt", error)) << error;
    u64 now = 0;
    std::vector<znCInputEvent> events;
    EXPECT_TRUE(replayer.frameTake(now, events));
    EXPECT_THAT(events, testing::IsEmpty());
}
