#include "tools/author/znCCheck.h"

#include "tools/author/znCSceneCheck.h"
#include "tools/author/znNCodeLiterals.h"
#include "tools/author/znNText.h"
#include "znappcore/animatingSprite/znCAnimationDataManager.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/particles/znCParticleDataManager.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/znIDisplay.h"
#include "zncore/znCResourceName.h"
#include "znhogcore/components/znICollectableComponent.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/znIHogLevel.h"

#include <fnmatch.h>

#include <algorithm>
#include <regex>
#include <sstream>

namespace
{
constexpr char SETTINGS[] = "appsettings.txt";
constexpr char STRINGS[] = "strings.xml";
constexpr char STRINGS_TABLE[] = "strings.txt";
constexpr char FIRST_SCREEN[] = "gui/splashscreen/splashscreen.txt";
constexpr char SCENES[] = "scenes/";
constexpr char PARTICLES[] = "particles/";
constexpr char FONTS[] = "fonts/";
constexpr char TUTORIAL_MARK[] = "tutorial-";
constexpr s32 SCENE_FRAMES = 90; // until lists have filled their slots
constexpr std::size_t SUGGESTION_DISTANCE = 2;
constexpr std::size_t KEY_PART_SHORTEST = 5;
constexpr char MODAL_KEY[] = "modal"; // asked for by a screen of its own, and not by the panel of a scene

std::string stringsFileGet(const znCAuthorGame& pGame)
{
    return pGame.fileExists(STRINGS) ? STRINGS : STRINGS_TABLE;
}

s32 stringLineGet(const znCAuthorGame& pGame, const std::string& pKey)
{
    const std::string file = stringsFileGet(pGame);
    return file == STRINGS ? znNText::lineFind(pGame.textGet(file), ">" + pKey + "<", false)
                           : znNText::keyLineFind(pGame.textGet(file), pKey);
}

// Words that are names of files.
std::vector<std::string> filesNamedGet(const std::string& pText)
{
    static const std::regex FORM("[A-Za-z0-9_./-]+/[A-Za-z0-9_./-]+\\.(txt|xml|wav|ogg|mp3|png|jpg|ttf)");
    std::vector<std::string> files;
    for (std::sregex_iterator i(pText.begin(), pText.end(), FORM); i != std::sregex_iterator(); ++i)
        files.push_back(i->str());
    return files;
}

// A key that the code puts together of two texts.
bool composedOfLiterals(const std::string& pKey)
{
    for (std::size_t i = KEY_PART_SHORTEST; i + KEY_PART_SHORTEST <= pKey.size(); ++i)
        if (znNCodeLiterals::literalHas(pKey.substr(0, i)) && znNCodeLiterals::literalHas(pKey.substr(i)))
            return true;
    return false;
}

// The number of letters to change, add or take.
std::size_t distanceGet(const std::string& pLeft, const std::string& pRight)
{
    std::vector<std::size_t> row(pRight.size() + 1);
    for (std::size_t j = 0; j < row.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= pLeft.size(); ++i)
    {
        std::size_t diagonal = std::exchange(row[0], i);
        for (std::size_t j = 1; j < row.size(); ++j)
        {
            const std::size_t changed = diagonal + (pLeft[i - 1] != pRight[j - 1] ? 1 : 0);
            diagonal = row[j];
            row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}
} // namespace

const std::set<znSFault>& znCCheck::run()
{
    std::set<std::string> scenes;
    for (const auto& [file, content] : mGame.filesGet())
        if (file.starts_with(SCENES) && file.find('/', sizeof(SCENES)) != std::string::npos)
            scenes.insert(file.substr(sizeof(SCENES) - 1, file.find('/', sizeof(SCENES)) - sizeof(SCENES) + 1));
    mScenes.assign(scenes.begin(), scenes.end());
    keptGather();
    for (const std::string& scene : mScenes)
        mThings.insert(znNText::lowerGet(scene));
    namesCheck();
    tableValuesGather();
    startCheck();
    scenesCheck();
    screensCheck();
    effectFilesCheck();
    wayCheck();
    tableCheck(SETTINGS);
    stringsCheck();
    unusedCheck();
    return mFaults.allGet();
}

// Of keys that are asked for later than at a scene's opening too.
void znCCheck::tableValuesGather()
{
    std::vector<std::string> tables = {SETTINGS};
    for (const std::string& scene : mScenes)
        tables.push_back(SCENES + scene + "/" + scene + ".txt");
    for (const std::string& name : tables)
    {
        const std::string& text = mGame.textGet(name);
        znCVariableTable table;
        table.textParse(text.data(), text.data() + text.size());
        for (const auto& [key, value] : table.entriesGet())
            mTableValues.insert(value);
    }
}

// Scenes that a scene's table names besides the one that follows, as the map names those it opens instead of others.
std::set<std::string> znCCheck::scenesNamedGet(const std::string& pTable) const
{
    const std::string& text = mGame.textGet(pTable);
    znCVariableTable table;
    table.textParse(text.data(), text.data() + text.size());
    std::set<std::string> named;
    for (const auto& [key, value] : table.entriesGet())
        if (std::find(mScenes.begin(), mScenes.end(), value) != mScenes.end())
            named.insert(value);
    return named;
}

std::set<std::string> znCCheck::valuesGet() const
{
    std::set<std::string> values = mGame.valuesAskedGet();
    values.insert(mTableValues.begin(), mTableValues.end());
    return values;
}

void znCCheck::keptGather()
{
    s32 number = 0;
    for (const std::string& line : znNText::linesGet(mGame.textGet(KEPT_FILE)))
    {
        ++number;
        const std::string form = znNText::lowerGet(line.substr(0, line.find_first_of(" \t#")));
        if (!form.empty())
            mKept.emplace_back(form, number);
    }
}

bool znCCheck::kept(const std::string& pName) const
{
    return std::any_of(mKept.begin(), mKept.end(),
                       [&pName](const auto& pForm) { return fnmatch(pForm.first.c_str(), pName.c_str(), 0) == 0; });
}

void znCCheck::namesCheck()
{
    std::map<std::string, std::string> seen;
    for (const auto& [file, content] : mGame.filesGet())
    {
        const std::string lower = znNText::lowerGet(file);
        const auto [entry, isNew] = seen.emplace(lower, file);
        if (!isNew)
            mFaults.add(file, 0, "clashes with " + entry->second + " in lower case; rename one of them");
        if (lower != file && !file.ends_with(".md"))
            mFaults.add(file, 0, "is never found, since the game asks for " + lower + "; rename it in lower case");
    }
}

// The first pictures, and what the program reads before them.
void znCCheck::startCheck()
{
    mGame.close();
    mGame.open("");
    screenTake({FIRST_SCREEN, SETTINGS, stringsFileGet(mGame)});
    mScreensOpened.insert(FIRST_SCREEN);
}

void znCCheck::scenesCheck()
{
    for (const std::string& scene : mScenes)
    {
        const std::string folder = SCENES + scene + "/";
        std::vector<std::string> files = {folder + "coords.txt", folder + scene + ".txt"};
        for (s32 i = 0; mGame.fileExists(folder + "texturepage" + std::to_string(i) + ".txt"); ++i)
            files.push_back(folder + "texturepage" + std::to_string(i) + ".txt");
        if (!mGame.fileExists(files[0]))
        {
            mFaults.add(files[0], 0, "is missing, so " + scene + " is no scene; write it, or remove the folder");
            continue;
        }
        mGame.open(scene);
        znIHogLevel* level = znIHogLevel::levelGet();
        if (level != nullptr)
        {
            const std::string panel = znNText::lowerGet(level->variablesGet().strGet("GUI", "gui/hoggui/hoggui.txt"));
            files.push_back(panel);
            mScreensOpened.insert(panel);
        }
        screenTake(files);
        znCSceneCheck check(scene, mGame, mFaults, mComplaints, files);
        check.run();
        mWays[scene] = check.waysGet();
        mWays[scene].merge(scenesNamedGet(files[1]));
        mThings.merge(check.thingsGet());
        mGame.framesRun(SCENE_FRAMES);
        mGame.complaintsTake(); // of the effects that were set off out of turn
        mGame.open(scene);
        mGame.framesRun(SCENE_FRAMES);
        screenTake(files);
        if (level != nullptr)
            tableCheck(files[1]);
    }
}

void znCCheck::screensCheck()
{
    for (std::string file; screenFileTake(file);)
    {
        mGame.open(file);
        mGame.framesRun(SCENE_FRAMES / 2);
        screenTake({file});
    }
}

// A GUI file that something names and that has not been opened, also within another.
bool znCCheck::screenFileTake(std::string& pFile)
{
    std::set<std::string> named = znNCodeLiterals::literalsGet();
    for (const std::string& value : valuesGet())
        for (const std::string& file : filesNamedGet(value))
            named.insert(znNText::lowerGet(file));
    for (const auto& [file, content] : mGame.filesGet())
        if (file.starts_with("gui/") && fileNamedByCode(file))
            named.insert(file);
    for (const std::string& file : named)
        if (file.starts_with("gui/") && file.ends_with(".txt") && mGame.fileExists(file) && !mGame.askedGet(file) &&
            mScreensOpened.insert(file).second)
        {
            pFile = file;
            return true;
        }
    return false;
}

// What plays only now and then is read once.
void znCCheck::effectFilesCheck()
{
    mGame.open("");
    mGame.complaintsTake();
    for (const auto& [file, content] : mGame.filesGet())
    {
        const znCResourceName name(file, znCResourceName::GAME_DATA);
        const bool wanted = fileUsed(file);
        if (wanted && file.starts_with(PARTICLES) && file.ends_with(".txt"))
            znCParticleDataManager::instanceGet()->dataGet(name);
        else if (wanted && file.ends_with(".xml") && file != STRINGS)
            znCAnimationDataManager::instanceGet()->dataGet(name, false);
        mComplaints.take({file});
        if (!file.ends_with(".xml") || file == STRINGS)
            continue;
        for (const std::string& named : filesNamedGet(content))
            if (!mGame.fileExists(named))
                mFaults.add(file, znNText::lineFind(content, named, true), znCComplaints::missingTextGet(named));
    }
}

void znCCheck::screenTake(const std::vector<std::string>& pFiles)
{
    textsCheck(pFiles);
    mComplaints.take(pFiles);
    settingsTake();
    std::vector<std::string> files = pFiles;
    files.push_back(SETTINGS);
    for (const auto& [file, content] : mGame.filesGet())
        if ((file.starts_with("gui/") || file.starts_with(SCENES)) && file.ends_with(".txt"))
            files.push_back(file);
    valuesCheck(files);
}

void znCCheck::settingsTake()
{
    for (const znCAuthorGame::IdleSetting& setting : mGame.idleSettingsTake())
        if (setting.mKey != MODAL_KEY)
            mFaults.add(setting.mFile, setting.mLine,
                        "nothing reads the setting '" + setting.mKey + "' of " + setting.mType +
                            "; correct it or take it out" + suggestionGet(setting.mKey));
}

// Texts that are wider than their box are cut.
void znCCheck::textsCheck(const std::vector<std::string>& pFiles)
{
    for (znINode* node : znIDisplay::instanceGet()->childrenGet())
        if (node->nameGet() == "AppDisplay")
            for (znINode* child : node->childrenGet())
                if (auto* root = dynamic_cast<znCEntity*>(child))
                    for (const znCEntity* entity : root->entitiesWithKindGet<znCTextSpriteComponent>())
                    {
                        const auto* text = entity->componentFind<znCTextSpriteComponent>();
                        const znPoint& box = text->boxSizeGet();
                        if (box.mX <= 0 || text->textWidthGet() <= box.mX)
                            continue;
                        const std::string shown = text->textGet();
                        znSFault place = {stringsFileGet(mGame), 0, ""};
                        place.mLine = znNText::lineFind(mGame.textGet(place.mFile), shown, false);
                        if (place.mLine == 0)
                            place = mComplaints.placeGet(entity->nameGet(), pFiles);
                        mFaults.add(place.mFile, place.mLine,
                                    "'" + shown + "' is " + std::to_string(text->textWidthGet()) +
                                        " wide and its box " + entity->nameGet() + " " + std::to_string(box.mX) +
                                        "; shorten the text, or make the box wider");
                    }
}

// Files that settings name and that nothing has opened yet.
void znCCheck::valuesCheck(const std::vector<std::string>& pFiles)
{
    for (const std::string& value : valuesGet())
    {
        if (!mValuesSeen.insert(value).second)
            continue;
        for (const std::string& file : filesNamedGet(value))
            if (!mGame.fileExists(file))
            {
                const znSFault place = mComplaints.placeGet(file, pFiles);
                mFaults.add(place.mFile, place.mLine, znCComplaints::missingTextGet(file));
            }
    }
}

void znCCheck::tableCheck(const std::string& pFile)
{
    const std::string& text = mGame.textGet(pFile);
    znCVariableTable table;
    table.textParse(text.data(), text.data() + text.size());
    for (const auto& [key, value] : table.entriesGet())
        if (mGame.keysAskedGet().count(key) == 0 && !znNCodeLiterals::literalHas(key) && !composedOfLiterals(key))
            mFaults.add(pFile, znNText::keyLineFind(text, key),
                        "nothing reads the key '" + key + "'; correct it or take it out" + suggestionGet(key));
}

std::string znCCheck::suggestionGet(const std::string& pKey) const
{
    std::string best;
    std::size_t distance = std::min(SUGGESTION_DISTANCE, pKey.size() / 3) + 1;
    const auto consider = [&](const std::set<std::string>& pKnown)
    {
        for (const std::string& known : pKnown)
            if (known != pKey && distanceGet(known, pKey) < distance)
            {
                distance = distanceGet(known, pKey);
                best = known;
            }
    };
    consider(znNCodeLiterals::literalsGet());
    return best.empty() ? "" : " (did you mean '" + best + "'?)";
}

// --- the way through the game ---

void znCCheck::wayCheck()
{
    const std::string& settings = mGame.textGet(SETTINGS);
    const std::string first = znCAppSettings::instanceGet()->strGet(znCHogCoreMain::FIRST_SCENE_KEY);
    const s32 firstLine = znNText::keyLineFind(settings, znCHogCoreMain::FIRST_SCENE_KEY);
    if (mWays.count(first) == 0)
        mFaults.add(SETTINGS, firstLine, "there is no scene '" + first + "' to begin with; correct firstScene");
    std::set<std::string> reached;
    std::vector<std::string> open = {first};
    for (const std::string& scene : mScenes) // what the program opens by itself
        if (scene != znCHogCoreMain::MAP && znNCodeLiterals::literalHas(scene))
            open.push_back(scene);
    while (!open.empty())
    {
        const std::string scene = open.back();
        open.pop_back();
        if (reached.insert(scene).second && mWays.count(scene) != 0)
            open.insert(open.end(), mWays[scene].begin(), mWays[scene].end());
    }
    for (const auto& [scene, ways] : mWays)
    {
        const std::string table = SCENES + scene + "/" + scene + ".txt";
        const s32 line = znNText::keyLineFind(mGame.textGet(table), znIHogLevel::NEXT_LEVEL_KEY);
        if (reached.count(scene) == 0 && !kept(table))
            mFaults.add(table, 0,
                        "nothing leads to the scene " + scene + "; name it as ACT1NextLev of another, or on the map");
        for (const std::string& next : ways)
            if (mWays.count(next) == 0 && !mGame.fileExists(next) && !znNCodeLiterals::literalHas(next) && !kept(next))
            {
                const bool byTable = line != 0 && znNText::lineFind(mGame.textGet(table), next, true) != 0;
                const std::string coords = SCENES + scene + "/coords.txt";
                mFaults.add(byTable ? table : coords,
                            byTable ? line : znNText::lineFind(mGame.textGet(coords), "-" + next, false),
                            "leads to " + next + ", which is neither a scene nor a screen; correct the name");
            }
        if (ways.empty() && mGame.fileExists(table))
        {
            mGame.open(scene);
            znIHogLevel* level = znIHogLevel::levelGet();
            if (level != nullptr && !level->entitiesWithKindGet<znICollectableComponent>().empty())
                mFaults.add(table, line, "the scene leads nowhere; name what follows: ACT1NextLev = \"SCENE\",");
        }
    }
    mGame.open("");
    mGame.complaintsTake();
}

// --- what nothing uses ---

void znCCheck::stringsCheck()
{
    const std::string file = stringsFileGet(mGame);
    for (const auto& [key, value] : znCLocalisedStrings::instanceGet()->entriesGet())
        if (!stringUsed(key) && !kept(key))
            mFaults.add(file, stringLineGet(mGame, key),
                        "nothing shows the text '" + key + "'; correct the key, or take it out");
}

bool znCCheck::stringUsed(const std::string& pKey) const
{
    if (mGame.keysAskedGet().count(pKey) != 0 || znNCodeLiterals::literalHas(pKey) || pKey.starts_with("hint-") ||
        pKey.starts_with(TUTORIAL_MARK))
        return true;
    for (const auto& [file, content] : mGame.filesGet())
        if (file.ends_with(".txt") && kept(file) && znNText::lineFind(content, pKey, true) != 0)
            return true;
    return composedByCode(pKey);
}

// A thing's or a scene's name with a text of the code before or behind it.
bool znCCheck::composedByCode(const std::string& pText) const
{
    for (std::size_t i = 1; i + 1 < pText.size(); ++i)
    {
        const std::string head = pText.substr(0, i);
        const std::string tail = pText.substr(i);
        if ((mThings.count(head) != 0 && znNCodeLiterals::literalHas(tail)) ||
            (mThings.count(tail) != 0 && znNCodeLiterals::literalHas(head)))
            return true;
    }
    return false;
}

void znCCheck::unusedCheck()
{
    for (const auto& [file, content] : mGame.filesGet())
    {
        if (znNText::lowerGet(file) != file || file.ends_with(".md") || file == KEPT_FILE || file.starts_with(FONTS) ||
            kept(file) || fileUsed(file))
            continue;
        const bool inScene = file.starts_with(SCENES);
        const std::string page = inScene ? file.substr(0, file.rfind('/')) + "/texturepage" : "";
        std::string text = "nothing uses this file; name it somewhere, remove it, or list it in kept.txt";
        for (const auto& [list, lines] : mGame.filesGet())
            if (inScene && list.starts_with(page) && list.ends_with(".txt") &&
                znNText::lineFind(lines, file, true) != 0)
                text = "is hidden by the picture of that name on " + list + "; remove one of the two";
        mFaults.add(file, 0, text);
    }
    keptCheck();
}

void znCCheck::keptCheck()
{
    const auto& files = mGame.filesGet();
    const auto& texts = znCLocalisedStrings::instanceGet()->entriesGet();
    for (const auto& [form, line] : mKept)
    {
        const auto fits = [&form = form](const auto& pEntry)
        {
            return fnmatch(form.c_str(), pEntry.first.c_str(), 0) == 0;
        };
        if (std::none_of(files.begin(), files.end(), fits) && std::none_of(texts.begin(), texts.end(), fits))
            mFaults.add(KEPT_FILE, line, "there is no file and no text " + form + "; take it out of the list");
    }
}

bool znCCheck::fileUsed(const std::string& pFile) const
{
    if (mGame.askedGet(pFile) || fileNamedByCode(pFile))
        return true;
    for (const std::string& value : valuesGet())
        if (znNText::lowerGet(value).find(pFile) != std::string::npos)
            return true;
    for (const auto& [file, content] : mGame.filesGet())
        if (file != pFile && file.ends_with(".xml") && file != STRINGS && znNText::lineFind(content, pFile, true) != 0)
            return true;
    return false;
}

// As a whole, with a number at its end, or put together of texts of the code and the name of a thing.
bool znCCheck::fileNamedByCode(const std::string& pFile) const
{
    if (znNCodeLiterals::literalHas(pFile))
        return true;
    const std::string stem = pFile.substr(0, pFile.size() - znNText::extensionGet(pFile).size());
    const auto digits = stem.find_last_not_of("0123456789");
    if (digits != std::string::npos && digits + 1 < stem.size() && stem.find('/') != std::string::npos &&
        znNCodeLiterals::literalHas(stem.substr(0, digits + 1)))
        return true;
    const auto folder = pFile.rfind('/');
    if (folder == std::string::npos || !znNCodeLiterals::literalHas(pFile.substr(0, folder + 1)))
        return false;
    const std::string name = pFile.substr(folder + 1);
    const std::string bare = znNText::stemGet(pFile);
    return mThings.count(bare) != 0 || (!pFile.starts_with(PARTICLES) && znNCodeLiterals::literalHas(bare)) ||
           composedByCode(name);
}
