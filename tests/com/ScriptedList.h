#pragma once

namespace sifter {

// A complete list of a host's, written in VBScript. It is reached through IDispatchEx alone and
// counts in 16 bits. `Set x = New ScriptedList`; its hWnd is to be set by the host.
inline constexpr const wchar_t* kScriptedList =
    LR"(
Class ScriptedColumn
  Public Index
  Public Key
  Public Text
  Public Width
  Public Alignment
  Public Icon
  Public Tag
End Class

Class ScriptedCell
  Public Key
  Public Text
  Public Tag
  Public ReportIcon
  Public ToolTipText
  Public ForeColor
  Public Bold
  Private Sub Class_Initialize
    Key = ""
    Text = ""
    Tag = ""
    ToolTipText = ""
    ForeColor = 0
    Bold = False
  End Sub
End Class

Class ScriptedCells
  Private mCells
  Private mCount
  Private Sub Class_Initialize
    ReDim mCells(20)
    mCount = 0
  End Sub
  Public Property Get Count
    Count = CInt(mCount)
  End Property
  Public Function Item(index)
    If index < 1 Or index > mCount Then Err.Raise 35600, "list", "no such cell"
    Set Item = mCells(index)
  End Function
  Public Function Add(index, key, text, reportIcon, toolTipText)
    mCount = mCount + 1
    Set mCells(mCount) = New ScriptedCell
    If VarType(text) = vbString Then mCells(mCount).Text = text
    Set Add = mCells(mCount)
  End Function
End Class

Class ScriptedRow
  Public Index
  Public Key
  Public Text
  Public Tag
  Public Icon
  Public SmallIcon
  Public ToolTipText
  Public Checked
  Public Bold
  Public ForeColor
  Public Ghosted
  Private mCells
  Private Sub Class_Initialize
    Set mCells = New ScriptedCells
    Key = ""
    Text = ""
    Tag = ""
    ToolTipText = ""
    Checked = False
    Bold = False
    Ghosted = False
    ForeColor = 0
  End Sub
  Public Property Get ListSubItems
    Set ListSubItems = mCells
  End Property
  Public Property Get SubItems(j)
    SubItems = mCells.Item(j).Text
  End Property
  Public Property Let SubItems(j, value)
    mCells.Item(j).Text = value
  End Property
End Class

Class ScriptedRows
  Public Columns
  Private mRows
  Private mCount
  Private Sub Class_Initialize
    ReDim mRows(200)
    mCount = 0
  End Sub
  Public Property Get Count
    Count = CInt(mCount)
  End Property
  Public Function Item(index)
    If index < 1 Or index > mCount Then Err.Raise 35600, "list", "no such row"
    Set Item = mRows(index)
  End Function
  Public Function Add(index, key, text, icon, smallIcon)
    Dim j
    mCount = mCount + 1
    Set mRows(mCount) = New ScriptedRow
    If VarType(text) = vbString Then mRows(mCount).Text = text
    If VarType(key) = vbString Then mRows(mCount).Key = key
    For j = 2 To Columns.Count
      mRows(mCount).ListSubItems.Add 0, "", "", 0, ""
    Next
    Set Add = mRows(mCount)
  End Function
  Public Sub Remove(index)
    Dim i
    If index < 1 Or index > mCount Then Err.Raise 35600, "list", "no such row"
    For i = index To mCount - 1
      Set mRows(i) = mRows(i + 1)
    Next
    mCount = mCount - 1
  End Sub
  Public Sub Clear
    mCount = 0
  End Sub
End Class

Class ScriptedColumns
  Private mColumns
  Private mCount
  Private Sub Class_Initialize
    ReDim mColumns(21)
    mCount = 0
  End Sub
  Public Property Get Count
    Count = CInt(mCount)
  End Property
  Public Function Item(index)
    If index < 1 Or index > mCount Then Err.Raise 35600, "list", "no such column"
    Set Item = mColumns(index)
  End Function
  Public Function Add(index, key, text, width, alignment, icon)
    mCount = mCount + 1
    Set mColumns(mCount) = New ScriptedColumn
    mColumns(mCount).Index = mCount
    mColumns(mCount).Key = ""
    mColumns(mCount).Tag = ""
    mColumns(mCount).Text = text
    mColumns(mCount).Width = 1440
    mColumns(mCount).Alignment = 0
    Set Add = mColumns(mCount)
  End Function
  Public Sub Clear
    mCount = 0
  End Sub
End Class

Class ScriptedList
  Public hWnd
  Public Sorted
  Public SortKey
  Public SortOrder
  Private mRows
  Private mColumns
  Private Sub Class_Initialize
    Set mColumns = New ScriptedColumns
    Set mRows = New ScriptedRows
    Set mRows.Columns = mColumns
    hWnd = 0
  End Sub
  Public Property Get ListItems
    Set ListItems = mRows
  End Property
  Public Property Get ColumnHeaders
    Set ColumnHeaders = mColumns
  End Property
End Class
)";

}  // namespace sifter
