// AirportModel.h - turns a plan into the objects of the model.
#pragma once

#include <vector>

#include "model/SceneryObject.h"
#include "sample/AirportPlan.h"

namespace sample {

// Clears the model and fills it with the airport, its ILSs included, as if it had been opened from a file.
// Nothing in it is stock; the loaded flag is set.
void MakeAirportModel(const AirportPlan& plan);

// The objects of a runway's equipment, in the order of the plan's runways.
model::SceneryObject* MakeRunway(const AirportPlan& plan, const RunwayPlan& runway);
model::SceneryObject* MakeStart(const AirportPlan& plan, const RunwayPlan& runway, int end);
model::SceneryObject* MakeIls(const AirportPlan& plan, const RunwayPlan& runway, int end);
// Outer, middle and, for approach lights with flashing rows, inner marker of an end with an ILS.
std::vector<model::SceneryObject*> MakeMarkers(const AirportPlan& plan, const RunwayPlan& runway, int end);

// The taxi network of the plan with its parking spots and names. `runways` are those of the plan, in its order.
void AppendNetwork(const AirportPlan& plan, const std::vector<model::SceneryObject*>& runways);

// Helpers for the fields of records.
model::EncodedPoint Encoded(const AirportPlan& plan, Local place);
int32_t Millimetres(double metres);
float WestVariation(double eastVariation);                          // degrees, [0, 360) west positive
void StoreText(const std::string& utf8, char* field, size_t size);  // Windows-1252, cut and zero terminated

}  // namespace sample
