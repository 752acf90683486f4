#include "znappcore/src/znCGlobalSavedData.h"

#include "zncore/debug/znIDebug.h"

#include <algorithm>
#include <memory>

namespace
{
constexpr char PROFILE_COUNT[] = "NumProfiles";
constexpr char PROFILE_CURRENT[] = "CurrProfile";
constexpr char PROFILE_NAME[] = "ProfileName";          // followed by the player's index
constexpr char PROFILE_FILE_NAME[] = "ProfileFileName"; // followed by the player's index

std::unique_ptr<znCGlobalSavedData> sInstance;

std::string keyGet(const char* pPrefix, s32 pIndex)
{
    return pPrefix + std::to_string(pIndex);
}
} // namespace

void znCGlobalSavedData::create()
{
    ZN_ASSERT(!existsGet(), "Already created znCGlobalSavedData.\n");
    instanceSet(new znCGlobalSavedData());
}

bool znCGlobalSavedData::existsGet()
{
    return sInstance != nullptr;
}

void znCGlobalSavedData::instanceSet(znCGlobalSavedData* pInstance)
{
    sInstance.reset(pInstance);
    sInstance->reset();
}

znCGlobalSavedData* znCGlobalSavedData::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance.get();
}

void znCGlobalSavedData::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    sInstance.reset();
}

void znCGlobalSavedData::defaultsSet()
{
    profileCountSet(0);
    currentProfileSet(PROFILE_NONE);
}

s32 znCGlobalSavedData::profileCountGet() const
{
    // No more than the table has room for, whatever a broken file says.
    return std::clamp(s32Get(PROFILE_COUNT, 0), 0, static_cast<s32>(mEntries.size()));
}

void znCGlobalSavedData::profileCountSet(s32 pCount)
{
    s32Set(PROFILE_COUNT, pCount);
}

s32 znCGlobalSavedData::currentProfileGet() const
{
    return s32Get(PROFILE_CURRENT, PROFILE_NONE);
}

void znCGlobalSavedData::currentProfileSet(s32 pIndex)
{
    s32Set(PROFILE_CURRENT, pIndex);
}

std::string znCGlobalSavedData::profileNameGet(s32 pIndex) const
{
    ZN_ASSERT(profileExists(pIndex), "Getting the name of a profile that doesn't exist.\n");
    return strGet(keyGet(PROFILE_NAME, pIndex));
}

znCResourceName znCGlobalSavedData::profileFileNameGet(s32 pIndex) const
{
    ZN_ASSERT(profileExists(pIndex), "Getting the filename of a profile that doesn't exist.\n");
    return znCResourceName(profileFileTextGet(pIndex), znCResourceName::USER_DATA);
}

std::string znCGlobalSavedData::profileFileTextGet(s32 pIndex) const
{
    return strGet(keyGet(PROFILE_FILE_NAME, pIndex));
}

bool znCGlobalSavedData::wholeGet() const
{
    if (s32Get(PROFILE_COUNT, 0) > profileCountGet())
        return false;
    for (s32 i = 0; i < profileCountGet(); ++i)
        if (profileFileTextGet(i).empty())
            return false;
    return true;
}

void znCGlobalSavedData::profilesMend()
{
    const s32 named = s32Get(PROFILE_COUNT, 0);
    const s32 current = currentProfileGet();
    s32 count = 0;
    for (s32 i = 0; i < profileCountGet(); ++i)
    {
        const std::string file = profileFileTextGet(i);
        if (file.empty())
            continue;
        const std::string name = strGet(keyGet(PROFILE_NAME, i));
        if (i == current)
            currentProfileSet(count);
        profileSet(count++, name.empty() ? file.substr(0, file.find('.')) : name, file);
    }
    if (count != named)
    {
        ZN_LOG("The list of players names %d players and has the files of %d.\n", named, count);
        profileCountSet(count);
    }
    if (currentProfileGet() >= PROFILE_NONE && currentProfileGet() < count)
        return;
    ZN_LOG("The list of players lets player %d play, of %d.\n", currentProfileGet(), count);
    currentProfileSet(count > 0 ? 0 : PROFILE_NONE);
}

void znCGlobalSavedData::profileSet(s32 pIndex, const std::string& pName, const std::string& pFileName)
{
    strSet(keyGet(PROFILE_NAME, pIndex), pName);
    strSet(keyGet(PROFILE_FILE_NAME, pIndex), pFileName);
}
