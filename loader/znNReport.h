#ifndef LOADER_ZNNREPORT_H
#define LOADER_ZNNREPORT_H

#include <string>

// What the loader has to say to the person who started it.
namespace znNReport
{
// One line on standard error, behind the program's name.
void lineWrite(const char* pFormat, ...) __attribute__((format(printf, 1, 2)));

// The text with every control character as a question mark, so that a name from a data file can't steer a terminal.
std::string printable(const std::string& pText);
} // namespace znNReport

#endif
