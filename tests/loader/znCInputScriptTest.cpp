#include "loader/znCInputScript.h"
#include "loader/znCScriptPlayer.h"

#include <gmock/gmock.h>

using Kind = znCScriptCommand::Kind;

namespace
{
std::string lineError(const std::string& pLine)
{
    znCInputScript script;
    std::string error;
    script.linesParse({"# one", "", pLine}, "dir/a.script", error);
    return error;
}

// All events that a script gives, a "|" after each frame and a shot as its name, until its end.
std::string played(const std::vector<std::string>& pLines, bool pTouch = false)
{
    znCInputScript script;
    std::string error;
    EXPECT_TRUE(script.linesParse(pLines, "s", error)) << error;
    std::string text;
    znCScriptPlayer player(script, pTouch, [&text](const std::string& pName) { text += "shot " + pName + " "; });
    znCInputQueue queue;
    std::vector<znCInputEvent> events;
    for (u64 now = 1000; !player.isAtEnd(); now += 10)
    {
        player.frameRun(now, queue);
        queue.frameTake(events);
        for (const znCInputEvent& event : events)
            text += std::to_string(static_cast<int>(event.mKind)) + ":" + std::to_string(event.mId) + "," +
                    std::to_string(event.mPressed) + "," + std::to_string(event.mX) + "," + std::to_string(event.mY) +
                    " ";
        text += "|";
    }
    return text;
}
} // namespace

TEST(znCInputScriptTest, WrongLinesAreNamedWithFileAndLine)
{
    const std::pair<const char*, const char*> cases[] = {
        {"jump 1 2", "unknown command \"jump\""},
        {"wait", "expected wait MS"},
        {"wait -1", "expected wait MS"},
        {"wait 10ms", "expected wait MS"},
        {"wait 99999999999", "expected wait MS"},
        {"tap 5", "expected tap X Y"},
        {"tap 5 6 7", "expected tap X Y"},
        {"move 1 40000", "expected move X Y [ID]"},
        {"down 1 2 -1", "expected down X Y [ID]"},
        {"key 4", "expected key CODE down|up"},
        {"key 4 press", "expected key CODE down|up"},
        {"key 0 down", "expected key CODE down|up"},
        {"type", "expected type TEXT, in UTF-8"},
        {"type \xff", "expected type TEXT, in UTF-8"},
        {"quit now", "expected quit"},
    };
    for (const auto& [line, what] : cases)
        EXPECT_EQ(lineError(line), std::string("dir/a.script:3: ") + what) << line;
    for (const char* name : {"", "../x", "a/b", ".hidden", "a b"})
        EXPECT_THAT(lineError(std::string("shot ") + name), testing::HasSubstr(":3: expected shot NAME")) << name;
}

TEST(znCInputScriptTest, RightLinesMayHaveBlanksAndComments)
{
    for (const char* line :
         {"  tap\t5 6  ", "quit # the end", "down -5 6 1 #no", "#quit", "type # is text", "shot a-1_b.c"})
        EXPECT_EQ(lineError(line), "") << line;
}

TEST(znCInputScriptTest, EachInputTakesAFrameAndShotsTakeNone)
{
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{"tap 5 6", "shot a"}, "2:0,1,5,6 |2:0,0,5,6 |shot a |"},
        {{"move 1 2", "shot a", "shot b", "quit"}, "3:0,0,1,2 |shot a shot b 9:0,0,0,0 |"},
        {{"wait 25", "key 52 down", "key 52 up"}, "|||0:52,1,0,0 |0:52,0,0,0 |"},
        {{"wait 0", "suspend", "wait 10", "resume"}, "7:0,0,0,0 ||8:0,0,0,0 |"},
        {{"key 99 down", "key 4 down"}, "0:99,1,0,0 |0:4,1,0,0 |"},
        {{"key 4 down", "type \xc3\xa9\xf0\x9f\x98\x80"},
         "0:4,1,0,0 1:13,0,0,0 |1:233,0,0,0 1:55357,0,0,0 1:56832,0,0,0 |"},
    };
    for (const auto& [lines, expected] : cases)
        EXPECT_EQ(played(lines), expected) << lines[0];
    EXPECT_EQ(played({"down 1 2 3", "move 4 5 3", "up 4 5 3"}, true), "4:3,1,1,2 |5:3,0,4,5 |4:3,0,4,5 |");
}

TEST(znCInputScriptTest, ATextDialogTakesTheNextTypeOnly)
{
    znCInputScript script;
    std::string error;
    std::string text;
    ASSERT_TRUE(script.linesParse({"wait 500", "type  Anna", "tap 1 2", "type Ben"}, "s", error));
    znCScriptPlayer player(script, false, nullptr);
    znCInputQueue queue;
    player.frameRun(0, queue);
    EXPECT_TRUE(player.textTake(text));
    EXPECT_EQ(text, "Anna");
    EXPECT_FALSE(player.textTake(text)); // a tap comes first
    player.frameRun(500, queue);         // the press
    EXPECT_FALSE(player.isAtEnd());
    EXPECT_TRUE(player.textTake(text));
    EXPECT_EQ(text, "Ben");
    player.frameRun(510, queue); // its release
    EXPECT_TRUE(player.isAtEnd());
}
