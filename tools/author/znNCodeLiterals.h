#ifndef TOOLS_AUTHOR_ZNNCODELITERALS_H
#define TOOLS_AUTHOR_ZNNCODELITERALS_H

// The texts that stand in the game's sources, collected when the program is built: files, keys and names that the code
// knows by itself.

#include <set>
#include <string>

namespace znNCodeLiterals
{
// In lower case.
const std::set<std::string>& literalsGet();
bool literalHas(const std::string& pText); // in any case
} // namespace znNCodeLiterals

#endif
