#ifndef LOADER_ZNNRECORDEDEVENTS_H
#define LOADER_ZNNRECORDEDEVENTS_H

#include "loader/znCInputEvent.h"

#include <string>
#include <string_view>

// Events as lines of a recording.
namespace znNRecordedEvents
{
// Without a line end.
std::string lineGet(const znCInputEvent& pEvent);
// False if the line is no event.
bool lineParse(std::string_view pLine, znCInputEvent& pEvent);
} // namespace znNRecordedEvents

#endif
