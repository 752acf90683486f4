#include "loader/znCExtensions.h"

#include "loader/znCLoader.h"

#include <algorithm>
#include <cstring>

namespace
{
znCLoader* sLoader = nullptr; // not owned

s3eResult resultOf(bool pDone)
{
    return pDone ? S3E_RESULT_SUCCESS : S3E_RESULT_ERROR;
}

s3eResult modesGet(s3eWindowMode* pModes, s32* pCount)
{
    if (pCount == nullptr)
        return S3E_RESULT_ERROR;
    const std::vector<s3eWindowMode>& modes = sLoader->windowGet().modesGet().listGet();
    const auto all = static_cast<s32>(modes.size());
    *pCount = pModes == nullptr ? all : std::clamp(*pCount, 0, all);
    if (pModes != nullptr)
        std::copy_n(modes.begin(), *pCount, pModes);
    return S3E_RESULT_SUCCESS;
}

s3eResult windowIntSet(s32 pProperty, s32 pValue)
{
    if (pProperty == S3E_WINDOW_SYSTEM_CURSOR)
        sLoader->windowGet().cursorVisibleSet(pValue != 0);
    return resultOf(pProperty == S3E_WINDOW_SYSTEM_CURSOR);
}

s3eResult windowSizeGet(s32* pWidth, s32* pHeight)
{
    *pWidth = sLoader->windowGet().surfaceWidthGet();
    *pHeight = sLoader->windowGet().surfaceHeightGet();
    return S3E_RESULT_SUCCESS;
}

s3eWindow windowTable()
{
    s3eWindow table = {};
    table.sizeSet = [](s32 pWidth, s32 pHeight)
    {
        return resultOf(sLoader->windowGet().sizeSet(pWidth, pHeight));
    };
    table.sizeGet = windowSizeGet;
    table.displayModesGet = modesGet;
    table.fullScreenSet = [](const s3eWindowMode* pMode)
    {
        return resultOf(sLoader->windowGet().fullScreenSet(pMode));
    };
    table.fullScreenGet = []() -> s32
    {
        return sLoader->windowGet().isFullScreen();
    };
    table.intGet = [](s32 pProperty) -> s32
    {
        return pProperty == S3E_WINDOW_SYSTEM_CURSOR && sLoader->windowGet().isCursorVisible();
    };
    table.intSet = windowIntSet;
    return table;
}

windowsMouseExt mouseTable()
{
    windowsMouseExt table = {};
    table.cursorVisibleSet = [](s32 pVisible) -> s32
    {
        sLoader->windowGet().cursorVisibleSet(pVisible != 0);
        return 1;
    };
    table.inClientAreaGet = []() -> s32
    {
        return sLoader->pointerGet().isInClientArea();
    };
    // This mouse has nothing to log.
    table.logCallbackRegister = [](s3eCallback, void*) {
    };
    table.logCallbackUnRegister = [](s3eCallback) {
    };
    table.logTextReturn = [](const char*) {
    };
    return table;
}

s3eDraw drawTable()
{
    s3eDraw table = {};
    table.textureSizeLimitGet = []
    {
        return sLoader->screenGet().texturesGet().sizeLimitGet();
    };
    table.textureCreate = [](s32 pFormat, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch)
    {
        return sLoader->screenGet().texturesGet().create(pFormat, pWidth, pHeight, pPixels, pPitch);
    };
    table.textureUpdate = [](u32 pTexture, s32 pX, s32 pY, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch)
    {
        return resultOf(sLoader->screenGet().texturesGet().update(pTexture, pX, pY, pWidth, pHeight, pPixels, pPitch));
    };
    table.textureFree = [](u32 pTexture)
    {
        sLoader->screenGet().texturesGet().free(pTexture);
    };
    table.deviceSizeGet = [](s32* pWidth, s32* pHeight)
    {
        sLoader->windowGet().deviceSizeGet(*pWidth, *pHeight);
    };
    table.displaySizeGet = [](s32* pWidth, s32* pHeight)
    {
        sLoader->windowGet().displaySizeGet(*pWidth, *pHeight);
    };
    table.surfaceSizeGet = [](s32* pWidth, s32* pHeight)
    {
        windowSizeGet(pWidth, pHeight);
    };
    table.clear = [](u32 pColour)
    {
        sLoader->screenGet().clear(pColour);
    };
    table.runAdd = [](const s3eDrawRun* pRun)
    {
        sLoader->screenGet().runAdd(*pRun);
    };
    table.flush = []
    {
        sLoader->screenGet().flush();
    };
    table.present = []
    {
        sLoader->screenGet().present();
    };
    table.pixelsRead = [](s32 pX, s32 pY, s32 pWidth, s32 pHeight, void* pPixels)
    {
        return resultOf(sLoader->screenGet().pixelsRead(pX, pY, pWidth, pHeight, pPixels));
    };
    return table;
}

s3eSound soundTable()
{
    s3eSound table = {};
    table.sampleCreate = [](const void* pBytes, u32 pSize)
    {
        return sLoader->samplesGet().sampleCreate(pBytes, pSize);
    };
    table.sampleFree = [](u32 pSample)
    {
        sLoader->samplesGet().sampleFree(pSample);
    };
    table.play = [](u32 pSample)
    {
        return sLoader->samplesGet().play(pSample);
    };
    table.stop = [](u32 pPlay)
    {
        sLoader->samplesGet().stop(pPlay);
    };
    table.pause = [](u32 pPlay)
    {
        sLoader->samplesGet().pauseSet(pPlay, true);
    };
    table.resume = [](u32 pPlay)
    {
        sLoader->samplesGet().pauseSet(pPlay, false);
    };
    table.volumeSet = [](s32 pVolume)
    {
        sLoader->samplesGet().volumeSet(pVolume);
    };
    table.endCallbackSet = [](s3eCallback pCallback, void* pUserData)
    {
        sLoader->samplesGet().endCallbackSet(pCallback, pUserData);
    };
    table.update = [](s32 pDeltaMs)
    {
        sLoader->samplesGet().update(pDeltaMs);
    };
    return table;
}

s3eAuthor authorTable()
{
    s3eAuthor table = {};
    table.changeCallbackSet = [](s3eCallback pCallback, void* pUserData)
    {
        sLoader->changeCallbackSet(pCallback, pUserData);
    };
    return table;
}

template <class Table>
s3eResult tableCopy(const Table& pFrom, void* pTo, u32 pBytes)
{
    if (pTo == nullptr || pBytes != sizeof(Table))
        return S3E_RESULT_ERROR;
    std::memcpy(pTo, &pFrom, sizeof(Table));
    return S3E_RESULT_SUCCESS;
}
} // namespace

void znCExtensions::loaderSet(znCLoader& pLoader)
{
    sLoader = &pLoader;
}

s3eResult znCExtensions::tableGet(u32 pHash, void* pTable, u32 pBytes)
{
    const bool isDesktop = !sLoader->windowGet().isTouch();
    if (pHash == S3E_WINDOW_HASH && isDesktop)
        return tableCopy(windowTable(), pTable, pBytes);
    if (pHash == S3E_MOUSE_HASH && isDesktop)
        return tableCopy(mouseTable(), pTable, pBytes);
    if (pHash == S3E_DRAW_HASH)
        return tableCopy(drawTable(), pTable, pBytes);
    if (pHash == S3E_SOUND_HASH)
        return tableCopy(soundTable(), pTable, pBytes);
    if (pHash == S3E_AUTHOR_HASH && sLoader->isWatching())
        return tableCopy(authorTable(), pTable, pBytes);
    return S3E_RESULT_ERROR;
}
