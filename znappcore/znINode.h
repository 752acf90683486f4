#ifndef ZNAPPCORE_ZNINODE_H
#define ZNAPPCORE_ZNINODE_H

// A node of the one tree that holds everything in a running scene: links, a name, a 2D transform and the traversals.
//
// A node owns its children and deletes them with itself. Two rules hold for the whole tree:
// - Its shape doesn't change under a running update. childAdd under a node whose children are being updated waits until
//   newNodesParent(), and destroy() waits until flaggedNodesDestroy(); the frame calls both at fixed points. Both need
//   the static vectors, which live from staticVectorsCreate() to staticVectorsDestroy().
// - World matrices are rebuilt once a frame, at the end of treeUpdate, from the topmost dirty node down.
//
// Positions are canvas units relative to the parent, angles radians, times milliseconds. Main thread only.

#include "znappcore/znNRenderChanges.h"
#include "zncore/znAffineMtx2d.h"
#include "zncore/znPoint.h"
#include "zncore/znTypes.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

class znCRenderList;
class znCSprite;
class znCVariableTable;

class znINode
{
public:
    explicit znINode(const std::string& pName);
    znINode(const znINode&) = delete;
    znINode& operator=(const znINode&) = delete;

    // Deletes the children, deregistering those that are message listeners, and leaves the parent.
    virtual ~znINode();

    // --- steps for subclasses, all empty here ---
    virtual void initialiseFromVariableTableDo(const znCVariableTable& pTable);
    virtual void initialiseDo(); // once, after the children's; before the node starts to listen
    virtual void update(s32 pDeltaMs);
    virtual void render();
    virtual void posChangeHandle(); // the position was set as a point or read from a table
    virtual void matrixApply();     // the world matrix was rebuilt
    virtual void mySave(std::string& pOut);
    virtual void myLoad(std::string& pIn);
    virtual void myPostLoad(); // after the children were loaded

    // --- tree ---
    // Takes over pChild, from its present parent if it has one, and puts it behind the other children. A child of this
    // node already: nothing happens. While this node's children are being updated the child waits, without this parent,
    // for newNodesParent(). If the present parent can't let go of it, nothing changes.
    void childAdd(znINode* pChild);
    // Hands pChild back to the caller, who owns it from then on.
    void childRemove(znINode* pChild);
    // Flags the node, with all below it, for deletion at the next flaggedNodesDestroy(). The first call counts, a
    // second is logged.
    void destroy();
    void bringToFrontOfSiblings(); // painted last
    void pushToBackOfSiblings();
    // This node or the first below it, depth first, of that name; null if there is none. Children that wait for
    // newNodesParent() are found too.
    znINode* childFind(const std::string& pName);
    const std::string& nameGet() const { return mName; }
    void nameSet(const std::string& pName) { mName = pName; }
    znINode* parentGet() const { return mParent; }
    const std::vector<znINode*>& childrenGet() const { return mChildren; }

    static void staticVectorsCreate();
    // Settles what still waits: pending children join their parents, flagged nodes are deleted.
    static void staticVectorsDestroy();
    static void flaggedNodesDestroy();
    static void newNodesParent();

    // --- transform ---
    void posSet(s32 pX, s32 pY);      // without posChangeHandle()
    void posSet(const znPoint& pPos); // with posChangeHandle() on a change
    const znPoint& posGet() const { return mPos; }
    // Sum of the positions of this node and those above it below pAncestor; scale and rotation play no part. Logged if
    // pAncestor doesn't stand above; the sum up to the top is the answer then.
    znPoint posRelativeToAncestorGet(const znINode* pAncestor) const;
    // Device pixels, truncated towards zero; as of the last update.
    znPoint worldPosGet() const;
    void scaleSet(float pScale);
    void scaleSet(float pX, float pY);
    float scaleGet() const; // the x scale; logged if the y scale differs
    float scaleYGet() const { return mScaleY; }
    void rotationSet(float pRadians); // ends a turn in progress
    float rotationGet() const { return mRotation; }
    // Starts a turn to pRadians, from 0 to below 2 pi, the short way round.
    void rotationTargetSet(float pRadians, float pSpeedPerSecond);
    const znAffineMtx2d& worldMatrixGet() const { return mWorldMatrix; } // as of the last update
    // Device pixels to this node's own space, with a fresh matrix; truncated towards zero. False, and (0, 0), if the
    // node is scaled to nothing.
    bool worldToLocalGet(const znPoint& pWorld, znPoint& pLocal);

    // --- state ---
    // An inactive node isn't painted, nor is anything below it; it goes on updating.
    void activeSet(bool pActive)
    {
        if (mActive != pActive)
            znNRenderChanges::structureMark();
        mActive = pActive;
    }
    bool activeGet() const { return mActive; }
    bool activeInTreeGet() const; // this node and all above it are active

    // --- traversals ---
    void treeUpdate(s32 pDeltaMs);
    void treeRender();
    // Once, when a tree of nodes is complete: initialiseDo() from the leaves up; listeners start to listen.
    void treeInitialise();
    void treeSave(std::string& pOut);
    // Takes this node's section, and those of the nodes below it, out of pIn. A child that comes up meanwhile stays as
    // it is if pIn has no section of its name. A text of another tree, say of an earlier state of the data, must be
    // fitted first (znNSavedTree.h).
    void treeLoad(std::string& pIn);

    // --- set-up and saving ---
    // Keys "name", "posX", "posY", then the subclass's own.
    void initialiseFromVariableTable(const znCVariableTable& pTable);
    // Cuts this node's section out of pIn and returns it without key and closing brace. Without one it logs and returns
    // a copy of pIn.
    std::string myLoadStringGet(std::string& pIn);

    // The fields of the save text, for mySave() and myLoad() of nodes and components: a loader cuts its field off the
    // front of the text. Texts may hold anything; ',', '{', '}', '"' and '%' stand there as '%' and two digits.
    static void s32Save(std::string& pOut, s32 pValue);
    static void boolSave(std::string& pOut, bool pValue);
    static void strSave(std::string& pOut, const std::string& pValue);
    static void posSave(std::string& pOut, const znPoint& pValue);
    static s32 s32Load(std::string& pIn);
    static bool boolLoad(std::string& pIn);
    static std::string strLoad(std::string& pIn);
    static znPoint posLoad(std::string& pIn);

protected:
    // The next update rebuilds the matrices of this node and of all below it.
    void matrixDirtyMark();
    // After a change of what the walks have to do at this node.
    void stepsChangeMark();
    // Rebuilds the matrices of this node and of all below it at once.
    void matrixRebuild();
    // Deletes all children, for a class whose children must go while it is still whole.
    void childrenDelete();

    // What the walks over a still tree look at comes first, within one cache line.
    std::vector<znINode*> mChildren; // owned: deleted in the destructor; paint order
    znINode* mParent = nullptr;
    float mRotation = 0.0f;
    float mRotationTarget = 0.0f; // the node turns while it differs from mRotation
    bool mInUpdate = false;       // the children are being walked by treeUpdate
    bool mActive = true;
    bool mMatrixDirty = false;
    // False where update(), render() or matrixApply() would do nothing: the walks save the call. Changes go with
    // stepsChangeMark().
    bool mUpdates = true;
    bool mRenders = true;
    bool mAppliesMatrix = true;
    // If all that render() and matrixApply() would do is to hand these on to one sprite: that sprite; not owned.
    znCSprite* mSprite = nullptr;

private:
    // This node or one below it is dirty; set in all nodes above a dirty one, so that still subtrees cost nothing.
    bool mDirtyBelow = false;
    // A node below this one is dirty, turns or updates; set in all nodes above such a one. Else treeUpdate stops here.
    bool mBusyBelow = false;
    bool mTurning = false; // mRotation may be on its way to mRotationTarget

protected:
    // What a moving node looks at.
    znPoint mPos{0, 0};
    float mScaleX = 1.0f;
    float mScaleY = 1.0f;
    znAffineMtx2d mLocalMatrix;
    znAffineMtx2d mWorldMatrix;
    float mRotationDirection = 1.0f;
    float mRotationSpeed = 0.0f; // radians per millisecond
    std::string mName;

private:
    std::unique_ptr<znCRenderList> mRenderList; // of the last treeRender(), in the node that it was called on
    s32 mFlaggedIndex = -1;                     // place among the flagged nodes
    s32 mNewNodesCount = 0;                     // pairs of the new nodes that this node stands in

    void childErase(znINode* pChild);
    void newNodesLeave();
    void matrixRefresh();
    void matrixMake();
    bool moveOnlyGet() const;
    void moveFinish();
    bool busyGet() const;
    void busyMark();
    void childrenUpdate(s32 pDeltaMs);
    void subtreeRender(znCRenderList& pList);
    void restRender(znINode& pLast, znCRenderList& pList);
    void rotationAdvance(s32 pDeltaMs);
    float rotationRemainingGet() const;
    void siblingsReorder(bool pToFront);
    std::string saveKeyGet() const;
    std::string sectionCut(std::string& pIn, std::size_t& pCursor) const;
    void treeLoadFrom(std::string& pIn, std::size_t& pCursor);
};

// In the header: whatever moves comes here each frame.
inline void znINode::matrixDirtyMark()
{
    mMatrixDirty = true;
    mDirtyBelow = true;
    for (znINode* node = mParent; node != nullptr && !(node->mDirtyBelow && node->mBusyBelow); node = node->mParent)
    {
        node->mDirtyBelow = true;
        node->mBusyBelow = true;
    }
}

inline void znINode::rotationSet(float pRadians)
{
    mRotationTarget = pRadians;
    mTurning = false;
    if (mRotation == pRadians)
        return;
    mRotation = pRadians;
    matrixDirtyMark();
}

#endif
