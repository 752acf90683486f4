#include "znappcore/znIMessageDispatcher.h"

#include "znappcore/znIMessageListener.h"
#include "zncore/debug/znIDebug.h"

#include <algorithm>

namespace
{
u64 typeBitGet(const znCUniqueId& pType)
{
    constexpr u32 SPREAD = 2654435761u; // ids of names that end alike differ in their low bits only
    return u64{1} << (pType.idGet() * SPREAD >> 26);
}
} // namespace

znIMessageDispatcher::~znIMessageDispatcher() = default;

void znIMessageDispatcher::Listeners::insert(std::size_t pPlace, znIMessageListener* pListener)
{
    mPlaces.insert(mPlaces.begin() + static_cast<std::ptrdiff_t>(mFree + pPlace), pListener);
}

void znIMessageDispatcher::Listeners::erase(std::size_t pPlace)
{
    const auto first = mPlaces.begin() + static_cast<std::ptrdiff_t>(mFree);
    const auto place = first + static_cast<std::ptrdiff_t>(pPlace);
    if (pPlace >= sizeGet() / 2)
    {
        mPlaces.erase(place);
        return;
    }
    std::move_backward(first, place, place + 1);
    if (++mFree > mPlaces.size() / 2)
    {
        mPlaces.erase(mPlaces.begin(), mPlaces.begin() + static_cast<std::ptrdiff_t>(mFree));
        mFree = 0;
    }
}

bool znIMessageDispatcher::messageSend(const znCUniqueId& pType, void* pData)
{
    const auto listeners = mListeners.find(pType);
    if (listeners == mListeners.end())
        return false;
    Walk walk{&listeners->second, listeners->second.sizeGet(), false, mWalks};
    mWalks = &walk;
    const bool consumed = deliver(walk, pData, pType);
    mWalks = walk.mOuter;
    return consumed;
}

bool znIMessageDispatcher::listenerExists(const znCUniqueId& pType) const
{
    const auto listeners = mListeners.find(pType);
    return listeners != mListeners.end() && listeners->second.sizeGet() > 0;
}

// Goes by place, kept where walksShift() finds it, and looks at the list anew when a listener has changed it.
bool znIMessageDispatcher::deliver(Walk& pWalk, void* pData, const znCUniqueId& pType)
{
    bool priorityListenerDue = mPriorityListener != nullptr;
    znIMessageListener* const* listeners = pWalk.mListeners->begin();
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
        listeners = pWalk.mListeners->begin();
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
    const u64 bit = typeBitGet(pType);
    ZN_ASSERT((pListener->mTypeBits & bit) == 0 ||
                  std::find(listeners.begin(), listeners.end(), pListener) == listeners.end(),
              "Listener already registered.\n");
    pListener->mTypeBits |= bit;
    const auto* const place = std::upper_bound(listeners.begin(), listeners.end(), pListener,
                                               [](const znIMessageListener* pNew, const znIMessageListener* pOther)
                                               { return pNew->priorityGet() < pOther->priorityGet(); });
    const auto index = static_cast<std::size_t>(place - listeners.begin());
    walksShift(listeners, index, true);
    listeners.insert(index, pListener);
}

void znIMessageDispatcher::listenerDeregister(const znCUniqueId& pType, znIMessageListener* pListener)
{
    if (mPriorityListener == pListener)
        mPriorityListener = nullptr;
    const auto listeners = mListeners.find(pType);
    if (listeners != mListeners.end())
    {
        const auto* const place = std::find(listeners->second.begin(), listeners->second.end(), pListener);
        if (place != listeners->second.end())
        {
            const auto index = static_cast<std::size_t>(place - listeners->second.begin());
            walksShift(listeners->second, index, false);
            listeners->second.erase(index);
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
