#ifndef TOOLS_AUTHOR_ZNNWHOLEFILE_H
#define TOOLS_AUTHOR_ZNNWHOLEFILE_H

// Files of an author that are written whole or not at all: a draft beside the file takes its place once all of it is on
// the disk, so a full disk costs nothing that was there.

#include "tools/author/znNPng.h"

#include <filesystem>
#include <string>

namespace znNWholeFile
{
// False, with a sentence on standard error, if the file can't be written; it is as it was then.
bool textWrite(const std::filesystem::path& pFile, const std::string& pText);
bool pictureWrite(const std::filesystem::path& pFile, const znSPicture& pPicture);

// The steps, for who writes several files that belong together: false, without a word, if one fails.
bool textDraft(const std::filesystem::path& pFile, const std::string& pText);
bool pictureDraft(const std::filesystem::path& pFile, const znSPicture& pPicture);
bool draftTake(const std::filesystem::path& pFile);
void draftDrop(const std::filesystem::path& pFile); // whether there is one or not
} // namespace znNWholeFile

#endif
