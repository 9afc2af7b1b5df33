' A window with a list and the banner above it: a filter given as text, the banner's own button, and
' rows that are added under the filter. Needs the script host of this folder: it has the window, and
' it connects the events.
Option Explicit

Dim towns

Set towns = Form.List
towns.ColumnHeaders.Add , , "Town", 2400
towns.ColumnHeaders.Add , , "Country", 2000
towns.ColumnHeaders.Add , , "Inhabitants", 1600, 1
towns.ColumnHeaders.Add , , "Founded", 1600

AddTown "Lisbon", "Portugal", 545796, "1/1/1179", "LIS"
AddTown "Porto", "Portugal", 231800, "1/1/1123", "OPO"
AddTown "Braga", "Portugal", 193324, "", "BGZ"
AddTown "Tallinn", "Estonia", 453864, "5/15/1248", "TLL"
AddTown "Tartu", "Estonia", 97435, "", "TAY"
AddTown "Bergen", "Norway", 291189, "1/1/1070", "BGO"
AddTown "Trondheim", "Norway", 214565, "1/1/997", "TRD"
AddTown "Wellington", "New Zealand", 215900, "1/22/1840", "WLG"

Form.Caption = "Towns"
Form.AddControl "RowSifter.TSLvwBannerFilter", "banner", 0
banner.ItemDescription = "towns"
banner.FilterCaption = "Which towns?"
banner.BannerButtonVisible = True
Set banner.Listview = towns
Form.Show
WScript.Echo "ListOfTags: " & banner.ListOfTags

' One criterion: the column, two dots, the operator, 1== and a parameter, 2== and another one, *?
' Operators are counted from 0 in the order of the dialog's list, so 5 is "equals" for a column of
' texts. More criteria follow each other without anything between them. A text that can't be read
' raises no error: the filter is not applied, and FilterDeactivated comes if none is in force.
' The parameters of a column of numbers are left as they are in the dialog, so such a criterion
' works only where the user has filled them in.
banner.ApplyFilter "Country..51==Portugal2==*?"
WScript.Echo "Active: " & CStr(banner.Active)
WScript.Echo "ListOfTags: " & banner.ListOfTags
WScript.Echo "Filter: " & banner.Filter
WScript.Echo "FilterInPlainEnglish: " & banner.FilterInPlainEnglish

' This presses the button of the application's default dialog, which has no list. What takes the
' filter off is the button in the banner's own dialog.
banner.ResetFilter
WScript.Echo "Active: " & CStr(banner.Active)

Sub AddTown(name, country, inhabitants, founded, tag)
  Dim row
  Set row = towns.ListItems.Add(, , name)
  row.SubItems(1) = country
  row.SubItems(2) = CStr(inhabitants)
  row.SubItems(3) = founded
  row.Tag = tag
End Sub

' Active and Filter are still those from before in these two.
Sub banner_FilterActivated()
  Tell "FilterActivated"
End Sub

Sub banner_FilterDeactivated()
  Tell "FilterDeactivated"
End Sub

' The banner's own button. Both rows are in the list at first; a moment later the banner filters
' again, and Oslo goes.
Sub banner_ExtraButtonClicked(Parameter)
  AddTown "Faro", "Portugal", 67650, "", "FAO"
  AddTown "Oslo", "Norway", 709037, "", "OSL"
  Tell "ExtraButtonClicked(" & Parameter & ")"
  Parameter = "two towns"
End Sub

Sub Tell(what)
  Dim row, names
  For Each row In towns.ListItems
    names = names & " " & row.Text
  Next
  WScript.Echo what & ":" & names
End Sub
