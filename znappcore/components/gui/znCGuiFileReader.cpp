#include "znappcore/components/gui/znCGuiFileReader.h"

#include "znappcore/components/gui/znCModalGuiComponent.h"
#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/src/znCComponentFactory.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znStr.h"

#include <cstdarg>
#include <cstdio>

namespace
{
constexpr std::string_view INCLUDE = "include";
constexpr std::string_view STYLE = "style";
constexpr std::size_t STYLE_NAME_SHORTEST = 2;
constexpr std::size_t WORD_SHOWN = 64; // bytes of a word that the log shows

znCGuiFileReader::ElementObserver sElementObserver = nullptr;

bool isComponentType(const znCGuiText::Token& pToken)
{
    const znCComponentFactory* factory = znCComponentFactory::instanceGet();
    return !pToken.mQuoted && factory != nullptr && factory->componentExistsGet(znCUniqueId(pToken.mText));
}

int sizeShown(std::string_view pWord)
{
    return static_cast<int>(std::min(pWord.size(), WORD_SHOWN));
}
} // namespace

znCEntity* znCGuiFileReader::fileRead(const znCResourceName& pFile)
{
    const Result result = mText.fileInsert(pFile);
    ZN_ASSERT(result != Result::missing, "File %s does not exist.\n", pFile.nameGet().c_str());
    Token token;
    while (tokenNext(token))
        topLevelRead(token);
    return mLast;
}

// The next token; its own fault is logged.
bool znCGuiFileReader::tokenNext(Token& pToken, bool pValue)
{
    if (mFaults > FAULT_LIMIT || !mText.tokenNext(pToken, pValue))
        return false;
    if (pToken.mQuoteMissing)
        fault(pToken.mPlace, "Missing '\"' in string.\n");
    return true;
}

void znCGuiFileReader::topLevelRead(const Token& pToken)
{
    if (isComponentType(pToken))
    {
        mLost = false;
        topLevelElementRead(pToken);
    }
    else if (directiveRead(pToken))
        mLost = false;
    else
    {
        if (!mLostSaid)
            fault(pToken.mPlace, "Unknown component '%.*s'.\n", sizeShown(pToken.mText), pToken.mText.data());
        mLost = true;
        mLostSaid = true;
        stepOver(pToken);
    }
}

// Of a token that means nothing: what would otherwise come again and again.
void znCGuiFileReader::stepOver(const Token& pToken)
{
    if (pToken.mText.empty() && !pToken.mQuoted)
        mText.characterTake('=');
}

// Without a parent only the last element has an owner.
void znCGuiFileReader::topLevelElementRead(const Token& pToken)
{
    znCEntity* former = mParent == nullptr ? mLast : nullptr;
    znCEntity* entity = elementRead(pToken, mParent, true);
    if (entity == nullptr)
        return;
    mLast = entity;
    if (former != nullptr)
        fault(pToken.mPlace, "Only the last of several elements is kept where they have no parent.\n");
    delete former;
}

// An include or the definition of a style. False if the token is neither.
bool znCGuiFileReader::directiveRead(const Token& pToken)
{
    if (pToken.mQuoted)
        return false;
    if (pToken.mText == INCLUDE)
        includeRead(pToken);
    else if (pToken.mText == STYLE)
        styleRead(pToken);
    else
        return false;
    return true;
}

void znCGuiFileReader::includeRead(const Token& pKeyword)
{
    Token token;
    if (!tokenNext(token))
    {
        fault(pKeyword.mPlace, "Missing name of the file to include.\n");
        return;
    }
    const znCResourceName name(std::string(token.mText), znCResourceName::GAME_DATA);
    insertionCheck(mText.fileInsert(name), name.nameGet(), token.mPlace);
}

void znCGuiFileReader::insertionCheck(Result pResult, std::string_view pName, const Place& pPlace)
{
    const std::string name(pName);
    if (pResult == Result::missing)
        fault(pPlace, "File %s does not exist.\n", name.c_str());
    else if (pResult == Result::withinItself)
        fault(pPlace, "%s is used within itself.\n", name.c_str());
    else if (pResult == Result::tooMuch)
        fault(pPlace, "%s is left out: includes and styles are limited to a depth of %d and %d bytes.\n", name.c_str(),
              static_cast<int>(znCGuiText::DEPTH_LIMIT), static_cast<int>(znCGuiText::SIZE_LIMIT));
}

void znCGuiFileReader::styleRead(const Token& pKeyword)
{
    Token name;
    if (!tokenNext(name))
        return;
    const std::string text(name.mText);
    const bool named = text.size() >= STYLE_NAME_SHORTEST;
    if (!named)
        fault(name.mPlace, "Expected a longer name for a style than '%s'.\n", text.c_str());
    if (!mText.characterTake('{'))
        fault(name.mPlace, "Missing '{' in style definition %s.\n", text.c_str());
    const znCGuiText::Block block = mText.blockTake(std::max(pKeyword.mIndent, 0));
    if (!block.mClosed)
        fault(pKeyword.mPlace, "Missing '}' in style definition %s.\n", text.c_str());
    if (named)
        mStyles.emplace(text, block); // the first definition of a name stands
}

void znCGuiFileReader::styleUse(const Token& pName, const znCGuiText::Block& pStyle)
{
    const bool open = mText.characterTake('{');
    const bool fits = !open || pStyle.mLastClosing != std::string_view::npos;
    if (!fits)
        fault(pName.mPlace,
              "Expected style %s definition to include a '{' '}' section so values can be inserted into it.\n",
              std::string(pName.mText).c_str());
    if (open && fits)
        mText.lineDrop();
    const Result result = fits ? mText.blockInsert(pName.mText, pStyle, open) : Result::done;
    insertionCheck(result, pName.mText, pName.mPlace);
    if (open && (!fits || result != Result::done))
        blockSkip(); // what would have continued the style
    else if (open)
    {
        mOpened = pName;
        mOpenedSet = true;
    }
}

void znCGuiFileReader::blockSkip()
{
    Token token;
    for (s32 depth = 1; depth > 0 && tokenNext(token);)
    {
        stepOver(token);
        depth += token.depthChangeGet();
    }
}

// --- elements ---

// Null if a limit is reached; the element is stepped over then.
znCEntity* znCGuiFileReader::elementRead(const Token& pType, znINode* pParent, bool pTopLevel)
{
    const bool opened = mText.characterTake('{');
    if (!opened)
        fault(pType.mPlace, "Expected '{' behind %.*s.\n", sizeShown(pType.mText), pType.mText.data());
    if (mNesting >= NESTING_LIMIT || mElements >= ELEMENT_LIMIT)
    {
        fault(pType.mPlace, "Elements are limited to %d within one another and %d in all.\n", NESTING_LIMIT,
              ELEMENT_LIMIT);
        if (opened)
            blockSkip();
        return nullptr;
    }
    const znCUniqueId type(pType.mText);
    const Token& begin = mOpenedSet ? mOpened : pType;
    Element element{znIGuiComponent::entityWithComponentCreate(type, pParent),
                    pType.mText,
                    mText.usePlaceGet(),
                    begin.mPlace,
                    mText.depthGet() - (mOpenedSet ? 1 : 0),
                    begin.mIndent,
                    false,
                    {},
                    {}};
    mOpenedSet = false;
    if (pTopLevel && mModal && type != znCModalGuiComponent::TYPE)
        element.mEntity->componentAdd<znCModalGuiComponent>();
    ++mElements;
    ++mNesting;
    bodyRead(element);
    --mNesting;
    settingsApply(element);
    return element.mEntity;
}

void znCGuiFileReader::bodyRead(Element& pElement)
{
    Token token;
    while (tokenNext(token))
    {
        indentCheck(pElement, token);
        if (endMissing(pElement, token))
        {
            mText.tokenReturn();
            fault(pElement.mPlace, "Missing '}' at the end of %.*s.\n", sizeShown(pElement.mType),
                  pElement.mType.data());
            return;
        }
        if (closingIsStray(pElement, token))
            fault(token.mPlace, "Missing '{' before this '}'.\n");
        else if (token.isClosing() || !bodyTokenRead(pElement, token))
            return;
    }
    if (!mEndSaid)
        fault(pElement.mPlace, "Missing '}' at the end of %.*s.\n", sizeShown(pElement.mType), pElement.mType.data());
    mEndSaid = true;
}

// Indents say something only in an element whose lines are indented.
void znCGuiFileReader::indentCheck(Element& pElement, const Token& pToken) const
{
    if (pElement.mIndented || !pToken.mFirstOfLine || pElement.mDepth != mText.depthGet())
        return;
    pElement.mIndented = pToken.mIndent > pElement.mIndent;
    if (!pElement.mIndented)
        pElement.mIndent = -1;
}

// In a file whose braces don't match: whether the token's indent says that the element should have ended before it.
bool znCGuiFileReader::endMissing(const Element& pElement, const Token& pToken) const
{
    if (mText.bracesMatch() || !pToken.mFirstOfLine || pElement.mIndent < 0 || pElement.mDepth != mText.depthGet())
        return false;
    return pToken.isClosing() ? pToken.mIndent < pElement.mIndent : pToken.mIndent <= pElement.mIndent;
}

// The same of a closing brace that is indented more than the element which it would end.
bool znCGuiFileReader::closingIsStray(const Element& pElement, const Token& pToken) const
{
    return !mText.bracesMatch() && pToken.isClosing() && pToken.mFirstOfLine && pElement.mIndent >= 0 &&
           pElement.mDepth == mText.depthGet() && pToken.mIndent > pElement.mIndent;
}

// False if the token ended the element.
bool znCGuiFileReader::bodyTokenRead(Element& pElement, const Token& pToken)
{
    if (isComponentType(pToken))
        elementRead(pToken, pElement.mEntity, false);
    else if (directiveRead(pToken))
        return true;
    else if (const auto style = pToken.mQuoted ? mStyles.end() : mStyles.find(pToken.mText); style != mStyles.end())
        styleUse(pToken, style->second);
    else if (mText.characterTake('='))
        settingRead(pElement, pToken);
    else
    {
        fault(pToken.mPlace, "Unknown component, style or word '%.*s': the rest of %.*s is left out.\n",
              sizeShown(pToken.mText), pToken.mText.data(), sizeShown(pElement.mType), pElement.mType.data());
        restSkip(pElement, pToken);
        return false;
    }
    return true;
}

void znCGuiFileReader::settingRead(Element& pElement, const Token& pKey)
{
    mOpenedSet = false;
    if (pKey.mText.empty())
        fault(pKey.mPlace, "A key or a value is missing before '='.\n");
    Token value;
    if (!tokenNext(value, true))
        return;
    if (value.isClosing())
    {
        fault(pKey.mPlace, "Missing value of %.*s.\n", sizeShown(pKey.mText), pKey.mText.data());
        mText.tokenReturn();
        return;
    }
    std::string key(pKey.mText);
    pElement.mSettings.strSet(key, std::string(value.mText));
    if (sElementObserver == nullptr)
        return;
    znStr::toLower(key);
    pElement.mPlaces.insert_or_assign(key, pKey.mPlace);
}

// Drops the rest of an element but for its children. Blocks of unknown components and of styles go with it.
void znCGuiFileReader::restSkip(Element& pElement, const Token& pFirst)
{
    Token token = pFirst;
    s32 depth = 1;
    do
    {
        if (isComponentType(token))
            elementRead(token, pElement.mEntity, false);
        else
        {
            stepOver(token);
            depth += token.depthChangeGet();
        }
        if (depth <= 0 || !tokenNext(token))
            return;
    } while (!endMissing(pElement, token));
    mText.tokenReturn();
}

void znCGuiFileReader::settingsApply(const Element& pElement)
{
    const u32 reports = znIDebug::reportCountGet();
    pElement.mEntity->initialiseFromVariableTable(pElement.mSettings);
    if (znIDebug::reportCountGet() != reports)
        fault(pElement.mUse, "The faults above are those of %.*s %s.\n", sizeShown(pElement.mType),
              pElement.mType.data(), pElement.mEntity->nameGet().c_str());
    if (sElementObserver != nullptr)
        sElementObserver(pElement.mSettings, pElement.mType, pElement.mPlaces);
}

void znCGuiFileReader::elementObserverSet(ElementObserver pObserver)
{
    sElementObserver = pObserver;
}

void znCGuiFileReader::fault(const Place& pPlace, const char* pFormat, ...)
{
    if (mLost)
        return;
    char message[1024];
    va_list arguments;
    va_start(arguments, pFormat);
    std::vsnprintf(message, sizeof message, pFormat, arguments);
    va_end(arguments);
    const std::string file(pPlace.mFile);
    if (++mFaults <= FAULT_LIMIT)
        ZN_ASSERT(false, "%s line %d: %s", file.c_str(), pPlace.mLine, message);
    else if (mFaults == FAULT_LIMIT + 1)
        ZN_ASSERT(false, "%s line %d: Too many faults: the rest of the file is left out.\n", file.c_str(),
                  pPlace.mLine);
}
