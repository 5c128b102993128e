// PageSetupIds.h - what the page setup has beyond the system's own controls.
#pragma once

#define IDD_PAGE_SETUP 1750

#define IDC_PRINT_BORDER 1760
#define IDC_PRINT_TITLE 1761
#define IDC_PRINT_SCALE_LABEL 1762
#define IDC_PRINT_SCALE 1763
#define IDC_FIT_PAGE 1764
