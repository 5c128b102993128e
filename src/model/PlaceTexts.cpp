// PlaceTexts.cpp - see PlaceTexts.h.
#include "model/PlaceTexts.h"

#include <algorithm>
#include <iterator>

#include "model/ObjectList.h"

namespace model {

PlaceTexts CurrentPlaceTexts() {
    PlaceTexts texts;
    std::copy(std::begin(state.airportName), std::end(state.airportName), texts.name.begin());
    texts.country = state.country;
    texts.state = state.state;
    texts.city = state.city;
    texts.icao = state.icao;
    return texts;
}

void SetPlaceTexts(const PlaceTexts& texts) {
    std::copy(texts.name.begin(), texts.name.end(), std::begin(state.airportName));
    state.country = texts.country;
    state.state = texts.state;
    state.city = texts.city;
    state.icao = texts.icao;
}

}  // namespace model
