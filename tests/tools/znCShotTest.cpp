#include "tools/author/znCShot.h"

#include "media/znCImage.h"
#include "tests/tools/authorData.h"
#include "tools/author/znCNewScene.h"

#include <gtest/gtest.h>

#include <algorithm>

// The real program, on a scene of its own.
TEST(znCShotTest, takesAPictureOfAnyScreen)
{
    AuthorData data;
    ASSERT_TRUE(znCNewScene(data.folderGet()).make("attic"));
    const znCShot shot(std::filesystem::path(PETREL_BIN) / "petrelmail", data.folderGet(), "800x600");
    for (const char* screen : {"attic", "gui/mainMenu/mainMenu.txt"})
    {
        ASSERT_TRUE(shot.take(screen, data.folderGet() / "shot.png", 1500)) << screen;
        const std::string bytes = data.textGet("shot.png");
        znCImage image;
        ASSERT_TRUE(image.decode(reinterpret_cast<const u8*>(bytes.data()), bytes.size(), "shot")) << screen;
        EXPECT_EQ(image.widthGet(), 800);
        EXPECT_EQ(image.heightGet(), 600);
        const u8* pixels = image.pixelsGet();
        const auto size = static_cast<std::size_t>(image.pitchGet()) * 600;
        EXPECT_TRUE(std::any_of(pixels, pixels + size, [](u8 pByte) { return pByte > 100; })) << screen << " is dark";
    }
    EXPECT_FALSE(shot.take("nowhere", data.folderGet() / "shot.png", 1500));
}
