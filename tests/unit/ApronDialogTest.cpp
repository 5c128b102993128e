// Aprons and apron edge lights.
#include "dialogs/ApronDialog.h"

#include "dialogs/EdgeLightsDialog.h"
#include "fakes/DialogFixture.h"
#include "model/EdgeLights.h"

namespace {

using namespace dialogs;

class ApronDialog : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        apron = build::Apron({ build::Encoded({}), build::Encoded({ 100, 0 }), build::Encoded({ 0, 100 }) });
        Head().outlineSurface = Head().surface = 4;
    }
    model::ApronHead& Head() { return As<model::ApronHead>(apron); }

    template <class Change>
    void Edit(Change change) {
        const ApronFields shown = LoadApronFields(apron);
        ApronFields entered = shown;
        change(entered);
        EXPECT_TRUE(StoreApronFields(shown, entered, apron));
    }
    SceneryObject* apron = nullptr;
};

TEST_F(ApronDialog, TheSurfaceGoesToBothRecords) {
    EXPECT_EQ(LoadApronFields(apron).surface, 4);
    Edit([](ApronFields& entered) { entered.surface = 0; });
    EXPECT_EQ(Head().outlineSurface, 0);
    EXPECT_EQ(Head().surface, 0);
    EXPECT_EQ(Actions(), 1);
}

TEST_F(ApronDialog, DrawSurfaceIsBit0AndTheOthersStay) {
    Head().drawFlags = 0xFE;
    EXPECT_FALSE(LoadApronFields(apron).drawSurface);
    Edit([](ApronFields& entered) { entered.drawSurface = true; });
    EXPECT_EQ(Head().drawFlags, 0xFF);
    Edit([](ApronFields& entered) { entered.drawSurface = false; });
    EXPECT_EQ(Head().drawFlags, 0xFE);
}

TEST_F(ApronDialog, OkWithoutAChangeRecordsNothingEvenWhereTheRecordsDiffer) {
    Head().outlineSurface = 8;
    Head().surface = 0xFE;
    const auto before = Bytes(apron);
    Edit([](ApronFields&) {});
    Edit([](ApronFields& entered) { entered.surface = -1; });
    EXPECT_EQ(Bytes(apron), before);
    EXPECT_EQ(Actions(), 0);
}

class EdgeLightsDialog : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        lights = build::EdgeLights({ Strip(60.96F, 500), Strip(60.96F, 130) });
        As<model::EdgeLightsHead>(lights).brightness = 1;
    }
    static model::EdgeLightStrip Strip(float spacing, double length) {
        const model::EncodedPoint from = build::Encoded({}), to = build::Encoded({ 0, length });
        return { spacing, from.longitude, from.latitude, to.longitude, to.latitude, 0, 0, 0 };
    }
    float Spacing(size_t i) { return model::StripsOf(lights)[i].spacing; }
    void Change(size_t i, float spacing, bool selected) {
        auto strips = model::StripsOf(lights);
        strips[i].spacing = spacing;
        strips[i].startSelected = selected;
        model::SetStrips(lights, strips);
    }

    template <class Change>
    bool Edit(Change change) {
        return OkAfter<LoadEdgeLightsFields, StoreEdgeLightsFields>(lights, change);
    }
    SceneryObject* lights = nullptr;
};

TEST_F(EdgeLightsDialog, EverythingIsShown) {
    EdgeLightsFields fields = LoadEdgeLightsFields(lights);
    EXPECT_EQ(fields.spacing, "200.0");
    EXPECT_EQ(fields.optimum, "200.0");
    EXPECT_EQ(fields.brightness, "13");
    EXPECT_FALSE(fields.adjust);
    app::settings.metric = true;
    fields = LoadEdgeLightsFields(lights);
    EXPECT_EQ(fields.spacing, "61.0");
    EXPECT_EQ(fields.optimum, "61.0");
}

TEST_F(EdgeLightsDialog, OkWithoutAChangeRecordsNothing) {
    Change(1, 45.67F, false);
    const auto before = Bytes(lights);
    EXPECT_TRUE(Edit([](EdgeLightsFields&) {}));
    EXPECT_EQ(Bytes(lights), before);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(EdgeLightsDialog, TheSpacingGoesToTheSelectedStripsElseToAll) {
    EXPECT_TRUE(Edit([](EdgeLightsFields& entered) { entered.spacing = "100"; }));
    EXPECT_EQ(Spacing(0), 30.48F);
    EXPECT_EQ(Spacing(1), 30.48F);
    Change(1, 30.48F, true);
    EXPECT_TRUE(Edit([](EdgeLightsFields& entered) { entered.spacing = "50"; }));
    EXPECT_EQ(Spacing(0), 30.48F);
    EXPECT_EQ(Spacing(1), 15.24F);
    EXPECT_EQ(Actions(), 2);
}

TEST_F(EdgeLightsDialog, SpacingsThatDifferShowBlankAndStay) {
    Change(0, 10, false);
    EXPECT_EQ(LoadEdgeLightsFields(lights).spacing, "");
    EXPECT_TRUE(Edit([](EdgeLightsFields& entered) { entered.brightness = "26"; }));
    EXPECT_EQ(Spacing(0), 10);
    EXPECT_EQ(+As<model::EdgeLightsHead>(lights).brightness, 2);
    Change(1, 20, true);
    EXPECT_EQ(LoadEdgeLightsFields(lights).spacing, "65.6");
}

TEST_F(EdgeLightsDialog, AdjustEndsEveryStripAtALamp) {
    app::settings.metric = true;
    EXPECT_TRUE(Edit([](EdgeLightsFields& entered) {
        entered.adjust = true;
        entered.optimum = "60";
    }));
    EXPECT_NEAR(Spacing(0), 500.0 / 8, 0.01);
    EXPECT_NEAR(Spacing(1), 130.0 / 2, 0.01);
    EXPECT_EQ(Actions(), 1);
    const EdgeLightsFields fields = LoadEdgeLightsFields(lights);
    EXPECT_TRUE(fields.adjust);
    EXPECT_EQ(fields.optimum, "60.0");
    EXPECT_TRUE(Edit([](EdgeLightsFields&) {}));
    EXPECT_EQ(Actions(), 1);
    EXPECT_TRUE(Edit([](EdgeLightsFields& entered) { entered.spacing = "50"; }));
    EXPECT_NEAR(Spacing(0), 50, 0.01);
    EXPECT_NEAR(Spacing(1), 130.0 / 3, 0.01);
}

TEST_F(EdgeLightsDialog, AdjustedSpacings) {
    EXPECT_EQ(model::AdjustedSpacing(100, 30), 100.0 / 3);
    EXPECT_EQ(model::AdjustedSpacing(10, 60), 10);
    EXPECT_EQ(model::AdjustedSpacing(0, 60), 60);
}

TEST_F(EdgeLightsDialog, NonsenseIsRefused) {
    EXPECT_FALSE(Edit([](EdgeLightsFields& entered) { entered.spacing = "0"; }));
    EXPECT_EQ(LastMessage(), "ERROR: The light spacing must be a number from 1.7 to 3280.8 feet");
    EXPECT_EQ(bad.field, Field::Spacing);
    EXPECT_FALSE(Edit([](EdgeLightsFields& entered) { entered.optimum = "-1", entered.adjust = true; }));
    EXPECT_EQ(bad.field, Field::OptimumSpacing);
    EXPECT_FALSE(Edit([](EdgeLightsFields& entered) { entered.brightness = "bright"; }));
    EXPECT_EQ(bad.field, Field::Brightness);
    EXPECT_FALSE(model::state.edgeLights.adjust);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(EdgeLightsDialog, AnUntouchedBrightnessKeepsItsExactValue) {
    As<model::EdgeLightsHead>(lights).brightness = 0.123456789F;
    EXPECT_TRUE(Edit([](EdgeLightsFields& entered) { entered.spacing = "100"; }));
    EXPECT_EQ(+As<model::EdgeLightsHead>(lights).brightness, 0.123456789F);
}

}  // namespace
