#include "media/impl/znNJpegDecoder.h"

#include <csetjmp>
#include <cstdio>
// jpeglib.h wants FILE and size_t from before it.
#include <jpeglib.h>
// and this one names the warnings.
#include <jerror.h>

#include "media/znCImage.h"

namespace
{
// A picture in many passes costs each of them over its whole area: a file of a few bytes must not take minutes.
constexpr int sScansMax = 100;
constexpr s64 sScanPixelsMax = s64{3} * 512 * 1024 * 1024;
constexpr long sDecoderBytesMax = 512L * 1024 * 1024;

struct ErrorManager
{
    jpeg_error_mgr mBase; // first, so that the library's pointer to it is a pointer to this
    std::jmp_buf mReturn;
    char mReason[JMSG_LENGTH_MAX];
};

struct ProgressManager
{
    jpeg_progress_mgr mBase; // first, as above
    int mScansMax;
};

[[noreturn]] void errorExit(j_common_ptr pDecoder)
{
    auto* manager = reinterpret_cast<ErrorManager*>(pDecoder->err);
    manager->mBase.format_message(pDecoder, manager->mReason);
    std::longjmp(manager->mReturn, 1);
}

// The library goes on after damage and paints something; here lost picture data is an error like any other. What is
// left are remarks about headers and stray bytes.
void messageEmit(j_common_ptr pDecoder, int pLevel)
{
    if (pLevel >= 0)
        return;
    switch (pDecoder->err->msg_code)
    {
    case JWRN_ARITH_BAD_CODE:
    case JWRN_BOGUS_PROGRESSION:
    case JWRN_HIT_MARKER:
    case JWRN_HUFF_BAD_CODE:
    case JWRN_JPEG_EOF:
    case JWRN_MUST_RESYNC:
        errorExit(pDecoder);
    default:
        break;
    }
}

void messageOutput(j_common_ptr)
{
    // The reason is logged by our caller; the library's own way is standard error.
}

void progressMonitor(j_common_ptr pDecoder)
{
    const auto* decompress = reinterpret_cast<j_decompress_ptr>(pDecoder);
    const auto* manager = reinterpret_cast<ProgressManager*>(pDecoder->progress);
    if (decompress->input_scan_number > manager->mScansMax)
    {
        pDecoder->err->msg_code = JERR_BAD_PROGRESSION;
        errorExit(pDecoder);
    }
}

int scansMaxGet(const jpeg_decompress_struct& pDecoder)
{
    const s64 pixels = static_cast<s64>(pDecoder.image_width) * pDecoder.image_height;
    const s64 scans = sScanPixelsMax / (pixels + 1);
    return scans < sScansMax ? static_cast<int>(scans) : sScansMax;
}

// Everything that an error may jump out of: no object here or below has a destructor.
bool imageDecode(jpeg_decompress_struct* pDecoder, ErrorManager* pErrors, ProgressManager* pProgress, const u8* pBytes,
                 std::size_t pSize, znCImage* pImage)
{
    if (setjmp(pErrors->mReturn) != 0)
        return false;
    jpeg_create_decompress(pDecoder);
    pDecoder->mem->max_memory_to_use = sDecoderBytesMax;
    jpeg_mem_src(pDecoder, pBytes, static_cast<unsigned long>(pSize));
    jpeg_read_header(pDecoder, TRUE);
    pDecoder->out_color_space = JCS_RGB;
    if (!pImage->create(ZN_IMAGE_RGB_888, static_cast<s32>(pDecoder->image_width),
                        static_cast<s32>(pDecoder->image_height)))
    {
        std::snprintf(pErrors->mReason, sizeof pErrors->mReason, "too large (%u,%u) or out of memory",
                      pDecoder->image_width, pDecoder->image_height);
        return false;
    }
    pProgress->mBase.progress_monitor = progressMonitor;
    pProgress->mScansMax = scansMaxGet(*pDecoder);
    pDecoder->progress = &pProgress->mBase;
    jpeg_start_decompress(pDecoder);
    const std::size_t pitch = static_cast<std::size_t>(pImage->pitchGet());
    while (pDecoder->output_scanline < pDecoder->output_height)
    {
        JSAMPROW row = pImage->pixelsGet() + pitch * pDecoder->output_scanline;
        jpeg_read_scanlines(pDecoder, &row, 1);
    }
    jpeg_finish_decompress(pDecoder);
    return true;
}
} // namespace

bool znNJpegDecoder::isJpeg(const u8* pBytes, std::size_t pSize)
{
    return pSize >= 3 && pBytes[0] == 0xFF && pBytes[1] == 0xD8 && pBytes[2] == 0xFF;
}

bool znNJpegDecoder::decode(const u8* pBytes, std::size_t pSize, znCImage* pImage, std::string* pReason)
{
    jpeg_decompress_struct decoder = {};
    ErrorManager errors = {};
    ProgressManager progress = {};
    decoder.err = jpeg_std_error(&errors.mBase);
    errors.mBase.error_exit = errorExit;
    errors.mBase.emit_message = messageEmit;
    errors.mBase.output_message = messageOutput;
    const bool decoded = imageDecode(&decoder, &errors, &progress, pBytes, pSize, pImage);
    jpeg_destroy_decompress(&decoder);
    if (!decoded)
        *pReason = std::string("JPEG: ") + errors.mReason;
    return decoded;
}
