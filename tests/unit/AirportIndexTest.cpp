// AirportIndexTest.cpp - files, entries and the tree of places.
#include "bgl/AirportIndex.h"

#include <gtest/gtest.h>

namespace {

using bgl::library;
using bgl::Place;

class AirportIndex : public testing::Test {
protected:
    AirportIndex() { library = {}; }
    ~AirportIndex() override { library = {}; }

    static void Add(const char* country, const char* state, const char* city, const char* ident) {
        bgl::AddAirport(country, state, city, "Field", ident, 0);
    }
    static void Build() {
        for (int step = 0; step < bgl::kTreeSteps; ++step) bgl::BuildPlacesStep(step);
    }
    // "Name(IDENT IDENT)[children]", the whole tree as one text.
    static std::string TextOf(uint32_t number) {
        const Place& place = library.places[number];
        std::string text = std::string(place.name) + '(';
        const std::vector<uint32_t> airports = bgl::AirportsOf(place);
        for (const uint32_t airport : airports) text += std::string(library.airports[airport].ident) + ' ';
        if (!airports.empty()) text.pop_back();
        text += ")[";
        for (const uint32_t child : place.children) text += TextOf(child);
        return text + ']';
    }
};

TEST_F(AirportIndex, AirportsHangUnderCountryStateAndCity) {
    Add("United States", "Washington", "Seattle", "KSEA");
    Add("United States", "Alaska", "Nome", "PAOM");
    Add("United States", "Washington", "Seattle", "KBFI");
    Build();
    EXPECT_EQ(TextOf(0), "()[United States()[Alaska()[Nome(PAOM)[]]Washington()[Seattle(KSEA KBFI)[]]]]");
}

TEST_F(AirportIndex, LevelsThatAFileDoesNotNameAreLeftOut) {
    Add("Germany", "", "Frankfurt", "EDDF");
    Add("Monaco", "", "", "LNMC");
    Add("", "", "Somewhere", "AAAA");
    Build();
    EXPECT_EQ(TextOf(0), "()[Germany()[Frankfurt(EDDF)[]]Monaco(LNMC)[]Somewhere(AAAA)[]]");
}

TEST_F(AirportIndex, AirportsWithoutAnyPlaceAreStillInTheTree) {
    Add("", "", "", "AAAA");
    Add(" ", "", "", "BBBB");
    Build();
    EXPECT_EQ(TextOf(0), "()[(no place given)(AAAA BBBB)[]]");
}

TEST_F(AirportIndex, SpellingsThatDifferInCaseOrBlanksAreOnePlace) {
    Add("United States", "Washington", "", "KSEA");
    Add("UNITED STATES ", "washington", "", "KBFI");
    Add("\xC5land", "", "", "EFMA");
    Add("\xE5LAND", "", "", "EFXX");
    Build();
    EXPECT_EQ(TextOf(0), "()[United States()[Washington(KSEA KBFI)[]]\xC5land(EFMA EFXX)[]]");
}

TEST_F(AirportIndex, OneNameUnderTwoParentsIsTwoPlaces) {
    Add("Canada", "Ontario", "London", "CYXU");
    Add("United Kingdom", "", "London", "EGLL");
    Build();
    EXPECT_EQ(TextOf(0), "()[Canada()[Ontario()[London(CYXU)[]]]United Kingdom()[London(EGLL)[]]]");
}

TEST_F(AirportIndex, TheNineStepsTogetherTakeEveryAirportOnce) {
    for (int count = 0; count <= 30; ++count) {
        library = {};
        for (int i = 0; i < count; ++i) Add("C", "", "", std::to_string(i).c_str());
        Build();
        ASSERT_EQ(library.places.size(), count == 0 ? 1u : 2u);
        EXPECT_EQ(count == 0 ? 0 : bgl::AirportsOf(library.places[1]).size(), static_cast<size_t>(count));
    }
}

TEST_F(AirportIndex, BuildingAgainStartsAnew) {
    Add("A", "", "", "AAAA");
    Build();
    library.airports.clear();
    Add("B", "", "", "BBBB");
    Build();
    EXPECT_EQ(TextOf(0), "()[B(BBBB)[]]");
}

TEST_F(AirportIndex, EntriesHoldNothingThatBreaksACacheLine) {
    bgl::AddAirport("A|B", "C\nD", "E\r\nF", std::string("G\0H", 3), "KSEAX", 7);
    const auto& entry = library.airports.at(0);
    EXPECT_EQ(entry.country, "A B");
    EXPECT_EQ(entry.state, "C D");
    EXPECT_EQ(entry.city, "E  F");
    EXPECT_EQ(entry.name, "G");
    EXPECT_EQ(entry.ident, "KSEA");
    EXPECT_EQ(entry.file, 7u);
}

TEST_F(AirportIndex, NamesStayWhereTheyAreHoweverManyFollow) {
    for (int i = 0; i < 20000; ++i) Add("Some country", "", "", std::to_string(i % 10000).c_str());
    Add(std::string(100000, 'x').c_str(), "", "", "LONG");
    for (int i = 0; i < 20000; ++i) ASSERT_EQ(library.airports[size_t(i)].ident, std::to_string(i % 10000));
    EXPECT_EQ(library.airports.back().country.size(), 100000u);
}

TEST_F(AirportIndex, TheWalkThroughTheTreeMeetsEveryAirportOnce) {
    Add("B", "", "", "1");
    Add("A", "", "Z", "2");
    Add("A", "", "", "3");
    Add("a", "", "Y", "4");
    EXPECT_TRUE(bgl::AirportsInTreeOrder().empty());
    Build();
    EXPECT_EQ(bgl::AirportsInTreeOrder(), (std::vector<uint32_t>{ 2, 3, 1, 0 }));
}

TEST_F(AirportIndex, TimesCountTwoSecondsAndWrapAt22Bits) {
    EXPECT_EQ(bgl::ScanTime(0), 0u);
    EXPECT_EQ(bgl::ScanTime(19999999), 0u);
    EXPECT_EQ(bgl::ScanTime(20000000), 1u);
    EXPECT_EQ(bgl::ScanTime(20000000ull * 0x3FFFFF), 0x3FFFFFu);
    EXPECT_EQ(bgl::ScanTime(20000000ull * 0x400000), 0u);
    EXPECT_EQ(bgl::ScanTime(20000000ull * 0x400005), 5u);
}

TEST_F(AirportIndex, OneFileHasOneNumberHoweverItsPathIsSpelled) {
    EXPECT_EQ(bgl::FileNumberOf("C:\\FS9\\a.bgl"), 0u);
    EXPECT_EQ(bgl::FileNumberOf("C:\\FS9\\b.bgl"), 1u);
    EXPECT_EQ(bgl::FileNumberOf("c:/fs9/A.BGL"), 0u);
    EXPECT_EQ(library.files.size(), 2u);
    EXPECT_EQ(library.files[0].path, "C:\\FS9\\a.bgl");
}

TEST_F(AirportIndex, APathHasOneKeyHoweverItIsSpelled) {
    const std::string key = bgl::PathKey("C:\\Fl\xC3\xBCge\\\xC3\xA9.bgl");
    for (const char* spelling :
         { "c:/FL\xC3\x9CGE/\xC3\x89.BGL", "C:\\\\Fl\xC3\xBCge\\.\\\xC3\xA9.bgl",
           "C:\\x\\..\\Fl\xC3\xBCge/\xC3\xA9.bgl", "C:\\..\\.\\Fl\xC3\xBCge\\y\\.//..\\\xC3\xA9.bgl" }) {
        EXPECT_EQ(bgl::PathKey(spelling), key) << spelling;
    }
    EXPECT_EQ(bgl::PathKey("\\\\server\\share\\\\a.bgl"), bgl::PathKey("//SERVER/share/a.bgl"));
}

TEST_F(AirportIndex, PathsOfDifferentFilesHaveDifferentKeys) {
    const char* const paths[] = { "C:\\a.bgl",
                                  "\\C:\\a.bgl",
                                  "\\\\C:\\a.bgl",
                                  "D:\\a.bgl",
                                  "C:\\a\\.bgl",
                                  "C:\\a..bgl",
                                  "C:\\\xC3\x97.bgl",
                                  "C:\\\xC3\xB7.bgl",
                                  "C:\\\xC3\x9F.bgl",
                                  "C:\\\xC3\xBF.bgl",
                                  "" };
    for (const char* a : paths) {
        for (const char* b : paths) EXPECT_EQ(bgl::PathKey(a) == bgl::PathKey(b), a == b) << a << ' ' << b;
    }
}

TEST_F(AirportIndex, ReleasingKeepsWhatWasNotedAsSaved) {
    bgl::FileNumberOf("a.bgl");
    Add("A", "", "", "AAAA");
    Build();
    bgl::NoteSavedFile("a.bgl");
    bgl::ReleaseLibrary();
    EXPECT_TRUE(library.files.empty() && library.fileOfPath.empty() && library.airports.empty());
    EXPECT_TRUE(library.places.empty());
    EXPECT_EQ(library.savedFiles.count(bgl::PathKey("A.BGL")), 1u);
}

}  // namespace
