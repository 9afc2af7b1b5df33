#include "BannerOnAForm.h"

#include <map>
#include <tuple>

namespace sifter {

namespace {

// What a host's form keeps of the banner.
class BannerSettings : public BannerOnAForm {
 protected:
  BannerSettings() {
    control.SetSize(6000, 400);
    recorder.Clear();
  }

  // The settings as the control has them.
  Names Settings() const {
    const Ref<Picture>& shown = control.BannerButtonPicture();
    return {Shown(Value(control.Active())),
            Quoted(control.ColumnsToExclude()),
            Quoted(control.FilterCaption()),
            Quoted(control.FilterMessage()),
            Quoted(control.ItemDescription()),
            Shown(Value(control.ExtraButtonVisible())),
            Shown(Value(control.BannerButtonVisible())),
            shown ? Quoted(shown->Key()) : "none"};
  }
  void Load() { control.ReadProperties(bag, container); }

  // Gives every setting another value than its default.
  void ChangeAll() {
    bag.entries = {{u"Active", true},
                   {u"ColumnsToExlude", u"2,3"},
                   {u"FilterCaption", u"Trees"},
                   {u"FilterMessage", u"Which?"},
                   {u"ItemDescription", u"Trees"},
                   {u"ExtraButtonVisible", true},
                   {u"BannerButtonVisible", true},
                   {u"BannerButtonPicture", Value(Ref<Object>(picture))}};
    Load();
    bag.entries.clear();
    recorder.Clear();
  }

  PropertyBagFake bag{recorder};
  const Ref<Picture> picture = MakeRef<Picture>();
  const Names kEmptyBag = {"False",
                           "\"\"",
                           "\"Rodney's Row Sifter\"",
                           "\"Please enter criteria to apply to your listview\"",
                           "\"Items\"",
                           "False",
                           "False",
                           "\"print\""};
};

const char* const kMessageWritten =
    "write \"FilterMessage\" \"Please enter criteria to apply to your listview\"";

TEST_F(BannerSettings, OfAFreshControlAreWrittenWithItsCaption) {
  control.WriteProperties(bag, Saving::kUnlikeDefault);
  EXPECT_TRUE(recorder.Shows(
      {"write \"Active\" False", "write \"FilterCaption\" \"Tarvenn Software Row Sifter\"",
       "write \"ExtraButtonVisible\" False", "write \"BannerButtonVisible\" False"}));
}

TEST_F(BannerSettings, ThatDifferAreWrittenInOrder) {
  ChangeAll();
  control.WriteProperties(bag, Saving::kUnlikeDefault);
  EXPECT_TRUE(recorder.Shows({
      "write \"Active\" True",
      "write \"ColumnsToExclude\" \"2,3\"",
      "write \"FilterCaption\" \"Trees\"",
      "write \"FilterMessage\" \"Which?\"",
      "write \"ItemDescription\" \"Trees\"",
      "write \"ExtraButtonVisible\" True",
      "write \"BannerButtonVisible\" True",
      "write \"BannerButtonPicture\" object",
  }));
  EXPECT_EQ(bag.entries.at(u"BannerButtonPicture"), Value(Ref<Object>(picture)));
}

TEST_F(BannerSettings, ThatAreAsByDefaultAreWrittenWhenTheContainerWantsAll) {
  Load();
  recorder.Clear();
  control.WriteProperties(bag, Saving::kAll);
  EXPECT_TRUE(recorder.Shows({
      "write \"Active\" False",
      "write \"ColumnsToExclude\" \"\"",
      "write \"FilterCaption\" \"Rodney's Row Sifter\"",
      kMessageWritten,
      "write \"ItemDescription\" \"Items\"",
      "write \"ExtraButtonVisible\" False",
      "write \"BannerButtonVisible\" False",
  }));
}

TEST_F(BannerSettings, TheCaptionOfTheEmptyBagIsNotWritten) {
  control.SetFilterCaption(u"Rodney's Row Sifter");
  recorder.Clear();
  control.WriteProperties(bag, Saving::kUnlikeDefault);
  EXPECT_FALSE(bag.entries.contains(u"FilterCaption"));
  Load();
  EXPECT_EQ(control.FilterCaption(), u"Rodney's Row Sifter");
}

TEST_F(BannerSettings, AreReadInOrderThroughThePutsAndTheColourOfTheFormLast) {
  control.Changed = [this] { recorder.Line("colour " + std::to_string(control.BackColor())); };
  container.backColor = 0x00C0FFEE;
  bag.entries = {{u"BannerButtonVisible", true},
                 {u"BannerButtonPicture", Value(Ref<Object>(picture))}};
  Load();
  EXPECT_TRUE(recorder.Shows({
      "read \"Active\"",
      "read \"ColumnsToExlude\"",
      "read \"FilterCaption\"",
      "read \"FilterMessage\"",
      "read \"ItemDescription\"",
      "read \"ExtraButtonVisible\"",
      "changed \"ExtraButtonVisible\"",
      "read \"BannerButtonVisible\"",
      "changed \"BannerButtonVisible\"",
      "cmdExtraButton.Visible True",
      "lblFrame.Width 5220",
      "lblDisplaying.Width 5070",
      "read \"BannerButtonPicture\"",
      "changed \"BannerButtonPicture\"",
      "cmdExtraButton.Picture \"\"",
      "ambient back colour",
      "colour " + std::to_string(0x00C0FFEE),
  }));
}

TEST_F(BannerSettings, ThatTheBagLacksGetTheirDefaults) {
  ChangeAll();
  Load();
  EXPECT_EQ(Settings(), kEmptyBag);
  EXPECT_EQ(control.BannerButtonPicture(), control.ImageList1.Item(u"print"));
  EXPECT_EQ(control.cmdExtraButton.Picture(), control.ImageList1.Item(u"print"));
  EXPECT_FALSE(control.cmdExtraButton.Visible());
}

TEST_F(BannerSettings, ColumnsToExcludeDoesNotComeBack) {
  control.SetColumnsToExclude(u"2,3");
  control.WriteProperties(bag, Saving::kUnlikeDefault);
  EXPECT_EQ(bag.entries.at(u"ColumnsToExclude"), Value(u"2,3"));
  Load();
  EXPECT_EQ(control.ColumnsToExclude(), u"");
}

TEST_F(BannerSettings, AllOthersComeBack) {
  ChangeAll();
  Names expected = Settings();
  expected[1] = "\"\"";
  control.WriteProperties(bag, Saving::kUnlikeDefault);
  control.SetActive(false);
  Load();
  EXPECT_EQ(Settings(), expected);
  EXPECT_EQ(control.BannerButtonPicture(), picture);
}

TEST_F(BannerSettings, TheStockPictureIsNotStoredAndNoPictureNeither) {
  control.SetBannerButtonPicture(control.ImageList1.Item(u"print"));
  control.WriteProperties(bag, Saving::kAll);
  EXPECT_FALSE(bag.entries.contains(u"BannerButtonPicture"));
  control.SetBannerButtonPicture(nullptr);
  control.WriteProperties(bag, Saving::kAll);
  EXPECT_FALSE(bag.entries.contains(u"BannerButtonPicture"));
  // A host's picture is told by identity, even if it has the key of the stock picture.
  control.SetBannerButtonPicture(MakeRef<Picture>(u"print"));
  control.WriteProperties(bag, Saving::kUnlikeDefault);
  EXPECT_TRUE(bag.entries.contains(u"BannerButtonPicture"));
}

TEST_F(BannerSettings, OfTheRunningControlAreNotSaved) {
  AttachAndFilter();
  control.SetExtraButtonCaption(u"Print");
  control.SetEnabled(false);
  control.SetBackColor(5);
  control.WriteProperties(bag, Saving::kAll);
  Names keys;
  for (const auto& [key, value] : bag.entries) keys.push_back(key.ToUtf8());
  EXPECT_EQ(keys, (Names{"Active", "BannerButtonVisible", "ColumnsToExclude", "ExtraButtonVisible",
                         "FilterCaption", "FilterMessage", "ItemDescription"}));
}

TEST_F(BannerSettings, ActiveLoadsWithoutADialogAFaceOrAnEvent) {
  Attach();
  const Names face = Face();
  bag.entries[u"Active"] = true;
  Load();
  for (const std::string& line : recorder.Lines())
    EXPECT_FALSE(line.starts_with("raise") || line.starts_with("show")) << line;
  EXPECT_EQ(Face(), face);
  EXPECT_EQ(face[0], "FilterEmpty");
  EXPECT_TRUE(control.Active());
  EXPECT_EQ(Texts(*list), kTrees);
}

TEST_F(BannerSettings, LoadingLeavesTheCaptionUntilAListIsAttached) {
  bag.entries[u"ItemDescription"] = u"Trees";
  Load();
  EXPECT_EQ(Caption(), u"Displaying all items");
  control.SetListview(list);
  EXPECT_EQ(Caption(), u"Displaying all Trees");
}

TEST_F(BannerSettings, LoadingWorksForAContainerThatDoesNotListen) {
  control.PropertyChanged = nullptr;
  ChangeAll();
  EXPECT_EQ(Settings()[0], "True");
}

TEST_F(BannerSettings, OfTheWrongKindAreErrorsToTheContainer) {
  const std::tuple<const char16_t*, Value, std::string> cases[] = {
      {u"Active", u"yes", "13: Type mismatch"},
      {u"Active", Value::Null(), "94: Invalid use of Null"},
      {u"ExtraButtonVisible", u"", "13: Type mismatch"},
      {u"BannerButtonVisible", Value(Ref<Object>(list)), "13: Type mismatch"},
      {u"FilterCaption", Value::Null(), "94: Invalid use of Null"},
      {u"BannerButtonPicture", u"print", "13: Type mismatch"},
      {u"BannerButtonPicture", Value(Ref<Object>(list)), "13: Type mismatch"},
      {u"BannerButtonPicture", 7, "13: Type mismatch"}};
  for (const auto& [key, value, error] : cases) {
    bag.entries = {{key, value}};
    EXPECT_EQ(ErrorOf([&] { Load(); }), error) << Quoted(key) << ' ' << Shown(value);
  }
}

TEST_F(BannerSettings, OfAnotherKindThatCanBeConvertedAre) {
  bag.entries = {{u"Active", u"True"}, {u"ExtraButtonVisible", -1}, {u"FilterCaption", 7}};
  Load();
  EXPECT_EQ(Settings()[0], "True");
  EXPECT_EQ(Settings()[2], "\"7\"");
  EXPECT_EQ(Settings()[5], "True");
}

TEST_F(BannerSettings, OfANewControlAreSetInOrder) {
  ChangeAll();
  AttachAndFilter();
  recorder.Clear();
  Names atColour;
  control.Changed = [&] { atColour = Settings(); };
  container.backColor = 0x00C0FFEE;
  control.InitProperties(container);
  EXPECT_TRUE(recorder.Shows({
      "ambient back colour",
      "lblDisplaying.Caption \"Displaying All Items\"",
      "changed \"ExtraButtonVisible\"",
      "changed \"BannerButtonVisible\"",
      "cmdExtraButton.Visible False",
      "lblFrame.Width 5610",
      "lblDisplaying.Width 5460",
  }));
  EXPECT_EQ(atColour, (Names{"True", "\"\"", "\"Tarvenn Software Row Sifter\"",
                             "\"Please enter criteria to apply to your listview\"", "\"Trees\"",
                             "True", "True", "\"\""}));
  EXPECT_EQ(control.BackColor(), 0x00C0FFEE);
  EXPECT_EQ(control.Filter(), u"");
  EXPECT_EQ(control.FilterInPlainEnglish(), u"");
}

// The button shows its design picture all the same.
TEST_F(BannerSettings, ANewControlHasNoPicture) {
  control.InitProperties(container);
  EXPECT_EQ(control.BannerButtonPicture(), nullptr);
  EXPECT_EQ(control.cmdExtraButton.Picture(), control.ImageList1.Item(u"print"));
}

TEST_F(BannerSettings, AFormThatTellsNoColourGivesTheFaceOfButtons) {
  for (const bool load : {true, false}) {
    control.SetBackColor(5);
    load ? Load() : control.InitProperties(container);
    EXPECT_EQ(control.BackColor(), kButtonFace);
  }
}

}  // namespace

}  // namespace sifter
