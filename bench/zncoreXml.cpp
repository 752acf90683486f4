// Reading a 2 MB file of the kind that animations are: beside pugixml, which sets the pace of such readers, and beside
// tinyxml2. All three start from the same bytes in memory and end with a tree; ours goes through the platform's files,
// too. The walk reads every attribute through the public interface.

#include "tests/support/znCTestPlatform.h"
#include "zncore/xml/znIXmlParser.h"
#include "zncore/znCResourceName.h"
#include <benchmark/benchmark.h>
#include <cstdio>
#include <pugixml.hpp>
#include <tinyxml2.h>

namespace
{
constexpr std::string::size_type FILE_SIZE = 2 << 20;

std::string fileGet()
{
    std::string text =
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<!-- generated -->\r\n<sequence name=\"lamp\">\r\n";
    text += "  <framelist>\r\n";
    char line[200];
    for (s32 i = 0; text.size() < FILE_SIZE / 2; ++i)
    {
        std::snprintf(line, sizeof line,
                      "    <frame x=\"%d\" y=\"%d\" w=\"64\" h=\"48\" regx=\"32\" regy=\"%d\" xform=\"1 0 0 1 %d 0\" "
                      "alpha=\"0.5\"/>\r\n",
                      i % 2048, i / 32, i % 48, i % 7);
        text += line;
    }
    text += "  </framelist>\r\n  <timeline name=\"main\" frametime=\"100\">\r\n";
    for (s32 i = 0; text.size() < FILE_SIZE - 64; ++i)
    {
        std::snprintf(line, sizeof line,
                      i % 50 != 0 ? "    <key frame=\"%d\" time=\"40\"/>\r\n"
                                  : "    <key lua=\"PlaySound(&apos;audio/sfx/lamp%d.wav&apos;);\"></key>\r\n",
                      i);
        text += line;
    }
    return text + "  </timeline>\r\n</sequence>\r\n";
}

void XmlParse_ours(benchmark::State& pState)
{
    znCTestPlatform platform;
    platform.mFiles.fileSet("lamp.xml", fileGet());
    const znCResourceName name("lamp.xml", znCResourceName::GAME_DATA);
    for (auto _ : pState)
    {
        const boost::shared_ptr<znIXmlParser> parser = znIXmlParser::create();
        if (parser->parse(name) != znIXmlParser::SUCCESS)
            pState.SkipWithError("not parsed");
    }
}

void XmlParse_reference(benchmark::State& pState)
{
    const std::string text = fileGet();
    for (auto _ : pState)
    {
        pugi::xml_document document;
        if (!document.load_buffer(text.data(), text.size()))
            pState.SkipWithError("not parsed");
    }
}

void XmlParseTinyxml2_ours(benchmark::State& pState)
{
    XmlParse_ours(pState);
}

void XmlParseTinyxml2_reference(benchmark::State& pState)
{
    const std::string text = fileGet();
    for (auto _ : pState)
    {
        tinyxml2::XMLDocument document;
        if (document.Parse(text.data(), text.size()) != tinyxml2::XML_SUCCESS)
            pState.SkipWithError("not parsed");
    }
}

s64 walk(const boost::shared_ptr<znIXmlNode>& pNode)
{
    s64 sum = 0;
    const auto attributesEnd = pNode->attributesEnd();
    for (auto attribute = pNode->attributesBegin(); attribute != attributesEnd; ++attribute)
        sum += (*attribute)->s32ValueGet();
    const auto childrenEnd = pNode->childrenEnd();
    for (auto child = pNode->childrenBegin(); child != childrenEnd; ++child)
        sum += walk(*child);
    return sum;
}

void XmlWalk_ours(benchmark::State& pState)
{
    znCTestPlatform platform;
    platform.mFiles.fileSet("lamp.xml", fileGet());
    const boost::shared_ptr<znIXmlParser> parser = znIXmlParser::create();
    parser->parse(znCResourceName("lamp.xml", znCResourceName::GAME_DATA));
    for (auto _ : pState)
        benchmark::DoNotOptimize(walk(parser->rootGet()));
}

BENCHMARK(XmlParse_ours)->Unit(benchmark::kMillisecond);
BENCHMARK(XmlParse_reference)->Unit(benchmark::kMillisecond);
BENCHMARK(XmlParseTinyxml2_ours)->Unit(benchmark::kMillisecond);
BENCHMARK(XmlParseTinyxml2_reference)->Unit(benchmark::kMillisecond);
BENCHMARK(XmlWalk_ours)->Unit(benchmark::kMillisecond);
} // namespace

BENCHMARK_MAIN();
