#include "znappcore/znNSavedTree.h"

#include "tests/znappcore/znCTreeTest.h"
#include "znappcore/src/znCEntity.h"

#include <gtest/gtest.h>

namespace
{
// "a{1,}" for a section whose key is eight times "a".
std::string textGet(const std::string& pShort)
{
    std::string text;
    for (std::size_t i = 0; i < pShort.size(); ++i)
        text.append(i + 1 < pShort.size() && pShort[i + 1] == '{' ? 8 : 1, pShort[i]);
    return text;
}

TEST(znNSavedTreeTest, fitsASavedTextToTheTreeThatIs)
{
    struct Case
    {
        const char* mName;
        const char* mFresh;
        const char* mSaved;
        const char* mFitted;
        s32 mNewCount;
        bool mDamaged;
    };
    const Case cases[] = {
        {"same", "r{1,a{1,2,}b{1,c{1,}}}", "r{0,a{0,7,}b{0,c{5,}}}", "r{0,a{0,7,}b{0,c{5,}}}", 0, false},
        {"shuffled", "r{1,a{1,}b{1,}c{1,}}", "r{1,c{3,}a{2,}b{4,}}", "r{1,a{2,}b{4,}c{3,}}", 0, false},
        {"new thing", "r{1,a{1,}n{1,0,}b{1,}}", "r{1,a{0,}b{0,}}", "r{1,a{0,}n{1,0,}b{0,}}", 1, false},
        {"new branch", "r{1,n{1,x{1,}y{1,}}}", "r{0,}", "r{0,n{1,x{1,}y{1,}}}", 1, false},
        {"thing gone", "r{1,b{1,}}", "r{1,a{0,}b{0,}c{0,}}", "r{1,b{0,}a{0,}c{0,}}", 0, false},
        {"one name twice", "r{1,a{1,}a{1,}}", "r{1,a{2,}a{3,}}", "r{1,a{2,}a{3,}}", 0, false},
        {"twice now", "r{1,a{1,}b{1,}a{9,}}", "r{1,b{2,}a{3,}}", "r{1,a{3,}b{2,}a{9,}}", 1, false},
        {"once now", "r{1,a{1,}}", "r{1,a{2,}a{3,}}", "r{1,a{2,}a{3,}}", 0, false},
        {"in another place", "r{1,a{1,}b{1,x{1,}}}", "r{1,a{0,x{7,}}b{0,}}", "r{1,a{0,x{7,}}b{0,x{1,}}}", 1, false},
        {"more fields now", "r{1,8,9,a{1,}}", "r{0,a{0,}}", "r{0,8,9,a{0,}}", 0, false},
        {"fewer fields now", "r{1,a{1,}}", "r{0,4,5,a{0,}}", "r{0,4,5,a{0,}}", 0, false},
        {"breaks off in a field", "r{1,a{1,7,8,}b{1,}}", "r{0,a{0,6,99", "r{0,a{0,6,8,}b{1,}}", 1, true},
        {"breaks off in a key", "r{1,a{1,}b{1,}}", "r{0,a{0,}bbb", "r{0,a{0,}b{1,}}", 1, true},
        {"breaks off in a thing that is gone", "r{1,a{1,}}", "r{0,a{0,}g{0,h{1,}", "r{0,a{0,}}", 0, true},
        {"another's text", "r{1,a{1,}}", "q{0,a{0,}}", "r{1,a{1,}}", 0, true},
        {"none", "r{1,}", "", "r{1,}", 0, true},
        {"rubbish", "r{1,a{1,}}", "}}{{x{}", "r{1,a{1,}}", 0, true},
        {"rubbish behind", "r{1,a{1,}}", "r{0,a{0,}}}}q{", "r{0,a{0,}}", 0, false},
    };
    for (const Case& c : cases)
    {
        const znNSavedTree::Fitted fitted = znNSavedTree::fit(textGet(c.mFresh), textGet(c.mSaved));
        EXPECT_EQ(fitted.mText, textGet(c.mFitted)) << c.mName;
        EXPECT_EQ(fitted.mNewCount, c.mNewCount) << c.mName;
        EXPECT_EQ(fitted.mDamaged, c.mDamaged) << c.mName;
    }
}

TEST(znNSavedTreeTest, isNotAfraidOfDepth)
{
    std::string deep;
    for (s32 i = 0; i < 200000; ++i)
        deep += "aaaaaaaa{1,";
    EXPECT_EQ(znNSavedTree::fit("aaaaaaaa{1,}", deep).mText, "aaaaaaaa{1,}");
}

// What a tree loads from a fitted text is what the saved one says, and nothing is logged on the way.
class znNSavedTreeLoadTest : public znCTreeTest
{
};

TEST_F(znNSavedTreeLoadTest, aTreeLoadsAFittedText)
{
    znCEntity before("root");
    for (const char* name : {"a", "b", "c"})
        before.childAdd(new znCEntity(name));
    before.childFind("b")->activeSet(false);
    std::string saved;
    before.treeSave(saved);

    znCEntity now("root");
    for (const char* name : {"c", "new", "b"})
        now.childAdd(new znCEntity(name));
    std::string fresh;
    now.treeSave(fresh);
    znNSavedTree::Fitted fitted = znNSavedTree::fit(fresh, saved);
    now.treeLoad(fitted.mText);
    EXPECT_TRUE(now.childFind("new")->activeGet());
    EXPECT_TRUE(now.childFind("c")->activeGet());
    EXPECT_FALSE(now.childFind("b")->activeGet());
    EXPECT_EQ(errorsTake(), std::vector<std::string>());
}
} // namespace
