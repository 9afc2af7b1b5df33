#pragma once

// Numbers that the program and its resources share.
#define IDR_MENU 1
#define IDR_KEYS 2

#define IDC_LIST 100
#define IDC_STATUS 101
#define IDC_FOLDER 102

#define IDM_OPEN 200
#define IDM_UP 201
#define IDM_RELOAD 202
#define IDM_EXIT 203
#define IDM_SHOW_FILTER 210
#define IDM_APPLY_FILTER 211
#define IDM_RESET_FILTER 212
#define IDM_TURN_OFF_FILTER 213
#define IDM_ACTIVE 214
#define IDM_DEACTIVATE_FILTER 215
#define IDM_TELL_FILTER 216
#define IDM_BUTTON_CONTROL 217
