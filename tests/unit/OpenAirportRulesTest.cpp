// OpenAirportRulesTest.cpp - what the Open Airport dialog lists and chooses.
#include "app/OpenAirportRules.h"

#include <gtest/gtest.h>

#include "bgl/AirportIndex.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeProgress.h"
#include "fakes/FakeShell.h"
#include "fakes/TestLibrary.h"

namespace {

using app::AirportRow;
using bgl::FileKind;
using bgl::library;

class OpenAirportRules : public testing::Test {
protected:
    OpenAirportRules() { Reset(); }
    ~OpenAirportRules() override { Reset(); }

    static void Reset() {
        ResetProgram();
        fakeProgress = {};
        library = {};
        app::airportSource = {};
    }
    static uint32_t AddFile(const std::string& path, uint32_t layer, FileKind kind = FileKind::AddOn) {
        const uint32_t number = bgl::FileNumberOf(path);
        library.files[number].layer = layer;
        library.files[number].kind = kind;
        return number;
    }
    static void Add(const std::string& ident, const std::string& name, uint32_t file = 0,
                    const std::string& country = "Country") {
        bgl::AddAirport(country, "", "", name, ident, file);
    }
    static void Build() {
        for (int step = 0; step < bgl::kTreeSteps; ++step) bgl::BuildPlacesStep(step);
    }
    // "IDENT name" of each row, a superseded one in brackets.
    static std::vector<std::string> Texts(const std::vector<AirportRow>& rows) {
        std::vector<std::string> texts;
        for (const AirportRow& row : rows) {
            const std::string text = row.ident + ' ' + row.name;
            texts.push_back(row.superseded ? '(' + text + ')' : text);
        }
        return texts;
    }
    using List = std::vector<std::string>;
};

TEST_F(OpenAirportRules, SearchMatchesTheStartOfIdentifiersWithoutRegardToCase) {
    AddFile("a.bgl", 1);
    for (const char* ident : { "KSEA", "KSFO", "EKSB", "KS" }) Add(ident, ident);
    Build();
    EXPECT_EQ(Texts(app::SearchRows("ks")), (List{ "KS KS", "KSEA KSEA", "KSFO KSFO" }));
    EXPECT_EQ(Texts(app::SearchRows(" Ksea ")), List{ "KSEA KSEA" });
    EXPECT_TRUE(app::SearchRows("SEA").empty());
    EXPECT_TRUE(app::SearchRows("?").empty());
}

TEST_F(OpenAirportRules, SearchComparesFourCharacters) {
    AddFile("a.bgl", 1);
    Add("KSEA", "Seattle");
    Build();
    EXPECT_EQ(Texts(app::SearchRows("KSEATAC")), List{ "KSEA Seattle" });
}

TEST_F(OpenAirportRules, SearchForNothingFindsNothing) {
    AddFile("a.bgl", 1);
    Add("KSEA", "Seattle");
    EXPECT_TRUE(app::SearchRows("KSEA").empty()) << "no tree yet";
    Build();
    EXPECT_TRUE(app::SearchRows("").empty());
    EXPECT_TRUE(app::SearchRows("  ").empty());
}

TEST_F(OpenAirportRules, SearchGoesThroughTheWholeTree) {
    AddFile("a.bgl", 1);
    Add("KSEA", "One", 0, "United States");
    Add("KAAA", "Two", 0, "Elsewhere");
    Add("KBBB", "Three", 0, "");
    Build();
    EXPECT_EQ(app::SearchRows("K").size(), 3u);
}

TEST_F(OpenAirportRules, OnlyTheFirst200FoundAreShown) {
    AddFile("a.bgl", 1);
    for (int i = 0; i < 250; ++i) {
        const std::string number = std::to_string(1000 + i).substr(1);
        // The walk meets the countries by name; the rows are sorted afterwards.
        Add("K" + number, "Name " + std::to_string(999 - i), 0, i < 150 ? "B" : "A");
    }
    Build();
    const auto rows = app::SearchRows("K");
    ASSERT_EQ(rows.size(), 200u);
    const auto hasIdent = [&](const char* ident) {
        for (const AirportRow& row : rows) {
            if (row.ident == ident) return true;
        }
        return false;
    };
    EXPECT_TRUE(hasIdent("K150"));
    EXPECT_TRUE(hasIdent("K249"));
    EXPECT_TRUE(hasIdent("K000"));
    EXPECT_TRUE(hasIdent("K099"));
    EXPECT_FALSE(hasIdent("K100"));
    EXPECT_EQ(app::SearchRows("K00").size(), 10u);
}

TEST_F(OpenAirportRules, RowsAreSortedByNameWithoutRegardToCase) {
    AddFile("a.bgl", 1);
    Add("KAAA", "zulu");
    Add("KBBB", "Alpha");
    Add("KCCC", "MIKE");
    Add("KDDD", "\xE4rger");
    Add("KEEE", "\xC4SCH");
    Build();
    EXPECT_EQ(Texts(app::SearchRows("K")),
              (List{ "KBBB Alpha", "KCCC MIKE", "KAAA zulu", "KDDD \xC3\xA4rger", "KEEE \xC3\x84SCH" }));
}

TEST_F(OpenAirportRules, OfOneIdentifierTheHigherLayerComesFirstAndTheOthersAreGrey) {
    AddFile("low.bgl", 1, FileKind::Stock);
    AddFile("high.bgl", 9);
    AddFile("middle.bgl", 5);
    Add("KSEA", "Seattle", 0);
    Add("ksea", "Tacoma", 1);
    Add("KSEA", "Alpha", 2);
    Add("KBFI", "Boeing", 0);
    Build();
    const auto rows = app::SearchRows("K");
    EXPECT_EQ(Texts(rows), (List{ "KBFI Boeing", "ksea Tacoma", "(KSEA Alpha)", "(KSEA Seattle)" }));
    EXPECT_EQ(rows[1].layer, "9");
    EXPECT_EQ(rows[1].path, "high.bgl");
    EXPECT_EQ(rows[3].type, "Stock");
}

TEST_F(OpenAirportRules, EqualLayersSupersedeNothing) {
    AddFile("a.bgl", 5);
    AddFile("b.bgl", 5);
    Add("KSEA", "Seattle", 0);
    Add("KSEA", "Seattle", 1);
    Build();
    EXPECT_EQ(Texts(app::SearchRows("K")), (List{ "KSEA Seattle", "KSEA Seattle" }));
}

// Sorting by name or, within an identifier, by layer can go in a ring: the list must come out all the same, and
// the same whatever the order of the index.
TEST_F(OpenAirportRules, NamesAndLayersThatContradictEachOtherStillGiveOneOrder) {
    for (int turn = 0; turn < 3; ++turn) {
        library = {};
        AddFile("one.bgl", 1);
        AddFile("five.bgl", 5);
        for (int i = 0; i < 3; ++i) {
            switch ((i + turn) % 3) {
            case 0: Add("KAAA", "Beta", 0); break;
            case 1: Add("KAAA", "Zulu", 1); break;
            default: Add("KBBB", "Mike", 0); break;
            }
        }
        Build();
        EXPECT_EQ(Texts(app::SearchRows("K")), (List{ "KBBB Mike", "KAAA Zulu", "(KAAA Beta)" }));
    }
}

TEST_F(OpenAirportRules, TheTypeColumnTellsTheKindOfTheFile) {
    AddFile("a.bgl", 1, FileKind::Stock);
    AddFile("b.bgl", 2, FileKind::AddOn);
    AddFile("c.bgl", 3, FileKind::NoAirports);
    AddFile("d.bgl", 4, FileKind::NotExamined);
    for (uint32_t i = 0; i < 4; ++i) Add("K00" + std::to_string(i), std::to_string(i), i);
    Build();
    const auto rows = app::SearchRows("K");
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[0].type, "Stock");
    EXPECT_EQ(rows[1].type, "Mod");
    EXPECT_EQ(rows[2].type, "Unknwn");
    EXPECT_EQ(rows[3].type, "Unknwn");
}

TEST_F(OpenAirportRules, AnItemOfTheTreeGivesItsOwnAirports) {
    AddFile("a.bgl", 1);
    Add("LNMC", "Heliport", 0, "Monaco");
    bgl::AddAirport("Monaco", "", "Fontvieille", "Other", "LNXX", 0);
    Build();
    ASSERT_EQ(library.places.size(), 3u);
    EXPECT_TRUE(app::RowsOfPlace(0).empty());
    EXPECT_EQ(app::PlaceText(1), "Monaco");
    EXPECT_EQ(Texts(app::RowsOfPlace(1)), List{ "LNMC Heliport" });
    EXPECT_EQ(Texts(app::RowsOfPlace(2)), List{ "LNXX Other" });
}

TEST_F(OpenAirportRules, AnItemGivesAtMost200Airports) {
    AddFile("a.bgl", 1);
    for (int i = 0; i < 300; ++i) Add(std::to_string(1000 + i), "Field");
    Build();
    EXPECT_EQ(app::RowsOfPlace(1).size(), 200u);
}

TEST_F(OpenAirportRules, AnItemWithoutAirportsKeepsTheList) {
    AddFile("a.bgl", 1);
    bgl::AddAirport("Monaco", "", "Fontvieille", "Heliport", "LNMC", 0);
    Build();
    std::vector<AirportRow> rows;
    EXPECT_TRUE(app::ListPlace(2, true, "TYPED", &rows));
    EXPECT_EQ(Texts(rows), List{ "LNMC Heliport" });
    EXPECT_FALSE(app::ListPlace(1, true, "", &rows)) << "the country only holds the city";
    EXPECT_EQ(rows.size(), 1u);
}

TEST_F(OpenAirportRules, AnItemThatTheTreeSelectsByItselfDoesNotPutOutWhatIsTyped) {
    AddFile("a.bgl", 1);
    Add("KSEA", "Seattle");
    Add("KBFI", "Boeing", 0, "");
    Build();
    std::vector<AirportRow> rows = app::SearchRows("KSEA");
    EXPECT_FALSE(app::ListPlace(2, false, "KSEA", &rows));
    EXPECT_EQ(Texts(rows), List{ "KSEA Seattle" });
    EXPECT_TRUE(app::ListPlace(2, false, "", &rows));
    EXPECT_EQ(Texts(rows), List{ "KBFI Boeing" });
}

TEST_F(OpenAirportRules, TheSingleBranchOfASingleFileIsOpened) {
    EXPECT_EQ(app::LevelsToOpen(), 0u) << "no tree yet";
    AddFile("a.bgl", 1);
    bgl::AddAirport("Monaco", "Monte Carlo", "Fontvieille", "Heliport", "LNMC", 0);
    Build();
    EXPECT_EQ(app::LevelsToOpen(), 0u) << "not of the library";
    app::airportSource.fromFile = true;
    EXPECT_EQ(app::LevelsToOpen(), 3u);
    bgl::AddAirport("Monaco", "Monte Carlo", "Moneghetti", "Other", "LNXX", 0);
    Build();
    EXPECT_EQ(app::LevelsToOpen(), 2u);
    Add("KSEA", "Seattle", 0, "Country");
    Build();
    EXPECT_EQ(app::LevelsToOpen(), 0u);
}

TEST_F(OpenAirportRules, TextsAreUtf8) {
    AddFile("a.bgl", 1);
    Add("LSZH", "Z\xFCrich", 0, "\xD6sterreich");
    Build();
    EXPECT_EQ(app::PlaceText(1), "\xC3\x96sterreich");
    EXPECT_EQ(app::SearchRows("LSZH").at(0).name, "Z\xC3\xBCrich");
}

TEST_F(OpenAirportRules, OkTakesTheSelectedRow) {
    AddFile("a.bgl", 1);
    Add("KSEA", "Seattle");
    Add("KBFI", "Boeing");
    Build();
    std::vector<AirportRow> rows = app::SearchRows("K");
    const AirportRow* row = app::ChooseRow(&rows, 1, "KBFI");
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->ident, "KSEA");
}

TEST_F(OpenAirportRules, OkWithoutASelectionSearchesAndTakesTheFirstRow) {
    AddFile("a.bgl", 1);
    Add("KSEA", "Seattle");
    Add("KBFI", "Boeing");
    Build();
    std::vector<AirportRow> rows;
    const AirportRow* row = app::ChooseRow(&rows, -1, "k");
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->ident, "KBFI");
    EXPECT_EQ(rows.size(), 2u);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(OpenAirportRules, OkWithoutARowAndAMatchAsksForAnAirport) {
    AddFile("a.bgl", 1);
    Add("KSEA", "Seattle");
    Build();
    std::vector<AirportRow> rows = app::SearchRows("KSEA");
    EXPECT_EQ(app::ChooseRow(&rows, -1, ""), nullptr) << "a list without a selection is no choice";
    EXPECT_EQ(rows.size(), 1u);
    EXPECT_EQ(app::ChooseRow(&rows, -1, "EDDF"), nullptr);
    EXPECT_EQ(app::ChooseRow(&rows, 7, ""), nullptr);
    ASSERT_EQ(fake.messages.size(), 3u);
    for (const FakeMessage& message : fake.messages) EXPECT_EQ(message.text, "You must select an AIRPORT");
}

TEST_F(OpenAirportRules, TheSourceDecidesWhatIsCollected) {
    const TestLibrary disk;
    disk.Put("A", "a.bgl", MakeSceneryFile({ { "AAAA", "", "", "", "" } }));
    disk.Put("B", "b.bgl", MakeSceneryFile({ { "BBBB", "", "", "", "" } }));
    disk.PutAreas({ "A", "B" });
    EXPECT_TRUE(app::CollectAirports(disk.simulator, disk.program));
    EXPECT_EQ(library.airports.size(), 2u);
    app::airportSource.fromFile = true;
    EXPECT_FALSE(app::CollectAirports(disk.simulator, disk.program)) << "no file is chosen yet";
    EXPECT_TRUE(library.airports.empty() && fake.messages.empty());
    app::airportSource.specificFile = Utf8Path(disk.FileOf("B", "b.bgl"));
    EXPECT_TRUE(app::CollectAirports(disk.simulator, disk.program));
    EXPECT_EQ(Texts(app::SearchRows("B")), List{ "BBBB " });
    app::airportSource.specificFile += "x";
    EXPECT_FALSE(app::CollectAirports(disk.simulator, disk.program));
    EXPECT_EQ(fake.messages.size(), 1u);
}

TEST_F(OpenAirportRules, CachesThatCannotBeKeptAreTold) {
    const TestLibrary disk;
    disk.Put("A", "a.bgl", MakeSceneryFile({ { "AAAA", "", "", "", "" } }));
    disk.PutAreas({ "A" });
    app::CollectAirports(disk.simulator, disk.program);
    EXPECT_EQ(fakeShell.notice, "");
    app::CollectAirports(disk.simulator, disk.program + "\\missing\\folder");
    EXPECT_EQ(fakeShell.notice, "Tarvo may not write in its folder: the list of airports is made anew each time");
    EXPECT_EQ(library.airports.size(), 1u);
    EXPECT_TRUE(fake.messages.empty());
}

}  // namespace
