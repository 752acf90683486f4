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
constexpr std::string_view WHITE = " \t\r\n";

// Whether a text begins with a number, behind white space.
bool numberStartGet(std::string_view pText)
{
    pText.remove_prefix(std::min(pText.find_first_not_of(WHITE), pText.size()));
    if (!pText.empty() && (pText[0] == '-' || pText[0] == '+'))
        pText.remove_prefix(1);
    if (!pText.empty() && pText[0] == '.')
        pText.remove_prefix(1);
    return !pText.empty() && pText[0] >= '0' && pText[0] <= '9';
}

// Six numbers a b c d e f. The identity, and false, if they aren't there.
bool matrixRead(std::string_view pText, znAffineMtx2d& pMatrix)
{
    float numbers[6] = {};
    for (float& number : numbers)
    {
        pText.remove_prefix(std::min(pText.find_first_not_of(WHITE), pText.size()));
        if (!numberStartGet(pText))
            return false;
        const std::size_t end = std::min(pText.find_first_of(WHITE), pText.size());
        number = znStr::toF32(pText.substr(0, end));
        pText.remove_prefix(end);
    }
    pMatrix = znAffineMtx2d(numbers[0], numbers[1], numbers[2], numbers[3], numbers[4], numbers[5]);
    return true;
}
} // namespace

// An element and its attributes, by name where their order doesn't matter.
class znCAnimationFileReader::Element
{
public:
    Element(znCAnimationFileReader& pReader, const znIXmlNode& pNode) : mReader(pReader), mNode(pNode)
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

    s32 s32Get(std::string_view pName) const { return numberFind(pName) ? znStr::toS32(*find(pName)) : 0; }
    float floatGet(std::string_view pName, float pDefault) const
    {
        return numberFind(pName) ? znStr::toF32(*find(pName)) : pDefault;
    }

    std::vector<std::pair<std::string, std::string>> mValues; // in file order

private:
    // False without the attribute, and for one that is no number, which is logged.
    bool numberFind(std::string_view pName) const
    {
        const std::string* value = find(pName);
        const bool number = value != nullptr && numberStartGet(*value);
        if (value != nullptr && !number)
            mReader.faultReport(mNode, std::string(pName) + " needs a number");
        return number;
    }

    znCAnimationFileReader& mReader;
    const znIXmlNode& mNode;
};

// Where a frame's picture lies in the sheet, and the point of it that stands on the origin of "xform".
struct znCAnimationFileReader::Area
{
    explicit Area(const Element& pFrame)
        : mX(pFrame.s32Get("x")), mY(pFrame.s32Get("y")), mWidth(pFrame.s32Get("w")), mHeight(pFrame.s32Get("h")),
          mRegX(pFrame.s32Get("regx")), mRegY(pFrame.s32Get("regy"))
    {
    }

    // The matrix that puts the registration point of a centred picture where pMatrix puts the origin.
    znAffineMtx2d registered(const znAffineMtx2d& pMatrix) const
    {
        const float x = static_cast<float>(static_cast<s64>(mRegX) - mWidth / 2);
        const float y = static_cast<float>(static_cast<s64>(mRegY) - mHeight / 2);
        return pMatrix * znAffineMtx2d(1.0f, 0.0f, 0.0f, 1.0f, -x, -y);
    }

    bool insideGet(const znITexture& pTexture) const
    {
        return mX >= 0 && mY >= 0 && mWidth > 0 && mHeight > 0 && mWidth <= pTexture.widthGet() &&
               mHeight <= pTexture.heightGet() && mX <= pTexture.widthGet() - mWidth &&
               mY <= pTexture.heightGet() - mHeight;
    }

    s32 mX;
    s32 mY;
    s32 mWidth;
    s32 mHeight;
    s32 mRegX;
    s32 mRegY;
};

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
    if (mData->timelineFind(znCAnimatingSprite::MAIN_TIMELINE) == nullptr)
        faultReport(sequence != nullptr ? *sequence : *parser->rootGet(),
                    std::string("no timeline \"") + znCAnimatingSprite::MAIN_TIMELINE + "\", it won't play");
    return mData;
}

void znCAnimationFileReader::faultReport(const znIXmlNode& pNode, const std::string& pFault)
{
    constexpr s32 REPORTS_MAX = 20;
    ++mFaults;
    if (mFaults == REPORTS_MAX)
        ZN_LOG("Animation %s has more faults.\n", mName.nameGet().c_str());
    if (mFaults >= REPORTS_MAX)
        return;
    ZN_LOG("Animation %s line %d: %s.\n", mName.nameGet().c_str(), znIXmlParser::lineGet(mName, pNode), pFault.c_str());
}

std::unique_ptr<znIKeyFrame> znCAnimationFileReader::faultyReplace(const znIXmlNode& pNode, const std::string& pFault)
{
    faultReport(pNode, pFault);
    return std::make_unique<znCDoNothingKeyFrame>(0);
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
    const znCResourceName sheet(directory + Element(*this, pSequence).strGet("name") + ".png",
                                znCResourceName::GAME_DATA);
    znCBrushManager* brushes = znCBrushManager::instanceGet();
    if (brushes != nullptr && znIFile::existsGet(sheet))
        mData->sheetSet(brushes->brushGet(sheet, mHitMap));
}

void znCAnimationFileReader::frameListRead(const znIXmlNode& pList)
{
    for (auto child = pList.childrenBegin(); child != pList.childrenEnd(); ++child)
    {
        if (static_cast<s32>(mData->framesGet().size()) == FRAMES_MAX)
            return faultReport(**child, "more than " + std::to_string(FRAMES_MAX) + " frames");
        frameRead(**child);
    }
}

void znCAnimationFileReader::frameRead(const znIXmlNode& pNode)
{
    const Element element(*this, pNode);
    const Area area(element);
    const std::string number = "frame " + std::to_string(mData->framesGet().size() + 1);
    znCAnimationDataInstance::Frame frame;
    frame.mAlpha = element.floatGet("alpha", frame.mAlpha);
    const std::string* transform = element.find("xform");
    if (transform != nullptr && !matrixRead(*transform, frame.mMatrix))
        faultReport(pNode, number + ": xform needs six numbers");
    frame.mMatrix = area.registered(frame.mMatrix);
    const bool blank = area.mWidth == 0 || area.mHeight == 0;
    if (!blank)
        frame.mBrush = brushLoad(element, area);
    if (!blank && frame.mBrush == nullptr)
        faultReport(pNode, number + ": no such area in a sheet, the frame is blank");
    mData->frameAdd(frame);
}

// Null if the area isn't inside the sheet; a default picture is shown whole instead of in parts.
znCBrushPtr znCAnimationFileReader::brushLoad(const Element& pFrame, const Area& pArea)
{
    const std::string* picture = pFrame.find("texPgFn");
    const znCBrushPtr& sheet = mData->sheetGet();
    znCBrushManager* brushes = znCBrushManager::instanceGet();
    if (brushes == nullptr)
        return nullptr;
    if (picture != nullptr)
        return brushes->brushGet(znCResourceName(*picture, znCResourceName::GAME_DATA), mHitMap);
    if (sheet == nullptr || sheet->textureGet()->isDefaultPicture())
        return sheet;
    if (!pArea.insideGet(*sheet->textureGet()))
        return nullptr;
    return brushes->areaBrushCreate(sheet, pArea.mX, pArea.mY, pArea.mWidth, pArea.mHeight);
}

void znCAnimationFileReader::timelineRead(const znIXmlNode& pNode)
{
    const Element element(*this, pNode);
    const s32 frameTime = element.s32Get("frametime");
    znCAnimationTimeline& timeline = mData->timelineAdd(element.strGet("name"));
    for (auto child = pNode.childrenBegin(); child != pNode.childrenEnd(); ++child)
    {
        if (static_cast<s32>(mKeyFrames.size()) == KEY_FRAMES_MAX)
            return faultReport(**child, "more than " + std::to_string(KEY_FRAMES_MAX) + " key frames");
        std::unique_ptr<znIKeyFrame> keyFrame = keyFrameRead(**child, frameTime);
        if (keyFrame == nullptr)
            continue;
        timeline.keyFrameAdd(std::move(keyFrame));
        mKeyFrames.push_back(*child);
    }
}

// Null for script that means nothing here.
std::unique_ptr<znIKeyFrame> znCAnimationFileReader::keyFrameRead(const znIXmlNode& pNode, s32 pFrameTime)
{
    const Element element(*this, pNode);
    const auto& values = element.mValues;
    const std::string kind = values.empty() ? std::string() : values[0].first;
    if (kind == "frame")
    {
        const bool timed = values.size() > 1 && values[1].first == "time";
        return std::make_unique<znCSpriteKeyFrame>(element.s32Get(kind), timed ? element.s32Get("time") : pFrameTime);
    }
    if (kind == "time")
        return std::make_unique<znCDoNothingKeyFrame>(element.s32Get(kind));
    if (kind == "jumpto")
    {
        mData->loopsSet();
        return std::make_unique<znCJumpKeyFrame>(element.s32Get(kind));
    }
    if (kind == "switchtotimeline")
    {
        mData->loopsSet();
        return std::make_unique<znCSwapTimelineKeyFrame>(values[0].second);
    }
    if (kind == "lua")
        return scriptRead(pNode, values[0].second);
    return faultyReplace(pNode, "a key frame can't start with \"" + kind + "\"");
}

std::unique_ptr<znIKeyFrame> znCAnimationFileReader::scriptRead(const znIXmlNode& pNode, const std::string& pText)
{
    if (pText.find("PlaySound") != std::string::npos)
        return soundRead(pNode, pText);
    if (pText.find("GotoFrame") != std::string::npos)
        return gotoRead(pNode, pText);
    return nullptr;
}

// The name stands between single quotes, or between their misspelt entities.
std::unique_ptr<znIKeyFrame> znCAnimationFileReader::soundRead(const znIXmlNode& pNode, std::string_view pText)
{
    constexpr std::string_view ENTITY = "&pos;";
    const bool quoted = pText.find('\'') != std::string_view::npos;
    std::size_t begin = quoted ? pText.find('\'') : pText.find(ENTITY);
    const std::size_t end = quoted ? pText.rfind('\'') : pText.rfind(ENTITY);
    if (begin == end)
        return faultyReplace(pNode, "PlaySound without a name");
    begin += quoted ? 1 : ENTITY.size();
    const std::string name(pText.substr(begin, end - begin));
    return std::make_unique<znCSFXKeyFrame>(znCResourceName(name, znCResourceName::GAME_DATA));
}

std::unique_ptr<znIKeyFrame> znCAnimationFileReader::gotoRead(const znIXmlNode& pNode, std::string_view pText)
{
    constexpr const char* FAULT = "GotoFrame needs a number or RandRange(a,b)";
    constexpr std::string_view RANDOM = "RandRange";
    std::string_view argument = pText.substr(std::min(pText.find('('), pText.size() - 1) + 1);
    const std::size_t random = argument.find(RANDOM);
    if (random == std::string_view::npos)
    {
        if (!numberStartGet(argument))
            return faultyReplace(pNode, FAULT);
        return std::make_unique<znCGotoFrameKeyFrame>(znStr::toS32(argument), 0);
    }
    argument.remove_prefix(random + RANDOM.size());
    argument.remove_prefix(std::min(argument.find('('), argument.size()));
    argument.remove_prefix(std::min<std::size_t>(1, argument.size()));
    const std::size_t comma = std::min(argument.find(','), argument.size());
    const std::string_view behind = argument.substr(std::min(comma + 1, argument.size()));
    if (!numberStartGet(argument.substr(0, comma)) || !numberStartGet(behind))
        return faultyReplace(pNode, FAULT);
    const s32 first = znStr::toS32(argument.substr(0, comma));
    const s64 range = static_cast<s64>(znStr::toS32(behind)) + 1 - first;
    return std::make_unique<znCGotoFrameKeyFrame>(first, znNCoreUtils::s32Saturate(range));
}

// Only now are all frames and timelines known.
void znCAnimationFileReader::targetsCheck()
{
    auto node = mKeyFrames.begin();
    for (const auto& timeline : mData->timelinesGet())
        for (s32 i = 0; i < timeline->keyFrameCountGet(); ++i, ++node)
        {
            const znIKeyFrame& keyFrame = timeline->keyFrameGet(i);
            if (keyFrame.targetsExistGet(*mData, *timeline))
                continue;
            faultReport(**node, "timeline \"" + timeline->nameGet() + "\" key frame " + std::to_string(i) +
                                    " names a frame, key frame or timeline that isn't there");
            timeline->keyFrameReplace(i, std::make_unique<znCDoNothingKeyFrame>(keyFrame.durationGet()));
        }
}
