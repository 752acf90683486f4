#include "znappcore/src/znCRenderList.h"

#include "tests/znappcore/znCPresentationTest.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"

#include <cmath>
#include <functional>
#include <random>

namespace
{
// Draws nothing itself and does something to the tree, once.
class MeddlerComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"MeddlerComponent"};
    using znIComponent::znIComponent;

    void render() override
    {
        if (mDeed != nullptr)
            std::exchange(mDeed, nullptr)();
    }
    std::function<void()> mDeed;
};

class CountingComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"CountingComponent"};
    using znIComponent::znIComponent;

    void update(s32) override { ++mUpdates; }
    s32 mUpdates = 0;
};

class QuietComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"QuietComponent"};
    using znIComponent::znIComponent;
};

// A root with three groups of three sprites, each a child of the one before.
class znCRenderListTest : public znCPresentationTest
{
protected:
    znCRenderListTest()
    {
        for (const char* name : {"a.png", "b.png"})
        {
            imageSet(name, 2, 2, "#");
            mBrushes.push_back(brushGet(name));
        }
        znCComponentFactory* factory = znCComponentFactory::instanceGet();
        factory->componentRegister<MeddlerComponent>();
        factory->componentRegister<CountingComponent>();
        factory->componentRegister<QuietComponent>();
        for (s32 i = 0; i < 9; ++i)
            mSprites.push_back(spriteAdd(i % 3 == 0 ? mRoot : *mSprites.back(), i));
    }

    znCEntity* spriteAdd(znINode& pParent, s32 pPlace)
    {
        auto* entity = new znCEntity("sprite" + std::to_string(pPlace)); // owned by its parent
        entity->componentAdd<znCSpriteComponent>()->brushSet(mBrushes[static_cast<std::size_t>(pPlace / 4 % 2)]);
        entity->posSet(pPlace * 10, pPlace);
        pParent.childAdd(entity);
        return entity;
    }

    znCSpriteComponent& spriteOf(std::size_t pSprite) { return *mSprites[pSprite]->componentGet<znCSpriteComponent>(); }

    // One number a call and its corners, in their order.
    std::vector<float> drawn()
    {
        znIRenderer& renderer = *znIRenderer::instanceGet();
        renderer.frameClear();
        renderer.frameBegin();
        mRoot.treeRender();
        renderer.frameEnd();
        std::vector<float> all;
        mUnchanged = true;
        for (const znCTestDraw::Run& run : mCore.mPlatform.mDraw.mPresented)
        {
            all.insert(all.end(), {static_cast<float>(run.mTexture), static_cast<float>(run.mBlend)});
            all.insert(all.end(), run.mPositions.begin(), run.mPositions.end());
            all.insert(all.end(), run.mUvs.begin(), run.mUvs.end());
            all.insert(all.end(), run.mColours.begin(), run.mColours.end());
            mUnchanged = mUnchanged && run.mUnchanged;
        }
        return all;
    }

    std::vector<float> drawnAnew()
    {
        znNRenderChanges::structureMark();
        return drawn();
    }

    std::vector<znCBrushPtr> mBrushes;
    znINode mRoot{"root"};
    std::vector<znCEntity*> mSprites; // owned by the tree
    bool mUnchanged = false;          // what drawn() drew was said to be what was drawn before
};
} // namespace

TEST_F(znCRenderListTest, drawsAgainWhatStaysAndSeesEveryChange)
{
    znCEntity* guest = nullptr;
    const std::pair<const char*, std::function<void()>> changes[] = {
        {"hide a leaf",
         [&]
         {
             mSprites[2]->activeSet(false);
         }},
        {"show it again",
         [&]
         {
             mSprites[2]->activeSet(true);
         }},
        {"hide a group",
         [&]
         {
             mSprites[3]->activeSet(false);
         }},
        {"show the group",
         [&]
         {
             mSprites[3]->activeSet(true);
         }},
        {"to the front",
         [&]
         {
             mSprites[0]->bringToFrontOfSiblings();
         }},
        {"to the back",
         [&]
         {
             mSprites[6]->pushToBackOfSiblings();
         }},
        {"a new sprite",
         [&]
         {
             guest = spriteAdd(*mSprites[4], 20);
         }},
        {"that goes elsewhere",
         [&]
         {
             mSprites[8]->childAdd(guest);
         }},
        {"and ends",
         [&]
         {
             guest->destroy();
         }},
        {"another picture",
         [&]
         {
             spriteOf(1).brushSet(mBrushes[1]);
         }},
        {"no picture",
         [&]
         {
             spriteOf(1).brushSet(nullptr);
         }},
        {"a picture again",
         [&]
         {
             spriteOf(1).brushSet(mBrushes[0]);
         }},
        {"another blend",
         [&]
         {
             spriteOf(5).alphaModeSet(znCMaterial::BLEND_ADD);
         }},
        {"a colour",
         [&]
         {
             spriteOf(5).colourSet(znCColour(1, 0, 0, 1));
         }},
        {"a size",
         [&]
         {
             spriteOf(5).widthSet(6);
         }},
        {"a place",
         [&]
         {
             mSprites[7]->posSet(5, 5);
         }},
        {"a turn",
         [&]
         {
             mSprites[3]->rotationSet(1.0f);
         }},
        {"a scale",
         [&]
         {
             mSprites[0]->scaleSet(2.0f);
         }},
        {"no sprite",
         [&]
         {
             mSprites[4]->componentRemove(znCSpriteComponent::TYPE);
         }},
        {"a sprite again",
         [&]
         {
             mSprites[4]->componentAdd<znCSpriteComponent>()->brushSet(mBrushes[1]);
         }},
        {"the root hidden",
         [&]
         {
             mRoot.activeSet(false);
         }},
        {"and shown",
         [&]
         {
             mRoot.activeSet(true);
         }},
    };
    mRoot.treeUpdate(16);
    std::vector<float> before = drawn();
    for (const auto& [name, change] : changes)
    {
        EXPECT_EQ(drawn(), before) << "before: " << name;
        EXPECT_TRUE(mUnchanged) << "before: " << name;
        change();
        znINode::flaggedNodesDestroy();
        mRoot.treeUpdate(16);
        const std::vector<float> after = drawn();
        EXPECT_NE(after, before) << name;
        EXPECT_EQ(drawnAnew(), after) << name;
        before = drawn();
    }
}

TEST_F(znCRenderListTest, goesOnFromWhereDrawingChangedTheTree)
{
    const std::function<void()> deeds[] = {
        [&] { mSprites[4]->activeSet(false); },          // below the meddler
        [&] { mSprites[6]->activeSet(false); },          // behind it
        [&] { mSprites[0]->activeSet(false); },          // before it: too late for this frame
        [&] { spriteAdd(*mSprites[3], 30); },            // below it
        [&] { spriteAdd(mRoot, 31); },                   // behind it
        [&] { mRoot.childAdd(new znCEntity("empty")); }, // seen by nobody
    };
    auto* meddler = mSprites[3]->componentAdd<MeddlerComponent>();
    mRoot.treeUpdate(16);
    for (const auto& deed : deeds)
    {
        drawn();
        drawn(); // along the list
        meddler->mDeed = deed;
        const std::vector<float> changed = drawn();
        const bool tooLate = !mSprites[0]->activeGet();
        EXPECT_EQ(changed == drawnAnew(), !tooLate) << &deed - deeds;
        for (znCEntity* sprite : mSprites)
            sprite->activeSet(true);
    }
}

// Against matrices that are made from the top for each node.
TEST_F(znCRenderListTest, movesWhateverOfAStillTreeIsMoved)
{
    std::mt19937 random(7);
    const auto expectedGet = [](const znINode& pNode)
    {
        znAffineMtx2d matrix;
        for (const znINode* node = &pNode; node != nullptr; node = node->parentGet())
        {
            znAffineMtx2d local;
            local.fromPosScaleRotation(node->posGet(), node->scaleGet(), node->scaleGet(), node->rotationGet());
            matrix = local * matrix;
        }
        return matrix;
    };
    for (s32 frame = 0; frame < 400; ++frame)
    {
        znCEntity& one = *mSprites[random() % mSprites.size()];
        switch (random() % 6)
        {
        case 0:
            one.posSet(static_cast<s32>(random() % 100), static_cast<s32>(random() % 100));
            break;
        case 1:
            one.rotationTargetSet(static_cast<float>(random() % 600) / 100.0f, 5.0f);
            break;
        case 2:
            one.scaleSet(1.0f + static_cast<float>(random() % 3));
            break;
        case 3:
            mSprites[random() % 9 / 3 * 3 + 2]->childAdd(mSprites.emplace_back(new znCEntity("guest"))); // owned there
            break;
        default: // stillness, and turns that go on
            break;
        }
        mRoot.treeUpdate(16);
        for (std::size_t i = 0; i < mSprites.size(); ++i)
        {
            const znAffineMtx2d expected = expectedGet(*mSprites[i]);
            const znAffineMtx2d& found = mSprites[i]->worldMatrixGet();
            ASSERT_NEAR(found.m02, expected.m02, 0.05f) << "node " << i << " in frame " << frame;
            ASSERT_NEAR(found.m01, expected.m01, 0.001f) << "node " << i << " in frame " << frame;
        }
    }
}

TEST_F(znCRenderListTest, updatesWhateverComesIntoAStillTree)
{
    mRoot.treeUpdate(16);
    mRoot.treeUpdate(16);
    mSprites[8]->componentAdd<QuietComponent>();
    auto* counting = mSprites[8]->componentAdd<CountingComponent>();
    mRoot.treeUpdate(16);
    mRoot.treeUpdate(16);
    EXPECT_EQ(counting->mUpdates, 2);
    mSprites[7]->activeSet(false); // hides, and updates all the same
    mRoot.treeUpdate(16);
    EXPECT_EQ(counting->mUpdates, 3);
    mSprites[7]->childRemove(mSprites[8]);
    mRoot.treeUpdate(16);
    mSprites[1]->childAdd(mSprites[8]);
    mRoot.treeUpdate(16);
    EXPECT_EQ(counting->mUpdates, 4);

    auto* meddler = mSprites[5]->componentAdd<MeddlerComponent>();
    CountingComponent* pending = nullptr;
    meddler->mDeed = [&]
    {
        pending = mSprites[5]->componentAdd<CountingComponent>();
    };
    drawn(); // which adds a component while the entity is being drawn
    mRoot.treeUpdate(16);
    mRoot.treeUpdate(16);
    EXPECT_EQ(pending->mUpdates, 1) << "it joins at the end of the first update";
}
