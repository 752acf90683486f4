#include "znappcore/znIMessageDispatcher.h"

#include "tests/support/allocationCount.h"
#include "tests/znappcore/znCTreeTest.h"
#include "znappcore/znCUniqueId.h"
#include "znappcore/znIMessageListener.h"

#include <functional>
#include <memory>
#include <random>

namespace
{
constexpr znCUniqueId PING{"ping"};
constexpr znCUniqueId PONG{"pong"};

class Listener : public znIMessageListener
{
public:
    Listener(const std::string& pName, s32 pPriority, std::string& pJournal)
        : znIMessageListener(pPriority), mName(pName), mJournal(pJournal)
    {
    }

    void messagesRegister() override {}
    void messagesDeregister() override {}
    bool messageProcess(const znCUniqueId& pType, void*) override
    {
        mJournal += pType == PING ? mName : mName + "'";
        if (mOnMessage)
            mOnMessage();
        return mConsumes;
    }

    std::function<void()> mOnMessage;
    bool mConsumes = false;

private:
    std::string mName;
    std::string& mJournal;
};

class znIMessageDispatcherTest : public znCTreeTest
{
protected:
    // A listener for PING.
    Listener* add(const std::string& pName, s32 pPriority = 0)
    {
        Listener* listener = make(pName, pPriority);
        mDispatcher.listenerRegister(PING, listener);
        return listener;
    }

    Listener* make(const std::string& pName, s32 pPriority = 0)
    {
        mListeners.push_back(std::make_unique<Listener>(pName, pPriority, mJournal));
        return mListeners.back().get();
    }

    // Who was asked, in order.
    std::string sent(const znCUniqueId& pType = PING)
    {
        mJournal.clear();
        mConsumed = mDispatcher.messageSend(pType, nullptr);
        return mJournal;
    }

    znIMessageDispatcher mDispatcher;
    std::vector<std::unique_ptr<Listener>> mListeners;
    std::string mJournal;
    bool mConsumed = false;
};
} // namespace

TEST(znCUniqueIdTest, HashesBytes)
{
    EXPECT_EQ(znCUniqueId("").idGet(), 0u);
    EXPECT_EQ(znCUniqueId("abc").idGet(), 0x0001a9a6u);
    EXPECT_NE(znCUniqueId("abc"), znCUniqueId("ABC"));
    EXPECT_EQ(znCUniqueId("\xc3").idGet(), 0xc3u) << "bytes count as unsigned";
    EXPECT_EQ(znCUniqueId("znCButtonComponent_UnsetAction").idGet(),
              znCUniqueId(std::string("znCButtonComponent_UnsetAction")).idGet());
}

TEST_F(znIMessageDispatcherTest, AsksByPriorityThenTheLatestFirst)
{
    struct Case
    {
        std::vector<std::pair<const char*, s32>> mListeners; // in order of registering
        const char* mConsumer;
        const char* mPriorityListener;
        const char* mAsked;
    };
    const Case cases[] = {
        {{{"a", 0}, {"b", 0}, {"c", 0}}, "", "", "cba"},
        {{{"a", 0}, {"b", 0}, {"c", 0}}, "b", "", "cb"},
        {{{"a", 2}, {"b", 0}, {"c", 1}, {"d", 0}}, "", "", "acdb"},
        {{{"a", -1}, {"b", 0}}, "", "p", "pba"},
        {{{"a", 2}, {"b", 0}, {"c", 1}, {"d", 0}}, "", "p", "acpdb"},
        {{{"a", 2}, {"b", 0}}, "a", "p", "a"},
        {{{"a", 2}, {"b", 0}}, "p", "p", "ap"},
        {{{"a", 2}, {"b", 1}}, "", "p", "ab"},  // nobody of priority 0 for it to go before
        {{{"a", 0}, {"b", 0}}, "", "a", "aba"}, // as the priority listener and for itself
        {{{"a", 3}, {"b", 0}}, "", "a", "aab"},
        {{}, "", "p", ""},
    };
    for (const Case& test : cases)
    {
        SCOPED_TRACE(test.mAsked);
        znIMessageDispatcher dispatcher;
        std::string journal;
        std::map<std::string, std::unique_ptr<Listener>> listeners;
        for (const auto& [name, priority] : test.mListeners)
        {
            listeners[name] = std::make_unique<Listener>(name, priority, journal);
            dispatcher.listenerRegister(PING, listeners[name].get());
        }
        const std::string priorityListener = test.mPriorityListener;
        if (!priorityListener.empty() && !listeners.contains(priorityListener))
            listeners[priorityListener] = std::make_unique<Listener>(priorityListener, 0, journal);
        if (!priorityListener.empty())
            dispatcher.priorityListenerRegister(listeners[priorityListener].get());
        const std::string consumer = test.mConsumer;
        if (!consumer.empty())
            listeners[consumer]->mConsumes = true;
        EXPECT_EQ(dispatcher.messageSend(PING, nullptr), !consumer.empty());
        EXPECT_EQ(journal, test.mAsked);
    }
}

// Against a plain list, while listeners come and go as scenes make and delete them: in order, backwards and mixed.
TEST_F(znIMessageDispatcherTest, ManyComeAndGo)
{
    std::mt19937 random(3);
    std::vector<std::pair<Listener*, char>> here; // in the order in which they came
    std::vector<std::pair<Listener*, char>> gone;
    for (char name = 'A'; name < 'Z'; ++name)
        gone.emplace_back(make(std::string(1, name), name % 3 - 1), name);
    const auto move = [&](auto& pFrom, auto& pTo, std::size_t pPlace)
    {
        pTo.push_back(pFrom[pPlace]);
        pFrom.erase(pFrom.begin() + static_cast<std::ptrdiff_t>(pPlace));
        return pTo.back().first;
    };
    for (s32 step = 0; step < 2000; ++step)
    {
        const s32 phase = step / 50 % 4; // mostly coming, from the front, from the back, at random
        if (!gone.empty() && (phase == 0 || random() % 3 == 0))
            mDispatcher.listenerRegister(PING, move(gone, here, random() % gone.size()));
        else if (!here.empty())
            mDispatcher.listenerDeregister(PING, move(here, gone,
                                                      phase == 1   ? 0
                                                      : phase == 2 ? here.size() - 1
                                                                   : random() % here.size()));
        std::string expected;
        for (const s32 priority : {1, 0, -1})
            for (auto entry = here.rbegin(); entry != here.rend(); ++entry)
                if (entry->first->priorityGet() == priority)
                    expected += entry->second;
        ASSERT_EQ(sent(), expected) << "step " << step;
    }
    for (const auto& [listener, name] : here)
        mDispatcher.listenerDeregister(PING, listener);
}

TEST_F(znIMessageDispatcherTest, NobodyListens)
{
    mDispatcher.priorityListenerRegister(make("p"));
    EXPECT_EQ(sent(PONG), "");
    EXPECT_FALSE(mConsumed);
    mDispatcher.listenerDeregister(PING, add("a"));
    EXPECT_EQ(sent(PING), "");
    EXPECT_FALSE(mConsumed);
}

TEST_F(znIMessageDispatcherTest, ManyRegisteringDuringADeliveryHearTheNext)
{
    add("a");
    add("b")->mOnMessage = [&]
    {
        for (s32 i = 0; i < 100; ++i)
            add("n");
        mListeners[1]->mOnMessage = nullptr;
    };
    EXPECT_EQ(sent(), "ba");
    EXPECT_EQ(sent(), std::string(100, 'n') + "ba");
}

// Whoever comes or goes during a delivery, each listener that stays is asked once.
TEST_F(znIMessageDispatcherTest, ChangesDuringADeliveryNeitherSkipNorRepeat)
{
    struct Case
    {
        const char* mActor;
        const char* mGoes; // deregistered by the actor
        s32 mComes;        // priority of a listener that registers; -1 none
        const char* mAsked;
    };
    // Registered: a b c of priority 0, g of 1, m of 2.
    const Case cases[] = {
        {"m", "m", -1, "mgcba"}, {"m", "g", -1, "mcba"}, {"m", "a", -1, "mgcb"},  {"c", "c", -1, "mgcba"},
        {"c", "g", -1, "mgcba"}, {"b", "a", -1, "mgcb"}, {"a", "c", -1, "mgcba"}, {"c", "", 0, "mgcba"},
        {"b", "", 2, "mgcba"},   {"m", "", 0, "mgncba"}, {"g", "", 1, "mgcba"},
    };
    for (const Case& test : cases)
    {
        SCOPED_TRACE(std::string(test.mActor) + " " + test.mGoes);
        znIMessageDispatcher dispatcher;
        std::string journal;
        std::map<std::string, std::unique_ptr<Listener>> listeners;
        for (const auto& [name, priority] :
             std::map<std::string, s32>{{"a", 0}, {"b", 0}, {"c", 0}, {"g", 1}, {"m", 2}})
        {
            listeners[name] = std::make_unique<Listener>(name, priority, journal);
            dispatcher.listenerRegister(PING, listeners[name].get());
        }
        Listener comer("n", test.mComes, journal);
        listeners[test.mActor]->mOnMessage = [&]
        {
            if (*test.mGoes != '\0')
                dispatcher.listenerDeregister(PING, listeners[test.mGoes].get());
            if (test.mComes >= 0)
                dispatcher.listenerRegister(PING, &comer);
        };
        dispatcher.messageSend(PING, nullptr);
        EXPECT_EQ(journal, test.mAsked);
    }
}

TEST_F(znIMessageDispatcherTest, NestedDeliveriesOfOneTypeKeepTheirPlaces)
{
    Listener* a = add("a");
    Listener* b = add("b");
    add("c")->mOnMessage = [&, depth = 0]() mutable
    {
        if (++depth < 3)
            mDispatcher.messageSend(PING, nullptr);
        else if (depth == 3)
            mDispatcher.listenerDeregister(PING, a);
    };
    EXPECT_EQ(sent(), "cccbbb");
    mDispatcher.listenerRegister(PONG, b);
    b->mOnMessage = [&]
    {
        b->mOnMessage = nullptr;
        mDispatcher.messageSend(PONG, nullptr);
    };
    EXPECT_EQ(sent(), "cbb'");
}

TEST_F(znIMessageDispatcherTest, PriorityListenerThatGoesIsNotAsked)
{
    Listener* p = add("p");
    add("a");
    mDispatcher.priorityListenerRegister(p);
    add("m", 2)->mOnMessage = [&]
    {
        mDispatcher.priorityListenerDeregister(p);
    };
    EXPECT_EQ(sent(), "map");
    EXPECT_TRUE(errorsTake().empty());

    mDispatcher.priorityListenerRegister(p);
    p->mOnMessage = [&]
    {
        mDispatcher.listenerDeregister(PING, p);
    };
    mListeners.back()->mOnMessage = nullptr;
    EXPECT_EQ(sent(), "mpa") << "it left the list while it was asked first";
}

TEST_F(znIMessageDispatcherTest, MisuseIsLogged)
{
    Listener* a = make("a");
    Listener* b = make("b");
    using Errors = std::vector<std::string>;

    mDispatcher.priorityListenerRegister(a);
    mDispatcher.priorityListenerRegister(b);
    EXPECT_EQ(errorsTake(), (Errors{"Priority listener already set."}));
    EXPECT_EQ(mDispatcher.priorityListenerGet(), b);
    mDispatcher.priorityListenerDeregister(a);
    EXPECT_EQ(errorsTake(), (Errors{"Incorrect listener is trying to release the priority listener."}));
    EXPECT_EQ(mDispatcher.priorityListenerGet(), b);
    mDispatcher.listenerDeregister(PING, b);
    EXPECT_EQ(errorsTake(), (Errors{"Listener not found. Are you sure it was registered?"}));
    EXPECT_EQ(mDispatcher.priorityListenerGet(), nullptr);

    mDispatcher.listenerRegister(PING, a);
    mDispatcher.listenerRegister(PING, a);
    EXPECT_EQ(errorsTake(), (Errors{"Listener already registered."}));
    EXPECT_EQ(sent(), "aa");
    mDispatcher.listenerDeregister(PING, a);
    EXPECT_EQ(sent(), "a");
}

TEST_F(znIMessageDispatcherTest, SendingAllocatesNothing)
{
    for (s32 i = 0; i < 500; ++i)
        add("");
    const std::size_t before = allocationCountGet();
    mDispatcher.messageSend(PING, nullptr);
    mDispatcher.messageSend(PONG, nullptr);
    EXPECT_EQ(allocationCountGet(), before);
}
