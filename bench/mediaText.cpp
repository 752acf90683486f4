// Layout of a text of 60 letters, glyphs already drawn, against the bare calls of the libraries that it rests on:
// shaping, directions and their order, line breaks. Once on one line and once wrapped to three.

#include <fstream>
#include <iterator>
#include <numeric>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <fribidi.h>
#include <hb.h>
#include <linebreak.h>

#include "media/znCGraphicsFont.h"
#include "media/znCGraphicsText.h"
#include "media/znNFonts.h"
#include "media/znNGraphics.h"
#include "tests/support/znCTestPlatform.h"
#include "zncore/znCResourceName.h"

namespace
{
const std::string sText = "Find the lamp, seven letters and the captain's brass watch.."; // 60 letters
constexpr s32 sSize = 24;

std::string fontRead()
{
    std::ifstream file(PETREL_ROOT "/data/fonts/clarendon.ttf", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void TextLayout_ours(benchmark::State& pState)
{
    znCTestPlatform platform;
    platform.mFiles.fileSet("fonts/clarendon.ttf", fontRead());
    znNGraphics::initialise();
    znNFonts::initialise();
    {
        znCGraphicsFont font;
        if (!font.load(znCResourceName("fonts/clarendon.ttf", znCResourceName::GAME_DATA), sSize))
            pState.SkipWithError("no font");
        znCGraphicsText text;
        for (auto _ : pState)
        {
            text.prepare(font, sText, static_cast<s32>(pState.range(0)), 200, 1, 1);
            benchmark::DoNotOptimize(text.uvsGet());
        }
    }
    znNFonts::terminate();
    znNGraphics::terminate();
}
BENCHMARK(TextLayout_ours)->Arg(2000)->Arg(250);

void TextLayout_reference(benchmark::State& pState)
{
    const std::string file = fontRead();
    hb_blob_t* blob =
        hb_blob_create(file.data(), static_cast<unsigned>(file.size()), HB_MEMORY_MODE_READONLY, nullptr, nullptr);
    hb_face_t* face = hb_face_create(blob, 0);
    hb_font_t* font = hb_font_create(face);
    hb_font_set_scale(font, sSize * 64, sSize * 64);
    hb_buffer_t* buffer = hb_buffer_create();
    init_linebreak();
    const std::vector<u32> letters(sText.begin(), sText.end());
    const auto count = static_cast<FriBidiStrIndex>(letters.size());
    std::vector<FriBidiCharType> types(letters.size());
    std::vector<FriBidiBracketType> brackets(letters.size());
    std::vector<FriBidiLevel> levels(letters.size());
    std::vector<FriBidiStrIndex> order(letters.size());
    std::vector<char> breaks(letters.size());
    for (auto _ : pState)
    {
        FriBidiParType direction = FRIBIDI_PAR_ON;
        fribidi_get_bidi_types(letters.data(), count, types.data());
        fribidi_get_bracket_types(letters.data(), count, types.data(), brackets.data());
        benchmark::DoNotOptimize(
            fribidi_get_par_embedding_levels_ex(types.data(), brackets.data(), count, &direction, levels.data()));
        hb_buffer_clear_contents(buffer);
        hb_buffer_add_codepoints(buffer, letters.data(), count, 0, count);
        hb_buffer_set_direction(buffer, HB_DIRECTION_LTR);
        hb_buffer_set_script(buffer, HB_SCRIPT_LATIN);
        hb_shape(font, buffer, nullptr, 0);
        set_linebreaks_utf32(letters.data(), letters.size(), "", breaks.data());
        std::iota(order.begin(), order.end(), 0);
        benchmark::DoNotOptimize(fribidi_reorder_line(FRIBIDI_FLAGS_DEFAULT, types.data(), count, 0, direction,
                                                      levels.data(), nullptr, order.data()));
        benchmark::ClobberMemory();
    }
    hb_buffer_destroy(buffer);
    hb_font_destroy(font);
    hb_face_destroy(face);
    hb_blob_destroy(blob);
}
BENCHMARK(TextLayout_reference)->Arg(2000)->Arg(250);
} // namespace

BENCHMARK_MAIN();
