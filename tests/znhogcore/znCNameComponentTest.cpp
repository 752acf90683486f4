#include "znhogcore/components/znCNameComponent.h"

#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/src/znCEntity.h"

namespace
{
class znCNameComponentTest : public znCHogTest
{
};

TEST_F(znCNameComponentTest, readsThreeNamesFromOne)
{
    struct Case
    {
        const char* mNode;
        const char* mBase;
        const char* mKey;
        const char* mText;
    };
    const Case cases[] = {
        {"PCK-boat.png", "PCK-boat", "boat", "boat"},
        {"PCK-red_toy_boat.png", "PCK-red_toy_boat", "red_toy_boat", "red toy boat"},
        {"PCK-boat-m2.png", "PCK-boat", "boat", "boat"},
        {"PCK-boat-m9", "PCK-boat", "boat", "boat"},
        {"PCK-boat-m27x.png", "PCK-boat", "boat", "boat"}, // only the one digit is looked at
        {"PCK-boat-m0.png", "PCK-boat-m0", "m0", "m0"},
        {"PCK-boat-ma.png", "PCK-boat-ma", "ma", "ma"},
        {"PCK-boat-m.png", "PCK-boat-m", "m", "m"},
        {"PCK-m1-moon.png", "PCK-m1-moon", "moon", "moon"}, // only the last tail is looked at
        {"PCK-a-m1-m2.png", "PCK-a-m1", "m1", "m1"},
        {"PCK-lamp.old.png", "PCK-lamp.old", "lamp.old", "lamp.old"},
        {"PRE-oil-wick-lit+lamp.png", "PRE-oil-wick-lit+lamp", "lamp", "lamp"},
        {"TSK-a+b+c", "TSK-a+b+c", "b+c", "b+c"},
        {"a+b-c", "a+b-c", "c", "c"},
        {"harbour", "harbour", "harbour", "harbour"},
        {"PCK-lantern-m3.png", "PCK-lantern", "lantern", "the old lantern"}, // a localised string
        {"PCK-", "PCK-", "", ""},
        {".png", "", "", ""},
        {"-", "-", "", ""},
        {"", "", "", ""},
    };
    for (const Case& c : cases)
    {
        znCEntity entity(c.mNode);
        EXPECT_EQ(znCNameComponent::get(&entity), nullptr);
        entity.componentAdd(znCNameComponent::TYPE);
        const znCNameComponent* name = znCNameComponent::get(&entity);
        EXPECT_EQ(name->baseNameGet(), c.mBase) << c.mNode;
        EXPECT_EQ(name->keyGet(), c.mKey) << c.mNode;
        EXPECT_EQ(name->displayTextGet(), c.mText) << c.mNode;
    }
    const std::vector<std::string> errors = errorsTake();
    ASSERT_EQ(errors.size(), std::size(cases));
    EXPECT_EQ(errors[0], "Expected entity PCK-boat.png to have a name component.");
}
} // namespace
