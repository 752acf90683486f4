#ifndef ZNHOGCORE_SRC_ZNCHOGMAPLEVEL_H
#define ZNHOGCORE_SRC_ZNCHOGMAPLEVEL_H

// The map, a level of the folder "scenes/map/". What can be seen and pressed on it follows from the player's data, anew
// at each opening; nothing on it is saved.
//
// Its entities belong to a scene by name: "NAV-" + scene is the place to press, "MASK-" + scene + "-g" glows at the
// scene on offer, "-p" shows the medal of a visited scene and "-r" its overlay. Captions are the localised strings
// scene + "RO" and, for the doors of the map's close-ups, base name + "RO".
//
// Keys of its table: scene + "Override", the level to open instead of the scene on offer.

#include "znappcore/components/gui/znCRollOverGui.h"
#include "znhogcore/znIHogLevel.h"

class znCHogMapLevel : public znIHogLevel
{
public:
    static constexpr const char* GOLD = "gold";
    static constexpr const char* REVEAL_ALL = "revealAll"; // as the offer: all places show, without medals

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void update(s32 pDeltaMs) override;
    void postLoadDo() override;

    // The level that the place on offer opens; empty if there is none.
    std::string nextLevelResolve() const;
    // "gold", "silver" or "bronze", for how much of the level's two kinds of bonus items is found. A level that was
    // never opened has nothing to find.
    static std::string medalGet(const std::string& pLevel);

private:
    void spritesSet();
    void placeSet(znCEntity* pEntity, const std::string& pScene);
    void maskSet(znCEntity* pEntity, const std::string& pBaseName, const std::string& pScene);
    void medalSet(znCEntity* pEntity, const std::string& pScene);
    void rollOversSet();
    void popUpOpen(const std::string& pTarget);

    s32 mGlowTimeMs = 0;
    bool mRevealAll = false;
    znCEntity* mGlowEntity = nullptr; // owned by the tree
    std::vector<znCRollOverGui::Entry> mRollOvers;
};

#endif
