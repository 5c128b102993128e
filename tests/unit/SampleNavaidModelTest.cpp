#include <gtest/gtest.h>

#include "model/Ident.h"
#include "model/Records.h"
#include "sample/NavaidModel.h"

namespace {

using model::PayloadAs;
using model::SceneryObject;

sample::NavaidRow Row(const char* type, double kilohertz) {
    sample::NavaidRow row;
    row.ident = "ABC";
    row.name = "Test";
    row.type = type;
    row.frequency = kilohertz;
    row.usage = "LO";
    row.power = "HIGH";
    row.variation = 17;
    row.position = { 0.8, 2.1 };
    return row;
}

struct SampleNavaidModel : testing::Test {
    void TearDown() override {
        for (SceneryObject* object : made) model::FreeObject(object);
    }
    const std::vector<SceneryObject*>& Make(const sample::NavaidRow& row) {
        TearDown();
        return made = sample::MakeNavaids(row);
    }
    std::vector<SceneryObject*> made;
};

}  // namespace

TEST_F(SampleNavaidModel, VorWithDmeHasBothFlagsAndHertz) {
    ASSERT_EQ(Make(Row("VOR-DME", 112700)).size(), 1u);
    ASSERT_EQ(model::KindOf(made[0]), uint32_t{ model::kVorDme });
    const auto& body = PayloadAs<model::VorDmePayload>(made[0]).body;
    EXPECT_EQ(body.flags & (0x01 | model::kHasDme), 0x01 | model::kHasDme);
    const uint32_t frequency = body.frequency, ident = body.ident;
    EXPECT_EQ(frequency, 112700000u);
    EXPECT_EQ(ident, model::PackIdent("ABC") << model::kIdentShift | 2);
    const float variation = body.magneticVariation;
    EXPECT_EQ(variation, 343) << "17 degrees east, stored west positive";
    EXPECT_EQ(body.type, 2) << "low altitude";
}

TEST_F(SampleNavaidModel, LoneDmeIsNoVor) {
    ASSERT_EQ(Make(Row("DME", 111450)).size(), 1u);
    EXPECT_EQ(PayloadAs<model::VorDmePayload>(made[0]).body.flags, model::kHasDme);
}

TEST_F(SampleNavaidModel, NdbFrequenciesAreHertzToo) {
    ASSERT_EQ(Make(Row("NDB", 373.5)).size(), 1u);
    ASSERT_EQ(model::KindOf(made[0]), uint32_t{ model::kNdb });
    const uint32_t frequency = PayloadAs<model::NdbPayload>(made[0]).frequency;
    EXPECT_EQ(frequency, 373500u);
}

TEST_F(SampleNavaidModel, NdbWithDmeGivesTwoNavaids) {
    sample::NavaidRow row = Row("NDB-DME", 373);
    row.dmeFrequency = 113300;
    EXPECT_EQ(Make(row).size(), 2u);
}

TEST_F(SampleNavaidModel, TacanIsTheDmeOfItsVhfChannel) {
    sample::NavaidRow row = Row("TACAN", 0);
    EXPECT_TRUE(Make(row).empty());
    row.dmeFrequency = 110500;
    ASSERT_EQ(Make(row).size(), 1u);
    const uint32_t frequency = PayloadAs<model::VorDmePayload>(made[0]).body.frequency;
    EXPECT_EQ(frequency, 110500000u);
}

TEST_F(SampleNavaidModel, ImpossibleFrequenciesGiveNothing) {
    for (const double kilohertz : { 0.0, -5.0, 1e12, 5000.0 }) {
        EXPECT_TRUE(Make(Row("VOR", kilohertz)).empty());
        EXPECT_TRUE(Make(Row("NDB", kilohertz)).empty());
    }
    EXPECT_TRUE(Make(Row("", 112700)).empty());
}

TEST(SampleVariation, TheNearestNavaidThatKnowsItTells) {
    sample::World world;
    const auto add = [&](double north, double west, std::optional<double> variation) {
        sample::NavaidRow row = Row("VOR", 112700);
        row.position = { north * model::kRadiansPerDegree, west * model::kRadiansPerDegree };
        row.variation = variation;
        world.navaids.push_back(row);
    };
    add(47, 122, 16);
    add(47, 119, 14);
    add(47.4, 121.9, std::nullopt);
    const sample::VariationMap map = sample::MapVariations(world);
    const auto at = [&](double north, double west) {
        return sample::VariationAt(map, { north * model::kRadiansPerDegree, west * model::kRadiansPerDegree });
    };
    EXPECT_EQ(at(47.4, 121.9), 16);
    EXPECT_EQ(at(47, 119.4), 14);
    EXPECT_EQ(at(-30, 20), 0);
}
