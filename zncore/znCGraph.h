#ifndef ZNCORE_ZNCGRAPH_H
#define ZNCORE_ZNCGRAPH_H

// Values at times, with straight lines between them: fades and scale curves. T is float or znCColour. Times are
// milliseconds. Entries are added in order of time, each by how long after the one before it comes.

#include "zncore/debug/znIDebug.h"
#include "zncore/znCColour.h"
#include "zncore/znNCoreUtils.h"
#include "zncore/znTypes.h"
#include <algorithm>
#include <vector>

template <class T>
class znCGraph
{
public:
    // The first entry must have a duration of 0; another logs "First value must have a duration of 0.\n" and counts as
    // 0. Later entries must not be negative.
    void dataAdd(s32 pDuration, const T& pValue)
    {
        const bool first = mEntries.empty();
        ZN_ASSERT(!first || pDuration == 0, "First value must have a duration of 0.\n");
        const s64 time = first ? 0 : static_cast<s64>(mEntries.back().mTime) + pDuration;
        mEntries.push_back({znNCoreUtils::s32Saturate(time), pValue});
    }

    // The first value before the first entry, the last one behind the last. A graph without entries answers T().
    T valueGet(s32 pTimeMs) const
    {
        if (mEntries.empty())
            return T();
        if (pTimeMs >= mEntries.back().mTime)
            return mEntries.back().mValue;
        const auto next = std::find_if(mEntries.begin(), mEntries.end(),
                                       [pTimeMs](const Entry& pEntry) { return pTimeMs <= pEntry.mTime; });
        if (next == mEntries.begin() || next->mTime == pTimeMs)
            return next->mValue;
        const Entry& before = *(next - 1);
        const T slope = spanDivide(next->mValue - before.mValue, next->mTime - before.mTime);
        return before.mValue + spanMultiply(slope, pTimeMs - before.mTime);
    }

    s32 lastTimeGet() const { return mEntries.empty() ? 0 : mEntries.back().mTime; }

private:
    struct Entry
    {
        s32 mTime;
        T mValue;
    };

    // The integer taken as float, for both kinds of value.
    static float spanDivide(float pValue, s32 pSpan) { return pValue / static_cast<float>(pSpan); }
    static float spanMultiply(float pValue, s32 pSpan) { return pValue * static_cast<float>(pSpan); }
    static znCColour spanDivide(const znCColour& pValue, s32 pSpan) { return pValue / pSpan; }
    static znCColour spanMultiply(const znCColour& pValue, s32 pSpan) { return pValue * pSpan; }

    std::vector<Entry> mEntries;
};

#endif
