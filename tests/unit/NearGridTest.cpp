// NearGridTest.cpp - the grid never misses what lies within its reach, wherever on the globe.
#include "faults/NearGrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace {

using model::LatLon;

constexpr LatLon Degrees(double north, double west) {
    return { north * model::kRadiansPerDegree, west * model::kRadiansPerDegree };
}

struct Cloud {
    std::vector<LatLon> points;
    faults::NearGrid grid;
};

Cloud CloudAround(LatLon middle, double extent, double reach) {
    Cloud cloud;
    std::mt19937 random(7);
    std::uniform_real_distribution<double> offset(-extent, extent);
    double smallestCosine = 1;
    for (int i = 0; i < 400; ++i) {
        LatLon point = model::LocalToLatLon(middle, { offset(random), offset(random) });
        point.lon = std::remainder(point.lon, model::kTwoPi);  // as files store it
        cloud.points.push_back(point);
        smallestCosine = std::min(smallestCosine, std::fabs(std::cos(point.lat)));
    }
    cloud.grid = faults::MakeGrid(reach, smallestCosine);
    for (uint32_t i = 0; i < cloud.points.size(); ++i) Insert(&cloud.grid, cloud.points[i], i);
    Finish(&cloud.grid);
    return cloud;
}

// Returns how many pairs lie within reach.
int ExpectNoneMissed(const Cloud& cloud, double reach) {
    int pairs = 0;
    std::vector<uint32_t> near;
    for (const LatLon& from : cloud.points) {
        CollectNear(cloud.grid, from, &near);
        for (uint32_t i = 0; i < cloud.points.size(); ++i) {
            if (model::DistanceBetween(from, cloud.points[i]) > reach) continue;
            ++pairs;
            EXPECT_NE(std::find(near.begin(), near.end(), i), near.end());
        }
    }
    return pairs;
}

}  // namespace

TEST(NearGrid, FindsEverythingWithinReachAnywhere) {
    for (LatLon middle : { Degrees(47, 122), Degrees(0, 0), Degrees(-60, 180), Degrees(70, -180), Degrees(89.9, 10),
                           Degrees(-90, 0), Degrees(90, 100) }) {
        EXPECT_GT(ExpectNoneMissed(CloudAround(middle, 300, 25), 25), 450);
    }
}

TEST(NearGrid, NamesFewOthersInAWideNetwork) {
    const Cloud cloud = CloudAround(Degrees(47, 122), 3000, 20);
    size_t named = 0;
    std::vector<uint32_t> near;
    for (const LatLon& point : cloud.points) {
        CollectNear(cloud.grid, point, &near);
        named += near.size();
    }
    EXPECT_LT(named, cloud.points.size() * 2);
}

TEST(NearGrid, AnItemOfManyPlacesIsKnownOnceACell) {
    faults::NearGrid grid = faults::MakeGrid(20, 1);
    for (int i = 0; i < 10; ++i) Insert(&grid, Degrees(1, 1), 5);
    Finish(&grid);
    std::vector<uint32_t> near;
    CollectNear(grid, Degrees(1, 1), &near);
    EXPECT_EQ(near, std::vector<uint32_t>{ 5 });
}

TEST(NearGrid, AnEmptyGridNamesNothing) {
    faults::NearGrid grid = faults::MakeGrid(20, 1);
    Finish(&grid);
    std::vector<uint32_t> near = { 1 };
    CollectNear(grid, {}, &near);
    EXPECT_TRUE(near.empty());
}
