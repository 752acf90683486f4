#include "loader/znCCommandLine.h"

#include "zncore/impl/platform/s3e.h"

#include <algorithm>
#include <charconv>
#include <CLI/CLI.hpp>
#include <cstring>

namespace
{
const char* const HELP = R"(Usage: petrelmail [OPTION...] [-- ARG...]

The Petrel Mail, a hidden-object adventure.

Folders:
  --data DIR               the game's data
  --user DIR               saved games and the log
  --watch                  open the scene anew when files of its data change

Picture:
  --windowed, --fullscreen start so, whatever was chosen last
  --size WxH               size of the window, or of the device with --touch
  --touch                  be a touch device; the mouse is one finger
  --headless               no window and no sound device; the picture is drawn offscreen

Runs that can be repeated:
  --step MS                virtual clock: every frame takes MS milliseconds (1 to 1000) and
                           runs as fast as it can
  --seed N                 what the clock says at start, hence the random seed
  --frames N               quit after N frames
  --script FILE            input script, see below; headless, its end quits
  --shots DIR              where the script's pictures go
  --record FILE            write all input with its times
  --replay FILE            repeat a recorded run; clock, size and device come from FILE

Other:
  --set GROUP.KEY=VALUE    a configuration value; may be given more than once
  --help, --version
  -- ARG...                the game's own arguments

An input script has one command a line; what follows a # is a comment:
  wait MS               move X Y [ID]         down X Y [ID]         up X Y [ID]
  tap X Y               key CODE down|up      type TEXT             shot NAME
  suspend               resume                quit
X and Y are pixels of the picture; ID is the mouse button (0 left, 1 right, 2 middle) or
the finger. Each command of input takes a frame of its own.)";

// The values as texts, before they are checked together.
struct Texts
{
    std::string mData, mUser, mScript, mRecord, mReplay, mShots, mSize;
    std::vector<std::string> mSettings;
    bool mWindowed = false;
    bool mFullScreen = false;
    u64 mSeed = 0;
};

std::string sizeCheck(const std::string& pText)
{
    s32 width = 0;
    s32 height = 0;
    if (znCCommandLine::sizeParse(pText, width, height))
        return {};
    return "\"" + pText + "\" is no size such as 1024x768, each side from 16 to 16384";
}

std::string settingCheck(const std::string& pText)
{
    znCSetting setting;
    if (znCCommandLine::settingParse(pText, setting))
        return {};
    return "\"" + pText + "\" is no GROUP.KEY=VALUE with a value of at most 255 bytes";
}

std::string seedCheck(const std::string& pText)
{
    u64 seed = 0;
    const auto [end, error] = std::from_chars(pText.data(), pText.data() + pText.size(), seed);
    return error == std::errc() && end == pText.data() + pText.size() ? "" : "\"" + pText + "\" is no number from 0 up";
}

void pathOptionsAdd(CLI::App& pApp, Texts& pTexts)
{
    pApp.add_option("--data", pTexts.mData);
    pApp.add_option("--user", pTexts.mUser);
}

void pictureOptionsAdd(CLI::App& pApp, Texts& pTexts, znCOptions& pOptions)
{
    CLI::Option* windowed = pApp.add_flag("--windowed", pTexts.mWindowed);
    pApp.add_flag("--fullscreen", pTexts.mFullScreen)->excludes(windowed);
    pApp.add_option("--size", pTexts.mSize)->check(sizeCheck);
    pApp.add_flag("--touch", pOptions.mTouch);
    pApp.add_flag("--headless", pOptions.mHeadless);
    pApp.add_option("--shots", pTexts.mShots);
}

void runOptionsAdd(CLI::App& pApp, Texts& pTexts, znCOptions& pOptions)
{
    pApp.add_option("--step", pOptions.mStepMs)->check(CLI::Range(1, 1000));
    pApp.add_option("--seed", pTexts.mSeed)->check(seedCheck);
    pApp.add_option("--frames", pOptions.mFrameLimit)->check(CLI::Range(u64(1), u64(1) << 62));
    pApp.add_option("--script", pTexts.mScript);
    pApp.add_option("--record", pTexts.mRecord);
    pApp.add_option("--replay", pTexts.mReplay)
        ->excludes("--script")
        ->excludes("--step")
        ->excludes("--seed")
        ->excludes("--size")
        ->excludes("--touch")
        ->excludes("--windowed")
        ->excludes("--fullscreen");
    pApp.add_flag("--watch", pOptions.mWatch)->excludes("--record")->excludes("--replay");
    pApp.add_option("--set", pTexts.mSettings)->take_all()->allow_extra_args(false)->check(settingCheck);
}

void textsApply(const CLI::App& pApp, const Texts& pTexts, znCOptions& pOptions)
{
    pOptions.mDataFolder = pTexts.mData;
    pOptions.mUserFolder = pTexts.mUser;
    pOptions.mScript = pTexts.mScript;
    pOptions.mRecord = pTexts.mRecord;
    pOptions.mReplay = pTexts.mReplay;
    pOptions.mShots = pTexts.mShots;
    if (pTexts.mWindowed || pTexts.mFullScreen)
        pOptions.mFullScreen = pTexts.mFullScreen;
    if (pApp.count("--seed") > 0)
        pOptions.mSeed = pTexts.mSeed;
    if (!pTexts.mSize.empty())
        znCCommandLine::sizeParse(pTexts.mSize, pOptions.mWidth, pOptions.mHeight);
    for (const std::string& text : pTexts.mSettings)
        znCCommandLine::settingParse(text, pOptions.mSettings.emplace_back());
}

bool numberParse(const char* pBegin, const char* pEnd, s32& pNumber)
{
    const auto [end, error] = std::from_chars(pBegin, pEnd, pNumber);
    return error == std::errc() && end == pEnd && pBegin != pEnd;
}

std::string firstLine(const std::string& pText)
{
    return pText.substr(0, pText.find('\n'));
}
} // namespace

bool znCCommandLine::sizeParse(const std::string& pText, s32& pWidth, s32& pHeight)
{
    const size_t cross = pText.find('x');
    if (cross == std::string::npos)
        return false;
    const char* text = pText.data();
    const auto within = [](s32 pSide)
    {
        return pSide >= SIDE_MIN && pSide <= SIDE_MAX;
    };
    return numberParse(text, text + cross, pWidth) && numberParse(text + cross + 1, text + pText.size(), pHeight) &&
           within(pWidth) && within(pHeight);
}

bool znCCommandLine::settingParse(const std::string& pText, znCSetting& pSetting)
{
    const size_t dot = pText.find('.');
    const size_t equals = pText.find('=');
    if (dot == std::string::npos || equals == std::string::npos || dot == 0 || dot + 1 >= equals)
        return false;
    pSetting.mGroup = pText.substr(0, dot);
    pSetting.mKey = pText.substr(dot + 1, equals - dot - 1);
    pSetting.mValue = pText.substr(equals + 1);
    return pSetting.mValue.size() < S3E_CONFIG_STRING_MAX;
}

znCCommandLine::Outcome znCCommandLine::parse(int pCount, const char* const* pArguments)
{
    const char* const* end = pArguments + pCount;
    const char* const* own =
        std::find_if(pArguments, end, [](const char* pArgument) { return std::strcmp(pArgument, "--") == 0; });
    mOptions.mArguments.assign(own == end ? end : own + 1, end);

    CLI::App app("", "petrelmail");
    app.set_help_flag("--help");
    app.set_version_flag("--version", "The Petrel Mail " PETREL_VERSION);
    Texts texts;
    pathOptionsAdd(app, texts);
    pictureOptionsAdd(app, texts, mOptions);
    runOptionsAdd(app, texts, mOptions);
    try
    {
        app.parse(static_cast<int>(own - pArguments), pArguments);
    }
    catch (const CLI::Success& asked)
    {
        mText = dynamic_cast<const CLI::CallForVersion*>(&asked) != nullptr ? asked.what() : HELP;
        return Outcome::DONE;
    }
    catch (const CLI::Error& error)
    {
        mText = firstLine(error.what());
        return Outcome::WRONG;
    }
    textsApply(app, texts, mOptions);
    if (mOptions.mArguments.size() > ARGUMENTS_MAX)
    {
        mText = "at most 30 arguments may follow --";
        return Outcome::WRONG;
    }
    return Outcome::RUN;
}
