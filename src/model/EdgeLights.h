// EdgeLights.h - the strips of apron edge lights and how far apart their lamps stand.
#pragma once

#include <cstdint>
#include <vector>

#include "model/Records.h"
#include "model/SceneryObject.h"

namespace model {

std::vector<EdgeLightStrip> StripsOf(const SceneryObject* lights);  // bounded by the payload

// Writes the strips back; as many as there were.
void SetStrips(SceneryObject* lights, const std::vector<EdgeLightStrip>& strips);

double StripLength(const EdgeLightStrip& strip);  // metres

// The spacing nearest to the optimum that makes the last lamp stand at the strip's end.
double AdjustedSpacing(double stripLength, double optimum);

}  // namespace model
