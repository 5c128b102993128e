#include "dialogs/VorDialog.h"

#include <cstring>

#include "dialogs/Subject.h"
#include "fakes/DialogFixture.h"

namespace {

using namespace dialogs;

class VorDialog : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        vor = build::Vor();
        Vor().body.type = 3;
        Vor().body.flags = 0x21;
        Vor().body.frequency = 116800000;
        Vor().body.range = 240782.87F;
        Vor().body.altitude = 100000;
        Vor().body.ident = model::PackIdent("SEA") << 5 | 2;
        std::strcpy(Vor().name, "Seattle");
    }
    model::VorDmePayload& Vor() { return As<model::VorDmePayload>(vor); }

    template <class Change>
    bool Edit(Change change) {
        return OkAfter<LoadVorFields, StoreVorFields>(vor, change);
    }
    SceneryObject* vor = nullptr;
};

TEST_F(VorDialog, EverythingIsShown) {
    const VorFields fields = LoadVorFields(vor);
    EXPECT_EQ(fields.ident, "SEA");
    EXPECT_EQ(fields.frequency, "116.80");
    EXPECT_STREQ(kVorClasses[static_cast<size_t>(fields.vorClass)], "High");
    EXPECT_STREQ(kVorParts[static_cast<size_t>(fields.parts)], "VOR");
    EXPECT_EQ(fields.range, "130.0");
    Vor().body.flags = 0x31;
    EXPECT_EQ(VorPartsOf(vor), 1);
    Vor().body.flags = 0x10;
    EXPECT_EQ(VorPartsOf(vor), 2);
    Vor().body.flags = 0;
    EXPECT_EQ(VorPartsOf(vor), 0);
}

TEST_F(VorDialog, OkWithoutAChangeRecordsNothing) {
    Vor().body.type = 4;
    Vor().body.frequency = 110300000;
    Vor().dme.range = -1;
    const auto before = Bytes(vor);
    EXPECT_TRUE(Edit([](VorFields&) {}));
    EXPECT_EQ(Bytes(vor), before);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(VorDialog, ChoosingADmeProposesTheRangeOfTheVor) {
    VorFields fields = LoadVorFields(vor);
    ASSERT_EQ(fields.dmeRange, "0.0");
    ChooseVorParts(1, &fields);
    EXPECT_EQ(fields.parts, 1);
    EXPECT_EQ(fields.dmeRange, "130.0");
    fields.dmeRange = "25";
    ChooseVorParts(0, &fields);
    ChooseVorParts(2, &fields);
    EXPECT_EQ(fields.dmeRange, "25") << "what the user typed stays";
    EXPECT_TRUE(HasVorPart(0) && HasVorPart(1) && !HasVorPart(2));
    EXPECT_TRUE(!HasDmePart(0) && HasDmePart(1) && HasDmePart(2));
}

TEST_F(VorDialog, ADmeThatIsAddedStandsWithTheVorAndReachesAsFar) {
    EXPECT_TRUE(Edit([](VorFields& entered) { entered.parts = 1; }));
    EXPECT_EQ(Vor().body.flags, 0x31);
    EXPECT_EQ(+Vor().dme.longitude, +Vor().body.longitude);
    EXPECT_EQ(+Vor().dme.altitude, 100000);
    EXPECT_EQ(+Vor().dme.range, +Vor().body.range);
    EXPECT_TRUE(Edit([](VorFields& entered) { entered.dmeRange = "25"; }));
    EXPECT_FLOAT_EQ(+Vor().dme.range, 46304.4F);
    EXPECT_TRUE(Edit([](VorFields& entered) { entered.parts = 0; }));
    EXPECT_EQ(Vor().body.flags, 0x21);
}

TEST_F(VorDialog, TheRangeOfADmeThatIsOffIsNeitherJudgedNorStored) {
    Vor().dme.range = 50000;
    for (const char* text : { "rubbish", "25" })
        EXPECT_TRUE(Edit([&](VorFields& entered) { entered.dmeRange = text; })) << text;
    EXPECT_EQ(Actions(), 0);
    Vor().body.flags = 0x31;
    EXPECT_TRUE(Edit([](VorFields& entered) {
        entered.parts = 0;
        entered.dmeRange = "rubbish";
    }));
    EXPECT_EQ(Vor().body.flags, 0x21);
    EXPECT_EQ(+Vor().dme.range, 50000);
    for (const int parts : { 1, 2 }) {
        EXPECT_FALSE(Edit([&](VorFields& entered) {
            entered.parts = parts;
            entered.dmeRange = "rubbish";
        }));
        EXPECT_EQ(bad.field, Field::DmeRange);
    }
}

TEST_F(VorDialog, ADmeAloneMayHaveALocalizersFrequency) {
    EXPECT_TRUE(Edit([](VorFields& entered) {
        entered.parts = 2;
        entered.frequency = "110.30";
    }));
    EXPECT_EQ(Vor().body.flags, 0x30);
    EXPECT_FALSE(Edit([](VorFields& entered) { entered.parts = 1; }));
    EXPECT_EQ(bad.field, Field::Frequency);
    EXPECT_EQ(Vor().body.flags, 0x30);
}

TEST_F(VorDialog, ClassesAreStoredByTheirCodes) {
    const int codes[] = { 1, 2, 3, 5 };
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(Edit([&](VorFields& entered) { entered.vorClass = i; }));
        EXPECT_EQ(Vor().body.type, codes[i]);
    }
}

TEST_F(VorDialog, AMissingPositionIsRefused) {
    SetPoint(vor, kPlaceholder);
    EXPECT_FALSE(Edit([](VorFields&) {}));
    EXPECT_EQ(LastMessage(),
              "ERROR: You must enter a latitude and longitude for the VOR.\n"
              "You may click on the main window to set the latitude and longitude");
}

TEST_F(VorDialog, ANewVorHasADmeAndNeedsIdentifierFrequencyAndPlace) {
    SceneryObject* made = InsertVor();
    const VorFields shown = LoadVorFields(made);
    EXPECT_EQ(shown.parts, 1);
    EXPECT_EQ(shown.frequency, "  0.00");
    VorFields entered = shown;
    entered.ident = "ABC";
    EXPECT_FALSE(StoreVorFields(shown, entered, made, &bad));
    EXPECT_EQ(bad.field, Field::Frequency);
    entered.frequency = "114.3";
    entered.position = MoveToClick(made, build::kMiddle);
    EXPECT_TRUE(StoreVorFields(shown, entered, made, &bad));
    EXPECT_EQ(+As<model::VorDmePayload>(made).body.ident, model::PackIdent("ABC") << 5 | 2);
    model::Undo();
    EXPECT_EQ(model::CountKind(model::kVorDme), 1u);
}

}  // namespace
