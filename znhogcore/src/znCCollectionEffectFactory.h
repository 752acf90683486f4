#ifndef ZNHOGCORE_SRC_ZNCCOLLECTIONEFFECTFACTORY_H
#define ZNHOGCORE_SRC_ZNCCOLLECTIONEFFECTFACTORY_H

// Decides what plays when something is collected. A singleton without state.
//
// One visual effect on the spot, the first that there is material for: the animation base name + ".xml" of the level's
// folder; the particles "particles/PAR-" + key + ".txt", or for a piece of a minigame those of
// "particles/pMinigameCollectEffect.txt"; a fade of the picture. Besides, for listed things sparkles that fly to the
// list and sparkles that fly to the score; for bonus things the spinning picture and sparkles that fly to the score.
// Those two come with a sound, named by the application's settings "sfxCollectHOGList", "sfxCollectTrash" (bonus
// things) and "sfxCollectLostFound" ("audio/sfx/find.wav").

#include "zncore/znPoint.h"
#include "zncore/znTypes.h"

class znCEntity;

class znCCollectionEffectFactory
{
public:
    // A second call logs "Already created znCCollectionEffectFactory.\n" and starts anew.
    static void create();
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znCCollectionEffectFactory* instanceGet();
    static void destroy();

    // Starts the effects for the collected entity, which must stand in the tree. Answers how many will report by
    // "CollectionEffectComplete".
    s32 effectsCreate(znCEntity* pEntity);
    // Ends all effects that run in the level without a report, since what was collected is about to begin anew. Points
    // on their way to the score arrive at once.
    void effectsCancel();
    // The point, in device pixels, in the level's space. If there is none, it logs "Failed to convert coordinates.\n"
    // and gives the point as it came.
    znPoint localStartCoordGet(const znPoint& pWorldPoint);

private:
    znCCollectionEffectFactory() = default;

    s32 visualEffectCreate(znCEntity& pEntity);
    s32 flyingEffectsCreate(znCEntity& pEntity);
};

#endif
