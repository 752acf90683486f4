#ifndef ZNCORE_ZNNBYTEORDERMARK_H
#define ZNCORE_ZNNBYTEORDERMARK_H

// What some editors put in front of a UTF-8 text. It is no part of it.

#include <string_view>

namespace znNByteOrderMark
{
constexpr std::string_view UTF_8 = "\xEF\xBB\xBF";

constexpr std::string_view cut(std::string_view pText)
{
    return pText.starts_with(UTF_8) ? pText.substr(UTF_8.size()) : pText;
}
} // namespace znNByteOrderMark

#endif
