// What the guides show works: every example is loaded by the game's own readers, and a newcomer who follows the page of
// the first scene gets one that can be played to its end.

#include "tests/tools/authorData.h"
#include "tests/tools/sceneRobot.h"
#include "tools/author/znCCheck.h"
#include "tools/author/znCNewScene.h"
#include "tools/author/znCProgram.h"
#include "tools/author/znNText.h"
#include "znappcore/animatingSprite/znCAnimationDataManager.h"
#include "znappcore/particles/znCParticleDataManager.h"
#include "znappcore/src/znCBrush.h"
#include "znappcore/src/znCBrushManager.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znCResourceName.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <regex>
#include <set>

namespace
{
namespace fs = std::filesystem;

// An indented part of a page.
struct Example
{
    std::string mPlace; // page:line
    std::vector<std::string> mLines;

    std::string textGet() const
    {
        std::string text;
        for (const std::string& line : mLines)
            text += line + "\n";
        return text;
    }
};

std::string fileGet(const fs::path& pFile)
{
    std::ifstream file(pFile, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<Example> examplesGet(const fs::path& pPage)
{
    constexpr std::size_t INDENT = 4;
    std::vector<Example> examples;
    s32 number = 0;
    bool open = false;
    std::string above;
    for (const std::string& line : znNText::linesGet(fileGet(pPage)))
    {
        ++number;
        const bool indented = line.starts_with("    ");
        if (indented && !open && above.empty())
        {
            examples.push_back({pPage.filename().string() + ":" + std::to_string(number), {}});
            open = true;
        }
        open = open && (indented || line.empty());
        if (open)
            examples.back().mLines.push_back(line.empty() ? "" : line.substr(INDENT));
        above = line;
    }
    for (Example& example : examples)
        while (example.mLines.back().empty())
            example.mLines.pop_back();
    return examples;
}

std::vector<fs::path> pagesGet()
{
    std::vector<fs::path> pages;
    for (const char* folder : {"docs", "docs/authors"})
        for (const auto& entry : fs::directory_iterator(fs::path(PETREL_ROOT) / folder))
            if (entry.path().extension() == ".md")
                pages.push_back(entry.path());
    std::sort(pages.begin(), pages.end());
    return pages;
}

const fs::path FIRST_SCENE = fs::path(PETREL_ROOT) / "docs/authors/first-scene.md";

enum class Kind
{
    COMMANDS,
    LOG, // what the game says
    KEPT,
    COORDS,
    PAGE,
    TABLE,
    SCREEN,
    ANIMATION,
    PARTICLES,
    TEXTS,
    UNKNOWN
};

Kind kindGet(const Example& pExample)
{
    const std::string text = pExample.textGet();
    const std::pair<Kind, const char*> forms[] = {
        {Kind::COMMANDS, "^(\\./|build/|cmake |ninja |cp |export |rm |fuzz/|bench/|tools/)[^;]*"},
        {Kind::LOG, "^Passed the end[^;]*"},
        {Kind::ANIMATION, "^<sequence[^]*"},
        {Kind::TEXTS, "^<Row>[^]*"},
        {Kind::PARTICLES, "^(#.*\\n)?imageFileName = [^]*"},
        {Kind::PAGE, "^[^ ,\\n]+\\n([^ ,\\n]+(,\\d+){4}\\n)+"},
        {Kind::COORDS, "^([^ ,\\n]+(,[^ ,\\n]+){2}\\n)+"},
        {Kind::SCREEN, "^(#.*\\n)?(include|style|znC)[^]*\\{[^]*"},
        {Kind::KEPT, "^[a-z/*.]+ +#[^]*"},
        {Kind::TABLE, "^\\w+ = \"[^]*"},
    };
    for (const auto& [kind, form] : forms)
        if (std::regex_match(text, std::regex(form)))
            return kind;
    return Kind::UNKNOWN;
}

// The game with a scene of its own that examples go into, and pictures under whatever names they want.
class Reader
{
public:
    Reader() : mGame(titled(mData).folderGet())
    {
        mData.pictureSet("picture.png", 512, 512, 0x808080, true);
        mPicture = mData.textGet("picture.png");
        mGame.open("");
    }

    // What the game has to say about it.
    std::vector<std::string> read(const Example& pExample, Kind pKind)
    {
        const std::string text = pExample.textGet();
        picturesMake(text);
        mGame.complaintsTake();
        switch (pKind)
        {
        case Kind::COORDS:
            fileSet("scenes/example/example.txt", "ACT1NextLev = \"gui/mainMenu/mainMenu.txt\",\n");
            fileSet("scenes/example/coords.txt",
                    (text.starts_with("Background") ? "" : "BackgroundExample.png,0,0\n") + text);
            mGame.open("example");
            EXPECT_NE(znIHogLevel::levelGet(), nullptr) << pExample.mPlace;
            break;
        case Kind::PAGE:
            fileSet("scenes/example/texturepage0.txt", std::regex_replace(text, std::regex("\n"), "\r\n"));
            znCBrushManager::instanceGet()->texturePageLoad(
                znCResourceName("scenes/example/texturepage0.txt", znCResourceName::GAME_DATA), false);
            break;
        case Kind::SCREEN:
            fileSet("gui/example.txt", text);
            mGame.open("gui/example.txt");
            break;
        case Kind::ANIMATION:
            fileSet("scenes/example/example.xml", text);
            znCAnimationDataManager::instanceGet()->dataGet(
                znCResourceName("scenes/example/example.xml", znCResourceName::GAME_DATA), false);
            break;
        case Kind::PARTICLES:
            fileSet("particles/example.txt", text);
            znCParticleDataManager::instanceGet()->dataGet(
                znCResourceName("particles/example.txt", znCResourceName::GAME_DATA));
            break;
        case Kind::TABLE:
            tableRead(pExample);
            break;
        default:
            break;
        }
        return mGame.complaintsTake();
    }

private:
    // A scene without a title is a fault.
    static const AuthorData& titled(const AuthorData& pData)
    {
        EXPECT_TRUE(znCNewScene(pData.folderGet()).titleAdd("example"));
        return pData;
    }

    void fileSet(const std::string& pName, const std::string& pText) { mGame.mPlatform.mFiles.fileSet(pName, pText); }

    // Every picture that it may name, where it isn't one that ships.
    void picturesMake(const std::string& pText)
    {
        static const std::regex FORM("[A-Za-z0-9_./+-]+\\.(png|jpg)");
        for (std::sregex_iterator i(pText.begin(), pText.end(), FORM); i != std::sregex_iterator(); ++i)
        {
            const std::string name = znNText::lowerGet(i->str());
            if (!mGame.fileExists(name))
                fileSet(name.find('/') == std::string::npos ? "scenes/example/" + name : name, mPicture);
        }
        for (const char* name : {"scenes/example/backgroundexample.png", "scenes/example/lamp.png"})
            fileSet(name, mPicture);
    }

    // Every entry arrives, and what begins an entry is one.
    static void tableRead(const Example& pExample)
    {
        const std::string text = pExample.textGet();
        znCVariableTable table;
        table.textParse(text.data(), text.data() + text.size());
        static const std::regex FORM("^(\\w+) = .*");
        std::set<std::string> keys;
        std::smatch match;
        for (const std::string& line : pExample.mLines)
            if (std::regex_match(line, match, FORM))
                keys.insert(znNText::lowerGet(match[1]));
        for (const std::string& key : keys)
            EXPECT_EQ(table.entriesGet().count(key), 1u) << pExample.mPlace << ": " << key;
        EXPECT_EQ(table.entriesGet().size(), keys.size()) << pExample.mPlace;
    }

    AuthorData mData;
    znCAuthorGame mGame;
    std::string mPicture;
};

// The page's edits, done as a reader would.
class Newcomer
{
public:
    Newcomer()
    {
        fs::create_directories(mFolder.pathGet() / "build/release");
        fs::create_symlink(fs::absolute(PETREL_BIN), mFolder.pathGet() / "build/release/bin");
        fs::create_symlink(mData.folderGet(), mFolder.pathGet() / "data");
    }

    void follow(const Example& pExample, Kind pKind)
    {
        if (pKind == Kind::COMMANDS)
            for (const std::string& line : pExample.mLines)
                commandRun(line, pExample.mPlace);
        else if (pKind == Kind::COORDS)
            coordsEdit(pExample);
        else if (pKind == Kind::TABLE)
            tableEdit(pExample);
        else if (pKind == Kind::TEXTS)
        {
            std::string texts = mData.textGet("strings.xml");
            ASSERT_NE(texts.find("</Table>"), std::string::npos);
            mData.textSet("strings.xml", texts.insert(texts.find("</Table>"), pExample.textGet()));
        }
        else
            ADD_FAILURE() << pExample.mPlace << " is nothing that a reader could do";
    }

    AuthorData mData;
    std::set<std::string> mDone; // words behind petrelmail-author

private:
    void commandRun(const std::string& pLine, const std::string& pPlace)
    {
        static const std::regex TOOL("build/release/bin/petrelmail-author (\\w+).*");
        std::smatch match;
        const bool tool = std::regex_match(pLine, match, TOOL);
        if (tool)
            mDone.insert(match[1]);
        // These need a window, and are tested elsewhere; the build is what runs this.
        const bool elsewhere = pLine.find(" watch ") != std::string::npos || pLine.starts_with("cmake") ||
                               pLine.starts_with("ninja") || pLine.find("petrelmail -- ") != std::string::npos;
        if (elsewhere)
            return;
        znCProgram shell("/bin/sh", {"-c", "cd " + mFolder.pathGet().string() + " && " + pLine + " >out.txt 2>&1"});
        const int status = shell.wait();
        if (pLine.ends_with(" check")) // names the scene before ours, which this folder lacks
            return;
        EXPECT_EQ(status, 0) << pPlace << ": " << pLine << "\n" << fileGet(mFolder.pathGet() / "out.txt");
    }

    // The first line is there, with that place or another; further ones are put behind it.
    void coordsEdit(const Example& pExample)
    {
        constexpr char FILE[] = "scenes/attic/coords.txt";
        std::vector<std::string> lines = znNText::linesGet(mData.textGet(FILE));
        const std::string name = pExample.mLines.front().substr(0, pExample.mLines.front().find(',') + 1);
        const auto line = std::find_if(lines.begin(), lines.end(),
                                       [&name](const std::string& pLine) { return pLine.starts_with(name); });
        ASSERT_NE(line, lines.end()) << pExample.mPlace;
        lines.insert(lines.erase(line), pExample.mLines.begin(), pExample.mLines.end());
        std::string text;
        for (const std::string& each : lines)
            text += each + "\n";
        mData.textSet(FILE, text);
    }

    // Of the scene, or of the one that leads to it.
    void tableEdit(const Example& pExample)
    {
        const std::string entry = pExample.mLines.front();
        const std::string key = entry.substr(0, entry.find(" ="));
        if (entry.find("\"attic\"") != std::string::npos)
        {
            mData.textSet("scenes/quay/coords.txt", "BackgroundQuay.png,0,0\n");
            mData.pictureSet("scenes/quay/backgroundquay.png", 100, 100);
            return mData.textSet("scenes/quay/quay.txt", entry + "\n");
        }
        std::string text = mData.textGet("scenes/attic/attic.txt");
        ASSERT_NE(text.find(key + " = "), std::string::npos) << pExample.mPlace;
        mData.textSet("scenes/attic/attic.txt",
                      std::regex_replace(text, std::regex("(^|\n)" + key + " = \"[^\"]*\","), "$1" + entry));
    }

    znCPassingFolder mFolder;
};
} // namespace

TEST(docsTest, everyExampleIsReadByTheGame)
{
    Reader reader;
    std::set<Kind> seen;
    for (const fs::path& page : pagesGet())
        for (const Example& example : examplesGet(page))
        {
            const Kind kind = kindGet(example);
            seen.insert(kind);
            EXPECT_NE(kind, Kind::UNKNOWN) << example.mPlace << " is of no known kind:\n" << example.textGet();
            for (const std::string& complaint : reader.read(example, kind))
                ADD_FAILURE() << example.mPlace << ": " << complaint;
        }
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(Kind::UNKNOWN)) << "all kinds are there";
}

TEST(docsTest, faultyExamplesAreSeen)
{
    Reader reader;
    const std::pair<Kind, const char*> cases[] = {
        {Kind::COORDS, "PCK-rope.png,left,4\n"},
        {Kind::PAGE, "scenes/example/a.png\nscenes/example/b.png,500,0,64,64\n"},
        {Kind::SCREEN, "znCSpriteComponent {\n    imagge\n}\n"},
        {Kind::ANIMATION,
         "<sequence name=\"lamp\">\n<timeline name=\"main\"><key frame=\"3\"/></timeline>\n</sequence>\n"},
        {Kind::PARTICLES, "imageFileName = particles/spark.png ;\nmaxParticle = 4 ;\n"},
    };
    for (const auto& [kind, text] : cases)
    {
        const Example example = {"here", znNText::linesGet(text)};
        EXPECT_EQ(kindGet(example), kind) << text;
        EXPECT_FALSE(reader.read(example, kind).empty()) << text;
    }
}

TEST(docsTest, pagesLeadToPagesThatAreThere)
{
    static const std::regex FORM("\\]\\(([^)#]*)(#[^)]*)?\\)");
    std::vector<fs::path> pages = pagesGet();
    pages.push_back(fs::path(PETREL_ROOT) / "README.md");
    for (const fs::path& page : pages)
    {
        const std::string text = fileGet(page);
        for (std::sregex_iterator i(text.begin(), text.end(), FORM); i != std::sregex_iterator(); ++i)
        {
            const std::string target = (*i)[1];
            if (target.find("://") != std::string::npos)
                continue;
            const fs::path file = target.empty() ? page : page.parent_path() / target;
            EXPECT_TRUE(fs::exists(file)) << page << ": " << target;
            if (!(*i)[2].matched || !fs::exists(file))
                continue;
            std::set<std::string> anchors;
            for (const std::string& line : znNText::linesGet(fileGet(file)))
                if (line.starts_with("#"))
                    anchors.insert(
                        "#" + std::regex_replace(std::regex_replace(znNText::lowerGet(line.substr(line.find(' ') + 1)),
                                                                    std::regex("[^a-z0-9 _-]"), ""),
                                                 std::regex(" "), "-"));
            EXPECT_EQ(anchors.count((*i)[2]), 1u) << page << ": " << target << (*i)[2];
        }
    }
}

TEST(docsTest, aNewcomersFirstSceneIsPlayedToItsEnd)
{
    Newcomer newcomer;
    for (const Example& example : examplesGet(FIRST_SCENE))
        newcomer.follow(example, kindGet(example));
    for (const char* command : {"new", "watch", "shot", "check", "fair", "pack"})
        EXPECT_EQ(newcomer.mDone.count(command), 1u) << command;
    {
        znCCheck check(newcomer.mData.folderGet());
        std::string faults;
        for (const znSFault& fault : check.run())
            if ((fault.mFile + fault.mText).find("attic") != std::string::npos && fault.mFile != "scenes/quay/quay.txt")
                faults += fault.mFile + ":" + std::to_string(fault.mLine) + ": " + fault.mText + "\n";
        EXPECT_EQ(faults.find("nothing leads"), std::string::npos) << faults;
        EXPECT_EQ(faults, "");
    }
    EXPECT_TRUE(fs::exists(newcomer.mData.folderGet() / "scenes/attic/texturepage0.png"));
    SceneRobot robot(newcomer.mData.folderGet(), "attic");
    EXPECT_NE(znIHogLevel::levelGet()->childFind("PCK-orange.png"), nullptr);
    EXPECT_TRUE(robot.play());
}
