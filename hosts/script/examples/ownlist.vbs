' A list made of nothing but VBScript classes, which have the members that the filter control reads
' and writes. No window, no events; runs with the system's script host too. The dialog comes up by
' itself: choose, apply, and see which rows are left.
Option Explicit

Class Column
  Public Index
  Public Key
  Public Text
  Public Width
  Public Alignment
  Public Icon
  Public Tag
End Class

Class Cell
  Public Key
  Public Text
  Public Tag
  Public ToolTipText
  Public ReportIcon
  Public ForeColor
  Public Bold
End Class

Class Row
  Public Index
  Public Key
  Public Text
  Public Tag
  Public ToolTipText
  Public Icon
  Public SmallIcon
  Public Checked
  Public Bold
  Public Ghosted
  Public ForeColor
  Public ListSubItems

  Private Sub Class_Initialize()
    Set ListSubItems = New Cells
  End Sub

  Public Property Get SubItems(position)
    SubItems = ListSubItems.Item(position).Text
  End Property

  Public Property Let SubItems(position, newText)
    While ListSubItems.Count < position
      ListSubItems.Add ListSubItems.Count + 1, "", "", Empty, ""
    Wend
    ListSubItems.Item(position).Text = newText
  End Property
End Class

' What all three collections do; positions count from 1.
Class Store
  Private things
  Private number

  Public Property Get Count()
    Count = CInt(number)
  End Property

  Public Function At(position)
    If position < 1 Or position > number Then Err.Raise 9
    Set At = things(position)
  End Function

  Public Sub Insert(position, thing)
    Dim i
    number = number + 1
    ReDim Preserve things(number)
    For i = number To position + 1 Step -1
      Set things(i) = things(i - 1)
    Next
    Set things(position) = thing
  End Sub

  Public Sub Delete(position)
    Dim i
    For i = position To number - 1
      Set things(i) = things(i + 1)
    Next
    Set things(number) = Nothing
    number = number - 1
  End Sub

  Public Sub Clear()
    number = 0
    ReDim things(0)
  End Sub

  Private Sub Class_Initialize()
    Clear
  End Sub
End Class

Function Given(argument, otherwise)
  If VarType(argument) = vbError Then
    Given = otherwise
  Else
    Given = argument
  End If
End Function

Class Cells
  Private all

  Private Sub Class_Initialize()
    Set all = New Store
  End Sub

  Public Property Get Count()
    Count = all.Count
  End Property

  Public Function Item(position)
    Set Item = all.At(position)
  End Function

  Public Function Add(position, newKey, newText, newIcon, newTip)
    Dim made
    Set made = New Cell
    made.Key = Given(newKey, "")
    made.Text = Given(newText, "")
    made.ReportIcon = Given(newIcon, Empty)
    made.ToolTipText = Given(newTip, "")
    made.Tag = ""
    made.ForeColor = 0
    made.Bold = False
    all.Insert Given(position, all.Count + 1), made
    Set Add = made
  End Function
End Class

Class Rows
  Private all

  Private Sub Class_Initialize()
    Set all = New Store
  End Sub

  Public Property Get Count()
    Count = all.Count
  End Property

  Public Function Item(position)
    Set Item = all.At(position)
  End Function

  Public Function Add(position, newKey, newText, newIcon, newSmallIcon)
    Dim made
    Set made = New Row
    made.Key = Given(newKey, "")
    made.Text = Given(newText, "")
    made.Icon = Given(newIcon, Empty)
    made.SmallIcon = Given(newSmallIcon, Empty)
    made.Tag = ""
    made.ToolTipText = ""
    made.Checked = False
    made.Bold = False
    made.Ghosted = False
    made.ForeColor = 0
    all.Insert Given(position, all.Count + 1), made
    Set Add = made
  End Function

  Public Sub Remove(position)
    all.Delete position
  End Sub

  Public Sub Clear()
    all.Clear
  End Sub
End Class

Class Columns
  Private all

  Private Sub Class_Initialize()
    Set all = New Store
  End Sub

  Public Property Get Count()
    Count = all.Count
  End Property

  Public Function Item(position)
    Set Item = all.At(position)
  End Function

  Public Function Add(position, newKey, newText, newWidth, newAlignment, newIcon)
    Dim made
    Set made = New Column
    made.Key = Given(newKey, "")
    made.Text = Given(newText, "")
    made.Width = Given(newWidth, 1440)
    made.Alignment = Given(newAlignment, 0)
    made.Icon = Given(newIcon, Empty)
    made.Tag = ""
    all.Insert Given(position, all.Count + 1), made
    Set Add = made
  End Function

  Public Sub Clear()
    all.Clear
  End Sub
End Class

Class List
  Public ColumnHeaders
  Public ListItems
  Public hWnd

  Private Sub Class_Initialize()
    hWnd = 0
    Set ColumnHeaders = New Columns
    Set ListItems = New Rows
  End Sub
End Class

Sub AddFruit(fruits, name, colour)
  Dim made
  Set made = fruits.ListItems.Add(fruits.ListItems.Count + 1, "", name, Empty, Empty)
  made.ListSubItems.Add 1, "", colour, Empty, ""
End Sub

Sub Main()
  Dim ctl, fruits, i
  Set fruits = New List
  fruits.ColumnHeaders.Add 1, "", "Fruit", 1440, 0, Empty
  fruits.ColumnHeaders.Add 2, "", "Colour", 1440, 0, Empty
  AddFruit fruits, "Apple", "red"
  AddFruit fruits, "Banana", "yellow"
  AddFruit fruits, "Cherry", "red"
  AddFruit fruits, "Lime", "green"

  Set ctl = CreateObject("RowSifter.TSRowSifter")
  Set ctl.Listview = fruits
  ctl.ShowFilter
  WScript.Echo "Active: " & CStr(ctl.Active)
  For i = 1 To fruits.ListItems.Count
    WScript.Echo fruits.ListItems.Item(i).Text & ", " & fruits.ListItems.Item(i).ListSubItems.Item(1).Text
  Next
End Sub

On Error Resume Next
Main
If Err.Number <> 0 Then
  WScript.Echo "Error " & Err.Number & ": " & Err.Description
  WScript.Quit 1
End If
