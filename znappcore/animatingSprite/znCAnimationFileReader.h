#ifndef ZNAPPCORE_ANIMATINGSPRITE_ZNCANIMATIONFILEREADER_H
#define ZNAPPCORE_ANIMATINGSPRITE_ZNCANIMATIONFILEREADER_H

#include "znappcore/animatingSprite/znCAnimationDataInstance.h"

#include <string_view>

class znCResourceName;
class znIXmlAttribute;
class znIXmlNode;

// Reads one animation file. What is wrong in it gives a log line that names the file, and is left out: a frame becomes
// blank, a key frame does nothing, and the rest stands. A file that isn't XML gives data without anything in it.
class znCAnimationFileReader
{
public:
    static constexpr s32 FRAMES_MAX = 4096;
    static constexpr s32 KEY_FRAMES_MAX = 65536; // of all timelines

    // pHitMap: load the pictures with hit maps.
    znCAnimationFileReader(const znCResourceName& pName, bool pHitMap);

    std::shared_ptr<znCAnimationDataInstance> read();

private:
    void sequenceRead(const znIXmlNode& pSequence);
    void sheetLoad(const znIXmlNode& pSequence);
    void frameListRead(const znIXmlNode& pList);
    void frameRead(const znIXmlNode& pNode);
    void timelineRead(const znIXmlNode& pNode);
    std::unique_ptr<znIKeyFrame> keyFrameRead(const znIXmlNode& pNode, s32 pFrameTime);
    std::unique_ptr<znIKeyFrame> scriptRead(const std::string& pText);
    std::unique_ptr<znIKeyFrame> soundRead(std::string_view pText);
    std::unique_ptr<znIKeyFrame> gotoRead(std::string_view pText);
    void targetsCheck();

    // Whether there is still room for a line about this file in the log.
    bool faultCount();

    const znCResourceName& mName;
    bool mHitMap;
    std::shared_ptr<znCAnimationDataInstance> mData;
    s32 mKeyFrames = 0;
    s32 mFaults = 0;
};

#endif
