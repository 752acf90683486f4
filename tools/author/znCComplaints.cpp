#include "tools/author/znCComplaints.h"

#include "tools/author/znNText.h"
#include "zncore/znStr.h"

#include <algorithm>
#include <regex>
#include <sstream>

namespace
{
constexpr char ELEMENT_MARK[] = "The faults above are those of";

// Of a find that no list has asked for, as when its effects are tried; and what the check of the lists says better.
constexpr const char* LEFT_OUT[] = {"Failed to find an entry for", "Not enough entities in scene to fill"};
constexpr char TOO_LARGE[] = "does not fit its box";
constexpr char MISSING_STRING[] = "Missing string : ";

bool leftOut(const std::string& pMessage)
{
    return std::any_of(std::begin(LEFT_OUT), std::end(LEFT_OUT),
                       [&pMessage](const char* pStart) { return pMessage.starts_with(pStart); });
}

// What to do about a message that says only what is wrong.
struct Advice
{
    const char* mMark;
    const char* mText;
};

constexpr Advice ADVICE[] = {
    {"could not be read", "save it anew as PNG or JPEG"},
    {"multiple of 2", "add a row or a column of transparent pixels"},
    {TOO_LARGE, "make the box larger, or the text shorter"},
    {"Missing string", "add that key to strings.xml, or correct it here"},
    {"There is no close-up", "correct the number, or add the close-up's background"},
    {"there is no close-up", "correct the number, or add the close-up's background"},
    {"Expected first entity", "let the list begin with the background of the room"},
    {"Expected lock", "name it PRE-KEY-LOCK, with the key that opens it"},
    {"Expected a target index", "name it SUB and the number of a close-up, from 1 on"},
    {"should not run forever", "give the particle file an emitterLife and a particleLife"},
    {"Cannot use looping animations", "let the animation end"},
    {"There is no scene in the folder", "write a coords.txt that begins with a background"},
    {"No GUI elements", "give it an element"},
    {"has nothing to find", "put things of its kinds into the scene, or take requiredForActCompletion from the list"},
    {"Not enough slots", "give the list more slots, or name fewer kinds in priorityEntityTypes"},
    {"isn't inside the page", "correct the rectangle, or make the page larger"},
    {"Passed the end of the file", "end every entry with \","},
    {"has no end", "end it with \","},
};

std::string adviceAdded(const std::string& pMessage)
{
    std::string text = pMessage;
    while (text.ends_with('.'))
        text.pop_back();
    for (const Advice& advice : ADVICE)
        if (pMessage.find(advice.mMark) != std::string::npos)
            return text + "; " + advice.mText;
    return text;
}

// The words that could be names of files or things, the one with most to tell first.
std::vector<std::string> namesGet(const std::string& pMessage)
{
    std::vector<std::string> names;
    std::istringstream words(pMessage);
    for (std::string word; words >> word;)
    {
        while (!word.empty() && std::string("'\"().,:;").find(word.back()) != std::string::npos)
            word.pop_back();
        while (!word.empty() && std::string("'\"(").find(word.front()) != std::string::npos)
            word.erase(0, 1);
        if (word.find_first_of("./_-0123456789") != std::string::npos && word.size() > 2)
            names.push_back(word);
    }
    return names;
}

// The text that the message quotes, without the number of things behind it; "" if it quotes none.
std::string textQuotedGet(const std::string& pMessage)
{
    static const std::regex FORM(".*\"([^\"]+?)(?:\\(\\d+\\))?\"[^\"]*");
    std::smatch match;
    return std::regex_match(pMessage, match, FORM) ? match[1].str() : "";
}

// The file that the message says is missing.
std::string missingFileGet(const std::string& pMessage, const znCAuthorGame& pGame)
{
    static const std::regex FORMS("^(?:Image|File|Sound|Music|Font) (\\S+) (?:could not be read|does not exist|"
                                  "can't be played|could not be loaded).*|^There is no animation (\\S+)\\.$|"
                                  ".*there is no file (\\S+)\\.$");
    std::smatch match;
    if (!std::regex_match(pMessage, match, FORMS))
        return "";
    const std::string file = match[1].matched ? match[1] : match[2].matched ? match[2] : match[3];
    return pGame.fileExists(file) ? "" : file;
}
} // namespace

std::string znCComplaints::missingTextGet(const std::string& pFile)
{
    return "there is no file " + znNText::lowerGet(pFile) + "; put it there, or correct the name";
}

void znCComplaints::take(const std::vector<std::string>& pFiles)
{
    for (const std::string& message : mGame.complaintsTake())
        if (!leftOut(message) && !placedAdd(message, pFiles))
            mWaiting.push_back(message);
    for (const std::string& message : std::exchange(mWaiting, {}))
        unplacedAdd(message, pFiles);
}

// "FILE line N: what", "Animation FILE line N: what", "File FILE, line N: what".
bool znCComplaints::placedAdd(const std::string& pMessage, const std::vector<std::string>& pFiles)
{
    static const std::regex FORM("^(?:[A-Z][a-z]+ )?(?:page )?([^ ,]+\\.[a-z]+),? line (\\d+):? (.*)$");
    std::smatch match;
    if (!std::regex_match(pMessage, match, FORM))
        return false;
    const std::string file = match[1];
    const s32 line = znStr::toS32(match[2].str());
    const std::string text = match[3];
    const std::string missing = missingFileGet(text, mGame);
    if (text.find(ELEMENT_MARK) == std::string::npos)
        mFaults.add(file, line, missing.empty() ? adviceAdded(text) : missingTextGet(missing));
    else
        for (const std::string& message : std::exchange(mWaiting, {}))
            elementFaultAdd(message, file, line, pFiles);
    return true;
}

// A message of an element that begins in that line, or of the scene that was read before its panel.
void znCComplaints::elementFaultAdd(const std::string& pMessage, const std::string& pFile, s32 pLine,
                                    const std::vector<std::string>& pFiles)
{
    const std::string missing = missingFileGet(pMessage, mGame);
    std::vector<std::string> names = missing.empty() ? namesGet(pMessage) : std::vector{missing};
    if (pMessage.starts_with(MISSING_STRING))
        names = {pMessage.substr(sizeof(MISSING_STRING) - 1)};
    std::vector<std::string> scene = pFiles;
    std::erase_if(scene, [](const std::string& pName) { return !pName.starts_with("scenes/"); });
    s32 line = 0;
    for (const std::string& name : names)
    {
        if (name.find_first_of("./_-") != std::string::npos && !scene.empty() && placeGet(name, scene).mLine != 0)
            return unplacedAdd(pMessage, scene);
        if (line == 0 && name.find_first_not_of("0123456789(),") != std::string::npos)
            line = znNText::lineFind(mGame.textGet(pFile), name, true, pLine);
    }
    mFaults.add(pFile, line != 0 ? line : pLine, missing.empty() ? adviceAdded(pMessage) : missingTextGet(missing));
}

void znCComplaints::unplacedAdd(const std::string& pMessage, std::vector<std::string> pFiles)
{
    const std::string missing = missingFileGet(pMessage, mGame);
    const std::string text = missing.empty() ? adviceAdded(pMessage) : missingTextGet(missing);
    if (pMessage.find(TOO_LARGE) != std::string::npos)
        for (const char* strings : {"strings.xml", "strings.txt"})
            if (const s32 line = znNText::lineFind(mGame.textGet(strings), textQuotedGet(pMessage), true))
                return mFaults.add(strings, line, text);
    for (const std::string& name : missing.empty() ? namesGet(pMessage) : std::vector{missing})
    {
        // A picture that stands on a page is wrong there.
        std::stable_partition(pFiles.begin(), pFiles.end(),
                              [](const std::string& pFile) { return pFile.find("texturepage") != std::string::npos; });
        const znSFault place = placeGet(name, pFiles);
        if (place.mLine != 0)
            return mFaults.add(place.mFile, place.mLine, text);
        if (mGame.fileExists(name))
            return mFaults.add(znNText::lowerGet(name), 0, text);
    }
    mFaults.add(pFiles.empty() ? "" : pFiles.back(), 0, text);
}

znSFault znCComplaints::placeGet(const std::string& pName, const std::vector<std::string>& pFiles) const
{
    // As it is, as a picture of the scene, as a thing without its extension, as the particles of an entry.
    for (const std::string& name :
         {pName, znNText::baseNameGet(pName), pName + ".png", "PAR-" + znNText::stemGet(pName)})
        for (const std::string& file : pFiles)
            if (const s32 line = znNText::lineFind(mGame.textGet(file), name, true))
                return {file, line, ""};
    return {pFiles.empty() ? "" : pFiles.front(), 0, ""};
}
