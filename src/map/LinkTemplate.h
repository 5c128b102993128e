// LinkTemplate.h - what new taxi links look like.
//
// There are two patterns: one for taxiways (runway and closed links too), one for apron routes and parking
// connectors. The properties dialog sets them.
#pragma once

#include <cstdint>

#include "model/Records.h"

namespace map {

// The pattern for links of its kind from now on. A runway link is no pattern, nor is one of an unknown type.
void UseLinkTemplate(const model::TaxiLinkPayload& link);
void ForgetLinkTemplates();

// A link of the type, with the lines, lights, surface and width of its pattern; without ends and designator. Runway
// links carry no painted lines.
model::TaxiLinkPayload LinkFromTemplate(uint32_t type);

// Changes the type. Apron routes lack the flags that have a surface drawn, all others have them.
void SetLinkType(model::TaxiLinkPayload* link, uint32_t type);

// A link to a parking spot is a parking link; what was one and no longer ends there becomes an apron route.
void FitTypeToEnd(model::TaxiLinkPayload* link);

}  // namespace map
