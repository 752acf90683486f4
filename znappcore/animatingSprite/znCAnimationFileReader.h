#ifndef ZNAPPCORE_ANIMATINGSPRITE_ZNCANIMATIONFILEREADER_H
#define ZNAPPCORE_ANIMATINGSPRITE_ZNCANIMATIONFILEREADER_H

#include "znappcore/animatingSprite/znCAnimationDataInstance.h"

#include <boost/shared_ptr.hpp>
#include <string>
#include <string_view>
#include <vector>

class znCResourceName;
class znIXmlAttribute;
class znIXmlNode;

// Reads one animation file. What is wrong in it gives a log line that names the file and the line, and is left out: a
// frame becomes blank, a key frame does nothing but keeps its number, and the rest stands. A file that isn't XML gives
// data without anything in it.
class znCAnimationFileReader
{
public:
    static constexpr s32 FRAMES_MAX = 4096;
    static constexpr s32 KEY_FRAMES_MAX = 65536; // of all timelines

    // pHitMap: load the pictures with hit maps.
    znCAnimationFileReader(const znCResourceName& pName, bool pHitMap);

    std::shared_ptr<znCAnimationDataInstance> read();

private:
    class Element;
    struct Area;

    void sequenceRead(const znIXmlNode& pSequence);
    void sheetLoad(const znIXmlNode& pSequence);
    void frameListRead(const znIXmlNode& pList);
    void frameRead(const znIXmlNode& pNode);
    znCBrushPtr brushLoad(const Element& pFrame, const Area& pArea);
    void timelineRead(const znIXmlNode& pNode);
    std::unique_ptr<znIKeyFrame> keyFrameRead(const znIXmlNode& pNode, s32 pFrameTime);
    std::unique_ptr<znIKeyFrame> scriptRead(const znIXmlNode& pNode, const std::string& pText);
    std::unique_ptr<znIKeyFrame> soundRead(const znIXmlNode& pNode, std::string_view pText);
    std::unique_ptr<znIKeyFrame> gotoRead(const znIXmlNode& pNode, std::string_view pText);
    void targetsCheck();

    // Logs what is wrong at an element, unless this file has filled enough of the log.
    void faultReport(const znIXmlNode& pNode, const std::string& pFault);
    // The same, for a key frame that does nothing in place of the faulty one.
    std::unique_ptr<znIKeyFrame> faultyReplace(const znIXmlNode& pNode, const std::string& pFault);

    const znCResourceName& mName;
    bool mHitMap;
    std::shared_ptr<znCAnimationDataInstance> mData;
    std::vector<boost::shared_ptr<znIXmlNode>> mKeyFrames; // of all timelines, in file order
    s32 mFaults = 0;
};

#endif
