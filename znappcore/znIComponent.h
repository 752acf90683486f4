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
    znCEntity* entityGet() const { return mEntity; }

protected:
    znCEntity* mEntity; // the owner; never null, never changed
};

#endif
