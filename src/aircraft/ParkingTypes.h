// ParkingTypes.h - the words that aircraft.cfg knows for kinds of parking.
#pragma once

#include <string>
#include <string_view>

namespace aircraft {

// The words of the text, which blanks and commas part, as the simulator writes them: "g ramp" becomes "GATE,RAMP".
// Short forms and either case are understood. False, with the word in *unknown, when one is no parking type.
bool NormaliseTypes(std::string_view text, std::string* types, std::string* unknown);

}  // namespace aircraft
