// FakeDialogHost.cpp - see FakeDialogHost.h.
#include "FakeDialogHost.h"

#include "dialogs/DialogHost.h"
#include "dialogs/Subject.h"

FakeDialogHost fakeDialogs;

void ResetDialogFakes() {
    fakeDialogs = FakeDialogHost{};
    dialogs::state = dialogs::DialogState{};
}

namespace dialogs {

void UseLinkTemplate(const model::TaxiLinkPayload& link) { fakeDialogs.linkTemplates.push_back(link); }
void UseParkingType(uint32_t type) { fakeDialogs.parkingTypes.push_back(type); }

}  // namespace dialogs
