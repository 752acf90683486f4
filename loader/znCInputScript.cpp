#include "loader/znCInputScript.h"

#include "loader/znNTextFile.h"
#include "loader/znNUtf8.h"

#include <algorithm>
#include <utility>

namespace
{
using Kind = znCScriptCommand::Kind;
using Commands = std::vector<znCScriptCommand>;

constexpr s32 WAIT_MAX_MS = 24 * 60 * 60 * 1000;
constexpr s32 POSITION_MAX = 32767;
constexpr s32 POINTER_ID_MAX = 31;
constexpr s32 KEY_CODE_MAX = 255;
constexpr size_t SHOT_NAME_MAX = 200;

// What a command's line still holds; each take answers false when the next word isn't what it should be.
class Words
{
public:
    explicit Words(std::string_view pRest) : mRest(pRest) {}

    bool numberTake(s32 pLowest, s32 pHighest, s32& pNumber)
    {
        return znNTextFile::numberParse(znNTextFile::wordTake(mRest), pLowest, pHighest, pNumber);
    }
    bool isAtEnd() const { return mRest.empty() || mRest.front() == '#'; }
    std::string_view wordTake() { return znNTextFile::wordTake(mRest); }
    std::string_view restTake() { return std::exchange(mRest, {}); }

private:
    std::string_view mRest;
};

bool positionTake(Words& pWords, znCScriptCommand& pCommand)
{
    return pWords.numberTake(-POSITION_MAX, POSITION_MAX, pCommand.mX) &&
           pWords.numberTake(-POSITION_MAX, POSITION_MAX, pCommand.mY);
}

bool waitParse(Kind, Words& pWords, Commands& pCommands)
{
    znCScriptCommand command = {.mKind = Kind::WAIT};
    const bool right = pWords.numberTake(0, WAIT_MAX_MS, command.mNumber);
    pCommands.push_back(command);
    return right;
}

bool pointerParse(Kind pKind, Words& pWords, Commands& pCommands)
{
    znCScriptCommand command = {.mKind = pKind};
    const bool right =
        positionTake(pWords, command) && (pWords.isAtEnd() || pWords.numberTake(0, POINTER_ID_MAX, command.mNumber));
    pCommands.push_back(command);
    return right;
}

bool tapParse(Kind, Words& pWords, Commands& pCommands)
{
    znCScriptCommand command = {.mKind = Kind::DOWN};
    const bool right = positionTake(pWords, command);
    pCommands.push_back(command);
    command.mKind = Kind::UP;
    pCommands.push_back(command);
    return right;
}

bool keyParse(Kind, Words& pWords, Commands& pCommands)
{
    znCScriptCommand command = {.mKind = Kind::KEY};
    if (!pWords.numberTake(1, KEY_CODE_MAX, command.mNumber))
        return false;
    const std::string_view change = pWords.wordTake();
    command.mPressed = change == "down";
    pCommands.push_back(command);
    return command.mPressed || change == "up";
}

bool typeParse(Kind, Words& pWords, Commands& pCommands)
{
    const std::string text(pWords.restTake());
    pCommands.push_back({.mKind = Kind::TYPE, .mText = text});
    return !text.empty() && znNUtf8::isValid(text);
}

bool shotParse(Kind, Words& pWords, Commands& pCommands)
{
    const std::string name(pWords.wordTake());
    const bool right = !name.empty() && name.size() <= SHOT_NAME_MAX && name.front() != '.' &&
                       std::all_of(name.begin(), name.end(),
                                   [](unsigned char c)
                                   { return (std::isalnum(c) != 0 && c < 0x80) || c == '-' || c == '_' || c == '.'; });
    pCommands.push_back({.mKind = Kind::SHOT, .mText = name});
    return right;
}

bool bareParse(Kind pKind, Words&, Commands& pCommands)
{
    pCommands.push_back({.mKind = pKind});
    return true;
}

struct Rule
{
    const char* mName;
    Kind mKind;
    bool (*mParse)(Kind, Words&, Commands&);
    const char* mForm;
};

constexpr Rule RULES[] = {
    {"wait", Kind::WAIT, waitParse, "wait MS"},
    {"move", Kind::MOVE, pointerParse, "move X Y [ID]"},
    {"down", Kind::DOWN, pointerParse, "down X Y [ID]"},
    {"up", Kind::UP, pointerParse, "up X Y [ID]"},
    {"tap", Kind::DOWN, tapParse, "tap X Y"},
    {"key", Kind::KEY, keyParse, "key CODE down|up"},
    {"type", Kind::TYPE, typeParse, "type TEXT, in UTF-8"},
    {"suspend", Kind::SUSPEND, bareParse, "suspend"},
    {"resume", Kind::RESUME, bareParse, "resume"},
    {"shot", Kind::SHOT, shotParse, "shot NAME, of letters, digits, '-', '_' and '.'"},
    {"quit", Kind::QUIT, bareParse, "quit"},
};

// An empty text if the line is right, else what is wrong with it.
std::string lineParse(std::string_view pLine, Commands& pCommands)
{
    const std::string_view name = znNTextFile::wordTake(pLine);
    if (name.empty() || name.front() == '#')
        return {};
    const auto* rule =
        std::find_if(std::begin(RULES), std::end(RULES), [name](const Rule& pRule) { return name == pRule.mName; });
    if (rule == std::end(RULES))
        return "unknown command \"" + std::string(name) + "\"";
    Words words(pLine);
    if (rule->mParse(rule->mKind, words, pCommands) && words.isAtEnd())
        return {};
    return std::string("expected ") + rule->mForm;
}
} // namespace

bool znCInputScript::read(const std::filesystem::path& pPath, std::string& pError)
{
    std::vector<std::string> lines;
    return znNTextFile::linesRead(pPath, lines, pError) && linesParse(lines, pPath, pError);
}

bool znCInputScript::linesParse(const std::vector<std::string>& pLines, const std::filesystem::path& pPath,
                                std::string& pError)
{
    mCommands.clear();
    for (size_t i = 0; i < pLines.size(); ++i)
    {
        const std::string wrong = lineParse(pLines[i], mCommands);
        if (wrong.empty())
            continue;
        pError = znNTextFile::placed(pPath, i + 1, wrong);
        return false;
    }
    return true;
}

bool znCInputScript::takesShots() const
{
    return std::any_of(mCommands.begin(), mCommands.end(),
                       [](const znCScriptCommand& pCommand) { return pCommand.mKind == Kind::SHOT; });
}
