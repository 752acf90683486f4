#include "znappcore/particles/znCParticleDataManager.h"

#include "znappcore/particles/znCParticleFileReader.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"

namespace
{
std::unique_ptr<znCParticleDataManager> sInstance;
}

void znCParticleDataManager::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znCParticleDataManager.\n");
    sInstance.reset(new znCParticleDataManager());
}

znCParticleDataManager* znCParticleDataManager::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance.get();
}

void znCParticleDataManager::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    sInstance.reset();
}

znCParticleDataPtr znCParticleDataManager::dataGet(const znCResourceName& pName)
{
    znCParticleDataPtr& data = mData[pName.nameGet()];
    if (data == nullptr)
        data = znCParticleFileReader(pName).read();
    return data;
}
