// OneFieldPlacesTest.cpp - the dialogs of the airport, its tower, helipads, start locations and frequencies, field by field:
// what the written file holds elsewhere stays as it was.
#include <cstddef>

#include "dialogs/AirportDialog.h"
#include "dialogs/CommDialog.h"
#include "dialogs/HelipadDialog.h"
#include "dialogs/StartDialog.h"
#include "dialogs/TowerDialog.h"
#include "fakes/OneField.h"

namespace {

using namespace dialogs;
using platform::Answer;

class OneFieldPlaces : public OneFieldTest {};

constexpr RecordAt airport = { "0003" };
constexpr uint32_t kIdentBits = 0xFFFFFFE0;

TEST_F(OneFieldPlaces, AnAirportsFieldsChangeTheirBytesAlone) {
    using model::AirportRecord;
    constexpr size_t kFuel = offsetof(AirportRecord, fuel), kIndexEntry = 12;
    // The airport's own navaids name it, in their records and in the indices.
    const std::vector<Place> ident = { airport(offsetof(AirportRecord, ident), 4, kIdentBits),
                                       Whole("27"),
                                       RecordAt{ "13:0013#1" }(offsetof(model::VorRecord, region)),
                                       RecordAt{ "13:0013#3" }(offsetof(model::VorRecord, region)),
                                       RecordAt{ "17:0017#1" }(offsetof(model::NdbPayload, region)),
                                       RecordAt{ "28" }(1 * kIndexEntry + 4),
                                       RecordAt{ "28" }(3 * kIndexEntry + 4),
                                       RecordAt{ "29" }(1 * kIndexEntry + 4) };
    ExpectFields<AirportFields>(
        model::kAirport, 0, LoadAirportFields, StoreAirportFields,
        {
            { "latitude",
              [](AirportFields& f) { f.position.latitude = "N47* 05.5000'"; },
              { airport(offsetof(AirportRecord, latitude)) } },
            { "longitude",
              [](AirportFields& f) { f.position.longitude = "W122* 05.5000'"; },
              { airport(offsetof(AirportRecord, longitude)) } },
            { "elevation",
              [](AirportFields& f) { f.elevation = "333"; },
              { airport(offsetof(AirportRecord, altitude)) } },
            { "variation",
              [](AirportFields& f) { f.variation = "5"; },
              { airport(offsetof(AirportRecord, magneticVariation)) } },
            { "avgas", [](AirportFields& f) { f.avgas = true; }, { airport(kFuel, 4, 1u << 30) } },
            { "jet fuel", [](AirportFields& f) { f.jetFuel = true; }, { airport(kFuel, 4, 1u << 31) } },
            { "ident", [](AirportFields& f) { f.id = "KSEB"; }, ident, Answer::Yes },
            { "country", [](AirportFields& f) { f.country = "Nowhere"; }, { Whole("27") } },
            { "state", [](AirportFields& f) { f.state = ""; }, { Whole("27") } },
            { "city", [](AirportFields& f) { f.city = "Somewhere"; }, { Whole("27") } },
            { "name", [](AirportFields& f) { f.name = "Another Field"; }, { Whole("0019#0"), Whole("27") } },
        });
}

TEST_F(OneFieldPlaces, ATowersFieldsChangeTheirBytesAlone) {
    using model::AirportRecord;
    ExpectFields<TowerFields>(model::kTowerViewpoint, 0, LoadTowerFields, StoreTowerFields,
                              {
                                  { "latitude",
                                    [](TowerFields& f) { f.position.latitude = "N47* 05.5000'"; },
                                    { airport(offsetof(AirportRecord, towerLatitude)) } },
                                  { "longitude",
                                    [](TowerFields& f) { f.position.longitude = "W122* 05.5000'"; },
                                    { airport(offsetof(AirportRecord, towerLongitude)) } },
                                  { "elevation",
                                    [](TowerFields& f) { f.elevation = "333"; },
                                    { airport(offsetof(AirportRecord, towerAltitude)) } },
                              });
}

TEST_F(OneFieldPlaces, AHelipadsFieldsChangeTheirBytesAlone) {
    using model::HelipadRecord;
    constexpr RecordAt pad = { "0026#1" };
    constexpr size_t kType = offsetof(HelipadRecord, type);
    ExpectFields<HelipadFields>(
        model::kHelipad, 1, LoadHelipadFields, StoreHelipadFields,
        {
            { "latitude",
              [](HelipadFields& f) { f.position.latitude = "N47* 05.5000'"; },
              { pad(offsetof(HelipadRecord, latitude)) } },
            { "longitude",
              [](HelipadFields& f) { f.position.longitude = "W122* 05.5000'"; },
              { pad(offsetof(HelipadRecord, longitude)) } },
            { "elevation", [](HelipadFields& f) { f.elevation = "333"; }, { pad(offsetof(HelipadRecord, altitude)) } },
            { "heading", [](HelipadFields& f) { f.heading = "271.5"; }, { pad(offsetof(HelipadRecord, heading)) } },
            { "length", [](HelipadFields& f) { f.length = "70"; }, { pad(offsetof(HelipadRecord, length)) } },
            { "width", [](HelipadFields& f) { f.width = "70"; }, { pad(offsetof(HelipadRecord, width)) } },
            { "surface", [](HelipadFields& f) { f.surface = 7; }, { pad(offsetof(HelipadRecord, surface), 1) } },
            { "type", [](HelipadFields& f) { f.type = 3; }, { pad(kType, 1, model::kPadTypeMask) } },
            { "transparent",
              [](HelipadFields& f) { f.transparent = true; },
              { pad(kType, 1, model::kPadTransparent) } },
            { "closed", [](HelipadFields& f) { f.closed = true; }, { pad(kType, 1, model::kPadClosed) } },
        });
}

TEST_F(OneFieldPlaces, AStartLocationsFieldsChangeTheirBytesAlone) {
    using model::StartLocationRecord;
    constexpr RecordAt start = { "0011#1" };
    constexpr size_t kNibbles = offsetof(StartLocationRecord, designatorAndType);
    ExpectFields<StartFields>(
        model::kStartLocation, 1, LoadStartFields, StoreStartFields,
        {
            { "latitude",
              [](StartFields& f) { f.position.latitude = "N47* 05.5000'"; },
              { start(offsetof(StartLocationRecord, latitude)) } },
            { "longitude",
              [](StartFields& f) { f.position.longitude = "W122* 05.5000'"; },
              { start(offsetof(StartLocationRecord, longitude)) } },
            { "elevation",
              [](StartFields& f) { f.elevation = "333"; },
              { start(offsetof(StartLocationRecord, altitude)) } },
            { "heading",
              [](StartFields& f) { f.heading = "271.5"; },
              { start(offsetof(StartLocationRecord, heading)) } },
            { "number", [](StartFields& f) { f.number = 12; }, { start(offsetof(StartLocationRecord, number), 1) } },
            { "suffix", [](StartFields& f) { f.suffix = 2; }, { start(kNibbles, 1, 0x0F) } },
            { "type", [](StartFields& f) { f.type = 1; }, { start(kNibbles, 1, 0xF0) } },
        });
}

TEST_F(OneFieldPlaces, AFrequencysFieldsChangeTheirBytesAlone) {
    using model::CommFrequencyRecord;
    constexpr RecordAt comm = { "0012#1" };
    ExpectFields<CommFields>(
        model::kCommFrequency, 1, LoadCommFields, StoreCommFields,
        {
            { "frequency",
              [](CommFields& f) { f.frequency = "122.8"; },
              { comm(offsetof(CommFrequencyRecord, frequency)) } },
            { "type", [](CommFields& f) { f.type = 2; }, { comm(offsetof(CommFrequencyRecord, type), 2) } },
            { "name",
              [](CommFields& f) { f.name = "A longer name than it had"; },
              { comm.From(offsetof(CommFrequencyRecord, name)) } },
        });
}

}  // namespace
