#ifndef ZNAPPCORE_PARTICLES_ZNCPARTICLEFILEREADER_H
#define ZNAPPCORE_PARTICLES_ZNCPARTICLEFILEREADER_H

#include "znappcore/particles/znCParticleData.h"

#include <string>
#include <string_view>

class znCResourceName;

// Reads one particle file: commands "name = value ;" with white space between them as one likes, and comments from "#",
// where a command could start, to the end of the line. A faulty command is logged with the file's name and the line
// that it begins in, and left out; reading goes on behind its ";", or with the next command if that is what is missing.
// Colours over time of animated particles are logged and left out, too.
class znCParticleFileReader
{
public:
    // Limits against faulty files; a larger number is logged and cut to the limit.
    static constexpr s32 PARTICLES_MAX = 4096; // four times what a frame can show
    static constexpr s32 PRERUN_MS_MAX = 60 * 1000;
    static constexpr s32 GRAPH_POINTS_MAX = 256;

    explicit znCParticleFileReader(const znCResourceName& pName);

    std::shared_ptr<znCParticleData> read();

private:
    // Reads the value of one command into mData; false if it is faulty, which is logged then.
    using ValueReader = bool (*)(znCParticleFileReader& pReader);
    static ValueReader valueReaderFind(std::string_view pCommand);

    bool commandRead();
    void commandSkip();

    bool imageRead();
    bool animationRead();
    bool alphaModeRead();
    bool linkRead();
    bool colourRead();
    bool colourGraphRead();
    bool pathRead(std::string& pPath);
    bool integerRead(s32& pValue);
    bool limitedRead(s32& pValue, s32 pMax);
    bool floatRead(float& pValue);
    bool valueRead(znCParticleValue& pValue, float pUnit);
    bool pairRead(znCParticlePair& pPair);
    bool pairOfFloatsRead(float& pX, float& pY);
    bool rangeStart(std::string_view pWord, bool& pPresent);
    bool graphPointsRead(znCGraph<znCColour>& pGraph);
    bool graphCommaRead();
    bool colourWordRead(znCColour& pColour, const char* pPlace);

    void whiteSkip();
    void commentsSkip();
    std::string_view wordPeek() const;
    std::string_view wordTake();
    std::string_view takeOf(std::string_view pCharacters);
    bool characterTake(char pCharacter);

    // Puts the file's name between the two texts. Answers false, for the end of a reader.
    bool faultReport(const std::string& pMessage, const char* pAdvice = "");

    std::string mText;      // of the file
    std::string_view mRest; // what is still to be read of it
    std::string mCommand;   // being read
    std::string_view::iterator mCommandBegin;
    s32 mCommandLine = 1; // of mCommandBegin
    std::shared_ptr<znCParticleData> mData = std::make_shared<znCParticleData>();
    s32 mFaults = 0;
};

#endif
