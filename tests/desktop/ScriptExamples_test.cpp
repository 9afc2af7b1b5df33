#include "Program.h"
#include "RegisteredControl.h"
#include "user/Banner.h"
#include "user/FilterDialog.h"
#include "user/Hands.h"
#include "user/RemoteList.h"
#include "user/Screen.h"

#include <commctrl.h>

namespace hosts {

namespace {

std::wstring Example(const wchar_t* name) {
  return L" \"" SCRIPT_EXAMPLES L"\\" + std::wstring(name) + L'"';
}

std::wstring OurHost(const wchar_t* example) {
  return BuiltProgram(L"script.exe") + Example(example);
}

std::wstring SystemHost(const wchar_t* example) {
  return SystemProgram(L"cscript.exe") + L" //nologo" + Example(example);
}

class ScriptExamples : public RegisteredControl {};

constexpr char kProperties[] =
    "FilterCaption: Tarvenn Software Row Sifter\n"
    "FilterMessage: Please enter criteria to apply to your listview\n"
    "Active: False\n"
    "FilterCaption: Which rows?\n"
    "ColumnsToExclude: Notes\n"
    "Active: False\n";

TEST_F(ScriptExamples, PropertiesRunInBothHosts) {
  for (const std::wstring& line : {OurHost(L"properties.vbs"), SystemHost(L"properties.vbs")}) {
    const Program::End end = Program(line).WaitForEnd();
    EXPECT_EQ(end.output, kProperties);
    EXPECT_EQ(end.code, 0);
  }
}

// The dialog comes up by itself, over no window of the script's.
TEST_F(ScriptExamples, AListOfScriptClassesIsFilteredInBothHosts) {
  for (const std::wstring& line : {OurHost(L"ownlist.vbs"), SystemHost(L"ownlist.vbs")}) {
    Program program(line);
    FilterDialog dialog;
    dialog.Choose(L"Colour", L"equals", L"red");
    dialog.Leave(L"&Apply Criteria");
    const Program::End end = program.WaitForEnd();
    EXPECT_EQ(end.output, "Active: True\nApple, red\nCherry, red\n");
    EXPECT_EQ(end.code, 0);
  }
}

TEST_F(ScriptExamples, EventsArriveInTheProceduresOfTheirName) {
  Program program(OurHost(L"filter.vbs"));
  const HWND window = WaitForWindow(L"RowSifterScript");
  const HWND button = WaitForChild(window, L"Button", L"Filter");
  Click(button);
  {
    FilterDialog dialog;
    EXPECT_EQ(CaptionOf(dialog.Window()), L"Which towns?");
    dialog.Choose(L"Country", L"equals", L"Portugal");
    dialog.Leave(L"&Apply Criteria");
  }
  WaitUntil([&] { return CaptionOf(window) == L"Towns: 3 kept"; }, L"for the caption to change");
  Click(button);
  FilterDialog().Leave(L"&Reset Filter");
  WaitUntil([&] { return CaptionOf(window) == L"Towns"; }, L"for the caption to change");
  PostMessageW(window, WM_CLOSE, 0, 0);
  const Program::End end = program.WaitForEnd();
  EXPECT_EQ(end.output,
            "FilterActivated: Lisbon Porto Braga\n"
            "FilterDeactivated: Lisbon Porto Braga Tallinn Tartu Bergen Trondheim Wellington\n");
  EXPECT_EQ(end.code, 0);
}

TEST_F(ScriptExamples, TheBannerFiltersByATextAndFollowsTheList) {
  Program program(OurHost(L"banner.vbs"));
  const HWND window = WaitForWindow(L"RowSifterScript");
  WaitForBannerCaption(window, L"Displaying 3 of 8 towns");
  Click(HostButtonOf(window));
  WaitForBannerCaption(window, L"Displaying 4 of 10 towns");
  Click(FilterButtonOf(window));
  {
    FilterDialog dialog;
    EXPECT_EQ(CaptionOf(dialog.Window()), L"Which towns?");
    dialog.Leave(L"&Reset Filter");
  }
  WaitForBannerCaption(window, L"Displaying 10 of 10 towns");
  PostMessageW(window, WM_CLOSE, 0, 0);
  const Program::End end = program.WaitForEnd();
  EXPECT_EQ(end.output,
            "ListOfTags: ,LIS,OPO,BGZ,TLL,TAY,BGO,TRD,WLG\n"
            "FilterActivated: Lisbon Porto Braga\n"
            "Active: True\n"
            "ListOfTags: ,LIS,OPO,BGZ\n"
            "Filter: (Country = 'Portugal')\n"
            "FilterInPlainEnglish: Country equals Portugal\n"
            "Active: True\n"
            "ExtraButtonClicked(): Lisbon Porto Braga Faro Oslo\n"
            "FilterDeactivated: Lisbon Porto Braga Tallinn Tartu Bergen Trondheim Wellington Faro "
            "Oslo\n");
  EXPECT_EQ(end.code, 0);
}

}  // namespace

}  // namespace hosts
