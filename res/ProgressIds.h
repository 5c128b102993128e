// ProgressIds.h - dialog 132, the progress box, and its controls.
#pragma once

#define IDD_PROGRESS 132

#define IDC_PROGRESS_TEXT 1010
#define IDC_PROGRESS_BAR 1011
