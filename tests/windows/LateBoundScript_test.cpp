#include "DispatchCalls.h"
#include "ScriptEngine.h"
#include "filterdialog/CopyListview.h"
#include "listmodel/ListViewDump.h"
#include "listmodel/MemoryListView.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "win32/LateBoundList.h"
#include "win32/NativeListViewDispatchObject.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

// A host's list written in VBScript: reached through IDispatchEx alone.
constexpr const wchar_t* kScriptedList =
    LR"(
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
  Public ReportIcon
  Public ToolTipText
  Public ForeColor
  Public Bold
End Class

Class Cells
  Public cell
  Private Sub Class_Initialize
    Set cell = New Cell
    cell.Text = ""
    cell.ForeColor = 0
    cell.Bold = False
  End Sub
  Public Property Get Count
    Count = CInt(1)
  End Property
  Public Function Item(i)
    If i <> 1 Then Err.Raise 35600, "list", "no such cell"
    Set Item = cell
  End Function
End Class

Class Row
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
    Set mCells = New Cells
    Checked = False
    Bold = False
    Ghosted = False
    ForeColor = 0
  End Sub
  Public Property Get ListSubItems
    Set ListSubItems = mCells
  End Property
  Public Property Get SubItems(i)
    SubItems = mCells.Item(i).Text
  End Property
  Public Property Let SubItems(i, value)
    mCells.Item(i).Text = value
  End Property
End Class

Class Rows
  Dim mRows(99)
  Private mCount
  Private Sub Class_Initialize
    mCount = 0
  End Sub
  Public Property Get Count
    Count = mCount
  End Property
  Public Function Item(i)
    If i < 1 Or i > mCount Then Err.Raise 35600, "list", "no such row"
    Set Item = mRows(i)
  End Function
  Public Function Add(index, key, text, icon, smallIcon)
    mCount = mCount + 1
    Set mRows(mCount) = New Row
    mRows(mCount).Text = text
    If VarType(key) = vbString Then mRows(mCount).Key = key
    Set Add = mRows(mCount)
  End Function
  Public Sub Remove(i)
    Dim j
    For j = i To mCount - 1
      Set mRows(j) = mRows(j + 1)
    Next
    mCount = mCount - 1
  End Sub
  Public Sub Clear
    mCount = 0
  End Sub
End Class

Class Columns
  Dim mColumns(9)
  Private mCount
  Private Sub Class_Initialize
    mCount = 0
  End Sub
  Public Property Get Count
    Count = mCount
  End Property
  Public Function Item(i)
    Set Item = mColumns(i)
  End Function
  Public Function Add(index, key, text, width, alignment, icon)
    mCount = mCount + 1
    Set mColumns(mCount) = New Column
    mColumns(mCount).Text = text
    mColumns(mCount).Width = width
    mColumns(mCount).Alignment = alignment
    Set Add = mColumns(mCount)
  End Function
End Class

Class List
  Private mRows
  Private mColumns
  Private Sub Class_Initialize
    Set mRows = New Rows
    Set mColumns = New Columns
  End Sub
  Public Property Get ListItems
    Set ListItems = mRows
  End Property
  Public Property Get ColumnHeaders
    Set ColumnHeaders = mColumns
  End Property
End Class

Dim host
Set host = New List
)";

// Something that a script can call.
class Callback final : public Object {
 public:
  explicit Callback(std::function<void()> work) : work_(std::move(work)) {}
  static ComRef<IDispatch> Make(std::function<void()> work) {
    static constexpr DispatchMember kMembers[] = {{u"Run", 1, {}, 0, Run, nullptr, false}};
    return ComRef<IDispatch>::Adopt(
        new DispatchObject(MakeRef<Callback>(std::move(work)), kMembers));
  }

 private:
  static void Run(Object& part, const DispatchCall&, VARIANT*) {
    static_cast<Callback&>(part).work_();
  }

  std::function<void()> work_;
};

TEST(LateBoundScript, AVbScriptClassPlaysTheList) {
  const std::unique_ptr<ScriptEngine> script = ScriptEngine::Make();
  if (!script) GTEST_SKIP() << "no VBScript here";
  ASSERT_EQ(script->Run(kScriptedList), "");
  const Ref<LateBoundList> list = MakeRef<LateBoundList>(GetObject(script->Globals(), L"host"));
  const Ref<MemoryListView> source = MakeList({"a", "b"}, {{"1", "x"}, {"2", "y"}, {"3", "z"}});
  source->ListItems()->Item(2)->SetKey(u"k");
  source->ListItems()->Item(3)->SetForeColor(255);
  const Ref<ListViewDump> snapshot = MakeRef<ListViewDump>();
  CopyListview(static_cast<HostListView*>(source.Get()), snapshot.Get());
  CopyListview(snapshot.Get(), static_cast<HostListView*>(list.Get()));
  const Ref<ListItemCollection> items = list->ListItems();
  EXPECT_EQ(items->Count(), 3);
  EXPECT_EQ(items->Item(2)->Key(), Value(u"k"));
  EXPECT_EQ(items->Item(3)->SubItems(1), Value(u"z"));
  EXPECT_EQ(items->Item(3)->ForeColor(), Value(255));
  items->Remove(1);
  EXPECT_EQ(FirstTexts(*list), (Strings{"2", "3"}));
  EXPECT_EQ(ErrorOf([&] { list->Sorted(); }), kMissingMemberError);
}

// As a control meets them that a script has called. Whether the text comes along is the script
// engine's affair.
TEST(LateBoundScript, ErrorsThatAScriptRaisesKeepTheirNumbers) {
  const std::unique_ptr<ScriptEngine> script = ScriptEngine::Make();
  if (!script) GTEST_SKIP() << "no VBScript here";
  ASSERT_EQ(script->Run(kScriptedList), "");
  const Ref<LateBoundList> list = MakeRef<LateBoundList>(GetObject(script->Globals(), L"host"));
  std::string error;
  script->Add(L"control",
              Callback::Make([&] { error = ErrorOf([&] { list->ListItems()->Item(9); }); }));
  EXPECT_TRUE(script->Run(L"control.Run").ends_with("no such row"));
  EXPECT_TRUE(error.starts_with("35600: ")) << error;
}

// Objects of one script class may each have their members in an order of their own.
TEST(LateBoundScript, ObjectsWithTheirMembersInAnotherOrderAreToldApart) {
  const std::unique_ptr<ScriptEngine> script = ScriptEngine::Make();
  if (!script) GTEST_SKIP() << "no VBScript here";
  ASSERT_EQ(script->Run(LR"(
Class OneRow
  Public Key
  Public Text
  Public Tag
End Class
Class OtherRow
  Public Tag
  Public Text
  Public Key
  Public Other
End Class
Class Rows
  Public one
  Public other
  Public Property Get Count
    Count = CInt(2)
  End Property
  Public Function Item(i)
    If i = 1 Then
      Set Item = one
    Else
      Set Item = other
    End If
  End Function
End Class
Class List
  Public ListItems
End Class
Dim host
Set host = New List
Set host.ListItems = New Rows
Set host.ListItems.one = New OneRow
Set host.ListItems.other = New OtherRow
host.ListItems.one.Key = "k1"
host.ListItems.one.Text = "t1"
host.ListItems.one.Tag = "g1"
host.ListItems.other.Key = "k2"
host.ListItems.other.Text = "t2"
host.ListItems.other.Tag = "g2"
)"),
            "");
  const Ref<LateBoundList> list = MakeRef<LateBoundList>(GetObject(script->Globals(), L"host"));
  Strings read;
  for (std::int32_t i : {1, 2, 1}) {
    const Ref<ListItem> row = list->ListItems()->Item(i);
    read.push_back(ValueToText(row->Key()).ToUtf8() + ' ' + ValueToText(row->Text()).ToUtf8() +
                   ' ' + ValueToText(row->Tag()).ToUtf8());
  }
  EXPECT_EQ(read, (Strings{"k1 t1 g1", "k2 t2 g2", "k1 t1 g1"}));
}

}  // namespace

}  // namespace sifter
