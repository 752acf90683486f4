#ifndef LOADER_ZNCTEXTDIALOG_H
#define LOADER_ZNCTEXTDIALOG_H

#include "loader/znCInputQueue.h"
#include "loader/znCScreen.h"
#include "loader/znIWindow.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// Asks the person for a text on a panel of the loader's own, over the game's window, for a device without a keyboard:
// the system shows its own keys. The one place where the loader waits for a person.
class znCTextDialog
{
public:
    // All must outlive the dialog. pFont: a TrueType file; without it the panel is shown without words.
    znCTextDialog(znIWindow& pWindow, znCScreen& pScreen, znCInputQueue& pQueue, const std::filesystem::path& pFont);

    // UTF-8, of letters up to U+FFFF. Enter ends it with the text; a press beside the panel calls it off, which answers
    // nothing. So does a request to quit, which stays in the queue.
    std::optional<std::string> ask(const std::string& pPrompt, const std::string& pDefault);
    // Releases, during the dialog, of what was pressed before it: whoever saw the press must see them.
    const std::vector<znCInputEvent>& lateReleasesGet() const { return mLateReleases; }

private:
    enum class State
    {
        OPEN,
        DONE,
        CALLED_OFF
    };

    State eventTake(const znCInputEvent& pEvent);
    void releaseKeep(const znCInputEvent& pEvent);
    void characterTake(u16 pUnit);
    void show(const std::string& pPrompt);
    void rectangleAdd(const float (&pCorners)[8], u32 pTexture, u32 pColour);
    void lineShow(const std::string& pText, float pX, float pY, s32 pSize, u32 pColour);
    s32 panelTopGet() const;
    s32 panelBottomGet() const;

    znIWindow& mWindow;
    znCScreen& mScreen;
    znCInputQueue& mQueue;
    std::filesystem::path mFont;
    std::string mText;
    std::vector<znCInputEvent> mPresses; // of keys, buttons and fingers, within the dialog
    std::vector<znCInputEvent> mLateReleases;
};

#endif
