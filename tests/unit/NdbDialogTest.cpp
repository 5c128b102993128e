#include "dialogs/NdbDialog.h"

#include "dialogs/Subject.h"
#include "fakes/DialogFixture.h"

namespace {

using namespace dialogs;

class NdbDialog : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        ndb = build::Ndb();
        Ndb() = { 2,
                  350000,
                  Ndb().longitude,
                  Ndb().latitude,
                  100000,
                  92608.795F,
                  340,
                  model::PackIdent("BF") << 5 | 4,
                  0xABCD,
                  "Boeing",
                  {} };
    }
    model::NdbPayload& Ndb() { return As<model::NdbPayload>(ndb); }

    template <class Change>
    bool Edit(Change change) {
        return OkAfter<LoadNdbFields, StoreNdbFields>(ndb, change);
    }
    SceneryObject* ndb = nullptr;
};

TEST_F(NdbDialog, EverythingIsShown) {
    NdbFields fields = LoadNdbFields(ndb);
    EXPECT_EQ(fields.ident, "BF");
    EXPECT_EQ(fields.name, "Boeing");
    EXPECT_EQ(fields.frequency, "350.0");
    EXPECT_STREQ(kNdbTypes[static_cast<size_t>(fields.type)], "H");
    EXPECT_EQ(fields.range, "50.0");
    EXPECT_EQ(fields.variation, "20.0");
    EXPECT_EQ(fields.elevation, "328");
    app::settings.metric = true;
    EXPECT_EQ(LoadNdbFields(ndb).range, "92.6");
}

TEST_F(NdbDialog, OkWithoutAChangeRecordsNothing) {
    Ndb().type = 9;
    Ndb().frequency = 350123;
    Ndb().ident = 4;
    const auto before = Bytes(ndb);
    EXPECT_TRUE(Edit([](NdbFields&) {}));
    EXPECT_EQ(Bytes(ndb), before);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(NdbDialog, EachFieldIsWrittenForItself) {
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.ident = "sea"; }));
    EXPECT_EQ(+Ndb().ident, model::PackIdent("SEA") << 5 | 4);
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.name = "Seattle"; }));
    EXPECT_STREQ(Ndb().name, "Seattle");
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.frequency = "224.5"; }));
    EXPECT_EQ(+Ndb().frequency, 224500u);
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.type = 0; }));
    EXPECT_EQ(+Ndb().type, 0);
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.range = "10"; }));
    EXPECT_FLOAT_EQ(+Ndb().range, 18521.759F);
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.variation = "-3"; }));
    EXPECT_EQ(+Ndb().magneticVariation, 3);
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.elevation = "0"; }));
    EXPECT_EQ(+Ndb().altitude, 0);
    EXPECT_EQ(+Ndb().region, 0xABCDu);
    EXPECT_EQ(Actions(), 7);
}

TEST_F(NdbDialog, NonsenseIsRefused) {
    EXPECT_FALSE(Edit([](NdbFields& entered) { entered.range = "0"; }));
    EXPECT_EQ(LastMessage(), "ERROR: The range must be a number from 0.1 to 539.9 nm");
    EXPECT_EQ(bad.field, Field::Range);
    EXPECT_FALSE(Edit([](NdbFields& entered) { entered.ident = ""; }));
    EXPECT_EQ(bad.field, Field::Ident);
    SetPoint(ndb, kPlaceholder);
    EXPECT_FALSE(Edit([](NdbFields&) {}));
    EXPECT_EQ(LastMessage(),
              "ERROR: You must enter a latitude and longitude for the NDB.\n"
              "You may click on the main window to set the latitude and longitude");
    EXPECT_EQ(Actions(), 0);
}

TEST_F(NdbDialog, AStockNdbIsReplacedAndCancelLeavesIt) {
    ndb->flags |= model::kStock;
    MoveToClick(ndb, build::At({ 500, 0 }));
    CancelDialog();
    EXPECT_EQ(ndb->related, nullptr);
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.frequency = "224.5"; }));
    ASSERT_NE(ndb->related, nullptr);
    EXPECT_EQ(+Ndb().frequency, 350000u);
    EXPECT_EQ(+As<model::NdbPayload>(ndb->related).frequency, 224500u);
}

TEST_F(NdbDialog, ANewNdbNeedsIdentifierFrequencyAndPlace) {
    As<model::AirportRecord>(build::Airport("KSEA")).magneticVariation = 340;
    SceneryObject* made = InsertNdb();
    const NdbFields shown = LoadNdbFields(made);
    EXPECT_EQ(shown.variation, "20.0");
    EXPECT_EQ(shown.range, "50.0");
    NdbFields entered = shown;
    EXPECT_FALSE(StoreNdbFields(shown, entered, made, &bad));
    EXPECT_EQ(bad.field, Field::Ident);
    entered.ident = "XX";
    EXPECT_FALSE(StoreNdbFields(shown, entered, made, &bad));
    EXPECT_EQ(bad.field, Field::Frequency);
    entered.frequency = "300";
    EXPECT_FALSE(StoreNdbFields(shown, entered, made, &bad));
    EXPECT_EQ(bad.field, Field::Latitude);
    entered.position = MoveToClick(made, build::kMiddle);
    EXPECT_TRUE(StoreNdbFields(shown, entered, made, &bad));
    EXPECT_EQ(+As<model::NdbPayload>(made).ident, model::PackIdent("XX") << 5 | 3);
    EXPECT_EQ(Actions(), 1);
}

}  // namespace
