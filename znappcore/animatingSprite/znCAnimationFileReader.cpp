#include "znappcore/animatingSprite/znCAnimationFileReader.h"

#include "znappcore/animatingSprite/znCAnimatingSprite.h"
#include "znappcore/animatingSprite/znCDoNothingKeyFrame.h"
#include "znappcore/animatingSprite/znCGotoFrameKeyFrame.h"
#include "znappcore/animatingSprite/znCJumpKeyFrame.h"
#include "znappcore/animatingSprite/znCSFXKeyFrame.h"
#include "znappcore/animatingSprite/znCSpriteKeyFrame.h"
#include "znappcore/animatingSprite/znCSwapTimelineKeyFrame.h"
#include "znappcore/src/znCBrushManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/xml/znIXmlParser.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "zncore/znNCoreUtils.h"
#include "zncore/znStr.h"

namespace
{
// The attributes of an element, by name where their order doesn't matter.
class Attributes
{
public:
    explicit Attributes(const znIXmlNode& pNode)
    {
        for (auto attribute = pNode.attributesBegin(); attribute != pNode.attributesEnd(); ++attribute)
            mValues.emplace_back((*attribute)->nameGet(), (*attribute)->valueGet());
    }

    // Null without one.
    const std::string* find(std::string_view pName) const
    {
        for (const auto& [name, value] : mValues)
            if (name == pName)
                return &value;
        return nullptr;
    }

    std::string strGet(std::string_view pName) const
    {
        const std::string* value = find(pName);
        return value != nullptr ? *value : std::string();
    }

    s32 s32Get(std::string_view pName) const { return znStr::toS32(strGet(pName)); }

    std::vector<std::pair<std::string, std::string>> mValues; // in file order
};

// Six numbers a b c d e f. The identity, and false, if there are fewer.
bool matrixRead(std::string_view pText, znAffineMtx2d& pMatrix)
{
    float numbers[6] = {};
    for (float& number : numbers)
    {
        const std::size_t begin = pText.find_first_not_of(" \t\r\n");
        if (begin == std::string_view::npos)
            return false;
        pText.remove_prefix(begin);
        const std::size_t end = std::min(pText.find_first_of(" \t\r\n"), pText.size());
        number = znStr::toF32(pText.substr(0, end));
        pText.remove_prefix(end);
    }
    pMatrix = znAffineMtx2d(numbers[0], numbers[1], numbers[2], numbers[3], numbers[4], numbers[5]);
    return true;
}

// The matrix that puts the registration point of a centred picture where pMatrix puts the origin.
znAffineMtx2d registered(const znAffineMtx2d& pMatrix, const Attributes& pFrame)
{
    const float x = static_cast<float>(static_cast<s64>(pFrame.s32Get("regx")) - pFrame.s32Get("w") / 2);
    const float y = static_cast<float>(static_cast<s64>(pFrame.s32Get("regy")) - pFrame.s32Get("h") / 2);
    return pMatrix * znAffineMtx2d(1.0f, 0.0f, 0.0f, 1.0f, -x, -y);
}

bool insideGet(s32 pX, s32 pY, s32 pWidth, s32 pHeight, const znITexture& pTexture)
{
    return pX >= 0 && pY >= 0 && pWidth <= pTexture.widthGet() && pHeight <= pTexture.heightGet() &&
           pX <= pTexture.widthGet() - pWidth && pY <= pTexture.heightGet() - pHeight;
}

// The area of the sheet. Null if it isn't inside; a default picture is shown whole instead of in parts.
znCBrushPtr sheetAreaGet(const znCBrushPtr& pSheet, const Attributes& pFrame)
{
    const s32 x = pFrame.s32Get("x");
    const s32 y = pFrame.s32Get("y");
    const s32 width = pFrame.s32Get("w");
    const s32 height = pFrame.s32Get("h");
    znCBrushManager* brushes = znCBrushManager::instanceGet();
    if (brushes == nullptr || pSheet == nullptr)
        return nullptr;
    if (pSheet->textureGet()->isDefaultPicture())
        return pSheet;
    if (!insideGet(x, y, width, height, *pSheet->textureGet()))
        return nullptr;
    return brushes->areaBrushCreate(pSheet, x, y, width, height);
}
} // namespace

znCAnimationFileReader::znCAnimationFileReader(const znCResourceName& pName, bool pHitMap)
    : mName(pName), mHitMap(pHitMap), mData(std::make_shared<znCAnimationDataInstance>(pName.nameGet()))
{
}

std::shared_ptr<znCAnimationDataInstance> znCAnimationFileReader::read()
{
    const boost::shared_ptr<znIXmlParser> parser = znIXmlParser::create();
    if (parser->parse(mName) != znIXmlParser::SUCCESS)
        return mData;
    const boost::shared_ptr<znIXmlNode> sequence = parser->nodeFind(nullptr, "sequence");
    if (sequence != nullptr)
        sequenceRead(*sequence);
    if (mData->timelineFind(znCAnimatingSprite::MAIN_TIMELINE) == nullptr && faultCount())
        ZN_LOG("Animation %s has no timeline \"%s\". It won't play.\n", mName.nameGet().c_str(),
               znCAnimatingSprite::MAIN_TIMELINE);
    return mData;
}

bool znCAnimationFileReader::faultCount()
{
    constexpr s32 REPORTS_MAX = 20;
    ++mFaults;
    if (mFaults == REPORTS_MAX)
        ZN_LOG("Animation %s has more faults.\n", mName.nameGet().c_str());
    return mFaults < REPORTS_MAX;
}

void znCAnimationFileReader::sequenceRead(const znIXmlNode& pSequence)
{
    sheetLoad(pSequence);
    for (auto child = pSequence.childrenBegin(); child != pSequence.childrenEnd(); ++child)
    {
        const boost::shared_ptr<znIXmlNode> node = *child;
        const std::string name = node->nameGet();
        if (name == "framelist")
            frameListRead(*node);
        else if (name == "timeline")
            timelineRead(*node);
    }
    targetsCheck();
}

void znCAnimationFileReader::sheetLoad(const znIXmlNode& pSequence)
{
    const std::string& file = mName.nameGet();
    const std::string directory = file.substr(0, file.rfind('/') + 1);
    const znCResourceName sheet(directory + Attributes(pSequence).strGet("name") + ".png", znCResourceName::GAME_DATA);
    znCBrushManager* brushes = znCBrushManager::instanceGet();
    if (brushes != nullptr && znIFile::existsGet(sheet))
        mData->sheetSet(brushes->brushGet(sheet, mHitMap));
}

void znCAnimationFileReader::frameListRead(const znIXmlNode& pList)
{
    for (auto child = pList.childrenBegin(); child != pList.childrenEnd(); ++child)
    {
        if (static_cast<s32>(mData->framesGet().size()) == FRAMES_MAX)
        {
            if (faultCount())
                ZN_LOG("Animation %s has more than %d frames.\n", mName.nameGet().c_str(), FRAMES_MAX);
            return;
        }
        frameRead(**child);
    }
}

void znCAnimationFileReader::frameRead(const znIXmlNode& pNode)
{
    const Attributes attributes(pNode);
    znCAnimationDataInstance::Frame frame;
    const std::string* alpha = attributes.find("alpha");
    const std::string* transform = attributes.find("xform");
    const s32 number = static_cast<s32>(mData->framesGet().size()) + 1;
    if (alpha != nullptr)
        frame.mAlpha = znStr::toF32(*alpha);
    if (transform != nullptr && !matrixRead(*transform, frame.mMatrix) && faultCount())
        ZN_LOG("Animation %s frame %d: xform needs six numbers.\n", mName.nameGet().c_str(), number);
    frame.mMatrix = registered(frame.mMatrix, attributes);

    const bool blank = attributes.s32Get("w") <= 0 || attributes.s32Get("h") <= 0;
    const std::string* page = attributes.find("texPgFn");
    znCBrushManager* brushes = znCBrushManager::instanceGet();
    if (!blank && page != nullptr && brushes != nullptr)
        frame.mBrush = brushes->brushGet(znCResourceName(*page, znCResourceName::GAME_DATA), mHitMap);
    else if (!blank)
        frame.mBrush = sheetAreaGet(mData->sheetGet(), attributes);
    if (!blank && frame.mBrush == nullptr && faultCount())
        ZN_LOG("Animation %s frame %d: no such area in a sheet. The frame is blank.\n", mName.nameGet().c_str(),
               number);
    mData->frameAdd(frame);
}

void znCAnimationFileReader::timelineRead(const znIXmlNode& pNode)
{
    const Attributes attributes(pNode);
    const s32 frameTime = attributes.s32Get("frametime");
    znCAnimationTimeline& timeline = mData->timelineAdd(attributes.strGet("name"));
    for (auto child = pNode.childrenBegin(); child != pNode.childrenEnd(); ++child)
    {
        if (mKeyFrames == KEY_FRAMES_MAX)
        {
            if (faultCount())
                ZN_LOG("Animation %s has more than %d key frames.\n", mName.nameGet().c_str(), KEY_FRAMES_MAX);
            return;
        }
        if (std::unique_ptr<znIKeyFrame> keyFrame = keyFrameRead(**child, frameTime))
        {
            timeline.keyFrameAdd(std::move(keyFrame));
            ++mKeyFrames;
        }
    }
}

std::unique_ptr<znIKeyFrame> znCAnimationFileReader::keyFrameRead(const znIXmlNode& pNode, s32 pFrameTime)
{
    const Attributes attributes(pNode);
    const auto& values = attributes.mValues;
    const std::string kind = values.empty() ? std::string() : values[0].first;
    const std::string value = values.empty() ? std::string() : values[0].second;
    if (kind == "frame")
    {
        const bool timed = values.size() > 1 && values[1].first == "time";
        return std::make_unique<znCSpriteKeyFrame>(znStr::toS32(value),
                                                   timed ? znStr::toS32(values[1].second) : pFrameTime);
    }
    if (kind == "time")
        return std::make_unique<znCDoNothingKeyFrame>(znStr::toS32(value));
    if (kind == "jumpto")
    {
        mData->loopsSet();
        return std::make_unique<znCJumpKeyFrame>(znStr::toS32(value));
    }
    if (kind == "switchtotimeline")
    {
        mData->loopsSet();
        return std::make_unique<znCSwapTimelineKeyFrame>(value);
    }
    if (kind == "lua")
        return scriptRead(value);
    if (faultCount())
        ZN_LOG("Animation %s: a key frame can't start with \"%s\".\n", mName.nameGet().c_str(), kind.c_str());
    return nullptr;
}

std::unique_ptr<znIKeyFrame> znCAnimationFileReader::scriptRead(const std::string& pText)
{
    if (pText.find("PlaySound") != std::string::npos)
        return soundRead(pText);
    if (pText.find("GotoFrame") != std::string::npos)
        return gotoRead(pText);
    return nullptr;
}

// The name stands between single quotes, or between their misspelt entities.
std::unique_ptr<znIKeyFrame> znCAnimationFileReader::soundRead(std::string_view pText)
{
    constexpr std::string_view ENTITY = "&pos;";
    const bool quoted = pText.find('\'') != std::string_view::npos;
    std::size_t begin = quoted ? pText.find('\'') : pText.find(ENTITY);
    const std::size_t end = quoted ? pText.rfind('\'') : pText.rfind(ENTITY);
    if (begin == end)
    {
        if (faultCount())
            ZN_LOG("Animation %s: PlaySound without a name.\n", mName.nameGet().c_str());
        return nullptr;
    }
    begin += quoted ? 1 : ENTITY.size();
    const std::string name(pText.substr(begin, end - begin));
    return std::make_unique<znCSFXKeyFrame>(znCResourceName(name, znCResourceName::GAME_DATA));
}

std::unique_ptr<znIKeyFrame> znCAnimationFileReader::gotoRead(std::string_view pText)
{
    constexpr std::string_view RANDOM = "RandRange";
    std::string_view argument = pText.substr(std::min(pText.find('('), pText.size() - 1) + 1);
    const std::size_t random = argument.find(RANDOM);
    if (random == std::string_view::npos)
        return std::make_unique<znCGotoFrameKeyFrame>(znStr::toS32(argument), 0);
    argument.remove_prefix(random + RANDOM.size());
    argument.remove_prefix(std::min(argument.find('('), argument.size()));
    const std::size_t comma = std::min(argument.find(','), argument.size());
    const s32 first = argument.empty() ? 0 : znStr::toS32(argument.substr(1, comma - 1));
    const s32 last = comma < argument.size() ? znStr::toS32(argument.substr(comma + 1)) : first;
    return std::make_unique<znCGotoFrameKeyFrame>(first, znNCoreUtils::s32Saturate(static_cast<s64>(last) + 1 - first));
}

// Only now are all frames and timelines known.
void znCAnimationFileReader::targetsCheck()
{
    for (const auto& timeline : mData->timelinesGet())
        for (s32 i = 0; i < timeline->keyFrameCountGet(); ++i)
        {
            const znIKeyFrame& keyFrame = timeline->keyFrameGet(i);
            if (keyFrame.targetsExistGet(*mData, *timeline))
                continue;
            if (faultCount())
                ZN_LOG("Animation %s timeline \"%s\" key frame %d names a frame, key frame or timeline that isn't "
                       "there.\n",
                       mName.nameGet().c_str(), timeline->nameGet().c_str(), i);
            timeline->keyFrameReplace(i, std::make_unique<znCDoNothingKeyFrame>(keyFrame.durationGet()));
        }
}
