#ifndef ZNAPPCORE_ZNICOMPONENT_H
#define ZNAPPCORE_ZNICOMPONENT_H

// Base of all components: a piece of behaviour of one entity, which owns it and forwards its node events to it.
//
// A concrete class has a constructor that takes the entity alone and names its type:
//
//     static constexpr znCUniqueId TYPE{"znCThingComponent"};
//
// It is made by znCComponentFactory and hears messages before its first update and before it is initialised.

#include "znappcore/znCUniqueId.h"
#include "zncore/znTypes.h"

#include <string>
#include <type_traits>

class znCEntity;
class znCVariableTable;

class znIComponent
{
public:
    explicit znIComponent(znCEntity* pEntity) : mEntity(pEntity) {}
    znIComponent(const znIComponent&) = delete;
    znIComponent& operator=(const znIComponent&) = delete;

    // The events of the entity's node; see znINode.
    virtual void update(s32 pDeltaMs);
    virtual void render();
    virtual void posChangeHandle();
    virtual void matrixApply();
    virtual void mySave(std::string& pOut);
    virtual void myLoad(std::string& pIn);
    virtual void myPostLoad();
    virtual ~znIComponent();
    virtual void initialiseFromVariableTableDo(const znCVariableTable& pTable);

    void initialiseFromVariableTable(const znCVariableTable& pTable) { initialiseFromVariableTableDo(pTable); }

    // The events of each frame that a class leaves as they are here need not be forwarded to its components.
    static constexpr u8 EVENT_UPDATE = 1;
    static constexpr u8 EVENT_RENDER = 2;
    static constexpr u8 EVENT_MATRIX = 4;
    // Which of these the class T overrides; one that can't be told counts as overridden.
    template <class T>
    static constexpr u8 eventsOf();
    void eventsSet(u8 pEvents) { mEvents = pEvents; } // for the factory; all, until it tells
    bool eventHeard(u8 pEvent) const { return (mEvents & pEvent) != 0; }

    znCEntity* entityGet() const { return mEntity; }

protected:
    znCEntity* mEntity; // the owner; never null, never changed

private:
    u8 mEvents = EVENT_UPDATE | EVENT_RENDER | EVENT_MATRIX;
};

template <class T>
constexpr u8 znIComponent::eventsOf()
{
    constexpr bool updateInherited = requires
    {
        requires std::is_same_v<decltype(&T::update), void (znIComponent::*)(s32)>;
    };
    constexpr bool renderInherited = requires
    {
        requires std::is_same_v<decltype(&T::render), void (znIComponent::*)()>;
    };
    constexpr bool matrixInherited = requires
    {
        requires std::is_same_v<decltype(&T::matrixApply), void (znIComponent::*)()>;
    };
    return (updateInherited ? 0 : EVENT_UPDATE) | (renderInherited ? 0 : EVENT_RENDER) |
           (matrixInherited ? 0 : EVENT_MATRIX);
}

#endif
