#include "znappcore/znINode.h"

#include "znappcore/src/znCRenderList.h"
#include "znappcore/src/znCSprite.h"
#include "znappcore/znCUniqueId.h"
#include "znappcore/znIMessageListener.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <numbers>

namespace
{
constexpr float PI = std::numbers::pi_v<float>;
constexpr float TWO_PI = 2.0f * PI;
constexpr std::size_t KEY_DIGITS = 8;
// What ends a field, a section or a value of the player's data; in saved texts as ESCAPE and two hexadecimal digits.
constexpr char ESCAPED[] = ",{}\"%";
constexpr char ESCAPE = '%';

struct NewNode
{
    znINode* mParent; // neither is owned
    znINode* mChild;
};

struct StaticVectors
{
    std::vector<znINode*> mFlagged; // null where the node was deleted on another way; not owned until then
    std::vector<NewNode> mNewNodes;
};

std::unique_ptr<StaticVectors> sVectors;

s32 truncatedGet(float pValue)
{
    constexpr float LIMIT = 2147483648.0f; // 2^31
    if (std::isnan(pValue))
        return 0;
    if (pValue >= LIMIT)
        return std::numeric_limits<s32>::max();
    return pValue < -LIMIT ? std::numeric_limits<s32>::min() : static_cast<s32>(pValue);
}

void listenerDeregister(znINode* pNode)
{
    if (auto* listener = dynamic_cast<znIMessageListener*>(pNode))
        listener->messagesDeregister();
}

// Cuts the text up to the first comma off the front. False without a comma: the rest is the field then.
bool fieldCut(std::string& pIn, std::string& pField)
{
    const std::size_t comma = pIn.find(',');
    pField = pIn.substr(0, comma);
    pIn.erase(0, comma == std::string::npos ? comma : comma + 1);
    return comma != std::string::npos;
}

std::string unescapedGet(const std::string& pText)
{
    std::string text;
    for (std::size_t i = 0; i < pText.size(); ++i)
    {
        unsigned value = 0;
        const char* digits = pText.data() + i + 1;
        const bool escaped = pText[i] == ESCAPE && i + 2 < pText.size() &&
                             std::from_chars(digits, digits + 2, value, 16).ptr == digits + 2;
        text += escaped ? static_cast<char>(value) : pText[i];
        i += escaped ? 2 : 0;
    }
    return text;
}

s32 s32FromText(const std::string& pText)
{
    const long long value = std::strtoll(pText.c_str(), nullptr, 10);
    return static_cast<s32>(
        std::clamp<long long>(value, std::numeric_limits<s32>::min(), std::numeric_limits<s32>::max()));
}
} // namespace

znINode::znINode(const std::string& pName) : mName(pName) {}

znINode::~znINode()
{
    childrenDelete();
    if (sVectors != nullptr)
        newNodesLeave();
    if (sVectors != nullptr && mFlaggedIndex >= 0)
        sVectors->mFlagged[static_cast<std::size_t>(mFlaggedIndex)] = nullptr;
    if (mParent == nullptr)
        return;
    znINode* parent = mParent;
    parent->childRemove(this);
    if (mParent != nullptr)
        parent->childErase(this); // refused, but no dead node may stay in the tree
}

// The children go from the first to the last, and none can reach this node any more.
void znINode::childrenDelete()
{
    znNRenderChanges::structureMark();
    for (znINode* child : mChildren)
        child->mParent = nullptr;
    std::reverse(mChildren.begin(), mChildren.end());
    while (!mChildren.empty())
    {
        znINode* child = mChildren.back();
        mChildren.pop_back();
        child->mParent = nullptr;
        listenerDeregister(child);
        delete child;
    }
}

// No pair may name a node that is gone. A child that waited for this node alone would have been its own.
void znINode::newNodesLeave()
{
    std::vector<NewNode>& pairs = sVectors->mNewNodes;
    for (std::size_t i = pairs.size(); mNewNodesCount > 0 && i-- > 0;)
    {
        const NewNode pair = pairs[i];
        if (pair.mParent != this && pair.mChild != this)
            continue;
        pairs.erase(pairs.begin() + static_cast<std::ptrdiff_t>(i));
        --pair.mParent->mNewNodesCount;
        --pair.mChild->mNewNodesCount;
        if (pair.mParent == this && pair.mChild->mParent == nullptr && pair.mChild->mNewNodesCount == 0)
        {
            listenerDeregister(pair.mChild);
            delete pair.mChild;
            i = std::min(i, pairs.size());
        }
    }
}

void znINode::initialiseFromVariableTableDo(const znCVariableTable&) {}
void znINode::initialiseDo() {}
void znINode::update(s32)
{
    mUpdates = mUpdates && typeid(*this) != typeid(znINode);
}
void znINode::render()
{
    mRenders = mRenders && typeid(*this) != typeid(znINode);
}
void znINode::posChangeHandle() {}
void znINode::matrixApply()
{
    mAppliesMatrix = mAppliesMatrix && typeid(*this) != typeid(znINode);
}
void znINode::mySave(std::string&) {}
void znINode::myLoad(std::string&) {}
void znINode::myPostLoad() {}

// --- tree ---

void znINode::childAdd(znINode* pChild)
{
    ZN_ASSERT(pChild != nullptr, "No child to add.\n");
    if (pChild == nullptr)
        return;
    if (mInUpdate)
    {
        ZN_ASSERT(sVectors != nullptr, "Not initialised static vectors.\n");
        if (sVectors == nullptr)
            return;
        sVectors->mNewNodes.push_back({this, pChild});
        ++mNewNodesCount;
        ++pChild->mNewNodesCount;
        return;
    }
    if (pChild->mParent == this)
        return;
    if (pChild->mParent != nullptr)
        pChild->mParent->childRemove(pChild);
    if (pChild->mParent != nullptr)
        return;
    mChildren.push_back(pChild);
    pChild->mParent = this;
    znNRenderChanges::structureMark();
    pChild->matrixDirtyMark();
}

void znINode::childRemove(znINode* pChild)
{
    ZN_ASSERT(!mInUpdate, "Trying to remove a child whilst in update.\n");
    if (mInUpdate)
        return;
    const bool isChild = pChild != nullptr && pChild->mParent == this;
    ZN_ASSERT(isChild, "Child not found to remove.\n");
    if (!isChild)
        return;
    childErase(pChild);
    pChild->mParent = nullptr;
    pChild->matrixDirtyMark();
}

void znINode::childErase(znINode* pChild)
{
    znNRenderChanges::structureMark();
    const auto place = std::find(mChildren.begin(), mChildren.end(), pChild);
    if (place != mChildren.end())
        mChildren.erase(place);
}

void znINode::destroy()
{
    ZN_ASSERT(sVectors != nullptr, "Not initialised static vectors.\n");
    if (sVectors == nullptr)
        return;
    ZN_ASSERT(mFlaggedIndex < 0, "Already flagged for destruction.\n");
    if (mFlaggedIndex >= 0)
        return;
    mFlaggedIndex = static_cast<s32>(sVectors->mFlagged.size());
    sVectors->mFlagged.push_back(this);
}

void znINode::bringToFrontOfSiblings()
{
    ZN_ASSERT(mParent != nullptr, "Trying to reorder a node with no parent.\n");
    if (mParent == nullptr)
        return;
    ZN_ASSERT(!mParent->mInUpdate, "Trying to reorder nodes during an update.\n");
    if (!mParent->mInUpdate)
        siblingsReorder(true);
}

void znINode::pushToBackOfSiblings()
{
    ZN_ASSERT(mParent != nullptr, "Trying to reorder a node with no parent.\n");
    if (mParent == nullptr)
        return;
    const bool inUpdate = mInUpdate || mParent->mInUpdate;
    ZN_ASSERT(!inUpdate, "Trying to reorder nodes during an update.\n");
    if (!inUpdate)
        siblingsReorder(false);
}

void znINode::siblingsReorder(bool pToFront)
{
    std::vector<znINode*>& siblings = mParent->mChildren;
    const auto place = std::find(siblings.begin(), siblings.end(), this);
    znNRenderChanges::structureMark();
    if (pToFront)
        std::rotate(place, place + 1, siblings.end());
    else
        std::rotate(siblings.begin(), place, place + 1);
}

znINode* znINode::childFind(const std::string& pName)
{
    if (mName == pName)
        return this;
    if (mNewNodesCount > 0 && sVectors != nullptr)
        for (const NewNode& pair : sVectors->mNewNodes)
            if (pair.mParent == this && pair.mChild->mName == pName)
                return pair.mChild;
    for (znINode* child : mChildren)
        if (znINode* found = child->childFind(pName))
            return found;
    return nullptr;
}

void znINode::staticVectorsCreate()
{
    ZN_ASSERT(sVectors == nullptr, "Already created static vectors.\n");
    if (sVectors == nullptr)
        sVectors = std::make_unique<StaticVectors>();
}

void znINode::staticVectorsDestroy()
{
    ZN_ASSERT(sVectors != nullptr, "Not created static vectors.\n");
    if (sVectors == nullptr)
        return;
    newNodesParent();
    flaggedNodesDestroy();
    sVectors.reset();
}

void znINode::flaggedNodesDestroy()
{
    ZN_ASSERT(sVectors != nullptr, "Not initialised static vectors.\n");
    if (sVectors == nullptr)
        return;
    // By place: a destructor may flag further nodes, and a node that dies takes its own entry out.
    for (std::size_t i = 0; i < sVectors->mFlagged.size(); ++i)
    {
        if (sVectors->mFlagged[i] == nullptr)
            continue;
        listenerDeregister(sVectors->mFlagged[i]);
        delete sVectors->mFlagged[i];
    }
    sVectors->mFlagged.clear();
}

void znINode::newNodesParent()
{
    ZN_ASSERT(sVectors != nullptr, "Not initialised static vectors.\n");
    if (sVectors == nullptr)
        return;
    std::vector<NewNode>& pairs = sVectors->mNewNodes;
    const std::size_t count = pairs.size();
    for (std::size_t i = 0; i < count; ++i)
    {
        const NewNode pair = pairs[i];
        --pair.mParent->mNewNodesCount;
        --pair.mChild->mNewNodesCount;
        ZN_ASSERT(!pair.mParent->mInUpdate, "Parent node should not be in an update.\n");
        pair.mParent->childAdd(pair.mChild); // one in an update defers its child again, behind the others
    }
    pairs.erase(pairs.begin(), pairs.begin() + static_cast<std::ptrdiff_t>(count));
}

// --- transform ---

void znINode::posSet(s32 pX, s32 pY)
{
    if (mPos.mX == pX && mPos.mY == pY)
        return;
    mPos.mX = pX;
    mPos.mY = pY;
    matrixDirtyMark();
}

void znINode::posSet(const znPoint& pPos)
{
    if (mPos.mX == pPos.mX && mPos.mY == pPos.mY)
        return;
    posSet(pPos.mX, pPos.mY);
    posChangeHandle();
}

znPoint znINode::posRelativeToAncestorGet(const znINode* pAncestor) const
{
    u32 x = 0; // unsigned: hostile positions wrap
    u32 y = 0;
    const znINode* node = this;
    for (; node != nullptr && node != pAncestor; node = node->mParent)
    {
        x += static_cast<u32>(node->mPos.mX);
        y += static_cast<u32>(node->mPos.mY);
    }
    ZN_ASSERT(node == pAncestor && pAncestor != nullptr, "%s is not an ancestor of %s.\n",
              pAncestor != nullptr ? pAncestor->mName.c_str() : "", mName.c_str());
    return znPoint(static_cast<s32>(x), static_cast<s32>(y));
}

znPoint znINode::worldPosGet() const
{
    const float in[2] = {0.0f, 0.0f};
    float out[2];
    mWorldMatrix.transform(in, out);
    return znPoint(truncatedGet(out[0]), truncatedGet(out[1]));
}

void znINode::scaleSet(float pScale)
{
    scaleSet(pScale, pScale);
}

void znINode::scaleSet(float pX, float pY)
{
    if (mScaleX == pX && mScaleY == pY)
        return;
    mScaleX = pX;
    mScaleY = pY;
    matrixDirtyMark();
}

float znINode::scaleGet() const
{
    ZN_ASSERT(mScaleX == mScaleY, "Getting the scale of a matrix when mScaleX and mScaleY are different.\n");
    return mScaleX;
}

void znINode::rotationTargetSet(float pRadians, float pSpeedPerSecond)
{
    const float difference = pRadians - mRotation;
    mRotationTarget = pRadians;
    mTurning = mRotationTarget != mRotation;
    mRotationSpeed = pSpeedPerSecond / 1000.0f;
    mRotationDirection = difference > 0.0f ? 1.0f : -1.0f;
    if (std::fabs(difference) > PI)
        mRotationDirection = -mRotationDirection;
    busyMark();
}

float znINode::rotationRemainingGet() const
{
    if (mRotationDirection > 0.0f && mRotation > mRotationTarget)
        return std::fabs((TWO_PI + mRotationTarget) - mRotation);
    if (mRotationDirection < 0.0f && mRotationTarget > mRotation)
        return std::fabs(mRotationTarget - (TWO_PI + mRotation));
    return std::fabs(mRotationTarget - mRotation);
}

void znINode::rotationAdvance(s32 pDeltaMs)
{
    const float step = mRotationSpeed * mRotationDirection * static_cast<float>(pDeltaMs);
    if (rotationRemainingGet() <= std::fabs(step))
        mRotation = mRotationTarget;
    else
    {
        mRotation += step;
        if (mRotation < 0.0f)
            mRotation += TWO_PI;
        else if (mRotation >= TWO_PI)
            mRotation -= TWO_PI;
    }
    mTurning = mRotation != mRotationTarget;
    matrixDirtyMark();
}

bool znINode::worldToLocalGet(const znPoint& pWorld, znPoint& pLocal)
{
    if (mMatrixDirty)
    {
        matrixRebuild();
        mMatrixDirty = false;
    }
    const float in[2] = {static_cast<float>(pWorld.mX), static_cast<float>(pWorld.mY)};
    float out[2];
    const bool inverted = mWorldMatrix.inverseTransform(in, out);
    pLocal = inverted ? znPoint(truncatedGet(out[0]), truncatedGet(out[1])) : znPoint(0, 0);
    return inverted;
}

void znINode::busyMark()
{
    for (znINode* node = mParent; node != nullptr && !node->mBusyBelow; node = node->mParent)
        node->mBusyBelow = true;
}

// Whether treeUpdate has to come here.
bool znINode::busyGet() const
{
    return mUpdates | mBusyBelow | mDirtyBelow | mTurning; // one test in place of four
}

void znINode::stepsChangeMark()
{
    if (mUpdates)
        busyMark();
    znNRenderChanges::structureMark();
}

inline void znINode::matrixMake()
{
    mLocalMatrix.fromPosScaleRotation(mPos, mScaleX, mScaleY, mRotation);
    mWorldMatrix = mParent == nullptr ? mLocalMatrix : mParent->mWorldMatrix * mLocalMatrix;
    if (mSprite != nullptr)
        mSprite->matrixApply(mWorldMatrix);
    else if (mAppliesMatrix)
        matrixApply();
}

// Whether all that treeUpdate would do is to rebuild the matrix of this one node, and nobody hears of it who might do
// something else.
bool znINode::moveOnlyGet() const
{
    return mMatrixDirty && !(mUpdates | mBusyBelow | mTurning) && mChildren.empty() &&
           (mSprite != nullptr || !mAppliesMatrix);
}

void znINode::moveFinish()
{
    matrixMake();
    mMatrixDirty = false;
    mDirtyBelow = false;
}

void znINode::matrixRebuild()
{
    matrixMake();
    for (std::size_t i = 0; i < mChildren.size(); ++i)
        mChildren[i]->matrixRebuild();
}

// Rebuilds from the topmost dirty nodes down. A dirty node below one keeps its flag, for the next refresh.
void znINode::matrixRefresh()
{
    if (!mDirtyBelow)
        return;
    if (mMatrixDirty)
    {
        matrixRebuild();
        mMatrixDirty = false;
    }
    else
        for (std::size_t i = 0; i < mChildren.size(); ++i)
            mChildren[i]->matrixRefresh();
    mDirtyBelow = mMatrixDirty;
    for (const znINode* child : mChildren)
        mDirtyBelow = mDirtyBelow || child->mDirtyBelow;
}

// --- state and traversals ---

bool znINode::activeInTreeGet() const
{
    const znINode* node = this;
    while (node != nullptr && node->mActive)
        node = node->mParent;
    return node == nullptr;
}

// The walks go by place, since what they call may add children.
void znINode::treeUpdate(s32 pDeltaMs)
{
    if (mTurning)
        rotationAdvance(pDeltaMs);
    if (mUpdates)
        update(pDeltaMs);
    if (mBusyBelow)
        childrenUpdate(pDeltaMs);
    if (mDirtyBelow)
        matrixRefresh();
}

// What is marked while the children are walked stays marked: a node that was passed may have become busy.
void znINode::childrenUpdate(s32 pDeltaMs)
{
    bool busy = false;
    bool dirty = false;
    mBusyBelow = false;
    mDirtyBelow = mMatrixDirty;
    mInUpdate = true;
    for (std::size_t i = 0; i < mChildren.size(); ++i)
    {
        znINode& child = *mChildren[i];
        if (!child.busyGet())
            continue;
        if (child.moveOnlyGet())
            child.moveFinish();
        else
            child.treeUpdate(pDeltaMs);
        busy = busy | child.busyGet();
        dirty = dirty | child.mDirtyBelow;
    }
    mInUpdate = false;
    mBusyBelow = mBusyBelow || busy;
    mDirtyBelow = mDirtyBelow || dirty;
}

void znINode::treeRender()
{
    if (mRenderList == nullptr)
        mRenderList = std::make_unique<znCRenderList>();
    if (!mActive)
        return;
    znINode* stopped = nullptr;
    if (mRenderList->isCurrent())
        stopped = mRenderList->render();
    else
    {
        mRenderList->clear(znNRenderChanges::structureGet());
        subtreeRender(*mRenderList);
    }
    if (stopped != nullptr)
        restRender(*stopped, *mRenderList);
}

void znINode::subtreeRender(znCRenderList& pList)
{
    if (!mActive)
        return;
    if (mSprite != nullptr)
        pList.spriteRender(*mSprite);
    else if (mRenders)
        pList.nodeRender(*this);
    for (std::size_t i = 0; i < mChildren.size(); ++i)
        mChildren[i]->subtreeRender(pList);
}

// What a walk from this node down meets behind pLast. The list is out of date already and serves as a place only.
void znINode::restRender(znINode& pLast, znCRenderList& pList)
{
    for (std::size_t i = 0; i < pLast.mChildren.size(); ++i)
        pLast.mChildren[i]->subtreeRender(pList);
    for (znINode* node = &pLast; node != this && node->mParent != nullptr; node = node->mParent)
    {
        const std::vector<znINode*>& siblings = node->mParent->mChildren;
        const auto place = std::find(siblings.begin(), siblings.end(), node);
        for (auto i = static_cast<std::size_t>(place - siblings.begin()) + 1; i < siblings.size(); ++i)
            siblings[i]->subtreeRender(pList);
    }
}

void znINode::treeInitialise()
{
    for (std::size_t i = 0; i < mChildren.size(); ++i)
        mChildren[i]->treeInitialise();
    initialiseDo();
    if (auto* listener = dynamic_cast<znIMessageListener*>(this))
        listener->messagesRegister();
}

void znINode::initialiseFromVariableTable(const znCVariableTable& pTable)
{
    const std::string name = pTable.strGet("name");
    if (!name.empty())
    {
        ZN_ASSERT(mName.empty(), "Changing the name of a node that has already been set (%s -> %s)\n", mName.c_str(),
                  name.c_str());
        mName = name;
    }
    const s32 x = pTable.s32Get("posX");
    const s32 y = pTable.s32Get("posY");
    if (x != 0 || y != 0)
        posSet(znPoint(x, y));
    initialiseFromVariableTableDo(pTable);
}

// --- saving ---

std::string znINode::saveKeyGet() const
{
    constexpr char DIGITS[] = "0123456789abcdef";
    const u32 hash = znCUniqueId::hashGet(mName);
    std::string key(KEY_DIGITS + 1, '{');
    for (std::size_t i = 0; i < KEY_DIGITS; ++i)
        key[i] = DIGITS[(hash >> (28 - 4 * i)) & 15u];
    return key;
}

void znINode::treeSave(std::string& pOut)
{
    pOut += saveKeyGet();
    mySave(pOut);
    for (std::size_t i = 0; i < mChildren.size(); ++i)
        mChildren[i]->treeSave(pOut);
    pOut += '}';
}

void znINode::treeLoad(std::string& pIn)
{
    std::size_t cursor = 0;
    treeLoadFrom(pIn, cursor);
    pIn.erase(0, cursor);
}

// Nodes mostly load in the order in which they were saved. Their sections are then stepped over by pCursor instead of
// being erased one by one, which would move the rest of the text each time.
void znINode::treeLoadFrom(std::string& pIn, std::size_t& pCursor)
{
    std::string section = sectionCut(pIn, pCursor);
    const std::size_t standing = mChildren.size();
    myLoad(section);
    std::size_t cursor = 0;
    // What comes up while the others load may be new since the save, and must not read what belongs to others.
    for (std::size_t i = 0; i < mChildren.size(); ++i)
        if (i < standing || section.find(mChildren[i]->saveKeyGet(), cursor) != std::string::npos)
            mChildren[i]->treeLoadFrom(section, cursor);
    myPostLoad();
}

std::string znINode::myLoadStringGet(std::string& pIn)
{
    std::size_t cursor = 0;
    std::string section = sectionCut(pIn, cursor);
    pIn.erase(0, cursor);
    return section;
}

// This node's section of the text behind pCursor, taken out of it: by moving pCursor if it comes first, by erasing it
// otherwise.
std::string znINode::sectionCut(std::string& pIn, std::size_t& pCursor) const
{
    const std::string key = saveKeyGet();
    const std::size_t start = pIn.find(key, pCursor);
    ZN_ASSERT(start != std::string::npos, "No saved data for entity %s exists.\n", mName.c_str());
    if (start == std::string::npos)
        return pIn.substr(pCursor);

    const std::size_t begin = start + key.size();
    std::size_t end = begin; // of the section: its closing brace
    for (s32 depth = 1; depth > 0;)
    {
        // A section is never empty, so its first character is no brace.
        end = end < pIn.size() ? pIn.find_first_of("{}", end + 1) : std::string::npos;
        ZN_ASSERT(end != std::string::npos, "Failed to match '{' with '}' in saved data.\n");
        if (end == std::string::npos)
            break;
        depth += pIn[end] == '{' ? 1 : -1;
    }
    std::string section = pIn.substr(begin, end == std::string::npos ? end : end - begin);
    const std::size_t next = end == std::string::npos ? pIn.size() : end + 1;
    if (start == pCursor)
        pCursor = next;
    else
        pIn.erase(start, next - start);
    return section;
}

void znINode::s32Save(std::string& pOut, s32 pValue)
{
    char digits[16];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof(digits), pValue);
    pOut.append(digits, end.ptr);
    pOut += ',';
}

void znINode::boolSave(std::string& pOut, bool pValue)
{
    pOut += pValue ? "1," : "0,";
}

void znINode::strSave(std::string& pOut, const std::string& pValue)
{
    constexpr char DIGITS[] = "0123456789ABCDEF";
    for (const char c : pValue)
    {
        if (std::strchr(ESCAPED, c) == nullptr || c == '\0')
        {
            pOut += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        pOut += ESCAPE;
        pOut += DIGITS[byte >> 4];
        pOut += DIGITS[byte & 15];
    }
    pOut += ',';
}

void znINode::posSave(std::string& pOut, const znPoint& pValue)
{
    s32Save(pOut, pValue.mX);
    s32Save(pOut, pValue.mY);
}

s32 znINode::s32Load(std::string& pIn)
{
    std::string field;
    const bool found = fieldCut(pIn, field);
    ZN_ASSERT(found, "Expected to find a ',' in the saved data.\n");
    return s32FromText(field);
}

bool znINode::boolLoad(std::string& pIn)
{
    std::string field;
    const bool found = fieldCut(pIn, field);
    ZN_ASSERT(found, "Expected to find a ',' in the saved data.\n");
    return field == "1";
}

std::string znINode::strLoad(std::string& pIn)
{
    std::string field;
    const bool found = fieldCut(pIn, field);
    ZN_ASSERT(found, "Expected to find a ',' in the saved data.\n");
    return unescapedGet(field);
}

znPoint znINode::posLoad(std::string& pIn)
{
    const s32 x = s32Load(pIn);
    const s32 y = s32Load(pIn);
    return znPoint(x, y);
}
