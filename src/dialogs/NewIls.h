// NewIls.h - "New ILS": the runway ends that can get one, and what is made for them.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "dialogs/Choices.h"
#include "model/Geodesy.h"
#include "model/Records.h"

namespace dialogs {

// The runway ends without an ILS, shown by their names. Empty after a message: there is no runway, or each
// has an ILS.
std::vector<RunwayEndRef> EndsForNewIls();

// Makes the ILS with localizer, glide slope and DME in their usual places and names it in the runway, as
// one action. `random` gives any numbers.
SceneryObject* CreateIls(const RunwayEndRef& ref, const std::function<uint32_t()>& random);
std::function<uint32_t()> SeededRandom();  // by the clock

// The parts of the above that the editor needs too.
model::GlideSlopePart UsualGlideSlope(const RunwayEndRef& ref);
model::GlideSlopePart UsualGlideSlopeAt(model::EncodedPoint point, int32_t altitude);  // of the usual range and angle
model::DmePart UsualDme(const model::GlideSlopePart& slope);

// The beam width in degrees that makes the course 210 m wide at the landing threshold, kept within 3 to 6.
double LocalizerWidth(const RunwayEndRef& ref, model::LatLon localizer);

// An odd number of tenths from 108.1 to 111.9 MHz: the first draw that no ILS in force has, or the last of 80 more.
uint32_t DrawIlsFrequency(const std::function<uint32_t()>& random);

}  // namespace dialogs
