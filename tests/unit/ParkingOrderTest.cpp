#include "dialogs/ParkingOrder.h"

#include "fakes/DialogFixture.h"

namespace {

using namespace dialogs;

class ParkingOrderTest : public DialogFixture {
protected:
    // Name code, number and type of a spot; its radius is its place in the airport.
    SceneryObject* Spot(uint32_t name, uint32_t number, uint32_t type,
                        std::initializer_list<std::string_view> codes = {}) {
        SceneryObject* spot = build::Spot({}, codes);
        As<model::ParkingSpotRecord>(spot).packed =
            static_cast<uint32_t>(codes.size()) << 24 | number << 12 | type << 8 | name;
        As<model::ParkingSpotRecord>(spot).radius = static_cast<float>(model::CountKind(model::kParkingSpot));
        return spot;
    }
    static std::vector<SceneryObject*> Sorted(ParkingKey key) {
        std::vector<ListRow> rows = ListRows(ListKind::Parking);
        SortParking(key, &rows);
        return Objects(rows);
    }
    static std::vector<SceneryObject*> Objects(const std::vector<ListRow>& rows) {
        std::vector<SceneryObject*> objects;
        for (const ListRow& row : rows) objects.push_back(row.object);
        return objects;
    }
    using Order = std::vector<SceneryObject*>;
};

TEST_F(ParkingOrderTest, NamesGoGateGateAToZParkingItsCompassPointsDockBlankThenByNumber) {
    SceneryObject *blank = Spot(0, 1, 1), *odd = Spot(63, 0, 1), *dock = Spot(11, 1, 1), *nw = Spot(9, 1, 1),
                  *north = Spot(2, 1, 1), *parking = Spot(1, 1, 1), *z = Spot(37, 1, 1), *a10 = Spot(12, 10, 1),
                  *a9 = Spot(12, 9, 1), *gate = Spot(10, 99, 1);
    EXPECT_EQ(Sorted(ParkingKey::Name), (Order{ gate, a9, a10, z, parking, north, nw, dock, odd, blank }));
}

TEST_F(ParkingOrderTest, TypesGoGatesGaCargoMilitaryUnknownThenByName) {
    SceneryObject *unknown = Spot(1, 1, 1), *combat = Spot(1, 1, 7), *milCargo = Spot(1, 2, 6), *cargo = Spot(1, 1, 5),
                  *dock = Spot(11, 1, 11), *ga = Spot(1, 1, 2), *gateB = Spot(13, 1, 8), *gateA = Spot(12, 1, 10),
                  *strange = Spot(1, 1, 15);
    EXPECT_EQ(Sorted(ParkingKey::Type), (Order{ gateA, gateB, ga, dock, cargo, combat, milCargo, unknown, strange }));
}

TEST_F(ParkingOrderTest, EachTypeHasItsRank) {
    constexpr int kRanks[] = { 4, 4, 1, 1, 1, 2, 3, 3, 0, 0, 0, 1, 4, 4, 4, 4 };
    std::vector<SceneryObject*> ofRank[5];
    for (uint32_t type = 0; type < std::size(kRanks); ++type) ofRank[kRanks[type]].push_back(Spot(10, type, type));
    Order expected;
    for (const auto& spots : ofRank) expected.insert(expected.end(), spots.begin(), spots.end());
    EXPECT_EQ(Sorted(ParkingKey::Type), expected);
}

TEST_F(ParkingOrderTest, RadiiGrow) {
    SceneryObject *a = Spot(1, 1, 1), *b = Spot(1, 1, 1), *c = Spot(1, 1, 1);
    As<model::ParkingSpotRecord>(a).radius = 20;
    As<model::ParkingSpotRecord>(b).radius = 10;
    As<model::ParkingSpotRecord>(c).radius = 20;
    EXPECT_EQ(Sorted(ParkingKey::Radius), (Order{ b, a, c }));
}

TEST_F(ParkingOrderTest, CodesAreComparedOneByOneWithoutCaseThenFewerThenNone) {
    SceneryObject *none = Spot(10, 1, 1), *klm = Spot(10, 2, 1, { "KLM" }), *jalUal = Spot(10, 3, 1, { "jal", "UAL" }),
                  *jalTwo = Spot(10, 9, 1, { "JAL" }), *jalOne = Spot(10, 5, 1, { "JAL" });
    EXPECT_EQ(Sorted(ParkingKey::Codes), (Order{ jalOne, jalTwo, jalUal, klm, none }));
}

TEST_F(ParkingOrderTest, AllFourCharactersOfACodeCount) {
    SceneryObject *d = Spot(10, 1, 1, { "ABCD" }), *c = Spot(10, 2, 1, { "abcc" }), *three = Spot(10, 3, 1, { "ABC" });
    EXPECT_EQ(Sorted(ParkingKey::Codes), (Order{ three, c, d }));
}

TEST_F(ParkingOrderTest, SortingMovesRowsOnlyAndTheOriginalOrderComesBack) {
    Spot(11, 1, 1);
    Spot(10, 1, 1);
    const auto list = build::List();
    std::vector<ListRow> rows = ListRows(ListKind::Parking);
    SortParking(ParkingKey::Name, &rows);
    EXPECT_EQ(build::List(), list);
    EXPECT_NE(Objects(rows), list);
    OriginalParkingOrder(&rows);
    EXPECT_EQ(Objects(rows), list);
}

TEST_F(ParkingOrderTest, RandomizeShufflesWithinTheTypeRanks) {
    SceneryObject *ga = Spot(1, 1, 2), *gate1 = Spot(10, 1, 8), *gate2 = Spot(10, 2, 9), *gate3 = Spot(10, 3, 10);
    std::vector<ListRow> rows = ListRows(ListKind::Parking);
    // Rows 0..3 are swapped with rows 3, 2, 1 and 0: ga-gate3, gate1-gate2, and both back again.
    uint32_t next = 3;
    RandomizeParking([&] { return next--; }, &rows);
    EXPECT_EQ(Objects(rows), (Order{ gate1, gate2, gate3, ga }));
    RandomizeParking([] { return 7u; }, &rows);  // 7 modulo 4: each with the last row in turn
    EXPECT_EQ(Objects(rows), (Order{ gate1, gate2, gate3, ga }));
    RandomizeParking([] { return 1u; }, &rows);
    EXPECT_EQ(Objects(rows), (Order{ gate2, gate1, gate3, ga }));
    rows.clear();
    RandomizeParking([] { return 0u; }, &rows);
    EXPECT_TRUE(rows.empty());
}

TEST_F(ParkingOrderTest, AnOrderStaysWhenSpotsComeAndGo) {
    SceneryObject *a = Spot(10, 1, 8), *b = Spot(10, 2, 8), *c = Spot(10, 3, 8), *d = Spot(10, 4, 8);
    const std::vector<ListRow> before = { { "", c }, { "", a }, { "", b } };
    std::vector<ListRow> rows = { { "", a }, { "", c }, { "", d } };
    OrderLike(before, &rows);
    EXPECT_EQ(Objects(rows), (Order{ c, a, d })) << "a new spot comes last";
    OrderLike({}, &rows);
    EXPECT_EQ(Objects(rows), (Order{ c, a, d }));
}

}  // namespace
