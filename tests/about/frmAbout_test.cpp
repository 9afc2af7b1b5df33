#include "about/frmAbout.h"

#include "support/Errors.h"
#include "support/HeadlessFormHost.h"
#include "support/Recorder.h"
#include "support/VersionInfoFake.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

class AboutTest : public testing::Test {
 protected:
  Recorder recorder;
  HeadlessFormHost host{recorder};
  VersionInfoFake version;
  std::optional<frmAbout> form{std::in_place, AboutServices{host, version}};

  Strings Labels() const {
    return {form->Label1.Caption().ToUtf8(), form->Label2.Caption().ToUtf8(),
            form->Label3.Caption().ToUtf8()};
  }

  // The labels as the user sees them before pressing OK.
  Strings LabelsWhileShown() {
    Strings seen;
    host.During([&] {
      seen = Labels();
      form->cmdOK.SetValue(true);
    });
    form->Show(ShowMode::kModal);
    return seen;
  }
};

struct DesignedControl {
  std::string name;
  ControlKind kind;

  friend bool operator==(const DesignedControl&, const DesignedControl&) = default;
};

void PrintTo(const DesignedControl& control, std::ostream* out) {
  *out << control.name << " of kind " << static_cast<int>(control.kind);
}

TEST_F(AboutTest, IsDesignedWithATitleAndSixControls) {
  std::vector<DesignedControl> designed;
  for (const Control* control : form->Controls())
    designed.push_back({NameOf(*control), control->Kind()});
  const std::vector<DesignedControl> expected = {
      {"imgIcon", ControlKind::kImage}, {"Label1", ControlKind::kLabel},
      {"Label2", ControlKind::kLabel},  {"Label3", ControlKind::kLabel},
      {"Line1", ControlKind::kLine},    {"cmdOK", ControlKind::kCommandButton},
  };
  EXPECT_EQ(designed, expected);
  EXPECT_EQ(form->Caption(), u"About PlinthControls2");
  EXPECT_EQ(form->cmdOK.Caption(), u"OK");
  EXPECT_FALSE(form->imgIcon.Picture().IsEmpty());
}

TEST_F(AboutTest, LabelsHoldPlaceholdersUntilItLoads) {
  EXPECT_EQ(Labels(), (Strings{"<Description>", "<Version>", "<Copyright>"}));
}

TEST_F(AboutTest, LoadingFillsTheLabelsFromTheVersionInformation) {
  EXPECT_EQ(LabelsWhileShown(), (Strings{"Tarvenn Software Row Sifter", "Version 1.00",
                                         "Copyright \u00A9 Tarvenn Software"}));
}

TEST_F(AboutTest, ShowsWhatTheLibrarySaysAtTheMomentOfEachShowing) {
  LabelsWhileShown();
  version.description = u"d";
  version.majorVersion = 2;
  version.minorVersion = 7;
  version.copyright = u"";
  EXPECT_EQ(LabelsWhileShown(), (Strings{"d", "Version 2.07", ""}));
}

TEST_F(AboutTest, OkEndsTheShowing) {
  host.During([&] {
    recorder.Line("press OK");
    form->cmdOK.SetValue(true);
  });
  form->Show(ShowMode::kModal);
  form.reset();
  EXPECT_TRUE(recorder.Shows({
      "show modal \"About PlinthControls2\"",
      "press OK",
      "hide",
      "modal showing ends",
      "unload with 6 controls",
  }));
}

TEST_F(AboutTest, AModalShowingInsideAnotherIsAnErrorAndChangesNothing) {
  std::string error;
  Strings labels;
  host.During([&] {
    version.description = u"changed";
    error = ErrorOf([&] { form->Show(ShowMode::kModal); });
    labels = Labels();
    form->cmdOK.SetValue(true);
  });
  form->Show(ShowMode::kModal);
  EXPECT_EQ(error, "400: Form already displayed; can't show modally");
  EXPECT_EQ(labels[0], "Tarvenn Software Row Sifter");
}

TEST_F(AboutTest, NothingIsClippedOrOverlaps) {
  const std::vector<Control*>& controls = form->Controls();
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const Control& a = *controls[i];
    EXPECT_GT(a.Width(), 0) << NameOf(a);
    EXPECT_GT(a.Height(), 0) << NameOf(a);
    EXPECT_GE(a.Left(), 0) << NameOf(a);
    EXPECT_GE(a.Top(), 0) << NameOf(a);
    EXPECT_LE(a.Left() + a.Width(), form->Width()) << NameOf(a);
    EXPECT_LE(a.Top() + a.Height(), form->Height()) << NameOf(a);
    for (std::size_t j = i + 1; j < controls.size(); ++j) {
      const Control& b = *controls[j];
      const bool apart = a.Left() + a.Width() <= b.Left() || b.Left() + b.Width() <= a.Left() ||
                         a.Top() + a.Height() <= b.Top() || b.Top() + b.Height() <= a.Top();
      EXPECT_TRUE(apart) << NameOf(a) << " and " << NameOf(b);
    }
  }
}

struct VersionCase {
  std::uint16_t majorVersion;
  std::uint16_t minorVersion;
  const char16_t* line;
};

constexpr VersionCase kVersionCases[] = {
    {1, 0, u"Version 1.00"},  {1, 6, u"Version 1.06"},    {1, 9, u"Version 1.09"},
    {1, 10, u"Version 1.10"}, {1, 99, u"Version 1.99"},   {1, 123, u"Version 1.123"},
    {0, 0, u"Version 0.00"},  {12, 34, u"Version 12.34"}, {65535, 65535, u"Version 65535.65535"},
};

TEST(VersionLine, ShowsTheMinorVersionWithTwoDigitsAtLeast) {
  for (const VersionCase& c : kVersionCases)
    EXPECT_EQ(VersionLine(c.majorVersion, c.minorVersion), c.line);
}

}  // namespace

}  // namespace sifter
