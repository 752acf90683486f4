#ifndef ZNHOGCORE_COMPONENTS_ZNCHOGLEVELLOADERCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCHOGLEVELLOADERCOMPONENT_H

// Turns a scene folder into entities below the level that it is a component of. It exists for one load: the level adds
// it, calls load() and removes it.
//
// "coords.txt" of the folder lists the entities in drawing order, one a line: file name, x, y, separated by commas. x
// and y are scene pixels of the entity's centre. A line whose name contains "Background" starts a sub-scene, to which
// the lines up to the next background belong; the first line must be one. A line that can't be read is left out with
// one line in the log that names the file and the line; blank lines are no fault. Of things to find and keys that bear
// one and the same name all but the first are logged, and are called by that name with "#2", "#3" ... behind it.

#include "znappcore/znIComponent.h"

#include <string_view>
#include <vector>

class znCHogLevelLoaderComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCHogLevelLoaderComponent"};

    static constexpr const char* COORDS_FILE = "coords.txt";
    static constexpr std::size_t ENTITIES_MAX = 4000; // of one scene
    static constexpr std::size_t NAME_MAX_BYTES = 255;

    using znIComponent::znIComponent;

    // The whole load. pFolder ends in "/".
    void load(const std::string& pLevelName, const std::string& pFolder);

    // The new entities in file order, in no tree: they belong to the caller. Lines of the tutorial ("tutorial-" in the
    // name) make none.
    std::vector<znCEntity*> entitiesCreateFromCoordsFile(const std::string& pFolder);
    // Hands all entities to the tree. Those before the first background are logged, deleted and taken out of pEntities.
    void entitesAddToSubScenes(std::vector<znCEntity*>& pEntities);
    void subSceneCompInit(znCEntity* pEntity, s32 pIndex);

private:
    void texturePagesLoad(const std::string& pFolder);
    void imagesSet(const std::vector<znCEntity*>& pEntities, const std::string& pFolder);
    void twinsRename(const std::vector<znCEntity*>& pEntities, const std::string& pFolder);
    void doorsCheck(const std::vector<znCEntity*>& pEntities);
    void locksCheck(const std::vector<znCEntity*>& pEntities, const std::string& pFolder);
    void touchHitSpritesStore(const std::vector<znCEntity*>& pEntities);
    void postCollectionViewSet(const std::vector<znCEntity*>& pEntities);
    void particlesStart(const std::vector<znCEntity*>& pEntities);
};

#endif
