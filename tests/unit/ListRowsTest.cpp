#include "dialogs/ListRows.h"

#include <cstring>
#include <tuple>

#include "dialogs/NdbDialog.h"
#include "dialogs/Subject.h"
#include "fakes/DialogFixture.h"
#include "fakes/FakeShell.h"
#include "map/MapView.h"
#include "model/Links.h"

namespace {

using namespace dialogs;

class ListRowsTest : public DialogFixture {
protected:
    static std::string Row(SceneryObject* object) { return RowText(object); }

    static SceneryObject* Comm(uint16_t type, uint32_t hertz, const char* name) {
        SceneryObject* object = build::Append(model::kCommFrequency, sizeof(model::CommFrequencyRecord));
        auto& comm = As<model::CommFrequencyRecord>(object);
        comm.type = type;
        comm.frequency = hertz;
        std::strcpy(comm.name, name);
        return object;
    }
    static SceneryObject* Start(uint8_t number, uint8_t nibbles, float heading) {
        SceneryObject* object = build::Placed<model::StartLocationRecord>(model::kStartLocation, {});
        auto& start = As<model::StartLocationRecord>(object);
        start.number = number;
        start.designatorAndType = nibbles;
        start.heading = heading;
        return object;
    }
};

TEST_F(ListRowsTest, AnIlsRowTellsItsRunwayEndPartsIdentFrequencyHeadingAndName) {
    SceneryObject* object = build::Ils("ISNQ");
    auto& ils = As<model::IlsPayload>(object);
    ils.body.frequency = 110300000;
    ils.localizer = { 16, 1, 64.04F, 4 };
    std::strcpy(ils.name, "ILS/DME 16L");
    EXPECT_EQ(Row(object), "16L\tLOC\tISNQ\t110.30\t064.0\tILS/DME 16L");
    ils.body.flags = model::kHasGlideSlope | model::kHasDme;
    EXPECT_EQ(Row(object), "16L\tLOC+GP+DME\tISNQ\t110.30\t064.0\tILS/DME 16L");
    ils.localizer.runwayNumber = 0;
    EXPECT_EQ(Row(object).substr(0, 4), "\tLOC");
    SceneryObject* runway = build::Runway(34, 2);
    As<model::RunwayPayload>(runway).body.primaryIls = model::PackIdent("ISNQ");
    EXPECT_EQ(Row(object).substr(0, 4), "34R\t");
}

TEST_F(ListRowsTest, TheOtherNavaidsHaveTheirFormats) {
    SceneryObject* marker = build::Placed<model::MarkerBeaconPayload>(model::kMarkerBeacon, {});
    As<model::MarkerBeaconPayload>(marker).heading = 64;
    As<model::MarkerBeaconPayload>(marker).type = 1;
    As<model::MarkerBeaconPayload>(marker).ident = model::PackIdent("MM") << 5;
    EXPECT_EQ(Row(marker), "\tMKR\tMM\t75.0\t090.0\tMiddle");
    SceneryObject* ndb = build::Ndb();
    As<model::NdbPayload>(ndb).frequency = 224500;
    As<model::NdbPayload>(ndb).ident = model::PackIdent("BF") << 5;
    std::strcpy(As<model::NdbPayload>(ndb).name, "Boeing");
    EXPECT_EQ(Row(ndb), "\tNDB\tBF\t224.5\t\tBoeing");
    SceneryObject* vor = build::Vor();
    As<model::VorDmePayload>(vor).body.frequency = 116800000;
    As<model::VorDmePayload>(vor).body.ident = model::PackIdent("SEA") << 5;
    std::strcpy(As<model::VorDmePayload>(vor).name, "Seattle");
    const std::pair<int, const char*> types[] = { { 0x31, "VOR+DME" }, { 0x10, "DME" }, { 0x21, "VOR" }, { 0, "VOR" } };
    for (const auto& [flags, type] : types) {
        As<model::VorDmePayload>(vor).body.flags = static_cast<uint8_t>(flags);
        EXPECT_EQ(Row(vor), std::string("\t") + type + "\tSEA\t116.80\t\tSeattle");
    }
}

TEST_F(ListRowsTest, ARunwayOf3048MetresIs10000Feet) {
    SceneryObject* runway = build::Runway(16, 1);
    As<model::RunwayPayload>(runway).body.length = 3048;
    EXPECT_EQ(Row(runway), "16L/34R\t10000 ft\t148 ft");
    app::settings.metric = true;
    EXPECT_EQ(Row(runway), "16L/34R\t3048.0 m\t45.0 m");
}

TEST_F(ListRowsTest, ASpotRowTellsNameTypeRadiusAndCodes) {
    SceneryObject* spot = build::Spot({}, { "JAL", "KLM" });
    As<model::ParkingSpotRecord>(spot).packed = 2u << 24 | 7u << 12 | 8u << 8 | 12;
    As<model::ParkingSpotRecord>(spot).radius = 31;
    EXPECT_EQ(Row(spot), "Gate A  7\tGate Small\t101.7 ft\tJAL,KLM");
    app::settings.metric = true;
    EXPECT_EQ(Row(spot), "Gate A  7\tGate Small\t101.7 ft\tJAL,KLM");
    app::settings.metricParkingRadius = true;
    EXPECT_EQ(Row(spot), "Gate A  7\tGate Small\t31.0 m\tJAL,KLM");
}

TEST_F(ListRowsTest, StartsShowTheirEndAndHeadingFrequenciesTheirTypeAndName) {
    EXPECT_EQ(Row(Start(16, 0x11, 64)), "Rwy 16L\t064.0");
    EXPECT_EQ(Row(Start(2, 0x30, 359.96F)), "Helipad 2\t360.0");
    EXPECT_EQ(Row(Comm(6, 119900000, "Seattle")), "119.900\tTower\tSeattle");
    EXPECT_EQ(Row(Comm(99, 119900000, "x")), "119.900\t\tx");
}

TEST_F(ListRowsTest, DesignatorsTellHowManyLinksUseThem) {
    SceneryObject *blank = build::Designator(""), *alpha = build::Designator("A"), *beta = build::Designator("B");
    SceneryObject *a = build::Node(), *b = build::Node();
    build::Link(a, b, model::kTaxiwayLink, alpha);
    build::Link(a, b, model::kTaxiwayLink, alpha);
    build::Link(a, b, model::kTaxiwayLink, blank);
    build::Link(a, b);
    EXPECT_EQ(Row(blank), "\" \" (blank)\t1");
    EXPECT_EQ(Row(alpha), "A\t2");
    EXPECT_EQ(Row(beta), "B\t0");
}

TEST_F(ListRowsTest, EachListHasItsHeaderAndItsKindInListOrder) {
    build::Airport("KSEA");
    SceneryObject* vor = build::Vor();
    SceneryObject* first = build::Runway(16);
    SceneryObject* ils = build::Ils("IABC");
    SceneryObject* second = build::Runway(7);
    const auto rows = ListRows(ListKind::Runways);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].object, first);
    EXPECT_EQ(rows[1].object, second);
    const auto navaids = ListRows(ListKind::Navaids);
    ASSERT_EQ(navaids.size(), 2u);
    EXPECT_EQ(navaids[0].object, vor);
    EXPECT_EQ(navaids[1].object, ils);
    EXPECT_STREQ(ListHeader(ListKind::Navaids), "Rwy\tType\tIdent\tFreq\tHdg\tName or Type");
    EXPECT_STREQ(ListHeader(ListKind::Runways), "Designator\tLength\tWidth");
    EXPECT_STREQ(ListHeader(ListKind::Parking), "Name\tType\tRadius\tCodes");
    EXPECT_STREQ(ListHeader(ListKind::Starts), "Designator\tHeading");
    EXPECT_STREQ(ListHeader(ListKind::Designators), "Designator\tUsage Count");
    EXPECT_STREQ(ListHeader(ListKind::Comms), "Freq\tType\tName");
}

TEST_F(ListRowsTest, AReplacedStockNavaidGivesItsRowToTheReplacement) {
    SceneryObject* stock = build::Ndb();
    stock->flags |= model::kStock;
    As<model::NdbPayload>(stock).frequency = 350000;
    const NdbFields shown = LoadNdbFields(stock);
    NdbFields entered = shown;
    entered.name = "New";
    EXPECT_TRUE(StoreNdbFields(shown, entered, stock, &bad));
    const std::vector<ListRow> rows = ListRows(ListKind::Navaids);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].object, stock->related);
    EXPECT_EQ(RowShowing(rows, stock), 0);
    EXPECT_EQ(RowShowing(rows, rows[0].object), 0);
    EXPECT_TRUE(DeleteEntry(rows[0].object));
    EXPECT_EQ(ListRows(ListKind::Navaids)[0].object, stock);
}

TEST_F(ListRowsTest, WithoutASelectedRowAMessageSaysSo) {
    EXPECT_FALSE(DeleteEntry(nullptr));
    EXPECT_EQ(LastMessage(), "You must select an entry in the list first");
    EXPECT_FALSE(IsEntrySelected(nullptr));
}

TEST_F(ListRowsTest, AStockIlsAndTheBlankDesignatorCannotBeDeleted) {
    SceneryObject* ils = build::Ils("ISNQ");
    ils->flags |= model::kStock;
    EXPECT_FALSE(DeleteEntry(ils));
    EXPECT_EQ(LastMessage(),
              "Flight Simulator does not allow stock ILS to be deleted,\nthey can only be moved or modified.\n\n"
              "This operation has been cancelled.");
    EXPECT_FALSE(DeleteEntry(build::Designator("")));
    EXPECT_EQ(LastMessage(),
              "ERROR: You can't delete this blank designator.\n"
              "There must always be a blank designator in the list");
    EXPECT_EQ(Actions(), 0);
}

TEST_F(ListRowsTest, DeletingADesignatorInUseSaysHowManyLinksLoseIt) {
    SceneryObject* alpha = build::Designator("A");
    SceneryObject* link = build::Link(build::Node(), build::Node(), model::kTaxiwayLink, alpha);
    fake.answers = { platform::Answer::Cancel };
    EXPECT_FALSE(DeleteEntry(alpha));
    EXPECT_EQ(LastMessage(),
              "1 taxi link uses the designator \"A\".\n\nIf you delete it this link will have no designator.\n\n"
              "Do you want to proceed?");
    build::Link(build::Node(), build::Node(), model::kTaxiwayLink, alpha);
    EXPECT_TRUE(DeleteEntry(alpha));
    EXPECT_EQ(LastMessage(),
              "2 taxi links use the designator \"A\".\n\nIf you delete it these links will have no designator.\n\n"
              "Do you want to proceed?");
    EXPECT_NE(model::BlankDesignator(), nullptr);
    EXPECT_EQ(+As<model::TaxiLinkPayload>(link).designator, model::BlankDesignator());
    EXPECT_EQ(Actions(), 1);
    const size_t messages = fake.messages.size();
    EXPECT_TRUE(DeleteEntry(build::Designator("B")));
    EXPECT_EQ(fake.messages.size(), messages);
}

TEST_F(ListRowsTest, OnlyTheEntryIsDeletedWhateverElseIsSelected) {
    SceneryObject *a = build::Spot(), *b = build::Spot();
    b->flags |= model::kSelected;
    EXPECT_TRUE(DeleteEntry(a));
    EXPECT_EQ(build::List(), (std::vector<SceneryObject*>{ b }));
}

TEST_F(ListRowsTest, ASelectedRowSelectsItsObjectAndShowsItWhenItIsOutside) {
    map::ResizeView(800, 600);
    map::ResetView(build::kMiddle);
    SceneryObject *near = build::Spot({ 10, 10 }), *far = build::Spot({ 50000, 0 });
    near->flags |= model::kSelected;
    ShowEntry(far);
    EXPECT_TRUE(model::IsSelected(far));
    EXPECT_FALSE(model::IsSelected(near));
    EXPECT_EQ(map::view.centre.lon, model::PositionOf(far).lon);
    SceneryObject* designator = build::Designator("A");
    ShowEntry(designator);
    EXPECT_EQ(map::view.centre.lon, model::PositionOf(far).lon);
    EXPECT_FALSE(model::IsSelected(far));
    EXPECT_FALSE(model::IsSelected(designator)) << "the Delete key would take what nobody sees";
    map::view = {};
}

TEST_F(ListRowsTest, ARowOfAHiddenLayerShowsIt) {
    map::ResizeView(800, 600);
    map::ResetView(build::kMiddle);
    const auto layersAfter = [](SceneryObject* object) {
        map::layers = {};
        map::layers.network = false;
        ShowEntry(object);
        return std::tuple(map::layers.network, map::layers.starts, map::layers.navaids);
    };
    EXPECT_EQ(layersAfter(build::Spot()), std::tuple(true, false, false));
    EXPECT_EQ(layersAfter(Start(16, 0, 0)), std::tuple(false, true, false));
    for (SceneryObject* navaid : { build::Ndb(), build::Vor(), build::Ils("IABC"),
                                   build::Placed<model::MarkerBeaconPayload>(model::kMarkerBeacon, {}) })
        EXPECT_EQ(layersAfter(navaid), std::tuple(false, false, true));
    EXPECT_EQ(layersAfter(build::Runway(16)), std::tuple(false, false, false));
    const int before = fakeShell.stateRefreshes;
    ShowEntry(build::Spot());
    EXPECT_EQ(fakeShell.stateRefreshes, before + 1) << "the check mark of the menu follows";
    ShowEntry(build::Spot());
    EXPECT_EQ(fakeShell.stateRefreshes, before + 1);
    map::layers = {};
}

TEST_F(ListRowsTest, WhatHasNoPlaceComesBackUnselected) {
    for (SceneryObject* object : { Comm(6, 119900000, "Seattle"), build::Designator("A") }) {
        ASSERT_TRUE(DeleteEntry(object));
        model::Undo();
        ASSERT_FALSE(
            ListRows(KindOf(object) == model::kCommFrequency ? ListKind::Comms : ListKind::Designators).empty());
        EXPECT_FALSE(model::IsSelected(object)) << "the Delete key would take what nobody sees";
        EXPECT_EQ(object->flags & model::kWholeSelected, 0u);
    }
}

TEST_F(ListRowsTest, DeletingARowShowsWhatTheCommandsCanDoNow) {
    SceneryObject* alpha = build::Designator("A");
    const int before = fakeShell.stateRefreshes;
    EXPECT_TRUE(DeleteEntry(alpha));
    EXPECT_EQ(fakeShell.stateRefreshes, before + 1);
}

TEST_F(ListRowsTest, WhereARowIsGoneTheOneInItsPlaceIsSelected) {
    const std::vector<ListRow> rows = { { "a", build::Runway(16) }, { "b", build::Runway(7) } };
    EXPECT_EQ(RowToSelect(rows, rows[1].object, 0), 1);
    EXPECT_EQ(RowToSelect(rows, nullptr, 0), 0);
    EXPECT_EQ(RowToSelect(rows, nullptr, 2), 1) << "the last one is gone";
    EXPECT_EQ(RowToSelect(rows, nullptr, -1), -1);
    EXPECT_EQ(RowToSelect({}, nullptr, 0), -1);
}

TEST_F(ListRowsTest, ARowIsFoundByItsObject) {
    SceneryObject *first = build::Runway(16), *second = build::Runway(7);
    const std::vector<ListRow> rows = ListRows(ListKind::Runways);
    EXPECT_EQ(RowShowing(rows, first), 0);
    EXPECT_EQ(RowShowing(rows, second), 1);
    EXPECT_EQ(RowShowing(rows, build::Vor()), -1);
    EXPECT_EQ(RowShowing(rows, nullptr), -1);
    EXPECT_EQ(RowShowing({}, first), -1);
}

TEST_F(ListRowsTest, ARowHasACellForEachColumn) {
    using Cells = std::vector<std::string>;
    EXPECT_EQ(CellsOf("16L\tLOC\tISNQ"), (Cells{ "16L", "LOC", "ISNQ" }));
    EXPECT_EQ(CellsOf("\tNDB\t\t"), (Cells{ "", "NDB", "", "" }));
    EXPECT_EQ(CellsOf(""), (Cells{ "" }));
}

TEST_F(ListRowsTest, TypingFindsTheNextRowWithACellThatBeginsSo) {
    const std::vector<ListRow> rows = { { "16L\tLOC\tISNQ", nullptr },
                                        { "\tNDB\tBF", nullptr },
                                        { "34R\tLOC\tIBEJ", nullptr } };
    EXPECT_EQ(RowBeginningWith(rows, 0, "loc"), 0);
    EXPECT_EQ(RowBeginningWith(rows, 1, "loc"), 2);
    EXPECT_EQ(RowBeginningWith(rows, 3, "loc"), 0) << "around the end";
    EXPECT_EQ(RowBeginningWith(rows, 0, "ib"), 2);
    EXPECT_EQ(RowBeginningWith(rows, -1, "B"), 1);
    EXPECT_EQ(RowBeginningWith(rows, 0, "SNQ"), -1) << "not in the middle";
    EXPECT_EQ(RowBeginningWith({}, 0, "x"), -1);
}

TEST_F(ListRowsTest, TypingTakesOneBlankForTheBlanksOfARow) {
    const std::vector<ListRow> rows = { { "Gate D  1\tGate Small", nullptr }, { "Gate D  12\t", nullptr } };
    EXPECT_EQ(RowBeginningWith(rows, 0, "gate d 12"), 1);
    EXPECT_EQ(RowBeginningWith(rows, 1, "gate d 1"), 1);
    EXPECT_EQ(RowBeginningWith(rows, 0, "gate d  1"), 0);
    EXPECT_EQ(RowBeginningWith(rows, 0, "gated"), -1);
}

TEST_F(ListRowsTest, TypingGoesOnWithTheWordUntilThereIsAPause) {
    const std::vector<ListRow> rows = { { "Alpha", nullptr }, { "Beta", nullptr }, { "Bravo", nullptr } };
    TypedWord word;
    EXPECT_EQ(RowAfterTyping(rows, -1, "b", 5000, &word), 1);
    EXPECT_EQ(RowAfterTyping(rows, 1, "r", 6000, &word), 2);
    EXPECT_EQ(RowAfterTyping(rows, 2, "x", 6500, &word), 2) << "no row goes on so";
    EXPECT_EQ(word.text, "brx");
    EXPECT_EQ(RowAfterTyping(rows, 2, "b", 7501, &word), 1) << "a new word begins behind the selected row";
    EXPECT_EQ(RowAfterTyping(rows, 1, "e", 7502, &word), 1) << "a longer one at it";
}

TEST_F(ListRowsTest, TheClockOfTypingMayWrap) {
    const std::vector<ListRow> rows = { { "Alpha", nullptr }, { "Apron", nullptr } };
    TypedWord word;
    EXPECT_EQ(RowAfterTyping(rows, -1, "a", 0xFFFFFF00, &word), 0);
    EXPECT_EQ(RowAfterTyping(rows, 0, "p", 0x00000010, &word), 1);
}

TEST_F(ListRowsTest, ShortFrequenciesKeepTheWidthOfTheirColumn) {
    SceneryObject* vor = build::Vor();
    As<model::VorDmePayload>(vor).body.frequency = 99500000;
    EXPECT_EQ(CellsOf(Row(vor))[3], " 99.50");
    SceneryObject* ils = build::Ils("IABC");
    As<model::IlsPayload>(ils).body.frequency = 0;
    As<model::IlsPayload>(ils).body.flags = model::kHasDme;
    EXPECT_EQ(CellsOf(Row(ils))[1], "LOC+DME");
    EXPECT_EQ(CellsOf(Row(ils))[3], "  0.00");
    SceneryObject* ndb = build::Ndb();
    As<model::NdbPayload>(ndb).frequency = 50000;
    EXPECT_EQ(CellsOf(Row(ndb))[3], " 50.0");
    EXPECT_EQ(Row(Comm(0, 99500000, "")), " 99.500\t\t");
}

}  // namespace
