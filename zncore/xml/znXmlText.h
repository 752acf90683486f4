#ifndef ZNCORE_XML_ZNXMLTEXT_H
#define ZNCORE_XML_ZNXMLTEXT_H

#include "zncore/znTypes.h"
#include <string_view>

// Part of the text of a file; the pools keep it as long as their nodes. Has no constructor, so that a pool's memory
// isn't touched before it is used.
struct znXmlText
{
    const char* mBegin;
    s32 mSize;

    std::string_view viewGet() const
    {
        return std::string_view(mBegin, static_cast<std::string_view::size_type>(mSize));
    }
};

#endif
