// Every dialog over records of any content: OK without a change changes nothing, and whatever a sequence of
// edits did, undoing it gives the original bytes back.
#include <map>
#include <random>

#include "dialogs/AirportDialog.h"
#include "dialogs/ApronDialog.h"
#include "dialogs/CommDialog.h"
#include "dialogs/DesignatorBox.h"
#include "dialogs/EdgeLightsDialog.h"
#include "dialogs/HelipadDialog.h"
#include "dialogs/IlsDialog.h"
#include "dialogs/LinkDialog.h"
#include "dialogs/ListRows.h"
#include "dialogs/MarkerDialog.h"
#include "dialogs/NdbDialog.h"
#include "dialogs/NewIls.h"
#include "dialogs/NodeDialog.h"
#include "dialogs/ParkingDialog.h"
#include "dialogs/RunwayDialog.h"
#include "dialogs/StartDialog.h"
#include "dialogs/Subject.h"
#include "dialogs/TowerDialog.h"
#include "dialogs/VorDialog.h"
#include "fakes/DialogFixture.h"

namespace {

using namespace dialogs;
using platform::Answer;

class DialogRoundTrip : public DialogFixture {
protected:
    uint32_t Random() { return static_cast<uint32_t>(generator()); }
    uint32_t Below(uint32_t count) { return Random() % count; }
    bool Chance(uint32_t percent) { return Below(100) < percent; }

    // What users type, sense and nonsense.
    std::string Text() {
        static const char* const kTexts[] = { "",      "0",      "1",     "12.5",       "90",    "110.3", "118.2",
                                              "350.5", "-3",     "359.9", "5000",       "99999", "abc",   "1e9",
                                              "inf",   "7 ",     "JAL,x", "0x1F",       "031",   "ABCDE", "N47*",
                                              "KSEA",  "Zurich", "12 ft", "T\xC3\xA4st" };
        return kTexts[Below(std::size(kTexts))];
    }
    void Mutate(std::string& text) {
        if (Chance(15)) text = Text();
    }
    void Mutate(int& choice, int count) {
        if (Chance(20)) choice = static_cast<int>(Below(static_cast<uint32_t>(count) + 1)) - 1;
    }
    void Mutate(bool& box) {
        if (Chance(20)) box = !box;
    }
    void Mutate(CoordinateTexts& position) {
        if (Chance(20)) position = { "N47* 0" + std::to_string(Below(9)) + ".5'", "W122* 03.123'" };
        if (Chance(5)) position.longitude = Text();
    }

    void Mutate(NodeFields& fields) { Mutate(fields.position), Mutate(fields.type, 3), Mutate(fields.reversed); }
    void Mutate(LinkFields& fields) {
        Mutate(fields.designator, static_cast<int>(DesignatorChoices().size()));
        Mutate(fields.type, static_cast<int>(LinkTypeChoices(subject).size()));
        Mutate(fields.surface, 24), Mutate(fields.width), Mutate(fields.leftEdge, 3), Mutate(fields.rightEdge, 3);
        Mutate(fields.leftLights), Mutate(fields.rightLights), Mutate(fields.centreLine), Mutate(fields.centreLights);
    }
    void Mutate(ParkingFields& fields) {
        Mutate(fields.position), Mutate(fields.heading), Mutate(fields.number), Mutate(fields.radius);
        Mutate(fields.codes), Mutate(fields.area, 37), Mutate(fields.type, 11);
    }
    void Mutate(AirportFields& fields) {
        Mutate(fields.position), Mutate(fields.elevation), Mutate(fields.variation), Mutate(fields.avgas);
        Mutate(fields.jetFuel), Mutate(fields.id), Mutate(fields.country), Mutate(fields.state), Mutate(fields.city);
        Mutate(fields.name);
    }
    void Mutate(VasiFields& fields) {
        Mutate(fields.system, 15), Mutate(fields.distance), Mutate(fields.offset), Mutate(fields.spacing);
        Mutate(fields.slope);
    }
    void Mutate(RunwayEndFields& end) {
        Mutate(end.number, 45), Mutate(end.suffix, 5), Mutate(end.noTakeoff), Mutate(end.noLanding);
        Mutate(end.rightPattern), Mutate(end.approachSystem, 16), Mutate(end.endLights), Mutate(end.reil);
        Mutate(end.touchdownLights), Mutate(end.closedMark), Mutate(end.stolMark);
        if (Chance(20)) Mutate(end.overrun), Mutate(end.displaced), Mutate(end.strobes), Mutate(end.left);
        if (Chance(20)) Mutate(end.right);
    }
    void Mutate(RunwayFields& fields) {
        Mutate(fields.position), Mutate(fields.surface, 24), Mutate(fields.ends[0]), Mutate(fields.ends[1]);
        Mutate(fields.edgeLights, 4), Mutate(fields.centreLights, 4), Mutate(fields.redEndLights);
        Mutate(fields.centreLine), Mutate(fields.edgeLines), Mutate(fields.edgePavement), Mutate(fields.precision);
        Mutate(fields.aimingPoint), Mutate(fields.touchdownZone), Mutate(fields.numbers), Mutate(fields.threshold);
        Mutate(fields.noMarkings);
        if (Chance(30)) Mutate(fields.elevation), Mutate(fields.length), Mutate(fields.width);
        if (Chance(30)) Mutate(fields.patternAltitude), Mutate(fields.heading);
    }
    void Mutate(TowerFields& fields) { Mutate(fields.position), Mutate(fields.elevation); }
    void Mutate(StartFields& fields) {
        Mutate(fields.position), Mutate(fields.elevation), Mutate(fields.heading), Mutate(fields.number, 45);
        Mutate(fields.suffix, 5), Mutate(fields.type, 2);
    }
    void Mutate(CommFields& fields) { Mutate(fields.frequency), Mutate(fields.type, 13), Mutate(fields.name); }
    void Mutate(HelipadFields& fields) {
        Mutate(fields.position), Mutate(fields.elevation), Mutate(fields.heading), Mutate(fields.length);
        Mutate(fields.width), Mutate(fields.surface, 24), Mutate(fields.type, 5), Mutate(fields.transparent);
        Mutate(fields.closed);
    }
    void Mutate(MarkerFields& fields) {
        Mutate(fields.ident), Mutate(fields.type, 4), Mutate(fields.position), Mutate(fields.elevation);
        Mutate(fields.heading);
    }
    void Mutate(NdbFields& fields) {
        Mutate(fields.ident), Mutate(fields.name), Mutate(fields.frequency), Mutate(fields.type, 4);
        Mutate(fields.position), Mutate(fields.elevation), Mutate(fields.range), Mutate(fields.variation);
    }
    void Mutate(VorFields& fields) {
        Mutate(fields.ident), Mutate(fields.name), Mutate(fields.frequency), Mutate(fields.vorClass, 4);
        Mutate(fields.parts, 3), Mutate(fields.position), Mutate(fields.elevation), Mutate(fields.range);
        Mutate(fields.variation), Mutate(fields.dmeRange);
    }
    void Mutate(IlsFields& fields) {
        Mutate(fields.ident), Mutate(fields.name), Mutate(fields.frequency), Mutate(fields.number, 45);
        Mutate(fields.suffix, 5), Mutate(fields.backCourse), Mutate(fields.position), Mutate(fields.elevation);
        Mutate(fields.heading), Mutate(fields.width), Mutate(fields.glideSlope), Mutate(fields.slopePosition);
        Mutate(fields.slopePitch), Mutate(fields.dme), Mutate(fields.dmePosition), Mutate(fields.dmeRange);
    }
    void Mutate(ApronFields& fields) { Mutate(fields.surface, 24), Mutate(fields.drawSurface); }
    void Mutate(EdgeLightsFields& fields) {
        Mutate(fields.spacing), Mutate(fields.adjust), Mutate(fields.optimum), Mutate(fields.brightness);
    }

    // Runs the dialog of the object: load, perhaps change, OK.
    template <class Fields, class Object>
    bool Run(Fields (*load)(Object*), bool (*store)(const Fields&, const Fields&, SceneryObject*, BadField*),
             SceneryObject* object, bool change) {
        const Fields shown = load(object);
        Fields entered = shown;
        subject = object;
        if (change) Mutate(entered);
        return store(shown, entered, object, &bad);
    }
    bool RunDialog(SceneryObject* object, bool change) {
        switch (model::KindOf(object)) {
        case model::kAirport: return Run(LoadAirportFields, StoreAirportFields, object, change);
        case model::kTowerViewpoint: return Run(LoadTowerFields, StoreTowerFields, object, change);
        case model::kRunway: return Run(LoadRunwayFields, StoreRunwayFields, object, change);
        case model::kHelipad: return Run(LoadHelipadFields, StoreHelipadFields, object, change);
        case model::kCommFrequency: return Run(LoadCommFields, StoreCommFields, object, change);
        case model::kStartLocation: return Run(LoadStartFields, StoreStartFields, object, change);
        case model::kTaxiNode: return Run(LoadNodeFields, StoreNodeFields, object, change);
        case model::kTaxiLink: return Run(LoadLinkFields, StoreLinkFields, object, change);
        case model::kParkingSpot: return Run(LoadParkingFields, StoreParkingFields, object, change);
        case model::kApronEdgeLights: return Run(LoadEdgeLightsFields, StoreEdgeLightsFields, object, change);
        case model::kIls: return Run(LoadIlsFields, StoreIlsFields, object, change);
        case model::kMarkerBeacon: return Run(LoadMarkerFields, StoreMarkerFields, object, change);
        case model::kNdb: return Run(LoadNdbFields, StoreNdbFields, object, change);
        case model::kVorDme: return Run(LoadVorFields, StoreVorFields, object, change);
        case model::kApron: {
            const ApronFields shown = LoadApronFields(object);
            ApronFields entered = shown;
            if (change) Mutate(entered);
            return StoreApronFields(shown, entered, object);
        }
        default: return true;
        }
    }

    // One object of each kind, and some that use each other.
    void MakeAirport() {
        model::ClearModel();
        build::Airport("KSEA");
        model::state.country = "USA", model::state.city = "Seattle";
        model::SetAirportName("Test");
        build::Tower({ 5, 5 });
        SceneryObject* blank = build::Designator("");
        SceneryObject* alpha = build::Designator("A");
        SceneryObject* runway = build::Runway(16, 1);
        build::Runway(7, 0, { 900, 0 });
        SceneryObject* spot = build::Spot({ 50, 0 }, { "JAL", "KLM" });
        build::Spot({ 80, 0 });
        SceneryObject *a = build::Node({ 0, 40 }), *b = build::Node({ 0, 90 }, 2);
        build::Link(a, b, model::kTaxiwayLink, alpha);
        build::Link(b, a, model::kRunwayLink, runway);
        build::Link(a, spot, model::kParkingLink, blank);
        build::Placed<model::HelipadRecord>(model::kHelipad, {});
        SceneryObject* comm = build::Append(model::kCommFrequency, sizeof(model::CommFrequencyRecord));
        As<model::CommFrequencyRecord>(comm).type = 6;
        As<model::CommFrequencyRecord>(comm).frequency = 119900000;  // the dialog refuses a frequency of 0
        build::Placed<model::StartLocationRecord>(model::kStartLocation, {});
        build::Apron({ build::Encoded({}), build::Encoded({ 100, 0 }), build::Encoded({ 0, 100 }) });
        const model::EncodedPoint from = build::Encoded({}), to = build::Encoded({ 0, 300 });
        build::EdgeLights({ { 60, from.longitude, from.latitude, to.longitude, to.latitude, 0, 0, 0 } });
        build::Placed<model::MarkerBeaconPayload>(model::kMarkerBeacon, {});
        SceneryObject* ils = build::Ils("ISEA");
        As<model::RunwayPayload>(runway).body.primaryIls = model::PackIdent("ISEA");
        build::Ils("ISTK")->flags |= model::kStock;
        As<model::IlsPayload>(ils).body.flags = 0x3D;
        build::Ndb();
        build::Ndb()->flags |= model::kStock;
        build::Vor();
    }

    // Often the ends of ranges: then many a float is no number.
    uint8_t AnyByte() {
        constexpr uint8_t kEnds[] = { 0x00, 0x7F, 0x80, 0xFF };
        return Chance(30) ? kEnds[Below(std::size(kEnds))] : static_cast<uint8_t>(Random());
    }

    // Random bytes where a record's shape does not depend on them, and where the model does not point.
    void Scramble() {
        for (SceneryObject* object : build::List()) {
            const uint32_t kind = model::KindOf(object);
            size_t from = 0, to = object->payloadSize;
            if (kind == model::kTaxiLink) from = 4, to = model::kTaxiLinkFileSize;
            if (kind == model::kParkingSpot) from = 4;
            if (kind == model::kApron || kind == model::kTaxiDesignator) continue;
            if (kind == model::kApronEdgeLights) to = offsetof(model::EdgeLightsHead, stripCount);
            for (size_t i = from; i < to; ++i) object->payload[i] = AnyByte();
            if (kind == model::kCommFrequency) object->payload[object->payloadSize - 1] = 0;
        }
    }

    struct Snapshot {
        std::map<const SceneryObject*, std::vector<uint8_t>> bytes;
        std::vector<SceneryObject*> list;
        model::PlaceTexts texts;
        bool operator==(const Snapshot&) const = default;
    };
    // The payload without the selection of parts, which is no content and has no history.
    static std::vector<uint8_t> Content(const SceneryObject* object) {
        std::vector<uint8_t> bytes = Bytes(object);
        const uint32_t kind = model::KindOf(object);
        if (kind == model::kIls) bytes[offsetof(model::IlsPayload, selectedParts)] = 0;
        if (kind == model::kApron) std::fill_n(bytes.begin(), sizeof(model::ApronHead::selection), uint8_t{ 0 });
        if (kind == model::kApronEdgeLights) {
            for (size_t end = sizeof(model::EdgeLightsHead) + sizeof(model::EdgeLightStrip); end <= bytes.size();
                 end += sizeof(model::EdgeLightStrip))
                std::fill_n(bytes.begin() + static_cast<ptrdiff_t>(end) - 3, 3, uint8_t{ 0 });
        }
        return bytes;
    }
    static Snapshot Take() {
        Snapshot snapshot{ {}, build::List(), model::CurrentPlaceTexts() };
        for (const SceneryObject* object : snapshot.list) snapshot.bytes[object] = Content(object);
        return snapshot;
    }

    static void ExpectSame(const Snapshot& is, const Snapshot& was, int sequence) {
        EXPECT_EQ(is.list, was.list) << "sequence " << sequence;
        EXPECT_TRUE(is.texts == was.texts) << "sequence " << sequence;
        for (const auto& [object, bytes] : was.bytes) {
            const auto found = is.bytes.find(object);
            EXPECT_TRUE(found == is.bytes.end() || found->second == bytes)
                << "sequence " << sequence << ", an object of kind " << model::KindOf(object);
        }
    }

    // Any edit of the dialogs. Cancelled half the time where a record is made for the dialog.
    void Insert() {
        using Maker = SceneryObject* (*)();
        constexpr Maker kMakers[] = { InsertRunway, InsertHelipad, InsertStart, InsertComm, InsertNdb, InsertVor };
        SceneryObject* object = kMakers[Below(std::size(kMakers))]();
        if (Chance(50) || !RunDialog(object, true)) CancelDialog();
    }
    void Delete() {
        const auto list = build::List();
        SceneryObject* object = list[Below(static_cast<uint32_t>(list.size()))];
        if (model::KindOf(object) != model::kAirport) DeleteEntry(object);
    }
    void NewMarkers() {
        NewMarkerFields shown;
        if (!LoadNewMarkerFields(&shown)) return;
        NewMarkerFields entered = shown;
        Mutate(entered.runwayEnd, static_cast<int>(MarkerRunwayChoices().size()));
        for (bool& wanted : entered.wanted) Mutate(wanted);
        for (std::string& distance : entered.distance) Mutate(distance);
        CreateMarkers(shown, entered, &bad);
    }
    void Step() {
        const auto list = build::List();
        SceneryObject* object = list[Below(static_cast<uint32_t>(list.size()))];
        switch (Below(12)) {
        case 0: return Insert();
        case 1: return Delete();
        case 2: TypeDesignator(Text(), nullptr); return;
        case 3: {
            const auto ends = EndsForNewIls();
            if (!ends.empty()) CreateIls(ends[0], [this] { return Random(); });
            return;
        }
        case 4: object->flags ^= model::kSelected; return;
        case 5: return NewMarkers();
        default: break;
        }
        if (model::IsReplacedStock(object)) return;
        if (model::HasPosition(object) && Chance(20)) MoveToClick(object, build::At({ 10, 10 }));
        const int before = Actions();
        const uint32_t kind = model::KindOf(object);
        if (!RunDialog(object, true)) CancelDialog();
        if (Actions() > before) ++recordedOf[kind];
    }

    std::mt19937 generator{ 2004 };
    const SceneryObject* subject = nullptr;  // of the dialog that is open
    std::map<uint32_t, int> recordedOf;      // actions of the dialog of each kind
};

TEST_F(DialogRoundTrip, OkWithoutAChangeChangesNothingWhateverTheRecordsHold) {
    for (int round = 0; round < 300; ++round) {
        MakeAirport();
        if (round > 0) Scramble();
        app::settings.metric = Chance(50);
        app::settings.metricParkingRadius = Chance(50);
        app::settings.latLongFormat = static_cast<int>(1 + Below(5));
        const Snapshot before = Take();
        for (SceneryObject* object : before.list) {
            fake.answers = { Answer::Yes };
            RunDialog(object, false);  // some records are refused as they are
            ASSERT_EQ(Take(), before) << model::KindOf(object);
            ASSERT_EQ(Actions(), 0);
            ASSERT_FALSE(model::state.modified);
        }
    }
}

TEST_F(DialogRoundTrip, UndoingTenThousandSequencesOfEditsGivesTheOriginalBytes) {
    int recorded = 0;
    for (int sequence = 0; sequence < 10000; ++sequence) {
        if (sequence % 100 == 0) {
            MakeAirport();
            if (sequence % 200 == 0) Scramble();
        }
        app::settings.metric = Chance(50);
        app::settings.metricParkingRadius = Chance(50);
        app::settings.latLongFormat = static_cast<int>(1 + Below(5));
        model::ClearHistory();
        const Snapshot before = Take();
        const uint32_t steps = 1 + Below(8);
        for (uint32_t step = 0; step < steps; ++step) {
            fake.messages.clear();
            fake.answers.assign(4, Chance(70) ? Answer::Yes : Chance(50) ? Answer::No : Answer::Cancel);
            Step();
            ASSERT_TRUE(model::state.moved.empty());
            ASSERT_EQ(model::state.provisional, nullptr);
        }
        recorded += Actions();
        const Snapshot after = Take();
        while (model::CanUndo()) model::Undo();
        ExpectSame(Take(), before, sequence);
        if (HasFailure()) return;
        while (model::CanRedo()) model::Redo();
        ExpectSame(Take(), after, sequence);
        if (HasFailure()) return;
        while (model::CanUndo()) model::Undo();
    }
    EXPECT_GT(recorded, 10000);
    for (const uint32_t kind :
         { model::kAirport, model::kRunway, model::kHelipad, model::kCommFrequency, model::kStartLocation,
           model::kTaxiNode, model::kTaxiLink, model::kParkingSpot, model::kApron, model::kApronEdgeLights, model::kIls,
           model::kMarkerBeacon, model::kNdb, model::kVorDme, model::kTowerViewpoint })
        EXPECT_GT(recordedOf[kind], 50) << "the dialog of kind " << kind << " was hardly tested";
}

}  // namespace
