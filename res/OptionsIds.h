// OptionsIds.h - the controls of the Options dialog.
#pragma once

#define IDD_OPTIONS 1560

#define IDC_METRIC 1300
#define IDC_METRIC_RADIUS 1301
#define IDC_LAT_LONG_FORMAT 1304
#define IDC_GRID_DIVISIONS 1305
#define IDC_GRID_MINUTES 1306
#define IDC_GRID_SECONDS 1307
