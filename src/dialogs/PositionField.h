// PositionField.h - the latitude and longitude pair of a dialog.
#pragma once

#include "dialogs/Field.h"
#include "model/CoordinateText.h"
#include "model/Records.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::CoordinateTexts;

// Where new records stand until they are placed.
inline constexpr model::EncodedPoint kPlaceholder = { model::kPlaceholderLongitude, model::kPlaceholderLatitude };

bool IsPlaceholder(model::EncodedPoint point);

// The position of an object that has one of its own.
model::EncodedPoint PointOf(const model::SceneryObject* object);
void SetPoint(model::SceneryObject* object, model::EncodedPoint point);

// Both texts are empty at the placeholder.
CoordinateTexts ShowPoint(model::EncodedPoint point);

// An unchanged text leaves its coordinate of *point alone. False after an error, which has been shown.
bool ReadPoint(const CoordinateTexts& shown, const CoordinateTexts& entered, model::EncodedPoint* point, BadField* bad,
               int part = 0);

// The same for the object's own position.
bool ReadPosition(const CoordinateTexts& shown, const CoordinateTexts& entered, model::SceneryObject* draft,
                  BadField* bad);

// Refuses a record that is still unplaced; `what` is for example "the NDB".
bool RequirePosition(const model::SceneryObject* draft, const char* what, BadField* bad);

}  // namespace dialogs
