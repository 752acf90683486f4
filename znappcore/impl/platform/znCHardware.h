#ifndef ZNAPPCORE_IMPL_PLATFORM_ZNCHARDWARE_H
#define ZNAPPCORE_IMPL_PLATFORM_ZNCHARDWARE_H

#include "znappcore/znIHardware.h"
#include "zncore/impl/platform/s3eExtensions.h"

// The machine as the loader and its two desktop extensions show it.
class znCHardware : public znIHardware
{
public:
    znCHardware();

    void urlOpen(const std::string& pUrl) override;
    void systemCursorVisibleSet(bool pVisible) override;
    bool isDesktopGet() override;
    void clientAreaPoll() override;

private:
    bool mInClient = true;
    s3eWindow mWindow = {};
    bool mWindowBound = false;
    windowsMouseExt mMouse = {}; // null functions without the extension
};

#endif
