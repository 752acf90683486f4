#include "znappcore/components/znCTextSpriteComponent.h"
#include "media/znCGraphicsTexture.h"
#include "media/znNFonts.h"
#include "tests/support/allocationCount.h"
#include "tests/znappcore/znCPresentationTest.h"
#include "znappcore/components/znCRevealingTextSpriteComponent.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/components/znCTextEntryComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCFont.h"
#include "znappcore/src/znCFontManager.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIInputManager.h"
#include "zncore/src/znCVariableTable.h"

#include <cmath>
#include <fstream>
#include <iterator>

namespace
{
class znCTextSpriteComponentTest : public znCPresentationTest
{
protected:
    znCTextSpriteComponentTest()
    {
        fileCopy("fonts/clarendon.ttf");
        fileCopy("fonts/fallback0.ttf");
        mCore.mPlatform.mFiles.fileSet("strings.txt", "greeting = \"ahoy\",\r\nenterNamePrompt = \"Name?\",\r\n");
        znCLocalisedStrings::create();
        znIInputManager::create();
    }
    ~znCTextSpriteComponentTest() override
    {
        mRoot.reset();
        znIInputManager::destroy();
        znCLocalisedStrings::destroy();
    }

    void fileCopy(const std::string& pName)
    {
        std::ifstream file(PETREL_ROOT "/data/" + pName, std::ios::binary);
        mCore.mPlatform.mFiles.fileSet(pName, {std::istreambuf_iterator<char>(file), {}});
    }

    static znCVariableTable tableMake(const std::map<std::string, std::string>& pSettings = {})
    {
        znCVariableTable table;
        table.strSet("font", "fonts/clarendon.ttf");
        table.strSet("fontSize", "20");
        table.strSet("width", "100");
        table.strSet("height", "50");
        for (const auto& [key, value] : pSettings)
            table.strSet(key, value);
        return table;
    }

    // An entity below mRoot, or below another one, with a text.
    template <class Component>
    Component& textAdd(const znCVariableTable& pTable, znINode* pParent = nullptr)
    {
        auto* entity = new znCEntity("text"); // owned by its parent
        (pParent != nullptr ? pParent : mRoot.get())->childAdd(entity);
        auto* component = entity->componentAdd<Component>();
        component->initialiseFromVariableTable(pTable);
        return *component;
    }

    // What the renderer drew.
    const std::vector<znCTestDraw::Run>& frameDraw()
    {
        mRoot->treeUpdate(0);
        znIRenderer& renderer = *znIRenderer::instanceGet();
        renderer.frameClear();
        renderer.frameBegin();
        mRoot->treeRender();
        renderer.frameEnd();
        return mCore.mPlatform.mDraw.mPresented;
    }

    void charType(s32 pCode) { znIInputManager::instanceGet()->messageSend(znIInputManager::TYPED_CHAR, &pCode); }

    std::unique_ptr<znINode> mRoot = std::make_unique<znINode>("root");
};
} // namespace

TEST_F(znCTextSpriteComponentTest, SharesAFontByBaseNameAndSize)
{
    znCFontManager& fonts = *znCFontManager::instanceGet();
    const auto fontGet = [&fonts](const char* pName, s32 pSize)
    {
        return fonts.fontGet(znCResourceName(pName, znCResourceName::GAME_DATA), pSize);
    };
    znIFont* font = fontGet("fonts/clarendon.ttf", 20);
    const s32 opened = mCore.mPlatform.mFiles.operationCountGet(znCTestFiles::Operation::open);
    EXPECT_EQ(fontGet("fonts/clarendon.ttf", 20), font);
    EXPECT_EQ(fontGet("elsewhere/Clarendon.otf", 20), font);
    EXPECT_NE(fontGet("fonts/clarendon.ttf", 21), font);
    EXPECT_EQ(mCore.mPlatform.mFiles.operationCountGet(znCTestFiles::Operation::open), opened);
    EXPECT_EQ(logTake(), "");
}

TEST_F(znCTextSpriteComponentTest, LiesAroundItsEntityAndMovesWithoutLayout)
{
    auto& text = textAdd<znCTextSpriteComponent>(
        tableMake({{"alignmentH", "left"}, {"alignmentV", "top"}, {"colourRGBA", "ff800040"}}));
    text.textSet("H");
    text.entityGet()->posSet(200, 300);
    const znCTestDraw::Run run = frameDraw().at(0);
    ASSERT_EQ(run.mVertexCount, 4);
    EXPECT_EQ(run.mTexture, znNFonts::glyphTextureGet()->idGet());
    EXPECT_EQ(run.mBlend, S3E_DRAW_BLEND_ALPHA);
    EXPECT_EQ(run.mColour, 0x400080FFu);

    // The same glyph in the same box, laid out by hand: the box's top left corner lies at (150, 275).
    znCGraphicsText laid;
    auto* font = static_cast<znCFont*>(
        znCFontManager::instanceGet()->fontGet(znCResourceName("fonts/clarendon.ttf", znCResourceName::GAME_DATA), 20));
    laid.prepare(*font->graphicsFontGet(), "H", 100, 50, 0, 0);
    const znCGlyphRect& rect = laid.glyphRectGet(0);
    EXPECT_EQ(run.mPositions[0], 150.0f + rect.mX);
    EXPECT_EQ(run.mPositions[1], 275.0f + rect.mY);
    EXPECT_EQ(run.mPositions[3], 275.0f + rect.mY + rect.mHeight) << "the second corner is the bottom left one";
    EXPECT_EQ(run.mPositions[4], 150.0f + rect.mX + rect.mWidth);

    mCore.mPlatform.mDraw.mRecording = false;
    text.entityGet()->posSet(100, 300);
    frameDraw();
    const std::size_t allocations = allocationCountGet();
    for (s32 x = 0; x < 5; ++x)
    {
        text.entityGet()->posSet(100 + x, 300);
        text.entityGet()->rotationSet(static_cast<float>(x));
        frameDraw();
    }
    EXPECT_EQ(allocationCountGet(), allocations);
}

TEST_F(znCTextSpriteComponentTest, IsPaintedInTreeOrderBetweenSprites)
{
    imageSet("plain.png", 4, 4, "#");
    znCVariableTable image;
    image.strSet("image", "plain.png");
    textAdd<znCSpriteComponent>(image);
    textAdd<znCTextSpriteComponent>(tableMake({{"textKey", "greeting"}}));
    textAdd<znCTextSpriteComponent>(tableMake({}));
    textAdd<znCSpriteComponent>(image);
    const std::vector<znCTestDraw::Run>& runs = frameDraw();
    ASSERT_EQ(runs.size(), 3u) << "an empty text costs no draw call";
    EXPECT_EQ(runs[1].mVertexCount, 16);
    EXPECT_EQ(runs[0].mTexture, runs[2].mTexture);
}

TEST_F(znCTextSpriteComponentTest, FaultySettingsAreLoggedAndTheRestStands)
{
    const struct
    {
        std::map<std::string, std::string> mSettings;
        const char* mMessage;
        std::size_t mRuns;
    } cases[] = {
        {{{"font", ""}}, "No font set for text sprite text.\n", 0},
        {{{"fontSize", "-3"}}, "Invalid font size for text sprite text (-3).\n", 0},
        {{{"fontSize", "large"}}, "Invalid font size for text sprite text (0).\n", 0},
        {{{"font", "fonts/none.ttf"}}, "Font fonts/none.ttf could not be loaded", 1},
        {{{"alignmentH", "middle"}},
         "Unknown alignmentH for TextSprite text (middle). Use 'left', 'centre' or 'right'.\n",
         1},
        {{{"alignmentV", "up"}}, "Unknown alignmentV for TextSprite text (up). Use 'top', 'middle' or 'bottom'.\n", 1},
        {{{"colourRGBA", "red"}}, "Expected an 8 character hex string", 1},
        {{{"width", "-5"}, {"height", "0"}}, "", 1},
        {{{"textKey", "none"}}, "Missing string : none\n", 1},
    };
    for (const auto& [settings, message, runs] : cases)
    {
        SCOPED_TRACE(message);
        std::map<std::string, std::string> all = {{"textKey", "greeting"}};
        for (const auto& [key, value] : settings)
            all[key] = value;
        textAdd<znCTextSpriteComponent>(tableMake(all));
        EXPECT_EQ(frameDraw().size(), runs);
        const std::string log = logTake();
        EXPECT_NE(log.find(message), std::string::npos) << log;
        EXPECT_EQ(log.empty(), message[0] == '\0');
        mRoot = std::make_unique<znINode>("root");
    }
    znCEntity bare("bare");
    znCTextSpriteComponent::textSet(&bare, "x");
    EXPECT_NE(logTake().find("Entity bare does not have a TextSpriteComponent.\n"), std::string::npos);
    auto& text = textAdd<znCRevealingTextSpriteComponent>(tableMake());
    znCTextSpriteComponent::textSet(text.entityGet(), "seven");
    EXPECT_EQ(text.fullTextGet(), "seven");
}

TEST_F(znCTextSpriteComponentTest, IsSharpAtTheDisplaysScale)
{
    auto& text = textAdd<znCTextSpriteComponent>(tableMake({{"textKey", "greeting"}}));
    frameDraw();
    mRoot->scaleSet(2.0f);
    text.entityGet()->posSet(31, 17);
    znNFonts::frameBegin(2.0f);
    const znCTestDraw::Run run = frameDraw().at(0);
    const float side = static_cast<float>(znNFonts::glyphTextureGet()->widthGet());
    for (std::size_t i = 0; i < run.mPositions.size(); i += 8)
    {
        EXPECT_EQ(run.mPositions[i], std::round(run.mPositions[i]));
        EXPECT_EQ(run.mPositions[i + 1], std::round(run.mPositions[i + 1]));
        EXPECT_NEAR(run.mPositions[i + 4] - run.mPositions[i], (run.mUvs[i + 4] - run.mUvs[i]) * side, 0.01f);
    }
}

TEST_F(znCTextSpriteComponentTest, RevealsOneCharacterAfterTheOther)
{
    const struct
    {
        const char* mText;
        std::vector<s32> mSteps; // milliseconds
        const char* mShown;
        bool mFinished;
    } cases[] = {
        {"abc", {250}, "", false}, // the time must be passed, not reached
        {"abc", {251}, "a", false},
        {"abc", {250, 1, 249}, "a", false},
        {"abc", {250, 1, 249, 1}, "ab", false},
        {"abc", {751}, "abc", false},
        {"abc", {1001}, "abc", true},
        {"abc", {2000000000, 2000000000}, "abc", true},
        {"<b>ab", {251}, "<b>", false},
        {"<b>ab", {501}, "<b>a", false},
        {"a<b", {751}, "a<b", false}, // no tag without an end
        {"\xC3\xA9t\xC3\xA9", {251}, "\xC3\xA9", false},
        {"\xE2\x82", {251}, "\xE2\x82", false}, // cut short: nothing behind the end is read
        {"", {251}, "", true},
    };
    auto& text = textAdd<znCRevealingTextSpriteComponent>(tableMake({{"msPerChar", "250"}}));
    for (const auto& [full, steps, shown, finished] : cases)
    {
        SCOPED_TRACE(full);
        text.textSet(full);
        EXPECT_EQ(text.textGet(), "");
        for (const s32 step : steps)
            text.update(step);
        EXPECT_EQ(text.textGet(), shown);
        EXPECT_EQ(text.fullTextGet(), full);
        EXPECT_EQ(text.finishedGet(), finished);
    }
}

TEST_F(znCTextSpriteComponentTest, RevealingStartsWhenItIsToldTo)
{
    auto& text =
        textAdd<znCRevealingTextSpriteComponent>(tableMake({{"delayedStart", "true"}, {"textKey", "greeting"}}));
    EXPECT_EQ(text.fullTextGet(), "ahoy");
    text.update(5000);
    EXPECT_EQ(text.textGet(), "");
    text.trigger();
    text.update(1001);
    EXPECT_EQ(text.textGet(), "a") << "1000 ms a character where the table says nothing";
    EXPECT_EQ(logTake(), "");
    text.trigger();
    EXPECT_NE(logTake().find("Already running."), std::string::npos);
    EXPECT_EQ(text.textGet(), "a");

    auto& atOnce = textAdd<znCRevealingTextSpriteComponent>(tableMake({{"msPerChar", "-5"}, {"textKey", "greeting"}}));
    atOnce.update(16);
    EXPECT_EQ(atOnce.textGet(), "ahoy") << "no time a character is no endless loop";
}

TEST_F(znCTextSpriteComponentTest, EntryTakesWhatIsTyped)
{
    const struct
    {
        std::vector<s32> mCodes;
        const char* mEntry;
    } cases[] = {
        {{'A', 'n', 'n'}, "Ann"},
        {{8}, ""},
        {{'A', 8, 8, 'B'}, "B"},
        {{' ', 'A', ' ', 'B'}, "A B"},
        {{'A', 8, ' '}, ""},
        {{'A', 0xE9, 8}, "A"},
        {{'A', 0x1F600}, "A\xF0\x9F\x98\x80"},
        {{'A', 0xD83D, 0xDE00}, "A\xF0\x9F\x98\x80"},
        {{'A', 0xD83D, 0xDE00, 8}, "A"},
        {{0xDE00, 0xD83D, 'A', 0xDE00, 0xD83D, 0xD83D, 0xDE00}, "A\xF0\x9F\x98\x80"},
        {{'a', 'b', 'c', 'd', 'e', 'f'}, "abcde"},
        {{0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 8}, "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9"},
        {{'A', 13, 27, 0, -1, 127, 0xD800, 0x110000}, "A"},
    };
    for (const auto& [codes, entry] : cases)
    {
        SCOPED_TRACE(entry);
        auto& text = textAdd<znCTextEntryComponent>(tableMake({{"maxStringLength", "5"}, {"alignmentH", "left"}}));
        znINode* caret = text.entityGet()->childFind(znCTextEntryComponent::CARET_NAME);
        ASSERT_NE(caret, nullptr);
        EXPECT_EQ(caret->posGet(), znPoint(-50, 0));
        for (s32 code : codes)
            EXPECT_TRUE(znIInputManager::instanceGet()->messageSend(znIInputManager::TYPED_CHAR, &code));
        EXPECT_EQ(text.textGet(), entry);
        EXPECT_EQ(caret->posGet(), znPoint(text.textWidthGet() - 50, 0));
        mRoot = std::make_unique<znINode>("root");
    }
}

TEST_F(znCTextSpriteComponentTest, EntryWithoutALimitIsLoggedAndTakesNothing)
{
    auto& text = textAdd<znCTextEntryComponent>(tableMake());
    EXPECT_NE(logTake().find("maxStringLength is expected to be above 0.\n"), std::string::npos);
    charType('a');
    EXPECT_EQ(text.textGet(), "");
}

TEST_F(znCTextSpriteComponentTest, EntryAsksOnADeviceWithoutAKeyboard)
{
    const auto pressSend = []
    {
        znCPointerMessage press({5, 5}, 0, true);
        return znIInputManager::instanceGet()->messageSend(znIInputManager::POINTER_DOWN, &press);
    };
    imageSet("field.png", 40, 20, "#");
    znCVariableTable image;
    image.strSet("image", "field.png");
    auto& field = textAdd<znCSpriteComponent>(image);
    auto* between = new znCEntity("between"); // owned by its parent
    field.entityGet()->childAdd(between);
    auto& text = textAdd<znCTextEntryComponent>(tableMake({{"maxStringLength", "8"}}), between);
    mRoot->treeUpdate(0);

    mCore.mPlatform.mReadString = "Mrs Bell\nand Co";
    EXPECT_FALSE(pressSend()) << "a person with a keyboard types";
    mCore.mPlatform.mInput.mAlphaKeyboard = false;
    EXPECT_TRUE(pressSend());
    EXPECT_EQ(text.textGet(), "Mrs Bell");
    ASSERT_EQ(mCore.mPlatform.mReadStringCalls.size(), 1u);
    EXPECT_EQ(mCore.mPlatform.mReadStringCalls[0], std::make_pair(std::string("Name?"), std::string()));
    mCore.mPlatform.mReadString.reset();
    EXPECT_TRUE(pressSend());
    EXPECT_EQ(text.textGet(), "Mrs Bell") << "called off";
    field.entityGet()->posSet(100, 100);
    mRoot->treeUpdate(0);
    EXPECT_FALSE(pressSend()) << "beside the field";
    EXPECT_EQ(mCore.mPlatform.mReadStringCalls.size(), 2u);
    logTake();

    mRoot = std::make_unique<znINode>("root");
    textAdd<znCTextEntryComponent>(tableMake({{"maxStringLength", "8"}}));
    EXPECT_FALSE(pressSend());
    EXPECT_NE(logTake().find("Expected to find an Entity grandparent.\n"), std::string::npos);
}
