#ifndef TOOLS_AUTHOR_ZNCNEWSCENE_H
#define TOOLS_AUTHOR_ZNCNEWSCENE_H

// Makes the folder of a scene that runs at once, with one object of each kind and comments that say what each does.

#include "zncore/znTypes.h"

#include <filesystem>
#include <string>
#include <vector>

class znCNewScene
{
public:
    explicit znCNewScene(const std::filesystem::path& pData) : mData(pData) {}

    // pName: small letters, digits and "_". False with a sentence on standard error if that can't be, if there is
    // such a scene or if a file can't be written; all is as it was then.
    bool make(const std::string& pName);
    // The scene's name as its title in the strings, which every scene needs. False, likewise, if they can't be written.
    bool titleAdd(const std::string& pName);
    static bool isName(const std::string& pName);
    // All that was written, folders apart.
    const std::vector<std::filesystem::path>& filesGet() const { return mFiles; }

private:
    bool nameCheck(const std::string& pName) const;
    void picturesMake(const std::filesystem::path& pFolder);
    void textWrite(const std::filesystem::path& pFile, const std::string& pText);
    bool stringAdd(const std::string& pKey, const std::string& pText);

    std::filesystem::path mData;
    std::vector<std::filesystem::path> mFiles;
    bool mWritten = true; // all so far
};

#endif
