#include "loader/znNReport.h"

#include <cstdarg>
#include <cstdio>

void znNReport::lineWrite(const char* pFormat, ...)
{
    va_list arguments;
    va_start(arguments, pFormat);
    std::fputs("petrelmail: ", stderr);
    std::vfprintf(stderr, pFormat, arguments);
    std::fputc('\n', stderr);
    va_end(arguments);
}

std::string znNReport::printable(const std::string& pText)
{
    std::string result = pText;
    for (char& c : result)
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
            c = '?';
    return result;
}
