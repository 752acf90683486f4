#ifndef TESTS_ZNHOGCORE_SHIPPEDGAME_H
#define TESTS_ZNHOGCORE_SHIPPEDGAME_H

// The program with the data that ships, in a window of the canvas's size, and a hand on its mouse. Only one may live at
// a time.

#include "tests/znhogcore/znCHogTestProgram.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/znIDisplay.h"
#include "zncore/znNCoreUtils.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

class ShippedGame : public znCHogTestProgram
{
public:
    static constexpr s32 SECOND = 1000 / FRAME_MS; // frames

    explicit ShippedGame(u32 pSeed)
    {
        for (const auto& [name, content] : dataGet())
            mPlatform.mFiles.fileSet(name, content);
        mPlatform.mWindow.modesSet({{1366, 768, 32, 60, 0}});
        mPlatform.mDraw.mRecording = false;
        start();
        znNCoreUtils::randomSeedSet(pSeed);
    }

    // The assertions that failed since the last call; sounds are left out, which lie on no disk here.
    std::vector<std::string> faultsTake()
    {
        std::vector<std::string> faults;
        std::istringstream log(mPlatform.logTake());
        for (std::string line; std::getline(log, line);)
            if (line.find("ERROR(") != std::string::npos && line.find("audio/") == std::string::npos)
                faults.push_back(line);
        return faults;
    }

    void framesRun(s32 pCount)
    {
        for (s32 i = 0; i < pCount; ++i)
            frame();
        mFrames += pCount;
    }

    void sceneOpen(const std::string& pName)
    {
        znCHogCoreMain::instanceGet()->nextScreenSet(pName);
        framesRun(2 * SECOND);
    }

    static znIHogLevel& level() { return *znIHogLevel::levelGet(); }
    static bool open() { return znIHogLevel::levelGet() != nullptr; }

    void pointer(bool pDown, const znPoint& pPos)
    {
        mPlatform.mInput.buttonQueue(0, pDown, pPos.mX, pPos.mY);
        framesRun(1);
    }
    void tap(const znPoint& pPos)
    {
        pointer(true, pPos);
        pointer(false, pPos);
    }
    void drag(const znPoint& pFrom, const znPoint& pTo)
    {
        pointer(true, pFrom);
        mPlatform.mInput.motionQueue((pFrom.mX + pTo.mX) / 2, (pFrom.mY + pTo.mY) / 2);
        framesRun(1);
        mPlatform.mInput.motionQueue(pTo.mX, pTo.mY);
        framesRun(1);
        pointer(false, pTo);
    }

    // The program is killed and starts again: what had reached the disk is all that is left.
    void crash(u32 pSeed)
    {
        std::map<std::string, std::string> disk;
        for (const std::string& name : userFilesGet())
            disk[name] = mPlatform.mFiles.fileGet(name);
        stop();
        for (const std::string& name : userFilesGet())
            mPlatform.mFiles.fileRemove(name);
        for (const auto& [name, content] : disk)
            mPlatform.mFiles.fileSet(name, content);
        start();
        znNCoreUtils::randomSeedSet(pSeed);
    }

    void menuOpen()
    {
        znCHogCoreMain::instanceGet()->nextScreenSet(znCHogCoreMain::MAIN_MENU_FILE);
        framesRun(2 * SECOND);
    }

    // Everything on view, what lies behind first.
    static void nodesVisit(znINode* pNode, const std::function<void(znCEntity&)>& pVisitor)
    {
        if (!pNode->activeGet())
            return;
        if (auto* entity = dynamic_cast<znCEntity*>(pNode))
            pVisitor(*entity);
        for (std::size_t i = 0; i < pNode->childrenGet().size(); ++i)
            nodesVisit(pNode->childrenGet()[i], pVisitor);
    }

    // The entity of that name on view, of several the one in front.
    static znCEntity* shownFind(const std::string& pName)
    {
        znCEntity* found = nullptr;
        nodesVisit(znIDisplay::instanceGet(),
                   [&](znCEntity& pEntity)
                   {
                       if (pEntity.nameGet() == pName)
                           found = &pEntity;
                   });
        return found;
    }

    // Presses the middle of a control on view.
    void press(const std::string& pControl)
    {
        znCEntity* control = shownFind(pControl);
        ASSERT_NE(control, nullptr) << pControl;
        const znPoint middle = control->worldPosGet();
        EXPECT_TRUE(control->componentFind<znCSpriteComponent>()->hitTest(middle, false)) << pControl << " has a hole";
        EXPECT_TRUE(middle.mX >= 683 - 512 && middle.mX < 683 + 512) << pControl << " is off a screen of 4:3";
        tap(middle);
        framesRun(3 * SECOND);
    }

    void type(const std::string& pText)
    {
        mPlatform.mInput.textQueue(pText);
        s3eKeyboardUpdate();
        framesRun(2);
    }

    s32 mFrames = 0;

private:
    std::vector<std::string> userFilesGet() const
    {
        std::vector<std::string> names = mPlatform.mFiles.namesGet();
        std::erase_if(names, [](const std::string& pName) { return !pName.starts_with("ram://"); });
        return names;
    }

    // All files but the sounds, read once.
    static const std::map<std::string, std::string>& dataGet()
    {
        static std::map<std::string, std::string> sData;
        const std::filesystem::path root = std::filesystem::path(PETREL_ROOT) / "data";
        if (sData.empty())
            for (const auto& entry : std::filesystem::recursive_directory_iterator(root))
            {
                const std::string name = std::filesystem::relative(entry.path(), root).generic_string();
                if (!entry.is_regular_file() || name.starts_with("audio/"))
                    continue;
                std::ifstream file(entry.path(), std::ios::binary);
                std::ostringstream content;
                content << file.rdbuf();
                sData[name] = content.str();
            }
        return sData;
    }
};

#endif
