#include "znhogcore/components/znCHogLevelLoaderComponent.h"

#include "znappcore/components/znCAnimatingSpriteComponent.h"
#include "znappcore/components/znCParticleEmitterComponent.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "zncore/znNByteOrderMark.h"
#include "zncore/znNCoreUtils.h"
#include "znhogcore/components/znCBonusComponent.h"
#include "znhogcore/components/znCBonusSilhouetteComponent.h"
#include "znhogcore/components/znCDraggableKeyComponent.h"
#include "znhogcore/components/znCLockComponent.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/components/znCSubSceneNavigateComponent.h"
#include "znhogcore/components/znCTappableCollectableComponent.h"
#include "znhogcore/components/znCTaskComponent.h"
#include "znhogcore/src/znCHogEntityFactory.h"
#include "znhogcore/znIHogLevel.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <set>

namespace
{
constexpr char TEXTURE_PAGE[] = "texturePage";
constexpr char TABLE_EXTENSION[] = ".txt";
constexpr char PARTICLES_FOLDER[] = "particles/";
constexpr char COMMON_MARK[] = "CMN-";
constexpr char COMMON_FOLDER[] = "common/";
constexpr std::string_view TUTORIAL_MARK = "tutorial-";
constexpr std::string_view BACKGROUND_MARK = "Background";
constexpr char SUB_SCENE_NAME[] = "SubScene"; // and the index
constexpr char POST_COLLECTION_VISIBLE[] = "postCollectionVisible";
constexpr char POST_COLLECTION_MARKER[] = "postCollectionVisibleMarker";
constexpr char DIFFERENCE_FOUND_MARKER[] = "diffFoundMarker";
constexpr char TWIN_MARK = '#'; // and a number
constexpr std::string_view BLANKS = " \t\r";

// An animation that is missing just shows nothing, which helps no author.
void animationSet(znCAnimatingSpriteComponent& pComponent, const znCResourceName& pFile)
{
    if (!znIFile::existsGet(pFile))
        ZN_LOG("There is no animation %s.\n", pFile.nameGet().c_str());
    pComponent.xmlLoad(pFile, false);
}

znCResourceName dataNameGet(const std::string& pFile)
{
    return znCResourceName(pFile, znCResourceName::GAME_DATA);
}

// Cuts the text before the first pEnd off the front, pEnd with it; everything if there is none.
std::string_view cut(std::string_view& pText, char pEnd)
{
    const std::string_view result = pText.substr(0, pText.find(pEnd));
    pText.remove_prefix(std::min(pText.size(), result.size() + 1));
    return result;
}

std::string_view trimmed(std::string_view pText)
{
    const std::size_t begin = pText.find_first_not_of(BLANKS);
    if (begin == std::string_view::npos)
        return {};
    return pText.substr(begin, pText.find_last_not_of(BLANKS) - begin + 1);
}

// A decimal integer and nothing else. What doesn't fit is no coordinate of anything that could be seen.
bool numberRead(std::string_view pText, s32& pNumber)
{
    std::string_view digits = trimmed(pText);
    if (digits.starts_with('+') && !digits.starts_with("+-"))
        digits.remove_prefix(1);
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, pNumber);
    return !digits.empty() && stop == end && error == std::errc();
}

// One line of the list.
struct Placement
{
    std::string mName;
    znPoint mPos = znPoint(0, 0);
};

// What is wrong with the line; null if it was read.
const char* placementRead(std::string_view pLine, Placement& pPlacement)
{
    const std::string_view name = trimmed(cut(pLine, ','));
    const bool hasFields = pLine.find(',') != std::string_view::npos;
    const std::string_view x = cut(pLine, ',');
    if (name.empty() || !hasFields)
        return "three fields are expected, 'EntName.png,posX,posY'";
    if (name.size() > znCHogLevelLoaderComponent::NAME_MAX_BYTES)
        return "the name is too long";
    if (name.find('\0') != std::string_view::npos)
        return "the name is no text";
    if (!numberRead(x, pPlacement.mPos.mX) || !numberRead(pLine, pPlacement.mPos.mY))
        return "x and y must be whole numbers";
    pPlacement.mName = name;
    return nullptr;
}

bool nameContains(const std::string& pName, std::string_view pMark)
{
    return pName.find(pMark) != std::string::npos;
}

bool isKey(const znCEntity& pEntity)
{
    return pEntity.componentGet(znCDraggableKeyComponent::TYPE) != nullptr;
}

bool isBackground(const std::string& pName)
{
    return nameContains(pName, BACKGROUND_MARK);
}

// Of a level whose collected objects stay on view.
bool staysOnView(const znCEntity& pEntity)
{
    if (pEntity.componentGet(znCTaskComponent::TYPE) != nullptr)
        return true;
    return pEntity.componentGet(znCTappableCollectableComponent::TYPE) != nullptr &&
           pEntity.componentGet(znCBonusComponent::TYPE) == nullptr &&
           pEntity.componentGet(znCBonusSilhouetteComponent::TYPE) == nullptr;
}

znCEntity* entityMake(const Placement& pPlacement, const std::string& pFolder)
{
    znCEntity* entity = znCHogEntityFactory::instanceGet()->entityConstruct(pPlacement.mName);
    if (entity == nullptr)
        ZN_LOG("Couldn't construct %s in %s \r\n", pPlacement.mName.c_str(), pFolder.c_str());
    else
        entity->posSet(pPlacement.mPos);
    return entity;
}

// Null for a line that makes no entity.
znCEntity* entryRead(std::string_view pEntry, bool pEnded, const std::string& pFolder, s32 pLine)
{
    if (pEntry.empty())
        return nullptr;
    Placement placement;
    if (const char* fault = placementRead(pEntry, placement))
    {
        ZN_LOG("%s%s line %d: %s; the entry is left out.\n", pFolder.c_str(), znCHogLevelLoaderComponent::COORDS_FILE,
               pLine, fault);
        return nullptr;
    }
    ZN_ASSERT(pEnded, "Expecting coods file in the format 'EntName.png,posX,posY\n' per entry.\n");
    if (!pEnded)
        ZN_LOG("%s%s line %d has no line end.\n", pFolder.c_str(), znCHogLevelLoaderComponent::COORDS_FILE, pLine);
    return nameContains(placement.mName, TUTORIAL_MARK) ? nullptr : entityMake(placement, pFolder);
}

znPoint differenceGet(const znPoint& pTo, const znPoint& pFrom)
{
    return znPoint(znNCoreUtils::s32Saturate(s64(pTo.mX) - pFrom.mX),
                   znNCoreUtils::s32Saturate(s64(pTo.mY) - pFrom.mY));
}

std::string imagePathGet(const std::string& pNodeName, const std::string& pFolder)
{
    const std::size_t common = pNodeName.find(COMMON_MARK);
    if (common == std::string::npos)
        return pFolder + pNodeName;
    return COMMON_FOLDER + pNodeName.substr(common + sizeof(COMMON_MARK) - 1);
}
} // namespace

void znCHogLevelLoaderComponent::load(const std::string&, const std::string& pFolder)
{
    texturePagesLoad(pFolder);
    std::vector<znCEntity*> entities = entitiesCreateFromCoordsFile(pFolder);
    imagesSet(entities, pFolder);
    twinsRename(entities, pFolder);
    entitesAddToSubScenes(entities);
    doorsCheck(entities);
    locksCheck(entities, pFolder);
    touchHitSpritesStore(entities);
    postCollectionViewSet(entities);
    particlesStart(entities);
}

void znCHogLevelLoaderComponent::texturePagesLoad(const std::string& pFolder)
{
    for (s32 number = 0;; ++number)
    {
        const znCResourceName page = dataNameGet(pFolder + TEXTURE_PAGE + std::to_string(number) + TABLE_EXTENSION);
        if (!znIFile::existsGet(page))
            return;
        znCBrushManager::instanceGet()->texturePageLoad(page, true);
    }
}

std::vector<znCEntity*> znCHogLevelLoaderComponent::entitiesCreateFromCoordsFile(const std::string& pFolder)
{
    const std::string file = pFolder + COORDS_FILE;
    const std::string text = znNCoreUtils::strGetFromFile(dataNameGet(file));
    std::vector<znCEntity*> entities;
    std::string_view rest = znNByteOrderMark::cut(text);
    for (s32 line = 1; !rest.empty(); ++line)
    {
        if (entities.size() >= ENTITIES_MAX)
        {
            ZN_LOG("%s line %d: a scene has at most %zu entities; the rest is left out.\n", file.c_str(), line,
                   ENTITIES_MAX);
            break;
        }
        const bool ended = rest.find('\n') != std::string_view::npos;
        if (znCEntity* entity = entryRead(trimmed(cut(rest, '\n')), ended, pFolder, line))
            entities.push_back(entity);
    }
    return entities;
}

void znCHogLevelLoaderComponent::imagesSet(const std::vector<znCEntity*>& pEntities, const std::string& pFolder)
{
    for (znCEntity* entity : pEntities)
    {
        if (auto* sprite = entity->componentGet<znCSpriteComponent>())
        {
            const znCResourceName image = dataNameGet(imagePathGet(entity->nameGet(), pFolder));
            sprite->brushSet(znCBrushManager::instanceGet()->brushGet(image, true));
        }
        else if (auto* animation = entity->componentGet<znCAnimatingSpriteComponent>())
            animationSet(*animation, dataNameGet(pFolder + entity->nameGet()));
    }
}

void znCHogLevelLoaderComponent::entitesAddToSubScenes(std::vector<znCEntity*>& pEntities)
{
    znCEntity* background = nullptr;
    s32 index = 0;
    for (znCEntity*& entity : pEntities)
    {
        if (isBackground(entity->nameGet()))
        {
            background = entity;
            mEntity->childAdd(background);
            subSceneCompInit(background, index);
            ++index;
            continue;
        }
        ZN_ASSERT(background != nullptr, "Expected first entity in the scene to be a background.\n");
        if (background == nullptr)
        {
            delete entity;
            entity = nullptr;
            continue;
        }
        // The file has scene coordinates.
        entity->posSet(differenceGet(entity->posGet(), background->posGet()));
        background->childAdd(entity);
    }
    std::erase(pEntities, nullptr);
}

void znCHogLevelLoaderComponent::subSceneCompInit(znCEntity* pEntity, s32 pIndex)
{
    pEntity->nameSet(SUB_SCENE_NAME + std::to_string(pIndex));
    auto* subScene = pEntity->componentGet<znCSubSceneComponent>();
    ZN_ASSERT(subScene != nullptr, "Expected a sub-scene component on a Background entity.\n");
    if (subScene != nullptr)
        subScene->initialise(pIndex);
    pEntity->activeSet(pIndex == 0);
}

// A close-up lies over those before it, so a door back would open something that nobody sees.
void znCHogLevelLoaderComponent::doorsCheck(const std::vector<znCEntity*>& pEntities)
{
    const auto isSubScene = [](const znCEntity* pEntity)
    {
        return pEntity->componentGet(znCSubSceneComponent::TYPE) != nullptr;
    };
    const auto subScenes = static_cast<s32>(std::count_if(pEntities.begin(), pEntities.end(), isSubScene));
    s32 index = -1; // of the sub-scene that the entity stands in
    for (const znCEntity* entity : pEntities)
    {
        index += isSubScene(entity) ? 1 : 0;
        const auto* door = entity->componentGet<znCSubSceneNavigateComponent>();
        const s32 target = door != nullptr ? door->targetIndexGet() : 0;
        if (target >= subScenes)
            ZN_LOG("%s: there is no close-up %d.\n", entity->nameGet().c_str(), target);
        else if (target > 0 && target <= index)
            ZN_LOG("%s stands in close-up %d, which lies over close-up %d: a door leads on to a later close-up only.\n",
                   entity->nameGet().c_str(), index, target);
    }
}

// Finds report, keys are dropped and states are stored under the node's name: of two things with one name the wrong one
// would answer.
void znCHogLevelLoaderComponent::twinsRename(const std::vector<znCEntity*>& pEntities, const std::string& pFolder)
{
    std::map<std::string, s32> counts; // of the entities by name
    for (znCEntity* entity : pEntities)
    {
        if (!isKey(*entity) && entity->componentFind<znICollectableComponent>() == nullptr)
            continue;
        const std::string name = entity->nameGet();
        const s32 count = ++counts[name];
        if (count == 1)
            continue;
        ZN_LOG("%s%s names %s more than once: only a tail \"-m1\" to \"-m9\" tells two placements apart.\n",
               pFolder.c_str(), COORDS_FILE, name.c_str());
        entity->nameSet(name + TWIN_MARK + std::to_string(count));
    }
}

// A key is dropped in the sub-scene that it lies in, so a lock elsewhere never gets it.
void znCHogLevelLoaderComponent::locksCheck(const std::vector<znCEntity*>& pEntities, const std::string& pFolder)
{
    using KeysByPlace = std::set<std::pair<std::string, std::string>>; // name of the sub-scene, key
    KeysByPlace lying;
    KeysByPlace needed;
    for (const znCEntity* entity : pEntities)
    {
        if (isKey(*entity))
            lying.emplace(entity->parentGet()->nameGet(), znCNameComponent::get(entity)->keyGet());
        if (const auto* lock = entity->componentGet<znCLockComponent>())
            for (const std::string& key : lock->keysGet())
                needed.emplace(entity->parentGet()->nameGet(), key);
    }
    for (const auto& [subScene, key] : needed)
        if (!lying.contains({subScene, key}))
            ZN_LOG("%s%s: a lock in %s needs the key \"%s\", which doesn't lie there.\n", pFolder.c_str(), COORDS_FILE,
                   subScene.c_str(), key.c_str());
    for (const auto& [subScene, key] : lying)
        if (!needed.contains({subScene, key}))
            ZN_LOG("%s%s: no lock in %s needs the key \"%s\".\n", pFolder.c_str(), COORDS_FILE, subScene.c_str(),
                   key.c_str());
}

// A door has its own.
void znCHogLevelLoaderComponent::particlesStart(const std::vector<znCEntity*>& pEntities)
{
    for (znCEntity* entity : pEntities)
    {
        auto* emitter = entity->componentGet<znCParticleEmitterComponent>();
        if (emitter != nullptr && emitter->emitterGet() != nullptr)
            continue;
        const znCNameComponent* name = emitter != nullptr ? znCNameComponent::get(entity) : nullptr;
        if (name != nullptr)
            emitter->initialise(dataNameGet(PARTICLES_FOLDER + name->keyGet() + TABLE_EXTENSION));
    }
}

void znCHogLevelLoaderComponent::touchHitSpritesStore(const std::vector<znCEntity*>& pEntities)
{
    for (znCEntity* entity : pEntities)
        if (auto* tappable = entity->componentGet<znCTappableCollectableComponent>())
            tappable->touchHitSpriteStore();
}

void znCHogLevelLoaderComponent::postCollectionViewSet(const std::vector<znCEntity*>& pEntities)
{
    const auto* level = dynamic_cast<const znIHogLevel*>(mEntity);
    if (level == nullptr || !level->variablesGet().boolGet(POST_COLLECTION_VISIBLE))
        return;
    const std::string marker = level->variablesGet().strGet(
        POST_COLLECTION_MARKER, znCAppSettings::instanceGet()->strGet(DIFFERENCE_FOUND_MARKER));
    for (znCEntity* entity : pEntities)
        if (staysOnView(*entity))
            entity->componentFind<znICollectableComponent>()->postCollectionVisibleSet(marker);
}
