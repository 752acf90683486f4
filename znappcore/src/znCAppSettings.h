#ifndef ZNAPPCORE_SRC_ZNCAPPSETTINGS_H
#define ZNAPPCORE_SRC_ZNCAPPSETTINGS_H

#include "zncore/src/znCVariableTable.h"

// The application's settings, read once from "appSettings.txt" and not changed after that. Every reader states the
// value that it assumes for a missing key, so a missing file is no error and logs nothing.
class znCAppSettings : public znCVariableTable
{
public:
    virtual ~znCAppSettings() = default;

    // Makes the one instance and loads the file. A second call logs "Already created znCAppSettings.\n" and
    // starts anew.
    static void create();
    // Logs "Not created.\n" and returns null without an instance.
    static znCAppSettings* instanceGet();
    static void destroy();

private:
    znCAppSettings() = default;
};

#endif
