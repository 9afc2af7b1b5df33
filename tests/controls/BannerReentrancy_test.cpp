#include "BannerScene.h"
#include "controls/BannerTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace sifter {

namespace {

using Make = BannerScene::Make;
using Scene = BannerScene;

// What is going on.
struct Step {
  const char* name;
  bool filtered;  // a filter is in force before it
  void (*play)(Scene&);
};

const Step kSteps[] = {
    {"the user filters", false, [](Scene& s) { s.UserFilters(u"Oak"); }},
    {"the user hides", false, [](Scene& s) { s.UserPresses(&frmFilter::cmdHideFilter); }},
    {"the user filters again", true, [](Scene& s) { s.UserFilters(u"E"); }},
    {"the user resets", true, [](Scene& s) { s.UserPresses(&frmFilter::cmdReset); }},
    {"the user hides a filter", true, [](Scene& s) { s.UserPresses(&frmFilter::cmdHideFilter); }},
    {"a text is applied", false, [](Scene& s) { s.Banner().ApplyFilter(u"Name..11==Elm2==*?"); }},
    {"a text is applied on top", true,
     [](Scene& s) { s.Banner().ApplyFilter(u"Name..11==Elm2==*?"); }},
    {"a number text is applied, with a message", false,
     [](Scene& s) { s.Banner().ApplyFilter(u"Qty..21==2==*?"); }},
    {"a bad text is applied", false, [](Scene& s) { s.Banner().ApplyFilter(u"Nobody..11==*?"); }},
    {"a modeless dialog is used", true,
     [](Scene& s) {
       s.Banner().ShowFilter(false);
       s.Filter(u"E");
     }},
    {"rows are added", false, [](Scene& s) { s.Insert("Oak"); }},
    {"rows are added to a filter", true,
     [](Scene& s) {
       s.Insert("Oak");
       s.Insert("Elm");
       s.Tick();
     }},
    {"rows are added and the dialog shown", true,
     [](Scene& s) {
       s.Insert("Elm");
       s.UserPresses(&frmFilter::cmdHideFilter);
     }},
    {"a row goes", false, [](Scene& s) { s.Delete(2); }},
    {"a row goes from a filter", true, [](Scene& s) { s.Delete(2); }},
    {"the list is cleared", false, [](Scene& s) { s.Clear(); }},
    {"the list is cleared under a filter", true, [](Scene& s) { s.Clear(); }},
    {"a list is attached again", true,
     [](Scene& s) {
       s.Banner().SetListview(nullptr);
       s.Attach();
     }},
    {"the control is set active", false,
     [](Scene& s) {
       s.Banner().SetBannerButtonVisible(true);
       s.Banner().SetActive(true);
     }},
    {"the extra button is pressed", true,
     [](Scene& s) { s.Banner().cmdExtraButton.SetValue(true); }},
    {"the filter is given up", true, [](Scene& s) { s.Banner().DeactivateFilter(); }},
    {"a column is added to a filter", true, [](Scene& s) { s.AddColumn(); }},
};

// What the host does in the middle of it.
struct Interference {
  const char* name;
  void (*play)(Scene&);
};

const Interference kInterferences[] = {
    {"nothing", [](Scene&) {}},
    {"detach", [](Scene& s) { s.Banner().SetListview(nullptr); }},
    {"detach and attach",
     [](Scene& s) {
       s.Banner().SetListview(nullptr);
       s.Attach();
     }},
    {"attach another", [](Scene& s) { s.AttachAnother(); }},
    {"release", [](Scene& s) { s.Banner().ReleaseListview(); }},
    {"terminate", [](Scene& s) { s.Banner().Terminate(); }},
    {"insert",
     [](Scene& s) {
       s.Insert("Oak");
       s.Insert("Elm");
     }},
    {"delete", [](Scene& s) { s.Delete(1); }},
    {"delete and insert",
     [](Scene& s) {
       s.Delete(1);
       s.Insert("Elm");
     }},
    {"clear", [](Scene& s) { s.Clear(); }},
    {"add a column", [](Scene& s) { s.AddColumn(); }},
    {"show modally", [](Scene& s) { s.UserPresses(&frmFilter::cmdHideFilter); }},
    {"filter", [](Scene& s) { s.UserFilters(u"h"); }},
    {"reset", [](Scene& s) { s.UserPresses(&frmFilter::cmdReset); }},
    {"show modeless", [](Scene& s) { s.Banner().ShowFilter(false); }},
    {"apply a text", [](Scene& s) { s.Banner().ApplyFilter(u"Name..11==Oak2==*?"); }},
    {"apply a bad text", [](Scene& s) { s.Banner().ApplyFilter(u"Name"); }},
    {"deactivate", [](Scene& s) { s.Banner().DeactivateFilter(); }},
    {"set active", [](Scene& s) { s.Banner().SetActive(true); }},
    {"set inactive", [](Scene& s) { s.Banner().SetActive(false); }},
    {"tick", [](Scene& s) { s.Tick(); }},
    {"insert and tick",
     [](Scene& s) {
       s.Insert("Elm");
       s.Tick();
     }},
};

class Case {
 public:
  Case(const Step& step, const Interference& interference, Make make, int moment)
      : step_(step), interference_(interference), scene_(make), moment_(moment) {}

  // False when there is no such moment.
  bool Play() {
    if (step_.filtered) scene_.UserFilters(u"Oak");
    scene_.Interfere(moment_, [this] { Interfere(); });
    try {
      step_.play(scene_);
    } catch (const std::exception& error) {
      Fail(std::string("an error came out: ") + error.what());
    }
    scene_.LeaveAlone();
    if (scene_.Reached().empty()) return false;
    if (!Is("terminate")) Finish();
    return true;
  }

 private:
  bool Is(const char* name) const { return std::string(interference_.name) == name; }

  // The one error that a host has to reckon with.
  void Interfere() {
    try {
      interference_.play(scene_);
    } catch (const RuntimeError& error) {
      if (error.Number() != static_cast<std::int32_t>(ErrorNumber::kFormAlreadyDisplayed))
        Fail("error " + std::to_string(error.Number()) + " came out of " + interference_.name);
    }
  }

  // The user resets whatever is in force: all rows are there. Then a plain filter and a reset do
  // what they always do.
  void Finish() {
    TSLvwBannerFilter& banner = scene_.Banner();
    const bool givenUp = !banner.Active() && scene_.Dialog().blnFilterActive;
    scene_.Attach();
    if (banner.Active() || scene_.List().ListItems()->Count() > 0)
      scene_.UserPresses(&frmFilter::cmdReset);
    ExpectRows(givenUp || MayGiveUp());
    scene_.Insert("Oak");
    const std::size_t all = scene_.Shown().size();
    scene_.UserFilters(u"Oak");
    const std::size_t oaks = scene_.Shown().size();
    ExpectCaption(oaks, all);
    if (!banner.Active()) Fail("no filter can be put in force any more");
    scene_.UserPresses(&frmFilter::cmdReset);
    ExpectCaption(all, all);
    if (scene_.Dialog().Visible()) Fail("the dialog is still there");
    if (banner.Active() || scene_.Shown().size() != all) Fail("a filter can't be reset any more");
  }

  // Hidden rows are given up with the filter.
  bool MayGiveUp() const {
    if (IsStale() || scene_.AnotherShown()) return true;
    return Is("deactivate") || Is("set inactive") || Is("add a column") ||
           std::string(step_.name) == "the filter is given up" ||
           std::string(step_.name) == "a column is added to a filter";
  }

  // A notice tells the position of the row that is going. When another row goes before the banner
  // has looked, a third one stands there.
  bool IsStale() const {
    return std::string(step_.name) == "a row goes from a filter" && Is("delete") &&
           scene_.Reached() != "notice, after the banner";
  }

  void ExpectRows(bool mayLack) {
    std::vector<std::string> shown = scene_.Shown();
    std::sort(shown.begin(), shown.end());
    if (std::adjacent_find(shown.begin(), shown.end()) != shown.end()) Fail("a row is there twice");
    for (const std::string& row : shown)
      if (!scene_.Known().contains(row)) Fail("a row that isn't the host's: " + row);
    for (const auto& [row, needed] : scene_.Known())
      if (needed && !mayLack && !std::binary_search(shown.begin(), shown.end(), row))
        Fail(row + " is gone");
  }

  void ExpectCaption(std::size_t shown, std::size_t all) {
    const Text expected =
        CountCaption(static_cast<std::int32_t>(shown), static_cast<std::int32_t>(all), u"Items");
    const Text caption = scene_.Banner().lblDisplaying.Caption();
    if (caption != expected) Fail(caption.ToUtf8() + " instead of " + expected.ToUtf8());
  }

  void Fail(const std::string& what) {
    ADD_FAILURE() << step_.name << ", moment " << moment_ << " (" << scene_.Reached()
                  << "): " << interference_.name << ": " << what;
  }

  const Step& step_;
  const Interference& interference_;
  Scene scene_;
  const int moment_;
};

class BannerReentrancy : public testing::TestWithParam<std::size_t> {};

TEST_P(BannerReentrancy, AHostMayDoAnythingInAnyMoment) {
  const Step& step = kSteps[GetParam()];
  int moments = 0;
  for (const Make make : {Make::kOwn, Make::kForeign})
    for (const Interference& interference : kInterferences)
      for (int moment = 1; Case(step, interference, make, moment).Play(); ++moment) ++moments;
  EXPECT_GT(moments, 0) << step.name;
}

std::string NameOfStep(const testing::TestParamInfo<std::size_t>& info) {
  std::string name = kSteps[info.param].name;
  std::erase(name, ',');
  std::replace(name.begin(), name.end(), ' ', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Steps, BannerReentrancy, testing::Range(std::size_t{0}, std::size(kSteps)),
                         NameOfStep);

}  // namespace

}  // namespace sifter
