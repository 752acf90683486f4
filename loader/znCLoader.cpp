#include "loader/znCLoader.h"

#include "loader/znCFunctionTable.h"
#include "loader/znCSdlAudioDevice.h"
#include "loader/znCSdlWindow.h"
#include "loader/znCSilentAudioDevice.h"
#include "loader/znCTextDialog.h"
#include "loader/znCVirtualWindow.h"
#include "loader/znNReport.h"

#include <cstdlib>
#include <iostream>

namespace fs = std::filesystem;

namespace
{
constexpr const char* DIALOG_FONT = "fonts/clarendon.ttf";
constexpr const char* TITLE = "The Petrel Mail";
constexpr const char* MODULE = "libpetrelmail.so";
constexpr const char* SETTINGS_FILE = "appsettings.txt"; // what tells a data folder
constexpr s32 DEFAULT_WIDTH = 1024;
constexpr s32 DEFAULT_HEIGHT = 768;
constexpr s32 SUSPENDED_IDLE_MS = 50;

u64 wallClockMs()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return static_cast<u64>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

std::string environmentGet(const char* pName)
{
    const char* value = std::getenv(pName);
    return value == nullptr ? "" : value;
}
} // namespace

znCLoader::znCLoader(const znCOptions& pOptions, const fs::path& pProgramFolder)
    : mOptions(pOptions), mProgramFolder(pProgramFolder)
{
}

znCLoader::~znCLoader() = default;

s32 znCLoader::run()
{
    const bool started = recordingRead() && dataFolderFind() && scriptRead() && shotsPrepare() &&
                         mModule.open(mProgramFolder / MODULE, mError) && servicesMake() && windowOpen() &&
                         audioOpen() && recordingStart() && watchStart();
    if (!started)
    {
        znNReport::lineWrite("%s", mError.c_str());
        return EXIT_CANNOT_START;
    }
    return mModule.run(znCFunctionTable::build(*this));
}

bool znCLoader::recordingRead()
{
    if (mOptions.mReplay.empty())
        return true;
    mReplayer.emplace();
    if (!mReplayer->read(mOptions.mReplay, mError))
        return false;
    mReplayer->headerGet().optionsApply(mOptions);
    return true;
}

bool znCLoader::dataFolderFind()
{
    std::error_code error;
    if (!mOptions.mDataFolder.empty() && fs::is_directory(mOptions.mDataFolder, error))
        return true;
    if (!mOptions.mDataFolder.empty())
    {
        mError = "there is no data folder " + mOptions.mDataFolder.string();
        return false;
    }
    std::vector<fs::path> places = {mProgramFolder / "../share/petrelmail/data"};
    for (fs::path above = mProgramFolder; above.has_relative_path(); above = above.parent_path())
        places.push_back(above / "data"); // a program that was built in its source tree
    for (const fs::path& place : places)
        if (fs::is_regular_file(place / SETTINGS_FILE, error))
        {
            mOptions.mDataFolder = place;
            return true;
        }
    mError =
        "cannot find the game's data (a folder with " + std::string(SETTINGS_FILE) + "); --data DIR tells where it is";
    return false;
}

fs::path znCLoader::userFolderGet() const
{
    if (!mOptions.mUserFolder.empty())
        return mOptions.mUserFolder;
    const fs::path dataHome = environmentGet("XDG_DATA_HOME");
    return (dataHome.is_absolute() ? dataHome : fs::path(environmentGet("HOME")) / ".local/share") / "petrelmail";
}

bool znCLoader::scriptRead()
{
    return mOptions.mScript.empty() || mScript.read(mOptions.mScript, mError);
}

bool znCLoader::shotsPrepare()
{
    if (!mOptions.mShots.empty())
        return mShots.folderSet(mOptions.mShots, mError);
    if (mScript.takesShots())
        mError = "the script takes shots: --shots DIR tells where they go";
    return mError.empty();
}

bool znCLoader::servicesMake()
{
    if (mOptions.mWidth == 0)
    {
        mOptions.mWidth = DEFAULT_WIDTH;
        mOptions.mHeight = DEFAULT_HEIGHT;
    }
    if (!mOptions.mSeed.has_value())
        mOptions.mSeed = mOptions.mStepMs > 0 ? 0 : wallClockMs();
    mConfig.optionsApply(mOptions);
    mClock.emplace(*mOptions.mSeed, mOptions.mStepMs);
    mKeyboard.emplace(!mOptions.mTouch);
    mPointer.emplace(mOptions.mTouch);
    mFiles.emplace(mOptions.mDataFolder, userFolderGet());
    mUrlOpener.emplace(mOptions.mHeadless || mReplayer.has_value());
    if (!mOptions.mScript.empty())
        mScriptPlayer.emplace(mScript, mOptions.mTouch, [this](const std::string& pName) { shotTake(pName); });
    return true;
}

bool znCLoader::displayModesChoose(znCDisplayModes& pModes)
{
    if (mOptions.mTouch)
        return true;
    if (!mOptions.mDisplayModes.empty())
        return pModes.textParse(mOptions.mDisplayModes);
    if (const std::string* wished = mConfig.valueGet("s3e", "DisplayModes"))
    {
        if (!pModes.textParse(*wished))
            mError = "s3e.DisplayModes is \"" + *wished + "\", not a list such as 800x600,1024x768x32";
        return mError.empty();
    }
    if (mOptions.mHeadless)
        pModes.textParse(znCVirtualWindow::MODES);
    else
        pModes = znCSdlWindow::displayModesGet();
    if (!pModes.holds(mOptions.mWidth, mOptions.mHeight))
        pModes.modeAdd(mOptions.mWidth, mOptions.mHeight, 32, 0);
    return true;
}

bool znCLoader::windowOpen()
{
    const auto kind = mOptions.mHeadless ? znCGlContext::Kind::OFFSCREEN : znCGlContext::Kind::WINDOW;
    const bool upright = mOptions.mTouch && mOptions.mWidth < mOptions.mHeight;
    mContext = std::make_unique<znCGlContext>();
    znCDisplayModes modes;
    if (!mContext->create(kind, TITLE, upright ? mOptions.mHeight : mOptions.mWidth,
                          upright ? mOptions.mWidth : mOptions.mHeight, mError) ||
        !displayModesChoose(modes))
        return false;
    if (mOptions.mHeadless)
        mWindow = std::make_unique<znCVirtualWindow>(mOptions.mWidth, mOptions.mHeight, mOptions.mTouch, modes);
    else
    {
        auto window = std::make_unique<znCSdlWindow>(mContext->windowGet(), mOptions.mWidth, mOptions.mHeight,
                                                     mOptions.mTouch, modes);
        window->displayWaitSet(!mClock->isVirtual());
        mWindow = std::move(window);
    }
    mPacer.emplace(mWindow->refreshGet());
    mScreen = std::make_unique<znCScreen>(mContext->glGet(), *mWindow, mOptions.mHeadless || mScript.takesShots());
    mError = mScreen->errorGet();
    return mError.empty();
}

bool znCLoader::audioOpen()
{
    const std::string* wished = mConfig.valueGet("s3e", "Sound");
    if (wished != nullptr && *wished != "0" && *wished != "1")
    {
        mError = "s3e.Sound is \"" + *wished + "\", not 0 or 1";
        return false;
    }
    // Frames of a virtual clock take no time, so what they would play could not be heard.
    const bool sounds = wished != nullptr ? *wished == "1" : !mOptions.mHeadless && !mClock->isVirtual();
    std::string error;
    if (sounds && (mAudio = znCSdlAudioDevice::open(error)) == nullptr)
        znNReport::lineWrite("there is no sound: %s", error.c_str());
    if (mAudio == nullptr)
        mAudio = std::make_unique<znCSilentAudioDevice>();
    mMusic.emplace(*mFiles, *mAudio);
    mSamples.emplace(*mAudio);
    return true;
}

bool znCLoader::recordingStart()
{
    if (mOptions.mRecord.empty())
        return true;
    znCRecordingHeader header;
    header.mStartMs = *mOptions.mSeed;
    header.mStepMs = mOptions.mStepMs;
    header.mWidth = mOptions.mWidth;
    header.mHeight = mOptions.mHeight;
    header.mTouch = mOptions.mTouch;
    header.mDisplayModes = mWindow->modesGet().textGet();
    header.mArguments = mOptions.mArguments;
    if (mOptions.mFullScreen.has_value())
        header.mSettings.push_back({"s3e", "FullScreen", *mOptions.mFullScreen ? "1" : "0"});
    header.mSettings.insert(header.mSettings.end(), mOptions.mSettings.begin(), mOptions.mSettings.end());
    return mRecorder.open(mOptions.mRecord, header, mError);
}

bool znCLoader::watchStart()
{
    return !mOptions.mWatch || mWatch.open(mOptions.mDataFolder, mError);
}

void znCLoader::changeCallbackSet(s3eCallback pCallback, void* pUserData)
{
    mChangeCallback = pCallback;
    mChangeUserData = pUserData;
}

void znCLoader::changeReport()
{
    if (mOptions.mWatch && mWatch.changeTake() && mChangeCallback != nullptr)
        mChangeCallback(nullptr, mChangeUserData);
}

void znCLoader::pace(s32 pMs)
{
    if (mClock->isVirtual() || (mReplayer.has_value() && mOptions.mHeadless))
        return;
    if (mDevice.isSuspended())
        return mWindow->idle(SUSPENDED_IDLE_MS);
    if (pMs > 0)
        mWindow->idle(pMs);
    mPacer->wait();
}

void znCLoader::liveFrameTake()
{
    mWindow->eventsPump(mQueue);
    mClock->advance();
    if (mScriptPlayer.has_value() && mScriptPlayer->isAtEnd() && mOptions.mHeadless)
        mQueue.eventAdd({.mKind = znCInputEvent::Kind::QUIT});
    else if (mScriptPlayer.has_value())
        mScriptPlayer->frameRun(mClock->timeGet(), mQueue);
    mQueue.frameTake(mEvents);
    mEvents.insert(mEvents.begin(), mLateReleases.begin(), mLateReleases.end());
    mLateReleases.clear();
}

void znCLoader::replayedFrameTake()
{
    // Of what happens now only the wish to end counts.
    mWindow->eventsPump(mQueue);
    mQueue.frameTake(mEvents);
    const znCInputEvent quit = {.mKind = znCInputEvent::Kind::QUIT};
    const bool quits = std::find(mEvents.begin(), mEvents.end(), quit) != mEvents.end();
    mEvents.clear();
    u64 now = mClock->timeGet();
    if (!mReplayer->frameTake(now, mEvents) || quits)
        mEvents.push_back(quit);
    mClock->timeSet(now);
}

void znCLoader::frameBoundary(s32 pMs)
{
    pace(pMs);
    if (mReplayer.has_value())
        replayedFrameTake();
    else
        liveFrameTake();
    if (mOptions.mFrameLimit > 0 && mFrames >= mOptions.mFrameLimit)
        mEvents.push_back({.mKind = znCInputEvent::Kind::QUIT});
    ++mFrames;
    mRecorder.frameAdd(mClock->timeGet());
    for (const znCInputEvent& event : mEvents)
    {
        mRecorder.eventAdd(event);
        eventDeliver(event);
    }
    changeReport();
}

void znCLoader::eventDeliver(const znCInputEvent& pEvent)
{
    switch (pEvent.mKind)
    {
    case znCInputEvent::Kind::KEY:
        return mKeyboard->keyApply(pEvent);
    case znCInputEvent::Kind::CHARACTER:
        return mKeyboard->characterApply(pEvent);
    case znCInputEvent::Kind::SUSPEND:
        return mDevice.suspend();
    case znCInputEvent::Kind::RESUME:
        return mDevice.resume();
    case znCInputEvent::Kind::QUIT:
        return mDevice.quitRequest();
    default:
        return mPointer->eventApply(pEvent);
    }
}

std::optional<std::string> znCLoader::textAsk(const std::string& pPrompt, const std::string& pDefault)
{
    const std::optional<std::string> answer =
        mReplayer.has_value() ? mReplayer->answerTake() : liveTextAsk(pPrompt, pDefault);
    mRecorder.answerAdd(answer);
    return answer;
}

std::optional<std::string> znCLoader::liveTextAsk(const std::string& pPrompt, const std::string& pDefault)
{
    std::string text;
    if (mScriptPlayer.has_value())
    {
        if (mScriptPlayer->textTake(text))
            return text;
        znNReport::lineWrite("asked for a text (%s), but the script doesn't type one", pPrompt.c_str());
        return std::nullopt;
    }
    if (!mOptions.mHeadless)
    {
        znCTextDialog dialog(*mWindow, *mScreen, mQueue, mOptions.mDataFolder / DIALOG_FONT);
        const std::optional<std::string> answer = dialog.ask(pPrompt, pDefault);
        mLateReleases = dialog.lateReleasesGet();
        return answer;
    }
    std::cout << pPrompt << " [" << pDefault << "]: " << std::flush;
    if (!std::getline(std::cin, text))
        return std::nullopt;
    return text.empty() ? pDefault : text;
}

bool znCLoader::urlOpen(const std::string& pUrl, bool pExit)
{
    if (pExit)
        mDevice.quitRequest();
    return mUrlOpener->open(pUrl);
}

void znCLoader::shotTake(const std::string& pName)
{
    const s32 width = mScreen->widthGet();
    const s32 height = mScreen->heightGet();
    std::vector<u8> pixels(static_cast<size_t>(width) * static_cast<size_t>(height) * 4);
    if (mScreen->presentedGet() > 0 && mScreen->pixelsRead(0, 0, width, height, pixels.data()))
        mShots.shotWrite(pName, width, height, pixels);
    else
        znNReport::lineWrite("no picture for the shot %s: no frame was drawn yet", pName.c_str());
}
