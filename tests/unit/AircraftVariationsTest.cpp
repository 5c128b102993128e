// AircraftVariationsTest.cpp - which variations are listed, with what, and how the list is sorted and searched.
#include "aircraft/Variations.h"

#include <algorithm>

#include "aircraft/ModelFile.h"
#include "fakes/AircraftFixture.h"
#include "sample/AircraftFolders.h"

namespace {

using namespace aircraft;

class AircraftVariations : public AircraftFixture {
protected:
    std::vector<Variation> List() const { return ListVariations(Simulator()); }
    std::vector<std::string> Titles() const {
        std::vector<std::string> titles;
        for (const Variation& row : List()) titles.push_back(row.title);
        return titles;
    }
};

using Titles = std::vector<std::string>;

TEST_F(AircraftVariations, AFolderOfEachNameWithItsSectionsInTheOrderOfTheirNumbers) {
    Put("Aircraft/b/Aircraft.cfg", "[fltsim.1]\ntitle=B1\n[General]\ntitle=no\n[fltsim.0]\ntitle=B0\n");
    Put("Aircraft/A/aircraft.CFG", "[FLTSIM.0]\nTitle=A0\n");
    Put("Aircraft/empty/readme.txt", "");
    Put("Aircraft/Aircraft.cfg", "[fltsim.0]\ntitle=not in a folder\n");
    Put("Aircraft/c/my_aircraft.cfg", "[fltsim.0]\ntitle=another file\n");
    EXPECT_EQ(this->Titles(), (::Titles{ "A0", "B0", "B1" }));
}

TEST_F(AircraftVariations, SectionsWithoutATitleAndOtherSectionsAreLeftOut) {
    Put("Aircraft/a/Aircraft.cfg",
        "[fltsim.0]\ntitle=\n[fltsim.1]\nsim=a\n[fltsim.x]\ntitle=X\n[fltsim.]\ntitle=Y\n[fltsim.07]\ntitle=Z\n"
        "[fltsim.-1]\ntitle=W\n[fltsim.99999999999]\ntitle=V\n[fltsim.12]\ntitle=T12\n[fltsim.3]\ntitle=T3\n");
    EXPECT_EQ(this->Titles(), (::Titles{ "T3", "T12" }));
}

TEST_F(AircraftVariations, ARowHasWhatItsSectionSays) {
    Put("Aircraft/a/Aircraft.cfg",
        "[fltsim.0]\ntitle = Title\nui_manufacturer=Boeing\nUI_Type=737\nui_variation=KLM blue\n"
        "ATC_AIRLINE=KLM\natc_parking_types=gate, ramp\natc_parking_codes= KLMX2,NWA\n");
    const std::vector<Variation> rows = List();
    ASSERT_EQ(rows.size(), 1u);
    const char* const cells[kColumns] = { "Boeing", "737", "KLM blue", "KLM", "gate, ramp", "KLMX", "" };
    for (int column = 0; column < kColumns; ++column) EXPECT_EQ(CellText(rows[0], column), cells[column]) << column;
    EXPECT_EQ(CellText(rows[0], kColumns), "");
    EXPECT_EQ(CellText(rows[0], -1), "");
}

TEST_F(AircraftVariations, TextsAreCutAtTheirLimitsBetweenCharacters) {
    std::string title;
    for (int i = 0; i < 120; ++i) title += "\xC3\xBC";
    Put("Aircraft/a/Aircraft.cfg", "[fltsim.0]\ntitle=" + title + "\natc_airline=" + std::string(200, 'A') + "\n");
    const std::vector<Variation> rows = List();
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].title, title.substr(0, 2 * kListedTitleLimit));
    EXPECT_EQ(rows[0].airline.size(), kAirlineLimit);
}

TEST_F(AircraftVariations, TheRadiusIsThatOfTheVariationsOwnModel) {
    PutModel("a/Model", "plain", 18);
    PutModel("a/model.CARGO", "freighter", 35);
    Put("Aircraft/a/Aircraft.cfg",
        "[fltsim.0]\ntitle=0\nmodel=\n[fltsim.1]\ntitle=1\nmodel=cargo\n[fltsim.2]\ntitle=2\nmodel=none\n"
        "[fltsim.3]\ntitle=3\n");
    const std::vector<Variation> rows = List();
    ASSERT_EQ(rows.size(), 4u);
    const uint32_t radii[] = { 18, 35, 0, 18 };
    for (size_t i = 0; i < 4; ++i) EXPECT_EQ(rows[i].radius, radii[i]) << i;
}

TEST_F(AircraftVariations, AModelThatIsNoneHasNoRadius) {
    const auto radius = [&](const std::string& bytes) {
        Put("m.mdl", bytes);
        return ReadRadius(Simulator() + "/m.mdl");
    };
    EXPECT_EQ(radius(Model(1)), 1u);
    EXPECT_EQ(radius(Model(200)), 200u);
    EXPECT_EQ(radius(Model(0)), 0u);
    EXPECT_EQ(radius(Model(201)), 0u);
    EXPECT_EQ(radius(Model(0x01000012)), 0u);
    EXPECT_EQ(radius(Model(18).substr(0, 32)), 18u);
    EXPECT_EQ(radius(Model(18).substr(0, 31)), 0u);
    EXPECT_EQ(radius("RIFX" + Model(18).substr(4)), 0u);
    EXPECT_EQ(radius(""), 0u);
    EXPECT_EQ(ReadRadius(Simulator() + "/missing.mdl"), 0u);
    EXPECT_EQ(ReadRadius(""), 0u);
}

TEST_F(AircraftVariations, ABrokenModelFolderHasNoRadius) {
    const auto find = [&](const std::string& config) {
        Put("Aircraft/a/Model/Model.cfg", config);
        return FindModelFile(Simulator() + "/Aircraft/a", "");
    };
    EXPECT_EQ(FindModelFile(Simulator() + "/Aircraft/a", ""), "") << "no folder";
    Put("Aircraft/a/Model/plain.MDL", Model(18));
    EXPECT_EQ(FindModelFile(Simulator() + "/Aircraft/a", ""), "") << "no Model.cfg";
    EXPECT_EQ(find(""), "");
    EXPECT_EQ(find("[models]\nnormal=\n"), "");
    EXPECT_EQ(find("[models]\nnormal=missing\n"), "");
    EXPECT_EQ(find(std::string("[models]\nnormal=plain.MDL\0x\n", 28)), "");
    EXPECT_NE(find("; x\n[Models]\n Normal = plain \ncrash=plain\n"), "");
    EXPECT_NE(find("[models]\nnormal=plain // of the year\n"), "");
    Put("Aircraft/a/Model/gone.MDL_backup", Model(18));
    EXPECT_EQ(find("[models]\nnormal=gone\n"), Simulator() + "/Aircraft/a\\Model\\gone.MDL") << "where it was";
}

TEST_F(AircraftVariations, WithoutASimulatorThereIsNothing) {
    EXPECT_TRUE(ListVariations("").empty());
    EXPECT_TRUE(ListVariations(Simulator() + "/missing").empty());
    EXPECT_TRUE(List().empty());
}

TEST_F(AircraftVariations, TheSampleAircraftAreAllListed) {
    for (const sample::MadeFile& file : sample::AircraftFiles()) {
        std::string path = file.path;
        std::replace(path.begin(), path.end(), '\\', '/');
        Put(path, { file.bytes.begin(), file.bytes.end() });
    }
    std::vector<Variation> rows = List();
    ASSERT_EQ(rows.size(), 28u);
    for (const Variation& row : rows) EXPECT_GT(row.radius, 0u) << row.title;
    SortVariations(&rows, { kRadius, true });
    EXPECT_EQ(rows.front().type, "777-300");
    EXPECT_EQ(rows.back().type, "172SP Skyhawk");
}

Variation Row(const char* manufacturer, const char* type, uint32_t radius) {
    Variation row;
    row.manufacturer = manufacturer;
    row.type = type;
    row.radius = radius;
    return row;
}

std::string Order(const std::vector<Variation>& rows) {
    std::string types;
    for (const Variation& row : rows) types += row.type;
    return types;
}

TEST(AircraftSorting, GoesWithoutRegardToCaseAndByTheNumberOfTheRadius) {
    std::vector<Variation> rows = { Row("boeing", "b", 9), Row("Airbus", "c", 20), Row("BOEING", "a", 100) };
    SortVariations(&rows, { kManufacturer, false });
    EXPECT_EQ(Order(rows), "cab");
    SortVariations(&rows, { kManufacturer, true });
    EXPECT_EQ(Order(rows), "abc");
    SortVariations(&rows, { kRadius, false });
    EXPECT_EQ(Order(rows), "bca");
    SortVariations(&rows, { kRadius, true });
    EXPECT_EQ(Order(rows), "acb");
    SortVariations(&rows, { kAirline, true });
    EXPECT_EQ(Order(rows), "cab") << "equal rows go by manufacturer and type";
}

TEST(AircraftSorting, ASecondClickOnAHeadTurnsTheOrderAround) {
    SortOrder order;
    EXPECT_EQ(order.column, kManufacturer);
    EXPECT_FALSE(order.descending);
    const std::pair<int, bool> clicks[] = {
        { kRadius, false }, { kRadius, true }, { kRadius, false }, { kRadius, true }, { kType, false }
    };
    for (const auto& [column, descending] : clicks) {
        order = OrderAfterClick(order, column);
        EXPECT_EQ(order.column, column);
        EXPECT_EQ(order.descending, descending);
    }
    EXPECT_TRUE(OrderAfterClick({ kManufacturer, false }, kManufacturer).descending);
}

TEST(AircraftFinding, FindsTheNextBeginningFromTheGivenRowAndGoesAround) {
    const std::vector<Variation> rows = { Row("Airbus", "", 9), Row("Boeing", "", 18), Row("Boeing", "", 20) };
    EXPECT_EQ(FindVariation(rows, kManufacturer, "bo", 0), 1);
    EXPECT_EQ(FindVariation(rows, kManufacturer, "bo", 2), 2);
    EXPECT_EQ(FindVariation(rows, kManufacturer, "AIR", 2), 0);
    EXPECT_EQ(FindVariation(rows, kManufacturer, "b", 3), 1);
    EXPECT_EQ(FindVariation(rows, kManufacturer, "bx", 0), -1);
    EXPECT_EQ(FindVariation(rows, kManufacturer, "boeing company", 0), -1);
    EXPECT_EQ(FindVariation(rows, kRadius, "18", -1), 1);
    EXPECT_EQ(FindVariation({}, kRadius, "1", 0), -1);
}

}  // namespace
