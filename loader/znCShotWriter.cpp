#include "loader/znCShotWriter.h"

#include "loader/znNReport.h"
#include "loader/znNStdio.h"

#include <cerrno>
#include <cstring>
#include <memory>
#include <spng.h>

namespace
{
struct ContextFree
{
    void operator()(spng_ctx* pContext) const { spng_ctx_free(pContext); }
};

std::vector<u8> alphaDrop(const std::vector<u8>& pPixels)
{
    std::vector<u8> result(pPixels.size() / 4 * 3);
    for (size_t i = 0; i < pPixels.size() / 4; ++i)
        std::memcpy(&result[3 * i], &pPixels[4 * i], 3);
    return result;
}

// 0, or spng's number of what went wrong.
int encode(std::FILE* pFile, s32 pWidth, s32 pHeight, const std::vector<u8>& pPixels)
{
    const std::unique_ptr<spng_ctx, ContextFree> context(spng_ctx_new(SPNG_CTX_ENCODER));
    if (context == nullptr)
        return SPNG_EMEM;
    spng_ihdr header = {};
    header.width = static_cast<u32>(pWidth);
    header.height = static_cast<u32>(pHeight);
    header.bit_depth = 8;
    header.color_type = SPNG_COLOR_TYPE_TRUECOLOR;
    int error = spng_set_png_file(context.get(), pFile);
    if (error == 0)
        error = spng_set_ihdr(context.get(), &header);
    if (error == 0)
        error = spng_encode_image(context.get(), pPixels.data(), pPixels.size(), SPNG_FMT_PNG, SPNG_ENCODE_FINALIZE);
    return error;
}
} // namespace

bool znCShotWriter::folderSet(const std::filesystem::path& pFolder, std::string& pError)
{
    std::error_code error;
    std::filesystem::create_directories(pFolder, error);
    if (!std::filesystem::is_directory(pFolder, error))
    {
        pError = "cannot make the folder " + pFolder.string();
        return false;
    }
    mFolder = pFolder;
    return true;
}

bool znCShotWriter::shotWrite(const std::string& pName, s32 pWidth, s32 pHeight, const std::vector<u8>& pPixels) const
{
    const std::string path = mFolder / (pName + ".png");
    const znNStdio::File file(std::fopen(path.c_str(), "wbe"));
    std::string wrong = file == nullptr ? std::strerror(errno) : "";
    if (file != nullptr)
    {
        const int error = encode(file.get(), pWidth, pHeight, alphaDrop(pPixels));
        if (error != 0)
            wrong = spng_strerror(error);
        else if (std::fflush(file.get()) != 0)
            wrong = std::strerror(errno);
    }
    if (!wrong.empty())
        znNReport::lineWrite("cannot write %s: %s", path.c_str(), wrong.c_str());
    return wrong.empty();
}
