#pragma once

#include <windows.h>
// The structures; this header needs the platform's types.
#include <commctrl.h>

namespace sifter::listview {

// The messages, styles and states of a list-view window, as numbers of their own types. What a
// window is told and asked by this room is told and asked in these; mListviewMacros_471.h wraps
// the sending.

// Messages. Those that announce a change of rows or columns go out in their ANSI form: that is
// the one that subclassing hosts and controls watch for.
inline constexpr UINT kGetItemCount = 0x1004;
inline constexpr UINT kSetItemA = 0x1006;
inline constexpr UINT kInsertItemA = 0x1007;     // 4103
inline constexpr UINT kDeleteItem = 0x1008;      // 4104
inline constexpr UINT kDeleteAllItems = 0x1009;  // 4105
inline constexpr UINT kRedrawItems = 0x1015;
inline constexpr UINT kInsertColumnA = 0x101B;  // 4123
inline constexpr UINT kDeleteColumn = 0x101C;   // 4124
inline constexpr UINT kGetColumnWidth = 0x101D;
inline constexpr UINT kSetColumnWidth = 0x101E;
inline constexpr UINT kGetHeader = 0x101F;
inline constexpr UINT kGetTextColor = 0x1023;
inline constexpr UINT kSetItemState = 0x102B;
inline constexpr UINT kGetItemState = 0x102C;
inline constexpr UINT kSetItemTextA = 0x102E;
inline constexpr UINT kSortItems = 0x1030;
inline constexpr UINT kSetExtendedStyle = 0x1036;
inline constexpr UINT kGetExtendedStyle = 0x1037;
inline constexpr UINT kSubItemHitTest = 0x1039;
inline constexpr UINT kGetItemW = 0x104B;
inline constexpr UINT kSetItemW = 0x104C;
inline constexpr UINT kInsertItemW = 0x104D;
inline constexpr UINT kSortItemsEx = 0x1051;
inline constexpr UINT kGetColumnW = 0x105F;
inline constexpr UINT kSetColumnW = 0x1060;
inline constexpr UINT kGetItemTextW = 0x1073;
inline constexpr UINT kSetItemTextW = 0x1074;
inline constexpr UINT kSetUnicodeFormat = 0x2005;
inline constexpr UINT kGetUnicodeFormat = 0x2006;

// Window styles.
inline constexpr DWORD kTypeMask = 0x0003;
inline constexpr DWORD kIconView = 0x0000;
inline constexpr DWORD kReportView = 0x0001;
inline constexpr DWORD kSortAscending = 0x0010;
inline constexpr DWORD kSortDescending = 0x0020;
inline constexpr DWORD kOwnerData = 0x1000;

// Extended styles.
inline constexpr DWORD kSubItemImages = 0x0002;
inline constexpr DWORD kCheckBoxes = 0x0004;
inline constexpr DWORD kInfoTip = 0x0400;

// States of an item. The picture of a check box is a state picture: 1 unchecked, 2 checked.
inline constexpr UINT kCut = 0x0004;
inline constexpr UINT kStateImageMask = 0xF000;
inline constexpr UINT kUncheckedImage = 0x1000;
inline constexpr UINT kCheckedImage = 0x2000;

// The least room that a callback has for a text.
inline constexpr std::size_t kCallbackTextRoom = 260;

static_assert(kGetItemCount == LVM_GETITEMCOUNT && kSetItemA == LVM_SETITEMA &&
              kInsertItemA == LVM_INSERTITEMA && kDeleteItem == LVM_DELETEITEM &&
              kDeleteAllItems == LVM_DELETEALLITEMS && kRedrawItems == LVM_REDRAWITEMS &&
              kInsertColumnA == LVM_INSERTCOLUMNA && kDeleteColumn == LVM_DELETECOLUMN &&
              kGetColumnWidth == LVM_GETCOLUMNWIDTH && kSetColumnWidth == LVM_SETCOLUMNWIDTH &&
              kGetHeader == LVM_GETHEADER && kGetTextColor == LVM_GETTEXTCOLOR &&
              kSetItemState == LVM_SETITEMSTATE && kGetItemState == LVM_GETITEMSTATE &&
              kSetItemTextA == LVM_SETITEMTEXTA && kSortItems == LVM_SORTITEMS &&
              kSetExtendedStyle == LVM_SETEXTENDEDLISTVIEWSTYLE &&
              kGetExtendedStyle == LVM_GETEXTENDEDLISTVIEWSTYLE &&
              kSubItemHitTest == LVM_SUBITEMHITTEST && kGetItemW == LVM_GETITEMW &&
              kSetItemW == LVM_SETITEMW && kInsertItemW == LVM_INSERTITEMW &&
              kSortItemsEx == LVM_SORTITEMSEX && kGetColumnW == LVM_GETCOLUMNW &&
              kSetColumnW == LVM_SETCOLUMNW && kGetItemTextW == LVM_GETITEMTEXTW &&
              kSetItemTextW == LVM_SETITEMTEXTW && kSetUnicodeFormat == LVM_SETUNICODEFORMAT &&
              kGetUnicodeFormat == LVM_GETUNICODEFORMAT);
static_assert(kTypeMask == LVS_TYPEMASK && kIconView == LVS_ICON && kReportView == LVS_REPORT &&
              kSortAscending == LVS_SORTASCENDING && kSortDescending == LVS_SORTDESCENDING &&
              kOwnerData == LVS_OWNERDATA && kSubItemImages == LVS_EX_SUBITEMIMAGES &&
              kCheckBoxes == LVS_EX_CHECKBOXES && kInfoTip == LVS_EX_INFOTIP && kCut == LVIS_CUT &&
              kStateImageMask == LVIS_STATEIMAGEMASK);

}  // namespace sifter::listview
