#include "znappcore/src/znCBrushManager.h"

#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "zncore/znNCoreUtils.h"

#include <array>
#include <charconv>
#include <optional>

namespace
{
std::unique_ptr<znCBrushManager> sInstance;

struct PageRecord
{
    std::string_view mName;
    std::array<s32, 4> mNumbers; // x, y, width, height
};

// What stands before the first pEnd, which is cut off with it; nothing if there is no pEnd.
std::optional<std::string_view> cut(std::string_view& pText, char pEnd)
{
    const std::size_t end = pText.find(pEnd);
    if (end == std::string_view::npos)
        return std::nullopt;
    const std::string_view part = pText.substr(0, end);
    pText.remove_prefix(end + 1);
    return part;
}

// The leading decimal number of a text, as strtol reads it; nothing if there is none or it doesn't fit.
std::optional<s32> numberGet(std::string_view pText)
{
    const std::size_t begin = pText.find_first_not_of(" \t\r\v\f");
    if (begin == std::string_view::npos)
        return std::nullopt;
    pText.remove_prefix(begin);
    if (pText.size() > 1 && pText[0] == '+' && pText[1] != '-')
        pText.remove_prefix(1);
    s32 number = 0;
    if (std::from_chars(pText.data(), pText.data() + pText.size(), number).ec != std::errc())
        return std::nullopt;
    return number;
}

std::optional<PageRecord> recordRead(std::string_view pLine)
{
    PageRecord record;
    const std::optional<std::string_view> name = cut(pLine, ',');
    if (!name || name->empty())
        return std::nullopt;
    record.mName = *name;
    for (std::size_t i = 0; i < record.mNumbers.size(); ++i)
    {
        const bool last = i + 1 == record.mNumbers.size();
        const std::optional<std::string_view> field = last ? pLine : cut(pLine, ',');
        const std::optional<s32> number = field ? numberGet(*field) : std::nullopt;
        if (!number)
            return std::nullopt;
        record.mNumbers[i] = *number;
    }
    return record;
}

bool insideGet(const PageRecord& pRecord, const znITexture& pPage)
{
    const auto [x, y, width, height] = pRecord.mNumbers;
    return x >= 0 && y >= 0 && width > 0 && height > 0 && width <= pPage.widthGet() && height <= pPage.heightGet() &&
           x <= pPage.widthGet() - width && y <= pPage.heightGet() - height;
}

// Reports faults of one page list, up to a number that a person would read.
class PageFaults
{
public:
    explicit PageFaults(const znCResourceName& pPage) : mPage(pPage) {}

    void recordUnreadableReport(s32 pLine)
    {
        if (room(pLine))
            ZN_LOG("Texture page %s line %d: expected name,x,y,width,height.\n", mPage.nameGet().c_str(), pLine);
    }

    void rectangleOutsideReport(s32 pLine, const PageRecord& pRecord, const znITexture& pTexture)
    {
        const auto [x, y, width, height] = pRecord.mNumbers;
        if (room(pLine))
            ZN_LOG("Texture page %s line %d: the rectangle (%d,%d,%d,%d) isn't inside the page (%d,%d).\n",
                   mPage.nameGet().c_str(), pLine, x, y, width, height, pTexture.widthGet(), pTexture.heightGet());
    }

private:
    bool room(s32 pLine)
    {
        constexpr s32 REPORTS_MAX = 20;
        ++mCount;
        if (mCount == REPORTS_MAX)
            ZN_LOG("Texture page %s: more faults from line %d on.\n", mPage.nameGet().c_str(), pLine);
        return mCount < REPORTS_MAX;
    }

    const znCResourceName& mPage;
    s32 mCount = 0;
};

znCBrushPtr brushMake(const std::string& pName, const znITexturePtr& pTexture, s32 pX, s32 pY, s32 pWidth, s32 pHeight)
{
    const znCBrushPtr brush(new znCBrush());
    brush->init(pName, pTexture, pX, pY, pWidth, pHeight);
    return brush;
}

znCBrushPtr wholeBrushMake(const std::string& pName, const znITexturePtr& pTexture)
{
    return brushMake(pName, pTexture, 0, 0, pTexture->widthGet(), pTexture->heightGet());
}
} // namespace

void znCBrushManager::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znCBrushManager.");
    sInstance.reset(new znCBrushManager());
}

znCBrushManager* znCBrushManager::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.");
    return sInstance.get();
}

void znCBrushManager::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.");
    sInstance.reset();
}

znCBrushPtr znCBrushManager::brushGet(const znCResourceName& pName, bool pHitMap)
{
    const auto found = mBrushes.find(pName.nameGet());
    if (found != mBrushes.end())
        return found->second;
    const znCBrushPtr brush = wholeBrushMake(pName.nameGet(), znITexture::textureCreate(pName, pHitMap));
    mBrushes.emplace(pName.nameGet(), brush);
    return brush;
}

void znCBrushManager::texturePageLoad(const znCResourceName& pPage, bool pHitMap)
{
    const bool exists = znIFile::existsGet(pPage);
    const std::string text = znNCoreUtils::strGetFromFile(pPage);
    if (!exists)
        return;
    std::string_view rest = text;
    const std::optional<std::string_view> imageLine = cut(rest, '\n');
    if (!imageLine || imageLine->size() < 2)
    {
        ZN_LOG("Texture page %s line 1: expected the name of an image.\n", pPage.nameGet().c_str());
        return;
    }
    // The lines end in CR LF; what stands ahead of the line feed goes in any case.
    const znCResourceName image(std::string(imageLine->substr(0, imageLine->size() - 1)), pPage.typeGet());
    recordsRead(pPage, rest, znITexture::textureCreate(image, pHitMap));
}

void znCBrushManager::recordsRead(const znCResourceName& pPage, std::string_view pRecords,
                                  const znITexturePtr& pTexture)
{
    PageFaults faults(pPage);
    for (s32 line = 2; !pRecords.empty(); ++line)
    {
        const std::string_view text = pRecords.substr(0, pRecords.find('\n'));
        pRecords.remove_prefix(std::min(text.size() + 1, pRecords.size()));
        if (text.empty() || text == "\r")
            continue;
        const std::optional<PageRecord> record = recordRead(text);
        if (!record)
            faults.recordUnreadableReport(line);
        else if (!pTexture->isDefaultPicture() && !insideGet(*record, *pTexture))
            faults.rectangleOutsideReport(line, *record, *pTexture);
        else
            recordEnter(znCResourceName(std::string(record->mName), pPage.typeGet()).nameGet(), record->mNumbers,
                        pTexture);
    }
}

void znCBrushManager::recordEnter(const std::string& pName, const std::array<s32, 4>& pRectangle,
                                  const znITexturePtr& pTexture)
{
    const auto [x, y, width, height] = pRectangle;
    mBrushes[pName] = pTexture->isDefaultPicture() ? wholeBrushMake(pName, pTexture)
                                                   : brushMake(pName, pTexture, x, y, width, height);
}

void znCBrushManager::brushesClear()
{
    mBrushes.clear();
}

znCBrushPtr znCBrushManager::areaBrushCreate(const znCBrushPtr& pSource, s32 pX, s32 pY, s32 pWidth, s32 pHeight)
{
    return brushMake("Area created from other brush.", pSource != nullptr ? pSource->textureGet() : nullptr, pX, pY,
                     pWidth, pHeight);
}

znCBrushPtr znCBrushManager::alpha8BrushCreate(const znCBrushPtr& pSource)
{
    const znCBrush none;
    const znCBrush& source = pSource != nullptr ? *pSource : none;
    const znITexturePtr texture = znITexture::alpha8TextureCreate(source.textureGet(), source.xGet(), source.yGet(),
                                                                  source.widthGet(), source.heightGet());
    return brushMake("Alpha8 brush created from hitmap.", texture, 0, 0, texture->widthGet(), texture->heightGet());
}
