#ifndef ZNAPPCORE_SRC_ZNCAPPCOREMAIN_H
#define ZNAPPCORE_SRC_ZNCAPPCOREMAIN_H

#include "zncore/znTypes.h"

#include <string>

class znINode;

// The program's main object: brings every singleton up in one fixed order, runs the frames, and takes the singletons
// down in another. Game layers derive from it and override the virtual steps.
//
// One instance at a time, made by the most derived class's create() and deleted by destroy(). It owns nothing but the
// order; the display node owns the tree, of which mAppDisplayNode is a part.
class znCAppCoreMain
{
public:
    // Null without an instance; that is no error.
    static znCAppCoreMain* instanceGet();
    // Shuts down and deletes the instance. Logs "Not created.\n" without one.
    static void destroy();

    // One frame of pDeltaMs milliseconds; a step above 200 counts as 16. True means that the program should end; the
    // frame that says so was drawn in full.
    bool frameUpdate(s32 pDeltaMs);
    void quitSet(bool pQuit);
    // To be called when the system suspends the program, between frames.
    void suspend() { suspendPrepare(); }

    // Adds a node under the root of all application content; the tree owns it from then on.
    void appDisplayChildAdd(znINode* pNode);
    // Depth-first search by name below the root of all application content; null if there is none.
    znINode* appDisplayChildFind(const std::string& pName);

    znCAppCoreMain(const znCAppCoreMain&) = delete;
    znCAppCoreMain& operator=(const znCAppCoreMain&) = delete;

protected:
    znCAppCoreMain() = default;

    // Stores the object that instanceGet() answers; the caller has made it and destroy() deletes it.
    static void instanceSet(znCAppCoreMain* pInstance);
    // Runs once, from the most derived class's create().
    void startUp();

    virtual void appDisplayNodeCreate();
    virtual void notificationsGuiCreate();
    virtual void screenFadeCreate();
    virtual void softwareCursorCreate();
    virtual void savedDataCreate();
    virtual void messageDispatchersDestroy();
    virtual void messageDispatchersCreate();
    virtual void firstGuiLoad();
    virtual void shutDownPrepare();
    virtual void factoriesDestroy();

public:
    virtual ~znCAppCoreMain() = default;

protected:
    // Called each frame after the tree, the deferred changes of the tree and the sound have had their turn.
    virtual void appUpdate(s32 pDeltaMs);
    virtual void factoriesCreate();
    // The system suspends the program and may end it without a further word: saves what changed.
    virtual void suspendPrepare();

    znINode* mAppDisplayNode = nullptr; // owned by the display node
    bool mQuit = false;

private:
    void shutDown();
    void frameRender();
};

#endif
