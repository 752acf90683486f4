#ifndef ZNAPPCORE_ZNIMESSAGELISTENER_H
#define ZNAPPCORE_ZNIMESSAGELISTENER_H

// What a dispatcher delivers messages to. A component or node that listens derives from one of the mix-ins
// znIMessageListenerComponent, znIMessageListenerEntity or znIMessageListenerGuiComponent.
//
// messagesRegister() calls listenerRegister() once a type on the dispatcher that carries it, messagesDeregister()
// mirrors that exactly; a class that derives from a listener class calls its base's first. The framework calls them:
// for a component when it is made and before it is deleted, for a node in treeInitialise() and before its deletion.
// Others are registered by their owner.

#include "zncore/znTypes.h"

class znCUniqueId;

class znIMessageListener
{
public:
    // Listeners of higher priority are asked first. All have 0 but the ghost sprite (1), the software cursor (2), the
    // progress saver (3), which only takes note, and the round score (-1), which writes down what all others have
    // stored.
    explicit znIMessageListener(s32 pPriority = 0) : mPriority(pPriority) {}
    znIMessageListener(const znIMessageListener&) = delete;
    znIMessageListener& operator=(const znIMessageListener&) = delete;

    virtual void messagesRegister() = 0;
    virtual void messagesDeregister() = 0;
    // pData is what the sender of that type says it is. True consumes the message: no other listener gets it.
    virtual bool messageProcess(const znCUniqueId& pType, void* pData) = 0;
    // A gesture takes the press that this listener captured: give it up.
    virtual void pointerCaptureCancel() {}
    virtual ~znIMessageListener() = default;

    s32 priorityGet() const { return mPriority; }

private:
    friend class znIMessageDispatcher;

    const s32 mPriority;
    // A bit for each type that it has ever registered for, some types sharing one: without the bit no dispatcher needs
    // to look for it in its list.
    u64 mTypeBits = 0;
};

#endif
