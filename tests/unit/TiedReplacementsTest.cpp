// Which stock navaid an airport's own one takes the place of.
#include <gtest/gtest.h>

#include "bgl/AirportWriter.h"
#include "bgl/OpenAirport.h"
#include "bgl/SceneryStructure.h"
#include "fakes/StockFixture.h"

namespace {

using namespace stock;

class Replacements : public StockFixture {
protected:
    void SetUp() override {
        StockFixture::SetUp();
        OpenAt(Degrees(47.4, -122.3));
    }
    SceneryObject* Own(std::string_view ident, double east, uint32_t region = 0) {
        SceneryObject* vor = build::Vor();
        const EncodedPoint place = At(east, 0);
        SetEncodedPosition(vor, { place.latitude, place.longitude });
        PayloadAs<VorRecord>(vor).ident = PackIdent(ident) << kIdentShift | 2;
        PayloadAs<VorRecord>(vor).region = region;
        return vor;
    }
    SceneryObject* OwnMarker(std::string_view ident, double east, uint32_t region) {
        SceneryObject* marker = build::Append(kMarkerBeacon, sizeof(MarkerBeaconPayload));
        const EncodedPoint place = At(east, 0);
        SetEncodedPosition(marker, { place.latitude, place.longitude });
        PayloadAs<MarkerBeaconPayload>(marker).ident = PackIdent(ident) << kIdentShift | 2;
        PayloadAs<MarkerBeaconPayload>(marker).region = region;
        return marker;
    }
    void Load(const std::vector<TestNavaid>& stock) {
        Put("Namw", "nv9Namw0.bgl", StockFile(stock));
        bgl::LoadStockNavaids(Simulator());
    }
    static SceneryObject* Stock(uint32_t kind, int skip = 0) {
        for (SceneryObject* o = FirstOfKind(state.head, kind); o; o = NextOfKind(o, kind)) {
            if (IsStock(o) && skip-- == 0) return o;
        }
        return nullptr;
    }
};

TEST_F(Replacements, SameKindIdentifierAndRegionAreTiedBothWays) {
    SceneryObject* own = Own("SEA", 1, 7);
    Load({ { 0x13, 1, At(0, 0), "SEA", 7 } });
    ASSERT_NE(Stock(kVorDme), nullptr);
    EXPECT_EQ(own->related, Stock(kVorDme));
    EXPECT_EQ(Stock(kVorDme)->related, own);
    EXPECT_TRUE(IsReplacedStock(Stock(kVorDme)));
}

TEST_F(Replacements, OtherKindIdentifierOrRegionIsNot) {
    const SceneryObject* own = Own("SEA", 1, 7);
    Load({ { 0x13, 1, At(0, 0), "SEB", 7 }, { 0x13, 1, At(0, 0), "SEA", 8 }, { 0x17, 0, At(0, 0), "SEA", 7 } });
    EXPECT_EQ(own->related, nullptr);
    for (int i = 0; i < 2; ++i) EXPECT_EQ(Stock(kVorDme, i)->related, nullptr);
    EXPECT_EQ(Stock(kNdb)->related, nullptr);
}

TEST_F(Replacements, LowBitsOfTheIdentDoNotCount) {
    SceneryObject* own = Own("SEA", 1);
    PayloadAs<VorRecord>(own).ident &= ~kIdentLowBits;
    Load({ { 0x13, 1, At(0, 0), "SEA" } });
    EXPECT_EQ(own->related, Stock(kVorDme));
}

TEST_F(Replacements, OfSeveralTheNearestIsMeantAndEachServesOnce) {
    const SceneryObject *west = Own("SEA", -1), *east = Own("SEA", 2), *third = Own("SEA", 0);
    Load({ { 0x13, 1, At(3, 0), "SEA" }, { 0x13, 1, At(-3, 0), "SEA" } });
    EXPECT_EQ(west->related, Stock(kVorDme, 1));
    EXPECT_EQ(east->related, Stock(kVorDme, 0));
    EXPECT_EQ(third->related, nullptr);
}

TEST_F(Replacements, TheNearestPairComesFirstWhateverTheOrder) {
    const SceneryObject *far = Own("SEA", 4), *near = Own("SEA", 1);
    Load({ { 0x13, 1, At(0, 0), "SEA" } });
    EXPECT_EQ(near->related, Stock(kVorDme));
    EXPECT_EQ(far->related, nullptr);
}

TEST_F(Replacements, NavaidsWithoutIdentifierReplaceTheirLikeInTheSamePlace) {
    const SceneryObject *other = Own("", 0.1, 7), *here = Own("", 0.9), *far = Own("", -4), *named = Own("SEA", 0);
    Load({ { 0x13, 1, At(0, 0), "" }, { 0x17, 0, At(-4, 0), "" }, { 0x13, 1, At(-5.1, 0), "" } });
    EXPECT_EQ(other->related, nullptr) << "of another region";
    EXPECT_EQ(here->related, Stock(kVorDme, 0));
    EXPECT_EQ(far->related, nullptr);
    EXPECT_EQ(named->related, nullptr);
    EXPECT_EQ(Stock(kNdb)->related, nullptr);
}

TEST_F(Replacements, AMarkerReplacesNoneOfAnotherApproach) {
    const SceneryObject *moved = OwnMarker("OM", 0.9, 7), *other = OwnMarker("OM", 5, 7);
    Load({ { 0x18, 0, At(0, 0), "OM", 7 },
           { 0x18, 0, At(6.1, 0), "OM", 7 },
           { 0x18, 0, At(5, 0), "MM", 7 },
           { 0x18, 0, At(5, 0), "OM", 8 } });
    ASSERT_EQ(CountKind(kMarkerBeacon), 6u);
    EXPECT_EQ(moved->related, Stock(kMarkerBeacon, 0));
    EXPECT_EQ(Stock(kMarkerBeacon, 0)->related, moved);
    EXPECT_EQ(other->related, nullptr);
    for (int i = 1; i < 4; ++i) EXPECT_EQ(Stock(kMarkerBeacon, i)->related, nullptr) << i;
}

TEST_F(Replacements, AnIlsReplacesTheNearestOfItsIdentifierHoweverFarItMoved) {
    SceneryObject* own = build::Ils("ISEA");
    const EncodedPoint place = At(0, 1);
    SetEncodedPosition(own, { place.latitude, place.longitude });
    PayloadAs<IlsPayload>(own).body.region = 7;
    Load({ { 0x13, 4, At(0, -1), "ISEA", 7 }, { 0x13, 4, At(0, 1), "IBFI", 7 }, { 0x13, 1, At(0, 1), "ISEA", 7 } });
    ASSERT_EQ(CountKind(kIls), 3u);
    EXPECT_EQ(own->related, Stock(kIls, 0));
    EXPECT_EQ(Stock(kIls, 1)->related, nullptr);
    EXPECT_EQ(Stock(kVorDme)->related, nullptr) << "a VOR is no ILS";
}

TEST_F(Replacements, AreFoundAgainWhenASavedAirportIsOpened) {
    Own("SEA", 1);
    const std::string path = (folder / "TV2_KSEA.bgl").string();
    ASSERT_EQ(bgl::WriteAirportFile(path), 1);
    Put("Namw", "nv9Namw0.bgl", StockFile({ { 0x13, 1, At(0, 0), "SEA" }, { 0x13, 1, At(0, 0), "OLM" } }));
    bgl::AirportPlace place;
    ASSERT_TRUE(bgl::FindAirportInFile(path, "KSEA", &place));
    ASSERT_TRUE(bgl::OpenAirport(place, Simulator()));
    SceneryObject* own = FirstOfKind(state.head, kVorDme);
    EXPECT_FALSE(IsStock(own));
    EXPECT_EQ(CountKind(kVorDme), 3u);
    EXPECT_EQ(own->related, Stock(kVorDme));
    EXPECT_FALSE(state.modified);
    EXPECT_EQ(state.undoHead, nullptr);
}

TEST_F(Replacements, StockFileOfTheAirportGivesStockNavaidsOnly) {
    const std::string name = BlockFile(At(0, 0));
    bgl::SectionContent airports{ 3, 1, { { 1, 1, {} } } };
    airports.subsections[0].records.bytes = AirportRecordWith({});
    const EncodedPoint here = { 0x07B12FA6, 0x07908B15 };
    bgl::SectionContent vors{ 0x13, 1, { { bgl::CellOf(here), 1, { NavaidRecordOf({ 0x13, 1, here, "SEA" }) } } } };
    const bgl::SectionContent sections[] = { airports, vors };
    Put("Namw", name, bgl::AssembleFile(sections, 1));
    bgl::AirportPlace place;
    ASSERT_TRUE(bgl::FindAirportInFile((folder / "Scenery/Namw/Scenery" / name).string(), "", &place));
    ASSERT_TRUE(bgl::OpenAirport(place, Simulator()));
    EXPECT_EQ(Idents(), "SEA ");
    ASSERT_TRUE(bgl::OpenAirport(place, ""));
    EXPECT_EQ(Idents(), "");
}

}  // namespace
