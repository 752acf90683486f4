#ifndef TOOLS_AUTHOR_ZNNGAMELOG_H
#define TOOLS_AUTHOR_ZNNGAMELOG_H

#include <string>
#include <vector>

namespace znNGameLog
{
// What the game complains about in that part of its log, one message each, without the place in the code; what it tells
// about the device is left out.
std::vector<std::string> complaintsGet(const std::string& pLog);
} // namespace znNGameLog

#endif
