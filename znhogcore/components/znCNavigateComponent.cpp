#include "znhogcore/components/znCNavigateComponent.h"

#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/znIHogLevel.h"

#include <cstring>

znCNavigateComponent::znCNavigateComponent(znCEntity* pEntity)
    : znIGestureHandlingComponent(pEntity, true, false, false)
{
    const znCNameComponent* name = znCNameComponent::get(pEntity);
    const znIHogLevel* level = znIHogLevel::levelGet();
    if (name != nullptr)
        targetCalculate(level != nullptr ? level->variablesGet() : znCVariableTable(), name->baseNameGet());
}

void znCNavigateComponent::targetCalculate(const znCVariableTable& pTable, const std::string& pBaseName)
{
    const std::size_t mark = pBaseName.find(MARK);
    ZN_ASSERT(mark != std::string::npos, "Expected NAV to be in my name %s.\n", pBaseName.c_str());
    if (mark == std::string::npos)
        return;
    const std::string key = pBaseName.substr(mark + std::strlen(MARK));
    mTarget = pTable.strGet(key, key);
}

bool znCNavigateComponent::inputEnabled()
{
    return true;
}

void znCNavigateComponent::onTap()
{
    znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::NAVIGATE_TAP, &mTarget);
}
