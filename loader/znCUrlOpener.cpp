#include "loader/znCUrlOpener.h"

#include "loader/znNReport.h"

#include <algorithm>
#include <csignal>
#include <cstring>
#include <spawn.h>
#include <strings.h>
#include <unistd.h>

namespace
{
constexpr size_t URL_MAX = 2048;

// 0, or the error's number. The opener gets a session of its own, so that it outlives the game.
int openerSpawn(const std::string& pUrl)
{
    std::signal(SIGCHLD, SIG_IGN); // nobody waits for it
    std::string program = "xdg-open";
    std::string url = pUrl;
    char* arguments[] = {program.data(), url.data(), nullptr};
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF);
    sigset_t childSignal;
    sigemptyset(&childSignal);
    sigaddset(&childSignal, SIGCHLD); // the opener waits for children of its own
    posix_spawnattr_setsigdefault(&attributes, &childSignal);
    pid_t child = 0;
    const int error = posix_spawnp(&child, program.c_str(), nullptr, &attributes, arguments, environ);
    posix_spawnattr_destroy(&attributes);
    return error;
}
} // namespace

bool znCUrlOpener::isAllowed(const std::string& pUrl)
{
    const auto startsWith = [&pUrl](const char* pScheme)
    {
        return strncasecmp(pUrl.c_str(), pScheme, std::strlen(pScheme)) == 0 && pUrl.size() > std::strlen(pScheme);
    };
    const bool known = startsWith("http://") || startsWith("https://") || startsWith("mailto:");
    return known && pUrl.size() <= URL_MAX &&
           std::all_of(pUrl.begin(), pUrl.end(), [](unsigned char c) { return c > 0x20 && c != 0x7f; });
}

bool znCUrlOpener::open(const std::string& pUrl) const
{
    const std::string shown = znNReport::printable(pUrl.substr(0, URL_MAX));
    if (!isAllowed(pUrl))
    {
        znNReport::lineWrite("refused to open \"%s\": only http, https and mailto addresses are", shown.c_str());
        return false;
    }
    if (mDryRun)
    {
        znNReport::lineWrite("would open %s", shown.c_str());
        return true;
    }
    const int error = openerSpawn(pUrl);
    if (error != 0)
        znNReport::lineWrite("cannot open %s: xdg-open: %s", shown.c_str(), std::strerror(error));
    return error == 0;
}
