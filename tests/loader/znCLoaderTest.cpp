#include "loader/znCModule.h"
#include "tests/loader/loaderRun.h"
#include "tests/loader/wavOf.h"

#include <algorithm>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace
{
size_t linesOf(const std::string& pText, const std::string& pStart)
{
    size_t count = 0;
    for (size_t at = 0; at < pText.size(); at = std::min(pText.find('\n', at), pText.size() - 1) + 1)
        count += pText.compare(at, pStart.size(), pStart) == 0 ? 1 : 0;
    return count;
}

// The events behind "start", what the module is told before it left out.
std::vector<std::string> inputOf(const LoaderRun& pRun)
{
    const std::vector<std::string> events = pRun.eventsGet();
    const auto start = std::find_if(events.begin(), events.end(),
                                    [](const std::string& pEvent) { return pEvent.rfind("start ", 0) == 0; });
    return start == events.end() ? events : std::vector<std::string>(start + 1, events.end());
}
} // namespace

TEST(znCLoaderTest, WhatCannotStartSaysWhyInOneLine)
{
    LoaderRun run;
    const std::string script = run.scriptWrite("wait 5\ntap 1\n");
    const std::string shots = run.folderGet().fileWrite("shots.txt", "shot a\n");
    const std::string recording = run.folderGet().fileWrite("bad.rec", "what\n");
    const std::string data = run.folderGet().pathGet();
    const struct
    {
        std::vector<std::string> mOptions;
        std::string mEnvironment;
        std::string mSays;
    } cases[] = {
        {{"--headless", "--wrong"}, "", "--wrong"},
        {{"--headless", "--data", data + "/none"}, "", "there is no data folder"},
        {{"--headless", "--data", data, "--script", data + "/none"}, "", "cannot read"},
        {{"--headless", "--data", data, "--script", data}, "", "it is a folder"},
        {{"--headless", "--data", data, "--script", script}, "", "script.txt:2: expected tap X Y"},
        {{"--headless", "--data", data, "--script", shots}, "", "--shots DIR"},
        {{"--headless", "--data", data, "--shots", script + "/x"}, "", "cannot make the folder"},
        {{"--headless", "--data", data, "--replay", recording}, "", "bad.rec:1: this is no recording"},
        {{"--headless", "--data", data, "--user", data, "--record", "/nonexistent/r"}, "", "cannot write"},
        {{"--headless", "--data", data, "--user", data, "--set", "s3e.DisplayModes=x"}, "", "s3e.DisplayModes"},
        {{"--headless", "--data", data, "--user", data, "--set", "s3e.Sound=loud"}, "", "s3e.Sound is \"loud\""},
        {{"--headless", "--data", data, "--user", data}, "__EGL_VENDOR_LIBRARY_DIRS=/nonexistent", "libegl1, libgles2"},
        {{"--data", data, "--user", data}, "SDL_VIDEODRIVER=offscreen", "no display to open a window on"},
    };
    for (const auto& [options, environment, says] : cases)
    {
        EXPECT_EQ(run.programRun(options, environment), 2) << says;
        const std::string error = run.errorGet();
        EXPECT_THAT(error, HasSubstr(says));
        EXPECT_THAT(error, StartsWith("petrelmail: "));
        EXPECT_EQ(std::count(error.begin(), error.end(), '\n'), 1) << error;
    }
}

TEST(znCLoaderTest, WithoutDataOrModuleItSaysSo)
{
    LoaderRun run;
    std::filesystem::copy(run.mProgram, run.folderGet() / "petrelmail");
    run.mProgram = run.folderGet() / "petrelmail"; // alone in a folder below which no data lie
    EXPECT_EQ(run.programRun({"--headless"}), 2);
    EXPECT_THAT(run.errorGet(), HasSubstr("cannot find the game's data"));
    run.folderGet().fileWrite("data/appsettings.txt", "");
    EXPECT_EQ(run.programRun({"--headless"}), 2);
    EXPECT_THAT(run.errorGet(), HasSubstr("cannot open the game: "));
    EXPECT_THAT(run.errorGet(), HasSubstr("libpetrelmail.so"));
}

TEST(znCLoaderTest, TheModuleMustBeThereAndOfThisInterface)
{
    znCModule module;
    std::string error;
    EXPECT_FALSE(module.open(LOADER_TEST_FOLDER "/libmissing.so", error));
    EXPECT_THAT(error, StartsWith("cannot open the game: "));
    EXPECT_FALSE(module.open(LOADER_TEST_FOLDER "/liboldmodule.so", error));
    EXPECT_EQ(error, "the game's interface version is 4.36, this loader has 4.37");
}

TEST(znCLoaderTest, HelpAndVersion)
{
    LoaderRun run;
    EXPECT_EQ(run.programRun({"--help"}), 0);
    EXPECT_THAT(run.outputGet(), StartsWith("Usage: petrelmail"));
    EXPECT_EQ(run.programRun({"--version"}), 0);
    EXPECT_THAT(run.outputGet(), StartsWith("The Petrel Mail "));
    EXPECT_EQ(run.errorGet(), "");
}

TEST(znCLoaderTest, FramesAndTheClockCountAsAsked)
{
    LoaderRun run;
    ASSERT_EQ(run.run({"--step", "16", "--seed", "1000", "--frames", "5"}), 0) << run.errorGet();
    EXPECT_THAT(run.logGet(),
                HasSubstr("start 1000\nframe 1016\nframe 1032\nframe 1048\nframe 1064\nframe 1080\nend\n"));
    EXPECT_EQ(run.run({"--step", "16", "--frames", "1", "--", "fail"}), 7);
    ASSERT_EQ(run.run({"--frames", "12"}), 0); // the real clock: about sixty frames a second
    EXPECT_EQ(linesOf(run.logGet(), "frame "), 12u);
}

TEST(znCLoaderTest, AScriptIsPlayedAndItsEndQuits)
{
    LoaderRun run;
    const std::string script = run.scriptWrite("tap 5 6\nmove 7 8\nkey 99 down\nkey 4 down\nkey 4 up\nkey 99 up\n"
                                               "type A\xc3\xa9\nkey 4 down\n");
    ASSERT_EQ(run.run({"--step", "10", "--script", script}), 0) << run.errorGet();
    EXPECT_THAT(inputOf(run), ElementsAre("button 0 1 at 5 6", "button 0 0 at 5 6", "motion 7 8", "key 99 1 state 1",
                                          "key 4 1 state 1", "key 4 0 state 0", "key 99 0 state 0", "char 65",
                                          "char 233", "key 4 1 state 1", "char 13", "end"));
    EXPECT_EQ(linesOf(run.logGet(), "frame "), 9u);
}

TEST(znCLoaderTest, ATouchDeviceHasFingersAndNoWindow)
{
    LoaderRun run;
    const std::string script = run.scriptWrite("down 5 6 0\ndown 7 8 1\nmove 9 9 1\nup 9 9 1\n");
    ASSERT_EQ(run.run({"--step", "10", "--touch", "--size", "480x800", "--script", script}), 0) << run.errorGet();
    EXPECT_THAT(run.eventsGet(),
                ElementsAre("no window", "device 480x800", "display 800x480", "surface 800x480", "start 0",
                            "touch 0 1 at 5 6", "touch 1 1 at 7 8", "touch motion 1 9 9", "touch 1 0 at 9 9", "end"));
}

TEST(znCLoaderTest, ADesktopHasModesAndObeys)
{
    LoaderRun run;
    ASSERT_EQ(run.run({"--step", "10", "--frames", "1", "--size", "640x480"}), 0) << run.errorGet();
    EXPECT_THAT(run.logGet(), StartsWith("mode 1024x768x32\nmode 1280x720x32\nmode 1366x768x32\nmode 1920x1080x32\n"
                                         "mode 640x480x32\ndevice 1920x1080\ndisplay 1920x1080\nsurface 640x480\n"));
    ASSERT_EQ(run.run({"--step", "10", "--frames", "1", "--set", "s3e.DisplayModes=800x600,1024x768x16", "--", "full"}),
              0);
    EXPECT_THAT(run.logGet(), StartsWith("mode 800x600x32\nmode 1024x768x16\nfull screen 0\ndevice 1024x768\n"
                                         "display 1024x768\nsurface 1024x768\n"));
    ASSERT_EQ(run.run({"--step", "10", "--frames", "1", "--", "size=333x222"}), 0);
    EXPECT_THAT(run.logGet(), HasSubstr("surface 333x222\n"));
}

TEST(znCLoaderTest, SuspensionKeepsAModuleFromQuittingOnlyUntilItIsResumed)
{
    LoaderRun run;
    const std::string script = run.scriptWrite("down 3 4\nsuspend\nwait 100\nquit\n");
    ASSERT_EQ(run.run({"--step", "10", "--script", script}), 0) << run.errorGet();
    EXPECT_THAT(inputOf(run), ElementsAre("button 0 1 at 3 4", "button 0 0 at 3 4", "suspend", "resume", "end"));
    EXPECT_EQ(linesOf(run.logGet(), "frame "), 1u);
    ASSERT_EQ(run.run({"--step", "10", "--frames", "9", "--script", run.scriptWrite("suspend\nwait 9000\n")}), 0);
    EXPECT_THAT(inputOf(run), ElementsAre("suspend", "resume", "end"));
}

TEST(znCLoaderTest, ATextDialogIsAnsweredByTheScript)
{
    LoaderRun run;
    ASSERT_EQ(run.run({"--step", "10", "--script", run.scriptWrite("tap 1 2\nwait 20\ntype Anna B\n"), "--", "ask"}),
              0);
    EXPECT_THAT(inputOf(run), ElementsAre("button 0 1 at 1 2", "answer Anna B", "button 0 0 at 1 2", "end"));
    ASSERT_EQ(run.run({"--step", "10", "--touch", "--script", run.scriptWrite("tap 1 2\nmove 1 3\n"), "--", "ask"}), 0);
    EXPECT_THAT(run.logGet(), HasSubstr("answer (none)\n"));
    EXPECT_THAT(run.errorGet(), HasSubstr("asked for a text (Your name), but the script doesn't type one"));
}

TEST(znCLoaderTest, AddressesAreNotOpenedHeadless)
{
    LoaderRun run;
    ASSERT_EQ(run.run({"--step", "10", "--frames", "1", "--", "url=http://a.example/", "url=file:///etc/passwd"}), 0);
    EXPECT_THAT(run.logGet(), HasSubstr("url 0\nurl 1\n"));
    EXPECT_THAT(run.errorGet(), HasSubstr("would open http://a.example/\n"));
    EXPECT_THAT(run.errorGet(), HasSubstr("refused to open \"file:///etc/passwd\""));
}

TEST(znCLoaderTest, HeadlessSamplesEndByTheVirtualClock)
{
    LoaderRun run;
    run.folderGet().fileWrite("data/a.wav", wavOf(25 * 441, 44100)); // a quarter of a second
    run.folderGet().fileWrite("data/b.wav", "no sound");
    ASSERT_EQ(run.run({"--step", "100", "--frames", "4", "--", "sound=a.wav", "sound=b.wav", "music=none.ogg"}), 0);
    EXPECT_THAT(run.logGet(), HasSubstr("sound 1\nsound 0\nmusic 1\n"));
    EXPECT_THAT(run.logGet(), HasSubstr("frame 300\nsound 1 ended\nframe 400\nend\n"));
    EXPECT_EQ(run.errorGet(), "petrelmail: cannot play none.ogg: there is no such file\n");
}

TEST(znCLoaderTest, WithoutTheSoundDeviceThatWasExpectedItGoesOn)
{
    LoaderRun run;
    std::filesystem::create_directories(run.folderGet() / "data");
    run.folderGet().fileWrite("data/a.wav", wavOf(441));
    const std::string data = run.folderGet() / "data";
    const std::string user = run.folderGet() / "user";
    ASSERT_EQ(run.programRun({"--headless", "--data", data, "--user", user, "--step", "10", "--frames", "2", "--set",
                              "s3e.Sound=1", "--", "sound=a.wav"},
                             "SDL_AUDIODRIVER=none"),
              0);
    EXPECT_THAT(run.logGet(), HasSubstr("sound 1 ended\n"));
    EXPECT_THAT(run.errorGet(), StartsWith("petrelmail: there is no sound: "));
    EXPECT_EQ(linesOf(run.errorGet(), ""), 1u);
}

TEST(znCLoaderTest, TwoRunsAreTheSameToTheLastPixel)
{
    std::string logs[2];
    std::string shots[2];
    for (int i = 0; i < 2; ++i)
    {
        LoaderRun run;
        const std::string script = run.scriptWrite("move 30 40\nwait 50\nshot a\ntap 99 55\nshot b\n");
        ASSERT_EQ(run.run({"--step", "16", "--seed", "77", "--size", "200x100", "--script", script, "--shots",
                           run.folderGet() / "shots"}),
                  0)
            << run.errorGet();
        logs[i] = run.logGet();
        shots[i] = run.folderGet().fileRead("shots/a.png") + run.folderGet().fileRead("shots/b.png");
    }
    EXPECT_EQ(logs[0], logs[1]);
    EXPECT_EQ(shots[0], shots[1]);
    EXPECT_THAT(shots[0], StartsWith("\x89PNG"));
}

// Recorded on the real clock, so the frames' times differ from run to run; the repeat has the recorded ones.
TEST(znCLoaderTest, AReplayRepeatsARunOnTheRealClock)
{
    LoaderRun run;
    const std::string recording = run.folderGet() / "run.rec";
    const std::string again = run.folderGet() / "again.rec";
    const std::string script = run.scriptWrite("tap 40 50\ntype B\nwait 60\nkey 52 down\nkey 52 up\nsuspend\nwait 80\n"
                                               "resume\nmove 70 20\nwait 30\n");
    ASSERT_EQ(run.run({"--size", "200x100", "--set", "s3e.DisplayModes=640x480", "--script", script, "--record",
                       recording, "--", "ask", "save"}),
              0)
        << run.errorGet();
    const std::string log = run.logGet();
    const std::string saved = run.folderGet().fileRead("user/save.txt");
    EXPECT_THAT(log, HasSubstr("mode 640x480x32\n"));
    EXPECT_THAT(log, HasSubstr("resume\n"));
    EXPECT_THAT(saved, StartsWith("saved at "));
    ASSERT_EQ(run.run({"--replay", recording, "--record", again}), 0) << run.errorGet();
    EXPECT_EQ(run.logGet(), log);
    EXPECT_EQ(run.folderGet().fileRead("user/save.txt"), saved);
    EXPECT_EQ(run.folderGet().fileRead("again.rec"), run.folderGet().fileRead("run.rec"));
}

TEST(znCLoaderTest, AReplayOfARunThatEndedBadlyQuitsAtItsEnd)
{
    LoaderRun run;
    const std::string recording = run.folderGet().fileWrite(
        "cut.rec",
        "petrelmail recording 1\nstart 5\nstep 16\nsize 64x48\ntouch 0\nbegin\nframe 21\nframe 37\nmotion 3");
    ASSERT_EQ(run.run({"--replay", recording}), 0) << run.errorGet();
    EXPECT_THAT(run.logGet(), HasSubstr("start 5\nframe 21\nframe 37\nend\n"));
}
