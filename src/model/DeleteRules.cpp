// DeleteRules.cpp - see DeleteRules.h.
//
// An object's dependents go before the object itself, in the same action. They may be anywhere in the
// list, also right behind the object: its successor is asked for only when they are gone. So one walk
// suffices, and no object is asked about twice.
#include "model/DeleteRules.h"

#include <cstddef>
#include <cstring>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "model/EdgeLights.h"
#include "model/EditHistory.h"
#include "model/IlsEnds.h"
#include "model/Links.h"
#include "model/ObjectList.h"
#include "model/Records.h"
#include "model/Triangulate.h"
#include "platform/Platform.h"

namespace model {

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

constexpr uint32_t kApronSelectableVertices = 160;  // bits of the selection bitmap

// Links by the node, spot, runway or designator that they point to, guidelines by their markers.
using Users = std::unordered_map<const SceneryObject*, std::vector<SceneryObject*>>;

struct Deletion {
    Users users;
    std::unordered_set<const SceneryObject*> gone;
    int edits = 0;
};

Users UsersOfAll() {
    Users users;
    const auto note = [&](const SceneryObject* used, SceneryObject* user) {
        if (used) users[used].push_back(user);
    };
    for (SceneryObject* object = state.head; object; object = object->next) {
        if (KindOf(object) == kTaxiLink) {
            const auto& link = PayloadAs<TaxiLinkPayload>(object);
            note(link.start, object);
            note(link.end, object);
            note(link.designator, object);
        } else if (KindOf(object) == kGuideline) {
            const auto& guideline = PayloadAs<GuidelinePayload>(object);
            note(guideline.from, object);
            note(guideline.to, object);
        }
    }
    return users;
}

void Remove(SceneryObject* object, Deletion* deletion) {
    if (!deletion->gone.insert(object).second) return;
    DeleteObject(object);
    ++deletion->edits;
}

void Change(SceneryObject* edited, SceneryObject* live, Deletion* deletion) {
    ModifyObject(edited, live);
    ++deletion->edits;
}

const std::vector<SceneryObject*>& UsersOf(const SceneryObject* object, const Deletion& deletion) {
    static const std::vector<SceneryObject*> kNone;
    const auto found = deletion.users.find(object);
    return found == deletion.users.end() ? kNone : found->second;
}

void RemoveUsers(const SceneryObject* object, Deletion* deletion) {
    for (SceneryObject* user : UsersOf(object, *deletion)) Remove(user, deletion);
}

bool WillGo(const SceneryObject* object, const Deletion& deletion) {
    return deletion.gone.contains(object) || IsSelected(object);
}

// A blank designator that stays, made when there is none.
SceneryObject* LastingBlankDesignator(Deletion* deletion) {
    for (SceneryObject* name = FirstOfKind(state.head, kTaxiDesignator); name;
         name = NextOfKind(name, kTaxiDesignator)) {
        if (IsBlankDesignator(name) && !WillGo(name, *deletion)) return name;
    }
    SceneryObject* blank = CreateObject(kTaxiDesignator, sizeof(TaxiDesignatorRecord));
    AddObject(blank);
    ++deletion->edits;
    return blank;
}

// Links named after a runway or designator that goes keep their way but lose the name. A runway link then has none
// at all, any other the blank designator: links without one would be numbered like those of the first.
void ForgetDesignator(const SceneryObject* designator, Deletion* deletion) {
    for (SceneryObject* link : UsersOf(designator, *deletion)) {
        if (WillGo(link, *deletion)) continue;
        const bool isRunwayLink = LinkTypeOf(PayloadAs<TaxiLinkPayload>(link)) == kRunwayLink;
        SceneryObject* heir = isRunwayLink ? nullptr : LastingBlankDesignator(deletion);
        SceneryObject* edited = CopyObject(link);
        PayloadAs<TaxiLinkPayload>(edited).designator = heir;
        Change(edited, link, deletion);
    }
}

bool NamesAnother(const IlsEnd& end, const SceneryObject* ils) {
    const uint32_t named = end.runway ? IlsNamedBy(end.runway, end.end) : 0;
    return named != 0 && named != IdentOfIls(ils);
}

// The end that names the stock ILS again when its replacement goes: the one that the replacement serves. If the user has
// chosen another end for that or moved it to one, only its place tells which end the stock ILS serves; but where another
// ILS is at home it was the runway that was moved.
IlsEnd HomeOf(const SceneryObject* replacement) {
    const IlsEnd place = EndByPlace(replacement->related);
    const bool stayed = EndByPlace(replacement) == place || NamesAnother(place, replacement);
    return stayed && HasStockEnd(replacement) ? ServedEnd(replacement) : place;
}

// Whether an end may have to be told that the ILS goes. A replacement for which the user has chosen an end that no
// runway has took the stock ILS from its own.
bool ConcernsEnds(const SceneryObject* ils, const IlsEnd& served) {
    if (served.runway) return IlsNamedBy(served.runway, served.end) != 0;
    return ils->related && !HasStockEnd(ils);
}

// Runways no longer name an ILS that goes; where it replaced a stock one an end names that one again, unless another
// ILS has taken it. A runway that goes with its ILS stays as it is.
void ForgetIls(const SceneryObject* ils, const SceneryObject* leaving, Deletion* deletion) {
    const IlsEnd served = ServedEnd(ils);
    if (!ConcernsEnds(ils, served)) return;
    const IlsEnd home = ils->related ? HomeOf(ils) : IlsEnd{};
    const uint32_t heir = ils->related ? IdentOfIls(ils->related) : 0;
    const auto nameWithout = [&](const IlsEnd& end) {
        const uint32_t named = IlsNamedBy(end.runway, end.end);
        if (named != 0 && end != served) return named;
        return end == home ? heir : 0;
    };
    ForEachOfKind(kRunway, [&](SceneryObject* runway) {
        if (runway == leaving) return;
        SceneryObject* edited = CopyObject(runway);
        RunwayRecord& body = PayloadAs<RunwayPayload>(edited).body;
        body.primaryIls = nameWithout({ runway, RunwayEnd::Primary });
        body.secondaryIls = nameWithout({ runway, RunwayEnd::Secondary });
        if (std::memcmp(edited->payload, runway->payload, sizeof(RunwayRecord)) != 0)
            Change(edited, runway, deletion);
        else
            FreeObject(edited);
    });
}

// The stock object that the replacement stood for is in force again.
void RemoveNavaid(SceneryObject* navaid, const SceneryObject* leavingRunway, Deletion* deletion) {
    if (deletion->gone.contains(navaid)) return;
    if (KindOf(navaid) == kIls) ForgetIls(navaid, leavingRunway, deletion);
    if (SceneryObject* stock = navaid->related) {
        SceneryObject* edited = CopyObject(stock);
        edited->related = nullptr;
        Change(edited, stock, deletion);
    }
    Remove(navaid, deletion);
}

std::vector<SceneryObject*> OwnIlsOf(const SceneryObject* runway) {
    std::vector<SceneryObject*> found;
    ForEachOfKind(kIls, [&](SceneryObject* ils) {
        if (!IsStock(ils) && ServedEnd(ils).runway == runway) found.push_back(ils);
    });
    return found;
}

bool Confirmed(const char* question) {
    return platform::ShowMessage(question, Buttons::OkCancel, Icon::Exclamation) == Answer::Ok;
}

void DeleteRunway(SceneryObject* runway, Deletion* deletion) {
    const std::vector<SceneryObject*> installed = OwnIlsOf(runway);
    if (!installed.empty() && !Confirmed("This runway is equipped with ILS.\n\n"
                                         "If you delete the runway the ILS will also be deleted.\n\n"
                                         "Do you want to proceed?"))
        return;
    for (SceneryObject* ils : installed) RemoveNavaid(ils, runway, deletion);
    ForgetDesignator(runway, deletion);
    Remove(runway, deletion);
}

void DeleteTower(SceneryObject* tower, Deletion* deletion) {
    if (Confirmed("Are you sure you want to delete the control tower viewpoint?")) Remove(tower, deletion);
}

void RefuseStock(const SceneryObject* object) {
    const std::string what = KindOf(object) == kIls ? "ILS" : "navaids";
    platform::ShowRefusal("Flight Simulator does not allow stock " + what +
                          " to be deleted,\nthey can only be moved or modified.\n\n"
                          "This operation has been cancelled.");
}

void DeleteApron(SceneryObject* apron, Deletion* deletion) {
    if (apron->flags & kWholeSelected) return Remove(apron, deletion);
    const auto& head = PayloadAs<ApronHead>(apron);
    const std::vector<EncodedPoint> outline = ApronOutline(apron);
    std::vector<EncodedPoint> kept;
    for (size_t i = 0; i < outline.size(); ++i) {
        const bool selected = i < kApronSelectableVertices && (head.selection[i / 8] >> (i % 8) & 1) != 0;
        if (!selected) kept.push_back(outline[i]);
    }
    if (kept.size() == outline.size()) return;
    if (kept.empty()) return Remove(apron, deletion);
    SceneryObject* edited = CopyWithOutline(apron, kept);
    edited->flags &= ~kSelected;
    Change(edited, apron, deletion);
}

void DeleteEdgeLights(SceneryObject* lights, Deletion* deletion) {
    if (lights->flags & kWholeSelected) return Remove(lights, deletion);
    std::vector<EdgeLightStrip> strips = StripsOf(lights);
    const size_t count = strips.size();
    std::erase_if(strips, [](const EdgeLightStrip& strip) {
        return strip.segmentSelected != 0 || strip.startSelected != 0 || strip.endSelected != 0;
    });
    if (strips.size() == count) return;
    if (strips.empty()) return Remove(lights, deletion);
    const size_t stripBytes = strips.size() * sizeof(EdgeLightStrip);
    SceneryObject* edited = CopyObject(lights);
    ResizePayload(edited, static_cast<uint32_t>(sizeof(EdgeLightsHead) + stripBytes));
    PayloadAs<EdgeLightsHead>(edited).stripCount = static_cast<uint32_t>(strips.size());
    std::memcpy(edited->payload + sizeof(EdgeLightsHead), strips.data(), stripBytes);
    edited->flags &= ~kSelected;
    Change(edited, lights, deletion);
}

void DeleteByKind(SceneryObject* object, Deletion* deletion) {
    if (IsStock(object)) return RefuseStock(object);
    switch (KindOf(object)) {
    case kAirport: return;  // never
    case kTowerViewpoint: return DeleteTower(object, deletion);
    case kRunway: return DeleteRunway(object, deletion);
    case kTaxiNode:
    case kParkingSpot:
    case kReferenceMarker: RemoveUsers(object, deletion); return Remove(object, deletion);
    case kTaxiDesignator: ForgetDesignator(object, deletion); return Remove(object, deletion);
    case kApron: return DeleteApron(object, deletion);
    case kApronEdgeLights: return DeleteEdgeLights(object, deletion);
    case kIls:
    case kMarkerBeacon:
    case kNdb:
    case kVorDme: return RemoveNavaid(object, nullptr, deletion);
    default: return Remove(object, deletion);
    }
}

}  // namespace

int DeleteSelected() {
    if (state.busy) return 0;
    Deletion deletion;
    deletion.users = UsersOfAll();
    BeginAction();
    for (SceneryObject *object = state.head, *next = nullptr; object; object = next) {
        if (IsSelected(object) && object != state.provisional) DeleteByKind(object, &deletion);
        next = object->next;
    }
    platform::RequestRepaint();
    return deletion.edits;
}

int DeleteGuidelinesAndMarkers() {
    Deletion deletion;
    BeginAction();
    for (const uint32_t kind : { uint32_t{ kGuideline }, uint32_t{ kReferenceMarker } }) {
        for (SceneryObject *object = FirstOfKind(state.head, kind), *next = nullptr; object; object = next) {
            next = NextOfKind(object, kind);
            Remove(object, &deletion);
        }
    }
    platform::RequestRepaint();
    return deletion.edits;
}

}  // namespace model
