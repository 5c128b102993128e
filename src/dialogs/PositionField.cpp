// PositionField.cpp - see PositionField.h.
#include "dialogs/PositionField.h"

#include <string>

#include "dialogs/NumberField.h"
#include "model/Geodesy.h"
#include "model/Positions.h"
#include "platform/Platform.h"

namespace dialogs {

using model::EncodedPoint;
using model::SceneryObject;

bool IsPlaceholder(EncodedPoint point) {
    return point.longitude == kPlaceholder.longitude && point.latitude == kPlaceholder.latitude;
}

EncodedPoint PointOf(const SceneryObject* object) {
    const model::BglPoint code = model::EncodedPositionOf(object);
    return { code.lonCode, code.latCode };
}

void SetPoint(SceneryObject* object, EncodedPoint point) {
    model::SetEncodedPosition(object, { point.latitude, point.longitude });
}

CoordinateTexts ShowPoint(EncodedPoint point) {
    if (IsPlaceholder(point)) return {};
    return model::FormatLatLon(model::BglToLatLon({ point.latitude, point.longitude }));
}

bool ReadPoint(const CoordinateTexts& shown, const CoordinateTexts& entered, EncodedPoint* point, BadField* bad,
               int part) {
    model::LatLon position = model::BglToLatLon({ point->latitude, point->longitude });
    model::CoordinateField wrong = model::CoordinateField::None;
    switch (model::ParseLatLon(entered, shown, &position, &wrong)) {
    case model::ParseResult::Unchanged: return true;
    case model::ParseResult::Error:
        *bad = { wrong == model::CoordinateField::Latitude ? Field::Latitude : Field::Longitude, part };
        return false;
    case model::ParseResult::Changed: break;
    }
    const model::BglPoint code = model::LatLonToBgl(position);
    if (entered.longitude != shown.longitude) point->longitude = code.lonCode;
    if (entered.latitude != shown.latitude) point->latitude = code.latCode;
    return true;
}

bool ReadPosition(const CoordinateTexts& shown, const CoordinateTexts& entered, SceneryObject* draft, BadField* bad) {
    EncodedPoint point = PointOf(draft);
    if (!ReadPoint(shown, entered, &point, bad)) return false;
    SetPoint(draft, point);
    return true;
}

bool RequirePosition(const SceneryObject* draft, const char* what, BadField* bad) {
    if (!IsPlaceholder(PointOf(draft))) return true;
    platform::ShowError(std::string("You must enter a latitude and longitude for ") + what +
                        ".\nYou may click on the main window to set the latitude and longitude");
    *bad = { Field::Latitude };
    return false;
}

}  // namespace dialogs
