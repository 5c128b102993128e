// IndexCacheTest.cpp - the cache files: their lines, their limits, and what damage does.
#include "bgl/IndexCache.h"

#include <gtest/gtest.h>

#include "bgl/AirportIndex.h"

namespace {

using bgl::CacheState;
using bgl::CacheTexts;
using bgl::FileKind;
using bgl::library;

class IndexCache : public testing::Test {
protected:
    IndexCache() { library = {}; }
    ~IndexCache() override { library = {}; }

    static uint32_t AddFile(const std::string& path, FileKind kind, uint32_t layer = 1, uint32_t time = 0x1AB) {
        const uint32_t number = bgl::FileNumberOf(path);
        library.files[number].kind = kind;
        library.files[number].layer = layer;
        library.files[number].writeTime = time;
        library.files[number].present = true;
        return number;
    }
    static void AddAirport(uint32_t file, const std::string& ident, const std::string& name = "Field") {
        bgl::AddAirport("Country", "State", "City", name, ident, file);
    }
    static CacheTexts Compose() {
        for (int step = 0; step < bgl::kTreeSteps; ++step) bgl::BuildPlacesStep(step);
        return bgl::ComposeCaches();
    }
    static std::string WithoutCheckLine(const std::string& fileList) {
        return fileList.substr(fileList.find('\n') + 1);
    }
    static std::string WithCarriageReturns(std::string text) {
        for (size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 2))
            text.insert(at, 1, '\r');
        return text;
    }
    // Reads the texts as a collection does that finds every file on the disk.
    static bool ReadBack(const CacheTexts& texts) {
        library = {};
        if (bgl::ParseFileList(texts, "C:\\FS9") == CacheState::Missing) return false;
        for (bgl::SceneryFile& file : library.files) file.present = true;
        bgl::ParseAirportIndex(texts.airportIndex);
        return true;
    }
    static CacheTexts ThreeFiles() {
        AddFile("C:\\FS9\\Scenery\\Namw\\scenery\\AP915150.bgl", FileKind::Stock, 1, 0x3FFFFF);
        AddFile("C:\\FS9\\Addon\\scenery\\empty.bgl", FileKind::NoAirports, 12, 0);
        AddFile("D:\\Z\xC3\xBCrich\\scenery\\LSZH.bgl", FileKind::AddOn, 200, 0x2A);
        AddAirport(0, "KSEA", "Seattle-Tacoma Intl");
        AddAirport(2, "LSZH", "Z\xFCrich");
        AddAirport(0, "KBFI");
        return Compose();
    }
};

TEST_F(IndexCache, FilesAreLinesOfKindLayerTimeAndPath) {
    EXPECT_EQ(WithoutCheckLine(ThreeFiles().fileList),
              "S|1|3FFFFF|C:\\FS9\\Scenery\\Namw\\scenery\\AP915150.bgl\n"
              "N|12|0|C:\\FS9\\Addon\\scenery\\empty.bgl\n"
              "A|200|2A|D:\\Z\xC3\xBCrich\\scenery\\LSZH.bgl\n");
}

TEST_F(IndexCache, TheFirstLineIsOfNoKind) { EXPECT_EQ(ThreeFiles().fileList.substr(0, 2), "*|"); }

TEST_F(IndexCache, AirportsAreLinesThatEndInTheNumberOfTheirFile) {
    EXPECT_EQ(ThreeFiles().airportIndex,
              "Country|State|City|Seattle-Tacoma Intl|KSEA|0\n"
              "Country|State|City|Z\xFCrich|LSZH|2\n"
              "Country|State|City|Field|KBFI|0\n");
}

TEST_F(IndexCache, FilesThatAreGoneAreLeftOutAndTheOthersNumberedAnew) {
    ThreeFiles();
    library.files[0].present = false;
    const CacheTexts texts = Compose();
    EXPECT_EQ(WithoutCheckLine(texts.fileList),
              "N|12|0|C:\\FS9\\Addon\\scenery\\empty.bgl\nA|200|2A|D:\\Z\xC3\xBCrich\\scenery\\LSZH.bgl\n");
    EXPECT_EQ(texts.airportIndex, "Country|State|City|Z\xFCrich|LSZH|1\n");
}

TEST_F(IndexCache, WhatWasWrittenReadsBack) {
    const CacheTexts texts = ThreeFiles();
    ASSERT_TRUE(ReadBack(texts));
    ASSERT_EQ(library.files.size(), 3u);
    EXPECT_EQ(library.files[2].path, "D:\\Z\xC3\xBCrich\\scenery\\LSZH.bgl");
    EXPECT_EQ(library.files[2].kind, FileKind::AddOn);
    EXPECT_EQ(library.files[2].layer, 200u);
    EXPECT_EQ(library.files[2].writeTime, 0x2Au);
    EXPECT_EQ(library.fileOfPath.at(bgl::PathKey("d:\\Z\xC3\xBCrich\\scenery\\lszh.bgl")), 2u);
    ASSERT_EQ(library.airports.size(), 3u);
    EXPECT_EQ(library.airports[1].name, "Z\xFCrich");
    EXPECT_EQ(library.airports[1].file, 2u);
    const CacheTexts again = Compose();
    EXPECT_EQ(again.fileList, texts.fileList);
    EXPECT_EQ(again.airportIndex, texts.airportIndex);
}

TEST_F(IndexCache, ReadFilesAreNotPresentUntilTheScanFindsThem) {
    const CacheTexts texts = ThreeFiles();
    library = {};
    ASSERT_EQ(bgl::ParseFileList(texts, "C:\\FS9"), CacheState::Checked);
    for (const bgl::SceneryFile& file : library.files) EXPECT_FALSE(file.present);
    library.files[0].present = true;
    library.files[2].present = true;
    library.files[2].kind = FileKind::NotExamined;
    bgl::ParseAirportIndex(texts.airportIndex);
    ASSERT_EQ(library.airports.size(), 2u);
    EXPECT_EQ(library.airports[0].ident, "KSEA");
    EXPECT_EQ(library.airports[1].ident, "KBFI");
}

TEST_F(IndexCache, AirportsAreInTheOrderOfTheTree) {
    AddFile("C:\\a.bgl", FileKind::AddOn);
    bgl::AddAirport("Zaire", "", "", "", "ZZZZ", 0);
    bgl::AddAirport("Albania", "", "Tirana", "", "LATI", 0);
    bgl::AddAirport("Albania", "", "", "", "LAAA", 0);
    EXPECT_EQ(Compose().airportIndex, "Albania||||LAAA|0\nAlbania||Tirana||LATI|0\nZaire||||ZZZZ|0\n");
}

TEST_F(IndexCache, LinesOfUnknownKindAreIgnored) {
    CacheTexts texts = ThreeFiles();
    texts.fileList += "X|1|0|C:\\FS9\\x.bgl\nno line at all\n\nS\n";
    ASSERT_TRUE(ReadBack(texts));
    EXPECT_EQ(library.files.size(), 3u);
    EXPECT_EQ(library.airports.size(), 3u);
}

TEST_F(IndexCache, ARelativePathIsBelowTheSimulatorsFolder) {
    AddFile("Scenery\\Namw\\scenery\\AP915150.bgl", FileKind::Stock);
    ASSERT_TRUE(ReadBack(Compose()));
    EXPECT_EQ(library.files[0].path, "C:\\FS9\\Scenery\\Namw\\scenery\\AP915150.bgl");
    library = {};
    AddFile("\\Scenery\\Namw\\scenery\\AP915150.bgl", FileKind::Stock);
    ASSERT_TRUE(ReadBack(Compose()));
    EXPECT_EQ(library.files[0].path, "C:\\FS9\\Scenery\\Namw\\scenery\\AP915150.bgl");
}

TEST_F(IndexCache, LinesHaveTheirLimits) {
    EXPECT_EQ(bgl::kLongestFileLine, 262u);
    EXPECT_EQ(bgl::kLongestAirportLine, 249u);
    AddFile("C:\\a.bgl", FileKind::AddOn);
    const std::string end = "|C|D|KSEAX|0\n", line(bgl::kLongestAirportLine - end.size() - 2, 'x');
    bgl::ParseAirportIndex("A|" + line + "x" + end + "A|" + line + end);
    ASSERT_EQ(library.airports.size(), 1u) << "line feed included";
    EXPECT_EQ(library.airports[0].state, line);
    EXPECT_EQ(library.airports[0].ident, "KSEA");
}

// All or nothing: half a cache would lose airports without a word.
TEST_F(IndexCache, ACutAtAnyByteOfEitherFileMakesBothAsGoodAsMissing) {
    const CacheTexts texts = ThreeFiles();
    for (size_t size = 0; size < texts.fileList.size(); ++size) {
        EXPECT_FALSE(ReadBack({ texts.fileList.substr(0, size), texts.airportIndex })) << size;
        EXPECT_TRUE(library.files.empty());
    }
    for (size_t size = 0; size < texts.airportIndex.size(); ++size) {
        EXPECT_FALSE(ReadBack({ texts.fileList, texts.airportIndex.substr(0, size) })) << size;
        EXPECT_TRUE(library.files.empty());
    }
}

TEST_F(IndexCache, AChangedByteMakesBothAsGoodAsMissing) {
    const CacheTexts texts = ThreeFiles();
    for (size_t i = 0; i < texts.fileList.size() + texts.airportIndex.size(); ++i) {
        CacheTexts damaged = texts;
        const size_t inIndex = i - texts.fileList.size();
        char& byte = i < texts.fileList.size() ? damaged.fileList[i] : damaged.airportIndex[inIndex];
        byte = static_cast<char>(byte ^ 1);
        EXPECT_FALSE(ReadBack(damaged)) << i;
    }
}

TEST_F(IndexCache, FilesThatWereNotWrittenTogetherAreNotReadTogether) {
    const CacheTexts old = ThreeFiles();
    library.airports[0].name = "Another";
    const CacheTexts texts = Compose();
    EXPECT_FALSE(ReadBack({ old.fileList, texts.airportIndex }));
    EXPECT_FALSE(ReadBack({ texts.fileList, old.airportIndex }));
    EXPECT_TRUE(ReadBack(texts));
}

TEST_F(IndexCache, ForeignFilesAreAsGoodAsMissing) {
    EXPECT_FALSE(ReadBack({ "", "" }));
    EXPECT_FALSE(ReadBack({ std::string(5000, '\0'), std::string(5000, '|') }));
    EXPECT_FALSE(ReadBack({ "\n\n\n", "|\n" }));
}

// As the files were before they had check sums.
TEST_F(IndexCache, FilesWithoutCheckSumsAreReadForWhatTheySay) {
    const CacheTexts texts = ThreeFiles();
    for (const bool carriageReturns : { false, true }) {
        CacheTexts plain{ WithoutCheckLine(texts.fileList), texts.airportIndex };
        if (carriageReturns) plain = { WithCarriageReturns(plain.fileList), WithCarriageReturns(plain.airportIndex) };
        ASSERT_TRUE(ReadBack(plain));
        ASSERT_EQ(library.files.size(), 3u);
        EXPECT_EQ(library.files[0].kind, FileKind::Stock);
        EXPECT_EQ(library.files[2].path, "D:\\Z\xC3\xBCrich\\scenery\\LSZH.bgl");
        EXPECT_EQ(library.airports.size(), 3u);
        bgl::DoubtFilesWithoutAirports();
        EXPECT_EQ(library.files[0].kind, FileKind::Stock);
        EXPECT_EQ(library.files[1].kind, FileKind::NoAirports);
        const CacheTexts again = Compose();
        EXPECT_EQ(again.fileList, texts.fileList) << "it gets its check sums";
        EXPECT_EQ(again.airportIndex, texts.airportIndex);
    }
}

TEST_F(IndexCache, FilesWithoutCheckSumsAreKnownAsSuch) {
    const CacheTexts texts = ThreeFiles();
    const std::string list = WithoutCheckLine(texts.fileList);
    library = {};
    EXPECT_EQ(bgl::ParseFileList({ list, texts.airportIndex }, "C:\\FS9"), CacheState::Unchecked);
    library = {};
    EXPECT_EQ(bgl::ParseFileList({ list, "A|B|C|D|CUT" }, "C:\\FS9"), CacheState::Missing);
    EXPECT_TRUE(library.files.empty());
}

TEST_F(IndexCache, WithoutCheckSumsAFileWhoseAirportsAreMissingCountsAsNotExamined) {
    const std::string list = WithoutCheckLine(ThreeFiles().fileList);
    ASSERT_TRUE(ReadBack({ list, "Country|State|City|Field|KBFI|0\n" }));
    bgl::DoubtFilesWithoutAirports();
    EXPECT_EQ(library.files[0].kind, FileKind::Stock);
    EXPECT_EQ(library.files[1].kind, FileKind::NoAirports);
    EXPECT_EQ(library.files[2].kind, FileKind::NotExamined);
}

// The line has its number among the others, though it is not read.
TEST_F(IndexCache, WithoutCheckSumsALineThatIsTooLongCountsForTheNumbersOfTheOthers) {
    const std::string list =
        "S|1|0|C:\\a.bgl\nS|1|0|C:\\" + std::string(300, 'p') + ".bgl\nX|1|0|C:\\x.bgl\nA|2|1F|C:\\b.bgl\n";
    ASSERT_TRUE(ReadBack({ list, "A|B|C|D|BBBB|2\n" }));
    ASSERT_EQ(library.files.size(), 3u);
    EXPECT_EQ(library.files[1].path, "");
    EXPECT_EQ(library.files[2].path, "C:\\b.bgl");
    EXPECT_EQ(library.airports.at(0).file, 2u);
}

TEST_F(IndexCache, AnEmptyLibraryReadsBack) {
    ASSERT_TRUE(ReadBack(Compose()));
    EXPECT_TRUE(library.files.empty());
}

TEST_F(IndexCache, APathUpToTheLineLimitIsWrittenAndALongerOneIsNot) {
    const std::string head = "S|1|1AB|";
    const std::string fits(bgl::kLongestFileLine - head.size() - 1 - 3, 'p');
    AddFile("C:\\" + fits + "p", FileKind::Stock);
    AddFile("C:\\" + fits, FileKind::Stock);
    AddAirport(0, "LONG");
    AddAirport(1, "FITS");
    ASSERT_TRUE(ReadBack(Compose()));
    ASSERT_EQ(library.files.size(), 1u);
    EXPECT_EQ(library.files[0].path, "C:\\" + fits);
    ASSERT_EQ(library.airports.size(), 1u);
    EXPECT_EQ(library.airports[0].ident, "FITS");
}

TEST_F(IndexCache, AFileWithAnAirportOfTooLongNamesIsExaminedAgainAndLosesNoOtherFile) {
    AddFile("C:\\a.bgl", FileKind::Stock);
    AddFile("C:\\b.bgl", FileKind::Stock);
    AddAirport(0, "AAAA");
    AddAirport(0, "LONG", std::string(300, 'n'));
    AddAirport(1, "BBBB");
    ASSERT_TRUE(ReadBack(Compose()));
    ASSERT_EQ(library.files.size(), 2u);
    EXPECT_EQ(library.files[0].kind, FileKind::NotExamined);
    EXPECT_EQ(library.files[1].kind, FileKind::Stock);
    ASSERT_EQ(library.airports.size(), 1u);
    EXPECT_EQ(library.airports[0].ident, "BBBB");
}

TEST_F(IndexCache, EmptyNamesReadBackEmpty) {
    AddFile("C:\\a.bgl", FileKind::AddOn);
    bgl::AddAirport("", "", "", "", "", 0);
    ASSERT_TRUE(ReadBack(Compose()));
    ASSERT_EQ(library.airports.size(), 1u);
    EXPECT_EQ(library.airports[0].country.size() + library.airports[0].name.size(), 0u);
    EXPECT_EQ(library.airports[0].ident, "");
}

TEST_F(IndexCache, AirportLinesThatMakeNoSenseAreSkipped) {
    AddFile("C:\\a.bgl", FileKind::AddOn);
    bgl::ParseAirportIndex(
        "A|B|C|D|KSEA|0\nA|B|C|D|KSEA\nA|B|C|D|KSEA|x\nA|B|C|D|KSEA|1\nA|B|C|D|KSEA|0|0\n\nA|B|C|D|CUT_|0");
    ASSERT_EQ(library.airports.size(), 1u);
    EXPECT_EQ(library.airports[0].ident, "KSEA");
}

}  // namespace
