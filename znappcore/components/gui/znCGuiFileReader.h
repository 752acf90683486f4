#ifndef ZNAPPCORE_COMPONENTS_GUI_ZNCGUIFILEREADER_H
#define ZNAPPCORE_COMPONENTS_GUI_ZNCGUIFILEREADER_H

// Builds the entities of one GUI file, with what it includes. Made for one file and used once, by
// znIGuiComponent::guiCreateFromFile.
//
// Each fault is one line in the log that names file and line; after it comes as much of the screen as the text allows.
// A file whose braces don't match is read by its indents where the braces fail: the elements around the fault then
// stand as they were meant. Faults that the elements themselves log get one line behind them that says where the
// element stands.

#include "znappcore/components/gui/znCGuiText.h"
#include "znappcore/znCUniqueId.h"
#include "zncore/src/znCVariableTable.h"

#include <map>
#include <string>

class znCEntity;
class znCResourceName;
class znINode;

class znCGuiFileReader
{
public:
    static constexpr s32 NESTING_LIMIT = 64;    // elements within elements
    static constexpr s32 ELEMENT_LIMIT = 10000; // in one file with all its includes
    static constexpr s32 FAULT_LIMIT = 100;     // a file with more is rubbish, and what is left of it is not read

    using Places = std::map<std::string, znCGuiText::Place, std::less<>>;
    // Told of every element behind the moment in which it got its settings, with the places where their keys (in lower
    // case) were written. For tools; null, as in the game: nobody is told.
    using ElementObserver = void (*)(const znCVariableTable& pSettings, std::string_view pType, const Places& pPlaces);
    static void elementObserverSet(ElementObserver pObserver);

    // See guiCreateFromFile.
    znCGuiFileReader(znINode* pParent, bool pModal) : mParent(pParent), mModal(pModal) {}

    // The last element on the top level, not yet initialised as a tree; null if there is none.
    znCEntity* fileRead(const znCResourceName& pFile);

private:
    using Place = znCGuiText::Place;
    using Token = znCGuiText::Token;
    using Result = znCGuiText::Result;

    // An element that is being read.
    struct Element
    {
        znCEntity* mEntity;
        std::string_view mType;
        Place mUse;         // where the author wrote it
        Place mPlace;       // the same, but in the style that it may stand in
        std::size_t mDepth; // of the text that it should end in
        s32 mIndent;        // of its first line there; -1: of no use
        bool mIndented;     // its lines are known to be indented more than that
        znCVariableTable mSettings;
        Places mPlaces; // of the settings, if somebody is to be told
    };

    bool tokenNext(Token& pToken, bool pValue = false);
    void topLevelRead(const Token& pToken);
    void topLevelElementRead(const Token& pToken);
    bool directiveRead(const Token& pToken);
    void includeRead(const Token& pKeyword);
    void styleRead(const Token& pKeyword);
    void styleUse(const Token& pName, const znCGuiText::Block& pStyle);

    znCEntity* elementRead(const Token& pType, znINode* pParent, bool pTopLevel);
    void bodyRead(Element& pElement);
    bool bodyTokenRead(Element& pElement, const Token& pToken);
    void settingRead(Element& pElement, const Token& pKey);
    void restSkip(Element& pElement, const Token& pFirst);
    void indentCheck(Element& pElement, const Token& pToken) const;
    bool endMissing(const Element& pElement, const Token& pToken) const;
    bool closingIsStray(const Element& pElement, const Token& pToken) const;
    void stepOver(const Token& pToken);
    void settingsApply(const Element& pElement);
    void blockSkip();

    void insertionCheck(Result pResult, std::string_view pName, const Place& pPlace);
    void fault(const Place& pPlace, const char* pFormat, ...) __attribute__((format(printf, 3, 4)));

    znINode* mParent; // not owned; may be null
    bool mModal;
    znCEntity* mLast = nullptr; // the last on the top level, owned by the parent or, without one, by the caller
    znCGuiText mText;
    std::map<std::string, znCGuiText::Block, std::less<>> mStyles;
    Token mOpened = {}; // the style's name by which the element that comes next is written
    bool mOpenedSet = false;
    bool mLost = false;     // among words on the top level that mean nothing
    bool mLostSaid = false; // once is enough
    bool mEndSaid = false;  // of all elements that lack their end at the end of the file, one is named
    s32 mNesting = 0;
    s32 mElements = 0;
    s32 mFaults = 0;
};

#endif
