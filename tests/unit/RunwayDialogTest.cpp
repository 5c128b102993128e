#include "dialogs/RunwayDialog.h"

#include <cstring>
#include <limits>

#include "dialogs/Choices.h"
#include "dialogs/Subject.h"
#include "fakes/RunwayFixture.h"

namespace {

using namespace dialogs;
using model::RunwayPayload;

class RunwayDialog : public RunwayFixture {};

TEST_F(RunwayDialog, NumbersAndSuffixesAreListedWithTheirTexts) {
    const auto numbers = RunwayNumberChoices();
    ASSERT_EQ(numbers.size(), 45u);
    EXPECT_EQ(numbers[0], "00");
    EXPECT_EQ(numbers[4], "04");
    EXPECT_EQ(numbers[36], "36");
    EXPECT_EQ((std::vector<std::string>{ numbers.begin() + 37, numbers.end() }),
              (std::vector<std::string>{ "N", "E", "NW", "SW", "S", "W", "SE", "NE" }));
    EXPECT_STREQ(kSuffixChoices[4], "W");
    EXPECT_EQ(EndName(runway, kBaseEnd), "16L");
    EXPECT_EQ(EndName(runway, kReciprocalEnd), "34R");
}

TEST_F(RunwayDialog, TheDataPageShowsFeetWithoutDecimals) {
    Parts().primaryBlastPad = { 4, 60, 45 };
    Parts().secondaryThreshold = { 4, 150, 45 };
    Body().primaryIls = model::PackIdent("ISNQ");
    const RunwayFields fields = LoadRunwayFields(runway);
    EXPECT_EQ(fields.length, "9843");
    EXPECT_EQ(fields.width, "150");
    EXPECT_EQ(fields.patternAltitude, "984");
    EXPECT_EQ(fields.elevation, "433");
    EXPECT_EQ(fields.heading, "164.0");
    EXPECT_EQ(fields.surface, 4);
    EXPECT_EQ(fields.ends[0].overrun, "197");
    EXPECT_EQ(fields.ends[1].displaced, "492");
    EXPECT_EQ(fields.ends[1].overrun, "0");
    EXPECT_EQ(fields.ends[0].ilsIdent, "ISNQ");
    EXPECT_EQ(fields.ends[1].ilsIdent, "");
    EXPECT_EQ(fields.ends[0].number, 16);
    EXPECT_EQ(fields.ends[0].suffix, 1);
    app::settings.metric = true;
    EXPECT_EQ(LoadRunwayFields(runway).width, "45.7");
    EXPECT_EQ(LoadRunwayFields(runway).elevation, "132.0");
}

TEST_F(RunwayDialog, OkWithoutAChangeRecordsNothing) {
    Parts().primaryOverrun = { 4, 100, 45 };
    Parts().primaryApproachLights = 0xFFFF;
    Parts().primaryLeftVasi = { 99, 1, 2, 3, 4 };
    Body().surface = 0x80FE;
    Body().markings = 0xFFFF;
    Body().lights = Body().pattern = 0xFF;
    const auto before = Bytes(runway);
    EXPECT_TRUE(Edit([](RunwayFields&) {}));
    EXPECT_EQ(Bytes(runway), before);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(RunwayDialog, EachDataFieldWritesItsOwnBytes) {
    const auto before = Bytes(runway);
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.length = "10000"; }));
    EXPECT_EQ(+Body().length, 3048.0F);
    for (size_t offset : Changed(before)) EXPECT_TRUE(offset >= 26 && offset < 30) << offset;
    model::Undo();
    EXPECT_EQ(Bytes(runway), before);
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.width = "200"; }));
    EXPECT_EQ(+Body().width, 60.96F);
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.patternAltitude = "1000"; }));
    EXPECT_EQ(+Body().patternAltitude, 304.8F);
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.heading = "359.9"; }));
    EXPECT_EQ(+Body().heading, 359.9F);
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.elevation = "1000"; }));
    EXPECT_EQ(+Body().altitude, 304800);
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.surface = 1; }));
    EXPECT_EQ(+Body().surface, 1);
    EXPECT_EQ(Actions(), 5);
}

// One change of the editor, and the bytes of the payload that it may touch.
struct OneChange {
    const char* name;
    void (*change)(RunwayFields& entered);
    size_t first, size;
};
constexpr OneChange kOneChanges[] = {
    { "surface", [](RunwayFields& f) { f.surface = 1; }, 0, 1 },
    { "base number", [](RunwayFields& f) { f.ends[0].number = 5; }, 2, 1 },
    { "base suffix", [](RunwayFields& f) { f.ends[0].suffix = 3; }, 3, 1 },
    { "reciprocal number", [](RunwayFields& f) { f.ends[1].number = 5; }, 4, 1 },
    { "reciprocal suffix", [](RunwayFields& f) { f.ends[1].suffix = 3; }, 5, 1 },
    { "position",
      [](RunwayFields& f) {
          f.position = ShowPoint(build::Encoded({ 500, 500 }));
      },
      14, 8 },
    { "elevation", [](RunwayFields& f) { f.elevation = "700"; }, 22, 4 },
    { "width", [](RunwayFields& f) { f.width = "222"; }, 30, 4 },
    { "heading", [](RunwayFields& f) { f.heading = "12.3"; }, 34, 4 },
    { "pattern altitude", [](RunwayFields& f) { f.patternAltitude = "1500"; }, 38, 4 },
    { "marking", [](RunwayFields& f) { f.precision = !f.precision; }, 42, 2 },
    { "light level", [](RunwayFields& f) { f.edgeLights = f.edgeLights == 3 ? 1 : 3; }, 44, 1 },
    { "closed", [](RunwayFields& f) { f.ends[1].noLanding = !f.ends[1].noLanding; }, 45, 1 },
    { "base threshold", [](RunwayFields& f) { f.ends[0].displaced = "150"; }, 48, 4 },
    { "reciprocal threshold", [](RunwayFields& f) { f.ends[1].displaced = "150"; }, 58, 4 },
    { "base overrun", [](RunwayFields& f) { f.ends[0].overrun = "150"; }, 68, 4 },
    { "reciprocal overrun", [](RunwayFields& f) { f.ends[1].overrun = "150"; }, 78, 4 },
    { "base strobes", [](RunwayFields& f) { f.ends[0].strobes = "0x0A"; }, 107, 1 },
    { "base system", [](RunwayFields& f) { f.ends[0].approachSystem = 5; }, 106, 1 },
    { "reciprocal lights", [](RunwayFields& f) { f.ends[1].reil = !f.ends[1].reil; }, 108, 1 },
    { "left system", [](RunwayFields& f) { f.ends[0].left.system = 3; }, 110, 2 },
    { "left offset", [](RunwayFields& f) { f.ends[0].left.offset = "99"; }, 112, 4 },
    { "right distance", [](RunwayFields& f) { f.ends[0].right.distance = "99"; }, 134, 4 },
    { "left spacing", [](RunwayFields& f) { f.ends[1].left.spacing = "99"; }, 156, 4 },
    { "right slope", [](RunwayFields& f) { f.ends[1].right.slope = "4.5"; }, 178, 4 },
};

TEST_F(RunwayDialog, EachFieldWritesNoByteButItsOwnWhateverTheOthersHold) {
    ASSERT_EQ(runway->payloadSize, 183u);
    std::fill_n(runway->payload, 183, uint8_t{ 0x55 });
    Body().primaryNumber = 9;
    Parts().primaryApproachLights = Parts().secondaryApproachLights = 0xE000;
    for (const OneChange& row : kOneChanges) {
        for (const bool metric : { false, true }) {
            app::settings.metric = metric;
            const auto before = Bytes(runway);
            EXPECT_TRUE(Edit(row.change)) << row.name << ": " << LastMessage();
            const auto changed = Changed(before);
            EXPECT_FALSE(changed.empty()) << row.name;
            for (const size_t offset : changed)
                EXPECT_TRUE(offset >= row.first && offset < row.first + row.size) << row.name << ", byte " << offset;
            EXPECT_EQ(Actions(), 1) << row.name;
            model::Undo();
            EXPECT_EQ(Bytes(runway), before) << row.name;
        }
    }
}

TEST_F(RunwayDialog, NumbersThatAreNoneAreNoChange) {
    build::Ils("ISEA");
    Body().primaryIls = model::PackIdent("ISEA");
    Parts().primaryLeftVasi = { 8, 38, 1195.2F, 9, 3 };
    const float odd[] = { std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity() };
    for (const float number : odd) {
        Body().length = Body().width = Body().heading = number;
        const auto before = Bytes(runway);
        EXPECT_TRUE(Edit([](RunwayFields&) {}));
        EXPECT_EQ(Bytes(runway), before);
        EXPECT_EQ(Actions(), 0);
        EXPECT_TRUE(fake.messages.empty());
    }
    fake.answers = { platform::Answer::No };
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.length = "9000"; }));
    EXPECT_EQ(+Parts().primaryLeftVasi.biasZ, 1195.2F);
}

TEST_F(RunwayDialog, FieldsAreReadInTheirOrder) {
    std::vector<std::pair<Field, int>> refused;
    const auto refuse = [&](auto change) {
        EXPECT_FALSE(Edit(change));
        refused.emplace_back(bad.field, bad.part);
    };
    RunwayFields wrong = LoadRunwayFields(runway);
    wrong.elevation = wrong.length = wrong.width = wrong.patternAltitude = wrong.heading = "x";
    for (RunwayEndFields& end : wrong.ends) end.overrun = end.displaced = "x";
    const RunwayFields right = LoadRunwayFields(runway);
    std::string RunwayFields::*const first[] = { &RunwayFields::elevation, &RunwayFields::length,
                                                 &RunwayFields::width };
    for (const auto text : first) {
        refuse([&](RunwayFields& entered) { entered = wrong; });
        wrong.*text = right.*text;
    }
    for (const auto text : { &RunwayEndFields::overrun, &RunwayEndFields::displaced }) {
        for (size_t end = 0; end < 2; ++end) {
            refuse([&](RunwayFields& entered) { entered = wrong; });
            wrong.ends[end].*text = right.ends[end].*text;
        }
    }
    refuse([&](RunwayFields& entered) { entered = wrong; });
    wrong.patternAltitude = right.patternAltitude;
    refuse([&](RunwayFields& entered) { entered = wrong; });
    EXPECT_EQ(refused, (std::vector<std::pair<Field, int>>{ { Field::Elevation, 0 },
                                                            { Field::Length, 0 },
                                                            { Field::Width, 0 },
                                                            { Field::Overrun, 0 },
                                                            { Field::Overrun, 1 },
                                                            { Field::DisplacedThreshold, 0 },
                                                            { Field::DisplacedThreshold, 1 },
                                                            { Field::PatternAltitude, 0 },
                                                            { Field::Heading, 0 } }));
}

TEST_F(RunwayDialog, AnElevationInFeetIsTruncatedToMillimetres) {
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.elevation = "433"; }));
    EXPECT_EQ(+Body().altitude, 131978);  // of 131978.4
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.elevation = "855"; }));
    EXPECT_EQ(+Body().altitude, 260604);  // 260603 with a foot of 304.8 mm
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.elevation = "-10.5"; }));
    EXPECT_EQ(+Body().altitude, -3200);  // of -3200.4
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.elevation = "0.5479"; }));
    EXPECT_EQ(+Body().altitude, 166);  // of 166.99992
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.elevation = "0.0032808"; }));
    EXPECT_EQ(+Body().altitude, 0);  // of 0.99998784
}

TEST_F(RunwayDialog, TheHighByteOfTheSurfaceStays) {
    Body().surface = 0x8004;
    EXPECT_EQ(LoadRunwayFields(runway).surface, 4);
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.surface = 23; }));
    EXPECT_EQ(+Body().surface, 0x8017);
}

TEST_F(RunwayDialog, InMetresTheElevationIsAWholeNumber) {
    app::settings.metric = true;
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.elevation = "130"; }));
    EXPECT_EQ(+Body().altitude, 130000);
    EXPECT_FALSE(Edit([](RunwayFields& entered) { entered.elevation = "130.5"; }));
    EXPECT_EQ(bad.field, Field::Elevation);
}

TEST_F(RunwayDialog, TheSixFlagsAreBits24To29OfTheFlagsWord) {
    bool RunwayEndFields::*const boxes[] = { &RunwayEndFields::noTakeoff, &RunwayEndFields::noLanding,
                                             &RunwayEndFields::rightPattern };
    int bit = 24;
    for (size_t end = 0; end < 2; ++end) {
        for (const auto box : boxes) {
            Body().pattern = 0xC0;
            EXPECT_TRUE(Edit([&](RunwayFields& entered) { entered.ends[end].*box = true; }));
            uint32_t word;
            std::memcpy(&word, runway->payload + 42, 4);
            EXPECT_EQ(word, 0xC0000000u | 1u << bit);
            EXPECT_TRUE(LoadRunwayFields(runway).ends[end].*box);
            ++bit;
        }
    }
}

TEST_F(RunwayDialog, AnEmptiedLengthOrWidthIsNone) {
    EXPECT_FALSE(Edit([](RunwayFields& entered) { entered.length = ""; }));
    EXPECT_EQ(LastMessage(), "ERROR: You must enter the runway length (e.g. 10000 feet)\n");
    EXPECT_EQ(bad.field, Field::Length);
    EXPECT_FALSE(Edit([](RunwayFields& entered) { entered.width = " "; }));
    EXPECT_EQ(LastMessage(), "ERROR: You must enter the runway width (e.g. 200 feet)\n");
    EXPECT_EQ(bad.field, Field::Width);
    EXPECT_FALSE(Edit([](RunwayFields& entered) { entered.ends[0].overrun = ""; }));
    EXPECT_EQ(bad.field, Field::Overrun);
}

TEST_F(RunwayDialog, ChecksComeInTheirOrderWithTheirTexts) {
    SetPoint(runway, kPlaceholder);
    Body().length = Body().width = 0;
    Body().primaryNumber = 41;
    EXPECT_FALSE(Edit([](RunwayFields&) {}));
    EXPECT_EQ(LastMessage(),
              "ERROR: You must enter a latitude and longitude for the center of the runway.\n"
              "You may click on the main window to set the latitude and longitude");
    EXPECT_EQ(bad.field, Field::Latitude);
    SetPoint(runway, build::Encoded({}));
    EXPECT_FALSE(Edit([](RunwayFields&) {}));
    EXPECT_EQ(LastMessage(), "ERROR: You must enter the runway length (e.g. 10000 feet)\n");
    EXPECT_EQ(bad.field, Field::Length);
    EXPECT_FALSE(Edit([](RunwayFields& entered) { entered.length = "9000"; }));
    EXPECT_EQ(LastMessage(), "ERROR: You must enter the runway width (e.g. 200 feet)\n");
    EXPECT_EQ(bad.field, Field::Width);
    EXPECT_FALSE(Edit([](RunwayFields& entered) { entered.length = "9000", entered.width = "150"; }));
    EXPECT_EQ(LastMessage(),
              "ERROR: The Base runway designator can't be S,W,SE or NE,\nit must be N,E,NW,SW or 0 to 36");
    EXPECT_EQ(bad.field, Field::Designator);
    EXPECT_EQ(bad.part, kBaseEnd);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(RunwayDialog, ABaseEndOfNorthIsAcceptedAndOfSouthRefused) {
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.ends[0].number = 37; }));
    EXPECT_EQ(Body().primaryNumber, 37);
    EXPECT_FALSE(Edit([](RunwayFields& entered) { entered.ends[0].number = 41; }));
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.ends[1].number = 41; }));
}

TEST_F(RunwayDialog, ALengthOfZeroIsRefusedButLessThanZeroPasses) {
    EXPECT_FALSE(Edit([](RunwayFields& entered) { entered.length = "0"; }));
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.length = "-100"; }));
    EXPECT_LT(+Body().length, 0);
}

TEST_F(RunwayDialog, AnUntouchedLengthKeepsTheStoredMetres) {
    Body().length = 3000.123F;
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.width = "200"; }));
    EXPECT_EQ(+Body().length, 3000.123F);
}

TEST_F(RunwayDialog, NonsenseIsRefusedWithItsRange) {
    EXPECT_FALSE(Edit([](RunwayFields& entered) { entered.heading = "400"; }));
    EXPECT_EQ(LastMessage(), "ERROR: The true heading must be a number from 0 to 360 degrees");
    EXPECT_FALSE(Edit([](RunwayFields& entered) { entered.length = "9000 ft"; }));
    EXPECT_EQ(bad.field, Field::Length);
    EXPECT_FALSE(Edit([](RunwayFields& entered) { entered.ends[1].overrun = "-1"; }));
    EXPECT_EQ(bad.field, Field::Overrun);
    EXPECT_EQ(bad.part, kReciprocalEnd);
    EXPECT_FALSE(Edit([](RunwayFields& entered) { entered.ends[0].displaced = "x"; }));
    EXPECT_EQ(bad.field, Field::DisplacedThreshold);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(RunwayDialog, TheOverrunAreaIsTheBlastPadAndIsMadeAfterTheRunway) {
    Parts().primaryOverrun = { 9, 77, 30 };
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.ends[0].overrun = "200"; }));
    EXPECT_EQ(+Parts().primaryBlastPad.surface, 4);
    EXPECT_EQ(+Parts().primaryBlastPad.length, 60.96F);
    EXPECT_EQ(+Parts().primaryBlastPad.width, 45.72F);
    EXPECT_EQ(+Parts().primaryOverrun.length, 77);
    Parts().primaryBlastPad.surface = 12;
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.ends[0].overrun = "300"; }));
    EXPECT_EQ(+Parts().primaryBlastPad.surface, 12);
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.ends[0].overrun = "0"; }));
    EXPECT_EQ(+Parts().primaryBlastPad.surface, 0);
    EXPECT_EQ(+Parts().primaryBlastPad.width, 0);
}

TEST_F(RunwayDialog, NewPartsOfAnEndGetTheSurfaceThatIsChosenWithThem) {
    Body().surface = 0x8004;
    EXPECT_TRUE(Edit([](RunwayFields& entered) {
        entered.surface = 23;
        entered.width = "100";
        entered.ends[0].overrun = "200";
        entered.ends[1].displaced = "300";
    }));
    EXPECT_EQ(+Body().surface, 0x8017);
    for (const model::RunwayAreaPart& part : { Parts().primaryBlastPad, Parts().secondaryThreshold }) {
        EXPECT_EQ(+part.surface, 23) << "without the bits that the runway's word carries";
        EXPECT_EQ(+part.width, 30.48F);
    }
}

TEST_F(RunwayDialog, TheDisplacedThresholdOfEachEndIsItsOwnPart) {
    EXPECT_TRUE(Edit([](RunwayFields& entered) {
        entered.ends[0].displaced = "100";
        entered.ends[1].displaced = "200";
    }));
    EXPECT_EQ(+Parts().primaryThreshold.length, 30.48F);
    EXPECT_EQ(+Parts().secondaryThreshold.length, 60.96F);
    EXPECT_EQ(+Parts().secondaryThreshold.surface, 4);
}

TEST_F(RunwayDialog, TheMagneticHeadingIsTheTrueOneLessTheEastVariation) {
    EXPECT_EQ(VariationText(), "20.0");
    EXPECT_EQ(MagneticHeadingText("164.0"), "144.0");
    EXPECT_EQ(MagneticHeadingText("10"), "350.0");
    EXPECT_EQ(MagneticHeadingText("20"), "0.0");
    EXPECT_EQ(MagneticHeadingText("19.99"), "0.0");
    EXPECT_EQ(MagneticHeadingText("north"), "");
    EXPECT_EQ(MagneticHeadingText("400"), "");
    As<model::AirportRecord>(airport).magneticVariation = -20;  // as a file may hold it
    EXPECT_EQ(VariationText(), "20.0");
    EXPECT_EQ(MagneticHeadingText("10"), "350.0");
}

TEST_F(RunwayDialog, AnEndIsNamedAfterItsBoxesAndKeepsACodeThatTheyCannotShow) {
    RunwayEndFields end = LoadRunwayFields(runway).ends[kBaseEnd];
    EXPECT_EQ(NameOfEnd(end, runway, kBaseEnd), "16L");
    end.number = 44;
    end.suffix = 0;
    EXPECT_EQ(NameOfEnd(end, runway, kBaseEnd), "NE");
    Body().secondaryNumber = 77;
    end = LoadRunwayFields(runway).ends[kReciprocalEnd];
    ASSERT_EQ(end.number, -1);
    EXPECT_EQ(NameOfEnd(end, runway, kReciprocalEnd), EndName(runway, kReciprocalEnd));
}

TEST_F(RunwayDialog, ANewRunwayIsAVisualOneOfAsphaltAndMustBePlacedAndMeasured) {
    As<model::AirportRecord>(airport).altitude = 5000;
    SceneryObject* made = InsertRunway();
    EXPECT_EQ(made->payloadSize, 183u);
    const RunwayFields shown = LoadRunwayFields(made);
    EXPECT_EQ(shown.position.latitude, "");
    EXPECT_EQ(shown.surface, 4);
    EXPECT_EQ(shown.width, "151");
    EXPECT_EQ(shown.length, "0");
    EXPECT_TRUE(shown.centreLine && shown.numbers);
    EXPECT_FALSE(shown.threshold || shown.precision);
    EXPECT_EQ(shown.edgeLights, 2);
    EXPECT_EQ(+As<RunwayPayload>(made).body.altitude, 5000);
    RunwayFields entered = shown;
    EXPECT_FALSE(StoreRunwayFields(shown, entered, made, &bad));
    EXPECT_EQ(bad.field, Field::Latitude);
    entered.position = MoveToClick(made, build::At({ 500, 0 }));
    EXPECT_FALSE(StoreRunwayFields(shown, entered, made, &bad));
    EXPECT_EQ(bad.field, Field::Length);
    EXPECT_EQ(Actions(), 0);
    entered.length = "5000";
    EXPECT_TRUE(StoreRunwayFields(shown, entered, made, &bad));
    EXPECT_EQ(+As<RunwayPayload>(made).body.width, 46);
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(model::CountKind(model::kRunway), 1u);
}

TEST_F(RunwayDialog, CancelTakesANewRunwayAwayWithoutATrace) {
    SceneryObject* made = InsertRunway();
    MoveToClick(made, build::kMiddle);
    CancelDialog();
    EXPECT_EQ(model::CountKind(model::kRunway), 1u);
    EXPECT_FALSE(model::state.modified);
    EXPECT_EQ(model::state.undoHead, nullptr);
}

}  // namespace
