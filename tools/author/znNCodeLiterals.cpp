#include "tools/author/znNCodeLiterals.h"

#include "tools/author/znNText.h"

namespace
{
constexpr const char* LITERALS[] = {
#include "codeLiterals.inc"
};
} // namespace

const std::set<std::string>& znNCodeLiterals::literalsGet()
{
    static const std::set<std::string> sLiterals = []
    {
        std::set<std::string> literals;
        for (const char* literal : LITERALS)
            literals.insert(znNText::lowerGet(literal));
        return literals;
    }();
    return sLiterals;
}

bool znNCodeLiterals::literalHas(const std::string& pText)
{
    return literalsGet().count(znNText::lowerGet(pText)) != 0;
}
