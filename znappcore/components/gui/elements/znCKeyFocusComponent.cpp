#include "znappcore/components/gui/elements/znCKeyFocusComponent.h"

#include "znappcore/components/gui/elements/znCSliderComponent.h"
#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/components/znCTextEntryComponent.h"
#include "znappcore/components/znIGestureHandlingComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIInputManager.h"
#include "znappcore/znIRenderer.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znCResourceName.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <sstream>

namespace
{
// Asked before all controls: its own gesture must not end in the press of another.
constexpr s32 PRIORITY = 1;
constexpr znCUniqueId MESSAGES[] = {znIInputManager::NAVIGATION_KEY, znIInputManager::POINTER_DOWN,
                                    znIInputManager::POINTER_MOVE};
constexpr float FRAME_GAP = 3.0f; // canvas units between a control's picture and its frame
constexpr float FRAME_WIDTH = 3.0f;
constexpr char FRAME_COLOUR[] = "ffe08cff";
constexpr s32 ACROSS_WEIGHT = 3; // a control to the side counts as so much further away

void controlsCollect(znINode* pNode, std::vector<znCEntity*>& pControls)
{
    if (!pNode->activeGet())
        return;
    if (auto* entity = dynamic_cast<znCEntity*>(pNode))
        if (!entity->nameGet().empty() && entity->componentFind<znIGestureHandlingComponent>() != nullptr &&
            entity->componentGet<znCSpriteComponent>() != nullptr)
            pControls.push_back(entity);
    for (znINode* child : pNode->childrenGet())
        controlsCollect(child, pControls);
}

bool before(const znCEntity* pA, const znCEntity* pB)
{
    const znPoint a = pA->worldPosGet();
    const znPoint b = pB->worldPosGet();
    return a.mY != b.mY ? a.mY < b.mY : a.mX < b.mX;
}
} // namespace

znCKeyFocusComponent::znCKeyFocusComponent(znCEntity* pEntity) : znIMessageListenerComponent(pEntity, PRIORITY)
{
    for (znCSpriteRenderData& side : mFrame)
        side.colourSet(znCColour(FRAME_COLOUR));
}

void znCKeyFocusComponent::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIMessageListenerComponent::initialiseFromVariableTableDo(pTable);
    mEnter = pTable.strGet("enter");
    mEscape = pTable.strGet("escape");
    mEscapeGui = pTable.strGet("escapeGui");
}

void znCKeyFocusComponent::messagesRegister()
{
    for (const znCUniqueId& message : MESSAGES)
        znIInputManager::instanceGet()->listenerRegister(message, this);
}

void znCKeyFocusComponent::messagesDeregister()
{
    for (const znCUniqueId& message : MESSAGES)
        znIInputManager::instanceGet()->listenerDeregister(message, this);
}

bool znCKeyFocusComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (!mEntity->activeInTreeGet())
        return false;
    if (pType == znIInputManager::NAVIGATION_KEY)
    {
        keyProcess(*static_cast<const s32*>(pData));
        return true;
    }
    if (!mPressing)
        mFocus.clear();
    return false;
}

void znCKeyFocusComponent::keyProcess(s32 pKey)
{
    switch (pKey)
    {
    case znIInputManager::KEY_TAB:
        return focusStep(1);
    case znIInputManager::KEY_TAB_BACK:
        return focusStep(-1);
    case znIInputManager::KEY_LEFT:
    case znIInputManager::KEY_RIGHT:
        if (const s32 step = pKey == znIInputManager::KEY_LEFT ? -1 : 1; !sliderMove(step))
            focusMove(step, 0);
        return;
    case znIInputManager::KEY_UP_ARROW:
        return focusMove(0, -1);
    case znIInputManager::KEY_DOWN_ARROW:
        return focusMove(0, 1);
    case znIInputManager::KEY_SPACE:
        // What is typed into a field presses nothing.
        if (!mFocus.empty() && !textEntryHas())
            controlPress(mFocus);
        return;
    case znIInputManager::KEY_ENTER:
        return enterProcess();
    case znIInputManager::KEY_ESCAPE:
        return escapeProcess();
    default:
        return;
    }
}

std::vector<znCEntity*> znCKeyFocusComponent::controlsGet() const
{
    std::vector<znCEntity*> controls;
    if (mEntity->parentGet() != nullptr)
        controlsCollect(mEntity->parentGet(), controls);
    std::stable_sort(controls.begin(), controls.end(), before);
    return controls;
}

znCEntity* znCKeyFocusComponent::controlFind(const std::string& pName) const
{
    znINode* screen = mEntity->parentGet();
    auto* control = screen != nullptr && !pName.empty() ? dynamic_cast<znCEntity*>(screen->childFind(pName)) : nullptr;
    return control != nullptr && control->activeInTreeGet() && control->componentGet<znCSpriteComponent>() != nullptr
               ? control
               : nullptr;
}

bool znCKeyFocusComponent::textEntryHas() const
{
    auto* screen = dynamic_cast<znCEntity*>(mEntity->parentGet());
    return screen != nullptr && screen->entityWithComponentFind(typeid(znCTextEntryComponent)) != nullptr;
}

void znCKeyFocusComponent::focusStep(s32 pStep)
{
    const std::vector<znCEntity*> controls = controlsGet();
    if (controls.empty())
        return;
    const s32 count = static_cast<s32>(controls.size());
    const auto focus = std::find(controls.begin(), controls.end(), controlFind(mFocus));
    s32 place = pStep > 0 ? 0 : count - 1;
    if (focus != controls.end())
        place = (static_cast<s32>(focus - controls.begin()) + pStep + count) % count;
    mFocus = controls[static_cast<std::size_t>(place)]->nameGet();
}

// To the nearest control on that side; what lies across the direction counts more than what lies along it.
void znCKeyFocusComponent::focusMove(s32 pX, s32 pY)
{
    const znCEntity* focus = controlFind(mFocus);
    if (focus == nullptr)
        return focusStep(pX + pY);
    const znPoint from = focus->worldPosGet();
    s32 nearest = std::numeric_limits<s32>::max();
    for (const znCEntity* control : controlsGet())
    {
        const znPoint to = control->worldPosGet();
        const s32 along = (to.mX - from.mX) * pX + (to.mY - from.mY) * pY;
        const s32 across = std::abs((to.mX - from.mX) * pY) + std::abs((to.mY - from.mY) * pX);
        if (along <= 0 || along + across * ACROSS_WEIGHT >= nearest)
            continue;
        nearest = along + across * ACROSS_WEIGHT;
        mFocus = control->nameGet();
    }
}

bool znCKeyFocusComponent::sliderMove(s32 pStep)
{
    const znCEntity* focus = controlFind(mFocus);
    auto* slider = focus != nullptr ? focus->componentGet<znCSliderComponent>() : nullptr;
    if (slider == nullptr)
        return false;
    slider->valueMove(static_cast<float>(pStep) * SLIDER_STEP);
    return true;
}

void znCKeyFocusComponent::enterProcess()
{
    if (controlFind(mFocus) != nullptr)
        controlPress(mFocus);
    else if (!mEnter.empty())
        controlPress(mEnter);
}

void znCKeyFocusComponent::escapeProcess()
{
    if (!mEscape.empty())
        controlPress(mEscape);
    else if (!mEscapeGui.empty() && mEntity->parentGet() != nullptr)
        znIGuiComponent::guiCreateFromFile(znCResourceName(mEscapeGui, znCResourceName::GAME_DATA),
                                           mEntity->parentGet(), true);
}

// The first of the names, which blanks part, that is on view.
void znCKeyFocusComponent::controlPress(const std::string& pNames)
{
    std::istringstream names(pNames);
    bool known = false;
    for (std::string name; names >> name;)
    {
        if (const znCEntity* control = controlFind(name))
            return pointerPress(control->worldPosGet());
        known = known || mEntity->parentGet()->childFind(name) != nullptr;
    }
    // A control that is hidden just now is no fault.
    if (!known)
        ZN_LOG("There is no control %s for the keyboard.\n", pNames.c_str());
}

void znCKeyFocusComponent::pointerPress(const znPoint& pPos)
{
    mPressing = true;
    for (const bool down : {true, false})
    {
        znCPointerMessage message(pPos, 0, down);
        znIInputManager::instanceGet()->messageSend(down ? znIInputManager::POINTER_DOWN : znIInputManager::POINTER_UP,
                                                    &message);
    }
    mPressing = false;
}

void znCKeyFocusComponent::update(s32)
{
    frameUpdate();
}

// The four sides of a frame around the focused control, in device pixels.
void znCKeyFocusComponent::frameUpdate()
{
    const znCEntity* control = controlFind(mFocus);
    mFrameShown = control != nullptr;
    if (!mFrameShown)
        return;
    const auto* sprite = control->componentGet<znCSpriteComponent>();
    const float x = static_cast<float>(sprite->widthGet()) * 0.5f + FRAME_GAP;
    const float y = static_cast<float>(sprite->heightGet()) * 0.5f + FRAME_GAP;
    const float outerX = x + FRAME_WIDTH;
    const float outerY = y + FRAME_WIDTH;
    const float sides[SIDES][4] = {// left, top, right, bottom
                                   {-outerX, -outerY, outerX, -y},
                                   {-outerX, y, outerX, outerY},
                                   {-outerX, -y, -x, y},
                                   {x, -y, outerX, y}};
    const znAffineMtx2d& matrix = control->worldMatrixGet();
    for (s32 i = 0; i < SIDES; ++i)
    {
        const auto& [left, top, right, bottom] = sides[i];
        znPointF corners[4] = {{left, top}, {left, bottom}, {right, bottom}, {right, top}};
        for (znPointF& corner : corners)
            corner = {matrix.m00 * corner.mX + matrix.m01 * corner.mY + matrix.m02,
                      matrix.m10 * corner.mX + matrix.m11 * corner.mY + matrix.m12};
        mFrame[i].verticesSet(corners);
    }
}

void znCKeyFocusComponent::render()
{
    znIRenderer* renderer = znIRenderer::instanceGet();
    if (!mFrameShown || renderer == nullptr)
        return;
    for (znCSpriteRenderData& side : mFrame)
        renderer->spriteAddToBatch(&side);
}
