// Choices.cpp - see Choices.h.
#include "dialogs/Choices.h"

#include <cstdio>

#include "dialogs/NumberField.h"
#include "dialogs/TextField.h"
#include "model/Names.h"
#include "model/ObjectList.h"
#include "model/Records.h"
#include "platform/Platform.h"

namespace dialogs {

namespace {

constexpr uint32_t kNumberCount = 45;

}  // namespace

std::vector<std::string> SurfaceChoices() {
    std::vector<std::string> names;
    for (uint32_t code = 0; code < model::kSurfaceCount; ++code) names.emplace_back(model::SurfaceName(code));
    return names;
}

int SurfaceIndex(uint32_t code) { return code < model::kSurfaceCount ? static_cast<int>(code) : -1; }

std::vector<std::string> RunwayNumberChoices() {
    std::vector<std::string> names;
    for (uint32_t number = 0; number < model::kFirstLetteredNumber; ++number) {
        char text[12];
        std::snprintf(text, sizeof text, "%02u", static_cast<unsigned>(number));
        names.emplace_back(text);
    }
    for (uint32_t number = model::kFirstLetteredNumber; number < kNumberCount; ++number) {
        names.push_back(model::RunwayEndName(number, 0));
    }
    return names;
}

int RunwayNumberIndex(uint32_t number) { return number < kNumberCount ? static_cast<int>(number) : -1; }

int SuffixIndex(uint32_t designator) { return designator < kSuffixChoices.size() ? static_cast<int>(designator) : -1; }

std::string EndName(const SceneryObject* runway, int end) {
    const model::RunwayRecord& body = model::PayloadAs<model::RunwayPayload>(runway).body;
    return end == kBaseEnd ? model::RunwayEndName(body.primaryNumber, body.primaryDesignator)
                           : model::RunwayEndName(body.secondaryNumber, body.secondaryDesignator);
}

std::vector<RunwayEndRef> AllRunwayEnds() {
    std::vector<RunwayEndRef> ends;
    model::ForEachOfKind(model::kRunway, [&](SceneryObject* runway) {
        ends.push_back({ runway, kBaseEnd });
        ends.push_back({ runway, kReciprocalEnd });
    });
    return ends;
}

const RunwayEndRef* ChosenEnd(const std::vector<RunwayEndRef>& ends, int choice, BadField* bad) {
    if (choice >= 0 && static_cast<size_t>(choice) < ends.size()) return &ends[static_cast<size_t>(choice)];
    platform::ShowError("You must select a runway");
    *bad = { Field::Runway };
    return nullptr;
}

std::string DesignatorName(const SceneryObject* designator) {
    const auto& record = model::PayloadAs<model::TaxiDesignatorRecord>(designator);
    return ShowText(record.name, sizeof record.name);
}

std::vector<DesignatorChoice> DesignatorChoices() {
    std::vector<DesignatorChoice> choices = { { "", BlankDesignator() } };
    model::ForEachOfKind(model::kTaxiDesignator, [&](SceneryObject* object) {
        const std::string name = DesignatorName(object);
        if (!name.empty()) choices.push_back({ "Taxi " + name, object });
    });
    model::ForEachOfKind(model::kRunway, [&](SceneryObject* runway) {
        choices.push_back({ "Rwy " + model::RunwayName(runway), runway });
    });
    return choices;
}

}  // namespace dialogs
