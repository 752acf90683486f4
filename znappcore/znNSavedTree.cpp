#include "znappcore/znNSavedTree.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace
{
constexpr std::size_t KEY_SIZE = 8; // hexadecimal digits, then an opening brace
constexpr s32 NONE = -1;

struct Section
{
    std::string_view mKey;
    std::string_view mFields; // up to the first section within
    std::string_view mText;   // from the key to the closing brace; empty if there is none
    s32 mFirst = NONE;        // section within
    s32 mLast = NONE;
    s32 mNext = NONE; // behind, within the same section
};

// The sections of a text, the root's first. No recursion: the text may be anything.
class Sections
{
public:
    explicit Sections(std::string_view pText) { parse(pText); }

    bool wholeGet() const { return mWhole; }
    bool emptyGet() const { return mSections.empty(); }
    const Section& operator[](s32 pIndex) const { return mSections[static_cast<std::size_t>(pIndex)]; }

private:
    void parse(std::string_view pText)
    {
        std::vector<s32> open;
        std::size_t pos = 0;
        for (std::size_t brace = pText.find_first_of("{}"); brace != std::string_view::npos;
             brace = pText.find_first_of("{}", pos))
        {
            const bool opens = pText[brace] == '{';
            if (opens ? brace < pos + KEY_SIZE : open.empty())
                return;
            const std::size_t fieldsEnd = opens ? brace - KEY_SIZE : brace;
            if (!open.empty())
                fieldsSet(open.back(), pText.substr(pos, fieldsEnd - pos));
            pos = brace + 1;
            if (opens)
            {
                open.push_back(sectionAdd(open, pText.substr(fieldsEnd, KEY_SIZE)));
                continue;
            }
            Section& closed = mSections[static_cast<std::size_t>(open.back())];
            closed.mText = {closed.mKey.data(), static_cast<std::size_t>(pText.data() + pos - closed.mKey.data())};
            open.pop_back();
            mWhole = open.empty();
            if (mWhole)
                return;
        }
        if (!open.empty())
            fieldsSet(open.back(), pText.substr(pos)); // the text breaks off there
    }

    s32 sectionAdd(const std::vector<s32>& pOpen, std::string_view pKey)
    {
        const auto index = static_cast<s32>(mSections.size());
        Section& section = mSections.emplace_back();
        section.mKey = pKey;
        if (pOpen.empty())
            return index;
        Section& parent = mSections[static_cast<std::size_t>(pOpen.back())];
        (parent.mFirst == NONE ? parent.mFirst : mSections[static_cast<std::size_t>(parent.mLast)].mNext) = index;
        parent.mLast = index;
        return index;
    }

    void fieldsSet(s32 pSection, std::string_view pFields)
    {
        Section& section = mSections[static_cast<std::size_t>(pSection)];
        if (section.mFirst == NONE)
            section.mFields = pFields;
    }

    std::vector<Section> mSections;
    bool mWhole = false; // the root's section has its end
};

// The sections within one, each to be taken once, the first of its key first.
class Siblings
{
public:
    Siblings(const Sections& pSections, s32 pFirst) : mSections(pSections)
    {
        for (s32 i = pFirst; i != NONE; i = pSections[i].mNext)
            mLeft.push_back(i);
        mTaken.resize(mLeft.size());
    }

    // NONE if there is no further one of that key.
    s32 take(std::string_view pKey)
    {
        while (mInOrder < mLeft.size() && mTaken[mInOrder])
            ++mInOrder;
        if (mInOrder < mLeft.size() && mSections[mLeft[mInOrder]].mKey == pKey)
        {
            mTaken[mInOrder] = true;
            return mLeft[mInOrder++];
        }
        return indexedTake(pKey);
    }

    template <class Visit>
    void leftVisit(Visit pVisit) const
    {
        for (std::size_t i = 0; i < mLeft.size(); ++i)
            if (!mTaken[i])
                pVisit(mSections[mLeft[i]]);
    }

private:
    s32 indexedTake(std::string_view pKey)
    {
        if (mPlaces.empty())
            for (std::size_t i = mLeft.size(); i-- > 0;)
                mPlaces[mSections[mLeft[i]].mKey].push_back(i);
        std::vector<std::size_t>& places = mPlaces[pKey];
        while (!places.empty() && mTaken[places.back()])
            places.pop_back();
        if (places.empty())
            return NONE;
        mTaken[places.back()] = true;
        return mLeft[places.back()];
    }

    const Sections& mSections;
    std::vector<s32> mLeft;
    std::vector<bool> mTaken;
    std::size_t mInOrder = 0;
    std::unordered_map<std::string_view, std::vector<std::size_t>> mPlaces; // the first one last; made when needed
};

class Fitter
{
public:
    Fitter(const Sections& pFresh, const Sections& pSaved, znNSavedTree::Fitted& pResult)
        : mFresh(pFresh), mSaved(pSaved), mResult(pResult)
    {
    }

    // As deep as the tree is.
    void sectionFit(s32 pFresh, s32 pSaved)
    {
        const Section& fresh = mFresh[pFresh];
        mResult.mText.append(fresh.mKey) += '{';
        fieldsFit(fresh.mFields, mSaved[pSaved].mFields);
        Siblings saved(mSaved, mSaved[pSaved].mFirst);
        for (s32 child = fresh.mFirst; child != NONE; child = mFresh[child].mNext)
        {
            const s32 match = saved.take(mFresh[child].mKey);
            if (match != NONE)
                sectionFit(child, match);
            else
                freshTake(child);
        }
        saved.leftVisit([this](const Section& pLeft) { mResult.mText.append(pLeft.mText); });
        mResult.mText += '}';
    }

private:
    void fieldsFit(std::string_view pFresh, std::string_view pSaved)
    {
        auto missing = std::count(pSaved.begin(), pSaved.end(), ',');
        mResult.mText.append(pSaved.substr(0, pSaved.find_last_of(',') + 1));
        std::size_t begin = 0;
        for (; missing > 0 && begin < pFresh.size(); --missing)
            begin = std::min(pFresh.find(',', begin), pFresh.size() - 1) + 1;
        mResult.mText.append(pFresh.substr(begin));
    }

    void freshTake(s32 pFresh)
    {
        mResult.mText.append(mFresh[pFresh].mText);
        ++mResult.mNewCount;
    }

    const Sections& mFresh;
    const Sections& mSaved;
    znNSavedTree::Fitted& mResult;
};
} // namespace

znNSavedTree::Fitted znNSavedTree::fit(const std::string& pFresh, const std::string& pSaved)
{
    const Sections fresh(pFresh);
    const Sections saved(pSaved);
    Fitted result;
    result.mDamaged = !saved.wholeGet();
    if (fresh.emptyGet() || saved.emptyGet() || fresh[0].mKey != saved[0].mKey)
    {
        result.mText = pFresh;
        result.mDamaged = true;
        return result;
    }
    result.mText.reserve(std::max(pFresh.size(), pSaved.size()));
    Fitter(fresh, saved, result).sectionFit(0, 0);
    return result;
}
