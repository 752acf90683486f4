#ifndef ZNCORE_IMPL_PLATFORM_ZNNFILEPATH_H
#define ZNCORE_IMPL_PLATFORM_ZNNFILEPATH_H

#include <string>

namespace znNFilePath
{
// Whether the name stays in its folder: no "..", not absolute, no end marker or backslash in it. If not, logs
// "File %s isn't a name inside the game's folders.\n". The loader checks again, links included.
bool allowedGet(const std::string& pName);
} // namespace znNFilePath

#endif
