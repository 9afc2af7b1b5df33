#include "HostedBanner.h"
#include "Process.h"
#include "ScriptEngine.h"
#include "ScriptedList.h"

namespace sifter {

namespace {

// The platform's own script host runs this, in a process of its own. A run-time error there prints
// nothing and passes for success, so the script says that it has come to its end.
ProcessEnd RunScript(const std::string& script, const std::function<void()>& each = {}) {
  const TemporaryFile file(L"script.vbs",
                           script + "\r\nWScript.Echo \"end\"\r\nWScript.Quit 3\r\n");
  return RunProcess(SystemProgram(L"cscript.exe") + L" //nologo \"" + file.Path() + L"\"", each);
}

class ScriptHost : public ComTest {};

TEST_F(ScriptHost, CreatesTheControlAndUsesItsMembers) {
  const ProcessEnd end = RunScript(R"(
    Dim sifter
    Set sifter = CreateObject("RowSifter.TSRowSifter")
    WScript.Echo sifter.FilterCaption & "|" & sifter.FilterMessage & "|" & sifter.Active
    sifter.FilterCaption = "Trees"
    sifter.ColumnsToExclude = "Name"
    sifter.ApplyFilter "Name = 'x'"
    sifter.ShowFilter
    sifter.ResetFilter
    sifter.TurnOffFilter
    WScript.Echo sifter.FilterCaption & "|" & sifter.ColumnsToExclude & "|" & sifter.Filter
    WScript.Echo CStr(sifter.Listview Is Nothing)
  )");
  EXPECT_EQ(end.code, 3);
  EXPECT_EQ(end.output,
            "Tarvenn Software Row Sifter|Please enter criteria to apply to your listview|False\r\n"
            "Trees|Name|\r\n"
            "True\r\n"
            "end\r\n");
}

// ASCII, as scripts are read.
std::string ListOfTheScript() {
  std::string list;
  for (const wchar_t* unit = kScriptedList; *unit != 0; ++unit) list += static_cast<char>(*unit);
  return list;
}

TEST_F(ScriptHost, CreatesTheBannerAndUsesItsMembers) {
  const ProcessEnd end = RunScript(R"(
    Dim banner
    Set banner = CreateObject("RowSifter.TSLvwBannerFilter")
    WScript.Echo banner.FilterCaption & "|" & banner.FilterMessage & "|" & banner.ItemDescription
    banner.FilterCaption = "Trees"
    banner.ItemDescription = "Trees"
    banner.ColumnsToExclude = "Name"
    banner.ExtraButtonCaption = "Report"
    banner.ExtraButtonVisible = True
    banner.BannerButtonVisible = True
    banner.Enabled = False
    banner.ApplyFilter "Name..11==r2==*?"
    banner.ShowFilter
    banner.ShowFilter True
    banner.ResetFilter
    banner.TurnOffFilter
    banner.DeactivateFilter
    banner.ReleaseListview
    Set banner.BannerButtonPicture = Nothing
    WScript.Echo banner.FilterCaption & "|" & banner.ItemDescription & "|" & _
                 banner.ColumnsToExclude & "|" & banner.ExtraButtonCaption & "|" & _
                 banner.ExtraButtonVisible & "|" & banner.BannerButtonVisible & "|" & _
                 banner.Enabled & "|" & banner.Active
    WScript.Echo "|" & banner.Filter & "|" & banner.FilterInPlainEnglish & "|" & _
                 banner.ListOfTags & "|" & banner.InitialSettings
    WScript.Echo CStr(banner.Listview Is Nothing) & CStr(banner.BannerButtonPicture Is Nothing)
  )");
  EXPECT_EQ(end.code, 3);
  EXPECT_EQ(end.output,
            "Tarvenn Software Row Sifter|Please enter criteria to apply to your listview|Items\r\n"
            "Trees|Trees|Name|Report|True|True|False|False\r\n"
            "||||\r\n"
            "TrueTrue\r\n"
            "end\r\n");
}

TEST_F(ScriptHost, FiltersAListOfItsOwnByTextAlone) {
  const ProcessEnd end = RunScript(ListOfTheScript() + R"(
    Dim banner, list, row
    Set list = New ScriptedList
    list.ColumnHeaders.Add 0, "", "Name", 1440, 0, 0
    list.ColumnHeaders.Add 0, "", "Qty", 1440, 0, 0
    For Each name In Array("Oak", "Ash", "Elm", "Larch", "Birch")
      Set row = list.ListItems.Add(0, "", name, 0, 0)
      row.SubItems(1) = CStr(Len(name))
      row.Tag = Left(name, 1)
    Next
    Set banner = CreateObject("RowSifter.TSLvwBannerFilter")
    Set banner.Listview = list
    WScript.Echo banner.ListOfTags
    banner.ApplyFilter "Name..11==r2==*?"
    WScript.Echo banner.ListOfTags & " " & banner.Active
    WScript.Echo banner.Filter & " " & banner.FilterInPlainEnglish
    banner.ApplyFilter "no criterion at all"
    WScript.Echo banner.ListOfTags & " " & banner.Active & " " & banner.Filter
    Set banner = Nothing
  )");
  EXPECT_EQ(end.code, 3);
  EXPECT_EQ(end.output,
            ",O,A,E,L,B\r\n"
            ",L,B True\r\n"
            "(Name like '*r*') Name contains r\r\n"
            ",L,B True (Name like '*r*')\r\n"
            "end\r\n");
}

TEST_F(ScriptHost, SeesErrorsByNumberAndSource) {
  const ProcessEnd end = RunScript(R"(
    Dim sifter
    Set sifter = CreateObject("RowSifter.TSRowSifter")
    On Error Resume Next
    sifter.Listview = "no list"
    WScript.Echo Err.Number & " " & Err.Source & " " & Err.Description
    Err.Clear
    sifter.Filter = "x"
    WScript.Echo Err.Number
    Err.Clear
    CreateObject "RowSifter.HookClass"
    WScript.Echo CStr(Err.Number <> 0)
    Err.Clear
  )");
  EXPECT_EQ(end.code, 3);
  EXPECT_EQ(end.output, "424 RowSifter Object required\r\n438\r\nTrue\r\nend\r\n");
}

TEST_F(ScriptHost, SeesErrorsOfTheBannerToo) {
  const ProcessEnd end = RunScript(R"(
    Dim banner
    Set banner = CreateObject("RowSifter.TSLvwBannerFilter")
    On Error Resume Next
    banner.Listview = "no list"
    WScript.Echo Err.Number & " " & Err.Source & " " & Err.Description
    Err.Clear
    banner.Filter = "x"
    WScript.Echo Err.Number
    Err.Clear
    banner.Enabled = "maybe"
    WScript.Echo Err.Number
    Err.Clear
  )");
  EXPECT_EQ(end.code, 3);
  EXPECT_EQ(end.output, "424 RowSifter Object required\r\n438\r\n13\r\nend\r\n");
}

// A list written in the script itself; the user is in this process.
TEST_F(ScriptHost, LetsAUserFilterAListOfItsOwn) {
  bool filtered = false;
  const ProcessEnd end = RunScript(ListOfTheScript() + R"(
    Dim sifter, list, row, left
    Set list = New ScriptedList
    list.ColumnHeaders.Add 0, "", "Name", 1440, 0, 0
    list.ColumnHeaders.Add 0, "", "Qty", 1440, 0, 0
    For Each name In Array("Oak", "Ash", "Elm", "Larch", "Birch")
      Set row = list.ListItems.Add(0, "", name, 0, 0)
      row.SubItems(1) = CStr(Len(name))
    Next
    Set sifter = CreateObject("RowSifter.TSRowSifter")
    Set sifter.Listview = list
    sifter.FilterCaption = "Trees of a script"
    sifter.ShowFilter
    For i = 1 To list.ListItems.Count
      left = left & list.ListItems.Item(i).Text & list.ListItems.Item(i).SubItems(1) & " "
    Next
    WScript.Echo left & sifter.Active
    Set sifter = Nothing
  )",
                                   [&] {
                                     const HWND window =
                                         FindWindowW(L"RowSifterForm", L"Trees of a script");
                                     if (filtered || !IsWindowVisible(window)) return;
                                     filtered = true;
                                     FilterByMessages(window, 0, "contains", "r");
                                   });
  EXPECT_TRUE(filtered);
  EXPECT_EQ(end.code, 3);
  EXPECT_EQ(end.output, "Larch5 Birch5 True\r\nend\r\n");
}

// The platform's script engine as part of a program, with the list on a form of the program's.
class ScriptInAProgram : public HostedSifter {};

TEST_F(ScriptInAProgram, FiltersAListOfItsOwn) {
  const std::unique_ptr<ScriptEngine> script = ScriptEngine::Make();
  if (!script) GTEST_SKIP() << "no VBScript here";
  script->Add(L"sifter", control);
  ASSERT_EQ(script->Run(kScriptedList), "");
  ASSERT_EQ(script->Run(LR"(
    Dim list, row, name
    Set list = New ScriptedList
    list.ColumnHeaders.Add 0, "", "Name", 1440, 0, 0
    list.ColumnHeaders.Add 0, "", "Qty", 1440, 0, 0
    For Each name In Array("Oak", "Ash", "Elm", "Larch", "Birch")
      Set row = list.ListItems.Add(0, "", name, 0, 0)
      row.Tag = "tag of " & name
      row.Bold = (name = "Birch")
      row.SubItems(1) = CStr(Len(name))
      row.ListSubItems.Item(1).ForeColor = 255
    Next
    Set sifter.Listview = list
    Dim same
    same = sifter.Listview Is list
  )"),
            "");
  EXPECT_EQ(Get(script->Globals(), L"same"), Value(true));
  FilterNames("contains", "r");
  ASSERT_EQ(script->Run(LR"(
    Dim left
    For i = 1 To list.ListItems.Count
      Set row = list.ListItems.Item(i)
      left = left & row.Text & " " & row.SubItems(1) & " " & row.Tag & " " & row.Bold & " " & _
             row.ListSubItems.Item(1).ForeColor & ";"
    Next
  )"),
            "");
  EXPECT_EQ(Get(script->Globals(), L"left"),
            Value(u"Larch 5 tag of Larch False 255;Birch 5 tag of Birch True 255;"));
  EXPECT_EQ(Names(), (Strings{"Oak", "Ash", "Elm", "Larch", "Birch"})) << "the other list";
  connection.Break();
  container.Remove();
  control.Reset();
}

// The list's window is that on the form; its rows are the script's.
class ScriptWithABanner : public HostedBanner {};

TEST_F(ScriptWithABanner, FiltersAListOfItsOwn) {
  const std::unique_ptr<ScriptEngine> script = ScriptEngine::Make();
  if (!script) GTEST_SKIP() << "no VBScript here";
  script->Add(L"banner", control);
  ASSERT_EQ(script->Run(kScriptedList), "");
  ASSERT_EQ(script->Run(LR"(
    Dim list, row, name
    Set list = New ScriptedList
    list.hWnd = )" + std::to_wstring(reinterpret_cast<LONG_PTR>(form.List())) +
                        LR"(
    list.ColumnHeaders.Add 0, "", "Name", 1440, 0, 0
    For Each name In Array("Oak", "Ash", "Elm", "Larch", "Birch")
      Set row = list.ListItems.Add(0, "", name, 0, 0)
      row.Tag = UCase(name)
    Next
    banner.ItemDescription = "Trees"
    Set banner.Listview = list
    banner.ApplyFilter "Name..11==r2==*?"
    Dim tags
    tags = banner.ListOfTags & " " & banner.Active
  )"),
            "");
  EXPECT_EQ(Get(script->Globals(), L"tags"), Value(u",LARCH,BIRCH True"));
  EXPECT_EQ(Caption(), "Displaying 2 of 5 Trees");
  EXPECT_TRUE(recorder.Shows({"event 1"}));
  Show([&] { dialog.PressesByMessage("&Reset Filter"); });
  ASSERT_EQ(script->Run(L"tags = banner.ListOfTags & \" \" & banner.Active"), "");
  EXPECT_EQ(Get(script->Globals(), L"tags"), Value(u",OAK,ASH,ELM,LARCH,BIRCH False"));
  EXPECT_EQ(recorder.Lines().back(), "event 2");
  connection.Break();
  container.Remove();
  control.Reset();
}

}  // namespace

}  // namespace sifter
