#include "dialogs/HelipadDialog.h"

#include "dialogs/Subject.h"
#include "fakes/DialogFixture.h"

namespace {

using namespace dialogs;

class HelipadDialog : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        pad = build::Placed<model::HelipadRecord>(model::kHelipad, {});
        Pad().surface = 4;
        Pad().type = 1;
        Pad().length = 30.48F;
        Pad().width = 15.24F;
        Pad().heading = 12.5F;
        Pad().carried = 0xDEADBEEF;
    }
    model::HelipadRecord& Pad() { return As<model::HelipadRecord>(pad); }

    template <class Change>
    bool Edit(Change change) {
        return OkAfter<LoadHelipadFields, StoreHelipadFields>(pad, change);
    }
    SceneryObject* pad = nullptr;
};

TEST_F(HelipadDialog, EverythingIsShown) {
    Pad().type = 0x34;
    const HelipadFields fields = LoadHelipadFields(pad);
    EXPECT_EQ(fields.length, "100");
    EXPECT_EQ(fields.width, "50");
    EXPECT_EQ(fields.heading, "12.5");
    EXPECT_EQ(fields.surface, 4);
    EXPECT_STREQ(kHelipadTypes[static_cast<size_t>(fields.type)], "Medical");
    EXPECT_TRUE(fields.transparent);
    EXPECT_TRUE(fields.closed);
    app::settings.metric = true;
    EXPECT_EQ(LoadHelipadFields(pad).length, "30.5");
}

TEST_F(HelipadDialog, OkWithoutAChangeRecordsNothing) {
    Pad().type = 0xFF;
    Pad().surface = 0xFE;
    const auto before = Bytes(pad);
    EXPECT_TRUE(Edit([](HelipadFields&) {}));
    EXPECT_EQ(Bytes(pad), before);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(HelipadDialog, EachFieldIsWrittenForItself) {
    Pad().type = 0xC1;
    EXPECT_TRUE(Edit([](HelipadFields& entered) { entered.type = 3; }));
    EXPECT_EQ(Pad().type, 0xC3);
    EXPECT_TRUE(Edit([](HelipadFields& entered) { entered.closed = true; }));
    EXPECT_EQ(Pad().type, 0xE3);
    EXPECT_TRUE(Edit([](HelipadFields& entered) { entered.transparent = true; }));
    EXPECT_EQ(Pad().type, 0xF3);
    EXPECT_TRUE(Edit([](HelipadFields& entered) { entered.surface = 0; }));
    EXPECT_EQ(Pad().surface, 0);
    EXPECT_TRUE(Edit([](HelipadFields& entered) { entered.length = "200"; }));
    EXPECT_EQ(+Pad().length, 60.96F);
    EXPECT_TRUE(Edit([](HelipadFields& entered) { entered.width = "60"; }));
    EXPECT_TRUE(Edit([](HelipadFields& entered) { entered.heading = "0"; }));
    EXPECT_TRUE(Edit([](HelipadFields& entered) { entered.elevation = "10"; }));
    EXPECT_EQ(+Pad().altitude, 3048);
    EXPECT_EQ(+Pad().carried, 0xDEADBEEF);
}

TEST_F(HelipadDialog, NonsenseIsRefused) {
    EXPECT_FALSE(Edit([](HelipadFields& entered) { entered.length = "0"; }));
    EXPECT_EQ(LastMessage(), "ERROR: The helipad length must be a number from 1 to 3280 feet");
    EXPECT_EQ(bad.field, Field::Length);
    EXPECT_FALSE(Edit([](HelipadFields& entered) { entered.width = "wide"; }));
    EXPECT_EQ(bad.field, Field::Width);
    SetPoint(pad, kPlaceholder);
    EXPECT_FALSE(Edit([](HelipadFields&) {}));
    EXPECT_EQ(LastMessage(),
              "ERROR: You must enter a latitude and longitude for the helipad.\n"
              "You may click on the main window to set the latitude and longitude");
}

TEST_F(HelipadDialog, ANewPadIsOfConcreteWithAnHAndMustBePlaced) {
    SceneryObject* made = InsertHelipad();
    const HelipadFields shown = LoadHelipadFields(made);
    EXPECT_EQ(shown.surface, 0);
    EXPECT_EQ(shown.type, 1);
    EXPECT_EQ(shown.length, "50");
    HelipadFields entered = shown;
    EXPECT_FALSE(StoreHelipadFields(shown, entered, made, &bad));
    entered.position = MoveToClick(made, build::kMiddle);
    EXPECT_TRUE(StoreHelipadFields(shown, entered, made, &bad));
    EXPECT_EQ(+As<model::HelipadRecord>(made).length, 15.24F);
    model::Undo();
    EXPECT_EQ(model::CountKind(model::kHelipad), 1u);
}

}  // namespace
