#include "loader/znCCallbackTable.h"

znCCallbackTable::Entry* znCCallbackTable::entryFind(s32 pEvent, s3eCallback pCallback)
{
    for (Entry& entry : mEntries)
        if (entry.mEvent == pEvent && entry.mCallback == pCallback)
            return &entry;
    return nullptr;
}

s3eResult znCCallbackTable::callbackRegister(s32 pEvent, s3eCallback pCallback, void* pUserData)
{
    if (pCallback == nullptr)
        return S3E_RESULT_ERROR;
    if (Entry* entry = entryFind(pEvent, pCallback))
        entry->mUserData = pUserData;
    else
        mEntries.push_back({pEvent, pCallback, pUserData});
    return S3E_RESULT_SUCCESS;
}

s3eResult znCCallbackTable::callbackUnRegister(s32 pEvent, s3eCallback pCallback)
{
    Entry* entry = pCallback == nullptr ? nullptr : entryFind(pEvent, pCallback);
    if (entry == nullptr)
        return S3E_RESULT_ERROR;
    entry->mCallback = nullptr;
    if (mCallDepth == 0)
        std::erase_if(mEntries, [](const Entry& pEntry) { return pEntry.mCallback == nullptr; });
    return S3E_RESULT_SUCCESS;
}

void znCCallbackTable::callbacksCall(s32 pEvent, void* pSystemData)
{
    ++mCallDepth;
    const size_t count = mEntries.size(); // those registered on the way wait for the next event
    for (size_t i = 0; i < count; ++i)
    {
        const Entry entry = mEntries[i];
        if (entry.mEvent == pEvent && entry.mCallback != nullptr)
            entry.mCallback(pSystemData, entry.mUserData);
    }
    if (--mCallDepth == 0)
        std::erase_if(mEntries, [](const Entry& pEntry) { return pEntry.mCallback == nullptr; });
}
