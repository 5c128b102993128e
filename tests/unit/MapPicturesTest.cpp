// MapPicturesTest.cpp - saving a picture of the map: what is offered, what a name means, what is written.
#include "app/MapPictures.h"

#include <gtest/gtest.h>

#include "app/AppState.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "fakes/TestLibrary.h"
#include "map/MapView.h"
#include "model/ObjectList.h"

namespace {

using app::PictureFormat;

struct MapPicturesTest : testing::Test {
    TestLibrary disk;

    void SetUp() override {
        ResetProgram();
        build::Airport("KTST");
        model::state.loaded = true;
        map::ResizeView(800, 600);
    }
    void TearDown() override { ResetProgram(); }

    std::string In(const std::string& name) const { return disk.program + "/" + name; }
    bool SaveAs(const std::string& name, size_t kind) const {
        fakeShell.pictureAnswer = { In(name), kind };
        return app::SaveMapPicture();
    }
    static app::PictureTarget Target(const std::string& path, size_t kind) {
        return app::TargetOf({ "", "KTST", app::PictureKinds(), 0 }, { path, kind });
    }
};

constexpr size_t kOnce = 0, kFourTimes = 3, kMetafile = 4;

}  // namespace

TEST_F(MapPicturesTest, FourSizesAndAMetafileAreOffered) {
    const std::vector<app::PictureKind> kinds = app::PictureKinds();
    ASSERT_EQ(kinds.size(), 5u);
    EXPECT_EQ(kinds[kOnce].label, "PNG picture, 1x (800 x 600 pixels)");
    EXPECT_EQ(kinds[kFourTimes].label, "PNG picture, 4x (3200 x 2400 pixels)");
    for (int i = 0; i < 4; ++i) EXPECT_EQ(kinds[static_cast<size_t>(i)].times, i + 1);
    EXPECT_EQ(kinds[kMetafile].label, "Enhanced metafile");
    EXPECT_EQ(kinds[kMetafile].format, PictureFormat::Metafile);
}

TEST_F(MapPicturesTest, ANameWithoutExtensionGetsThatOfTheKind) {
    EXPECT_EQ(Target("C:\\maps\\KTST", kFourTimes).path, "C:\\maps\\KTST.png");
    EXPECT_EQ(Target("C:\\maps\\KTST", kFourTimes).times, 4);
    EXPECT_EQ(Target("C:\\maps\\KTST", kMetafile).path, "C:\\maps\\KTST.emf");
    EXPECT_EQ(Target("C:\\maps\\KTST", kMetafile).format, PictureFormat::Metafile);
    EXPECT_TRUE(Target("C:\\maps\\KTST", kMetafile).renamed);
    EXPECT_EQ(Target("TV2_KTST.bgl", kOnce).path, "TV2_KTST.bgl.png") << "a scenery file is never replaced";
}

TEST_F(MapPicturesTest, TheExtensionThatIsTypedTellsTheFormat) {
    EXPECT_EQ(Target("a.emf", kFourTimes).format, PictureFormat::Metafile);
    EXPECT_EQ(Target("a.emf", kFourTimes).path, "a.emf");
    EXPECT_EQ(Target("a.png", kMetafile).format, PictureFormat::Png);
    EXPECT_EQ(Target("a.png", kMetafile).times, 1);
    EXPECT_EQ(Target("a.PNG", kFourTimes).times, 4);
    EXPECT_EQ(Target("a.PNG", kFourTimes).path, "a.PNG");
    EXPECT_FALSE(Target("a.PNG", kFourTimes).renamed);
    EXPECT_EQ(Target("a", 99).path, "a.emf") << "a kind that is not in the list is the last one";
}

TEST_F(MapPicturesTest, ThePictureIsWrittenInTheSizeThatWasChosen) {
    ASSERT_TRUE(SaveAs("map.png", kFourTimes));
    EXPECT_EQ(disk.ReadCache("map.png"), "pic");
    ASSERT_EQ(fakeShell.pngs.size(), 1u);
    EXPECT_EQ(fakeShell.pngs[0].width, 3200);
    EXPECT_EQ(fakeShell.pngs[0].times, 4);
    ASSERT_TRUE(SaveAs("map", kMetafile));
    EXPECT_EQ(disk.ReadCache("map.emf"), "pic");
    EXPECT_EQ(fakeShell.metafiles.size(), 1u);
    EXPECT_FALSE(fakeShell.waiting);
    EXPECT_EQ(fakeShell.waitCursors, 2);
    EXPECT_TRUE(fake.messages.empty());
    EXPECT_FALSE(model::state.modified);
}

TEST_F(MapPicturesTest, TheAirportsIdentifierIsProposedAndFolderAndKindAreKept) {
    SaveAs("map.png", 2);
    SaveAs("map2.png", 1);
    ASSERT_EQ(fakeShell.pictureQuestions.size(), 2u);
    EXPECT_EQ(fakeShell.pictureQuestions[0].name, "KTST");
    EXPECT_EQ(fakeShell.pictureQuestions[0].folder, "");
    EXPECT_EQ(fakeShell.pictureQuestions[0].kind, 0u);
    EXPECT_EQ(fakeShell.pictureQuestions[1].folder, disk.program + "\\");
    EXPECT_EQ(fakeShell.pictureQuestions[1].kind, 2u);
}

TEST_F(MapPicturesTest, CancelledNothingIsDrawnOrWritten) {
    EXPECT_FALSE(app::SaveMapPicture());
    EXPECT_TRUE(fakeShell.pngs.empty());
    EXPECT_TRUE(fake.messages.empty());
    EXPECT_EQ(app::state.pictureFolder, "");
}

TEST_F(MapPicturesTest, AFileThatTheDialogDidNotAskAboutIsReplacedOnlyWithConsent) {
    disk.PutCache("map.png", "old");
    fake.answers = { platform::Answer::No, platform::Answer::Yes };
    EXPECT_FALSE(SaveAs("map", kOnce));
    EXPECT_EQ(disk.ReadCache("map.png"), "old");
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, In("map.png") + " already exists.\nDo you want to replace it?");
    EXPECT_TRUE(SaveAs("map", kOnce));
    EXPECT_EQ(disk.ReadCache("map.png"), "pic");
    EXPECT_TRUE(SaveAs("map.png", kOnce)) << "the dialog itself has asked";
    EXPECT_EQ(fake.messages.size(), 2u);
}

TEST_F(MapPicturesTest, AFailureIsToldAndLeavesTheOldFile) {
    EXPECT_FALSE(SaveAs("missing/map.png", kOnce));
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, "ERROR: Unable to create picture file");
    disk.PutCache("map.png", "old");
    fakeShell.pictureFails = true;
    EXPECT_FALSE(SaveAs("map.png", kOnce));
    ASSERT_EQ(fake.messages.size(), 2u);
    EXPECT_EQ(fake.messages[1].text, "ERROR: There is not enough memory for a picture of this size.");
    EXPECT_EQ(disk.ReadCache("map.png"), "old");
    EXPECT_FALSE(fakeShell.waiting);
}

TEST_F(MapPicturesTest, WithoutAnAirportNothingIsAsked) {
    model::state.loaded = false;
    EXPECT_FALSE(app::SaveMapPicture());
    EXPECT_TRUE(fakeShell.pictureQuestions.empty());
}
