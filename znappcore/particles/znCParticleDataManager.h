#ifndef ZNAPPCORE_PARTICLES_ZNCPARTICLEDATAMANAGER_H
#define ZNAPPCORE_PARTICLES_ZNCPARTICLEDATAMANAGER_H

#include "znappcore/particles/znCParticleData.h"

#include <map>
#include <string>

class znCResourceName;

// Reads each particle file once and shares what it says. A singleton that lives with the renderer.
class znCParticleDataManager
{
public:
    // A second call logs "Already created znCParticleDataManager.\n" and starts anew.
    static void create();
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znCParticleDataManager* instanceGet();
    static void destroy();

    // Never null; a missing file is logged and gives the default values.
    znCParticleDataPtr dataGet(const znCResourceName& pName);
    // Forgets everything, at a change of level. An emitter that still runs keeps its data.
    void levelDataClear() { mData.clear(); }

    znCParticleDataManager(const znCParticleDataManager&) = delete;
    znCParticleDataManager& operator=(const znCParticleDataManager&) = delete;

private:
    znCParticleDataManager() = default;

    std::map<std::string, znCParticleDataPtr> mData; // by resource name
};

#endif
