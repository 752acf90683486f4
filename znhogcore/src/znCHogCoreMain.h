#ifndef ZNHOGCORE_SRC_ZNCHOGCOREMAIN_H
#define ZNHOGCORE_SRC_ZNCHOGCOREMAIN_H

// The middle of the main object: puts the hidden-object factories and dispatcher in place, and owns the one rule by
// which one screen follows another.
//
// A screen is a level, or a GUI file if its name contains ".txt". At most one is pending; it opens in the first frame
// in which neither the main menu nor a level stands any more. Whoever asks for a screen starts the fade at whose end
// the present one removes itself.
//
// The player never stands before an empty screen: a screen whose files are missing or make nothing gives a log line, and the
// main menu opens with a message; the same menu follows a screen behind which none was asked for.

#include "znappcore/src/znCAppCoreMain.h"
#include "znhogcore/src/znCProgressSaver.h"

class znCHogCoreMain : public znCAppCoreMain
{
public:
    static constexpr const char* FIRST_SCENE_KEY = "firstScene"; // of the application's settings
    static constexpr const char* MAP = "map";
    static constexpr const char* MAP_TO = "map->"; // and the level that the map is to offer
    static constexpr s32 SCREEN_FADE_MS = 500;     // of every change of screen, each way
    static constexpr const char* MAIN_MENU_FILE = "gui/mainMenu/mainMenu.txt";

    // As the base's; null without an instance of this class.
    static znCHogCoreMain* instanceGet();

    static bool guiFileNameGet(const std::string& pScreen); // whether the screen of that name is a GUI file

    // Makes pScreen the pending screen. The map with a target is just the map, which offers the target unless it has an
    // offer already; going to the very level that it offers takes the offer away.
    void nextScreenSet(const std::string& pScreen);
    // The same, and play continues there after the next start.
    void nextScreenAndCurrLevSet(const std::string& pScreen);
    // Starts the player's progress over and makes the first scene of the application's settings the pending screen.
    void firstSceneSet();
    // Called by a screen that goes away: if none is to follow, that is logged and the main menu does.
    void nextScreenEnsure();

    ~znCHogCoreMain() override = default;

protected:
    znCHogCoreMain() = default;

    void savedDataCreate() override;
    void messageDispatchersDestroy() override;
    void messageDispatchersCreate() override;
    void shutDownPrepare() override;
    void factoriesDestroy() override;
    void appUpdate(s32 pDeltaMs) override;
    void factoriesCreate() override;
    void suspendPrepare() override;
    virtual void gameComponentsRegister(); // for the game's own component types
    virtual void levelStart();             // opens the pending screen

private:
    void mapRuleApply();
    // False for a screen of which nothing stands.
    bool screenOpen(const std::string& pScreen);
    bool guiScreenOpen(const std::string& pFile);
    bool levelOpen(const std::string& pName);
    void missingScreenShow(const std::string& pScreen);

    znCProgressSaver mProgressSaver;
    std::string mNextScreen; // empty: none is pending
};

#endif
