#include "tools/author/znCAuthorGame.h"

#include "media/znNGraphics.h"
#include "src/CGameSpecificMain.h"
#include "tools/author/znNGameLog.h"
#include "tools/author/znNText.h"
#include "znappcore/components/gui/znCGuiFileReader.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znNCoreUtils.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <utility>

namespace
{
constexpr s32 FRAMES_TO_OPEN = 4;
constexpr char SAVES[] = "ram://";

znCAuthorGame* sGame = nullptr;

std::string fileRead(const std::filesystem::path& pFile)
{
    std::ifstream file(pFile, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}
} // namespace

znCAuthorGame::znCAuthorGame(const std::filesystem::path& pData)
{
    sGame = this;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(pData))
    {
        if (!entry.is_regular_file())
            continue;
        const std::string name = std::filesystem::relative(entry.path(), pData).generic_string();
        mFiles[name] = fileRead(entry.path());
        mPlatform.mFiles.fileSet(name, mFiles[name]);
    }
    mPlatform.configSet("s3e", "FullScreen", "0");
    mPlatform.mDraw.mRecording = false;
    znCVariableTable::askedObserverSet(keyAsked);
    znCGuiFileReader::elementObserverSet(elementBuilt);
    znNGraphics::initialise();
}

znCAuthorGame::~znCAuthorGame()
{
    close();
    znNGraphics::terminate();
    znCGuiFileReader::elementObserverSet(nullptr);
    znCVariableTable::askedObserverSet(nullptr);
    sGame = nullptr;
}

void znCAuthorGame::open(const std::string& pScreen)
{
    close();
    savesForget();
    mLogRead = 0;
    mPlatform.configSet("commandline", "argv[1]", pScreen);
    if (pScreen.empty())
        mPlatform.configRemove("commandline", "argv[1]");
    CGameSpecificMain::create();
    znNCoreUtils::randomSeedSet(1);
    framesRun(FRAMES_TO_OPEN);
}

void znCAuthorGame::close()
{
    if (znCAppCoreMain::instanceGet() != nullptr)
        znCAppCoreMain::destroy();
    complaintsTake();
    mIdleSettings.clear();
    mKeysOfTable.clear();
}

void znCAuthorGame::savesForget()
{
    for (const std::string& name : mPlatform.mFiles.namesGet())
        if (name.starts_with(SAVES))
            mPlatform.mFiles.fileRemove(name);
}

void znCAuthorGame::framesRun(s32 pCount)
{
    for (s32 i = 0; i < pCount; ++i)
        znCAppCoreMain::instanceGet()->frameUpdate(FRAME_MS);
}

std::vector<std::string> znCAuthorGame::complaintsTake()
{
    const std::string log = mPlatform.logGet();
    return znNGameLog::complaintsGet(log.substr(std::min(std::exchange(mLogRead, log.size()), log.size())));
}

std::vector<znCAuthorGame::IdleSetting> znCAuthorGame::idleSettingsTake()
{
    return std::exchange(mIdleSettings, {});
}

bool znCAuthorGame::fileExists(const std::string& pName) const
{
    return mFiles.count(znNText::lowerGet(pName)) != 0;
}

const std::string& znCAuthorGame::textGet(const std::string& pName) const
{
    static const std::string NONE;
    const auto file = mFiles.find(znNText::lowerGet(pName));
    return file != mFiles.end() ? file->second : NONE;
}

void znCAuthorGame::keyAsked(const znCVariableTable& pTable, const std::string& pKey, const std::string* pValue)
{
    const std::string key = znNText::lowerGet(pKey);
    sGame->mKeysOfTable[&pTable].insert(key);
    sGame->mKeysAsked.insert(key);
    if (pValue != nullptr)
        sGame->mValuesAsked.insert(*pValue);
}

void znCAuthorGame::elementBuilt(const znCVariableTable& pSettings, std::string_view pType,
                                 const znCGuiFileReader::Places& pPlaces)
{
    const std::set<std::string>& asked = sGame->mKeysOfTable[&pSettings];
    for (const auto& [key, place] : pPlaces)
        if (asked.count(key) == 0)
            sGame->mIdleSettings.push_back({key, std::string(pType), std::string(place.mFile), place.mLine});
    sGame->mKeysOfTable.erase(&pSettings); // the next element's table may lie in the same place
}
