#ifndef ZNAPPCORE_SRC_ZNCFONT_H
#define ZNAPPCORE_SRC_ZNCFONT_H

#include "media/znCGraphicsFont.h"
#include "znappcore/znIFont.h"

#include <memory>

class znCFont final : public znIFont
{
public:
    void load(const znCResourceName& pName, s32 pSize) override;

    // Null before load.
    const znCGraphicsFont* graphicsFontGet() const { return mGxFont.get(); }

private:
    std::unique_ptr<znCGraphicsFont> mGxFont;
};

#endif
