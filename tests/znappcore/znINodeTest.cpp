#include "znappcore/znINode.h"

#include "tests/support/allocationCount.h"
#include "tests/znappcore/znCTreeTest.h"
#include "znappcore/znIMessageListenerEntity.h"
#include "zncore/src/znCVariableTable.h"

#include <cmath>
#include <functional>
#include <map>
#include <memory>
#include <numbers>

namespace
{
using Journal = std::vector<std::string>;

// Writes down what happens to it, and does in its steps what a test asks for.
class JournalNode : public znINode
{
public:
    JournalNode(const std::string& pName, Journal& pJournal) : znINode(pName), mJournal(pJournal) {}
    ~JournalNode() override
    {
        if (mOnDestruction)
            mOnDestruction();
        note("destroyed");
    }

    void update(s32) override
    {
        note("update");
        if (mOnUpdate)
            mOnUpdate();
    }
    void render() override { note("render"); }
    void initialiseDo() override { note("initialise"); }
    void posChangeHandle() override { note("position"); }
    void matrixApply() override { note("matrix"); }
    void mySave(std::string& pOut) override { strSave(pOut, mText); }
    void myLoad(std::string& pIn) override { mText = strLoad(pIn); }
    void myPostLoad() override { note("loaded " + mText); }

    std::function<void()> mOnUpdate;
    std::function<void()> mOnDestruction;
    std::string mText = "t";

private:
    void note(const std::string& pWhat) { mJournal.push_back(nameGet() + " " + pWhat); }

    Journal& mJournal;
};

class znINodeTest : public znCTreeTest
{
protected:
    // A child of pParent, which owns it; without a parent of mRoot.
    JournalNode* nodeAdd(const std::string& pName, znINode* pParent = nullptr)
    {
        auto* node = new JournalNode(pName, mJournal);
        (pParent == nullptr ? mRoot.get() : pParent)->childAdd(node);
        return node;
    }

    Journal journalTake()
    {
        Journal journal;
        journal.swap(mJournal);
        return journal;
    }

    static Journal childNamesGet(const znINode& pNode)
    {
        Journal names;
        for (const znINode* child : pNode.childrenGet())
            names.push_back(child->nameGet());
        return names;
    }

    static s32 count(const Journal& pJournal, const std::string& pWhat)
    {
        return static_cast<s32>(std::count(pJournal.begin(), pJournal.end(), pWhat));
    }

    // The end of a frame's update.
    static void frameEnd()
    {
        znINode::flaggedNodesDestroy();
        znINode::newNodesParent();
    }

    void TearDown() override
    {
        mRoot.reset();
        znCTreeTest::TearDown();
    }

    Journal mJournal;
    std::unique_ptr<znINode> mRoot = std::make_unique<znINode>("root");
};
} // namespace

// --- shape ---

TEST_F(znINodeTest, ChildAddedInTheNodesOwnUpdateIsUpdatedInThatFrame)
{
    JournalNode* parent = nodeAdd("parent");
    parent->mOnUpdate = [&]
    {
        nodeAdd("child", parent);
        parent->mOnUpdate = nullptr;
    };
    mRoot->treeUpdate(16);
    EXPECT_EQ(count(mJournal, "child update"), 1);
}

TEST_F(znINodeTest, ChildAddedWhileSiblingsAreUpdatedWaitsButIsFound)
{
    JournalNode* first = nodeAdd("first");
    nodeAdd("second");
    JournalNode* added = nullptr;
    first->mOnUpdate = [&]
    {
        added = nodeAdd("added");
        nodeAdd("below", added);
        first->mOnUpdate = nullptr;
    };
    mRoot->treeUpdate(16);
    EXPECT_EQ(added->parentGet(), nullptr);
    EXPECT_EQ(mRoot->childFind("added"), added);
    EXPECT_EQ(mRoot->childFind("below"), nullptr) << "only the waiting child itself is found";
    frameEnd();
    EXPECT_EQ(childNamesGet(*mRoot), (Journal{"first", "second", "added"}));
    EXPECT_EQ(count(mJournal, "added update"), 0);
    mRoot->treeRender();
    EXPECT_EQ(count(mJournal, "added render"), 1);
}

TEST_F(znINodeTest, AddingAgainKeepsTheOrderAndAddingElsewhereMoves)
{
    JournalNode* a = nodeAdd("a");
    JournalNode* b = nodeAdd("b");
    mRoot->childAdd(a);
    EXPECT_EQ(childNamesGet(*mRoot), (Journal{"a", "b"}));
    b->childAdd(a);
    EXPECT_EQ(childNamesGet(*mRoot), (Journal{"b"}));
    EXPECT_EQ(a->parentGet(), b);
    mRoot->childAdd(nullptr);
    EXPECT_EQ(errorsTake(), (Journal{"No child to add."}));
}

TEST_F(znINodeTest, ParentInUpdateKeepsItsChildren)
{
    JournalNode* child = nodeAdd("child");
    znINode other("other");
    child->mOnUpdate = [&]
    {
        mRoot->childRemove(child);
        other.childAdd(child);
        child->bringToFrontOfSiblings();
        child->pushToBackOfSiblings();
    };
    mRoot->treeUpdate(16);
    EXPECT_EQ(childNamesGet(*mRoot), (Journal{"child"}));
    EXPECT_TRUE(other.childrenGet().empty());
    EXPECT_EQ(errorsTake(),
              (Journal{"Trying to remove a child whilst in update.", "Trying to remove a child whilst in update.",
                       "Trying to reorder nodes during an update.", "Trying to reorder nodes during an update."}));
}

TEST_F(znINodeTest, ReordersSiblings)
{
    struct Case
    {
        const char* mNode;
        bool mToFront;
        Journal mOrder;
    };
    const Case cases[] = {
        {"a", true, {"b", "c", "a"}},  {"b", true, {"a", "c", "b"}},  {"c", true, {"a", "b", "c"}},
        {"a", false, {"a", "b", "c"}}, {"b", false, {"b", "a", "c"}}, {"c", false, {"c", "a", "b"}},
    };
    for (const Case& test : cases)
    {
        znINode parent("parent");
        for (const char* name : {"a", "b", "c"})
            parent.childAdd(new znINode(name));
        znINode* node = parent.childFind(test.mNode);
        test.mToFront ? node->bringToFrontOfSiblings() : node->pushToBackOfSiblings();
        EXPECT_EQ(childNamesGet(parent), test.mOrder) << test.mNode << test.mToFront;
    }
    mRoot->bringToFrontOfSiblings();
    EXPECT_EQ(errorsTake(), (Journal{"Trying to reorder a node with no parent."}));
}

TEST_F(znINodeTest, FindsTheFirstInDepthFirstOrder)
{
    JournalNode* a = nodeAdd("a");
    JournalNode* deep = nodeAdd("x", nodeAdd("b", a));
    nodeAdd("x");
    EXPECT_EQ(mRoot->childFind("x"), deep);
    EXPECT_EQ(mRoot->childFind("root"), mRoot.get());
    EXPECT_EQ(a->childFind("root"), nullptr);
}

TEST_F(znINodeTest, RemovesOnlyItsOwnChild)
{
    JournalNode* a = nodeAdd("a");
    JournalNode* b = nodeAdd("b", a);
    mRoot->childRemove(b);
    EXPECT_EQ(errorsTake(), (Journal{"Child not found to remove."}));
    a->childRemove(b);
    EXPECT_EQ(b->parentGet(), nullptr);
    delete b;
}

// --- destruction ---

TEST_F(znINodeTest, DestructionWaitsForItsPlaceInTheFrame)
{
    JournalNode* first = nodeAdd("first");
    JournalNode* second = nodeAdd("second");
    first->mOnUpdate = [&]
    {
        second->destroy();
        second->destroy();
    };
    mRoot->treeUpdate(16);
    EXPECT_EQ(count(mJournal, "second update"), 1);
    EXPECT_EQ(errorsTake(), (Journal{"Already flagged for destruction."}));
    frameEnd();
    EXPECT_EQ(count(mJournal, "second destroyed"), 1);
    EXPECT_EQ(childNamesGet(*mRoot), (Journal{"first"}));
}

// Each of these once left a pointer to a dead node, or a node that nobody deletes.
TEST_F(znINodeTest, EveryWayToDieLeavesNoTrace)
{
    const std::map<std::string, std::function<void()>> ways{
        {"parent and child flagged",
         [&]
         {
             JournalNode* parent = nodeAdd("parent");
             parent->destroy();
             nodeAdd("child", parent)->destroy();
         }},
        {"child and parent flagged",
         [&]
         {
             JournalNode* parent = nodeAdd("parent");
             nodeAdd("child", parent)->destroy();
             parent->destroy();
         }},
        {"flagged by a destructor of the same walk",
         [&]
         {
             JournalNode* parent = nodeAdd("parent");
             JournalNode* child = nodeAdd("child");
             parent->mOnDestruction = [child]
             {
                 child->destroy();
             };
             parent->destroy();
         }},
        {"flagged, then deleted",
         [&]
         {
             JournalNode* parent = nodeAdd("parent");
             nodeAdd("child", parent);
             parent->destroy();
             delete parent;
         }},
        {"child waits for a flagged parent",
         [&]
         {
             JournalNode* parent = nodeAdd("parent");
             JournalNode* toucher = nodeAdd("toucher", parent);
             toucher->mOnUpdate = [=, this]
             {
                 nodeAdd("child", parent);
                 parent->destroy();
             };
             mRoot->treeUpdate(16);
         }},
        {"waiting child is flagged",
         [&]
         {
             JournalNode* parent = nodeAdd("parent");
             JournalNode* toucher = nodeAdd("toucher");
             toucher->mOnUpdate = [=, this]
             {
                 nodeAdd("child")->destroy();
                 parent->destroy();
                 toucher->destroy();
             };
             mRoot->treeUpdate(16);
         }},
        {"child of another waits for a flagged parent",
         [&]
         {
             JournalNode* parent = nodeAdd("parent");
             JournalNode* child = nodeAdd("child");
             JournalNode* toucher = nodeAdd("toucher", parent);
             toucher->mOnUpdate = [=]
             {
                 parent->childAdd(child);
                 parent->destroy();
             };
             mRoot->treeUpdate(16);
             child->destroy();
         }},
    };
    for (const auto& [name, way] : ways)
    {
        SCOPED_TRACE(name);
        way();
        frameEnd();
        EXPECT_EQ(count(mJournal, "parent destroyed"), 1);
        EXPECT_EQ(count(mJournal, "child destroyed"), 1);
        EXPECT_TRUE(mRoot->childrenGet().empty());
        mJournal.clear();
    }
}

TEST_F(znINodeTest, NodeDeletedUnderItsParentsUpdateIsLoggedAndGone)
{
    JournalNode* first = nodeAdd("first");
    JournalNode* second = nodeAdd("second");
    nodeAdd("third");
    first->mOnUpdate = [&]
    {
        delete second;
    };
    mRoot->treeUpdate(16);
    EXPECT_EQ(childNamesGet(*mRoot), (Journal{"first", "third"}));
    EXPECT_EQ(errorsTake(), (Journal{"Trying to remove a child whilst in update."}));
}

TEST_F(znINodeTest, ChildrenDieFirstToLastAndListenersStopListening)
{
    class Listener : public znIMessageListenerEntity
    {
    public:
        Listener(const std::string& pName, Journal& pJournal) : znIMessageListenerEntity(pName), mJournal(pJournal) {}
        void messagesRegister() override { mJournal.push_back(nameGet() + " listens"); }
        void messagesDeregister() override { mJournal.push_back(nameGet() + " deaf"); }
        bool messageProcess(const znCUniqueId&, void*) override { return false; }

    private:
        Journal& mJournal;
    };
    JournalNode* parent = nodeAdd("parent");
    parent->childAdd(new Listener("a", mJournal));
    nodeAdd("b", parent);
    auto* flagged = new Listener("c", mJournal);
    mRoot->childAdd(flagged);
    mRoot->treeInitialise();
    EXPECT_EQ(journalTake(), (Journal{"a listens", "b initialise", "parent initialise", "c listens"}));
    flagged->destroy();
    frameEnd();
    EXPECT_EQ(journalTake(), (Journal{"c deaf"}));
    mRoot.reset();
    EXPECT_EQ(journalTake(), (Journal{"parent destroyed", "a deaf", "b destroyed"}));
}

TEST_F(znINodeTest, DeferredWorkNeedsTheStaticVectors)
{
    JournalNode* node = nodeAdd("node");
    JournalNode* orphan = new JournalNode("orphan", mJournal);
    orphan->destroy();
    znINode::staticVectorsCreate();
    znINode::staticVectorsDestroy();
    EXPECT_EQ(count(mJournal, "orphan destroyed"), 1) << "the end of the vectors settles what still waits";
    node->destroy();
    znINode::staticVectorsDestroy();
    EXPECT_EQ(errorsTake(), (Journal{"Already created static vectors.", "Not initialised static vectors.",
                                     "Not created static vectors."}));
    znINode::staticVectorsCreate();
}

// --- transform ---

TEST_F(znINodeTest, TurnsTheShortWayAndArrives)
{
    const float pi = std::numbers::pi_v<float>;
    struct Case
    {
        float mFrom;
        float mTo;
        float mAfterOneStep; // of 0.5 radians
        s32 mSteps;
    };
    const Case cases[] = {
        {0.0f, 1.2f, 0.5f, 3},
        {1.2f, 0.0f, 0.7f, 3},
        {0.1f, 6.2f, 2 * pi - 0.4f, 1},   // down through 0
        {6.2f, 0.6f, 6.7f - 2 * pi, 2},   // up through 2 pi
        {0.25f, 6.0f, 2 * pi - 0.25f, 2}, // wraps, and has some way to go
        {3.0f, 3.4f, 3.4f, 1},            // less than a step
    };
    for (const Case& test : cases)
    {
        SCOPED_TRACE(test.mTo);
        znINode node("node");
        node.rotationSet(test.mFrom);
        node.rotationTargetSet(test.mTo, 5.0f);
        node.treeUpdate(100);
        if (test.mSteps > 1)
        {
            EXPECT_NEAR(node.rotationGet(), test.mAfterOneStep, 1e-5f);
        }
        for (s32 i = 1; i < test.mSteps; ++i)
        {
            EXPECT_NE(node.rotationGet(), test.mTo);
            node.treeUpdate(100);
        }
        EXPECT_EQ(node.rotationGet(), test.mTo);
    }
}

TEST_F(znINodeTest, SettingARotationEndsTheTurn)
{
    znINode node("node");
    node.rotationTargetSet(2.0f, 1.0f);
    node.treeUpdate(100);
    node.rotationSet(node.rotationGet());
    node.treeUpdate(100);
    EXPECT_NEAR(node.rotationGet(), 0.1f, 1e-6f);
}

TEST_F(znINodeTest, MatricesAreRebuiltOnceAndOnlyWhereSomethingChanged)
{
    JournalNode* a = nodeAdd("a");
    JournalNode* b = nodeAdd("b", a);
    JournalNode* c = nodeAdd("c");
    mRoot->treeUpdate(16);
    mRoot->treeUpdate(16);
    mJournal.clear();

    const auto matricesOfFrame = [&]
    {
        mRoot->treeUpdate(16);
        Journal journal = journalTake();
        std::erase_if(journal, [](const std::string& pLine) { return !pLine.ends_with("matrix"); });
        return journal;
    };
    EXPECT_EQ(matricesOfFrame(), Journal{});
    a->posSet(0, 0);
    a->scaleSet(1.0f);
    a->rotationSet(0.0f);
    EXPECT_EQ(matricesOfFrame(), Journal{}) << "the same value changes nothing";
    a->posSet(5, 5);
    EXPECT_EQ(matricesOfFrame(), (Journal{"a matrix", "b matrix"}));
    c->scaleSet(2.0f, 1.0f);
    EXPECT_EQ(matricesOfFrame(), (Journal{"c matrix"}));
    a->rotationTargetSet(1.0f, 0.0f);
    EXPECT_EQ(matricesOfFrame(), (Journal{"a matrix", "b matrix"})) << "a turn marks, however slow";
    a->rotationSet(0.0f);
    c->mOnUpdate = [&]
    {
        b->posSet(1, 1);
        c->mOnUpdate = nullptr;
    };
    EXPECT_EQ(matricesOfFrame(), (Journal{"b matrix"})) << "changed behind its own update";
    c->mOnUpdate = [&]
    {
        b->posSet(2, 2);
        a->posSet(6, 6);
        c->mOnUpdate = nullptr;
    };
    EXPECT_EQ(matricesOfFrame(), (Journal{"a matrix", "b matrix"}));
    EXPECT_EQ(matricesOfFrame(), (Journal{"b matrix"})) << "its own flag stands until its own turn";
    EXPECT_EQ(matricesOfFrame(), Journal{});
}

TEST_F(znINodeTest, NewSubtreesGetTheirMatricesWhereverTheyAreAdded)
{
    JournalNode* a = nodeAdd("a");
    JournalNode* b = nodeAdd("b", a);
    mRoot->treeUpdate(16);
    auto* c = new JournalNode("c", mJournal);
    nodeAdd("d", c)->posSet(3, 4);
    c->posSet(10, 20);
    b->childAdd(c);
    a->posSet(100, 200);
    mRoot->treeUpdate(16);
    const znPoint pos = mRoot->childFind("d")->worldPosGet();
    EXPECT_EQ(pos.mX, 113);
    EXPECT_EQ(pos.mY, 224);
}

TEST_F(znINodeTest, MapsBetweenWorldAndLocal)
{
    mRoot->posSet(400, 300);
    mRoot->scaleSet(2.0f, 0.5f);
    JournalNode* child = nodeAdd("child");
    child->posSet(10, -10);
    mRoot->treeUpdate(16);
    EXPECT_EQ(child->worldPosGet().mX, 420);
    EXPECT_EQ(child->worldPosGet().mY, 295);

    znPoint local;
    EXPECT_TRUE(child->worldToLocalGet(znPoint(417, 294), local));
    EXPECT_EQ(local.mX, -1) << "-1.5, towards zero";
    EXPECT_EQ(local.mY, -2);

    child->posSet(0, 0);
    EXPECT_TRUE(child->worldToLocalGet(znPoint(400, 300), local));
    EXPECT_EQ(local.mX, 0) << "a hit test sees where the node is now";

    child->scaleSet(0.0f);
    EXPECT_FALSE(child->worldToLocalGet(znPoint(417, 294), local));
    EXPECT_EQ(local.mX, 0);
    EXPECT_EQ(local.mY, 0);

    child->scaleSet(1e-30f);
    EXPECT_NO_FATAL_FAILURE(child->worldToLocalGet(znPoint(417, 294), local)) << "beyond any integer";
}

TEST_F(znINodeTest, SumsPositionsUpToAnAncestor)
{
    mRoot->posSet(1000, 1000);
    JournalNode* a = nodeAdd("a");
    JournalNode* b = nodeAdd("b", a);
    a->posSet(10, 20);
    a->scaleSet(3.0f);
    b->posSet(1, 2);
    EXPECT_EQ(b->posRelativeToAncestorGet(mRoot.get()).mX, 11);
    EXPECT_EQ(b->posRelativeToAncestorGet(a).mY, 2);
    EXPECT_EQ(a->posRelativeToAncestorGet(b).mX, 1010);
    EXPECT_EQ(errorsTake(), (Journal{"b is not an ancestor of a."}));
}

TEST_F(znINodeTest, InactiveHidesTheSubtreeAndGoesOnUpdating)
{
    JournalNode* a = nodeAdd("a");
    JournalNode* b = nodeAdd("b", a);
    a->activeSet(false);
    mRoot->treeUpdate(16);
    mRoot->treeRender();
    EXPECT_EQ(count(mJournal, "b update"), 1);
    EXPECT_EQ(count(mJournal, "a render") + count(mJournal, "b render"), 0);
    EXPECT_TRUE(b->activeGet());
    EXPECT_FALSE(b->activeInTreeGet());
}

TEST_F(znINodeTest, ScaleOfTwoScalesIsLogged)
{
    znINode node("node");
    node.scaleSet(2.0f, 3.0f);
    EXPECT_EQ(node.scaleGet(), 2.0f);
    EXPECT_EQ(node.scaleYGet(), 3.0f);
    EXPECT_EQ(errorsTake(), (Journal{"Getting the scale of a matrix when mScaleX and mScaleY are different."}));
}

TEST_F(znINodeTest, ReadsNameAndPositionFromATable)
{
    znCVariableTable table;
    table.strSet("name", "lamp");
    table.s32Set("posY", -7);
    JournalNode node("", mJournal);
    node.initialiseFromVariableTable(table);
    EXPECT_EQ(node.nameGet(), "lamp");
    EXPECT_EQ(node.posGet().mY, -7);
    EXPECT_EQ(count(mJournal, "lamp position"), 1);
    node.initialiseFromVariableTable(table);
    EXPECT_EQ(count(mJournal, "lamp position"), 1);
    EXPECT_EQ(errorsTake(), (Journal{"Changing the name of a node that has already been set (lamp -> lamp)"}));
}

// --- saving ---

TEST_F(znINodeTest, SavesSectionsAndLoadsThemByName)
{
    znCEntity plain("abc");
    std::string text;
    plain.treeSave(text);
    EXPECT_EQ(text, "0001a9a6{1,}");

    nodeAdd("a")->mText = "first";
    nodeAdd("below", nodeAdd("b"))->mText = "deep";
    nodeAdd("c")->mText = "last";
    std::string saved;
    for (znINode* child : mRoot->childrenGet())
        child->treeSave(saved);

    struct Case
    {
        const char* mName;
        Journal mOrder;
        Journal mLoaded;
    };
    const Case cases[] = {
        {"as saved", {"a", "b", "c"}, {"a loaded first", "below loaded deep", "b loaded t", "c loaded last"}},
        {"shuffled", {"c", "a", "b"}, {"c loaded last", "a loaded first", "below loaded deep", "b loaded t"}},
        {"one has left", {"a", "c"}, {"a loaded first", "c loaded last"}},
    };
    for (const Case& test : cases)
    {
        SCOPED_TRACE(test.mName);
        znINode holder("holder");
        for (const std::string& name : test.mOrder)
        {
            JournalNode* node = nodeAdd(name, &holder);
            if (name == "b")
                nodeAdd("below", node);
        }
        mJournal.clear();
        // The holder's own fields are none: its section starts with a character that stands for them.
        std::string section = saved;
        for (znINode* child : holder.childrenGet())
            child->treeLoad(section);
        EXPECT_EQ(journalTake(), test.mLoaded);
    }
}

TEST_F(znINodeTest, ChildrenOfASectionLoadInAnyOrder)
{
    const Journal names{"a", "b", "c"};
    std::string saved;
    JournalNode* parent = nodeAdd("parent");
    for (const std::string& name : names)
        nodeAdd(name, parent)->mText = name + "!";
    parent->treeSave(saved);
    parent->pushToBackOfSiblings();
    parent->childFind("a")->bringToFrontOfSiblings();
    for (znINode* child : parent->childrenGet())
        static_cast<JournalNode*>(child)->mText = "forgotten";
    saved += "ffffffff{rest,}";
    mJournal.clear();
    parent->treeLoad(saved);
    EXPECT_EQ(journalTake(), (Journal{"b loaded b!", "c loaded c!", "a loaded a!", "parent loaded t"}));
    EXPECT_EQ(saved, "ffffffff{rest,}");
}

TEST_F(znINodeTest, DamagedSavesAreLoggedAndRead)
{
    const std::string unmatched = "Failed to match '{' with '}' in saved data.";
    const std::string comma = "Expected to find a ',' in the saved data.";
    struct Case
    {
        const char* mText;
        const char* mField;
        const char* mRest;
        Journal mErrors;
    };
    const Case cases[] = {
        {"0001a9a6{x,}tail", "x", "tail", {}},
        {"junk0001a9a6{x,}tail", "x", "junktail", {}},
        {"0001a9a6{x,0001a9a6{y,}}", "x", "", {}},
        {"", "", "", {"No saved data for entity abc exists.", comma}},
        {"other,", "other", "other,", {"No saved data for entity abc exists."}},
        {"0001a9a6{x,", "x", "", {unmatched}},
        {"0001a9a6{x,{}", "x", "", {unmatched}},
        {"0001a9a6{", "", "", {unmatched, comma}},
        {"0001a9a6{}x}", "}x", "", {comma}}, // the first character is never a brace
    };
    for (const Case& test : cases)
    {
        SCOPED_TRACE(test.mText);
        JournalNode node("abc", mJournal);
        std::string text = test.mText;
        node.treeLoad(text);
        EXPECT_EQ(node.mText, test.mField);
        EXPECT_EQ(text, test.mRest);
        EXPECT_EQ(errorsTake(), test.mErrors);
    }
}

TEST_F(znINodeTest, FieldsComeBackAsTheyWent)
{
    std::string text;
    znINode::s32Save(text, -2147483647 - 1);
    znINode::boolSave(text, true);
    znINode::boolSave(text, false);
    znINode::strSave(text, "");
    znINode::strSave(text, "two words");
    znINode::posSave(text, znPoint(-3, 4));
    EXPECT_EQ(text, "-2147483648,1,0,,two words,-3,4,");
    EXPECT_EQ(znINode::s32Load(text), -2147483647 - 1);
    EXPECT_TRUE(znINode::boolLoad(text));
    EXPECT_FALSE(znINode::boolLoad(text));
    EXPECT_EQ(znINode::strLoad(text), "");
    EXPECT_EQ(znINode::strLoad(text), "two words");
    const znPoint pos = znINode::posLoad(text);
    EXPECT_EQ(pos.mX, -3);
    EXPECT_EQ(pos.mY, 4);

    const std::string odd = "50% of {the} \"Petrel\", \xc3\xa9, %2";
    znINode::strSave(text, odd);
    EXPECT_EQ(text, "50%25 of %7Bthe%7D %22Petrel%22%2C \xc3\xa9%2C %252,");
    EXPECT_EQ(znINode::strLoad(text), odd);
    text = "5%,%2,%zz,"; // what nobody saved
    for (const char* field : {"5%", "%2", "%zz"})
        EXPECT_EQ(znINode::strLoad(text), field);

    text = "99999999999999999999,true,7";
    EXPECT_EQ(znINode::s32Load(text), 2147483647);
    EXPECT_FALSE(znINode::boolLoad(text));
    EXPECT_EQ(znINode::s32Load(text), 7);
    EXPECT_EQ(errorsTake(), (Journal{"Expected to find a ',' in the saved data."}));
}

// --- cost ---

TEST_F(znINodeTest, AStillTreeAllocatesNothing)
{
    std::vector<znINode*> nodes{mRoot.get()};
    for (std::size_t i = 0; i < 2000; ++i)
    {
        auto* node = new znCEntity("node");
        node->posSet(static_cast<s32>(i), 1);
        nodes[i / 4]->childAdd(node);
        nodes.push_back(node);
    }
    mRoot->treeUpdate(16);
    mRoot->treeRender();
    const std::size_t before = allocationCountGet();
    for (s32 frame = 0; frame < 3; ++frame)
    {
        mRoot->treeUpdate(16);
        frameEnd();
        mRoot->treeRender();
    }
    EXPECT_GT(before, 2000u) << "the count counts";
    EXPECT_EQ(allocationCountGet(), before);
}
