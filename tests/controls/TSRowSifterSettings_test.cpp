#include "SifterOnAForm.h"

#include <map>
#include <utility>

namespace sifter {

namespace {

// What a host's form keeps of the control.
class SifterSettings : public SifterOnAForm {
 protected:
  // The settings as the control has them.
  Names Settings() const {
    return {Shown(Value(control.Active())), Quoted(control.ColumnsToExclude()),
            Quoted(control.Filter()), Quoted(control.FilterCaption()),
            Quoted(control.FilterMessage())};
  }
  void Load() { control.ReadProperties(bag, container); }

  // Gives every setting another value than its default.
  void ChangeAll() {
    bag.entries = {{u"Active", true},
                   {u"ColumnsToExlude", u"Name"},
                   {u"Filter", u"f"},
                   {u"FilterCaption", u"Trees"},
                   {u"FilterMessage", u"Which?"}};
    Load();
    bag.entries.clear();
    recorder.Clear();
  }

  PropertyBagFake bag{recorder};
  const Names kDefaults = {"False", "\"\"", "\"\"", "\"Tarvenn Software Row Sifter\"",
                           "\"Please enter criteria to apply to your listview\""};
  const Names kReads = {"read \"Active\"",        "read \"ColumnsToExlude\"",
                        "read \"Filter\"",        "read \"FilterCaption\"",
                        "read \"FilterMessage\"", "ambient back colour"};
};

TEST_F(SifterSettings, AreAllWrittenInOrderWhenTheContainerWantsAll) {
  control.WriteProperties(bag, Saving::kAll);
  EXPECT_TRUE(recorder.Shows({
      "write \"Active\" False",
      "write \"ColumnsToExclude\" \"\"",
      "write \"Filter\" \"\"",
      "write \"FilterCaption\" \"Tarvenn Software Row Sifter\"",
      "write \"FilterMessage\" \"Please enter criteria to apply to your listview\"",
  }));
}

TEST_F(SifterSettings, ThatAreAsByDefaultAreLeftOutOtherwise) {
  control.WriteProperties(bag, Saving::kUnlikeDefault);
  EXPECT_TRUE(recorder.Shows({}));
  control.SetFilterMessage(u"Please enter criteria to apply to your Listview");
  control.SetColumnsToExclude(u"Qty");
  recorder.Clear();
  control.WriteProperties(bag, Saving::kUnlikeDefault);
  EXPECT_TRUE(recorder.Shows(
      {"write \"ColumnsToExclude\" \"Qty\"",
       "write \"FilterMessage\" \"Please enter criteria to apply to your Listview\""}));
}

TEST_F(SifterSettings, ThatDifferAreWrittenInOrder) {
  ChangeAll();
  control.WriteProperties(bag, Saving::kUnlikeDefault);
  EXPECT_TRUE(recorder.Shows({
      "write \"Active\" True",
      "write \"ColumnsToExclude\" \"Name\"",
      "write \"Filter\" \"f\"",
      "write \"FilterCaption\" \"Trees\"",
      "write \"FilterMessage\" \"Which?\"",
  }));
}

TEST_F(SifterSettings, AnErrorOfTheBagEndsTheWriting) {
  bag.Refuse(u"ColumnsToExclude", RuntimeError(70, u"Permission denied"));
  EXPECT_EQ(ErrorOf([&] { control.WriteProperties(bag, Saving::kAll); }), "70: Permission denied");
  EXPECT_TRUE(recorder.Shows({"write \"Active\" False", "write \"ColumnsToExclude\" \"\""}));
}

TEST_F(SifterSettings, ThatTheBagLacksGetTheirDefaults) {
  ChangeAll();
  Load();
  EXPECT_TRUE(recorder.Shows(kReads));
  EXPECT_EQ(Settings(), kDefaults);
}

TEST_F(SifterSettings, AreReadInOrderAndTheColourOfTheFormLast) {
  control.Changed = [this] { recorder.Line("colour " + std::to_string(control.BackColor())); };
  container.backColor = 0x00C0FFEE;
  bag.entries = {{u"Active", true}, {u"Filter", u"f"}, {u"FilterMessage", u"Which?"}};
  Load();
  Names expected = kReads;
  expected.push_back("colour " + std::to_string(0x00C0FFEE));
  EXPECT_TRUE(recorder.Shows(expected));
  EXPECT_EQ(Settings(),
            (Names{"True", "\"\"", "\"f\"", "\"Tarvenn Software Row Sifter\"", "\"Which?\""}));
}

TEST_F(SifterSettings, ColumnsToExcludeDoesNotComeBack) {
  control.SetColumnsToExclude(u"Name");
  control.WriteProperties(bag, Saving::kUnlikeDefault);
  EXPECT_EQ(bag.entries, (std::map<Text, Value>{{u"ColumnsToExclude", u"Name"}}));
  Load();
  EXPECT_EQ(Settings(), kDefaults);
}

TEST_F(SifterSettings, ColumnsToExcludeIsReadUnderItsOtherSpelling) {
  bag.entries[u"ColumnsToExlude"] = u"Name";
  Load();
  EXPECT_EQ(control.ColumnsToExclude(), u"Name");
}

TEST_F(SifterSettings, AllOthersComeBack) {
  ChangeAll();
  const Names before = Settings();
  control.WriteProperties(bag, Saving::kAll);
  TSRowSifter second(Services());
  second.ReadProperties(bag, container);
  EXPECT_TRUE(second.Active());
  EXPECT_EQ(second.Filter(), u"f");
  EXPECT_EQ(second.FilterCaption(), u"Trees");
  EXPECT_EQ(second.FilterMessage(), u"Which?");
  EXPECT_EQ(second.ColumnsToExclude(), u"");
}

TEST_F(SifterSettings, ActiveLoadsWithoutADialogAnEventOrAFilter) {
  control.SetListview(list);
  bag.entries[u"Active"] = true;
  Load();
  EXPECT_TRUE(recorder.Shows(kReads));
  EXPECT_TRUE(control.Active());
  EXPECT_FALSE(dialog.blnFilterActive);
  EXPECT_EQ(Texts(*list), kTrees);
}

TEST_F(SifterSettings, LoadingTellsOfNoChange) {
  ChangeAll();
  control.PropertyChanged = [](TextView) { FAIL() << "a notice while loading"; };
  Load();
  control.InitProperties(container);
  EXPECT_EQ(Settings(), kDefaults);
}

TEST_F(SifterSettings, ActiveIsConvertedToBoolean) {
  const std::pair<Value, bool> cases[] = {{true, true},
                                          {false, false},
                                          {std::int16_t{-1}, true},
                                          {std::int32_t{7}, true},
                                          {std::int32_t{0}, false},
                                          {0.5, true},
                                          {u"True", true},
                                          {u"false", false},
                                          {u"FALSE", false},
                                          {u"-1", true},
                                          {u"0", false},
                                          {Date{1}, true},
                                          {Value(), false}};
  for (const auto& [value, active] : cases) {
    bag.entries[u"Active"] = value;
    Load();
    EXPECT_EQ(control.Active(), active) << Shown(value);
  }
}

TEST_F(SifterSettings, AnActiveThatIsNoBooleanIsAnErrorToTheContainer) {
  const std::pair<Value, std::string> cases[] = {{u"yes", "13: Type mismatch"},
                                                 {u"", "13: Type mismatch"},
                                                 {Value(Ref<Object>(list)), "13: Type mismatch"},
                                                 {Value::Null(), "94: Invalid use of Null"}};
  ChangeAll();
  const Names before = Settings();
  for (const auto& [value, error] : cases) {
    recorder.Clear();
    bag.entries[u"Active"] = value;
    EXPECT_EQ(ErrorOf([&] { Load(); }), error) << Shown(value);
    EXPECT_TRUE(recorder.Shows({"read \"Active\""}));
    EXPECT_EQ(Settings(), before);
  }
}

TEST_F(SifterSettings, AnErrorOfTheBagEndsTheReading) {
  bag.entries[u"Active"] = true;
  bag.Refuse(u"Filter", RuntimeError(70, u"Permission denied"));
  EXPECT_EQ(ErrorOf([&] { Load(); }), "70: Permission denied");
  EXPECT_TRUE(recorder.Shows({"read \"Active\"", "read \"ColumnsToExlude\"", "read \"Filter\""}));
  EXPECT_TRUE(control.Active());
}

TEST_F(SifterSettings, TextsAreStoredAsRead) {
  bag.entries = {{u"Filter", u"  x "}, {u"FilterCaption", u""}, {u"FilterMessage", 7}};
  Load();
  EXPECT_EQ(Settings(), (Names{"False", "\"\"", "\"  x \"", "\"\"", "\"7\""}));
}

TEST_F(SifterSettings, GetTheirDefaultsWhenTheControlIsFirstPlacedAndThenTheColourOfTheForm) {
  ChangeAll();
  Names atColour;
  container.backColor = 0x00C0FFEE;
  control.Changed = [&] { atColour = Settings(); };
  control.InitProperties(container);
  EXPECT_TRUE(recorder.Shows({"ambient back colour"}));
  EXPECT_EQ(atColour, kDefaults);
  EXPECT_EQ(control.BackColor(), 0x00C0FFEE);
}

TEST_F(SifterSettings, AFormThatTellsNoColourGivesTheFaceOfButtons) {
  control.SetBackColor(5);
  control.InitProperties(container);
  EXPECT_EQ(control.BackColor(), static_cast<std::int32_t>(0x8000000Fu));
  control.SetBackColor(5);
  Load();
  EXPECT_EQ(control.BackColor(), static_cast<std::int32_t>(0x8000000Fu));
}

TEST_F(SifterSettings, TheColourIsNotSaved) {
  control.SetBackColor(5);
  control.WriteProperties(bag, Saving::kAll);
  EXPECT_EQ(bag.entries.size(), 5u);
  for (const auto& [key, value] : bag.entries) EXPECT_NE(value, Value(5)) << Quoted(key);
}

}  // namespace

}  // namespace sifter
