// AutoBackupTest.cpp - the backup that a crash leaves.
#include "app/AutoBackup.h"

#include <gtest/gtest.h>

#include "bgl/SceneryFile.h"
#include "fakes/TestLibrary.h"

namespace {

class AutoBackup : public testing::Test {
protected:
    void Put(const std::vector<uint8_t>& bytes) const {
        disk.PutCache("AutoBackupTemp.bgl", { reinterpret_cast<const char*>(bytes.data()), bytes.size() });
    }
    bool Find() { return app::FindAutoBackup(disk.program, &place, &time); }

    TestLibrary disk;
    bgl::AirportPlace place;
    uint64_t time = 0;
};

TEST_F(AutoBackup, ItsAirportAndItsTimeAreFound) {
    Put(MakeSceneryFile({ { "KSEA", "", "", "", "" } }));
    ASSERT_TRUE(Find());
    EXPECT_EQ(place.path, app::AutoBackupPath(disk.program));
    EXPECT_GT(place.offset, 0u);
    EXPECT_EQ(place.size, 52u);
    EXPECT_GT(time, 0x01D0000000000000u);
}

TEST_F(AutoBackup, NoneOrADamagedOneIsIgnored) {
    EXPECT_FALSE(Find());
    std::vector<uint8_t> bytes = MakeSceneryFile({ { "KSEA", "", "", "", "" } });
    Put({});
    EXPECT_FALSE(Find());
    bytes.resize(60);
    Put(bytes);
    EXPECT_FALSE(Find());
    Put(MakeSceneryFile({}));
    EXPECT_FALSE(Find());
}

TEST_F(AutoBackup, AFolderOfThatNameIsIgnored) {
    std::filesystem::create_directories(disk.root / "program" / "AutoBackupTemp.bgl");
    EXPECT_FALSE(Find());
}

}  // namespace
