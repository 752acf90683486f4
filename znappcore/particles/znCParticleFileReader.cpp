#include "znappcore/particles/znCParticleFileReader.h"

#include "znappcore/animatingSprite/znCAnimationDataManager.h"
#include "znappcore/src/znCBrushManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znNCoreUtils.h"
#include "zncore/znStr.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace
{
constexpr std::string_view WHITE = " \t\r\n";
constexpr std::string_view WORD_ENDS = " \t\r\n=;,#";
constexpr std::string_view DIGITS = "0123456789";
constexpr std::string_view FLOAT_CHARACTERS = "0123456789.-";
constexpr std::size_t REPORTED_CHARACTERS_MAX = 64; // of a word in the log; all that is known is shorter
constexpr float ONE = 1.0f;
constexpr float RADIANS_PER_DEGREE = std::numbers::pi_v<float> / 180.0f;
constexpr s32 RANGE_FIXED_ONE = 2048; // a range counts to both sides of its value

s32 truncated(float pValue)
{
    constexpr float LIMIT = 2147483520.0f; // the largest float below 2^31
    return static_cast<s32>(std::fmin(std::fmax(pValue, -LIMIT), LIMIT));
}
} // namespace

znCParticleFileReader::znCParticleFileReader(const znCResourceName& pName)
    : mText(znNCoreUtils::strGetFromFile(pName)), mRest(mText), mCommandBegin(mRest.begin())
{
    mData->mFile = pName.nameGet();
}

std::shared_ptr<znCParticleData> znCParticleFileReader::read()
{
    for (commentsSkip(); !mRest.empty(); commentsSkip())
        if (!characterTake(';') && !commandRead())
            commandSkip();
    // Said here once, not by each particle.
    const bool animated = mData->mBrush == nullptr && mData->mAnimation != nullptr;
    ZN_ASSERT(!animated || mData->mColourGraph == nullptr,
              "%s: Colours on animation particles are not supported currently.\n", mData->mFile.c_str());
    if (animated)
        mData->mColourGraph.reset();
    return mData;
}

bool znCParticleFileReader::faultReport(const std::string& pMessage, const char* pAdvice)
{
    constexpr s32 REPORTS_MAX = 20;
    ++mFaults;
    const char* file = mData->mFile.c_str();
    ZN_ASSERT(mFaults >= REPORTS_MAX, "%s line %d: %s in particle file %s%s\n", file, mCommandLine, pMessage.c_str(),
              file, pAdvice);
    if (mFaults == REPORTS_MAX)
        ZN_LOG("Particle file %s has more faults.\n", file);
    return false;
}

znCParticleFileReader::ValueReader znCParticleFileReader::valueReaderFind(std::string_view pCommand)
{
    using Reader = znCParticleFileReader;
    static constexpr std::pair<std::string_view, ValueReader> READERS[] = {
        {"imageFileName",
         [](Reader& r)
         {
             return r.imageRead();
         }},
        {"animFileName",
         [](Reader& r)
         {
             return r.animationRead();
         }},
        {"alphaMode",
         [](Reader& r)
         {
             return r.alphaModeRead();
         }},
        {"linkToEmitter",
         [](Reader& r)
         {
             return r.linkRead();
         }},
        {"maxParticles",
         [](Reader& r)
         {
             return r.limitedRead(r.mData->mMaxParticles, PARTICLES_MAX);
         }},
        {"particleLifeMs",
         [](Reader& r)
         {
             return r.integerRead(r.mData->mParticleLifeMs);
         }},
        {"emitterLifeMs",
         [](Reader& r)
         {
             return r.integerRead(r.mData->mEmitterLifeMs);
         }},
        {"emitSpeed",
         [](Reader& r)
         {
             return r.floatRead(r.mData->mEmitSpeed);
         }},
        {"emitPosXY",
         [](Reader& r)
         {
             return r.pairRead(r.mData->mEmitPos);
         }},
        {"velocityXY",
         [](Reader& r)
         {
             return r.pairRead(r.mData->mVelocity);
         }},
        {"velocityDeltaXY",
         [](Reader& r)
         {
             return r.pairRead(r.mData->mVelocityDelta);
         }},
        {"scale",
         [](Reader& r)
         {
             return r.valueRead(r.mData->mScale, ONE);
         }},
        {"scaleDelta",
         [](Reader& r)
         {
             return r.valueRead(r.mData->mScaleDelta, ONE);
         }},
        {"angle",
         [](Reader& r)
         {
             return r.valueRead(r.mData->mAngle, RADIANS_PER_DEGREE);
         }},
        {"angleDelta",
         [](Reader& r)
         {
             return r.valueRead(r.mData->mAngleDelta, RADIANS_PER_DEGREE);
         }},
        {"colour",
         [](Reader& r)
         {
             return r.colourRead();
         }},
        {"colourGraph",
         [](Reader& r)
         {
             return r.colourGraphRead();
         }},
        {"prerun",
         [](Reader& r)
         {
             return r.limitedRead(r.mData->mPrerunMs, PRERUN_MS_MAX);
         }},
    };
    for (const auto& [command, reader] : READERS)
        if (command == pCommand)
            return reader;
    return nullptr;
}

bool znCParticleFileReader::commandRead()
{
    mCommandLine += static_cast<s32>(std::count(mCommandBegin, mRest.begin(), '\n'));
    mCommandBegin = mRest.begin();
    mCommand = wordTake().substr(0, REPORTED_CHARACTERS_MAX);
    const ValueReader reader = valueReaderFind(mCommand);
    if (reader == nullptr)
        return faultReport("Unknown particle command:" + mCommand);
    if (!characterTake('='))
        return faultReport("Expected to find a '=' after command " + mCommand);
    if (!reader(*this))
        return false;
    if (!characterTake(';'))
        return faultReport("Expected to find a ';' at the end of command " + mCommand);
    return true;
}

// To behind the next ";"; where that is what is missing, to the next command.
void znCParticleFileReader::commandSkip()
{
    whiteSkip();
    if (valueReaderFind(wordPeek()) != nullptr)
        return;
    mRest.remove_prefix(std::min(mRest.find(';'), mRest.size()));
    characterTake(';');
}

bool znCParticleFileReader::imageRead()
{
    std::string path;
    if (!pathRead(path))
        return false;
    if (znCBrushManager* brushes = znCBrushManager::instanceGet())
        mData->mBrush = brushes->brushGet(znCResourceName(path, znCResourceName::GAME_DATA), false);
    return true;
}

bool znCParticleFileReader::animationRead()
{
    std::string path;
    if (!pathRead(path))
        return false;
    if (znCAnimationDataManager* animations = znCAnimationDataManager::instanceGet())
        mData->mAnimation = animations->dataGet(znCResourceName(path, znCResourceName::GAME_DATA), false);
    return true;
}

bool znCParticleFileReader::pathRead(std::string& pPath)
{
    whiteSkip();
    // A path is no command and ends with its line at the latest: what is lost here must not eat the next command.
    const bool lost = valueReaderFind(wordPeek()) != nullptr;
    const std::string_view line = mRest.substr(0, lost ? 0 : mRest.find_first_of(";\r\n"));
    mRest.remove_prefix(line.size());
    znStr path{std::string(line)};
    path.trimRight();
    pPath = path;
    return !pPath.empty() || faultReport("Expected to find a 'path' after command " + mCommand);
}

bool znCParticleFileReader::alphaModeRead()
{
    static constexpr std::pair<std::string_view, u32> MODES[] = {{"none", znCMaterial::BLEND_NONE},
                                                                 {"normal", znCMaterial::BLEND_ALPHA},
                                                                 {"add", znCMaterial::BLEND_ADD},
                                                                 {"subtract", znCMaterial::BLEND_SUBTRACT}};
    const std::string_view word = wordTake().substr(0, REPORTED_CHARACTERS_MAX);
    for (const auto& [name, mode] : MODES)
        if (word == name)
        {
            mData->mAlphaMode = mode;
            return true;
        }
    return faultReport("Unknown alphaMode " + std::string(word), ". Use none, normal, add or subtract.");
}

bool znCParticleFileReader::linkRead()
{
    const std::string_view word = wordTake();
    mData->mLinkToEmitter = word == "true";
    return word == "true" || word == "false" ||
           faultReport("Expect a value of 'true' or 'false' for linkToEmitter", ".");
}

bool znCParticleFileReader::colourRead()
{
    return colourWordRead(mData->mColour, "a colour setting,");
}

bool znCParticleFileReader::colourWordRead(znCColour& pColour, const char* pPlace)
{
    constexpr std::size_t COLOUR_CHARACTERS = 8;
    constexpr std::string_view HEXADECIMAL = "0123456789abcdefABCDEF";
    const std::string_view word = wordTake();
    if (word.size() != COLOUR_CHARACTERS || word.find_first_not_of(HEXADECIMAL) != std::string_view::npos)
        return faultReport(std::string("Expected colour values to be 8 characters long, eg 'ff7300c8' in ") + pPlace);
    pColour = znCColour(std::string(word));
    return true;
}

bool znCParticleFileReader::colourGraphRead()
{
    auto graph = std::make_unique<znCGraph<znCColour>>();
    if (!graphPointsRead(*graph))
        return false;
    mData->mColourGraph = std::move(graph);
    return true;
}

bool znCParticleFileReader::graphPointsRead(znCGraph<znCColour>& pGraph)
{
    constexpr const char* PLACE = "a colourGraph,";
    znCColour colour;
    if (!colourWordRead(colour, PLACE))
        return false;
    pGraph.dataAdd(0, colour);
    whiteSkip();
    for (s32 points = 1; !mRest.empty() && mRest.front() != ';'; ++points, whiteSkip())
    {
        s32 duration = 0;
        if (points == GRAPH_POINTS_MAX)
            return faultReport("Too many points in " + mCommand);
        if (!graphCommaRead() || !colourWordRead(colour, PLACE) || !graphCommaRead() || !integerRead(duration))
            return false;
        pGraph.dataAdd(duration, colour);
    }
    return true;
}

bool znCParticleFileReader::graphCommaRead()
{
    return characterTake(',') || faultReport("Expected a ',' between colour values and durations in a colourGraph,");
}

bool znCParticleFileReader::integerRead(s32& pValue)
{
    const std::string_view digits = takeOf(DIGITS);
    if (digits.empty())
        return faultReport("Expected a number value after command " + mCommand);
    pValue = znStr::toS32(digits);
    return true;
}

bool znCParticleFileReader::limitedRead(s32& pValue, s32 pMax)
{
    if (!integerRead(pValue))
        return false;
    if (pValue > pMax)
        faultReport("Number " + std::to_string(pValue) + " cut to " + std::to_string(pMax) + " after command " +
                    mCommand);
    pValue = std::min(pValue, pMax);
    return true;
}

bool znCParticleFileReader::floatRead(float& pValue)
{
    const std::string_view characters = takeOf(FLOAT_CHARACTERS);
    if (characters.find_first_of(DIGITS) == std::string_view::npos)
        return faultReport("Expected a number value after command " + mCommand);
    pValue = znStr::toF32(characters);
    return true;
}

bool znCParticleFileReader::valueRead(znCParticleValue& pValue, float pUnit)
{
    float value = 0.0f;
    float range = 0.0f;
    bool ranged = false;
    if (!floatRead(value) || !rangeStart("rndRange", ranged) || (ranged && !floatRead(range)))
        return false;
    pValue.mBase = (value - range) * pUnit;
    pValue.mRangeFixed = truncated(range * pUnit * RANGE_FIXED_ONE);
    return true;
}

bool znCParticleFileReader::pairRead(znCParticlePair& pPair)
{
    float x = 0.0f;
    float y = 0.0f;
    float rangeX = 0.0f;
    float rangeY = 0.0f;
    bool ranged = false;
    if (!pairOfFloatsRead(x, y) || !rangeStart("rndRangeXY", ranged) || (ranged && !pairOfFloatsRead(rangeX, rangeY)))
        return false;
    // A range of a place or a speed is in whole units.
    const auto set = [](znCParticleValue& pValue, float pBase, s32 pRange)
    {
        pValue.mBase = pBase - static_cast<float>(pRange);
        pValue.mRangeFixed = znNCoreUtils::s32Saturate(static_cast<s64>(pRange) * RANGE_FIXED_ONE);
    };
    set(pPair.mX, x, truncated(rangeX));
    set(pPair.mY, y, truncated(rangeY));
    return true;
}

bool znCParticleFileReader::pairOfFloatsRead(float& pX, float& pY)
{
    if (!floatRead(pX))
        return false;
    if (!characterTake(','))
        return faultReport("Expected to find a ',' after command " + mCommand);
    return floatRead(pY);
}

// Whether a range follows, and steps to its number if so. False if something else follows.
bool znCParticleFileReader::rangeStart(std::string_view pWord, bool& pPresent)
{
    whiteSkip();
    const std::string_view word = wordPeek();
    pPresent = word == pWord;
    if (word.empty() || valueReaderFind(word) != nullptr)
        return true; // the end of the command, or a lost ";"
    if (!pPresent)
        return faultReport("Expected to find a '" + std::string(pWord) + "' after command " + mCommand);
    wordTake();
    return characterTake('=') || faultReport("Expected to find a '=' after command " + std::string(pWord));
}

void znCParticleFileReader::whiteSkip()
{
    mRest.remove_prefix(std::min(mRest.find_first_not_of(WHITE), mRest.size()));
}

void znCParticleFileReader::commentsSkip()
{
    for (whiteSkip(); !mRest.empty() && mRest.front() == '#'; whiteSkip())
        mRest.remove_prefix(std::min(mRest.find('\n'), mRest.size()));
}

std::string_view znCParticleFileReader::wordPeek() const
{
    return mRest.substr(0, mRest.find_first_of(WORD_ENDS));
}

std::string_view znCParticleFileReader::wordTake()
{
    whiteSkip();
    const std::string_view word = wordPeek();
    mRest.remove_prefix(word.size());
    return word;
}

std::string_view znCParticleFileReader::takeOf(std::string_view pCharacters)
{
    whiteSkip();
    const std::string_view taken = mRest.substr(0, mRest.find_first_not_of(pCharacters));
    mRest.remove_prefix(taken.size());
    return taken;
}

bool znCParticleFileReader::characterTake(char pCharacter)
{
    whiteSkip();
    if (mRest.empty() || mRest.front() != pCharacter)
        return false;
    mRest.remove_prefix(1);
    return true;
}
