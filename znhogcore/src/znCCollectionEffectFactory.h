#ifndef ZNHOGCORE_SRC_ZNCCOLLECTIONEFFECTFACTORY_H
#define ZNHOGCORE_SRC_ZNCCOLLECTIONEFFECTFACTORY_H

// Decides what plays when something is collected. A singleton without state.

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

private:
    znCCollectionEffectFactory() = default;

    s32 visualEffectCreate(znCEntity& pEntity);
};

#endif
