#include "script/Script.h"

#include "Folder.h"
#include "container/Failure.h"
#include "script/ScriptFile.h"
#include "script/ScriptObject.h"

#include <gtest/gtest.h>

#include <ole2.h>

namespace hosts {

namespace {

using Lines = std::vector<std::wstring>;

// A script with an object `host` that keeps what it is told.
class ScriptTest : public testing::Test {
 protected:
  ScriptTest() {
    OleInitialize(nullptr);
    script_ = std::make_unique<Script>(nullptr, [this](const std::wstring&, int line) {
      told_.push_back(L"error in line " + std::to_wstring(line));
    });
    script_->Add(L"host", MakeScriptObject({
                              {L"Tell",
                               [this](const std::vector<Variant>& arguments) {
                                 told_.push_back(arguments.at(0).Text());
                                 return Variant();
                               }},
                              {L"Name", [](const auto&) { return Variant(L"a host"); },
                               [this](const Variant& value) { told_.push_back(value.Text()); }},
                              {L"Fail",
                               [](const auto&) -> Variant {
                                 throw Failure(L"out of order", static_cast<HRESULT>(0x800A0005));
                               }},
                          }));
  }
  ~ScriptTest() override {
    script_.reset();
    OleUninitialize();
  }

  std::unique_ptr<Script> script_;
  Lines told_;
};

TEST_F(ScriptTest, ReachesAnObjectsMembersWhateverTheirCase) {
  EXPECT_TRUE(script_->Run(L"host.TELL host.name\nhost.Name = 7"));
  EXPECT_EQ(told_, (Lines{L"a host", L"7"}));
}

TEST_F(ScriptTest, SeesTheNumberAndTheWordsOfAFailure) {
  EXPECT_TRUE(
      script_->Run(L"On Error Resume Next\nhost.Fail\n"
                   L"host.Tell Err.Number & \" \" & Err.Description"));
  EXPECT_EQ(told_, (Lines{L"5 out of order"}));
}

TEST_F(ScriptTest, TellsTheLineOfARunTimeError) {
  EXPECT_FALSE(script_->Run(L"host.Tell 1\n\nhost.Missing"));
  EXPECT_EQ(told_, (Lines{L"1", L"error in line 3"}));
}

TEST_F(ScriptTest, TellsTheLineOfAnErrorInTheText) {
  EXPECT_FALSE(script_->Run(L"host.Tell 1\nIf Then"));
  EXPECT_EQ(told_, (Lines{L"error in line 2"}));
}

TEST_F(ScriptTest, CallsAProcedureThatIsThereAndNoOther) {
  EXPECT_TRUE(script_->Run(L"Sub ctl_Changed\nhost.Tell \"changed\"\nEnd Sub"));
  script_->CallIfThere(L"ctl_Changed", {});
  script_->CallIfThere(L"ctl_Other", {});
  EXPECT_EQ(told_, (Lines{L"changed"}));
}

TEST_F(ScriptTest, TellsOfAnErrorInsideAProcedureAndGoesOn) {
  EXPECT_TRUE(
      script_->Run(L"Sub ctl_Bad\nhost.Missing\nEnd Sub\n"
                   L"Sub ctl_Good\nhost.Tell \"good\"\nEnd Sub"));
  script_->CallIfThere(L"ctl_Bad", {});
  script_->CallIfThere(L"ctl_Good", {});
  EXPECT_EQ(told_, (Lines{L"error in line 2", L"good"}));
}

TEST_F(ScriptTest, GivesArgumentsInOrderAndTakesBackWhatIsWritten) {
  EXPECT_TRUE(
      script_->Run(L"Sub ctl_Asked(first, second)\nhost.Tell first\nsecond = \"new\"\n"
                   L"End Sub"));
  Variant first(L"one"), second(L"two");
  VARIANT byReference{};
  byReference.vt = VT_BYREF | VT_VARIANT;
  VARIANT* const target = second.Receive();
  byReference.pvarVal = target;
  VARIANT byValue = first.Get();
  script_->CallIfThere(L"ctl_Asked", {&byValue, &byReference});
  EXPECT_EQ(told_, (Lines{L"one"}));
  EXPECT_EQ(second.Text(), L"new");
}

TEST_F(ScriptTest, KnowsObjectsThatCameAfterItBegan) {
  EXPECT_TRUE(script_->Run(L"Sub Later\nhost.Tell late.Name\nEnd Sub"));
  script_->Add(L"late",
               MakeScriptObject({{L"Name", [](const auto&) { return Variant(L"late"); }}}));
  script_->CallIfThere(L"Later", {});
  EXPECT_EQ(told_, (Lines{L"late"}));
}

struct Encoding {
  const char* name;
  std::string bytes;
};

class ScriptFileTest : public testing::TestWithParam<Encoding> {};

TEST_P(ScriptFileTest, IsReadByWhatItsBytesSay) {
  const Folder folder;
  EXPECT_EQ(ReadScript(folder.Write(L"a.vbs", GetParam().bytes)), L"x = \"\u00FC\"");
}

INSTANTIATE_TEST_SUITE_P(
    Encodings, ScriptFileTest,
    testing::Values(Encoding{"Utf8", "x = \"\xC3\xBC\""},
                    Encoding{"Utf8WithMark", "\xEF\xBB\xBFx = \"\xC3\xBC\""},
                    Encoding{"Utf16", std::string("\xFF\xFEx\0 \0=\0 \0\"\0\xFC\0\"\0", 16)},
                    Encoding{"CodePage", "x = \"\xFC\""}),
    [](const auto& encoding) { return std::string(encoding.param.name); });

TEST(ScriptFile, ThatIsMissingIsAFailure) {
  const Folder folder;
  EXPECT_THROW(ReadScript(folder.PathOf(L"missing.vbs")), Failure);
}

}  // namespace

}  // namespace hosts
