// FakeDialogHost.cpp - see FakeDialogHost.h.
#include "FakeDialogHost.h"

#include "dialogs/DialogHost.h"

FakeDialogHost fakeDialogs;

void ResetDialogFakes() { fakeDialogs = FakeDialogHost{}; }

namespace dialogs {

void UseLinkTemplate(const model::TaxiLinkPayload& link) { fakeDialogs.linkTemplates.push_back(link); }
void UseParkingType(uint32_t type) { fakeDialogs.parkingTypes.push_back(type); }
void OpenHelpTopic(const char* topic) { fakeDialogs.helpTopics.emplace_back(topic); }

}  // namespace dialogs
