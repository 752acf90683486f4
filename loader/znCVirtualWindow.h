#ifndef LOADER_ZNCVIRTUALWINDOW_H
#define LOADER_ZNCVIRTUALWINDOW_H

#include "loader/znIWindow.h"

// The window of a headless run: it obeys, but nobody sees it. Of the outside only signals that end the process reach
// it.
class znCVirtualWindow : public znIWindow
{
public:
    // The modes of a headless desktop where nothing else was asked for.
    static constexpr const char* MODES = "1024x768,1280x720,1366x768,1920x1080";

    using znIWindow::znIWindow;

    void eventsPump(znCInputQueue& pQueue) override;
    void drawableSizeGet(s32& pWidth, s32& pHeight) const override;
    void swap() override {}
    s32 refreshGet() const override { return 60; }
    void idle(s32 pMs) override;
};

#endif
