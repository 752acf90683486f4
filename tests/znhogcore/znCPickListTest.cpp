#include "tests/znhogcore/znCPickListTest.h"

#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znhogcore/components/gui/znCPickListGui.h"
#include "znhogcore/components/gui/znIPickListEntryGui.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

namespace
{
struct Heard
{
    znCUniqueId mType;
    const char* mName;
};

const Heard HEARD[] = {
    {znCHogMessageDispatcher::COMPLETION_REQUIREMENT_ADD, "add "},
    {znCHogMessageDispatcher::COMPLETION_REQUIREMENT_MET, "met "},
    {znCHogMessageDispatcher::COMPLETION_REQUIREMENT_CLEAR, "clear "},
};
} // namespace

void znCPickListEar::messagesRegister()
{
    for (const Heard& heard : HEARD)
        znCHogMessageDispatcher::instanceGet()->listenerRegister(heard.mType, this);
    znCHogMessageDispatcher::instanceGet()->listenerRegister(znCHogMessageDispatcher::ADDED_ENTRY, this);
    znCHogMessageDispatcher::instanceGet()->listenerRegister(znCHogMessageDispatcher::LEVEL_COMPLETE, this);
}

void znCPickListEar::messagesDeregister()
{
    for (const Heard& heard : HEARD)
        znCHogMessageDispatcher::instanceGet()->listenerDeregister(heard.mType, this);
    znCHogMessageDispatcher::instanceGet()->listenerDeregister(znCHogMessageDispatcher::ADDED_ENTRY, this);
    znCHogMessageDispatcher::instanceGet()->listenerDeregister(znCHogMessageDispatcher::LEVEL_COMPLETE, this);
}

bool znCPickListEar::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znCHogMessageDispatcher::ADDED_ENTRY)
        ++mAdded;
    if (pType == znCHogMessageDispatcher::LEVEL_COMPLETE)
        mHeard += "LevelComplete; ";
    for (const Heard& heard : HEARD)
        if (pType == heard.mType)
        {
            mHeard += heard.mName + *static_cast<std::string*>(pData) + "; ";
            return !mLevelEnds;
        }
    return false;
}

void znCPickListTest::SetUp()
{
    std::string strings = "PCK-lantern = \"the \"old\" lantern, {lit}\",\r\nPCK-coil = \"rope\",\r\n"
                          "find = \"Find\",\r\ninTheScene = \" in the scene\",\r\n";
    for (const char* key : {"a", "b", "c", "d", "e", "f", "rope", "coil", "bell", "lantern", "key", "lit"})
        for (const char* form : {"Single", "Plural"})
            strings += std::string(key) + form + " = \"" + key + form + "\",\r\n";
    mPlatform.mFiles.fileSet("strings.txt", strings);
    for (const char* file : {"phint", "ppicklistcollecttrail", "pscorecollecttrail"})
        mPlatform.mFiles.fileSet(std::string("particles/") + file + ".txt",
                                 "maxParticles = 1 ;\nimageFileName = particles/p.png ;\n");
    imageSet("particles/p.png", 8, 8);
    znCHogTest::SetUp();
    mListEar.messagesRegister();
}

void znCPickListTest::TearDown()
{
    mListEar.messagesDeregister();
    znCHogTest::TearDown();
}

std::string znCPickListTest::listText(const std::string& pName, Kind pKind, s32 pSlots, const std::string& pSettings)
{
    std::string list = "znCPickListGui {\n name = " + pName + "\n " + pSettings +
                       "\n znCSpriteComponent {\n name = completeSprite\n }\n"
                       " znCTextSpriteComponent {\n name = itemCountText font = f.ttf fontSize = 20\n }\n";
    for (s32 i = 0; i < pSlots; ++i)
    {
        const std::string place =
            " name = pickItem" + std::to_string(i) + " posX = 50 posY = " + std::to_string(20 * i + 20) + "\n";
        if (pKind == Kind::silhouette)
            list += "znCSilhouettePickListEntryGui {\n" + place + " width = 20 height = 80\n}\n";
        else if (pKind == Kind::dropOff)
            list += "znCDropOffPickListEntryGui {\n" + place +
                    " znCTextSpriteComponent {\n name = PickListEntryText font = f.ttf fontSize = 20\n }\n}\n";
        else
            list += "znCSingleItemPickListEntryGui {\n" + place +
                    " znCTextSpriteComponent {\n name = pickListEntryText font = f.ttf fontSize = 20\n }\n}\n";
    }
    return list + "}\n";
}

void znCPickListTest::open(const std::string& pCoords, const std::string& pGui, const std::string& pTable)
{
    mPlatform.mFiles.fileSet("gui/lists.txt", "znCSpriteComponent {\n name = GameGui\n" + pGui + "}\n");
    imageSet("scenes/quay/background.png", 40, 40);
    sceneSet("quay", "Background.png,0,0\n" + pCoords, "GUI = \"gui/lists.txt\",\r\n" + pTable);
    sceneOpen("quay");
    std::vector<std::string> errors = errorsTake();
    std::erase_if(errors, [](const std::string& pError) { return pError.find("f.ttf") != std::string::npos; });
    EXPECT_EQ(errors, std::vector<std::string>());
}

void znCPickListTest::reopen()
{
    levelEnd(false);
    sceneOpen("quay");
}

std::vector<znCEntity*> znCPickListTest::activesGet()
{
    std::vector<znCEntity*> actives;
    for (znINode* node : find("SubScene0")->childrenGet())
    {
        auto* entity = dynamic_cast<znCEntity*>(node);
        const auto* collectable = entity->componentFind<znICollectableComponent>();
        if (collectable != nullptr && !collectable->inactiveGet() && !collectable->collectionStartedGet())
            actives.push_back(entity);
    }
    return actives;
}

std::string znCPickListTest::activeGet()
{
    std::string names;
    for (const znCEntity* entity : activesGet())
        names += entity->nameGet() + " ";
    return names;
}

void znCPickListTest::collectAny()
{
    const std::vector<znCEntity*> actives = activesGet();
    if (!actives.empty())
        actives.front()->componentFind<znICollectableComponent>()->collectionProcessTrigger();
}

std::string znCPickListTest::playUntilMet()
{
    for (s32 i = 0; i < 8 * FIND_FRAMES && mListEar.heardGet().find("met ") == std::string::npos; ++i)
    {
        collectAny();
        frame();
    }
    frame(30);
    return mListEar.take();
}

std::string znCPickListTest::playToEnd()
{
    for (s32 idle = 0; idle < FIND_FRAMES; ++idle)
    {
        if (activeCount() > 0)
            idle = 0;
        collectAny();
        frame();
    }
    return mListEar.take();
}

std::string znCPickListTest::textGet(const std::string& pName)
{
    return find(pName)->componentFind<znCTextSpriteComponent>()->textGet();
}

std::string znCPickListTest::savedGet(const std::string& pName, s32 pField)
{
    std::string saved;
    find(pName)->componentFind<znIMessageListenerGuiComponent>()->mySave(saved);
    for (s32 i = 0; i < pField; ++i)
        znINode::strLoad(saved);
    return znINode::strLoad(saved);
}
