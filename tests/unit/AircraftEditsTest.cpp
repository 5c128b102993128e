// AircraftEditsTest.cpp - what OK and "Restore Original Settings" of the aircraft editor write, and what they refuse.
#include "aircraft/AircraftEdits.h"

#include <cstring>
#include <initializer_list>
#include <utility>

#include "aircraft/FilePair.h"
#include "app/ParkingSpecs.h"
#include "fakes/AircraftFixture.h"

namespace {

using namespace aircraft;

constexpr char kConfig[] = "Aircraft/a/Aircraft.cfg", kConfigBackup[] = "Aircraft/a/Aircraft.cfg_BACKUP";
constexpr char kModel[] = "Aircraft/a/Model/plain.mdl", kModelBackup[] = "Aircraft/a/Model/plain.mdl_BACKUP";

constexpr char kOriginal[] =
    "// by hand\r\n[fltsim.0]\r\ntitle=First\r\natc_airline=KLM\r\natc_parking_types=GATE\r\n"
    "atc_parking_codes=KLM,NWA\r\n\r\n[fltsim.1]\r\ntitle=Second\r\natc_airline = UNITED\r\n"
    "atc_parking_types=gate ramp\r\natc_parking_codes=UAL\r\n[General]\r\natc_airline=none";

class AircraftEdits : public AircraftFixture {
protected:
    AircraftEdits() {
        Put(kConfig, kOriginal);
        PutModel("a/Model", "plain", 18);
    }
    Aircraft Load(int number = 0) const {
        Variation row;
        row.folder = Simulator() + "/Aircraft/a";
        row.number = number;
        return LoadAircraft(row);
    }
    template <class Change>
    bool Apply(Change change, int number = 0) {
        const Aircraft aircraft = Load(number);
        AircraftFields fields = aircraft.shown;
        change(&fields);
        return ApplyFields(aircraft, fields, &bad);
    }
    // The original configuration with other stretches in it.
    static std::string Changed(std::initializer_list<std::pair<const char*, const char*>> stretches) {
        std::string text = kOriginal;
        for (const auto& [before, after] : stretches) text.replace(text.find(before), std::strlen(before), after);
        return text;
    }
    void ExpectRefused(const std::string& text, AircraftField field) {
        ASSERT_EQ(fake.messages.size(), 1u);
        EXPECT_EQ(fake.messages[0].text, text);
        EXPECT_EQ(fake.messages[0].icon, platform::Icon::Exclamation);
        EXPECT_EQ(bad, field);
        EXPECT_EQ(Get(kConfig), kOriginal);
        EXPECT_EQ(Get(kModel), Model(18));
        fake.messages.clear();
    }
    void ExpectNoBackups() const {
        EXPECT_FALSE(Exists(kConfigBackup) && !std::filesystem::is_directory(root / kConfigBackup));
        EXPECT_FALSE(Exists(kModelBackup) && !std::filesystem::is_directory(root / kModelBackup));
    }
    AircraftField bad = AircraftField::None;
};

TEST_F(AircraftEdits, TheFieldsShowTheVariation) {
    const Aircraft aircraft = Load();
    EXPECT_EQ(aircraft.title, "First");
    EXPECT_EQ(aircraft.shown.airline, "KLM");
    EXPECT_EQ(aircraft.shown.types, "GATE");
    EXPECT_EQ(aircraft.shown.code, "KLM") << "only the first of several codes";
    EXPECT_EQ(aircraft.shown.radius, "18");
    EXPECT_EQ(aircraft.radius, 18u);
    EXPECT_FALSE(aircraft.hasBackup);
    EXPECT_EQ(Load(1).shown.airline, "UNITED");
    EXPECT_EQ(Load(2).configPath, "") << "there is no such section";
}

TEST_F(AircraftEdits, WithoutAModelTheRadiusIsEmptyAndNotAsked) {
    Put(kModel, Model(201));
    EXPECT_EQ(Load().radius, 0u);
    EXPECT_EQ(Load().shown.radius, "");
    EXPECT_TRUE(Apply([](AircraftFields* fields) { fields->radius = "500"; }));
    EXPECT_EQ(Get(kModel), Model(201));
}

TEST_F(AircraftEdits, NothingChangedWritesNothing) {
    EXPECT_TRUE(Apply([](AircraftFields*) {}));
    EXPECT_TRUE(Apply([](AircraftFields* fields) { fields->radius = " 018 "; }));
    EXPECT_EQ(Get(kConfig), kOriginal);
    EXPECT_EQ(Get(kModel), Model(18));
    ExpectNoBackups();
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(AircraftEdits, OnlyTheChangedValuesOfTheOneSectionChange) {
    EXPECT_TRUE(Apply([](AircraftFields* fields) { fields->airline = "  MARTINAIR "; }));
    EXPECT_EQ(Get(kConfig), Changed({ { "=KLM\r\n", "=MARTINAIR\r\n" } }))
        << "the second code stays while nobody touches the codes";
    EXPECT_EQ(Get(kConfigBackup), kOriginal);
    EXPECT_FALSE(Exists(kModelBackup));
    EXPECT_TRUE(Load().hasBackup);
}

TEST_F(AircraftEdits, ANewCodeTakesThePlaceOfAll) {
    EXPECT_TRUE(Apply([](AircraftFields* fields) { fields->code = "MPH"; }));
    EXPECT_EQ(Get(kConfig), Changed({ { "KLM,NWA", "MPH" } }));
}

TEST_F(AircraftEdits, TypesAreWrittenInTheSimulatorsWords) {
    EXPECT_TRUE(Apply([](AircraftFields* fields) { fields->types = "g, mb"; }));
    EXPECT_EQ(Get(kConfig), Changed({ { "=GATE", "=GATE,MIL_COMBAT" } }));
    EXPECT_TRUE(Apply([](AircraftFields* fields) { fields->code = "ASA"; }, 1));
    EXPECT_EQ(Get(kConfig),
              Changed({ { "=GATE", "=GATE,MIL_COMBAT" }, { "gate ramp", "GATE,RAMP" }, { "=UAL", "=ASA" } }));
}

TEST_F(AircraftEdits, AMissingKeyIsAdded) {
    Put(kConfig, "[fltsim.0]\ntitle=T\n\n[x]\n");
    EXPECT_TRUE(Apply([](AircraftFields* fields) { *fields = { "KLM", "g", "KLM", fields->radius }; }));
    EXPECT_EQ(Get(kConfig),
              "[fltsim.0]\ntitle=T\natc_airline=KLM\natc_parking_types=GATE\natc_parking_codes=KLM\n\n[x]\n");
}

TEST_F(AircraftEdits, AnUnknownTypeIsRefused) {
    EXPECT_FALSE(Apply([](AircraftFields* fields) { fields->types = "gate,Fuel"; }));
    ExpectRefused("ERROR: Unknown parking type 'Fuel'", AircraftField::Types);
    ExpectNoBackups();
}

TEST_F(AircraftEdits, ARadiusBelowOneOrAboveTwoHundredIsRefused) {
    for (const char* radius : { "0", "201", "", "x", "18.5", "-3", "99999999999", "18 m" }) {
        EXPECT_FALSE(Apply([&](AircraftFields* fields) { *fields = { "X", "fuel", "X", radius }; })) << radius;
        ExpectRefused("ERROR: Radius must be between 1 and 200 metres", AircraftField::Radius);
    }
    ExpectNoBackups();
}

TEST_F(AircraftEdits, TheLimitsOfTheRadiusAreAccepted) {
    for (const uint32_t radius : { 1u, 200u }) {
        EXPECT_TRUE(Apply([&](AircraftFields* fields) { fields->radius = std::to_string(radius); }));
        EXPECT_EQ(Get(kModel), Model(radius));
    }
    EXPECT_EQ(Get(kModelBackup), Model(18)) << "the first copy is kept";
    EXPECT_EQ(Get(kConfig), kOriginal);
    EXPECT_FALSE(Exists(kConfigBackup));
}

TEST_F(AircraftEdits, ASecondSaveNeverReplacesABackup) {
    EXPECT_TRUE(Apply([](AircraftFields* fields) { fields->airline = "A"; }));
    EXPECT_TRUE(Apply([](AircraftFields* fields) { fields->airline = "B"; }));
    EXPECT_EQ(Get(kConfigBackup), kOriginal);
}

TEST_F(AircraftEdits, WhatTheFileCannotHoldIsRefused) {
    EXPECT_FALSE(Apply([](AircraftFields* fields) { fields->airline = "\xE6\x9D\xB1"; }));
    ExpectRefused("ERROR: The ATC airline contains something that Aircraft.cfg cannot hold", AircraftField::Airline);
    EXPECT_FALSE(Apply([](AircraftFields* fields) { fields->code = ";"; }));
    ExpectRefused("ERROR: The parking code contains something that Aircraft.cfg cannot hold", AircraftField::Code);
    ExpectNoBackups();
}

TEST_F(AircraftEdits, ASectionThatIsGoneMeanwhileIsRefused) {
    const Aircraft aircraft = Load(1);
    AircraftFields fields = aircraft.shown;
    fields.airline = "X";
    Put(kConfig, "[fltsim.0]\ntitle=First\n");
    EXPECT_FALSE(ApplyFields(aircraft, fields, &bad));
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, "ERROR: This variation is no longer in\n" + aircraft.configPath);
    EXPECT_EQ(Get(kConfig), "[fltsim.0]\ntitle=First\n");
}

TEST_F(AircraftEdits, AFileThatIsGoneMeanwhileIsNamed) {
    const Aircraft aircraft = Load();
    AircraftFields fields = aircraft.shown;
    fields.airline = "X";
    std::filesystem::remove(root / kConfig);
    EXPECT_FALSE(ApplyFields(aircraft, fields, &bad));
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, "ERROR: Unable to read file\n" + aircraft.configPath);
    EXPECT_FALSE(Exists(kConfig)) << "nothing is made in its place";
}

TEST_F(AircraftEdits, AConfigurationWhoseBytesWouldNotComeBackIsRefused) {
    const Aircraft aircraft = Load();
    AircraftFields fields = aircraft.shown;
    fields.airline = "X";
    const std::string half("\xFF\xFE[\0]\0\0", 7);  // UTF-16 with half a character at its end
    Put(kConfig, half);
    EXPECT_FALSE(ApplyFields(aircraft, fields, &bad));
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, "ERROR: The encoding of this file is damaged\n" + aircraft.configPath);
    EXPECT_EQ(Get(kConfig), half);
}

TEST_F(AircraftEdits, AModelThatHasLostItsRadiusMeanwhileIsRefused) {
    const Aircraft aircraft = Load();
    AircraftFields fields = aircraft.shown;
    fields.radius = "20";
    Put(kModel, Model(0));
    EXPECT_FALSE(ApplyFields(aircraft, fields, &bad));
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, "ERROR: This model no longer has a radius\n" + aircraft.modelPath);
    EXPECT_EQ(Get(kModel), Model(0));
    ExpectNoBackups();
}

TEST_F(AircraftEdits, ABackupWhoseValuesTheFileCannotHoldIsNotRestored) {
    Put(kConfigBackup, "[fltsim.0]\r\natc_airline=\xE6\x9D\xB1\r\n");
    EXPECT_FALSE(RestoreAircraft(Load()));
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, "ERROR: Unable to restore atc_airline in\n" + Load().configPath);
    EXPECT_EQ(Get(kConfig), kOriginal);
}

TEST_F(AircraftEdits, WhenTheModelCannotBeWrittenTheConfigurationIsPutBack) {
    std::filesystem::create_directories(root / kModelBackup);  // in the way of the backup
    EXPECT_FALSE(Apply([](AircraftFields* fields) { *fields = { "X", "g", "X", "20" }; }));
    ExpectRefused("ERROR: Unable to write file\n" + Load().modelPath + "_BACKUP", AircraftField::None);
    ExpectNoBackups();
}

TEST_F(AircraftEdits, AnOlderBackupStaysWhenAWriteIsTakenBack) {
    EXPECT_TRUE(Apply([](AircraftFields* fields) { fields->airline = "A"; }));
    std::filesystem::create_directories(root / kModelBackup);
    EXPECT_FALSE(Apply([](AircraftFields* fields) { *fields = { "X", "g", "X", "20" }; }));
    EXPECT_EQ(Get(kConfig), Changed({ { "=KLM\r\n", "=A\r\n" } }));
    EXPECT_EQ(Get(kConfigBackup), kOriginal);
}

TEST_F(AircraftEdits, WithoutABackupNothingIsWritten) {
    std::filesystem::create_directories(root / kConfigBackup);
    EXPECT_FALSE(Apply([](AircraftFields* fields) { *fields = { "X", "g", "X", "20" }; }));
    ExpectRefused("ERROR: Unable to write file\n" + Load().configPath + "_BACKUP", AircraftField::None);
    ExpectNoBackups();
}

TEST_F(AircraftEdits, RestoringPutsTheVariationAndItsModelBack) {
    EXPECT_TRUE(Apply([](AircraftFields* fields) { *fields = { "X", "g c", "X", "20" }; }));
    EXPECT_TRUE(Apply([](AircraftFields* fields) { *fields = { "Y", "d", "Y", "30" }; }));
    EXPECT_TRUE(Apply([](AircraftFields* fields) { fields->airline = "Z"; }, 1));
    ASSERT_TRUE(Load().hasBackup);
    EXPECT_TRUE(RestoreAircraft(Load()));
    EXPECT_EQ(Get(kConfig), Changed({ { "UNITED", "Z" }, { "gate ramp", "GATE,RAMP" } })) << "the other one stays";
    EXPECT_EQ(Get(kModel), Model(18));
    EXPECT_TRUE(RestoreAircraft(Load(1)));
    EXPECT_EQ(Get(kConfig), kOriginal);
    EXPECT_EQ(Get(kConfigBackup), kOriginal) << "backups stay";
    EXPECT_EQ(Get(kModelBackup), Model(18));
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(AircraftEdits, RestoringWithoutABackupDoesNothing) {
    Put(kModelBackup, Model(5));
    EXPECT_TRUE(RestoreAircraft(Load()));
    EXPECT_EQ(Get(kConfig), kOriginal);
    EXPECT_EQ(Get(kModel), Model(18));
}

TEST_F(AircraftEdits, AVariationThatTheBackupDoesNotHaveKeepsItsValues) {
    Put(kConfigBackup, "[fltsim.0]\r\natc_airline=OLD\r\n");
    EXPECT_FALSE(RestoreAircraft(Load(1)));
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, "ERROR: This variation is not in\n" + Load().configPath + "_BACKUP");
    EXPECT_EQ(Get(kConfig), kOriginal);
    EXPECT_TRUE(RestoreAircraft(Load(0)));
    EXPECT_EQ(Get(kConfig), Changed({ { "=KLM\r\n", "=OLD\r\n" }, { "=GATE", "=" }, { "KLM,NWA", "" } }));
}

TEST_F(AircraftEdits, AModelComesBackWhereTheBackupDoesNotHaveTheVariation) {
    Put(kConfigBackup, "[fltsim.0]\r\natc_airline=OLD\r\n");
    Put(kModelBackup, Model(5));
    EXPECT_TRUE(RestoreAircraft(Load(1)));
    EXPECT_EQ(Get(kModel), Model(5));
    EXPECT_EQ(Get(kConfig), kOriginal);
    EXPECT_TRUE(fake.messages.empty());
    EXPECT_FALSE(RestoreAircraft(Load(1))) << "now there is nothing to restore";
    EXPECT_EQ(fake.messages.size(), 1u);
}

TEST_F(AircraftEdits, AModelThatIsGoneComesBackFromItsBackup) {
    EXPECT_TRUE(Apply([](AircraftFields* fields) { *fields = { "X", "g", "X", "20" }; }));
    std::filesystem::remove(root / kModel);
    EXPECT_EQ(Load().radius, 0u);
    EXPECT_TRUE(RestoreAircraft(Load()));
    EXPECT_EQ(Get(kModel), Model(18));
    EXPECT_EQ(Get(kConfig), kOriginal);
    EXPECT_EQ(Load().radius, 18u);
}

TEST_F(AircraftEdits, AFileThatWasNotThereIsGoneAgainWhenTheNextCannotBeWritten) {
    const std::string fresh = Simulator() + "/fresh.mdl", unwritable = Simulator() + "/missing/other.mdl";
    std::string failed;
    EXPECT_FALSE(WriteChanges({ { fresh, {}, { 'x' }, false }, { unwritable, {}, { 'x' }, false } }, &failed));
    EXPECT_EQ(failed, unwritable);
    EXPECT_FALSE(Exists("fresh.mdl"));
}

TEST_F(AircraftEdits, TheCodeSelectorOffersTheCodesOfAllSpecs) {
    app::parkingSpecs = { { .name = "Air Canada", .codes = { "ACA", "jza" } }, { .name = "KLM", .codes = { "KLM" } } };
    const std::vector<CodeChoice> choices = CodeChoices();
    ASSERT_EQ(choices.size(), 3u);
    EXPECT_EQ(choices[1].code, "JZA");
    EXPECT_EQ(choices[1].text, "JZA - Air Canada");
    EXPECT_EQ(CodeChoiceOf(choices, "klm"), 2);
    EXPECT_EQ(CodeChoiceOf(choices, "KL"), -1);
    EXPECT_EQ(CodeChoiceOf(choices, ""), -1);
    app::parkingSpecs.clear();
}

}  // namespace
