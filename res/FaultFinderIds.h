// FaultFinderIds.h - the controls of the Fault Finder.
#pragma once

#define IDD_FAULT_FINDER 1700
#define IDR_FAULT_KEYS 1701

// One box a check, in the order of the checks.
#define IDC_FIRST_CHECK 1710
#define IDC_FIND_FAULTS 1720
#define IDC_FAULT_MESSAGE 1721
