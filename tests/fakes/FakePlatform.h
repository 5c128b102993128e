// FakePlatform.h - the platform as tests see it: messages are recorded, answers prepared.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "model/Geodesy.h"
#include "model/SceneryObject.h"
#include "platform/Platform.h"

struct FakeMessage {
    std::string text;
    platform::Buttons buttons;
    platform::Icon icon;
};

struct PlacedAircraft {
    model::LatLon position;
    double heading = 0;  // radians true
};

struct FakePlatform {
    std::vector<FakeMessage> messages;
    std::deque<platform::Answer> answers;  // taken in order by boxes with more than an OK button
    std::function<void()> whileMessageIsUp;
    int repaints = 0;
    uint64_t fileTime = 0x01C4000000000000;
    int rotationChanges = 0;
    int feedbackRequests = 0;
    bool dragTimer = false;  // runs
    std::vector<model::SceneryObject*> openedProperties;
    std::string remark;
    std::vector<PlacedAircraft> placedAircraft;
};

extern FakePlatform fake;

void ResetFakes();  // call from every fixture
