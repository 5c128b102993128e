// RunwayMarkingsPage.cpp - the markings page of the runway editor: every box is one bit of one word.
#include "dialogs/RunwayParts.h"

namespace dialogs {

namespace {

constexpr BitRow<RunwayFields> kWholeBits[] = {
    { &RunwayFields::edgeLines, 0x0001 },   { &RunwayFields::threshold, 0x0002 },
    { &RunwayFields::aimingPoint, 0x0004 }, { &RunwayFields::touchdownZone, 0x0008 },
    { &RunwayFields::centreLine, 0x0010 },  { &RunwayFields::numbers, 0x0020 },
    { &RunwayFields::precision, 0x0040 },   { &RunwayFields::edgePavement, 0x0080 },
    { &RunwayFields::noMarkings, 0x0100 },
};
constexpr BitRow<RunwayEndFields> kEndBits[2][2] = {
    { { &RunwayEndFields::closedMark, 0x0200 }, { &RunwayEndFields::stolMark, 0x0800 } },
    { { &RunwayEndFields::closedMark, 0x0400 }, { &RunwayEndFields::stolMark, 0x1000 } },
};

}  // namespace

void LoadMarkingsPage(const SceneryObject* runway, RunwayFields* fields) {
    const uint32_t markings = model::PayloadAs<model::RunwayPayload>(runway).body.markings;
    LoadBits(kWholeBits, markings, fields);
    for (size_t end = 0; end < 2; ++end) LoadBits(kEndBits[end], markings, &fields->ends[end]);
}

void StoreMarkingsPage(const RunwayFields& shown, const RunwayFields& entered, SceneryObject* draft) {
    auto& body = model::PayloadAs<model::RunwayPayload>(draft).body;
    uint32_t markings = StoreBits(kWholeBits, shown, entered, body.markings);
    for (size_t end = 0; end < 2; ++end) {
        markings = StoreBits(kEndBits[end], shown.ends[end], entered.ends[end], markings);
    }
    body.markings = static_cast<uint16_t>(markings);
}

}  // namespace dialogs
