// Resource ids of Qor_2016_18_64_Mfc.Dll.
#pragma once

// String table
#define IDS_QOR_INFO 1 // "Inf&o...": the system menu entry that opens the about box

// Icons
#define IDI_QOR_2000 2000 // the application: dialogs' caption icon
#define IDI_QOR_2001 2001 // material tree: a root, or a material only shown as a branch
#define IDI_QOR_2002 2002 // material tree: a usable material
#define IDI_QOR_2003 2003 // material tree: a usable shadow material
#define IDI_QOR_2004 2004 // label list: a single-line label
#define IDI_QOR_2005 2005 // label list: a multi-line label

// Cursors
#define IDC_QOR_2006 2006 // display list window: panning with the middle button
