// Random edits, undos and redos, compared after every step with a plain list of snapshots.
//
// The reference does every edit a second time on values of its own: a list of plain structures, in which
// objects are numbers. It shares no code with the history.
#include <gtest/gtest.h>

#include <cstring>
#include <deque>
#include <map>
#include <random>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "model/EditHistory.h"

namespace {

using namespace model;

constexpr int kNothing = -1;

struct PlainObject {
    int number = 0;  // identity
    uint32_t flags = 0;
    std::vector<uint8_t> bytes;  // payload without pointers
    std::vector<int> pointers;   // numbers of the objects that the payload points to
    int related = kNothing;
    int32_t viewWord = 0;
    bool operator==(const PlainObject&) const = default;
};
using Snapshot = std::vector<PlainObject>;

struct PlainAction {
    Snapshot before, after;
    int entries = 0;
    bool marked = true;
};

// The reference.
struct PlainModel {
    Snapshot now;
    std::deque<PlainAction> done, undone;  // newest last
    bool modified = false;
};

class HistoryProperty : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
    }
    void TearDown() override { ClearModel(); }

    uint32_t Below(uint32_t limit) { return static_cast<uint32_t>(random() % limit); }
    bool Chance(uint32_t percent) { return Below(100) < percent; }

    // ---- what the program sees, put into plain form

    int NumberOf(const SceneryObject* object) const { return object ? numbers.at(object) : kNothing; }

    PlainObject PlainOf(const SceneryObject* object) const {
        PlainObject seen;
        seen.number = NumberOf(object);
        seen.flags = object->flags;
        seen.related = NumberOf(object->related);
        seen.viewWord = object->view[4];
        size_t bytes = object->payloadSize;
        if (KindOf(object) == kTaxiLink) {
            const auto& link = PayloadAs<TaxiLinkPayload>(object);
            seen.pointers = { NumberOf(link.start), NumberOf(link.end), NumberOf(link.designator) };
            bytes = kTaxiLinkFileSize;
        } else if (KindOf(object) == kGuideline) {
            const auto& guideline = PayloadAs<GuidelinePayload>(object);
            seen.pointers = { NumberOf(guideline.from), NumberOf(guideline.to) };
            bytes = 0;
        }
        seen.bytes.assign(object->payload, object->payload + bytes);
        return seen;
    }

    Snapshot Seen() const {
        Snapshot seen;
        for (const SceneryObject* o = state.head; o; o = o->next) seen.push_back(PlainOf(o));
        return seen;
    }

    SceneryObject* ObjectNumbered(int number) const {
        for (SceneryObject* o = state.head; o; o = o->next) {
            if (numbers.at(o) == number) return o;
        }
        return nullptr;
    }

    // ---- edits, done on both sides

    void BeginBoth() {
        BeginAction();
        startsAction = true;
    }

    void NoteEdit() {
        PlainAction* action = plain.done.empty() ? nullptr : &plain.done.back();
        if (startsAction || !action) {
            plain.done.push_back({ beforeEdit, {}, 0, startsAction });
            action = &plain.done.back();
        }
        ++action->entries;
        action->after = plain.now;
        startsAction = false;
        plain.undone.clear();
        plain.modified = true;
        while (MarkedActions() > 21) plain.done.pop_front();
        if (MarkedActions() == 21 && !plain.done.front().marked) plain.done.pop_front();
    }

    int MarkedActions() const {
        int marked = 0;
        for (const PlainAction& action : plain.done) marked += action.marked;
        return marked;
    }

    size_t PlaceOf(int number) const {
        for (size_t i = 0; i < plain.now.size(); ++i) {
            if (plain.now[i].number == number) return i;
        }
        ADD_FAILURE() << "no object " << number;
        return 0;
    }

    void AddBoth(SceneryObject* object) {
        beforeEdit = plain.now;
        numbers[object] = nextNumber++;
        plain.now.push_back(PlainOf(object));
        AddObject(object);
        NoteEdit();
    }

    void DeleteBoth(int number) {
        beforeEdit = plain.now;
        DeleteObject(ObjectNumbered(number));
        plain.now.erase(plain.now.begin() + static_cast<ptrdiff_t>(PlaceOf(number)));
        NoteEdit();
    }

    // The copy may be older than other edits of the action: its content counts, not its neighbours.
    void ModifyBoth(SceneryObject* edited, int number) {
        beforeEdit = plain.now;
        numbers[edited] = number;  // only to describe it
        PlainObject content = PlainOf(edited);
        numbers.erase(edited);
        plain.now[PlaceOf(number)] = content;
        ModifyObject(edited, ObjectNumbered(number));
        NoteEdit();
    }

    // ---- random content

    int RandomNumberOfKind(std::initializer_list<uint32_t> kinds) {
        std::vector<int> found;
        for (const PlainObject& object : plain.now) {
            for (uint32_t kind : kinds) {
                if ((object.flags & kKindMask) == kind) found.push_back(object.number);
            }
        }
        return found.empty() ? kNothing : found[Below(static_cast<uint32_t>(found.size()))];
    }

    SceneryObject* RandomOfKind(std::initializer_list<uint32_t> kinds) {
        const int number = RandomNumberOfKind(kinds);
        return number == kNothing ? nullptr : ObjectNumbered(number);
    }

    void ScribbleBytes(SceneryObject* object) {
        const uint32_t mirrored = KindOf(object) == kTaxiLink    ? kTaxiLinkFileSize
                                  : KindOf(object) == kGuideline ? 0
                                                                 : object->payloadSize;
        for (uint32_t i = 0; i < mirrored; ++i) object->payload[i] = static_cast<uint8_t>(random());
        object->view[4] = static_cast<int32_t>(Below(1000));
    }

    // Null when its ends are missing.
    SceneryObject* RandomObject() {
        constexpr uint32_t kKinds[] = { kTowerViewpoint,
                                        kRunway,
                                        kHelipad,
                                        kCommFrequency,
                                        kStartLocation,
                                        kTaxiNode,
                                        kTaxiNode,
                                        kTaxiNode,
                                        kTaxiLink,
                                        kTaxiLink,
                                        kTaxiLink,
                                        kTaxiDesignator,
                                        kParkingSpot,
                                        kParkingSpot,
                                        kApron,
                                        kApronEdgeLights,
                                        kReferenceMarker,
                                        kGuideline,
                                        kIls,
                                        kMarkerBeacon,
                                        kNdb,
                                        kVorDme };
        const uint32_t kind = kKinds[Below(std::size(kKinds))];
        SceneryObject* from = nullptr;
        SceneryObject* to = nullptr;
        if (kind == kTaxiLink) {
            from = RandomOfKind({ kTaxiNode });
            to = RandomOfKind({ kTaxiNode, kParkingSpot });
        } else if (kind == kGuideline) {
            from = RandomOfKind({ kReferenceMarker });
            to = RandomOfKind({ kReferenceMarker });
        }
        if ((kind == kTaxiLink || kind == kGuideline) && (!from || !to)) return nullptr;
        const uint32_t size = kind == kTaxiLink    ? sizeof(TaxiLinkPayload)
                              : kind == kGuideline ? sizeof(GuidelinePayload)
                                                   : 20 + 4 * Below(30);
        SceneryObject* object = CreateObject(kind, size);
        ScribbleBytes(object);
        if (kind == kTaxiLink) {
            auto& link = PayloadAs<TaxiLinkPayload>(object);
            link.start = from;
            link.end = to;
            link.designator = RandomOfKind({ kTaxiDesignator, kRunway });
        } else if (kind == kGuideline) {
            PayloadAs<GuidelinePayload>(object) = { from, to };
        }
        if (Chance(30)) object->flags |= kSelected | kNewNode;
        return object;
    }

    // ---- the steps

    void AddOne() {
        if (SceneryObject* object = RandomObject()) AddBoth(object);
    }

    void ModifyOne() {
        if (plain.now.empty()) return;
        const int number = plain.now[Below(static_cast<uint32_t>(plain.now.size()))].number;
        SceneryObject* edited = CopyObject(ObjectNumbered(number));
        const uint32_t kind = KindOf(edited);
        if (kind != kTaxiLink && kind != kGuideline && Chance(40)) ResizePayload(edited, 20 + 4 * Below(60));
        ScribbleBytes(edited);
        if (kind == kTaxiLink && Chance(50))
            PayloadAs<TaxiLinkPayload>(edited).designator = RandomOfKind({ kTaxiDesignator, kRunway });
        if (Chance(30)) edited->flags ^= kSelected;
        ModifyBoth(edited, number);
    }

    // A copy is taken, the list around the object changes, then the copy is used.
    void ModifyWithAnOldCopy() {
        const int number = RandomNumberOfKind({ kTaxiNode, kParkingSpot, kNdb });
        if (number == kNothing) return;
        SceneryObject* edited = CopyObject(ObjectNumbered(number));
        AddOne();
        // Of a kind that nothing points to: a pointer left to a freed object means nothing.
        if (const int other = RandomNumberOfKind({ kHelipad, kCommFrequency }); other != kNothing) DeleteBoth(other);
        ScribbleBytes(edited);
        ModifyBoth(edited, number);
    }

    // Whatever points to the object goes first or lets go.
    void DeleteWithDependents() {
        if (plain.now.empty()) return;
        const int number = plain.now[Below(static_cast<uint32_t>(plain.now.size()))].number;
        for (const PlainObject& object : Snapshot(plain.now)) {
            if (object.pointers.empty()) continue;
            const bool endsThere = object.pointers[0] == number || object.pointers[1] == number;
            if (endsThere) {
                DeleteBoth(object.number);
            } else if (object.pointers.size() > 2 && object.pointers[2] == number) {
                SceneryObject* edited = CopyObject(ObjectNumbered(object.number));
                PayloadAs<TaxiLinkPayload>(edited).designator = nullptr;
                ModifyBoth(edited, object.number);
            }
        }
        LetGo(number);
        DeleteBoth(number);
    }

    void LetGo(int number) {
        for (const PlainObject& object : Snapshot(plain.now)) {
            if (object.related != number) continue;
            SceneryObject* edited = CopyObject(ObjectNumbered(object.number));
            edited->related = nullptr;
            ModifyBoth(edited, object.number);
        }
    }

    // As editing a stock navaid does.
    void Replace() {
        SceneryObject* original = RandomOfKind({ kNdb, kVorDme, kIls });
        if (!original || original->related) return;
        const int number = NumberOf(original);
        SceneryObject* replacement = CopyObject(original);
        replacement->related = original;
        AddBoth(replacement);
        SceneryObject* edited = CopyObject(original);
        edited->related = replacement;
        ModifyBoth(edited, number);
    }

    void UndoBoth() {
        Undo();
        if (plain.done.empty()) return;
        PlainAction action = plain.done.back();
        plain.done.pop_back();
        plain.now = action.before;
        if (action.entries > 1 || !action.marked) plain.modified = true;
        plain.undone.push_back(action);
    }

    void RedoBoth() {
        Redo();
        if (plain.undone.empty()) return;
        PlainAction action = plain.undone.back();
        plain.undone.pop_back();
        plain.now = action.after;
        if (action.entries > 1) plain.modified = true;
        plain.done.push_back(action);
    }

    void SaveBoth() { plain.modified = state.modified = false; }

    void OneEdit() {
        switch (Below(10)) {
        case 0:
        case 1:
        case 2:
        case 3: AddOne(); break;
        case 4:
        case 5: ModifyOne(); break;
        case 6: ModifyWithAnOldCopy(); break;
        case 7: Replace(); break;
        default: DeleteWithDependents(); break;
        }
    }

    void OneStep() {
        const uint32_t dice = Below(100);
        if (dice < 55) {
            if (!Chance(3)) BeginBoth();  // now and then an edit forgets to
            for (uint32_t edits = 1 + Below(Chance(10) ? 12 : 2); edits > 0; --edits) OneEdit();
        } else if (dice < 77) {
            UndoBoth();
        } else if (dice < 93) {
            RedoBoth();
        } else if (dice < 97) {
            SaveBoth();
        } else {
            for (uint32_t times = Below(30); times > 0; --times) Chance(50) ? UndoBoth() : RedoBoth();
        }
    }

    void ExpectEqual() {
        ASSERT_EQ(Seen(), plain.now);
        ASSERT_EQ(build::ListFromTail(), build::List());
        ASSERT_EQ(state.modified, plain.modified);
        ASSERT_EQ(CanUndo(), !plain.done.empty());
        ASSERT_EQ(CanRedo(), !plain.undone.empty());
        for (const SceneryObject* o = state.head; o; o = o->next) {
            ASSERT_EQ(o->flags & (kHistoryMask | kGroupStart), 0u);
            ASSERT_EQ(o->historyNext, nullptr);
        }
    }

    std::mt19937_64 random;
    std::map<const SceneryObject*, int> numbers;
    int nextNumber = 0;
    PlainModel plain;
    Snapshot beforeEdit;
    bool startsAction = false;
};

TEST_F(HistoryProperty, ThousandsOfRandomStepsMatchAListOfSnapshots) {
    for (uint64_t seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE(seed);
        ClearModel();
        random.seed(seed);
        numbers.clear();
        plain = {};
        startsAction = false;
        for (int step = 0; step < 1500; ++step) {
            SCOPED_TRACE(step);
            OneStep();
            ExpectEqual();
            if (HasFatalFailure()) return;
        }
    }
}

TEST_F(HistoryProperty, AsManyActionsAsAreKeptCanBeUndoneAndRedone) {
    random.seed(99);
    for (int round = 0; round < 20; ++round) {
        for (int action = 0; action < 30; ++action) {
            const Snapshot before = plain.now;
            do {
                BeginBoth();
                OneEdit();
            } while (plain.now == before);
        }
        int undone = 0;
        while (CanUndo()) {
            UndoBoth();
            ExpectEqual();
            ++undone;
        }
        EXPECT_EQ(undone, kUndoActions);
        while (CanRedo()) {
            RedoBoth();
            ExpectEqual();
        }
        if (HasFatalFailure()) return;
    }
}

}  // namespace
