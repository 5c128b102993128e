// FaultHost.cpp - what the fault finder's window asks of the program (faults/FaultHost.h).
#include "faults/FaultHost.h"

#include "app/AppHost.h"
#include "app/HelpPage.h"
#include "dialogs/OverMap.h"
#include "model/ObjectList.h"

namespace faults {

bool MayFindFaults() { return !model::state.busy && !dialogs::overMap.open; }

void ShowMapState() { app::ShowCommandStates(); }

void OpenHelpTopic(const char* topic) { app::OpenHelp(topic); }

}  // namespace faults
