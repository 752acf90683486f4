#ifndef ZNAPPCORE_ZNIMESSAGEDISPATCHER_H
#define ZNAPPCORE_ZNIMESSAGEDISPATCHER_H

// Carries typed messages from whoever sends them to the listeners of their type. Delivery is synchronous and ends with
// the first listener that consumes the message. Listeners are asked from the highest priority down, the most recently
// registered first among equals.
//
// At most one listener is the priority listener: it gets every message that somebody listens for, behind the listeners
// of positive priority and before those of priority 0, whether it registered for the type or not.
//
// During a delivery anything may register, deregister and send. A listener that registers for the type being delivered
// hears the next one; only one whose place is below a listener of positive priority still to be asked hears this one
// too. The dispatcher owns no listener; each must deregister before its end.

#include "znappcore/znCUniqueId.h"

#include <map>
#include <vector>

class znIMessageListener;

class znIMessageDispatcher
{
public:
    znIMessageDispatcher() = default;
    znIMessageDispatcher(const znIMessageDispatcher&) = delete;
    znIMessageDispatcher& operator=(const znIMessageDispatcher&) = delete;

    // True if a listener consumed the message; false also if nobody listens for the type, which is no fault.
    virtual bool messageSend(const znCUniqueId& pType, void* pData);
    virtual ~znIMessageDispatcher();

    bool listenerExists(const znCUniqueId& pType) const;
    void listenerRegister(const znCUniqueId& pType, znIMessageListener* pListener);
    // Also clears the priority listener if pListener is the one.
    void listenerDeregister(const znCUniqueId& pType, znIMessageListener* pListener);
    // Replaces the one before, which is logged.
    void priorityListenerRegister(znIMessageListener* pListener);
    void priorityListenerDeregister(znIMessageListener* pListener);
    znIMessageListener* priorityListenerGet() const { return mPriorityListener; }

private:
    // An array that takes from either end alike: a scene's listeners go in the order in which they came.
    class Listeners
    {
    public:
        znIMessageListener* const* begin() const { return mPlaces.data() + mFree; }
        znIMessageListener* const* end() const { return mPlaces.data() + mPlaces.size(); }
        std::size_t sizeGet() const { return mPlaces.size() - mFree; }
        void insert(std::size_t pPlace, znIMessageListener* pListener);
        void erase(std::size_t pPlace);

    private:
        std::vector<znIMessageListener*> mPlaces;
        std::size_t mFree = 0; // places at the front
    };

    // A delivery in progress, kept on the stack of its messageSend().
    struct Walk
    {
        const Listeners* mListeners;
        std::size_t mRemaining; // entries below this place are still to be asked
        bool mChanged;          // the list has changed since the last look at it
        Walk* mOuter;
    };

    bool deliver(Walk& pWalk, void* pData, const znCUniqueId& pType);
    void walksShift(const Listeners& pListeners, std::size_t pPlace, bool pInserted);

    znIMessageListener* mPriorityListener = nullptr;
    std::map<znCUniqueId, Listeners> mListeners; // each in ascending order of priority
    Walk* mWalks = nullptr;                      // innermost delivery
};

#endif
