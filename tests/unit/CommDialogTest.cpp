#include "dialogs/CommDialog.h"

#include <cstring>

#include "dialogs/Subject.h"
#include "fakes/DialogFixture.h"

namespace {

using namespace dialogs;

class CommDialog : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        comm = build::Append(model::kCommFrequency, sizeof(model::CommFrequencyRecord));
        Comm().type = 6;
        Comm().frequency = 119900000;
        std::strcpy(Comm().name, "Seattle");
    }
    model::CommFrequencyRecord& Comm() { return As<model::CommFrequencyRecord>(comm); }

    template <class Change>
    bool Edit(Change change) {
        return OkAfter<LoadCommFields, StoreCommFields>(comm, change);
    }
    SceneryObject* comm = nullptr;
};

TEST_F(CommDialog, TheThirteenTypesAreListedInTheirOrder) {
    const char* names[] = { "ATIS",    "Traffic",   "UNICOM", "ATF", "Ground", "Tower", "Clearance Del",
                            "Arrival", "Departure", "Center", "FSS", "AWOS",   "ASOS" };
    for (size_t i = 0; i < 13; ++i) EXPECT_STREQ(kCommTypes[i], names[i]);
    const CommFields fields = LoadCommFields(comm);
    EXPECT_EQ(fields.frequency, "119.900");
    EXPECT_EQ(fields.type, 5);
    EXPECT_EQ(fields.name, "Seattle");
}

TEST_F(CommDialog, OkWithoutAChangeRecordsNothing) {
    Comm().frequency = 119900017;
    Comm().type = 77;
    std::memset(Comm().name, 'x', sizeof Comm().name);
    const auto before = Bytes(comm);
    EXPECT_TRUE(Edit([](CommFields&) {}));
    EXPECT_EQ(Bytes(comm), before);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(CommDialog, MegahertzAreStoredAsHertz) {
    EXPECT_TRUE(Edit([](CommFields& entered) { entered.frequency = "128.2"; }));
    EXPECT_EQ(+Comm().frequency, 128200000u);
    EXPECT_TRUE(Edit([](CommFields& entered) { entered.type = 2; }));
    EXPECT_EQ(+Comm().type, 3);
    EXPECT_TRUE(Edit([](CommFields& entered) { entered.name = "Caf\xC3\xA9"; }));
    EXPECT_STREQ(Comm().name, "Caf\xE9");
    EXPECT_EQ(Actions(), 3);
}

TEST_F(CommDialog, NoFrequencyIsRefusedWithAnExample) {
    // What begins with no number reads as 0, and less than a hertz is 0 in the record.
    for (const char* text : { "0", "", "  ", "0.0", "none", "-", "0.0000001", "0x77", "inf" }) {
        EXPECT_FALSE(Edit([&](CommFields& entered) { entered.frequency = text; })) << text;
        EXPECT_EQ(LastMessage(), "ERROR: You must enter a frequency, for example 121.9");
        EXPECT_EQ(bad.field, Field::Frequency);
    }
    Comm().frequency = 0;
    EXPECT_FALSE(Edit([](CommFields&) {}));
}

TEST_F(CommDialog, AFrequencyOutsideTheBandOfItsTypeIsRefused) {
    EXPECT_FALSE(Edit([](CommFields& entered) { entered.frequency = "113.2"; }));
    EXPECT_EQ(LastMessage(), "ERROR: The frequency must be a number from 118 to 136.995 MHz");
    EXPECT_FALSE(Edit([](CommFields& entered) { entered.frequency = "137"; }));
    EXPECT_FALSE(Edit([](CommFields& entered) { entered.frequency = "121.9x"; }));
    EXPECT_TRUE(Edit([](CommFields& entered) {
        entered.frequency = "113.2";
        entered.type = 0;
    }));
    EXPECT_FALSE(Edit([](CommFields& entered) { entered.type = 5; }));  // an ATIS that becomes a tower
    EXPECT_EQ(+Comm().type, 1);
}

TEST_F(CommDialog, NoChoiceKeepsTheType) {
    Comm().type = 14;
    EXPECT_EQ(LoadCommFields(comm).type, -1);
    EXPECT_TRUE(Edit([](CommFields& entered) { entered.frequency = "120"; }));
    EXPECT_EQ(+Comm().type, 14);
}

TEST_F(CommDialog, ANameOf48CharactersFits) {
    EXPECT_TRUE(Edit([](CommFields& entered) { entered.name = std::string(48, 'n'); }));
    EXPECT_EQ(std::strlen(Comm().name), 48u);
    EXPECT_FALSE(Edit([](CommFields& entered) { entered.name = std::string(49, 'n'); }));
    EXPECT_EQ(bad.field, Field::Name);
}

TEST_F(CommDialog, InsertMakesANamedRecordThatCancelDeletesAgain) {
    SceneryObject* made = InsertComm();
    const CommFields fields = LoadCommFields(made);
    EXPECT_EQ(fields.name, "Insert comm name here");
    EXPECT_EQ(made->payloadSize, 55u);
    CancelDialog();
    EXPECT_EQ(model::CountKind(model::kCommFrequency), 1u);
    EXPECT_EQ(model::state.undoHead, nullptr);
}

TEST_F(CommDialog, AnInsertedFrequencyIsOneActionOnceItHasAFrequency) {
    SceneryObject* made = InsertComm();
    const CommFields shown = LoadCommFields(made);
    CommFields entered = shown;
    EXPECT_FALSE(StoreCommFields(shown, entered, made, &bad));
    entered.frequency = "118.0";
    EXPECT_TRUE(StoreCommFields(shown, entered, made, &bad));
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(model::CountKind(model::kCommFrequency), 1u);
}

}  // namespace
