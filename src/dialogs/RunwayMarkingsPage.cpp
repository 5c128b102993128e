// RunwayMarkingsPage.cpp - the markings page of the runway editor: every box is one bit of one word.
#include "dialogs/RunwayParts.h"
#include "model/RunwayBits.h"

namespace dialogs {

namespace {

constexpr BitRow<RunwayFields> kWholeBits[] = {
    { &RunwayFields::edgeLines, model::kEdgeLines },      { &RunwayFields::threshold, model::kThresholdStripes },
    { &RunwayFields::aimingPoint, model::kAimingPoints }, { &RunwayFields::touchdownZone, model::kTouchdownMarks },
    { &RunwayFields::centreLine, model::kCentreLine },    { &RunwayFields::numbers, model::kDesignation },
    { &RunwayFields::precision, model::kPrecision },      { &RunwayFields::edgePavement, model::kEdgePavement },
    { &RunwayFields::noMarkings, model::kSingleEnd },
};
constexpr BitRow<RunwayEndFields> kEndBits[2][2] = {
    { { &RunwayEndFields::closedMark, model::kPrimaryClosed }, { &RunwayEndFields::stolMark, model::kPrimaryStol } },
    { { &RunwayEndFields::closedMark, model::kSecondaryClosed },
      { &RunwayEndFields::stolMark, model::kSecondaryStol } },
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
