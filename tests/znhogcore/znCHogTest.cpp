#include "tests/znhogcore/znCHogTest.h"

#include "znappcore/src/znCEntity.h"
#include "znappcore/znCEmptyMessageData.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

#include <map>
#include <sstream>
#include <tuple>

namespace
{
struct Heard
{
    znCUniqueId mType;
    const char* mName;
    enum
    {
        nothing,
        text,
        entity
    } mPayload;
};

const Heard HEARD[] = {
    {znCHogMessageDispatcher::LEVEL_LOAD_COMP, "levelLoadComp", Heard::nothing},
    {znCHogMessageDispatcher::RESET_LEVEL, "resetLevel", Heard::nothing},
    {znCHogMessageDispatcher::POST_RESET_LEVEL, "postResetLevel", Heard::nothing},
    {znCHogMessageDispatcher::TASK_COMPLETE, "TaskComplete", Heard::text},
    {znCHogMessageDispatcher::COLLECTABLE_ENTITY_COLLECTED, "CollectableEntityCollected", Heard::entity},
    {znCHogMessageDispatcher::SUB_EXIT_BUTTON_SHOW, "SubExitButtonShow", Heard::nothing},
};
} // namespace

void znCHogTestEar::messagesRegister()
{
    for (const Heard& heard : HEARD)
        znCHogMessageDispatcher::instanceGet()->listenerRegister(heard.mType, this);
}

void znCHogTestEar::messagesDeregister()
{
    for (const Heard& heard : HEARD)
        znCHogMessageDispatcher::instanceGet()->listenerDeregister(heard.mType, this);
}

bool znCHogTestEar::messageProcess(const znCUniqueId& pType, void* pData)
{
    EXPECT_NE(pData, nullptr);
    for (const Heard& heard : HEARD)
        if (pType == heard.mType)
        {
            mHeard += heard.mName;
            if (heard.mPayload == Heard::text)
                mHeard += " " + *static_cast<std::string*>(pData);
            if (heard.mPayload == Heard::entity)
                mHeard += " " + static_cast<znCEntity*>(pData)->nameGet();
            mHeard += "; ";
        }
    return false;
}

void znCHogTest::SetUp()
{
    imageSet("particles/p.png", 8, 8);
    for (const char* number : {"1", "2", "3"})
        mPlatform.mFiles.fileSet(std::string("gui/welldone/welldone") + number + ".txt",
                                 "znCSpriteComponent { name = wellDone }\n");
    for (const char* trail : {"ppicklistcollecttrail", "pscorecollecttrail"})
        mPlatform.mFiles.fileSet(std::string("particles/") + trail + ".txt",
                                 "imageFileName = particles/p.png ; maxParticles = 1 ; emitSpeed = 1 ;");
    programStart();
}

void znCHogTest::TearDown()
{
    programStop();
    EXPECT_EQ(errorsTake(), std::vector<std::string>()) << "faults that the test doesn't expect";
    EXPECT_EQ(mPlatform.mDraw.mFaults, std::vector<std::string>());
    EXPECT_TRUE(mPlatform.mDraw.mTextures.empty()) << "textures that nobody freed";
}

void znCHogTest::programStart()
{
    mProgram.start();
    errorsTake(); // of the cursor and the font, which no test here looks at
    mEar.messagesRegister();
}

void znCHogTest::programStop()
{
    mEar.messagesDeregister();
    mProgram.stop();
}

// Packing a picture of the canvas's size takes longer than most tests, so equal ones are made once.
void znCHogTest::imageSet(const std::string& pName, s32 pWidth, s32 pHeight, const std::string& pAlpha)
{
    static std::map<std::tuple<s32, s32, std::string>, std::string> sMade;
    std::string& file = sMade[{pWidth, pHeight, pAlpha}];
    if (file.empty())
    {
        znNTestImages::Bytes pixels;
        for (s32 i = 0; i < pWidth * pHeight; ++i)
        {
            const bool clear = pAlpha[static_cast<std::size_t>(i) % pAlpha.size()] == '.';
            pixels.insert(pixels.end(), {10, 20, 30, static_cast<u8>(clear ? 0 : 255)});
        }
        const znNTestImages::Bytes bytes = znNTestImages::pngMake(pWidth, pHeight, pixels);
        file.assign(bytes.begin(), bytes.end());
    }
    mPlatform.mFiles.fileSet(pName, file);
}

void znCHogTest::animationSet(const std::string& pName)
{
    imageSet(pName + ".png", 16, 16);
    mPlatform.mFiles.fileSet(pName + ".xml",
                             "<sequence name=\"a\"><framelist><frame x=\"0\" y=\"0\" w=\"16\" h=\"16\" regx=\"8\" "
                             "regy=\"8\"/></framelist><timeline name=\"main\" frametime=\"50\"><key frame=\"1\"/>"
                             "</timeline></sequence>");
}

void znCHogTest::sceneSet(const std::string& pName, const std::string& pCoords, const std::string& pTable)
{
    const std::string folder = "scenes/" + pName + "/";
    mPlatform.mFiles.fileSet(folder + "coords.txt", pCoords);
    if (!pTable.empty())
        mPlatform.mFiles.fileSet(folder + pName + ".txt", pTable);
    std::istringstream lines(pCoords);
    for (std::string line; std::getline(lines, line);)
    {
        std::string image = folder + line.substr(0, line.find(','));
        for (char& c : image)
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        if (!image.ends_with(".png") || mPlatform.mFiles.fileExists(image))
            continue;
        const bool isBackground = line.find("Background") != std::string::npos;
        imageSet(image, isBackground ? CANVAS_WIDTH : 40, isBackground ? CANVAS_HEIGHT : 40);
    }
}

void znCHogTest::sceneOpen(const std::string& pName)
{
    znCHogCoreMain::instanceGet()->nextScreenSet(pName);
    frame();
    ASSERT_NE(znIHogLevel::levelGet(), nullptr);
}

void znCHogTest::levelLeave()
{
    mProgram.screenLeave();
}

void znCHogTest::levelEnd(bool pForget)
{
    const std::string name = level().levelNameGet();
    levelLeave();
    ASSERT_EQ(znIHogLevel::levelGet(), nullptr);
    if (pForget)
        mProgram.savedStateForget(name);
}

void znCHogTest::frame(s32 pCount)
{
    for (s32 i = 0; i < pCount; ++i)
        mProgram.frame();
}

void znCHogTest::press(s32 pX, s32 pY)
{
    mPlatform.mInput.buttonQueue(0, true, pX + CANVAS_WIDTH / 2, pY + CANVAS_HEIGHT / 2);
    frame();
}

void znCHogTest::move(s32 pX, s32 pY)
{
    mPlatform.mInput.motionQueue(pX + CANVAS_WIDTH / 2, pY + CANVAS_HEIGHT / 2);
    frame();
}

void znCHogTest::release(s32 pX, s32 pY)
{
    mPlatform.mInput.buttonQueue(0, false, pX + CANVAS_WIDTH / 2, pY + CANVAS_HEIGHT / 2);
    frame();
}

void znCHogTest::tap(s32 pX, s32 pY)
{
    press(pX, pY);
    release(pX, pY);
}

znIHogLevel& znCHogTest::level()
{
    return *znIHogLevel::levelGet();
}

znCEntity* znCHogTest::find(const std::string& pName)
{
    return dynamic_cast<znCEntity*>(level().childFind(pName));
}

znICollectableComponent& znCHogTest::collectable(const std::string& pName)
{
    return *find(pName)->componentFind<znICollectableComponent>();
}

s32 znCHogTest::stateGet(const std::string& pName)
{
    std::string saved;
    collectable(pName).mySave(saved);
    return znINode::s32Load(saved);
}

void znCHogTest::send(const znCUniqueId& pType)
{
    znCHogMessageDispatcher::instanceGet()->messageSend(pType, znCEmptyMessageData::sharedGet());
}

void znCHogTest::logRead()
{
    std::istringstream log(mPlatform.logTake());
    for (std::string line; std::getline(log, line);)
    {
        const std::size_t kind = line.find_first_not_of('\r');
        const std::size_t message = line.find(") ");
        if (kind == std::string::npos || message == std::string::npos ||
            line.find("ASSERT failure (") != std::string::npos)
            continue;
        lineKeep(line.compare(kind, 6, "ERROR(") == 0, line.substr(message + 2));
    }
}

void znCHogTest::lineKeep(bool pError, const std::string& pText)
{
    const std::string unlisted = "Failed to find an entry for ";
    if (pError && pText.starts_with(unlisted))
        mUnlisted.push_back(pText.substr(unlisted.size(), pText.size() - unlisted.size() - 1));
    else
        (pError ? mErrors : mLines).push_back(pText);
}

std::vector<std::string> znCHogTest::unlistedTake()
{
    logRead();
    return std::exchange(mUnlisted, {});
}

std::vector<std::string> znCHogTest::errorsTake()
{
    logRead();
    return std::exchange(mErrors, {});
}

std::vector<std::string> znCHogTest::linesTake()
{
    logRead();
    return std::exchange(mLines, {});
}
