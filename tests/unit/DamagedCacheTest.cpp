// Caches that are missing, cut, foreign, or cannot be written: they are made again, and nothing is lost.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "fakes/LibraryDamageFixture.h"
#include "platform/Files.h"

namespace {

using namespace damage;

class CacheThatCannotBeKept : public LibraryDamageFixture {};

TEST_F(CacheThatCannotBeKept, ACacheThatIsBlockedDuringTheScanIsReportedAndTheNextCollectionIsRight) {
    for (const char* name : { "FileList", "AirportIndex" }) {
        const auto blocked = disk.root / "program" / name;
        disk.Put("A", "a.bgl", MakeSceneryFile({ { "OLD1", "", "", "", "" } }), 10);
        disk.PutAreas({ "A" });
        Collect();
        ASSERT_TRUE(library.report.cachesKept);
        const std::string kept = disk.ReadCache(name);
        disk.Put("A", "a.bgl", MakeSceneryFile({ { "NEW1", "", "", "", "" } }), 60);
        fakeProgress.onPosition = [&](int percent) {
            if (percent != 85) return;
            std::filesystem::remove(blocked);
            std::filesystem::create_directories(blocked / "folder");
        };
        Collect();
        fakeProgress.onPosition = nullptr;
        EXPECT_FALSE(library.report.cachesKept) << name;
        ASSERT_EQ(library.airports.size(), 1u);
        EXPECT_EQ(library.airports[0].ident, "NEW1");
        std::filesystem::remove_all(blocked);
        disk.PutCache(name, kept);
        Collect();
        ASSERT_EQ(library.airports.size(), 1u) << name;
        EXPECT_EQ(library.airports[0].ident, "NEW1") << name;
        EXPECT_TRUE(library.report.cachesKept);
    }
}

// Both caches in turn cannot be written; what the other one holds must then not be taken for the library.
TEST_F(CacheThatCannotBeKept, ACacheThatCouldNotBeWrittenLeavesNoFalseIndex) {
    for (const char* name : { "FileList", "AirportIndex" }) {
        const auto blocked = disk.root / "program" / name;
        disk.Put("A", "a.bgl", MakeSceneryFile({ { "OLD1", "", "", "", "" } }));
        disk.PutAreas({ "A" });
        Collect();
        const std::string kept = disk.ReadCache(name);
        std::filesystem::remove(blocked);
        std::filesystem::create_directories(blocked / "folder");
        disk.Put("A", "a.bgl", MakeSceneryFile({ { "NEW1", "", "", "", "" } }), 60);
        Collect();
        EXPECT_FALSE(library.report.cachesKept);
        std::filesystem::remove_all(blocked);
        disk.PutCache(name, kept);  // as a refused write leaves it
        Collect();
        ASSERT_EQ(library.airports.size(), 1u) << name;
        EXPECT_EQ(library.airports[0].ident, "NEW1") << name;
        EXPECT_TRUE(library.report.cachesKept);
        disk.Remove("A", "a.bgl");
        Collect();
    }
}

class DamagedCache : public LibraryDamageFixture, public testing::WithParamInterface<const char*> {
protected:
    DamagedCache() {
        disk.Put("A", "a.bgl", Sound());
        disk.Put("A", "b.bgl", MakeSceneryFile({ { "BBBB", "Field", "", "", "" } }));
        disk.PutAreas({ "A" });
        Collect();
    }
    void ExpectRebuilt() {
        Collect();
        EXPECT_EQ(library.report.opened, 2u);
        EXPECT_EQ(library.airports.size(), 3u);
        EXPECT_TRUE(fake.messages.empty());
        Collect();
        EXPECT_EQ(library.report.opened, 0u);
        EXPECT_EQ(library.airports.size(), 3u);
    }
};

TEST_P(DamagedCache, IsRebuiltWhenItIsMissing) {
    std::filesystem::remove(disk.root / "program" / GetParam());
    ExpectRebuilt();
}

TEST_P(DamagedCache, IsRebuiltWhenItIsCut) {
    const std::string text = disk.ReadCache(GetParam());
    for (const size_t size :
         { size_t{ 0 }, size_t{ 1 }, text.size() / 2, text.rfind('\n', text.size() - 2) + 1, text.size() - 1 }) {
        disk.PutCache(GetParam(), text.substr(0, size));
        ExpectRebuilt();
    }
}

TEST_P(DamagedCache, IsRebuiltWhenItIsForeign) {
    disk.PutCache(GetParam(), std::string(100000, '\xFF'));
    ExpectRebuilt();
    disk.PutCache(GetParam(), "A|1|0|C:\\somewhere\\else.bgl\n");
    ExpectRebuilt();
}

TEST_P(DamagedCache, IsRebuiltWhenAFolderIsInItsPlaceAndSoItCannotBeKept) {
    std::filesystem::remove(disk.root / "program" / GetParam());
    std::filesystem::create_directories(disk.root / "program" / GetParam());
    for (int i = 0; i < 2; ++i) {
        Collect();
        EXPECT_EQ(library.airports.size(), 3u);
        EXPECT_FALSE(library.report.cachesKept);
    }
}

INSTANTIATE_TEST_SUITE_P(Both, DamagedCache, testing::Values("FileList", "AirportIndex"));

}  // namespace
