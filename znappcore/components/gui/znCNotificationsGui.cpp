#include "znappcore/components/gui/znCNotificationsGui.h"

#include "znappcore/components/gui/znNGuiChildren.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znIDisplay.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"

#include <algorithm>

namespace
{
constexpr s32 SLIDE_LENGTH_MS = 2 * znCNotificationsGui::SLIDE_MS + znCNotificationsGui::STAND_MS;

znCNotificationsGui* sInstance = nullptr; // owned by its entity
} // namespace

znCNotificationsGui::~znCNotificationsGui()
{
    if (sInstance == this)
        sInstance = nullptr;
}

void znCNotificationsGui::create()
{
    znCEntity* gui = guiCreateFromFile(znCResourceName(FILE_NAME, znCResourceName::GAME_DATA), nullptr, true);
    sInstance = gui != nullptr ? gui->componentGet<znCNotificationsGui>() : nullptr;
    ZN_ASSERT(sInstance != nullptr, "Expect to find a znCNotificationsGui after loading notificationsGui.txt\n");
    if (gui != nullptr)
        znIDisplay::instanceGet()->childAdd(gui);
}

znCNotificationsGui* znCNotificationsGui::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance;
}

void znCNotificationsGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIGuiComponent::initialiseFromVariableTableDo(pTable);
    slideBuild();
}

void znCNotificationsGui::slideBuild()
{
    const auto* background = znNGuiChildren::componentFind<znCSpriteComponent>(*this, BACKGROUND_ENTITY);
    const s32 height =
        background != nullptr && background->brushGet() != nullptr ? background->brushGet()->heightGet() : 0;
    const s32 canvas = znIDisplay::instanceGet()->canvasHeightGet();
    const s32 off = -(canvas / 2) - height / 2;
    const s32 on = height / 2 - canvas / 2;
    mSlide = znCGraph<float>();
    mSlide.dataAdd(0, static_cast<float>(off));
    mSlide.dataAdd(SLIDE_MS, static_cast<float>(on));
    mSlide.dataAdd(STAND_MS, static_cast<float>(on));
    mSlide.dataAdd(SLIDE_MS, static_cast<float>(off));
    mEntity->posSet(0, off);
}

void znCNotificationsGui::notificationAdd(const std::string& pText)
{
    if (messageIsUniqueGet(pText))
        mQueue.push_back(pText);
}

bool znCNotificationsGui::messageIsUniqueGet(const std::string& pText) const
{
    return !(mShowing && mShown == pText) && std::find(mQueue.begin(), mQueue.end(), pText) == mQueue.end();
}

void znCNotificationsGui::nextShow()
{
    mShown = mQueue.front();
    mQueue.erase(mQueue.begin());
    mShowing = true;
    mElapsedMs = 0;
    auto* text = znNGuiChildren::componentFind<znCTextSpriteComponent>(*this, TEXT_ENTITY);
    ZN_ASSERT(text != nullptr, "Expected znCNotificationsGui to have a text box called 'NotificationsGuiText'.\n");
    if (text != nullptr)
        text->textSet(mShown);
}

void znCNotificationsGui::update(s32 pDeltaMs)
{
    if (!mShowing)
    {
        if (!mQueue.empty())
            nextShow();
        return;
    }
    mElapsedMs += pDeltaMs;
    mEntity->posSet(0, static_cast<s32>(mSlide.valueGet(mElapsedMs)));
    if (mElapsedMs < SLIDE_LENGTH_MS)
        return;
    mShowing = false;
    mElapsedMs = 0;
}
