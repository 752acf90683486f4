#include "loader/znNRecordedEvents.h"

#include "loader/znNTextFile.h"

#include <algorithm>
#include <limits>

namespace
{
using Kind = znCInputEvent::Kind;

// Which numbers follow the name of an event, always in this order.
struct Form
{
    Kind mKind;
    const char* mName;
    bool mId;
    bool mPressed;
    bool mPosition;
};

constexpr Form FORMS[] = {
    {Kind::KEY, "key", true, true, false},
    {Kind::CHARACTER, "char", true, false, false},
    {Kind::BUTTON, "button", true, true, true},
    {Kind::MOTION, "motion", false, false, true},
    {Kind::TOUCH, "touch", true, true, true},
    {Kind::TOUCH_MOTION, "touchmotion", true, false, true},
    {Kind::CLIENT_AREA, "client", false, true, false},
    {Kind::SUSPEND, "suspend", false, false, false},
    {Kind::RESUME, "resume", false, false, false},
    {Kind::QUIT, "quit", false, false, false},
};

bool numberTake(std::string_view& pRest, s32& pNumber)
{
    return znNTextFile::numberParse(znNTextFile::wordTake(pRest), std::numeric_limits<s32>::min(),
                                    std::numeric_limits<s32>::max(), pNumber);
}

bool flagTake(std::string_view& pRest, bool& pFlag)
{
    s32 number = 0;
    const bool right = numberTake(pRest, number) && (number == 0 || number == 1);
    pFlag = number == 1;
    return right;
}
} // namespace

std::string znNRecordedEvents::lineGet(const znCInputEvent& pEvent)
{
    const Form& form = *std::find_if(std::begin(FORMS), std::end(FORMS),
                                     [&pEvent](const Form& pForm) { return pForm.mKind == pEvent.mKind; });
    std::string line = form.mName;
    if (form.mId)
        line += " " + std::to_string(pEvent.mId);
    if (form.mPressed)
        line += pEvent.mPressed ? " 1" : " 0";
    if (form.mPosition)
        line += " " + std::to_string(pEvent.mX) + " " + std::to_string(pEvent.mY);
    return line;
}

bool znNRecordedEvents::lineParse(std::string_view pLine, znCInputEvent& pEvent)
{
    const std::string_view name = znNTextFile::wordTake(pLine);
    const Form* form =
        std::find_if(std::begin(FORMS), std::end(FORMS), [name](const Form& pForm) { return name == pForm.mName; });
    if (form == std::end(FORMS))
        return false;
    pEvent = {.mKind = form->mKind};
    return (!form->mId || numberTake(pLine, pEvent.mId)) && (!form->mPressed || flagTake(pLine, pEvent.mPressed)) &&
           (!form->mPosition || (numberTake(pLine, pEvent.mX) && numberTake(pLine, pEvent.mY))) && pLine.empty();
}
