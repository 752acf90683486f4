#ifndef LOADER_ZNNTEXTFILE_H
#define LOADER_ZNNTEXTFILE_H

#include <charconv>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// Text files that a person hands to the loader: scripts and recordings.
namespace znNTextFile
{
// The lines, without their ends. False with a sentence in pError when the file can't be read.
bool linesRead(const std::filesystem::path& pPath, std::vector<std::string>& pLines, std::string& pError);
// The first word of pText, taken off it together with the blanks on both its sides.
std::string_view wordTake(std::string_view& pText);
// A whole decimal number within the limits.
template <class Number>
bool numberParse(std::string_view pText, Number pLowest, Number pHighest, Number& pNumber);
// A text on one line: line ends and backslashes behind a backslash; and back again.
std::string escaped(std::string_view pText);
std::string unescaped(std::string_view pText);
// "FILE:LINE: what"
std::string placed(const std::filesystem::path& pPath, size_t pLine, const std::string& pWhat);
} // namespace znNTextFile

template <class Number>
bool znNTextFile::numberParse(std::string_view pText, Number pLowest, Number pHighest, Number& pNumber)
{
    const char* end = pText.data() + pText.size();
    const auto [stop, error] = std::from_chars(pText.data(), end, pNumber);
    return error == std::errc() && stop == end && pNumber >= pLowest && pNumber <= pHighest;
}

#endif
