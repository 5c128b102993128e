// TableWords.cpp - see TableWords.h.
#include "sample/TableWords.h"

#include <string>

#include "model/Names.h"
#include "platform/Text.h"

namespace sample {

namespace {

struct SurfaceWord {
    std::string_view start;
    Surface surface;
};

// The first row whose text starts the word decides: longer starts stand before the shorter ones they hold.
constexpr SurfaceWord kSurfaceWords[] = {
    { "ASP", kAsphalt },        { "ASF", kAsphalt },    { "TARMAC", kTarmac },  { "CONC", kConcrete },
    { "COM", kAsphalt },        { "COR", kCoral },      { "COP", kConcrete },   { "CON", kConcrete },
    { "CEM", kConcrete },       { "PEM", kConcrete },   { "PER", kAsphalt },    { "PAV", kAsphalt },
    { "PAD", kConcrete },       { "BIT", kBitumen },    { "TURF", kGrass },     { "GRASS", kGrass },
    { "GRS", kGrass },          { "GRAS", kGrass },     { "SOD", kGrass },      { "GRAV", kGravel },
    { "GRVL", kGravel },        { "GVL", kGravel },     { "GRV", kGravel },     { "GRE", kDirt },
    { "GRADED", kDirt },        { "DIRT", kDirt },      { "EARTH", kDirt },     { "GROUND", kDirt },
    { "TER", kDirt },           { "LAT", kDirt },       { "CLA", kTurf },       { "SAND", kSand },
    { "SAN", kSand },           { "ICE", kIce },        { "SNOW", kSnow },      { "WAT", kWater },
    { "MAC", kMacadam },        { "BRI", kBrick },      { "PSP", kSteel },      { "MET", kSteel },
    { "STEEL", kSteel },        { "MATS", kSteel },     { "OIL", kOilTreated }, { "TRTD", kOilTreated },
    { "TREATED", kOilTreated }, { "SEALED", kAsphalt }, { "HARD", kAsphalt },   { "CRUSHED", kGravel },
    { "ROCK", kGravel },        { "SHALE", kShale },    { "WOOD", kPlanks },    { "UNPAVED", kDirt },
};

// Words of a single letter.
constexpr SurfaceWord kSurfaceLetters[] = {
    { "A", kAsphalt }, { "B", kBitumen }, { "C", kConcrete }, { "G", kGrass },
    { "L", kDirt },    { "N", kDirt },    { "S", kSand },     { "W", kWater },
};

struct CommWord {
    std::string_view word;
    uint16_t type;
};
constexpr CommWord kCommWords[] = {
    { "ATIS", 1 },   { "D-ATIS", 1 },   { "MULT", 2 },  { "MULTICOM", 2 }, { "UNIC", 3 },  { "UNICOM", 3 },
    { "CTAF", 4 },   { "ATF", 4 },      { "MF", 4 },    { "A/A", 4 },      { "TIBA", 4 },  { "GND", 5 },
    { "GROUND", 5 }, { "SMC", 5 },      { "GRN", 5 },   { "TWR", 6 },      { "TOWER", 6 }, { "CLD", 7 },
    { "DEL", 7 },    { "DELIVERY", 7 }, { "PTD", 7 },   { "CLNC DEL", 7 }, { "APP", 8 },   { "APPR", 8 },
    { "A/D", 8 },    { "APP/DEP", 8 },  { "ARR", 8 },   { "RAD/APP", 8 },  { "DIR", 8 },   { "DEP", 9 },
    { "CNTR", 10 },  { "CTR", 10 },     { "ACC", 10 },  { "ARTC", 10 },    { "FSS", 11 },  { "RDO", 11 },
    { "RCO", 11 },   { "RADIO", 11 },   { "AFIS", 11 }, { "INFO", 11 },    { "FIS", 11 },  { "AWOS", 12 },
    { "AWIB", 12 },  { "AWIS", 12 },    { "ASOS", 13 },
};

constexpr std::string_view kLettered[] = { "N", "E", "NW", "SW", "S", "W", "SE", "NE" };
constexpr double kLetteredHeadings[] = { 0, 90, 315, 225, 180, 270, 135, 45 };
constexpr uint8_t kFirstLettered = model::kFirstLetteredNumber;
constexpr uint8_t kLastNumber = 36;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view FirstMaterial(std::string_view word) {
    const size_t start = word.find_first_not_of(' ');
    if (start == std::string_view::npos) return {};
    word = word.substr(start);
    return word.substr(0, word.find_first_of("-/ ,(+;"));
}

}  // namespace

Surface SurfaceFromWord(std::string_view word, double runwayLength) {
    constexpr double kLongRunway = 1200;  // metres
    const std::string upper = platform::UpperCased(word);
    const std::string_view material = FirstMaterial(upper);
    for (const SurfaceWord& known : kSurfaceWords) {
        if (material.starts_with(known.start)) return known.surface;
    }
    for (const SurfaceWord& known : kSurfaceLetters) {
        if (material == known.start) return known.surface;
    }
    return runwayLength >= kLongRunway ? kAsphalt : kDirt;
}

bool IsPaved(Surface surface) {
    return surface == kConcrete || surface == kAsphalt || surface == kBitumen || surface == kTarmac ||
           surface == kMacadam || surface == kBrick;
}

uint16_t CommTypeFromWord(std::string_view word) {
    for (const CommWord& known : kCommWords) {
        if (platform::EqualNoCase(word, known.word)) return known.type;
    }
    return 0;
}

EndNumber EndFromWord(std::string_view word) {
    const std::string upper = platform::UpperCased(word);
    for (size_t i = 0; i < std::size(kLettered); ++i) {
        if (upper == kLettered[i]) return { static_cast<uint8_t>(kFirstLettered + i), 0 };
    }
    size_t at = 0;
    uint32_t number = 0;
    while (at < upper.size() && at < 2 && IsDigit(upper[at]))
        number = number * 10 + static_cast<uint32_t>(upper[at++] - '0');
    if (number == 0 || number > kLastNumber) return {};
    if (at < upper.size() && IsDigit(upper[at])) return {};
    constexpr std::string_view kSuffixes = "LRCW";  // codes 1 to 4
    const size_t suffix = at < upper.size() ? kSuffixes.find(upper[at]) : std::string_view::npos;
    const size_t designator = suffix == std::string_view::npos ? 0 : suffix + 1;
    return { static_cast<uint8_t>(number), static_cast<uint8_t>(designator) };
}

bool IsHelipadWord(std::string_view word) {
    return !word.empty() && (word[0] == 'H' || word[0] == 'h') && (word.size() == 1 || IsDigit(word[1]));
}

double HeadingOfNumber(uint8_t number) {
    if (number >= kFirstLettered && number - kFirstLettered < 8) return kLetteredHeadings[number - kFirstLettered];
    return number * 10.0;
}

EndNumber OppositeEnd(EndNumber end) {
    constexpr uint8_t kOppositeDesignators[] = { 0, 2, 1, 3, 4 };  // left and right change places
    if (end.number == 0) return {};
    if (end.number >= kFirstLettered) {
        const int place = (end.number - kFirstLettered + 4) % 8;  // the list holds opposites four apart
        return { static_cast<uint8_t>(kFirstLettered + place), 0 };
    }
    const int number = end.number > 18 ? end.number - 18 : end.number + 18;
    return { static_cast<uint8_t>(number), kOppositeDesignators[end.designator % 5] };
}

}  // namespace sample
