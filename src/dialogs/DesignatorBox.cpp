// DesignatorBox.cpp - see DesignatorBox.h.
#include "dialogs/DesignatorBox.h"

#include <algorithm>
#include <cstring>

#include "dialogs/Choices.h"
#include "dialogs/Edits.h"
#include "dialogs/LinkDialog.h"
#include "dialogs/TextField.h"
#include "model/ObjectList.h"
#include "model/Records.h"
#include "platform/Platform.h"
#include "platform/Text.h"

namespace dialogs {

namespace {

constexpr std::string_view kTaxiWord = "TAXI", kRunwayWord = "RWY";

// The name in Windows-1252; empty when the text names no designator.
std::string NameFrom(const std::string& typed) {
    std::string encoded;
    if (!ToSceneryText(typed, &encoded)) return "";
    std::string name = platform::UpperCased(encoded.substr(0, kTypedLimit));
    if (name.starts_with(kTaxiWord)) {
        name.erase(0, kTaxiWord.size());
        name.erase(0, std::min(name.find_first_not_of(' '), name.size()));
    }
    name.resize(std::min(name.size(), kDesignatorLimit));
    return name.starts_with(' ') || name.starts_with(kRunwayWord) ? "" : name;
}

SceneryObject* FindDesignator(const std::string& utf8) {
    for (SceneryObject* object = model::FirstOfKind(model::state.head, model::kTaxiDesignator); object;
         object = model::NextOfKind(object, model::kTaxiDesignator)) {
        if (DesignatorName(object) == utf8) return object;
    }
    return nullptr;
}

bool UserWantsNew(const std::string& utf8) {
    if (!HasRoomForDesignator()) return false;
    const std::string question =
        "The taxiway designator \"" + utf8 + "\" does not exist.\nDo you want to enter it as a new designator?";
    return platform::ShowMessage(question, platform::Buttons::YesNoCancel, platform::Icon::Question) ==
           platform::Answer::Yes;
}

void DesignateSelected(SceneryObject* designator, Edits* edits) {
    model::ForEachOfKind(model::kTaxiLink, [&](SceneryObject* link) {
        if (model::IsSelected(link)) DesignateLink(DraftOf(edits, link), designator);
    });
}

}  // namespace

bool NamesNewDesignator(const std::string& typed) {
    const std::string name = NameFrom(typed);
    return !name.empty() && !FindDesignator(platform::Utf8FromWindows1252(name));
}

SceneryObject* TypeDesignator(const std::string& typed, SceneryObject* current) {
    const std::string name = NameFrom(typed), utf8 = platform::Utf8FromWindows1252(name);
    if (name.empty()) return nullptr;
    Edits edits;
    SceneryObject* designator = FindDesignator(utf8);
    if (!designator) {
        if (!UserWantsNew(utf8)) return nullptr;
        designator = AddDraft(
            &edits, ObjectPtr(model::CreateObject(model::kTaxiDesignator, sizeof(model::TaxiDesignatorRecord))));
        std::memcpy(designator->payload, name.data(), name.size());
    }
    if (designator != current) DesignateSelected(designator, &edits);
    Commit(&edits);
    platform::RequestRepaint();
    return designator;
}

}  // namespace dialogs
