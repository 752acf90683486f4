#ifndef SRC_CGAMESPECIFICMAIN_H
#define SRC_CGAMESPECIFICMAIN_H

#include "znhogcore/src/znCHogCoreMain.h"

// The main object of The Petrel Mail: the hidden-object core plus what only this game has. It adds no state.
class CGameSpecificMain : public znCHogCoreMain
{
public:
    // Makes the one main object and starts everything up. With an instance present it logs "Already created." and
    // destroys that one first.
    static void create();
    ~CGameSpecificMain() override = default;

protected:
    // Opens the screen that the program's first argument names, a scene or a GUI file, so that an author sees it at
    // once; without one the first pictures.
    void firstGuiLoad() override;

private:
    CGameSpecificMain() = default;
    // Where the loader tells that data has changed, the scene opens anew.
    static void changesFollow();
    // The level that is played, or the scene that the program was started for, from its changed files.
    static void sceneReopen();
};

#endif
