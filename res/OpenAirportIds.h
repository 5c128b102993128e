// OpenAirportIds.h - dialog 365, Open Airport, and its controls.
#pragma once

#define IDD_OPEN_AIRPORT 365

#define IDC_PLACES 1000
#define IDC_AIRPORTS 1001
#define IDC_AIRPORT_ID 1002
#define IDC_SPECIFIC_FILE 1004
#define IDC_ALL_SCENERY 1005
#define IDC_FILE_NAME 1007
#define IDC_SEARCH 3
#define IDC_OPEN_FILE 4
#define IDC_OPEN_HELP 9
