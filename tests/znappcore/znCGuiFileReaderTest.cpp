#include "znappcore/components/gui/znCGuiFileReader.h"
#include "tests/znappcore/znCGuiTest.h"
#include "znappcore/components/gui/znCModalGuiComponent.h"
#include "zncore/src/znCVariableTable.h"

#include <memory>

namespace
{
// An element that remembers its settings and complains when it is told to.
class Thing : public znIGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"Thing"};

    using znIGuiComponent::znIGuiComponent;
    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override
    {
        znIGuiComponent::initialiseFromVariableTableDo(pTable);
        mSettings = pTable;
        ZN_ASSERT(!pTable.boolGet("broken"), "Broken.\n");
    }

    znCVariableTable mSettings;
};

class znCGuiFileReaderTest : public znCGuiTest
{
protected:
    void SetUp() override { znCComponentFactory::instanceGet()->componentRegister<Thing>(); }

    // An entity with what is below it as text: (key=value key=value (child) (child)).
    static std::string shapeGet(const znINode& pNode)
    {
        std::string shape = "(";
        const auto* entity = dynamic_cast<const znCEntity*>(&pNode);
        if (const Thing* thing = entity != nullptr ? entity->componentGet<Thing>() : nullptr)
            for (const auto& [key, value] : thing->mSettings.entriesGet())
                shape += key + "=" + value + " ";
        for (const znINode* child : pNode.childrenGet())
            shape += shapeGet(*child);
        if (shape.ends_with(' '))
            shape.pop_back();
        return shape + ")";
    }

    // The shape of all that a file builds on its top level; the display's own braces are left out.
    std::string built(const std::string& pText)
    {
        guiCreate(pText);
        znIDisplay* display = znIDisplay::instanceGet();
        std::string shape = shapeGet(*display);
        while (!display->childrenGet().empty())
            delete display->childrenGet().front();
        return shape.substr(1, shape.size() - 2);
    }
};
} // namespace

TEST_F(znCGuiFileReaderTest, ReadsTheForm)
{
    struct Case
    {
        const char* mText;
        const char* mBuilt;
    };
    const Case cases[] = {
        // Settings.
        {"Thing { posX=10 }", "(posx=10)"},
        {"Thing { posX = 10 }", "(posx=10)"},
        {"Thing { posX= 10 }", "(posx=10)"},
        {"Thing { posX =10 }", "(posx=10)"},
        {"Thing { a = \"a b.png\" }", "(a=a b.png)"},
        {"Thing { a = \"x # { } = y\" b = x#y }", "(a=x # { } = y b=x#y)"},
        {"Thing { a = 1 a = 2 }", "(a=2)"},
        {"Thing { a = \"\" }", "(a=)"},
        {"Thing {a = 1 }", "(a=1)"},
        {"Thing\r\n{\r\n\ta = 1\r\n}\r\n", "(a=1)"},
        {"Thing { }", "()"},
        {"Thing {}", "()"},
        {"Thing {} Thing { Thing {} }", "()(())"},
        {"# comment { \"\nThing # c\n{ # c }\n a # c\n = # c\n 1 # c\n}", "(a=1)"},
        {"\xef\xbb\xbfThing { a = 1 }", "(a=1)"},
        // Children and several on the top level.
        {"Thing { a = 1 Thing { a = 2 Thing { a = 3 } } b = 4 Thing { a = 5 } }", "(a=1 b=4 (a=2 (a=3))(a=5))"},
        {"Thing { a = 1 } Thing { a = 2 }", "(a=1)(a=2)"},
        // Styles.
        {"style Ab { a = 1 b = 2 } Thing { Ab b = 3 }", "(a=1 b=3)"},
        {"style Ab { a = 1 } Thing { a = 2 Ab }", "(a=1)"},
        {"style Ab { Thing { a = 1 } } Thing { Ab Ab }", "((a=1)(a=1))"},
        {"style Ab { Thing { a = 1 b = 2 } } Thing { Ab { lost = 1\n b = 3\n Thing { c = 4 } } d = 5 }",
         "(d=5 (a=1 b=3 (c=4)))"},
        {"style Ab { Thing { a = 1 Thing { b = 2 } } } Thing { Ab {\n c = 3 } }", "((a=1 c=3 (b=2)))"},
        {"style Ab { a = 1 } style Ab { a = 2 } Thing { Ab }", "(a=1)"},
        {"Thing { style Ab { a = 1 } Ab Thing { Ab } }", "(a=1 (a=1))"},
        {"style In { a = 1 } style Out { Thing { In b = 2 } } Thing { Out {\n c = 3\n} }", "((a=1 b=2 c=3))"},
        {"style Ab { Thing { a = \"}\" } # }\n } Thing { Ab {\n b = 2 } }", "((a=} b=2))"},
    };
    for (const Case& test : cases)
    {
        EXPECT_EQ(built(test.mText), test.mBuilt) << test.mText;
        EXPECT_EQ(errorsTake(), Lines()) << test.mText;
    }
}

TEST_F(znCGuiFileReaderTest, IncludesAnywhere)
{
    fileSet("gui/inc.txt", "style Ab { a = 1 }\nThing { b = 2 }");
    fileSet("gui/set.txt", "c = 3 # no line end");
    EXPECT_EQ(built("include \"gui/inc.txt\" Thing { Ab include gui/set.txt d = 4 }"), "(b=2)(a=1 c=3 d=4)");
    EXPECT_EQ(built("Thing { include gui/inc.txt Ab }"), "(a=1 (b=2))");
    EXPECT_EQ(built("include GUI/Inc.txt include gui/inc.txt"), "(b=2)(b=2)") << "twice in a row isn't within itself";
}

// Each fault: one line with file and line, and the rest of the screen.
TEST_F(znCGuiFileReaderTest, FaultsAreNamedAndTheRestStands)
{
    fileSet("gui/self.txt", "Thing { s = 1 }\ninclude gui/self.txt\n");
    fileSet("gui/ping.txt", "include gui/pong.txt");
    fileSet("gui/pong.txt", "\ninclude gui/ping.txt");
    fileSet("gui/open.txt", "Thing {\n  i = 1\n");
    struct Case
    {
        const char* mText;
        const char* mBuilt;
        Lines mErrors;
    };
    const std::string at = "gui/test.txt line ";
    const Case cases[] = {
        // Quotes.
        {"Thing {\n a = \"x y\n b = \"z\"\n}", "(a=x y b=z)", {at + "2: Missing '\"' in string."}},
        {"Thing {\n a = \"x\r\n b = 1\r\n}", "(a=x b=1)", {at + "2: Missing '\"' in string."}},
        // Closing braces, found by the indents.
        {"Thing {\n  Thing {\n    a = 1\n  Thing {\n    b = 2\n  }\n}\nThing {\n}",
         "((a=1)(b=2))()",
         {at + "2: Missing '}' at the end of Thing."}},
        {"Thing {\n  Thing {\n    a = 1\n}\nThing {\n}", "((a=1))()", {at + "2: Missing '}' at the end of Thing."}},
        {"Thing {\n\ta = 1\nThing {\n\tb = 2\n}", "(a=1)(b=2)", {at + "1: Missing '}' at the end of Thing."}},
        {"Thing {\n  Thing {\n    a = 1\n    }\n  }\n  b = 2\n}",
         "(b=2 (a=1))",
         {at + "4: Missing '{' before this '}'."}},
        {"style Ab {\n  Thing {\n    a = 1\n  }\nThing {\n  Ab {\n    b = 2\n  }\n}",
         "((a=1 b=2))",
         {at + "1: Missing '}' in style definition Ab."}},
        {"style Ab {\n  Thing {\n    a = 1\n}\nThing {\n  Ab {\n    b = 2\n  }\n}",
         "((a=1 b=2))",
         {at + "1: Missing '}' in style definition Ab."}},
        {"style Ab {\n  Thing {\n    a = 1\n  }\n}\nThing {\n  Ab {\n    b = 2\n  Thing {\n    c = 3\n  }\n}",
         "((a=1 b=2)(c=3))",
         {at + "7: Missing '}' at the end of Thing."}},
        // Without indents the elements end with the file.
        {"Thing { a = 1 Thing { b = 2", "(a=1 (b=2))", {at + "1: Missing '}' at the end of Thing."}},
        {"include gui/open.txt\nThing {\n  a = 1\n}",
         "(i=1 (a=1))",
         {"gui/open.txt line 1: Missing '}' at the end of Thing."}},
        // Opening braces.
        {"Thing {\n  Thing\n    a = 1\n  }\n}", "((a=1))", {at + "2: Expected '{' behind Thing."}},
        {"style Ab\n  a = 1\n}\nThing {\n}", "()", {at + "1: Missing '{' in style definition Ab."}},
        // Unknown words.
        {"Thing {\n  Thing { a = 1 }\n  Typo {\n    b = 2\n    Thing { c = 3 }\n  }\n  d = 4\n}\nThing { e = 5 }",
         "((a=1)(c=3))(e=5)",
         {at + "3: Unknown component, style or word 'Typo': the rest of Thing is left out."}},
        {"Thing {\n  image = a b.png\n  b = 2\n}\nThing { e = 5 }",
         "(image=a)(e=5)",
         {at + "2: Unknown component, style or word 'b.png': the rest of Thing is left out."}},
        {"Thing {\n  Typo{\n    b = { x\n  }\n}\n}\nThing { e = 5 }",
         "()(e=5)",
         {at + "2: Unknown component, style or word 'Typo{': the rest of Thing is left out."}},
        {"Typo {\n  a = 1\n  Thing { b = 2 }\n}\n}\nThing { }", "(b=2)()", {at + "1: Unknown component 'Typo'."}},
        // Values.
        {"Thing {\n  a =\n}\nThing { }", "()()", {at + "2: Missing value of a."}},
        {"Thing {\n  a =\n  b = 1\n c = 2\n}", "(=1 a=b c=2)", {at + "3: A key or a value is missing before '='."}},
        // Styles.
        {"style A { a = 1 } Thing { }", "()", {at + "1: Expected a longer name for a style than 'A'."}},
        {"style Ab { a = 1 }\nThing {\n  Ab {\n    b = 2\n  }\n  c = 3\n}",
         "(c=3)",
         {at + "3: Expected style Ab definition to include a '{' '}' section so values can be inserted into it."}},
        {"style Ab {\n  a = 1\n  Ab\n}\nThing { Ab }", "(a=1)", {at + "3: Ab is used within itself."}},
        {"style Ab { Thing { Cd } }\nstyle Cd { Ab {\n } }\nThing { Ab }",
         "(())",
         {at + "2: Ab is used within itself."}},
        {"style Ab { a = 1 }\nAb\nThing { }", "()", {at + "2: Unknown component 'Ab'."}}, // of use in elements only
        {"style", "", {"No GUI elements created from file gui/test.txt"}},
        // Includes.
        {"include gui/self.txt", "(s=1)", {"gui/self.txt line 2: gui/self.txt is used within itself."}},
        {"include gui/ping.txt\nThing { }", "()", {"gui/pong.txt line 2: gui/ping.txt is used within itself."}},
        {"\ninclude gui/none.txt\nThing { }", "()", {at + "2: File gui/none.txt does not exist."}},
        {"Thing { }\ninclude", "()", {at + "2: Missing name of the file to include."}},
        // What an element says about itself.
        {"Thing {\n\n  Thing { name = \"lamp\" broken = 1 }\n}",
         "((broken=1 name=lamp))",
         {"Broken.", at + "3: The faults above are those of Thing lamp."}},
        {"style Ab { Thing {\n broken = 1\n} }\nThing {\n  Ab {\n    name = \"lamp\"\n  }\n}",
         "((broken=1 name=lamp))",
         {"Broken.", at + "5: The faults above are those of Thing lamp."}},
        {"", "", {"No GUI elements created from file gui/test.txt"}},
        {"= = =\n\"\n}", "", {at + "1: Unknown component ''.", "No GUI elements created from file gui/test.txt"}},
    };
    for (const Case& test : cases)
    {
        EXPECT_EQ(built(test.mText), test.mBuilt) << test.mText;
        EXPECT_EQ(errorsTake(), test.mErrors) << test.mText;
    }
}

TEST_F(znCGuiFileReaderTest, MissingFileIsLogged)
{
    EXPECT_EQ(znIGuiComponent::guiCreateFromFile(znCResourceName("gui/none.txt", 0), nullptr, true), nullptr);
    EXPECT_EQ(errorsTake(),
              (Lines{"File gui/none.txt does not exist.", "No GUI elements created from file gui/none.txt"}));
}

TEST_F(znCGuiFileReaderTest, RubbishAndBombsCostLittle)
{
    std::string rubbish;
    u32 random = 1;
    while (rubbish.size() < (1u << 20))
        rubbish += static_cast<char>((random = random * 1103515245u + 12345u) >> 16);
    std::string bomb = "style S0 { a = 1 }\n";
    for (s32 i = 1; i < 40; ++i)
        bomb += "style S" + std::to_string(i) + " { S" + std::to_string(i - 1) + " S" + std::to_string(i - 1) + " }\n";
    std::string wide = "style S0 { " + std::string(1 << 20, ' ') + "Thing { } }\nThing {\n";
    std::string deep;
    std::string opened;
    std::string styles;
    for (s32 i = 0; i < 20000; ++i)
    {
        wide += "S0 ";
        deep += "Thing { ";
        opened += "style ab {\n";
        styles += "style ab\n";
    }
    deep += std::string(20000, '}');
    const std::pair<const char*, std::string> cases[] = {
        {"bytes", rubbish},
        {"quotes", std::string(1 << 17, '"')},
        {"equals signs", std::string(1 << 17, '=')},
        {"braces", std::string(1 << 17, '{')},
        {"an element and bytes", "Thing { a = 1 " + rubbish},
        {"an element and equals signs", "Thing { a = 1 " + std::string(1 << 17, '=')},
        {"styles twice the style before", bomb + "Thing { S39 }"},
        {"one large style many times", wide + "}"},
        {"deep", deep},
        {"open styles", opened},
        {"styles without a brace", styles},
    };
    for (const auto& [name, text] : cases)
    {
        built(text);
        const std::size_t errors = errorsTake().size();
        EXPECT_GE(errors, 1u) << name;
        EXPECT_LE(errors, static_cast<std::size_t>(znCGuiFileReader::FAULT_LIMIT) + 2) << name;
    }
}

TEST_F(znCGuiFileReaderTest, WithoutAParentTheLastElementIsTheCallers)
{
    std::unique_ptr<znCEntity> last(guiCreate("Thing { name = \"a\" }\nThing { name = \"b\" }", false, false));
    EXPECT_EQ(last->nameGet(), "b");
    EXPECT_EQ(last->parentGet(), nullptr);
    EXPECT_EQ(errorsTake(),
              (Lines{"gui/test.txt line 2: Only the last of several elements is kept where they have no parent."}));
    EXPECT_EQ(guiCreate("Thing { name = \"a\" } Thing { name = \"b\" }")->nameGet(), "b");
}

TEST_F(znCGuiFileReaderTest, OnlyTheTopLevelIsModal)
{
    znCEntity* gui = guiCreate("Thing { Thing { name = \"child\" } } znCModalGuiComponent { name = \"modal\" }", true);
    EXPECT_EQ(gui->nameGet(), "modal");
    EXPECT_NE(find<znCModalGuiComponent>(""), nullptr);
    EXPECT_EQ(find<znCModalGuiComponent>("child"), nullptr);
}

// A large file isn't copied again and again while it is read.
TEST_F(znCGuiFileReaderTest, ReadsLongFiles)
{
    std::string text = "Thing {\n";
    for (s32 i = 0; i < 5000; ++i)
        text += "  Thing {\n    name = \"element\"\n    posX = 1\n  }\n";
    EXPECT_EQ(guiCreate(text + "}")->childrenGet().size(), 5000u);
}
