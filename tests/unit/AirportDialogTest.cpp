#include "dialogs/AirportDialog.h"

#include "dialogs/Subject.h"
#include "fakes/DialogFixture.h"
#include "map/MapView.h"
#include "model/Ident.h"

namespace {

using namespace dialogs;
using platform::Answer;
using platform::Buttons;

class AirportDialog : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        airport = build::Airport("KSEA");
        auto& record = Airport();
        record.altitude = 131978;
        record.magneticVariation = 340;
        record.fuel = 0xC0FFEE & 0x3FFFFFFF;
        record.regionIdent = 77;
        record.apronCount = 0x85;
        model::SetAirportName("Seattle-Tacoma Intl");
        model::state.country = "United States";
        model::state.state = "Washington";
        model::state.city = "Seattle";
        model::state.loaded = true;
    }

    model::AirportRecord& Airport() { return As<model::AirportRecord>(airport); }

    template <class Change>
    bool Edit(Change change) {
        return OkAfter<LoadAirportFields, StoreAirportFields>(airport, change);
    }

    SceneryObject* airport = nullptr;
};

TEST_F(AirportDialog, EverythingIsShown) {
    Airport().fuel = 1u << 30;
    const AirportFields fields = LoadAirportFields(airport);
    EXPECT_EQ(fields.position.latitude, "N47* 00.0000'");
    EXPECT_EQ(fields.elevation, "433");
    EXPECT_EQ(fields.variation, "20.0");
    EXPECT_TRUE(fields.avgas);
    EXPECT_FALSE(fields.jetFuel);
    EXPECT_EQ(fields.id, "KSEA");
    EXPECT_EQ(fields.country, "United States");
    EXPECT_EQ(fields.state, "Washington");
    EXPECT_EQ(fields.city, "Seattle");
    EXPECT_EQ(fields.name, "Seattle-Tacoma Intl");
    app::settings.metric = true;
    EXPECT_EQ(LoadAirportFields(airport).elevation, "132.0");
}

TEST_F(AirportDialog, OkWithoutAChangeRecordsNothing) {
    const auto before = Bytes(airport);
    EXPECT_TRUE(Edit([](AirportFields&) {}));
    EXPECT_EQ(Bytes(airport), before);
    EXPECT_EQ(Actions(), 0);
    EXPECT_FALSE(model::state.modified);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(AirportDialog, ElevationInFeetIsStoredInTruncatedMillimetres) {
    EXPECT_TRUE(Edit([](AirportFields& entered) { entered.elevation = "1000"; }));
    EXPECT_EQ(+Airport().altitude, 304800);
    app::settings.metric = true;
    EXPECT_TRUE(Edit([](AirportFields& entered) { entered.elevation = "100.5"; }));
    EXPECT_EQ(+Airport().altitude, 100500);
}

TEST_F(AirportDialog, AVariationOfFiveEastIsStoredAs355AndFiveWestAs5) {
    EXPECT_TRUE(Edit([](AirportFields& entered) { entered.variation = "5"; }));
    EXPECT_EQ(+Airport().magneticVariation, 355);
    EXPECT_TRUE(Edit([](AirportFields& entered) { entered.variation = "-5"; }));
    EXPECT_EQ(+Airport().magneticVariation, 5);
    EXPECT_FALSE(Edit([](AirportFields& entered) { entered.variation = "east"; }));
    EXPECT_EQ(bad.field, Field::Variation);
}

TEST_F(AirportDialog, TheServicesAreTheTwoTopBitsAndTheOthersStay) {
    const uint32_t carried = Airport().fuel & 0x3FFFFFFF;
    EXPECT_TRUE(Edit([](AirportFields& entered) { entered.jetFuel = true; }));
    EXPECT_EQ(+Airport().fuel, carried | 1u << 31);
    EXPECT_TRUE(Edit([](AirportFields& entered) {
        entered.jetFuel = false;
        entered.avgas = true;
    }));
    EXPECT_EQ(+Airport().fuel, carried | 1u << 30);
}

TEST_F(AirportDialog, BlankTextsAreRefusedInTheirOrder) {
    const auto clear = [](AirportFields& entered) {
        entered.id = entered.country = entered.state = entered.city = " ";
        entered.name.clear();
    };
    EXPECT_FALSE(Edit(clear));
    EXPECT_EQ(LastMessage(), "The Airport ID field is blank. You must supply an ID code");
    EXPECT_EQ(bad.field, Field::Ident);
    EXPECT_FALSE(Edit([&](AirportFields& entered) { clear(entered), entered.id = "KSEA"; }));
    EXPECT_EQ(LastMessage(), "The Country field is blank. You must supply a country");
    EXPECT_EQ(bad.field, Field::Country);
    EXPECT_FALSE(Edit([&](AirportFields& entered) { clear(entered), entered.id = "KSEA", entered.country = "X"; }));
    EXPECT_EQ(LastMessage(), "The City field is blank. You must supply a city");
    EXPECT_EQ(bad.field, Field::City);
    EXPECT_FALSE(Edit([](AirportFields& entered) { entered.name.clear(); }));
    EXPECT_EQ(LastMessage(), "The Airport Name field is blank. You must supply an airport name");
    EXPECT_EQ(bad.field, Field::Name);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(AirportDialog, TheStateMayBeBlank) {
    EXPECT_TRUE(Edit([](AirportFields& entered) { entered.state.clear(); }));
    EXPECT_EQ(model::state.state, "");
}

TEST_F(AirportDialog, APositionErrorComesBeforeAllOthers) {
    EXPECT_FALSE(Edit([](AirportFields& entered) {
        entered.position.latitude = "N 47";
        entered.elevation = "high";
        entered.id.clear();
    }));
    EXPECT_EQ(bad.field, Field::Latitude);
    EXPECT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].buttons, Buttons::OkCancel);
}

TEST_F(AirportDialog, AnotherIdIsAskedAboutAndStoredUpperCased) {
    fake.answers = { Answer::No, Answer::Yes };
    EXPECT_FALSE(Edit([](AirportFields& entered) { entered.id = "kbfi"; }));
    EXPECT_EQ(LastMessage(),
              "You have changed the ID code for the airport. If this is a stock airport\nthen it will result in two "
              "airports at the same location with different ID codes.\n\nDo you want to do this?");
    EXPECT_EQ(bad.field, Field::Ident);
    EXPECT_EQ(model::state.icao, "KSEA");
    EXPECT_TRUE(Edit([](AirportFields& entered) { entered.id = "kbfi"; }));
    EXPECT_EQ(+Airport().ident, model::PackIdent("KBFI") << 5 | 1);
    EXPECT_EQ(model::state.icao, "KBFI");
    model::Undo();
    EXPECT_EQ(+Airport().ident, model::PackIdent("KSEA") << 5 | 1);
    EXPECT_EQ(model::state.icao, "KSEA");
    model::Redo();
    EXPECT_EQ(model::state.icao, "KBFI");
}

TEST_F(AirportDialog, BlanksAreRefusedBeforeAnotherIdIsAskedAbout) {
    EXPECT_FALSE(Edit([](AirportFields& entered) { entered.id = "KBFI", entered.city.clear(); }));
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(LastMessage(), "The City field is blank. You must supply a city");
}

TEST_F(AirportDialog, AnotherIdIsAskedAboutBeforeThePlaceholderIsRefused) {
    SetPoint(airport, kPlaceholder);
    fake.answers = { Answer::Yes };
    EXPECT_FALSE(Edit([](AirportFields& entered) { entered.id = "KBFI"; }));
    ASSERT_EQ(fake.messages.size(), 2u);
    EXPECT_EQ(fake.messages[0].buttons, Buttons::YesNo);
    EXPECT_EQ(fake.messages[1].text, "You must enter at least an approximate\nlatitude and longitude for the airport");
    EXPECT_EQ(model::state.icao, "KSEA");
    EXPECT_EQ(+Airport().ident, model::PackIdent("KSEA") << 5 | 1);
}

TEST_F(AirportDialog, TheSameIdInSmallLettersIsNoChange) {
    EXPECT_TRUE(Edit([](AirportFields& entered) { entered.id = "ksea"; }));
    EXPECT_TRUE(fake.messages.empty());
    EXPECT_EQ(Actions(), 0);
}

TEST_F(AirportDialog, AnIdOfOtherCharactersOrMoreThanFourIsRefused) {
    for (const char* text : { "K EA", "KSEAT", "K-SE" }) {
        EXPECT_FALSE(Edit([&](AirportFields& entered) { entered.id = text; }));
        EXPECT_EQ(LastMessage(), "ERROR: The Airport ID must be 1 to 4 letters or digits");
        EXPECT_EQ(bad.field, Field::Ident);
    }
}

TEST_F(AirportDialog, OwnNavaidsFollowTheIdInTheSameAction) {
    SceneryObject *own = build::Ils("ISEA"), *stock = build::Ils("ISNQ"), *foreign = build::Ndb();
    const uint32_t word = model::PackIdent("KSEA") << 11 | 0x123;
    As<model::IlsPayload>(own).body.region = word;
    As<model::IlsPayload>(stock).body.region = word;
    stock->flags |= model::kStock;
    As<model::NdbPayload>(foreign).region = model::PackIdent("KBFI") << 11;
    const auto beforeForeign = Bytes(foreign);
    fake.answers = { Answer::Yes };
    EXPECT_TRUE(Edit([](AirportFields& entered) { entered.id = "KXYZ"; }));
    EXPECT_EQ(+As<model::IlsPayload>(own).body.region, model::PackIdent("KXYZ") << 11 | 0x123);
    EXPECT_EQ(+As<model::IlsPayload>(stock).body.region, word);
    EXPECT_EQ(Bytes(foreign), beforeForeign);
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(+As<model::IlsPayload>(own).body.region, word);
}

TEST_F(AirportDialog, NavaidsOfAnIdOfFiveCharactersFollowToo) {
    Airport().ident = model::PackIdent("ZZZZZ") << model::kIdentShift | 1;
    model::state.icao = "ZZZZZ";
    SceneryObject *own = build::Ils("ISEA"), *foreign = build::Ils("ISNQ");
    As<model::IlsPayload>(own).body.region = model::PackIdent("ZZZZZ") << 11 | 0x123;
    As<model::IlsPayload>(foreign).body.region = model::PackIdent("ZZZZY") << 11 | 0x123;
    const auto beforeForeign = Bytes(foreign);
    fake.answers = { Answer::Yes };
    EXPECT_TRUE(Edit([](AirportFields& entered) { entered.id = "KXYZ"; }));
    EXPECT_EQ(+As<model::IlsPayload>(own).body.region, model::PackIdent("KXYZ") << 11 | 0x123);
    EXPECT_EQ(Bytes(foreign), beforeForeign);
}

TEST_F(AirportDialog, TextsAreOneActionWithTheRecord) {
    EXPECT_TRUE(Edit([](AirportFields& entered) {
        entered.country = "\xC3\x96sterreich";
        entered.city = "Wien";
        entered.name = "Schwechat";
        entered.elevation = "600";
    }));
    EXPECT_EQ(model::state.country, "\xD6sterreich");
    EXPECT_EQ(model::AirportName(), "Schwechat");
    EXPECT_EQ(LoadAirportFields(airport).country, "\xC3\x96sterreich");
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(model::state.country, "United States");
    EXPECT_EQ(model::state.city, "Seattle");
    EXPECT_EQ(model::AirportName(), "Seattle-Tacoma Intl");
    EXPECT_EQ(+Airport().altitude, 131978);
    model::Redo();
    EXPECT_EQ(model::state.city, "Wien");
}

TEST_F(AirportDialog, ATextAloneIsAnAction) {
    EXPECT_TRUE(Edit([](AirportFields& entered) { entered.city = "Burien"; }));
    EXPECT_EQ(Actions(), 1);
    EXPECT_TRUE(model::state.modified);
}

TEST_F(AirportDialog, TextsThatDoNotFitOrCannotBeHeldAreRefused) {
    EXPECT_FALSE(Edit([](AirportFields& entered) { entered.city = std::string(49, 'x'); }));
    EXPECT_EQ(LastMessage(), "ERROR: The city may have at most 48 characters");
    EXPECT_EQ(bad.field, Field::City);
    EXPECT_TRUE(Edit([](AirportFields& entered) { entered.name = std::string(48, 'x'); }));
    EXPECT_EQ(model::AirportName(), std::string(48, 'x'));
    EXPECT_FALSE(Edit([](AirportFields& entered) { entered.name = "\xE6\x9D\xB1\xE4\xBA\xAC"; }));
    EXPECT_EQ(bad.field, Field::Name);
}

TEST_F(AirportDialog, AnAirportAtThePlaceholderIsRefused) {
    SetPoint(airport, kPlaceholder);
    EXPECT_EQ(LoadAirportFields(airport).position.latitude, "");
    EXPECT_FALSE(Edit([](AirportFields& entered) { entered.city = "X"; }));
    EXPECT_EQ(LastMessage(), "You must enter at least an approximate\nlatitude and longitude for the airport");
    EXPECT_EQ(bad.field, Field::Latitude);
    EXPECT_FALSE(Edit([](AirportFields& entered) { entered.position = { "N0", "E0" }; }));
    EXPECT_EQ(model::state.city, "Seattle");
}

TEST_F(AirportDialog, CarriedFieldsStay) {
    EXPECT_TRUE(Edit([](AirportFields& entered) {
        entered.position = { "N48* 00.0000'", "W122* 00.0000'" };
        entered.elevation = "1";
        entered.variation = "1";
    }));
    EXPECT_EQ(+Airport().regionIdent, 77u);
    EXPECT_EQ(Airport().apronCount, 0x85);
}

class NewAirport : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        airport = MakeNewAirport();
        entered = {
            { "N47* 30.0000'", "W122* 20.0000'" }, "100", "20", true, true, "tst1", "Nowhere", "", "Town", "Test"
        };
    }
    bool Store() { return StoreNewAirport(LoadAirportFields(airport), entered, &bad); }

    SceneryObject* airport = nullptr;
    AirportFields entered;
};

TEST_F(NewAirport, ItStartsUnnamedAtThePlaceholderWithATowerThere) {
    const auto& record = As<model::AirportRecord>(airport);
    EXPECT_EQ(airport->payloadSize, 46u);
    EXPECT_EQ(+record.longitude, 0x18000000u);
    EXPECT_EQ(+record.latitude, 0x10000000u);
    EXPECT_EQ(+record.ident, 1u << 5);
    EXPECT_EQ(model::state.airport, airport);
    ASSERT_EQ(build::List().size(), 2u);
    EXPECT_EQ(+As<model::TowerViewpointRecord>(model::state.tail).latitude, 0x10000000u);
    EXPECT_FALSE(model::state.loaded);
    const AirportFields fields = LoadAirportFields(airport);
    EXPECT_EQ(fields.id, "");
    EXPECT_EQ(fields.position.longitude, "");
    EXPECT_EQ(fields.elevation, "0");
    EXPECT_EQ(fields.variation, "0.0");
}

TEST_F(NewAirport, OkMakesItTheOpenModifiedAirportWithoutHistoryAndLooksAtIt) {
    map::view.rotation = 1;
    map::view.span = 1000;
    EXPECT_TRUE(Store());
    EXPECT_TRUE(fake.messages.empty());  // no question about the ID
    EXPECT_TRUE(model::state.loaded);
    EXPECT_TRUE(model::state.modified);
    EXPECT_FALSE(model::CanUndo());
    EXPECT_EQ(model::state.icao, "TST1");
    EXPECT_EQ(+As<model::AirportRecord>(airport).fuel, 0xC0000000u);
    EXPECT_EQ(map::view.rotation, 0);
    EXPECT_EQ(map::view.span, 3704.3518);
    EXPECT_EQ(map::view.centre.lat, model::PositionOf(airport).lat);
    EXPECT_EQ(map::view.centre.lon, model::PositionOf(airport).lon);
    map::view = {};
}

TEST_F(NewAirport, ItMustBePlaced) {
    entered.position = {};
    EXPECT_FALSE(Store());
    EXPECT_EQ(bad.field, Field::Latitude);
    EXPECT_FALSE(model::state.loaded);
}

TEST_F(NewAirport, CancelLeavesNoAirport) {
    MoveToClick(airport, build::kMiddle);
    CancelNewAirport();
    EXPECT_EQ(model::state.head, nullptr);
    EXPECT_EQ(model::state.airport, nullptr);
    EXPECT_FALSE(model::state.loaded);
    EXPECT_FALSE(model::state.modified);
}

}  // namespace
