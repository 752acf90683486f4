#ifndef LOADER_ZNCURLOPENER_H
#define LOADER_ZNCURLOPENER_H

#include <string>

// Hands addresses to the system's opener, without a shell.
class znCUrlOpener
{
public:
    // pDryRun: says on standard error what would be opened, and opens nothing.
    explicit znCUrlOpener(bool pDryRun) : mDryRun(pDryRun) {}

    // http, https and mailto, with no blank or control character in it.
    static bool isAllowed(const std::string& pUrl);
    // False, with one line on standard error, for another address and when the opener can't be started.
    bool open(const std::string& pUrl) const;

private:
    bool mDryRun;
};

#endif
