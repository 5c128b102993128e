// DialogHost.h - what the dialogs ask of the program around them. The program defines these, tests fake
// them.
#pragma once

#include <cstdint>

#include "model/Records.h"

namespace dialogs {

// New links drawn on the map look like this one: a link of type Taxiway or Closed is the pattern for new
// taxiways, one of type Apron route or Parking connector for those.
void UseLinkTemplate(const model::TaxiLinkPayload& link);

// New spots get this type.
void UseParkingType(uint32_t type);

}  // namespace dialogs
