#ifndef TOOLS_AUTHOR_ZNCSCENECHECK_H
#define TOOLS_AUTHOR_ZNCSCENECHECK_H

// The checks of one scene, which is open in the game: names, locks and keys, doors, lists and what they can find.

#include "tools/author/znCComplaints.h"

#include <set>
#include <string>
#include <vector>

class znCEntity;
class znCPickListGui;
class znIHogLevel;

class znCSceneCheck
{
public:
    // pFiles: what the scene was read from.
    znCSceneCheck(const std::string& pScene, znCAuthorGame& pGame, znCFaults& pFaults, znCComplaints& pComplaints,
                  const std::vector<std::string>& pFiles);

    void run();
    // Where the scene leads to: scenes and GUI files.
    std::set<std::string> waysGet() const;
    // Base names and keys of all that it holds, in lower case.
    std::set<std::string> thingsGet() const;

private:
    void namesCheck();
    void nameCheck(const std::string& pName, s32 pLine);
    void locksCheck();
    void tasksCheck();
    void doorsCheck();
    void listsCheck();
    void listTotalCheck(const znCPickListGui& pList);
    void wordsCheck(const znCPickListGui& pList);
    void effectsCheck();
    void add(const znCEntity& pEntity, const std::string& pText);
    s32 coordsLineGet(const std::string& pName) const;

    std::string mScene;
    znCAuthorGame& mGame;
    znCFaults& mFaults;
    znCComplaints& mComplaints;
    std::vector<std::string> mFiles;
    std::string mCoords;
    znIHogLevel* mLevel; // owned by the game
};

#endif
