#ifndef TOOLS_AUTHOR_ZNCIMPORT_H
#define TOOLS_AUTHOR_ZNCIMPORT_H

// Makes a scene of a layered picture, or renews the scene that was made of it: the name of a layer is the name of an
// entry, its place the entry's place, an outermost group is a close-up. docs/authors/README.md tells the rules.

#include "tools/author/znCOpenRaster.h"

#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

class znCImport
{
public:
    explicit znCImport(const std::filesystem::path& pData) : mData(pData) {}

    // False, with all that is wrong on standard error, a line each; the scene is as it was then.
    bool import(const std::filesystem::path& pFile, const std::string& pScene);

    const std::vector<std::string>& filesGet() const { return mFiles; } // written, below the data folder
    const std::vector<std::string>& notesGet() const { return mNotes; } // what an author may want to know

private:
    struct Entry
    {
        std::string mName;
        s32 mX;
        s32 mY;
    };

    void groupTake(znCOpenRaster::Group& pGroup);
    bool backgroundName(znCOpenRaster::Group& pGroup);
    void layerTake(znCOpenRaster::Layer& pLayer);
    bool nameRead(const std::string& pLayerName, std::string& pName);
    void entriesKeep();
    void pagesCheck();
    void tableMake();
    bool filesWrite();
    void wrong(const std::string& pWhat) { mWrong.push_back(pWhat); }

    std::filesystem::path mData;
    std::string mScene;
    std::string mFolder; // of the scene, below the data folder, with its slash
    std::unique_ptr<znCAuthorGame> mGame;
    s32 mWidth = 0; // of the layered picture
    s32 mHeight = 0;
    std::vector<Entry> mEntries;
    std::map<std::string, znSPicture> mPictures; // by file, below the data folder
    std::map<std::string, std::string> mTexts;
    std::set<std::string> mNames; // of entries, in lower case
    std::vector<std::string> mWrong;
    std::vector<std::string> mFiles;
    std::vector<std::string> mNotes;
};

#endif
