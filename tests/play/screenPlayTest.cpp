// Screens as a player presses them and as an author writes them: the real program, headless.

#include "tests/play/gameRun.h"
#include "tests/play/picture.h"

#include <gtest/gtest.h>

#include <fstream>

namespace fs = std::filesystem;

namespace
{
// Through the first pictures to the window in which a first player signs.
const std::string TO_CREW_LIST = "wait 1200\ntap 600 100\nwait 1100\ntap 600 100\nwait 900\n";
const std::string AYE = "tap 879 553\n";

std::string profileNamesGet(const GameRun& pRun)
{
    std::string names;
    std::ifstream file(pRun.userFolderGet() / "global.txt");
    for (std::string line; std::getline(file, line);)
        if (line.rfind("profilename", 0) == 0)
            names += line.substr(line.find('"'), line.rfind('"') - line.find('"') + 1);
    return names;
}

size_t countGet(const std::string& pText, const std::string& pPart)
{
    size_t count = 0;
    for (size_t at = pText.find(pPart); at != std::string::npos; at = pText.find(pPart, at + 1))
        ++count;
    return count;
}
} // namespace

TEST(screenPlayTest, takesANameAsItIsTypedAndOnce)
{
    struct Case
    {
        const char* mWhat;
        std::vector<std::string> mOptions;
        std::string mScript;
        const char* mNames;
    };
    const std::string backspace = "key 3 down\nwait 20\nkey 3 up\nwait 20\n";
    const Case cases[] = {
        {"letters of many bytes",
         {},
         "type \xc3\x89\xe0\xa4\xa8\xf0\x9f\x98\x80z\n" + backspace + backspace + AYE,
         "\"\xc3\x89\xe0\xa4\xa8\""},
        {"too many letters", {}, "type abcdefghijklmnopqrstuvwxyz\n" + AYE, "\"abcdefghijklmnopqrst\""},
        {"a double press", {}, "type Ann\nwait 50\n" + AYE + "wait 32\n" + AYE + "type a\nwait 50\n" + AYE, "\"Ann\""},
        {"no name, a message in the way, then one",
         {},
         AYE + "wait 100\n" + AYE + "tap 683 488\nwait 100\ntype Ben\nwait 50\n" + AYE,
         "\"Ben\""},
        {"no window to close", {}, "type Ann\ntap 487 553\nwait 100\n", ""},
        {"the device's own dialog",
         {"--touch", "--size", "1366x768"},
         "tap 683 311\ntype Zo\xc3\xab\nwait 100\n" + AYE,
         "\"Zo\xc3\xab\""},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mWhat);
        GameRun run("names");
        std::vector<std::string> options = c.mOptions;
        const std::string script = TO_CREW_LIST + c.mScript + "wait 700\nquit\n";
        options.insert(options.end(), {"--script", run.scriptWrite(script)});
        ASSERT_EQ(run.headlessRun(options), 0) << run.errorGet();
        EXPECT_EQ(profileNamesGet(run), c.mNames);
        EXPECT_EQ(logFaultsGet(run.logGet()), std::vector<std::string>());
    }
}

TEST(screenPlayTest, keepsEveryScriptInItsBox)
{
    GameRun run("scripts");
    const fs::path data = run.dataCopy();
    fs::remove(data / "strings.xml");
    std::ofstream(data / "strings.txt")
        << "arabic = \"\u0645\u0631\u062d\u0628\u0627 \u0628\u0643\u0645 12 (\u0634\u0643\u0631\u064b\u0627)\",\r\n"
           "hindi = \"\u0928\u092e\u0938\u094d\u0924\u0947, \u0915\u094d\u0937\u0924\u094d\u0930\u093f\u092f\",\r\n"
           "thai = \"\u0e2a\u0e27\u0e31\u0e2a\u0e14\u0e35\u0e04\u0e23\u0e31\u0e1a "
           "\u0e17\u0e35\u0e48\u0e19\u0e35\u0e48\",\r\n"
           "marks = \"e\u0301 Z\u0308 a\u0323\u0302 q\u0303 s\u0323\u0307\",\r\n"
        << "long = \"" << std::string(300, 'W') << "\",\r\n";
    std::ofstream screen(data / "gui" / "scripts.txt");
    screen << "znCModalGuiComponent {\n";
    s32 y = -280;
    for (const char* key : {"arabic", "hindi", "thai", "marks", "long"})
    {
        screen << " znCTextSpriteComponent {\n  font = fonts/clarendon.ttf\n  fontSize = 26\n  textKey = " << key
               << "\n  width = 500\n  height = 90\n  posY = " << y << "\n }\n";
        y += 140;
    }
    screen << "}\n";
    screen.close();
    const std::string script = "move 5 5\nwait 800\nshot scripts\nquit\n";
    ASSERT_EQ(run.headlessRun({"--script", run.scriptWrite(script), "--", "gui/scripts.txt"}), 0) << run.errorGet();
    const std::vector<std::string> faults = logFaultsGet(run.logGet());
    ASSERT_EQ(faults.size(), 2u) << run.logGet();
    EXPECT_NE(faults[1].find("gui/scripts.txt line 34: "), std::string::npos) << "the long word had to shrink";
    EXPECT_EQ(run.logGet().find("has no glyph"), std::string::npos) << run.logGet();
    const Picture picture = pictureDecode(run.shotGet("scripts"));
    ASSERT_EQ(picture.mHeight, 768);
    size_t inked[5] = {};
    for (s32 row = 64; row < picture.mHeight; ++row) // the cursor is above
        for (s32 column = 0; column < picture.mWidth; ++column)
        {
            if (picture.mPixels[static_cast<size_t>(row * picture.mWidth + column) * 3] < 64)
                continue;
            const s32 box = (row - 59) / 140;
            EXPECT_TRUE(column >= 433 && column < 933 && (row - 59) % 140 < 90 && box < 5) << column << " " << row;
            ++inked[std::min(box, 4)];
        }
    for (const size_t count : inked)
        EXPECT_GT(count, 200u);
}

TEST(screenPlayTest, namesWhatAnAuthorGotWrong)
{
    const std::string good = "znCModalGuiComponent {\n znCSpriteComponent {\n  name = good\n  image = "
                             "\"gui/common/check_on.png\"\n  posX = 300\n }\n";
    struct Case
    {
        std::string mScreen;
        const char* mLogged;
    };
    const Case cases[] = {
        {good + " include \"gui/nosuch.txt\"\n}\n", "gui/faulty.txt line 7: File gui/nosuch.txt does not exist."},
        {good, "gui/faulty.txt line 1: Missing '}' at the end of znCModalGuiComponent."},
        {good + " znCSpriteComponent {\n  image = \"gui/common/check_on.png\n }\n}\n",
         "gui/faulty.txt line 8: Missing '\"' in string."},
        {good + " znCSpritComponent {\n  posX = 1\n }\n}\n", "gui/faulty.txt line 7: Unknown component"},
        {good + " NoStyle\n}\n", "gui/faulty.txt line 7: Unknown component, style or word 'NoStyle'"},
        {good + " include \"gui/faulty.txt\"\n}\n", "gui/faulty.txt line 7: gui/faulty.txt is used within itself."},
        {"style Loop {\n Loop\n}\n" + good + " Loop\n}\n", "gui/faulty.txt line 2: Loop is used within itself."},
        {good + " znCSpriteComponent {\n  image = gui/nosuch.png\n }\n}\n", "gui/faulty.txt line 7: "},
        {good + " znCTextSpriteComponent {\n  font = fonts/nosuch.ttf\n  fontSize = 20\n  textKey = ok\n }\n}\n",
         "gui/faulty.txt line 7: "},
        {good + " znCTextSpriteComponent {\n  font = fonts/clarendon.ttf\n  fontSize = 20\n  textKey = nosuch\n }\n}\n",
         "gui/faulty.txt line 7: "},
        {good + "}\n" + std::string(1u << 20, 'x'), "gui/faulty.txt line 8: Unknown component"},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mScreen.substr(good.size() / 2, 200));
        GameRun run("faulty");
        std::ofstream(run.dataCopy() / "gui" / "faulty.txt") << c.mScreen;
        const std::string script = "wait 700\nshot screen\nquit\n";
        ASSERT_EQ(run.headlessRun({"--script", run.scriptWrite(script), "--", "gui/faulty.txt"}), 0) << run.errorGet();
        EXPECT_EQ(countGet(run.logGet(), c.mLogged), 1u) << run.logGet();
        const Picture picture = pictureDecode(run.shotGet("screen"));
        ASSERT_EQ(picture.mWidth, 1366);
        size_t bright = 0; // of the check box that stands before the fault
        for (s32 row = 370; row < 400; ++row)
            for (s32 column = 965; column < 1000; ++column)
                bright += picture.mPixels[static_cast<size_t>(row * picture.mWidth + column) * 3] > 64;
        EXPECT_GT(bright, 200u);
    }
}
