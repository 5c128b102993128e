// NumberField.h - numbers in dialogs: how each quantity is shown, read, limited and stored.
//
// A field whose text is the text that was shown keeps its stored value bit for bit; every other text is
// read strictly. What cannot be read, or lies outside the range, is refused with a message of the range.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "dialogs/Field.h"
#include "model/SceneryObject.h"

namespace dialogs {

enum class Unit {
    Length,         // float metres; feet or metres by the Metric setting
    TaxiLength,     // the same with the plain foot, as the taxi dialogs convert
    ParkingLength,  // the same by the MetricParkingRadius setting
    Elevation,      // int32 millimetres; feet or metres above sea level
    Range,          // float metres; nautical miles or kilometres
    Degrees,        // float
    Variation,      // float degrees 0 to 360, west positive; shown east positive
    Megahertz,      // uint32 hertz
    Kilohertz,      // uint32 hertz
    Plain,          // a number without a unit
};

struct Quantity {
    const char* name;  // as messages call it
    Unit unit;
    double least, most;         // in the unit that is stored; of a Variation as shown
    int decimals = 1;           // shown behind the point
    int imperialDecimals = 0;   // the same in feet
    bool whole = false;         // only whole numbers are read, in the unit shown
    bool wholeMetres = false;   // the same while metres are shown
    int minimumCharacters = 0;  // shorter texts are filled with blanks in front
};

// A decimal number with an optional sign, blanks around it allowed; anything else is refused.
bool ReadNumber(std::string_view text, double* number);

// Whether what the text begins with comes to 0 in the record. So does a text that begins with no number.
bool ReadsAsZero(const Quantity& quantity, std::string_view text);

double ShownNumber(const Quantity& quantity, double stored);
double StoredNumber(const Quantity& quantity, double shown);
std::string ShowNumber(const Quantity& quantity, double stored);
std::string HeadingText(double degrees);  // of 0 to 360: "0.0" to "359.9", for texts that are never read back

// Shown and entered texts being the same leaves *stored alone. False after the message of a refusal.
bool ReadQuantity(const Quantity& quantity, const std::string& shown, const std::string& entered, double* stored);

// The same for the field of a dialog: a refusal sends the user back to it.
bool ReadField(const Quantity& quantity, const std::string& shown, const std::string& entered, Field field,
               double* stored, BadField* bad);

// The unit's word behind a label: "ft" or "m", "nm" or "km".
const char* UnitLabel(Unit unit);

// The value of the quantity at that place of a payload: float, int32 or uint32 as its unit says.
double StoredAt(const uint8_t* place, Unit unit);
void StoreAt(uint8_t* place, Unit unit, double value);
std::string ShowNumberAt(const Quantity& quantity, const uint8_t* place);
bool ReadNumberAt(const Quantity& quantity, const std::string& shown, const std::string& entered, uint8_t* place);

// A number field of a dialog: which text, where in the payload, which quantity.
template <class Fields>
struct NumberRow {
    Field field;
    std::string Fields::*text;
    size_t offset;
    const Quantity* quantity;
    int part = 0;  // for BadField
};

template <class Fields>
void LoadNumbers(std::span<const NumberRow<Fields>> rows, const model::SceneryObject* object, Fields* fields) {
    for (const auto& row : rows) fields->*row.text = ShowNumberAt(*row.quantity, object->payload + row.offset);
}

template <class Fields>
bool StoreNumbers(std::span<const NumberRow<Fields>> rows, const Fields& shown, const Fields& entered,
                  model::SceneryObject* draft, BadField* bad) {
    for (const auto& row : rows) {
        if (!ReadNumberAt(*row.quantity, shown.*row.text, entered.*row.text, draft->payload + row.offset)) {
            *bad = { row.field, row.part };
            return false;
        }
    }
    return true;
}

// Quantities that several dialogs share.
inline constexpr Quantity kNavaidRange = { "range", Unit::Range, 100, 1e6 };
inline constexpr Quantity kElevation = { "elevation", Unit::Elevation, -2e6, 30e6 };
inline constexpr Quantity kHeading = { "heading", Unit::Degrees, 0, 360, 1 };
inline constexpr Quantity kVariation = { "magnetic variation", Unit::Variation, -180, 180, 1 };

}  // namespace dialogs
