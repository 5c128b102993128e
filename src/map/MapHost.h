// MapHost.h - what the map asks of the program around it. The program defines these, tests fake them.
#pragma once

#include <string_view>

#include "model/Geodesy.h"
#include "model/SceneryObject.h"

namespace map {

// The rotation read-out shows view.rotation again.
void RotationChanged();

// Places the simulator aircraft, when the simulator link is up; heading in radians true.
void PlaceSimAircraft(model::LatLon position, double heading);

// Between the two, OnDragTimer is called every kDragTimerPeriod milliseconds. Starting a running timer and stopping
// a stopped one do nothing.
constexpr int kDragTimerPeriod = 150;
void StartDragTimer();
void StopDragTimer();

// Only what PaintFeedback draws has changed; the map below it stays as it is painted.
void RequestFeedback();

// Shows the properties of the object; the user may change them before this returns.
void OpenProperties(model::SceneryObject* object);

// A remark for the user, where it does not interrupt. UTF-8, one line.
void ShowRemark(std::string_view text);

}  // namespace map
