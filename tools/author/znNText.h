#ifndef TOOLS_AUTHOR_ZNNTEXT_H
#define TOOLS_AUTHOR_ZNNTEXT_H

// Looking things up in the text of a file, so that a fault can name its line. Nothing here reads a format.

#include "zncore/znTypes.h"

#include <string>
#include <vector>

namespace znNText
{
std::string lowerGet(std::string pText);
std::vector<std::string> linesGet(const std::string& pText); // without their ends
// Lines count from 1; 0: not found. In any case of letters; pWhole: no letter, digit, '_', '-' or '.' may touch it.
s32 lineFind(const std::string& pText, const std::string& pPart, bool pWhole, s32 pFrom = 1);
// The line of an entry "pKey = ".
s32 keyLineFind(const std::string& pText, const std::string& pKey, s32 pFrom = 1);
std::string stemGet(const std::string& pName);      // without folders and extension
std::string extensionGet(const std::string& pName); // with its dot
std::string baseNameGet(const std::string& pName);  // without folders
} // namespace znNText

#endif
