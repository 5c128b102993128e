// OneFieldNavaidsTest.cpp - the dialogs of navaids, field by field: what the written file holds elsewhere stays as it was.
#include <cstddef>

#include "dialogs/IlsDialog.h"
#include "dialogs/MarkerDialog.h"
#include "dialogs/NdbDialog.h"
#include "dialogs/VorDialog.h"
#include "fakes/OneField.h"

namespace {

using namespace dialogs;

class OneFieldNavaids : public OneFieldTest {};

constexpr uint32_t kIdentBits = 0xFFFFFFE0;
constexpr size_t kIndexEntry = 12;  // begins with the ident

// What VORs and ILSs begin with.
constexpr size_t kFlags = offsetof(model::VorRecord, flags), kLongitude = offsetof(model::VorRecord, longitude),
                 kLatitude = offsetof(model::VorRecord, latitude), kAltitude = offsetof(model::VorRecord, altitude),
                 kFrequency = offsetof(model::VorRecord, frequency), kRange = offsetof(model::VorRecord, range),
                 kVariation = offsetof(model::VorRecord, magneticVariation), kIdent = offsetof(model::VorRecord, ident);

TEST_F(OneFieldNavaids, AMarkersFieldsChangeTheirBytesAlone) {
    using model::MarkerBeaconPayload;
    constexpr RecordAt marker = { "18:0018#1" };
    ExpectFields<MarkerFields>(
        model::kMarkerBeacon, 1, LoadMarkerFields, StoreMarkerFields,
        {
            { "ident",
              [](MarkerFields& f) { f.ident = "OM"; },
              { marker(offsetof(MarkerBeaconPayload, ident), 4, kIdentBits) } },
            { "type", [](MarkerFields& f) { f.type = 2; }, { marker(offsetof(MarkerBeaconPayload, type), 1) } },
            { "latitude",
              [](MarkerFields& f) { f.position.latitude = "N47* 05.5000'"; },
              { marker(offsetof(MarkerBeaconPayload, latitude)) } },
            { "longitude",
              [](MarkerFields& f) { f.position.longitude = "W122* 05.5000'"; },
              { marker(offsetof(MarkerBeaconPayload, longitude)) } },
            { "elevation",
              [](MarkerFields& f) { f.elevation = "333"; },
              { marker(offsetof(MarkerBeaconPayload, altitude)) } },
            { "heading",
              [](MarkerFields& f) { f.heading = "271.5"; },
              { marker(offsetof(MarkerBeaconPayload, heading), 1) } },
        });
}

TEST_F(OneFieldNavaids, AnNdbsFieldsChangeTheirBytesAlone) {
    using model::NdbPayload;
    constexpr RecordAt ndb = { "17:0017#1" }, index = { "29", kIndexEntry };
    ExpectFields<NdbFields>(
        model::kNdb, 1, LoadNdbFields, StoreNdbFields,
        {
            { "ident",
              [](NdbFields& f) { f.ident = "NC"; },
              { ndb(offsetof(NdbPayload, ident), 4, kIdentBits), index(0, 4, kIdentBits) } },
            { "name", [](NdbFields& f) { f.name = "Another NDB"; }, { Whole("17:0017#1/0019#0") } },
            { "frequency", [](NdbFields& f) { f.frequency = "362.5"; }, { ndb(offsetof(NdbPayload, frequency)) } },
            { "type", [](NdbFields& f) { f.type = 3; }, { ndb(offsetof(NdbPayload, type), 2) } },
            { "latitude",
              [](NdbFields& f) { f.position.latitude = "N47* 05.5000'"; },
              { ndb(offsetof(NdbPayload, latitude)) } },
            { "longitude",
              [](NdbFields& f) { f.position.longitude = "W122* 05.5000'"; },
              { ndb(offsetof(NdbPayload, longitude)) } },
            { "elevation", [](NdbFields& f) { f.elevation = "333"; }, { ndb(offsetof(NdbPayload, altitude)) } },
            { "range", [](NdbFields& f) { f.range = "25.0"; }, { ndb(offsetof(NdbPayload, range)) } },
            { "variation", [](NdbFields& f) { f.variation = "-5"; }, { ndb(offsetof(NdbPayload, magneticVariation)) } },
        });
}

// The DME of a VOR stands where the VOR stands.
TEST_F(OneFieldNavaids, AVorsFieldsChangeTheirBytesAlone) {
    using model::DmePart;
    constexpr RecordAt vor = { "13:0013#3" }, dme = { "13:0013#3/0016#0" }, index = { "28", 3 * kIndexEntry };
    ExpectFields<VorFields>(
        model::kVorDme, 1, LoadVorFields, StoreVorFields,
        {
            { "ident", [](VorFields& f) { f.ident = "VBC"; }, { vor(kIdent, 4, kIdentBits), index(0, 4, kIdentBits) } },
            { "name", [](VorFields& f) { f.name = "Another VOR"; }, { Whole("13:0013#3/0019#0") } },
            { "frequency", [](VorFields& f) { f.frequency = "114.55"; }, { vor(kFrequency) } },
            { "class", [](VorFields& f) { f.vorClass = 2; }, { vor(0, 1) } },
            { "parts without DME",
              [](VorFields& f) { ChooseVorParts(0, &f); },
              { vor(kFlags, 1, model::kHasDme), Whole("13:0013#3/0016#0") } },
            { "parts without VOR", [](VorFields& f) { ChooseVorParts(2, &f); }, { vor(kFlags, 1, model::kHasVor) } },
            { "latitude",
              [](VorFields& f) { f.position.latitude = "N47* 05.5000'"; },
              { vor(kLatitude), dme(offsetof(DmePart, latitude)) } },
            { "longitude",
              [](VorFields& f) { f.position.longitude = "W122* 05.5000'"; },
              { vor(kLongitude), dme(offsetof(DmePart, longitude)) } },
            { "elevation",
              [](VorFields& f) { f.elevation = "333"; },
              { vor(kAltitude), dme(offsetof(DmePart, altitude)) } },
            { "range", [](VorFields& f) { f.range = "33.0"; }, { vor(kRange) } },
            { "variation", [](VorFields& f) { f.variation = "-5"; }, { vor(kVariation) } },
            { "DME range", [](VorFields& f) { f.dmeRange = "44.0"; }, { dme(offsetof(DmePart, range)) } },
        });
}

TEST_F(OneFieldNavaids, ALocalizersFieldsChangeTheirBytesAlone) {
    using model::LocalizerPart;
    constexpr RecordAt ils = { "13:0013#1" }, localizer = { "13:0013#1/0014#0" }, index = { "28", kIndexEntry },
                       runway = { "0004#1" };
    constexpr size_t kNamed = offsetof(model::RunwayRecord, primaryIls);
    ExpectFields<IlsFields>(
        model::kIls, 1, LoadIlsFields, StoreIlsFields,
        {
            // The runway names the ILS that serves it.
            { "ident",
              [](IlsFields& f) { f.ident = "IBBC"; },
              { ils(kIdent, 4, kIdentBits), index(0, 4, kIdentBits), runway(kNamed) } },
            { "name", [](IlsFields& f) { f.name = "Another ILS"; }, { Whole("13:0013#1/0019#0") } },
            { "frequency", [](IlsFields& f) { f.frequency = "111.35"; }, { ils(kFrequency) } },
            { "number",
              [](IlsFields& f) { f.number = 12; },
              { localizer(offsetof(LocalizerPart, runwayNumber), 1), runway(kNamed) } },
            { "suffix",
              [](IlsFields& f) { f.suffix = 2; },
              { localizer(offsetof(LocalizerPart, runwayDesignator), 1), runway(kNamed) } },
            { "back course", [](IlsFields& f) { f.backCourse = !f.backCourse; }, { ils(kFlags, 1, 0x04) } },
            { "latitude", [](IlsFields& f) { f.position.latitude = "N47* 05.5000'"; }, { ils(kLatitude) } },
            { "longitude", [](IlsFields& f) { f.position.longitude = "W122* 05.5000'"; }, { ils(kLongitude) } },
            { "elevation", [](IlsFields& f) { f.elevation = "333"; }, { ils(kAltitude) } },
            { "range", [](IlsFields& f) { f.range = "33.0"; }, { ils(kRange) } },
            { "variation", [](IlsFields& f) { f.variation = "-5"; }, { ils(kVariation) } },
            { "heading", [](IlsFields& f) { f.heading = "271.5"; }, { localizer(offsetof(LocalizerPart, heading)) } },
            { "beam width", [](IlsFields& f) { f.width = "5.25"; }, { localizer(offsetof(LocalizerPart, width)) } },
        });
}

TEST_F(OneFieldNavaids, TheFieldsOfAGlideSlopeAndOfADmeChangeTheirBytesAlone) {
    using model::DmePart;
    using model::GlideSlopePart;
    constexpr RecordAt ils = { "13:0013#1" }, slope = { "13:0013#1/0015#0" }, dme = { "13:0013#1/0016#0" };
    ExpectFields<IlsFields>(
        model::kIls, 1, LoadIlsFields, StoreIlsFields,
        {
            { "no glide slope",
              [](IlsFields& f) { f.glideSlope = false; },
              { ils(kFlags, 1, model::kHasGlideSlope), Whole("13:0013#1/0015#0") } },
            { "latitude of the glide slope",
              [](IlsFields& f) { f.slopePosition.latitude = "N47* 05.5000'"; },
              { slope(offsetof(GlideSlopePart, latitude)) } },
            { "longitude of the glide slope",
              [](IlsFields& f) { f.slopePosition.longitude = "W122* 05.5000'"; },
              { slope(offsetof(GlideSlopePart, longitude)) } },
            { "elevation of the glide slope",
              [](IlsFields& f) { f.slopeElevation = "333"; },
              { slope(offsetof(GlideSlopePart, altitude)) } },
            { "range of the glide slope",
              [](IlsFields& f) { f.slopeRange = "12.0"; },
              { slope(offsetof(GlideSlopePart, range)) } },
            { "angle", [](IlsFields& f) { f.slopePitch = "3.25"; }, { slope(offsetof(GlideSlopePart, pitch)) } },
            { "no DME",
              [](IlsFields& f) { f.dme = false; },
              { ils(kFlags, 1, model::kHasDme), Whole("13:0013#1/0016#0") } },
            { "latitude of the DME",
              [](IlsFields& f) { f.dmePosition.latitude = "N47* 05.5000'"; },
              { dme(offsetof(DmePart, latitude)) } },
            { "longitude of the DME",
              [](IlsFields& f) { f.dmePosition.longitude = "W122* 05.5000'"; },
              { dme(offsetof(DmePart, longitude)) } },
            { "elevation of the DME",
              [](IlsFields& f) { f.dmeElevation = "333"; },
              { dme(offsetof(DmePart, altitude)) } },
            { "range of the DME", [](IlsFields& f) { f.dmeRange = "12.0"; }, { dme(offsetof(DmePart, range)) } },
        });
    constexpr RecordAt bare = { "13:0013#0" };
    ExpectFields<IlsFields>(model::kIls, 0, LoadIlsFields, StoreIlsFields,
                            {
                                { "a glide slope",
                                  [](IlsFields& f) { f.glideSlope = true; },
                                  { bare(kFlags, 1, model::kHasGlideSlope), Whole("13:0013#0/0015#0") } },
                                { "a DME",
                                  [](IlsFields& f) { f.dme = true; },
                                  { bare(kFlags, 1, model::kHasDme), Whole("13:0013#0/0016#0") } },
                            });
}

}  // namespace
