#include "platform/Files.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "fakes/TemporaryFolder.h"

namespace {

using namespace platform;
namespace fs = std::filesystem;
using Bytes = std::vector<uint8_t>;

class FilesTest : public testing::Test {
protected:
    std::string In(const std::u8string& name) const { return Utf8Path(folder / name); }
    void Put(const std::u8string& name, const std::string& text) const {
        std::ofstream(folder / name, std::ios::binary) << text;
    }
    Bytes Read(const std::string& path) const {
        Bytes bytes;
        EXPECT_TRUE(ReadWholeFile(path, 1 << 20, &bytes));
        return bytes;
    }
    size_t FileCount() const {
        return static_cast<size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }
    const TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
};

TEST_F(FilesTest, WhatIsWrittenReadsBack) {
    const Bytes bytes = { 0, 1, 2, 13, 10, 26, 255 };
    ASSERT_TRUE(WriteFileWhole(In(u8"a.bin"), bytes));
    EXPECT_EQ(Read(In(u8"a.bin")), bytes);
    ASSERT_TRUE(WriteFileWhole(In(u8"empty"), {}));
    EXPECT_EQ(Read(In(u8"empty")), Bytes{});
}

TEST_F(FilesTest, WritingReplacesTheOldFileAndLeavesNoSibling) {
    Put(u8"a.bgl", "a much longer old content");
    ASSERT_TRUE(WriteFileWhole(In(u8"a.bgl"), Bytes{ 1, 2 }));
    EXPECT_EQ(Read(In(u8"a.bgl")), (Bytes{ 1, 2 }));
    EXPECT_EQ(FileCount(), 1u);
}

TEST_F(FilesTest, WhatNothingHasWrittenToForMoreThanAMinuteIsLeftOver) {
    constexpr uint64_t kSecond = 10000000, kNow = 1000 * kSecond;
    EXPECT_FALSE(IsLeftOver(kNow, kNow));
    EXPECT_FALSE(IsLeftOver(kNow - 60 * kSecond, kNow));
    EXPECT_TRUE(IsLeftOver(kNow - 60 * kSecond - 1, kNow));
    EXPECT_FALSE(IsLeftOver(kNow + 1, kNow)) << "by the clock of another computer";
    EXPECT_FALSE(IsLeftOver(UINT64_MAX, kNow)) << "nor does the sum wrap";
}

TEST_F(FilesTest, WritingIntoAMissingFolderFails) {
    EXPECT_FALSE(WriteFileWhole(In(u8"no/such/a.bgl"), Bytes{ 1 }));
    EXPECT_EQ(FileCount(), 0u);
}

TEST_F(FilesTest, WritingOverAFolderFailsAndLeavesItAlone) {
    fs::create_directory(folder / "target");
    EXPECT_FALSE(WriteFileWhole(In(u8"target"), Bytes{ 1 }));
    EXPECT_TRUE(FolderExists(In(u8"target")));
    EXPECT_EQ(FileCount(), 1u);
}

TEST_F(FilesTest, WritingOverWhatIsNoFileFailsAndLeavesItAlone) {
    const std::string pipe = In(u8"pipe");
    if (std::system(("mkfifo '" + pipe + "'").c_str()) != 0) GTEST_SKIP() << "pipes have no file names here";
    EXPECT_FALSE(WriteFileWhole(pipe, Bytes{ 1 }));
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
    EXPECT_EQ(FileCount(), 1u);
}

TEST_F(FilesTest, NamesMayHoldAnyCharacter) {
    const std::string path = In(u8"Flughafen Z\u00FCrich \u6771\u4EAC #1.bgl");
    ASSERT_TRUE(WriteFileWhole(path, Bytes{ 7 }));
    EXPECT_TRUE(FileExists(path));
    EXPECT_EQ(Read(path), Bytes{ 7 });
    const auto files = ListFiles(Utf8Path(folder), ".bgl");
    ASSERT_EQ(files.size(), 1u);
    EXPECT_EQ(Utf8Path(folder) + "/" + files[0].name,
              Utf8Path(folder) + "/" + path.substr(Utf8Path(folder).size() + 1));
}

TEST_F(FilesTest, PathsMayBeFarLongerThanTwoHundredAndSixtyCharacters) {
    std::string deep = Utf8Path(folder);
    for (int level = 0; level < 8; ++level) deep += "/" + std::string(60, static_cast<char>('a' + level));
    ASSERT_TRUE(MakeFolders(deep));
    EXPECT_TRUE(FolderExists(deep));
    const std::string path = deep + "/x/../a.bgl";  // ".." counts here as elsewhere
    ASSERT_TRUE(MakeFolders(deep + "/x"));
    ASSERT_TRUE(WriteFileWhole(path, Bytes{ 1 }));
    ASSERT_TRUE(WriteFileWhole(path, Bytes{ 2 }));
    EXPECT_EQ(Read(path), Bytes{ 2 });
    ASSERT_EQ(ListFiles(deep, ".bgl").size(), 1u);
    EXPECT_EQ(ListFiles(deep, ".bgl")[0].name, "a.bgl");
    EXPECT_TRUE(DeleteOneFile(path));
    EXPECT_FALSE(FileExists(path));
}

TEST_F(FilesTest, ANameMayFillTheLimitOfTheFileSystem) {
    const std::string name = std::string(251, 'n') + ".bgl";
    ASSERT_EQ(name.size(), 255u);
    const std::string path = Utf8Path(folder) + "/" + name;
    ASSERT_TRUE(WriteFileWhole(path, Bytes{ 1 }));
    ASSERT_TRUE(WriteFileWhole(path, Bytes{ 2 }));
    EXPECT_EQ(Read(path), Bytes{ 2 });
}

// A link of that name, or a reason to skip the test.
bool MakeLink(const fs::path& target, const fs::path& link) {
    std::error_code error;
    fs::create_symlink(target, link, error);
    return !error && fs::is_symlink(link);
}

TEST_F(FilesTest, WritingToASymbolicLinkWritesWhatItLeadsTo) {
    fs::create_directories(folder / "real");
    Put(u8"real/a.bgl", "old");
    if (!MakeLink(fs::path("real") / "a.bgl", folder / "link.bgl")) GTEST_SKIP() << "no symbolic links here";
    ASSERT_TRUE(MakeLink(folder / "link.bgl", folder / "chain.bgl"));
    ASSERT_TRUE(WriteFileWhole(In(u8"chain.bgl"), Bytes{ 1, 2 }));
    EXPECT_TRUE(fs::is_symlink(folder / "chain.bgl"));
    EXPECT_TRUE(fs::is_symlink(folder / "link.bgl"));
    EXPECT_FALSE(fs::is_symlink(folder / "real" / "a.bgl"));
    EXPECT_EQ(Read(In(u8"real/a.bgl")), (Bytes{ 1, 2 }));
    EXPECT_EQ(FileCount(), 3u);
}

TEST_F(FilesTest, WritingToALinkThatLeadsToNoFileYetMakesTheFile) {
    if (!MakeLink("new.bgl", folder / "link.bgl")) GTEST_SKIP() << "no symbolic links here";
    ASSERT_TRUE(WriteFileWhole(In(u8"link.bgl"), Bytes{ 3 }));
    EXPECT_TRUE(fs::is_symlink(folder / "link.bgl"));
    EXPECT_EQ(Read(In(u8"new.bgl")), Bytes{ 3 });
}

TEST_F(FilesTest, LinksThatGoRoundInCirclesAreRefused) {
    if (!MakeLink("b", folder / "a") || !MakeLink("a", folder / "b")) GTEST_SKIP() << "no symbolic links here";
    EXPECT_FALSE(WriteFileWhole(In(u8"a"), Bytes{ 1 }));
    EXPECT_EQ(FileCount(), 2u);
    EXPECT_TRUE(fs::is_symlink(folder / "a"));
}

TEST_F(FilesTest, BothSlashesSeparate) {
    ASSERT_TRUE(MakeFolders(Utf8Path(folder) + "\\Scenery\\Namw"));
    ASSERT_TRUE(WriteFileWhole(Utf8Path(folder) + "/Scenery\\Namw/a.bgl", Bytes{ 1 }));
    EXPECT_TRUE(FileExists(Utf8Path(folder) + "\\Scenery/Namw\\a.bgl"));
    EXPECT_TRUE(fs::exists(folder / "Scenery" / "Namw" / "a.bgl"));
}

TEST_F(FilesTest, OpeningAMissingFileOrAFolderFails) {
    EXPECT_EQ(OpenForReading(In(u8"missing")), nullptr);
    EXPECT_EQ(OpenForReading(Utf8Path(folder)), nullptr);
    EXPECT_EQ(OpenForReading(""), nullptr);
}

TEST_F(FilesTest, ReadAtNeverReadsPastTheEnd) {
    Put(u8"a", "0123456789");
    const FileHandle file = OpenForReading(In(u8"a"));
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(FileSize(file.get()), 10u);
    char buffer[16] = {};
    EXPECT_EQ(ReadAt(file.get(), 2, buffer, 3), 3u);
    EXPECT_STREQ(buffer, "234");
    EXPECT_EQ(ReadAt(file.get(), 8, buffer, 16), 2u);
    EXPECT_EQ(ReadAt(file.get(), 10, buffer, 1), 0u);
    EXPECT_EQ(ReadAt(file.get(), 1000000, buffer, 1), 0u);
    EXPECT_EQ(ReadAt(file.get(), uint64_t{ 1 } << 62, buffer, 1), 0u);
    EXPECT_EQ(ReadAt(file.get(), 0, buffer, 0), 0u);
}

TEST_F(FilesTest, AnOpenFileMayBeRenamedAndWrittenMeanwhile) {
    Put(u8"a", "old");
    const FileHandle file = OpenForReading(In(u8"a"));
    fs::rename(folder / "a", folder / "b");
    EXPECT_FALSE(FileExists(In(u8"a")));
    std::ofstream(folder / "b", std::ios::binary | std::ios::app) << "er";
    char buffer[8] = {};
    EXPECT_EQ(ReadAt(file.get(), 0, buffer, 7), 5u);
    EXPECT_STREQ(buffer, "older");
}

TEST_F(FilesTest, AFileAboveTheLimitIsRefused) {
    Put(u8"a", "12345");
    Bytes bytes = { 9 };
    EXPECT_TRUE(ReadWholeFile(In(u8"a"), 5, &bytes));
    EXPECT_EQ(bytes.size(), 5u);
    EXPECT_FALSE(ReadWholeFile(In(u8"a"), 4, &bytes));
    EXPECT_TRUE(bytes.empty());
    EXPECT_FALSE(ReadWholeFile(In(u8"missing"), 4, &bytes));
}

TEST_F(FilesTest, ListingFiltersByExtensionAndSortsWithoutRegardToCase) {
    for (const char8_t* name : { u8"b.bgl", u8"A.BGL", u8"c.Bgl", u8"d.txt", u8"bgl", u8"e.bgl2" }) Put(name, "xyz");
    fs::create_directory(folder / "folder.bgl");
    const auto files = ListFiles(Utf8Path(folder), ".bgl");
    ASSERT_EQ(files.size(), 3u);
    EXPECT_EQ(files[0].name, "A.BGL");
    EXPECT_EQ(files[1].name, "b.bgl");
    EXPECT_EQ(files[2].name, "c.Bgl");
    EXPECT_EQ(files[0].size, 3u);
    EXPECT_TRUE(ListFiles(In(u8"missing"), ".bgl").empty());
}

TEST_F(FilesTest, FoldersAreListedAndSortedWithoutRegardToCase) {
    for (const char8_t* name : { u8"b747", u8"A320", u8"Z\u00FCrich" }) fs::create_directory(folder / name);
    Put(u8"c172", "a file");
    EXPECT_EQ(ListFolders(Utf8Path(folder)), (std::vector<std::string>{ "A320", "b747", "Z\xC3\xBCrich" }));
    EXPECT_TRUE(ListFolders(In(u8"missing")).empty());
    EXPECT_TRUE(ListFolders(In(u8"c172")).empty());
    EXPECT_TRUE(ListFolders("").empty());
}

TEST_F(FilesTest, WriteTimesAreFileTimes) {
    Put(u8"a.bgl", "x");
    const uint64_t time = ListFiles(Utf8Path(folder), ".bgl").at(0).writeTime;
    constexpr uint64_t kYear2020 = 132223104000000000, kYear2100 = 157469184000000000;
    EXPECT_GT(time, kYear2020);
    EXPECT_LT(time, kYear2100);
}

TEST_F(FilesTest, FilesAndFoldersAreToldApart) {
    Put(u8"a", "x");
    EXPECT_TRUE(FileExists(In(u8"a")));
    EXPECT_FALSE(FolderExists(In(u8"a")));
    EXPECT_TRUE(FolderExists(Utf8Path(folder)));
    EXPECT_FALSE(FileExists(Utf8Path(folder)));
    EXPECT_FALSE(FileExists(In(u8"b")));
    EXPECT_FALSE(FolderExists(In(u8"b")));
}

TEST_F(FilesTest, AnEntryIsFoundHoweverTheDiskSpellsIt) {
    fs::create_directories(folder / "SCENERY");
    Put(u8"scenery.CFG", "x");
    const std::string path = Utf8Path(folder);
    EXPECT_TRUE(FolderExists(platform::SpelledPath(path, "scenery")));
    EXPECT_TRUE(FileExists(platform::SpelledPath(path, "Scenery.cfg")));
    fs::create_directories(folder / "scenery");
    EXPECT_EQ(platform::SpelledPath(path, "scenery"), path + "\\scenery");
    EXPECT_EQ(platform::SpelledPath(path, "none"), path + "\\none");
    EXPECT_EQ(platform::SpelledPath(path + "\\none", "a"), path + "\\none\\a");
}

TEST_F(FilesTest, DeletingAMissingFileCountsAsDone) {
    Put(u8"a", "x");
    EXPECT_TRUE(DeleteOneFile(In(u8"a")));
    EXPECT_FALSE(FileExists(In(u8"a")));
    EXPECT_TRUE(DeleteOneFile(In(u8"a")));
    EXPECT_FALSE(DeleteOneFile(Utf8Path(folder)));
}

TEST_F(FilesTest, MakingFoldersMakesThoseAboveAndAcceptsWhatIsThere) {
    EXPECT_TRUE(MakeFolders(In(u8"x/y/z")));
    EXPECT_TRUE(FolderExists(In(u8"x/y/z")));
    EXPECT_TRUE(MakeFolders(In(u8"x/y/z")));
    EXPECT_TRUE(MakeFolders(In(u8"x/y/")));
    Put(u8"file", "x");
    EXPECT_FALSE(MakeFolders(In(u8"file")));
    EXPECT_FALSE(MakeFolders(In(u8"file/below")));
}

TEST_F(FilesTest, AHeldFileIsHeldOnceUntilItIsGivenBack) {
    platform::FileHandle first = platform::HoldFile(In(u8"lock"));
    ASSERT_TRUE(first);
    EXPECT_FALSE(platform::HoldFile(In(u8"lock")));
    EXPECT_TRUE(platform::HoldFile(In(u8"other")));
    first.reset();
    EXPECT_TRUE(platform::HoldFile(In(u8"lock")));
    EXPECT_FALSE(platform::HoldFile(In(u8"missing/lock")));
    EXPECT_FALSE(platform::HoldFile(Utf8Path(folder)));
}

}  // namespace
