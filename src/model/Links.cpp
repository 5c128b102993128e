// Links.cpp - see Links.h.
#include "model/Links.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "model/EditHistory.h"
#include "model/ObjectList.h"

namespace model {

namespace {

constexpr uint16_t kIndexMask = 0x0FFF;
constexpr int kDesignatorShift = 12;
constexpr uint32_t kDesignatorMask = 0xF;  // what a link can hold of a runway's designator

SceneryObject* At(const std::vector<SceneryObject*>& objects, uint32_t index) {
    return index < objects.size() ? objects[index] : nullptr;
}

SceneryObject* RunwayNamed(const std::vector<SceneryObject*>& runways, uint32_t number, uint32_t designator) {
    for (SceneryObject* runway : runways) {
        const RunwayRecord& body = PayloadAs<RunwayPayload>(runway).body;
        if (body.primaryNumber == number && (body.primaryDesignator & kDesignatorMask) == designator) return runway;
    }
    return nullptr;
}

using IndexMap = std::unordered_map<const SceneryObject*, uint32_t>;

IndexMap IndicesOf(const std::vector<SceneryObject*>& objects) {
    IndexMap indices;
    indices.reserve(objects.size());
    for (const SceneryObject* object : objects) indices.emplace(object, static_cast<uint32_t>(indices.size()));
    return indices;
}

uint32_t IndexIn(const IndexMap& indices, const SceneryObject* object) {
    const auto found = indices.find(object);
    return found == indices.end() ? 0 : found->second;
}

}  // namespace

void ResolveLinks() {
    const KindLists all = SortByKind();
    const auto &nodes = all[kTaxiNode], &spots = all[kParkingSpot];
    const auto &designators = all[kTaxiDesignator], &runways = all[kRunway];
    for (SceneryObject* object : all[kTaxiLink]) {
        auto& link = PayloadAs<TaxiLinkPayload>(object);
        const uint32_t type = LinkTypeOf(link);
        link.start = At(nodes, link.startIndex);
        link.end = At(type == kParkingLink ? spots : nodes, link.endField & kIndexMask);
        link.designator = type == kRunwayLink
                              ? RunwayNamed(runways, LinkIndexByte(link), link.endField >> kDesignatorShift)
                              : At(designators, LinkIndexByte(link));
        if (link.start && link.end) continue;
        UnlinkObject(object);
        FreeObject(object);
    }
}

bool IsBlankDesignator(const SceneryObject* designator) {
    return PayloadAs<TaxiDesignatorRecord>(designator).name[0] == '\0';
}

SceneryObject* BlankDesignator() {
    SceneryObject* designator = FirstOfKind(state.head, kTaxiDesignator);
    while (designator && !IsBlankDesignator(designator)) designator = NextOfKind(designator, kTaxiDesignator);
    return designator;
}

SceneryObject* BlankDesignatorForEdit() {
    if (SceneryObject* blank = BlankDesignator()) return blank;
    SceneryObject* blank = CreateObject(kTaxiDesignator, sizeof(TaxiDesignatorRecord));
    AddObject(blank);
    return blank;
}

void UpdateLinkIndices() {
    const KindLists all = SortByKind();
    const IndexMap nodes = IndicesOf(all[kTaxiNode]), spots = IndicesOf(all[kParkingSpot]);
    const IndexMap designators = IndicesOf(all[kTaxiDesignator]), runways = IndicesOf(all[kRunway]);
    for (SceneryObject* object : all[kTaxiLink]) {
        auto& link = PayloadAs<TaxiLinkPayload>(object);
        const uint32_t type = LinkTypeOf(link);
        uint32_t endField = link.endField & ~uint32_t{ kIndexMask };
        endField |= IndexIn(type == kParkingLink ? spots : nodes, link.end) & kIndexMask;
        uint32_t indexByte = 0;
        const SceneryObject* named = link.designator;
        if (type != kRunwayLink) {
            indexByte = IndexIn(designators, named);
        } else {
            uint32_t designator = 0;
            if (runways.contains(named)) {
                const RunwayRecord& runway = PayloadAs<RunwayPayload>(named).body;
                indexByte = runway.primaryNumber;
                designator = runway.primaryDesignator & kDesignatorMask;
            }
            endField = (endField & kIndexMask) | designator << kDesignatorShift;
        }
        link.startIndex = static_cast<uint16_t>(IndexIn(nodes, link.start));
        link.endField = static_cast<uint16_t>(endField);
        link.flagsWord = (link.flagsWord & ~kLinkIndexMask) | (indexByte << kLinkIndexShift & kLinkIndexMask);
    }
}

}  // namespace model
