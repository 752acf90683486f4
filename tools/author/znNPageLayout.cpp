#include "tools/author/znNPageLayout.h"

#include <algorithm>
#include <optional>

#define STB_RECT_PACK_IMPLEMENTATION
#define STBRP_STATIC
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#include <stb_rect_pack.h>
#pragma GCC diagnostic pop

namespace
{
using znNPageLayout::Page;
using znNPageLayout::Rectangle;
using Range = std::vector<Rectangle>;

constexpr s32 STEP = 4; // between the widths that are tried

s32 evenGet(s32 pNumber)
{
    return pNumber + pNumber % 2;
}

// Nothing if they don't fit into that size.
std::optional<Page> placed(const Range& pRange, s32 pWidth, s32 pHeight)
{
    std::vector<stbrp_rect> boxes;
    for (std::size_t i = 0; i < pRange.size(); ++i)
    {
        stbrp_rect box{};
        box.id = static_cast<int>(i);
        box.w = static_cast<stbrp_coord>(pRange[i].mWidth);
        box.h = static_cast<stbrp_coord>(pRange[i].mHeight);
        boxes.push_back(box);
    }
    std::vector<stbrp_node> nodes(static_cast<std::size_t>(pWidth));
    stbrp_context context;
    stbrp_init_target(&context, pWidth, pHeight, nodes.data(), pWidth);
    if (stbrp_pack_rects(&context, boxes.data(), static_cast<int>(boxes.size())) == 0)
        return std::nullopt;
    Page page{0, 0, pRange};
    for (const stbrp_rect& box : boxes)
    {
        Rectangle& rectangle = page.mRectangles[static_cast<std::size_t>(box.id)];
        rectangle.mX = box.x;
        rectangle.mY = box.y;
        page.mWidth = std::max(page.mWidth, evenGet(rectangle.mX + rectangle.mWidth));
        page.mHeight = std::max(page.mHeight, evenGet(rectangle.mY + rectangle.mHeight));
    }
    return page;
}

// The smallest page, of several the one that is nearest to a square.
Page smallestGet(const Range& pRange, s32 pSideMax)
{
    const auto rank = [](const Page& pPage)
    {
        return std::pair(s64(pPage.mWidth) * pPage.mHeight, std::max(pPage.mWidth, pPage.mHeight));
    };
    Page best = *placed(pRange, pSideMax, pSideMax);
    s32 widest = 0;
    for (const Rectangle& rectangle : pRange)
        widest = std::max(widest, rectangle.mWidth);
    for (s32 width = widest; width < pSideMax; width += STEP)
        if (const std::optional<Page> page = placed(pRange, width, pSideMax); page && rank(*page) < rank(best))
            best = *page;
    return best;
}

// How many from the first on stand on one page.
std::size_t countGet(const Range& pRange, s32 pSideMax)
{
    std::size_t fits = 1;
    std::size_t tooMany = pRange.size() + 1;
    while (tooMany - fits > 1)
    {
        const std::size_t middle = tooMany == pRange.size() + 1 ? pRange.size() : (fits + tooMany) / 2;
        const Range part(pRange.begin(), pRange.begin() + static_cast<std::ptrdiff_t>(middle));
        (placed(part, pSideMax, pSideMax) ? fits : tooMany) = middle;
    }
    return fits;
}
} // namespace

std::vector<Page> znNPageLayout::pagesMake(const std::vector<Rectangle>& pRectangles, s32 pSideMax)
{
    std::vector<Page> pages;
    Range rest = pRectangles;
    while (!rest.empty())
    {
        const auto end = rest.begin() + static_cast<std::ptrdiff_t>(countGet(rest, pSideMax));
        pages.push_back(smallestGet(Range(rest.begin(), end), pSideMax));
        rest.erase(rest.begin(), end);
    }
    return pages;
}
