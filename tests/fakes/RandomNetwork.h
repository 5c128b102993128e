// RandomNetwork.h - random ground networks that are crowded enough for every fault to be among them.
#pragma once

#include <cstdint>
#include <random>

#include "model/Geodesy.h"

struct RandomNetworkOptions {
    model::LatLon middle;
    int places = 20, links = 25, runways = 2, starts = 3, aprons = 3;
    double extent = 300;  // metres from the middle, either way
};

// Replaces the model by such a network; the same seed makes the same one.
void MakeRandomNetwork(uint32_t seed, const RandomNetworkOptions& options);

// One random recorded edit, undo or redo. False when there was nothing to do.
bool EditAtRandom(std::mt19937* random, const RandomNetworkOptions& options);
