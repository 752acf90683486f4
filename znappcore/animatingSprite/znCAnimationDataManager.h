#ifndef ZNAPPCORE_ANIMATINGSPRITE_ZNCANIMATIONDATAMANAGER_H
#define ZNAPPCORE_ANIMATINGSPRITE_ZNCANIMATIONDATAMANAGER_H

#include "znappcore/animatingSprite/znCAnimationDataInstance.h"

#include <map>
#include <string>

class znCResourceName;

// Reads each animation file once and shares what it says. A singleton that lives with the renderer.
class znCAnimationDataManager
{
public:
    // A second call logs "Already created znCAnimationDataManager.\n" and starts anew.
    static void create();
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znCAnimationDataManager* instanceGet();
    static void destroy();

    // Never null; a file that can't be read gives data without frames. pHitMap counts only at the first use of a file.
    // Kept until the level changes.
    znCAnimationDataPtr dataGet(const znCResourceName& pName, bool pHitMap);
    // The same, kept until the end.
    znCAnimationDataPtr permanentDataGet(const znCResourceName& pName, bool pHitMap);
    // Forgets what dataGet() loaded, at a change of level. A sprite that still plays keeps its data.
    void levelDataClear() { mLevelData.clear(); }

    znCAnimationDataManager(const znCAnimationDataManager&) = delete;
    znCAnimationDataManager& operator=(const znCAnimationDataManager&) = delete;

private:
    using DataMap = std::map<std::string, znCAnimationDataPtr>; // by resource name

    znCAnimationDataManager() = default;

    static znCAnimationDataPtr dataGet(DataMap& pMap, const znCResourceName& pName, bool pHitMap);

    DataMap mLevelData;
    DataMap mPermanentData;
};

#endif
