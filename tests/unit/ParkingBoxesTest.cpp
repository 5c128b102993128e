#include "dialogs/ParkingBoxes.h"

#include "dialogs/ParkingCodes.h"
#include "dialogs/ParkingDialog.h"
#include "fakes/DialogFixture.h"
#include "model/SpotBits.h"

namespace {

using namespace dialogs;

class ParkingBoxes : public DialogFixture {
protected:
    static model::SceneryObject* Spot(uint32_t type, double radius,
                                      std::initializer_list<std::string_view> codes = {}) {
        model::SceneryObject* spot = build::Spot({}, codes);
        auto& record = As<model::ParkingSpotRecord>(spot);
        record.packed = (record.packed & ~0xFC0u) | type << 8 | 0xC0;
        record.radius = static_cast<float>(radius);
        return spot;
    }
    static model::SceneryObject* SelectedSpot(uint32_t type, double radius,
                                              std::initializer_list<std::string_view> codes = {}) {
        model::SceneryObject* spot = Spot(type, radius, codes);
        spot->flags |= model::kSelected;
        return spot;
    }
    static uint32_t TypeOf(model::SceneryObject* spot) {
        return model::ParkingTypeCode(As<model::ParkingSpotRecord>(spot));
    }
    static float RadiusOf(model::SceneryObject* spot) { return As<model::ParkingSpotRecord>(spot).radius; }
};

TEST_F(ParkingBoxes, TheSelectedSpotsGetTheTypeAsOneAction) {
    model::SceneryObject* first = SelectedSpot(8, 31);
    model::SceneryObject* other = Spot(8, 31);
    model::SceneryObject* second = SelectedSpot(2, 10);
    EXPECT_TRUE(GiveParkingType(10));
    EXPECT_EQ(TypeOf(first), 10u);
    EXPECT_EQ(TypeOf(second), 10u);
    EXPECT_EQ(TypeOf(other), 8u);
    EXPECT_EQ(Actions(), 1);
    EXPECT_TRUE(model::IsSelected(first));
    model::Undo();
    EXPECT_EQ(TypeOf(first), 8u);
    EXPECT_EQ(TypeOf(second), 2u);
}

TEST_F(ParkingBoxes, ARadiusThatIsTheOldTypesDefaultBecomesTheNewOnes) {
    model::SceneryObject* usual = SelectedSpot(8, 31);
    model::SceneryObject* typedInFeet = SelectedSpot(8, 101.71 * 0.3048);
    model::SceneryObject* own = SelectedSpot(8, 31.5);
    GiveParkingType(10);
    EXPECT_EQ(RadiusOf(usual), 54);
    EXPECT_EQ(RadiusOf(typedInFeet), 54);
    EXPECT_EQ(RadiusOf(own), 31.5f);
}

TEST_F(ParkingBoxes, NameNumberPushbackAndCodesOfASpotStay) {
    model::SceneryObject* spot = SelectedSpot(8, 31, { "KLM" });
    const uint32_t before = As<model::ParkingSpotRecord>(spot).packed;
    GiveParkingType(5);
    EXPECT_EQ(As<model::ParkingSpotRecord>(spot).packed, (before & ~0xF00u) | 0x500u);
    EXPECT_EQ(CodesText(spot), "KLM");
}

TEST_F(ParkingBoxes, WhatASpotHasAlreadyIsNoChange) {
    SelectedSpot(8, 25, { "KLM" });
    EXPECT_FALSE(GiveParkingType(8));
    EXPECT_FALSE(GiveParkingCodes({ "KLM" }));
    EXPECT_EQ(Actions(), 0);
    EXPECT_FALSE(model::state.modified);
}

TEST_F(ParkingBoxes, NothingSelectedChangesNothing) {
    Spot(8, 31);
    build::Node()->flags |= model::kSelected;
    EXPECT_FALSE(GiveParkingType(3));
    EXPECT_FALSE(GiveParkingCodes({ "BAW" }));
    EXPECT_EQ(Actions(), 0);
}

TEST_F(ParkingBoxes, TheSelectedSpotsGetTheCodesInsteadOfTheirsAsOneAction) {
    model::SceneryObject* one = SelectedSpot(8, 31, { "KLM", "AFR" });
    model::SceneryObject* none = SelectedSpot(8, 31);
    const std::vector<uint8_t> before = Bytes(one);
    EXPECT_TRUE(GiveParkingCodes({ "BAW" }));
    EXPECT_EQ(CodesText(one), "BAW");
    EXPECT_EQ(CodesText(none), "BAW");
    EXPECT_EQ(model::ParkingCodeCount(As<model::ParkingSpotRecord>(one)), 1u);
    EXPECT_EQ(one->payloadSize, sizeof(model::ParkingSpotRecord) + 4);
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(Bytes(one), before);
    EXPECT_EQ(CodesText(none), "");
}

TEST_F(ParkingBoxes, NoCodesTakeTheCodesAway) {
    model::SceneryObject* spot = SelectedSpot(8, 31, { "KLM" });
    EXPECT_TRUE(GiveParkingCodes({}));
    EXPECT_EQ(CodesText(spot), "");
    EXPECT_EQ(spot->payloadSize, sizeof(model::ParkingSpotRecord));
}

TEST_F(ParkingBoxes, SpecCodesAreUpperCased) {
    app::ParkingSpec spec;
    spec.codes = { "klm", "Cyl" };
    std::vector<std::string> codes;
    EXPECT_TRUE(ReadSpecCodes(spec, &codes));
    EXPECT_EQ(codes, (std::vector<std::string>{ "KLM", "CYL" }));
    spec.codes.clear();
    EXPECT_TRUE(ReadSpecCodes(spec, &codes));
    EXPECT_TRUE(codes.empty());
}

TEST_F(ParkingBoxes, SpecCodesThatSceneryFilesCannotHoldAreRefused) {
    app::ParkingSpec spec;
    std::vector<std::string> codes = { "OLD" };
    spec.codes = { "\xE4\xB8\xAD" };
    EXPECT_FALSE(ReadSpecCodes(spec, &codes));
    spec.codes.assign(256, "AAA");
    EXPECT_FALSE(ReadSpecCodes(spec, &codes));
    EXPECT_EQ(fake.messages.size(), 2u);
    EXPECT_EQ(codes, std::vector<std::string>{ "OLD" });
}

}  // namespace
