#ifndef LOADER_ZNCLOADER_H
#define LOADER_ZNCLOADER_H

#include "loader/znCClock.h"
#include "loader/znCConfig.h"
#include "loader/znCDevice.h"
#include "loader/znCFiles.h"
#include "loader/znCFolderWatch.h"
#include "loader/znCFramePacer.h"
#include "loader/znCGlContext.h"
#include "loader/znCInputQueue.h"
#include "loader/znCKeyboard.h"
#include "loader/znCModule.h"
#include "loader/znCMusicPlayer.h"
#include "loader/znCOptions.h"
#include "loader/znCPointer.h"
#include "loader/znCRecorder.h"
#include "loader/znCReplayer.h"
#include "loader/znCSamplePlayer.h"
#include "loader/znCScreen.h"
#include "loader/znCScriptPlayer.h"
#include "loader/znCShotWriter.h"
#include "loader/znCUrlOpener.h"
#include "loader/znIWindow.h"

#include <memory>
#include <optional>
#include <string>

// One run of the program: makes the services that the options ask for, opens the module and runs it. At most one at a
// time, since the function table has no place for a second.
class znCLoader
{
public:
    static constexpr s32 EXIT_CANNOT_START = 2;

    // pProgramFolder: where the program lies; the module lies beside it.
    znCLoader(const znCOptions& pOptions, const std::filesystem::path& pProgramFolder);
    ~znCLoader();

    // The exit status: the module's, or EXIT_CANNOT_START after one line on standard error.
    s32 run();

    // --- for the function table; all of it exists while the module runs ---

    // s3eDeviceYield: the boundary between two frames. Moves the clock on and hands out what happened.
    void frameBoundary(s32 pMs);
    // s3eOSReadString, from the recording, the script or standard input; nothing: called off.
    std::optional<std::string> textAsk(const std::string& pPrompt, const std::string& pDefault);
    // s3eOSExec
    bool urlOpen(const std::string& pUrl, bool pExit);

    bool isWatching() const { return mOptions.mWatch; }
    // Of petrelAuthor.
    void changeCallbackSet(s3eCallback pCallback, void* pUserData);

    const znCClock& clockGet() const { return *mClock; }
    const znCConfig& configGet() const { return mConfig; }
    znCDevice& deviceGet() { return mDevice; }
    znCKeyboard& keyboardGet() { return *mKeyboard; }
    znCPointer& pointerGet() { return *mPointer; }
    znCFiles& filesGet() { return *mFiles; }
    znIWindow& windowGet() { return *mWindow; }
    znCScreen& screenGet() { return *mScreen; }
    znIAudioDevice& audioGet() { return *mAudio; }
    znCMusicPlayer& musicGet() { return *mMusic; }
    znCSamplePlayer& samplesGet() { return *mSamples; }

private:
    // Steps of the start; each answers false with a sentence in mError.
    bool recordingRead();
    bool dataFolderFind();
    bool scriptRead();
    bool shotsPrepare();
    bool servicesMake();
    bool windowOpen();
    bool audioOpen();
    bool recordingStart();
    bool watchStart();

    std::filesystem::path userFolderGet() const;
    bool displayModesChoose(znCDisplayModes& pModes);
    void pace(s32 pMs);
    void liveFrameTake();
    void replayedFrameTake();
    void changeReport();
    void eventDeliver(const znCInputEvent& pEvent);
    std::optional<std::string> liveTextAsk(const std::string& pPrompt, const std::string& pDefault);
    void shotTake(const std::string& pName);

    znCOptions mOptions;
    std::filesystem::path mProgramFolder;
    std::string mError;
    znCConfig mConfig;
    znCDevice mDevice;
    znCInputQueue mQueue;
    std::vector<znCInputEvent> mLateReleases; // that a text dialog saw; the module sees them in the next frame
    znCInputScript mScript;
    znCShotWriter mShots;
    znCFolderWatch mWatch;
    s3eCallback mChangeCallback = nullptr;
    void* mChangeUserData = nullptr; // the module's
    znCModule mModule;
    znCRecorder mRecorder;
    std::optional<znCReplayer> mReplayer;
    std::optional<znCScriptPlayer> mScriptPlayer;
    std::optional<znCClock> mClock;
    std::optional<znCKeyboard> mKeyboard;
    std::optional<znCPointer> mPointer;
    std::optional<znCFiles> mFiles;
    std::optional<znCFramePacer> mPacer;
    std::optional<znCUrlOpener> mUrlOpener;
    std::unique_ptr<znCGlContext> mContext; // outlives the two below
    std::unique_ptr<znIWindow> mWindow;
    std::unique_ptr<znCScreen> mScreen;
    std::unique_ptr<znIAudioDevice> mAudio; // outlives the two below
    std::optional<znCMusicPlayer> mMusic;
    std::optional<znCSamplePlayer> mSamples;
    std::vector<znCInputEvent> mEvents; // of the current frame
    u64 mFrames = 0;                    // boundaries so far
};

#endif
