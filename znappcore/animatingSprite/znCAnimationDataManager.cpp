#include "znappcore/animatingSprite/znCAnimationDataManager.h"

#include "znappcore/animatingSprite/znCAnimationFileReader.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"

namespace
{
std::unique_ptr<znCAnimationDataManager> sInstance;
}

void znCAnimationDataManager::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znCAnimationDataManager.\n");
    sInstance.reset(new znCAnimationDataManager());
}

znCAnimationDataManager* znCAnimationDataManager::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance.get();
}

void znCAnimationDataManager::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    sInstance.reset();
}

znCAnimationDataPtr znCAnimationDataManager::dataGet(const znCResourceName& pName, bool pHitMap)
{
    return dataGet(mLevelData, pName, pHitMap);
}

znCAnimationDataPtr znCAnimationDataManager::permanentDataGet(const znCResourceName& pName, bool pHitMap)
{
    return dataGet(mPermanentData, pName, pHitMap);
}

znCAnimationDataPtr znCAnimationDataManager::dataGet(DataMap& pMap, const znCResourceName& pName, bool pHitMap)
{
    znCAnimationDataPtr& data = pMap[pName.nameGet()];
    if (data == nullptr)
        data = znCAnimationFileReader(pName, pHitMap).read();
    return data;
}
