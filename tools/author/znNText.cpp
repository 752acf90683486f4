#include "tools/author/znNText.h"

#include "zncore/znStr.h"

#include <cctype>
#include <sstream>

namespace
{
bool isPartOfName(char pLetter)
{
    return std::isalnum(static_cast<unsigned char>(pLetter)) != 0 || pLetter == '_' || pLetter == '-' || pLetter == '.';
}

bool holds(const std::string& pLine, const std::string& pPart, bool pWhole)
{
    for (auto at = pLine.find(pPart); at != std::string::npos; at = pLine.find(pPart, at + 1))
    {
        const auto end = at + pPart.size();
        if (!pWhole ||
            ((at == 0 || !isPartOfName(pLine[at - 1])) && (end == pLine.size() || !isPartOfName(pLine[end]))))
            return true;
    }
    return false;
}

bool beginsEntry(const std::string& pLine, const std::string& pKey)
{
    for (auto at = pLine.find(pKey); at != std::string::npos; at = pLine.find(pKey, at + 1))
    {
        const auto behind = pLine.find_first_not_of(" \t", at + pKey.size());
        if ((at == 0 || !isPartOfName(pLine[at - 1])) && behind != std::string::npos && pLine[behind] == '=')
            return true;
    }
    return false;
}
} // namespace

std::string znNText::lowerGet(std::string pText)
{
    znStr::toLower(pText);
    return pText;
}

std::vector<std::string> znNText::linesGet(const std::string& pText)
{
    std::vector<std::string> lines;
    std::istringstream text(pText);
    for (std::string line; std::getline(text, line);)
    {
        if (line.ends_with('\r'))
            line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

s32 znNText::lineFind(const std::string& pText, const std::string& pPart, bool pWhole, s32 pFrom)
{
    const std::vector<std::string> lines = linesGet(lowerGet(pText));
    const std::string part = lowerGet(pPart);
    for (auto i = static_cast<std::size_t>(pFrom - 1); i < lines.size(); ++i)
        if (holds(lines[i], part, pWhole))
            return static_cast<s32>(i) + 1;
    return 0;
}

s32 znNText::keyLineFind(const std::string& pText, const std::string& pKey, s32 pFrom)
{
    const std::vector<std::string> lines = linesGet(lowerGet(pText));
    const std::string key = lowerGet(pKey);
    for (auto i = static_cast<std::size_t>(pFrom - 1); i < lines.size(); ++i)
        if (beginsEntry(lines[i], key))
            return static_cast<s32>(i) + 1;
    return 0;
}

std::string znNText::baseNameGet(const std::string& pName)
{
    return pName.substr(pName.rfind('/') + 1);
}

std::string znNText::stemGet(const std::string& pName)
{
    const std::string base = baseNameGet(pName);
    return base.substr(0, base.rfind('.'));
}

std::string znNText::extensionGet(const std::string& pName)
{
    const std::string base = baseNameGet(pName);
    const auto dot = base.rfind('.');
    return dot == std::string::npos ? "" : base.substr(dot);
}
