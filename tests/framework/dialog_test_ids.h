// Ids of the test dialog templates of dialog_test.rc.
#pragma once

#define IDD_TEST_DIALOG 4100
#define IDD_TEST_PAGE 4101
#define IDD_MISSING 4199

#define IDC_EDIT_A 4201
#define IDC_EDIT_B 4202
#define IDC_COMBO 4203
#define IDC_LIST 4204
#define IDC_LISTVIEW 4205
#define IDC_TREE 4206
#define IDC_TAB 4207
#define IDC_CHECK 4208
#define IDC_TEST_ICON 4209
#define IDC_PAGE_EDIT 4210
