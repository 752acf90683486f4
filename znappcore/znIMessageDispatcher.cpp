#include "znappcore/znIMessageDispatcher.h"

#include "znappcore/znIMessageListener.h"
#include "zncore/debug/znIDebug.h"

#include <algorithm>

znIMessageDispatcher::~znIMessageDispatcher() = default;

bool znIMessageDispatcher::messageSend(const znCUniqueId& pType, void* pData)
{
    const auto listeners = mListeners.find(pType);
    if (listeners == mListeners.end())
        return false;
    Walk walk{&listeners->second, listeners->second.size(), false, mWalks};
    mWalks = &walk;
    const bool consumed = deliver(walk, pData, pType);
    mWalks = walk.mOuter;
    return consumed;
}

bool znIMessageDispatcher::listenerExists(const znCUniqueId& pType) const
{
    const auto listeners = mListeners.find(pType);
    return listeners != mListeners.end() && !listeners->second.empty();
}

// Goes by place, kept where walksShift() finds it, and looks at the list anew when a listener has changed it.
bool znIMessageDispatcher::deliver(Walk& pWalk, void* pData, const znCUniqueId& pType)
{
    bool priorityListenerDue = mPriorityListener != nullptr;
    znIMessageListener* const* listeners = pWalk.mListeners->data();
    std::size_t remaining = pWalk.mRemaining;
    while (remaining > 0)
    {
        znIMessageListener* listener = listeners[remaining - 1];
        if (priorityListenerDue && listener->priorityGet() == 0)
        {
            // It has no place of its own; the listener above is looked for again behind it.
            priorityListenerDue = false;
            listener = mPriorityListener;
        }
        else
            pWalk.mRemaining = --remaining;
        if (listener != nullptr && listener->messageProcess(pType, pData))
            return true;
        if (!pWalk.mChanged) [[likely]]
            continue;
        pWalk.mChanged = false;
        listeners = pWalk.mListeners->data();
        remaining = pWalk.mRemaining;
    }
    return false;
}

// Keeps the deliveries in progress at their listeners when an entry came or went.
void znIMessageDispatcher::walksShift(const Listeners& pListeners, std::size_t pPlace, bool pInserted)
{
    for (Walk* walk = mWalks; walk != nullptr; walk = walk->mOuter)
    {
        if (walk->mListeners != &pListeners)
            continue;
        walk->mChanged = true;
        if (pPlace < walk->mRemaining)
            walk->mRemaining += pInserted ? 1 : -1;
    }
}

void znIMessageDispatcher::listenerRegister(const znCUniqueId& pType, znIMessageListener* pListener)
{
    Listeners& listeners = mListeners[pType];
    ZN_ASSERT(std::find(listeners.begin(), listeners.end(), pListener) == listeners.end(),
              "Listener already registered.\n");
    const auto place = std::upper_bound(listeners.begin(), listeners.end(), pListener,
                                        [](const znIMessageListener* pNew, const znIMessageListener* pOther)
                                        { return pNew->priorityGet() < pOther->priorityGet(); });
    walksShift(listeners, static_cast<std::size_t>(place - listeners.begin()), true);
    listeners.insert(place, pListener);
}

void znIMessageDispatcher::listenerDeregister(const znCUniqueId& pType, znIMessageListener* pListener)
{
    if (mPriorityListener == pListener)
        mPriorityListener = nullptr;
    const auto listeners = mListeners.find(pType);
    if (listeners != mListeners.end())
    {
        const auto place = std::find(listeners->second.begin(), listeners->second.end(), pListener);
        if (place != listeners->second.end())
        {
            walksShift(listeners->second, static_cast<std::size_t>(place - listeners->second.begin()), false);
            listeners->second.erase(place);
            return;
        }
    }
    ZN_ASSERT(false, "Listener not found. Are you sure it was registered?\n");
}

void znIMessageDispatcher::priorityListenerRegister(znIMessageListener* pListener)
{
    ZN_ASSERT(mPriorityListener == nullptr, "Priority listener already set.\n");
    mPriorityListener = pListener;
}

void znIMessageDispatcher::priorityListenerDeregister(znIMessageListener* pListener)
{
    ZN_ASSERT(mPriorityListener == pListener, "Incorrect listener is trying to release the priority listener.\n");
    if (mPriorityListener == pListener)
        mPriorityListener = nullptr;
}
