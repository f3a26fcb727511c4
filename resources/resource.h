// Resource ids of Qor_2016_18_64_Mfc.Dll.
#pragma once

// String table
#define IDS_QOR_INFO 1 // "Inf&o...": the system menu entry that opens the about box

// Icons
#define IDI_QOR_2000 2000

// Cursors
#define IDC_QOR_2006 2006 // the pan cursor: four arrows about the hot spot
