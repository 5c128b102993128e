// The airports of one file that the user names.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "fakes/LibraryDamageFixture.h"
#include "platform/Files.h"

namespace {

using namespace damage;

class SpecificFile : public LibraryDamageFixture {
protected:
    std::string Path(const std::string& name) const { return Utf8Path(disk.FileOf("A", name)); }
    void ExpectRefused(const std::string& path, const std::string& message) {
        EXPECT_FALSE(bgl::CollectAirportsFromFile(path));
        ASSERT_EQ(fake.messages.size(), 1u);
        EXPECT_EQ(fake.messages[0].text, message);
        EXPECT_EQ(fake.messages[0].icon, platform::Icon::Exclamation);
        EXPECT_EQ(fakeProgress.closed, 1);
        EXPECT_TRUE(library.airports.empty() && library.files.empty());
    }
};

TEST_F(SpecificFile, ItsAirportsAloneAreTheLibrary) {
    disk.Put("A", "b.bgl", MakeSceneryFile({ { "BBBB", "", "", "", "" } }));
    disk.Put("A", "mine.bgl", Sound());
    disk.PutAreas({ "A" });
    Collect();
    fakeProgress = {};
    EXPECT_TRUE(bgl::CollectAirportsFromFile(Path("mine.bgl")));
    EXPECT_EQ(library.files.size(), 1u);
    EXPECT_EQ(library.files[0].kind, FileKind::AddOn);
    EXPECT_TRUE(library.files[0].present);
    EXPECT_EQ(library.airports.size(), 2u);
    EXPECT_GT(library.places.size(), 1u);
    EXPECT_EQ(fakeProgress.positions.front(), 30);
    EXPECT_EQ(fakeProgress.positions.back(), 100);
    EXPECT_EQ(fakeProgress.closed, 1);
}

TEST_F(SpecificFile, AStockNameCountsOnlyBelowAFolderNamedScenery) {
    disk.Put("A", "ap912345.BGL", Sound());
    EXPECT_TRUE(bgl::CollectAirportsFromFile(Path("ap912345.BGL")));
    EXPECT_EQ(library.files[0].kind, FileKind::Stock);
    const auto elsewhere = disk.root / "AP912345.bgl";
    std::filesystem::copy_file(disk.FileOf("A", "ap912345.BGL"), elsewhere);
    EXPECT_TRUE(bgl::CollectAirportsFromFile(Utf8Path(elsewhere)));
    EXPECT_EQ(library.files[0].kind, FileKind::AddOn);
    disk.Put("A", "AP91234.bgl", Sound());
    EXPECT_TRUE(bgl::CollectAirportsFromFile(Path("AP91234.bgl")));
    EXPECT_EQ(library.files[0].kind, FileKind::AddOn);
}

TEST_F(SpecificFile, OneThatCannotBeOpenedIsRefused) {
    ExpectRefused(Path("none.bgl"), "Unable to open file \"" + Path("none.bgl") + "\"");
}

TEST_F(SpecificFile, OneOfAnotherKindIsRefused) {
    disk.Put("A", "text.bgl", { 't', 'e', 'x', 't' });
    ExpectRefused(Path("text.bgl"), "Selected file  " + Path("text.bgl") + "  is not in recognised AFD format");
}

TEST_F(SpecificFile, OneWithoutAirportsIsRefused) {
    Bytes bytes = Sound();
    Set(&bytes, kNameSection + kClassOf, 1u);
    disk.Put("A", "objects.bgl", bytes);
    ExpectRefused(Path("objects.bgl"), "Selected file  " + Path("objects.bgl") + "  does not contain any airports");
}

}  // namespace
