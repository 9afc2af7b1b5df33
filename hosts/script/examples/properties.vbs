' The filter button's properties, without a window. Runs with the system's script host too.
Option Explicit

Sub Main()
  Dim ctl
  Set ctl = CreateObject("RowSifter.TSRowSifter")
  WScript.Echo "FilterCaption: " & ctl.FilterCaption
  WScript.Echo "FilterMessage: " & ctl.FilterMessage
  WScript.Echo "Active: " & CStr(ctl.Active)

  ctl.FilterCaption = "Which rows?"
  ctl.ColumnsToExclude = "Notes"
  WScript.Echo "FilterCaption: " & ctl.FilterCaption
  WScript.Echo "ColumnsToExclude: " & ctl.ColumnsToExclude

  ' Without a list there is nothing to filter, so no dialog comes up.
  ctl.ShowFilter
  WScript.Echo "Active: " & CStr(ctl.Active)
End Sub

On Error Resume Next
Main
If Err.Number <> 0 Then
  WScript.Echo "Error " & Err.Number & ": " & Err.Description
  WScript.Quit 1
End If
