#include "znhogcore/components/gui/znCHighScoresGui.h"

#include "znappcore/components/gui/znNGuiChildren.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "zncore/debug/znIDebug.h"
#include "znhogcore/src/znCHogGlobalSavedData.h"

#include <algorithm>

namespace
{
constexpr char SCORE[] = "HighScoresScore";
constexpr char PLAYER[] = "HighScoresName";
} // namespace

void znCHighScoresGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIGuiComponent::initialiseFromVariableTableDo(pTable);
    entriesTextSet();
}

s32 znCHighScoresGui::rowsCount() const
{
    s32 rows = 0;
    while (znNGuiChildren::entityFind(*this, SCORE + std::to_string(rows)) != nullptr &&
           znNGuiChildren::entityFind(*this, PLAYER + std::to_string(rows)) != nullptr)
        ++rows;
    return rows;
}

void znCHighScoresGui::entriesTextSet()
{
    const znCHogGlobalSavedData* saved = znCHogGlobalSavedData::instanceGet();
    const s32 rows = rowsCount();
    const s32 scores = saved->highScoreCountGet();
    ZN_ASSERT(scores <= rows, "High score table has less entries than the saved data.\n");
    ZN_ASSERT(scores >= rows, "High score table has more entries than the saved data.\n");
    for (s32 row = 0; row < std::min(rows, scores); ++row)
    {
        znCTextSpriteComponent::textSet(znNGuiChildren::entityFind(*this, SCORE + std::to_string(row)),
                                        std::to_string(saved->highScoreGet(row)));
        znCTextSpriteComponent::textSet(znNGuiChildren::entityFind(*this, PLAYER + std::to_string(row)),
                                        saved->highScoreNameGet(row));
    }
}
