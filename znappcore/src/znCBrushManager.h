#ifndef ZNAPPCORE_SRC_ZNCBRUSHMANAGER_H
#define ZNAPPCORE_SRC_ZNCBRUSHMANAGER_H

#include "znappcore/src/znCBrush.h"

#include <array>
#include <map>
#include <string>
#include <string_view>

class znCResourceName;

// Hands out brushes by the name of their image, each loaded once until the level changes. A singleton.
class znCBrushManager
{
public:
    // A second call logs "Already created znCBrushManager." and starts anew.
    static void create();
    // Without an instance both log "Not created."; instanceGet answers null then.
    static znCBrushManager* instanceGet();
    static void destroy();

    // The brush of that name, from memory or from its image file. pHitMap counts only when the file is loaded now: a
    // brush that is there already comes as it is. Never null.
    znCBrushPtr brushGet(const znCResourceName& pName, bool pHitMap);

    // Reads a texture page list: the image file's name on the first line, then a record "name,x,y,width,height" a line.
    // Each record becomes a brush on the one texture, found by brushGet without touching the disk. A faulty record is
    // left out with one log line that names file and line. When the image itself is faulty, every record becomes a
    // brush of the whole default picture.
    void texturePageLoad(const znCResourceName& pPage, bool pHitMap);

    // All that brushGet finds in memory, by the names of their images.
    const std::map<std::string, znCBrushPtr>& brushesGet() const { return mBrushes; }

    // Forgets all brushes, at a change of level. Who holds one keeps it.
    void brushesClear();

    // A brush on the source's texture; the rectangle counts from the texture's corner, not from the source's. It isn't
    // found by name.
    znCBrushPtr areaBrushCreate(const znCBrushPtr& pSource, s32 pX, s32 pY, s32 pWidth, s32 pHeight);
    // The silhouette of the source's hit map: white where it is hit. It isn't found by name.
    znCBrushPtr alpha8BrushCreate(const znCBrushPtr& pSource);

    znCBrushManager(const znCBrushManager&) = delete;
    znCBrushManager& operator=(const znCBrushManager&) = delete;

private:
    znCBrushManager() = default;

    void recordsRead(const znCResourceName& pPage, std::string_view pRecords, const znITexturePtr& pTexture);
    void recordEnter(const std::string& pName, const std::array<s32, 4>& pRectangle, const znITexturePtr& pTexture);

    std::map<std::string, znCBrushPtr> mBrushes; // by resource name
};

#endif
