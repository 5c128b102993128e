// FaultLiteralTest.cpp - the fault finder reports what the nested walks of its rules report: the same faults in
// the same order, with the same objects, marks and places, through resumed passes, edits and undos.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/LiteralFaults.h"
#include "fakes/RandomNetwork.h"
#include "faults/FaultSearch.h"

namespace {

using model::SceneryObject;

std::string Described(int check, const std::string& message, std::vector<SceneryObject*> objects,
                      model::LatLon position) {
    std::map<const SceneryObject*, int> places;
    std::string marks;
    for (SceneryObject* object : build::List()) {
        const int place = static_cast<int>(places.size());
        places[object] = place;
        const uint32_t bits = object->flags / model::kFaultMarkA & 3;
        if (bits != 0) marks += ' ' + std::to_string(place) + ':' + std::to_string(bits);
    }
    std::vector<int> numbers;
    for (SceneryObject* object : objects) numbers.push_back(places.at(object));
    std::sort(numbers.begin(), numbers.end());
    char point[80];
    std::snprintf(point, sizeof point, " at %.17g %.17g", position.lat, position.lon);
    std::string text = std::to_string(check) + ' ' + message + point + " objects";
    for (int number : numbers) text += ' ' + std::to_string(number);
    return text + " marks" + marks;
}

struct RealFinder {
    faults::FaultSearch search;
    std::string Press(const faults::Switches& switches, int) {
        search.switches = switches;
        faults::FaultReport report;
        switch (FindNextFault(&search, &report)) {
        case faults::SearchResult::NoFaults: return "No faults found.";
        case faults::SearchResult::NoMoreFaults: return "No more faults found.";
        default: return Described(static_cast<int>(report.check), report.message, report.objects, report.position);
        }
    }
};

struct LiteralFinder {
    literal::Finder finder;
    std::string Press(const faults::Switches& switches, int edit) {
        finder.switches = switches;
        const literal::Report report = literal::Press(&finder, edit);
        if (report.check < 0) return report.message;
        return Described(report.check, report.message, { report.objects.begin(), report.objects.end() }, report.point);
    }
};

// Presses, edits and switched boxes; the same seed gives the same story.
template <class Finder>
std::vector<std::string> Play(uint32_t seed, const RandomNetworkOptions& options, int presses, uint32_t oneEditIn) {
    MakeRandomNetwork(seed, options);
    std::mt19937 random(seed + 1);
    Finder finder;
    faults::Switches switches = faults::AllSwitches();
    std::vector<std::string> story;
    int edit = 1;
    for (int i = 0; i < presses; ++i) {
        if (oneEditIn > 0 && random() % oneEditIn == 0 && EditAtRandom(&random, options)) ++edit;
        if (random() % 50 == 0) switches[random() % switches.size()] ^= true;
        story.push_back(finder.Press(switches, edit));
        if (oneEditIn == 0 && story.back().starts_with("No ")) break;
    }
    return story;
}

// Counts the presses that found each check's faults, to show that all of them took part.
struct Tally {
    std::map<char, int> faults;
    int passes = 0;
};

void Compare(uint32_t seed, const RandomNetworkOptions& options, int presses, uint32_t oneEditIn, Tally* tally) {
    const std::vector<std::string> real = Play<RealFinder>(seed, options, presses, oneEditIn);
    const std::vector<std::string> expected = Play<LiteralFinder>(seed, options, presses, oneEditIn);
    ASSERT_EQ(real.size(), expected.size()) << "seed " << seed;
    for (size_t i = 0; i < real.size(); ++i) {
        ASSERT_EQ(real[i], expected[i]) << "seed " << seed << ", press " << i;
        if (real[i].starts_with("No "))
            ++tally->passes;
        else
            ++tally->faults[real[i][0]];
    }
}

struct FaultLiteral : testing::Test {
    void SetUp() override {
        ResetFakes();
        model::ClearModel();
    }
    void TearDown() override {
        model::ClearModel();
        for (char check = '0'; check <= '6'; ++check) EXPECT_GT(tally.faults[check], 20) << "check " << check;
        EXPECT_GT(tally.passes, 20);
    }
    Tally tally;
};

constexpr model::LatLon Degrees(double north, double west) {
    return { north * model::kRadiansPerDegree, west * model::kRadiansPerDegree };
}

// Both sides of the equator, the seam of the longitudes, and where the columns of the globe run together.
constexpr model::LatLon kMiddles[] = { Degrees(47, 122),  Degrees(0, 0),     Degrees(-33, -151),
                                       Degrees(-17, 180), Degrees(64, -180), Degrees(85, 30) };

}  // namespace

TEST_F(FaultLiteral, ThousandsOfSmallNetworksGiveTheSameReports) {
    for (uint32_t seed = 0; seed < 3000; ++seed) {
        RandomNetworkOptions options;
        options.middle = kMiddles[seed % std::size(kMiddles)];
        options.places = 3 + static_cast<int>(seed % 23);
        options.links = static_cast<int>(seed * 7 % 31);
        options.runways = static_cast<int>(seed % 4);
        options.extent = 60 + seed % 5 * 80;
        Compare(seed, options, 200, 0, &tally);
        if (HasFatalFailure()) return;
    }
}

TEST_F(FaultLiteral, EditsUndosAndSwitchedBoxesBetweenThePressesGiveTheSameReports) {
    for (uint32_t seed = 0; seed < 1000; ++seed) {
        RandomNetworkOptions options;
        options.middle = kMiddles[seed % std::size(kMiddles)];
        options.places = 6 + static_cast<int>(seed % 15);
        options.links = static_cast<int>(seed % 17);
        options.extent = 150;
        Compare(seed, options, 40, 4, &tally);
        if (HasFatalFailure()) return;
    }
}

TEST_F(FaultLiteral, LargerAndThinNetworksGiveTheSameReports) {
    for (uint32_t seed = 0; seed < 40; ++seed) {
        RandomNetworkOptions options;
        options.middle = kMiddles[seed % std::size(kMiddles)];
        options.places = 150;
        options.links = seed % 2 == 0 ? 60 : 180;
        options.aprons = 6;
        options.extent = seed % 3 == 0 ? 3000 : 700;  // with links too long for the grid
        Compare(seed, options, 600, 0, &tally);
        if (HasFatalFailure()) return;
    }
}
