// OneFieldGroundTest.cpp - the dialogs of the ground network, field by field: what the written file holds elsewhere stays as
// it was.
#include <cstddef>

#include "dialogs/ApronDialog.h"
#include "dialogs/EdgeLightsDialog.h"
#include "dialogs/LinkDialog.h"
#include "dialogs/NodeDialog.h"
#include "dialogs/ParkingDialog.h"
#include "fakes/OneField.h"

namespace {

using namespace dialogs;

class OneFieldGround : public OneFieldTest {};

constexpr size_t kEntries = 2;  // behind the count of a list record

TEST_F(OneFieldGround, ANodesFieldsChangeTheirBytesAlone) {
    using model::TaxiNodeRecord;
    constexpr RecordAt node = { "001A#0", kEntries + sizeof(TaxiNodeRecord) };
    constexpr size_t kType = offsetof(TaxiNodeRecord, type), kReversed = offsetof(TaxiNodeRecord, reversed),
                     kLongitude = offsetof(TaxiNodeRecord, longitude), kLatitude = offsetof(TaxiNodeRecord, latitude);
    ExpectFields<NodeFields>(
        model::kTaxiNode, 1, LoadNodeFields, StoreNodeFields,
        {
            { "latitude", [](NodeFields& f) { f.position.latitude = "N47* 05.5000'"; }, { node(kLatitude) } },
            { "longitude", [](NodeFields& f) { f.position.longitude = "W122* 05.5000'"; }, { node(kLongitude) } },
            // The marking of a node that becomes a hold-short one is turned toward the runway.
            { "type hold-short", [](NodeFields& f) { f.type = 1; }, { node(kType, 1), Perhaps(node(kReversed, 1)) } },
            { "type ILS hold-short", [](NodeFields& f) { f.type = 2; }, { node(kType, 1) } },
            { "mark of another type", [](NodeFields& f) { f.reversed = true; }, {} },
        });
    constexpr RecordAt holdShort = { "001A#0", kEntries + 2 * sizeof(TaxiNodeRecord) };
    ExpectFields<NodeFields>(model::kTaxiNode, 2, LoadNodeFields, StoreNodeFields,
                             {
                                 { "reversed", [](NodeFields& f) { f.reversed = true; }, { holdShort(kReversed, 1) } },
                                 { "type normal", [](NodeFields& f) { f.type = 0; }, { holdShort(kType, 1) } },
                             });
}

TEST_F(OneFieldGround, ALinksFieldsChangeTheirBytesAlone) {
    using model::TaxiLinkPayload;
    constexpr RecordAt link = { "001C#0", kEntries };
    constexpr size_t kFlags = offsetof(TaxiLinkPayload, flagsWord), kWidth = offsetof(TaxiLinkPayload, width);
    constexpr uint32_t kType = 0xF, kIndex = 0xFF00;
    ExpectFields<LinkFields>(
        model::kTaxiLink, 0, LoadLinkFields, StoreLinkFields,
        {
            { "designator", [](LinkFields& f) { f.designator = 2; }, { link(kFlags, 4, kIndex) } },
            { "designator none", [](LinkFields& f) { f.designator = 0; }, { link(kFlags, 4, kIndex) } },
            { "designator of a runway, with its width",
              [](LinkFields& f) { f.designator = 4; },
              { link(kFlags, 4, kType), link(kFlags, 4, kIndex), link(kWidth) } },
            { "type runway, where there is none",
              [](LinkFields& f) { f.type = 0; },
              { link(kFlags, 4, kType), link(kFlags, 4, kIndex) } },
            { "type closed", [](LinkFields& f) { f.type = 3; }, { link(kFlags, 4, kType) } },
            { "type apron route, with its flags of drawing",
              [](LinkFields& f) { f.type = 2; },
              { link(kFlags, 4, kType), link(kFlags, 4, model::kLinkDrawFlags) } },
            { "surface", [](LinkFields& f) { f.surface = 7; }, { link(kFlags, 4, 0xFF000000) } },
            { "width", [](LinkFields& f) { f.width = "55"; }, { link(kWidth) } },
            { "centre line", [](LinkFields& f) { f.centreLine = true; }, { link(kFlags, 4, 1 << 16) } },
            { "centre lights", [](LinkFields& f) { f.centreLights = true; }, { link(kFlags, 4, 1 << 17) } },
            { "left edge", [](LinkFields& f) { f.leftEdge = 2; }, { link(kFlags, 4, 3 << 18) } },
            { "left lights", [](LinkFields& f) { f.leftLights = true; }, { link(kFlags, 4, 1 << 20) } },
            { "right edge", [](LinkFields& f) { f.rightEdge = 0; }, { link(kFlags, 4, 3 << 21) } },
            { "right lights", [](LinkFields& f) { f.rightLights = true; }, { link(kFlags, 4, 1 << 23) } },
        });
    constexpr RecordAt runwayLink = { "001C#0", kEntries + model::kTaxiLinkFileSize };
    ExpectFields<LinkFields>(model::kTaxiLink, 1, LoadLinkFields, StoreLinkFields,
                             {
                                 { "designator of a taxiway",
                                   [](LinkFields& f) { f.designator = 1; },
                                   { runwayLink(kFlags, 4, kType), runwayLink(kFlags, 4, kIndex) } },
                                 { "designator of another runway",
                                   [](LinkFields& f) { f.designator = 3; },
                                   { runwayLink(kFlags, 4, kIndex) } },
                                 { "type taxiway, which has no runway's name",
                                   [](LinkFields& f) { f.type = 1; },
                                   { runwayLink(kFlags, 4, kType), runwayLink(kFlags, 4, kIndex) } },
                             });
}

TEST_F(OneFieldGround, AParkingSpotsFieldsChangeTheirBytesAlone) {
    using model::ParkingSpotRecord;
    constexpr RecordAt spot = { "001B#0", kEntries + sizeof(ParkingSpotRecord) };
    constexpr size_t kRadius = offsetof(ParkingSpotRecord, radius);
    constexpr uint32_t kArea = 0x3F, kType = 0xF00, kNumber = 0xFFF000, kCount = 0xFF000000;
    ExpectFields<ParkingFields>(model::kParkingSpot, 1, LoadParkingFields, StoreParkingFields,
                                {
                                    { "latitude",
                                      [](ParkingFields& f) { f.position.latitude = "N47* 05.5000'"; },
                                      { spot(offsetof(ParkingSpotRecord, latitude)) } },
                                    { "longitude",
                                      [](ParkingFields& f) { f.position.longitude = "W122* 05.5000'"; },
                                      { spot(offsetof(ParkingSpotRecord, longitude)) } },
                                    { "heading",
                                      [](ParkingFields& f) { f.heading = "271.5"; },
                                      { spot(offsetof(ParkingSpotRecord, heading)) } },
                                    { "area", [](ParkingFields& f) { f.area = 3; }, { spot(0, 4, kArea) } },
                                    { "number", [](ParkingFields& f) { f.number = "4095"; }, { spot(0, 4, kNumber) } },
                                    { "type", [](ParkingFields& f) { f.type = 7; }, { spot(0, 4, kType) } },
                                    { "type whose usual radius comes with it",
                                      [](ParkingFields& f) { ChooseParkingType(&f, 7); },
                                      { spot(0, 4, kType), spot(kRadius) } },
                                    { "radius", [](ParkingFields& f) { f.radius = "31.25"; }, { spot(kRadius) } },
                                    { "codes, as many",
                                      [](ParkingFields& f) { f.codes = "JAL,UAL"; },
                                      { spot(sizeof(ParkingSpotRecord) + 4) } },
                                    { "codes, fewer",
                                      [](ParkingFields& f) { f.codes = "JAL"; },
                                      { spot(0, 4, kCount), spot(sizeof(ParkingSpotRecord) + 4) } },
                                    { "codes, more",
                                      [](ParkingFields& f) { f.codes = "JAL,KLM,UAL"; },
                                      { spot(0, 4, kCount), spot(sizeof(ParkingSpotRecord) + 8) } },
                                });
}

TEST_F(OneFieldGround, AnApronsFieldsChangeTheirBytesAlone) {
    using model::ApronHead;
    constexpr RecordAt outline = { "0037#1" }, surface = { "0030#1" };
    constexpr size_t kFlags = offsetof(ApronHead, drawFlags) - offsetof(ApronHead, surface);
    const auto store = [](const ApronFields& shown, const ApronFields& entered, model::SceneryObject* apron,
                          BadField*) { return StoreApronFields(shown, entered, apron); };
    ExpectFields<ApronFields>(
        model::kApron, 1, LoadApronFields, store,
        {
            { "surface", [](ApronFields& f) { f.surface = 7; }, { outline(0, 1), surface(0, 1) } },
            { "draw surface", [](ApronFields& f) { f.drawSurface = true; }, { surface(kFlags, 1, 0x01) } },
        });
}

TEST_F(OneFieldGround, TheFieldsOfEdgeLightsChangeTheirBytesAlone) {
    using model::EdgeLightsHead;
    constexpr size_t kHead = offsetof(EdgeLightsHead, stripCount), kVertices = 4 * 8, kEdge = 8;
    constexpr RecordAt head = { "0031#0" }, first = { "0031#0", kHead + kVertices },
                       second = { "0031#0", kHead + kVertices + kEdge };
    ExpectFields<EdgeLightsFields>(
        model::kApronEdgeLights, 0, LoadEdgeLightsFields, StoreEdgeLightsFields,
        {
            { "spacing", [](EdgeLightsFields& f) { f.spacing = "55.5"; }, { first(0), second(0) } },
            { "adjust, which fits the spacings",
              [](EdgeLightsFields& f) { f.adjust = true; },
              { first(0), second(0) } },
            { "optimum, for new strips only", [](EdgeLightsFields& f) { f.optimum = "70.0"; }, {} },
            { "brightness",
              [](EdgeLightsFields& f) { f.brightness = "26"; },
              { head(offsetof(EdgeLightsHead, brightness)) } },
        });
}

}  // namespace
