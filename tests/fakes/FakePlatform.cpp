// FakePlatform.cpp - see FakePlatform.h. A box that asks without a prepared answer fails the test.
#include "FakePlatform.h"

#include <cstdio>
#include <cstdlib>

#include "map/MapHost.h"

FakePlatform fake;

void ResetFakes() { fake = FakePlatform{}; }

namespace platform {

Answer ShowMessage(std::string_view text, Buttons buttons, Icon icon) {
    fake.messages.push_back({ std::string(text), buttons, icon });
    if (fake.whileMessageIsUp) fake.whileMessageIsUp();
    if (!fake.answers.empty()) {
        const Answer answer = fake.answers.front();
        fake.answers.pop_front();
        return answer;
    }
    if (buttons != Buttons::Ok && buttons != Buttons::OkCancel) {
        std::fprintf(stderr, "no answer was prepared for: %s\n", fake.messages.back().text.c_str());
        std::abort();
    }
    return Answer::Ok;
}

void RequestRepaint() { ++fake.repaints; }

uint64_t SystemFileTime() { return fake.fileTime; }

}  // namespace platform

namespace map {

void RotationChanged() { ++fake.rotationChanges; }

void StartDragTimer() { fake.dragTimer = true; }
void StopDragTimer() { fake.dragTimer = false; }
void RequestFeedback() { ++fake.feedbackRequests; }
void OpenProperties(model::SceneryObject* object) { fake.openedProperties.push_back(object); }
void ShowRemark(std::string_view text) { fake.remark = text; }

void PlaceSimAircraft(model::LatLon position, double heading) { fake.placedAircraft.push_back({ position, heading }); }

}  // namespace map
