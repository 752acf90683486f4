#include "tools/author/znCSceneCheck.h"

#include "tools/author/znNCodeLiterals.h"
#include "tools/author/znNText.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/particles/znCParticleDataManager.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/znCResourceName.h"
#include "znhogcore/components/gui/znCDropOffPickListEntryGui.h"
#include "znhogcore/components/gui/znCEndMenuGui.h"
#include "znhogcore/components/gui/znCPickListGui.h"
#include "znhogcore/components/gui/znIPickListEntryGui.h"
#include "znhogcore/components/znCDraggableKeyComponent.h"
#include "znhogcore/components/znCHogLevelLoaderComponent.h"
#include "znhogcore/components/znCLockComponent.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/components/znCNavigateComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/components/znCSubSceneNavigateComponent.h"
#include "znhogcore/components/znCTaskComponent.h"
#include "znhogcore/components/znICollectableComponent.h"
#include "znhogcore/src/znCCollectionEffectFactory.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/src/znCHogEntityFactory.h"
#include "znhogcore/znIHogLevel.h"

#include <algorithm>
#include <regex>

namespace
{
constexpr char PLAIN_PREFIX[] = "MASK-";
constexpr char COMMON_MARK[] = "CMN-";
constexpr char BACKGROUND_MARK[] = "Background";
constexpr char ITEMS_KEY[] = "numHogItems";
constexpr char MAIN_LIST[] = "hogPickList";

const std::string& baseNameGet(const znCEntity& pEntity)
{
    return znCNameComponent::get(&pEntity)->baseNameGet();
}

std::string prefixGet(const std::string& pName)
{
    return znCHogEntityFactory::instanceGet()->entityPrefixGet(znCNameComponent::baseNameFromNodeName(pName));
}

std::string upperGet(std::string pText)
{
    std::transform(pText.begin(), pText.end(), pText.begin(),
                   [](unsigned char pLetter) { return static_cast<char>(std::toupper(pLetter)); });
    return pText;
}

// Kinds that a list can ask for, by what tells them.
bool needsList(const znCEntity& pEntity)
{
    static const std::set<std::string> KINDS = {"PCK-", "HDN-", "REQ-", "TSK-", "BNS-", "BNSL-", "BSL-"};
    return KINDS.count(prefixGet(pEntity.nameGet())) != 0;
}
} // namespace

znCSceneCheck::znCSceneCheck(const std::string& pScene, znCAuthorGame& pGame, znCFaults& pFaults,
                             znCComplaints& pComplaints, const std::vector<std::string>& pFiles)
    : mScene(pScene), mGame(pGame), mFaults(pFaults), mComplaints(pComplaints), mFiles(pFiles),
      mCoords(znIHogLevel::folderOfGet(pScene) + znCHogLevelLoaderComponent::COORDS_FILE),
      mLevel(znIHogLevel::levelGet())
{
}

void znCSceneCheck::run()
{
    namesCheck();
    if (mLevel == nullptr)
        return;
    locksCheck();
    tasksCheck();
    doorsCheck();
    listsCheck();
    effectsCheck();
}

void znCSceneCheck::add(const znCEntity& pEntity, const std::string& pText)
{
    mFaults.add(mCoords, coordsLineGet(pEntity.nameGet()), pText);
}

s32 znCSceneCheck::coordsLineGet(const std::string& pName) const
{
    return znNText::lineFind(mGame.textGet(mCoords), pName, true);
}

void znCSceneCheck::namesCheck()
{
    std::map<std::string, std::pair<std::string, s32>> seen; // by the name in lower case
    const std::vector<std::string> lines = znNText::linesGet(mGame.textGet(mCoords));
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        const std::string name = lines[i].substr(0, lines[i].find(','));
        const s32 line = static_cast<s32>(i) + 1;
        if (name.empty())
            continue;
        nameCheck(name, line);
        const auto [entry, isNew] = seen.emplace(znNText::lowerGet(name), std::pair(name, line));
        if (!isNew && entry->second.first != name)
            mFaults.add(mCoords, line,
                        name + " and " + entry->second.first + " in line " + std::to_string(entry->second.second) +
                            " are the same file in lower case; give one another name");
        else if (!isNew)
            mFaults.add(mCoords, line,
                        name + " stands in line " + std::to_string(entry->second.second) +
                            " already; tell placements apart by a tail -m1 to -m9");
    }
}

void znCSceneCheck::nameCheck(const std::string& pName, s32 pLine)
{
    static const std::regex PREFIX_LIKE("^([A-Za-z]{2,5}-).*");
    if (prefixGet(pName) != PLAIN_PREFIX || pName.starts_with(PLAIN_PREFIX) || pName.starts_with(COMMON_MARK) ||
        pName.find("tutorial-") != std::string::npos || pName.find(BACKGROUND_MARK) != std::string::npos)
        return;
    std::smatch match;
    if (std::regex_match(pName, match, PREFIX_LIKE) && upperGet(match[1]) == match[1])
        mFaults.add(mCoords, pLine,
                    pName + " begins with no known prefix, so it is only decoration; correct " + match[1].str() +
                        ", or write it in lower case");
    else if (prefixGet(upperGet(pName)) != PLAIN_PREFIX && match.size() > 1)
        mFaults.add(mCoords, pLine,
                    pName + " is only decoration; write the prefix as " + upperGet(match[1]) +
                        " if it is to do something");
}

void znCSceneCheck::locksCheck()
{
    const auto locks = mLevel->entitiesWithKindGet<znCLockComponent>();
    const auto keys = mLevel->entitiesWithKindGet<znCDraggableKeyComponent>();
    std::set<const znCEntity*> fitting;
    for (const znCEntity* lock : locks)
        for (const std::string& needed : lock->componentFind<znCLockComponent>()->keysGet())
        {
            const auto key = std::find_if(keys.begin(), keys.end(),
                                          [&needed](const znCEntity* pKey)
                                          { return znCNameComponent::get(pKey)->keyGet() == needed; });
            if (key == keys.end())
            {
                add(*lock, lock->nameGet() + " can't be opened: there is no key INS-" + needed +
                               "; put it into the scene, or take it out of the name");
                continue;
            }
            fitting.insert(*key);
            if ((*key)->parentGet() != lock->parentGet())
                add(**key, (*key)->nameGet() + " stands in another close-up than its lock " + lock->nameGet() +
                               ", where it can't be dragged; put both into one");
        }
    for (const znCEntity* key : keys)
        if (fitting.count(key) == 0)
            add(*key, key->nameGet() + " opens no lock; name it in a PRE- lock, or take it out");
}

void znCSceneCheck::tasksCheck()
{
    std::set<std::string> ended;
    std::set<std::string> there;
    for (const znCEntity* task : mLevel->entitiesWithKindGet<znCTaskComponent>())
        there.insert(znCNameComponent::get(task)->keyGet());
    for (const znCEntity* lock : mLevel->entitiesWithKindGet<znCLockComponent>())
    {
        const std::string& task = lock->componentFind<znCLockComponent>()->taskNameGet();
        ended.insert(task);
        if (!task.empty() && there.count(task) == 0)
            add(*lock,
                lock->nameGet() + " ends a task that isn't there; add TSK-" + task + ", or leave it out of the name");
    }
    for (const znCEntity* task : mLevel->entitiesWithKindGet<znCTaskComponent>())
        if (ended.count(znCNameComponent::get(task)->keyGet()) == 0)
            add(*task, task->nameGet() + " is ended by no lock, so it can't be done; name it in a lock as TASK+LOCK");
}

// What leads to where is the loader's to say; here, what nothing leads to.
void znCSceneCheck::doorsCheck()
{
    std::set<s32> targets;
    for (const znCEntity* door : mLevel->entitiesWithKindGet<znCSubSceneNavigateComponent>())
        targets.insert(door->componentFind<znCSubSceneNavigateComponent>()->targetIndexGet());
    const auto closeUps = static_cast<s32>(mLevel->entitiesWithKindGet<znCSubSceneComponent>().size());
    s32 line = 0;
    for (s32 i = 0; i < closeUps; ++i)
    {
        const std::vector<std::string> lines = znNText::linesGet(mGame.textGet(mCoords));
        do
            ++line;
        while (line < static_cast<s32>(lines.size()) &&
               lines[static_cast<std::size_t>(line) - 1].find(BACKGROUND_MARK) == std::string::npos);
        if (i > 0 && targets.count(i) == 0)
            mFaults.add(mCoords, line,
                        "no door leads into this close-up; put a SUB" + std::to_string(i) + "-NAME before it");
    }
}

void znCSceneCheck::listsCheck()
{
    const auto lists = mLevel->entitiesWithKindGet<znCPickListGui>();
    for (const znCEntity* list : lists)
    {
        listTotalCheck(*list->componentGet<znCPickListGui>());
        wordsCheck(*list->componentGet<znCPickListGui>());
    }
    std::map<std::string, znCEntity*> unasked; // one of a kind is enough
    for (znCEntity* entity : mLevel->entitiesWithKindGet<znICollectableComponent>())
        if (needsList(*entity) && std::none_of(lists.begin(), lists.end(),
                                               [entity](const znCEntity* pList) {
                                                   return pList->componentGet<znCPickListGui>()->kindNamedGet(*entity);
                                               }))
            unasked.emplace(prefixGet(entity->nameGet()), entity);
    for (const auto& [prefix, entity] : unasked)
        add(*entity, "no list of the scene's panel asks for " + prefix +
                         " things, so they can't be found; name the "
                         "kind in a list, or rename them");
}

void znCSceneCheck::listTotalCheck(const znCPickListGui& pList)
{
    if (pList.totalGet() <= pList.allEntitiesCount())
        return;
    const std::string& name = pList.entityGet()->nameGet();
    const std::string table = znIHogLevel::folderOfGet(mScene) + mScene + ".txt";
    const s32 tableLine = name == MAIN_LIST ? znNText::keyLineFind(mGame.textGet(table), ITEMS_KEY) : 0;
    const znSFault place = tableLine != 0 ? znSFault{table, tableLine, ""} : mComplaints.placeGet(name, mFiles);
    mFaults.add(place.mFile, place.mLine,
                "the list " + name + " asks for " + std::to_string(pList.totalGet()) + " items and " + mScene +
                    " has " + std::to_string(pList.allEntitiesCount()) + "; add things, or ask for fewer");
}

// Of lists of words: whether each word fits its slot.
void znCSceneCheck::wordsCheck(const znCPickListGui& pList)
{
    if (pList.entriesGet().empty())
        return;
    znCEntity* slot = pList.entriesGet().front()->entityGet();
    const auto texts = slot->entitiesWithKindGet<znCTextSpriteComponent>();
    if (slot->componentFind<znCDropOffPickListEntryGui>() == nullptr || texts.empty())
        return;
    mComplaints.take(mFiles);
    auto* text = texts.front()->componentFind<znCTextSpriteComponent>();
    const znPoint box = text->boxSizeGet();
    const std::string before = text->textGet();
    for (znCEntity* entity : mLevel->entitiesWithKindGet<znICollectableComponent>())
    {
        if (!pList.kindNamedGet(*entity))
            continue;
        const std::string& word = znCNameComponent::get(entity)->displayTextGet();
        text->textSet(word);
        const bool shrunk = !mGame.complaintsTake().empty();
        if (shrunk || (box.mX > 0 && text->textWidthGet() > box.mX))
            add(*entity, "the words '" + word + "' don't fit a slot of the list " + pList.entityGet()->nameGet() +
                             ", " + std::to_string(box.mX) + " x " + std::to_string(box.mY) +
                             "; shorten them (strings.xml: " + baseNameGet(*entity) + ")");
    }
    text->textSet(before);
    mGame.complaintsTake();
}

// Sets off what a find shows, for its files' sake.
void znCSceneCheck::effectsCheck()
{
    mComplaints.take(mFiles);
    for (znCEntity* entity : mLevel->entitiesWithKindGet<znICollectableComponent>())
    {
        const std::string particles = "particles/par-" + znNText::lowerGet(znCNameComponent::get(entity)->keyGet());
        znCCollectionEffectFactory::instanceGet()->effectsCreate(entity);
        if (mGame.fileExists(particles + "-post.txt"))
            znCParticleDataManager::instanceGet()->dataGet(
                znCResourceName(particles + "-post.txt", znCResourceName::GAME_DATA));
        mComplaints.take({particles + ".txt", mCoords});
    }
}

std::set<std::string> znCSceneCheck::waysGet() const
{
    std::set<std::string> ways;
    if (mLevel == nullptr)
        return ways;
    std::string next = mLevel->nextLevelGet();
    const auto map = next.find(znCHogCoreMain::MAP_TO);
    if (map != std::string::npos)
    {
        ways.insert(znCHogCoreMain::MAP);
        next.erase(0, map + std::char_traits<char>::length(znCHogCoreMain::MAP_TO));
    }
    if (!next.empty())
        ways.insert(next);
    for (const znCEntity* exit : mLevel->entitiesWithKindGet<znCNavigateComponent>())
        ways.insert(exit->componentFind<znCNavigateComponent>()->targetGet());
    if (!mLevel->entitiesWithKindGet<znCEndMenuGui>().empty()) // behind the end the map stays open
        ways.insert(znCHogCoreMain::MAP);
    return ways;
}

std::set<std::string> znCSceneCheck::thingsGet() const
{
    std::set<std::string> things;
    if (mLevel == nullptr)
        return things;
    for (const znCEntity* entity : mLevel->entitiesWithKindGet<znCNameComponent>())
    {
        things.insert(znNText::lowerGet(baseNameGet(*entity)));
        things.insert(znNText::lowerGet(znCNameComponent::get(entity)->keyGet()));
    }
    return things;
}
