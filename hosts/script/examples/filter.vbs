' A window with a list and the filter button above it. Press Filter, choose what to keep.
' Needs the script host of this folder: it has the window, and it connects the events.
Option Explicit

Dim files

Set files = Form.List
files.ColumnHeaders.Add , , "Town", 2400
files.ColumnHeaders.Add , , "Country", 2000
files.ColumnHeaders.Add , , "Inhabitants", 1600, 1
files.ColumnHeaders.Add , , "Founded", 1600

AddTown "Lisbon", "Portugal", 545796, "1/1/1179"
AddTown "Porto", "Portugal", 231800, "1/1/1123"
AddTown "Braga", "Portugal", 193324, ""
AddTown "Tallinn", "Estonia", 453864, "5/15/1248"
AddTown "Tartu", "Estonia", 97435, ""
AddTown "Bergen", "Norway", 291189, "1/1/1070"
AddTown "Trondheim", "Norway", 214565, "1/1/997"
AddTown "Wellington", "New Zealand", 215900, "1/22/1840"

Form.Caption = "Towns"
Form.AddControl "RowSifter.TSRowSifter", "ctl"
ctl.FilterCaption = "Which towns?"
ctl.FilterMessage = "Keep the towns that meet all of these"
Set ctl.Listview = files
Form.Show

Sub AddTown(name, country, inhabitants, founded)
  Dim row
  Set row = files.ListItems.Add(, , name)
  row.SubItems(1) = country
  row.SubItems(2) = CStr(inhabitants)
  row.SubItems(3) = founded
End Sub

Sub ctl_FilterActivated()
  Form.Caption = "Towns: " & files.ListItems.Count & " kept"
  Tell "FilterActivated"
End Sub

Sub ctl_FilterDeactivated()
  Form.Caption = "Towns"
  Tell "FilterDeactivated"
End Sub

Sub Tell(what)
  Dim row, names
  For Each row In files.ListItems
    names = names & " " & row.Text
  Next
  WScript.Echo what & ":" & names
End Sub
