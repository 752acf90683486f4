#include "loader/znNTextFile.h"

#include <cerrno>
#include <cstring>
#include <fstream>

namespace
{
constexpr const char* BLANKS = " \t";
}

bool znNTextFile::linesRead(const std::filesystem::path& pPath, std::vector<std::string>& pLines, std::string& pError)
{
    std::error_code ignored;
    std::ifstream file(pPath, std::ios::binary);
    if (!file || std::filesystem::is_directory(pPath, ignored))
    {
        pError = "cannot read " + pPath.string() + ": " + (file ? "it is a folder" : std::strerror(errno));
        return false;
    }
    for (std::string line; std::getline(file, line);)
    {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        pLines.push_back(line);
    }
    if (!file.bad())
        return true;
    pError = "cannot read " + pPath.string();
    return false;
}

std::string_view znNTextFile::wordTake(std::string_view& pText)
{
    const size_t begin = std::min(pText.find_first_not_of(BLANKS), pText.size());
    const size_t end = std::min(pText.find_first_of(BLANKS, begin), pText.size());
    const std::string_view word = pText.substr(begin, end - begin);
    pText.remove_prefix(std::min(pText.find_first_not_of(BLANKS, end), pText.size()));
    return word;
}

std::string znNTextFile::escaped(std::string_view pText)
{
    std::string result;
    for (char c : pText)
    {
        if (c == '\\' || c == '\n' || c == '\r')
            result += '\\';
        result += c == '\n' ? 'n' : c == '\r' ? 'r' : c;
    }
    return result;
}

std::string znNTextFile::unescaped(std::string_view pText)
{
    std::string result;
    for (size_t i = 0; i < pText.size(); ++i)
    {
        const bool marked = pText[i] == '\\' && i + 1 < pText.size();
        const char c = marked ? pText[++i] : pText[i];
        result += marked && c == 'n' ? '\n' : marked && c == 'r' ? '\r' : c;
    }
    return result;
}

std::string znNTextFile::placed(const std::filesystem::path& pPath, size_t pLine, const std::string& pWhat)
{
    return pPath.string() + ":" + std::to_string(pLine) + ": " + pWhat;
}
