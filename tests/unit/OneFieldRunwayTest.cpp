// OneFieldRunwayTest.cpp - the runway editor, field by field: what the written file holds elsewhere stays as it was.
#include <cstddef>

#include "dialogs/RunwayDialog.h"
#include "fakes/OneField.h"
#include "model/RunwayBits.h"

namespace {

using namespace dialogs;
using model::RunwayRecord;
using platform::Answer;

class OneFieldRunway : public OneFieldTest {
protected:
    void ExpectRunway(const std::vector<FieldRow<RunwayFields>>& rows) {
        ExpectFields<RunwayFields>(model::kRunway, 1, LoadRunwayFields, StoreRunwayFields, rows);
    }
};

constexpr RecordAt runway = { "0004#1" };
constexpr size_t kSurface = offsetof(RunwayRecord, surface), kLongitude = offsetof(RunwayRecord, longitude),
                 kLatitude = offsetof(RunwayRecord, latitude), kAltitude = offsetof(RunwayRecord, altitude),
                 kLength = offsetof(RunwayRecord, length), kWidth = offsetof(RunwayRecord, width),
                 kHeading = offsetof(RunwayRecord, heading), kPatternAltitude = offsetof(RunwayRecord, patternAltitude),
                 kMarkings = offsetof(RunwayRecord, markings), kLights = offsetof(RunwayRecord, lights),
                 kPattern = offsetof(RunwayRecord, pattern);

// Records inside the runway's.
constexpr RecordAt baseThreshold = { "0004#1/0005#0" }, reciprocalThreshold = { "0004#1/0006#0" },
                   basePad = { "0004#1/0007#0" }, reciprocalPad = { "0004#1/0008#0" };
constexpr RecordAt vasi[] = { { "0004#1/000B#0" }, { "0004#1/000C#0" }, { "0004#1/000D#0" }, { "0004#1/000E#0" } };
constexpr RecordAt approach[] = { { "0004#1/000F#0" }, { "0004#1/0010#0" } };
constexpr size_t kAreaLength = offsetof(model::RunwayAreaPart, length);
constexpr size_t kBiasX = offsetof(model::VasiPart, biasX), kBiasZ = offsetof(model::VasiPart, biasZ),
                 kSpacing = offsetof(model::VasiPart, spacing), kPitch = offsetof(model::VasiPart, pitch);

Place Mark(uint32_t bit) { return runway(kMarkings, 2, bit); }

// What belongs to the runway's base end.
constexpr RecordAt start = { "0011#1" }, ils = { "13:0013#1" }, localizer = { "13:0013#1/0014#0" },
                   slope = { "13:0013#1/0015#0" }, dme = { "13:0013#1/0016#0" };

std::vector<Place> With(std::vector<Place> places, const std::vector<Place>& more) {
    places.insert(places.end(), more.begin(), more.end());
    return places;
}

std::vector<Place> Belongings(bool turned) {
    const std::vector<Place> places = { start(offsetof(model::StartLocationRecord, longitude), 8),
                                        ils(offsetof(model::VorRecord, longitude), 8),
                                        slope(offsetof(model::GlideSlopePart, longitude), 8),
                                        dme(offsetof(model::DmePart, longitude), 8) };
    if (!turned) return places;
    return With(places, { start(offsetof(model::StartLocationRecord, heading)),
                          localizer(offsetof(model::LocalizerPart, heading)) });
}

TEST_F(OneFieldRunway, TheFieldsOfTheDataPageChangeTheirBytesAlone) {
    const std::vector<Place> units = { vasi[0](kBiasZ), vasi[1](kBiasZ), vasi[2](kBiasZ), vasi[3](kBiasZ) };
    const std::vector<Place> latitude = { runway(kLatitude) }, heading = { runway(kHeading) };
    ExpectRunway({
        { "latitude", [](RunwayFields& f) { f.position.latitude = "N47* 05.5000'"; }, latitude },
        { "latitude, with what belongs to it", [](RunwayFields& f) { f.position.latitude = "N47* 05.5000'"; },
          With(latitude, Belongings(false)), Answer::Yes },
        { "longitude", [](RunwayFields& f) { f.position.longitude = "W122* 05.5000'"; }, { runway(kLongitude) } },
        { "elevation", [](RunwayFields& f) { f.elevation = "333"; }, { runway(kAltitude) } },
        // The distance of a VASI is measured from the threshold, but stored from the middle.
        { "length", [](RunwayFields& f) { f.length = "7777"; }, With({ runway(kLength) }, units) },
        { "width", [](RunwayFields& f) { f.width = "222"; }, { runway(kWidth) } },
        { "pattern altitude", [](RunwayFields& f) { f.patternAltitude = "1500"; }, { runway(kPatternAltitude) } },
        { "surface", [](RunwayFields& f) { f.surface = 7; }, { runway(kSurface, 1) } },
        { "heading", [](RunwayFields& f) { f.heading = "95.0"; }, heading },
        { "heading, with what belongs to it", [](RunwayFields& f) { f.heading = "95.0"; },
          With(heading, Belongings(true)), Answer::Yes },
        { "base overrun", [](RunwayFields& f) { f.ends[0].overrun = "123"; }, { basePad(kAreaLength) } },
        { "reciprocal overrun", [](RunwayFields& f) { f.ends[1].overrun = "123"; }, { reciprocalPad(kAreaLength) } },
        { "no base overrun", [](RunwayFields& f) { f.ends[0].overrun = "0"; }, { Whole("0004#1/0007#0") } },
        { "base threshold", [](RunwayFields& f) { f.ends[0].displaced = "123"; }, { baseThreshold(kAreaLength) } },
        { "reciprocal threshold",
          [](RunwayFields& f) { f.ends[1].displaced = "123"; },
          { reciprocalThreshold(kAreaLength) } },
        { "no reciprocal threshold", [](RunwayFields& f) { f.ends[1].displaced = "0"; }, { Whole("0004#1/0006#0") } },
        { "base closed for takeoff",
          [](RunwayFields& f) { f.ends[0].noTakeoff = true; },
          { runway(kPattern, 1, 0x01) } },
        { "base closed for landing",
          [](RunwayFields& f) { f.ends[0].noLanding = true; },
          { runway(kPattern, 1, 0x02) } },
        { "base pattern", [](RunwayFields& f) { f.ends[0].rightPattern = true; }, { runway(kPattern, 1, 0x04) } },
        { "reciprocal closed for takeoff",
          [](RunwayFields& f) { f.ends[1].noTakeoff = true; },
          { runway(kPattern, 1, 0x08) } },
        { "reciprocal closed for landing",
          [](RunwayFields& f) { f.ends[1].noLanding = true; },
          { runway(kPattern, 1, 0x10) } },
        { "reciprocal pattern", [](RunwayFields& f) { f.ends[1].rightPattern = true; }, { runway(kPattern, 1, 0x20) } },
    });
}

// The new name goes wherever the end is named: the start location, the ILS and its name, the links along the runway.
TEST_F(OneFieldRunway, TheDesignatorsOfARunwayChangeTheirBytesAlone) {
    constexpr size_t kLink = 2 + model::kTaxiLinkFileSize;
    constexpr RecordAt link = { "001C#0", kLink };
    ExpectRunway({
        { "base number",
          [](RunwayFields& f) { f.ends[0].number = 12; },
          { runway(offsetof(RunwayRecord, primaryNumber), 1), start(0, 1), localizer(0, 1), Whole("13:0013#1/0019#0"),
            link(offsetof(model::TaxiLinkPayload, flagsWord), 4, 0xFF00) } },
        { "base suffix",
          [](RunwayFields& f) { f.ends[0].suffix = 2; },
          { runway(offsetof(RunwayRecord, primaryDesignator), 1), start(1, 1, 0x0F), localizer(1, 1),
            Whole("13:0013#1/0019#0"), link(offsetof(model::TaxiLinkPayload, endField), 2, 0xF000) } },
        { "reciprocal number",
          [](RunwayFields& f) { f.ends[1].number = 30; },
          { runway(offsetof(RunwayRecord, secondaryNumber), 1) } },
        { "reciprocal suffix",
          [](RunwayFields& f) { f.ends[1].suffix = 1; },
          { runway(offsetof(RunwayRecord, secondaryDesignator), 1) } },
    });
}

TEST_F(OneFieldRunway, TheFieldsOfTheLightsPageChangeTheirBytesAlone) {
    ExpectRunway({
        { "edge lights", [](RunwayFields& f) { f.edgeLights = 2; }, { runway(kLights, 1, 0x03) } },
        { "centre lights", [](RunwayFields& f) { f.centreLights = 3; }, { runway(kLights, 1, 0x0C) } },
        { "red lights", [](RunwayFields& f) { f.redEndLights = true; }, { runway(kLights, 1, 0x10) } },
        { "base approach", [](RunwayFields& f) { f.ends[0].approachSystem = 9; }, { approach[0](0, 2, 0x001F) } },
        { "base end lights", [](RunwayFields& f) { f.ends[0].endLights = true; }, { approach[0](0, 2, 0x0020) } },
        { "base REILS", [](RunwayFields& f) { f.ends[0].reil = true; }, { approach[0](0, 2, 0x0040) } },
        { "base touchdown", [](RunwayFields& f) { f.ends[0].touchdownLights = true; }, { approach[0](0, 2, 0x0080) } },
        { "base strobes", [](RunwayFields& f) { f.ends[0].strobes = "0x1F"; }, { approach[0](0, 2, 0x1F00) } },
        { "reciprocal approach", [](RunwayFields& f) { f.ends[1].approachSystem = 9; }, { approach[1](0, 2, 0x001F) } },
        { "reciprocal end lights", [](RunwayFields& f) { f.ends[1].endLights = true; }, { approach[1](0, 2, 0x0020) } },
        { "reciprocal REILS", [](RunwayFields& f) { f.ends[1].reil = true; }, { approach[1](0, 2, 0x0040) } },
        { "reciprocal touchdown",
          [](RunwayFields& f) { f.ends[1].touchdownLights = true; },
          { approach[1](0, 2, 0x0080) } },
        { "reciprocal strobes", [](RunwayFields& f) { f.ends[1].strobes = "5"; }, { approach[1](0, 2, 0x1F00) } },
    });
}

template <int end, bool right>
VasiFields& Unit(RunwayFields& fields) {
    return right ? fields.ends[end].right : fields.ends[end].left;
}

template <int end, bool right>
std::vector<FieldRow<RunwayFields>> UnitRows(const RecordAt& unit) {
    return {
        { "system", [](RunwayFields& f) { Unit<end, right>(f).system = 3; }, { unit(0, 2) } },
        { "distance", [](RunwayFields& f) { Unit<end, right>(f).distance = "333"; }, { unit(kBiasZ) } },
        { "offset", [](RunwayFields& f) { Unit<end, right>(f).offset = "33"; }, { unit(kBiasX) } },
        { "spacing", [](RunwayFields& f) { Unit<end, right>(f).spacing = "17"; }, { unit(kSpacing) } },
        { "slope", [](RunwayFields& f) { Unit<end, right>(f).slope = "3.25"; }, { unit(kPitch) } },
        { "no system", [](RunwayFields& f) { Unit<end, right>(f).system = 0; }, { Whole(unit.part) } },
    };
}

TEST_F(OneFieldRunway, TheFieldsOfTheVasiPageChangeTheirBytesAlone) {
    ExpectRunway(UnitRows<0, false>(vasi[0]));
    ExpectRunway(UnitRows<0, true>(vasi[1]));
    ExpectRunway(UnitRows<1, false>(vasi[2]));
    ExpectRunway(UnitRows<1, true>(vasi[3]));
}

TEST_F(OneFieldRunway, TheFieldsOfTheMarkingsPageChangeTheirBytesAlone) {
    ExpectRunway({
        { "edge lines", [](RunwayFields& f) { f.edgeLines = true; }, { Mark(model::kEdgeLines) } },
        { "threshold", [](RunwayFields& f) { f.threshold = true; }, { Mark(model::kThresholdStripes) } },
        { "aiming points", [](RunwayFields& f) { f.aimingPoint = true; }, { Mark(model::kAimingPoints) } },
        { "touchdown zone", [](RunwayFields& f) { f.touchdownZone = true; }, { Mark(model::kTouchdownMarks) } },
        { "centre line", [](RunwayFields& f) { f.centreLine = true; }, { Mark(model::kCentreLine) } },
        { "numbers", [](RunwayFields& f) { f.numbers = true; }, { Mark(model::kDesignation) } },
        { "precision", [](RunwayFields& f) { f.precision = true; }, { Mark(model::kPrecision) } },
        { "edge pavement", [](RunwayFields& f) { f.edgePavement = true; }, { Mark(model::kEdgePavement) } },
        { "no markings", [](RunwayFields& f) { f.noMarkings = true; }, { Mark(model::kSingleEnd) } },
        { "base closed", [](RunwayFields& f) { f.ends[0].closedMark = true; }, { Mark(model::kPrimaryClosed) } },
        { "base STOL", [](RunwayFields& f) { f.ends[0].stolMark = true; }, { Mark(model::kPrimaryStol) } },
        { "reciprocal closed",
          [](RunwayFields& f) { f.ends[1].closedMark = true; },
          { Mark(model::kSecondaryClosed) } },
        { "reciprocal STOL", [](RunwayFields& f) { f.ends[1].stolMark = true; }, { Mark(model::kSecondaryStol) } },
    });
}

}  // namespace
