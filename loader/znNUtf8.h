#ifndef LOADER_ZNNUTF8_H
#define LOADER_ZNNUTF8_H

#include "zncore/znTypes.h"

#include <functional>
#include <string>

// UTF-8 as the loader meets it: typed by a person, written in a script.
namespace znNUtf8
{
// Calls pUse with each UTF-16 unit of the text; bytes that are no UTF-8 are left out.
void unitsEach(const std::string& pText, const std::function<void(u16)>& pUse);
bool isValid(const std::string& pText);
} // namespace znNUtf8

#endif
