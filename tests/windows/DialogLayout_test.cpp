#include "DialogOnScreen.h"
#include "Picture.h"
#include "WindowFacts.h"

namespace sifter {

namespace {

bool IsOverlay(const Control& control) {
  return control.Container() != nullptr && control.Container()->Kind() == ControlKind::kDatePicker;
}

class DialogLayout : public DialogOnScreen {
 protected:
  // So many columns, of texts, numbers and dates in turn.
  void PrepareColumns(int count) {
    std::vector<std::string> captions;
    std::vector<std::string> row;
    for (int i = 0; i < count; ++i) {
      captions.push_back("Column " + std::to_string(i + 1));
      row.emplace_back(i % 3 == 0 ? "Oak" : i % 3 == 1 ? "3" : "1/5/2007");
    }
    Prepare(captions, {row});
  }

  // Every row takes the operator that shows most.
  void ShowEveryField() {
    for (std::int32_t i = 0; i < dialog.ColumnCount(); ++i)
      dialog.cboOperator[i].SetText(i % 3 == 0 ? u"contains" : u"is between");
    for (std::int32_t i = 0; i < dialog.ColumnCount(); ++i) dialog.cboOperator[i].Click();
    dialog.cmdReport.SetCaption(u"E&xtra");
    dialog.cmdReport.SetVisible(true);
  }

  std::vector<Control*> ShownControls() const {
    std::vector<Control*> shown;
    for (Control* control : dialog.Controls())
      if (IsWindowVisible(WindowOf(*control))) shown.push_back(control);
    return shown;
  }

  Box BoxOfControl(const Control& control) const {
    return BoxOf(WithinClient(WindowOf(control), Window()));
  }

  void ExpectTheMeasuresOfTheForm(int dpi) const {
    EXPECT_EQ(BoxOf(ClientOf(Window())),
              (Box{0, 0, PixelsOf(dialog.Width(), dpi), PixelsOf(dialog.Height(), dpi)}));
    for (Control* control : dialog.Controls()) {
      if (IsOverlay(*control)) continue;
      double left = control->Left();
      double top = control->Top();
      if (control->Container() == &dialog.Frame1) {
        left += dialog.Frame1.Left();
        top += dialog.Frame1.Top();
      }
      EXPECT_EQ(BoxOfControl(*control),
                (Box{PixelsOf(left, dpi), PixelsOf(top, dpi), PixelsOf(control->Width(), dpi),
                     PixelsOf(control->Height(), dpi)}))
          << NameOf(*control);
    }
  }

  void ExpectRowsUnderEachOther(int dpi) const {
    const LONG first = BoxOfControl(dialog.lblColumnHeaderText[0])[1];
    for (std::int32_t i = 0; i < dialog.ColumnCount(); ++i) {
      const auto top = [&](const Control& control) { return BoxOfControl(control)[1] - first; };
      // Each row to the nearest pixel from the top of the form, not from the row above.
      EXPECT_NEAR(top(dialog.lblColumnHeaderText[i]), i * 400.0 * dpi / 1440, 1) << i;
      const std::vector<LONG> tops = {top(dialog.cboOperator[i]), top(dialog.cboCriteria[i]),
                                      top(dialog.dtpFrom[i]), top(dialog.dtpTo[i]),
                                      top(dialog.lblAnd[i])};
      EXPECT_EQ(tops, std::vector<LONG>(5, top(dialog.lblColumnHeaderText[i]))) << i;
    }
  }

  void ExpectButtonsInOneLineUnderTheRows() const {
    const LONG top = BoxOfControl(dialog.chkCaseSensitive)[1];
    EXPECT_GE(top, WithinClient(WindowOf(dialog.Frame1), Window()).bottom);
    LONG right = 0;
    for (const Control* button :
         std::vector<const Control*>{&dialog.chkCaseSensitive, &dialog.cmdApply, &dialog.cmdReset,
                                     &dialog.cmdHideFilter, &dialog.cmdReport}) {
      const RECT box = WithinClient(WindowOf(*button), Window());
      EXPECT_EQ(box.top, top) << NameOf(*button);
      EXPECT_GT(box.left, right) << NameOf(*button);
      right = box.right;
    }
  }

  void ExpectNothingOverlapping() const {
    const std::vector<Control*> shown = ShownControls();
    // The prompt and the frame, eight controls for a third of the rows and less for the others.
    ASSERT_GT(shown.size(), static_cast<std::size_t>(3 * dialog.ColumnCount()));
    for (std::size_t a = 0; a < shown.size(); ++a) {
      const RECT box = WithinClient(WindowOf(*shown[a]), Window());
      EXPECT_TRUE(Contains(ClientOf(Window()), box)) << NameOf(*shown[a]);
      const RECT frame = WithinClient(WindowOf(dialog.Frame1), Window());
      if (shown[a]->Container() == &dialog.Frame1) {
        EXPECT_TRUE(Contains(frame, box)) << NameOf(*shown[a]);
      }
      for (std::size_t b = a + 1; b < shown.size(); ++b) {
        const bool one = shown[b]->Container() == shown[a] || shown[a]->Container() == shown[b];
        if (one || IsOverlay(*shown[a]) || IsOverlay(*shown[b])) continue;
        EXPECT_FALSE(Overlap(box, WithinClient(WindowOf(*shown[b]), Window())))
            << NameOf(*shown[a]) << " and " << NameOf(*shown[b]);
      }
    }
  }

  // `room` is what the control leaves for its text.
  void ExpectFits(const Control& control, TextView text, LONG room) const {
    const SIZE size = ExtentIn(WindowOf(control), Wide(text));
    EXPECT_LE(size.cx, room) << NameOf(control) << ' ' << Text(text).ToUtf8();
    EXPECT_LE(size.cy, ClientOf(WindowOf(control)).bottom) << NameOf(control);
  }

  void ExpectNothingClipped() const {
    const auto width = [this](const Control& control) { return ClientOf(WindowOf(control)).right; };
    const LONG edge = GetSystemMetrics(SM_CXEDGE);
    ExpectFits(dialog.lblCaption, dialog.lblCaption.Caption(), width(dialog.lblCaption));
    ExpectFits(dialog.chkCaseSensitive, dialog.chkCaseSensitive.Caption(),
               width(dialog.chkCaseSensitive) - GetSystemMetrics(SM_CXMENUCHECK) - 2 * edge);
    for (const CommandButton* button : {&dialog.cmdApply, &dialog.cmdReset, &dialog.cmdHideFilter})
      ExpectFits(*button, button->Caption(), width(*button) - 4 * edge);
    for (std::int32_t i = 0; i < dialog.ColumnCount(); ++i) {
      ExpectFits(dialog.lblColumnHeaderText[i], dialog.lblColumnHeaderText[i].Caption(),
                 width(dialog.lblColumnHeaderText[i]));
      ExpectFits(dialog.lblAnd[i], u"and", width(dialog.lblAnd[i]));
      for (const Text& word : dialog.cboOperator[i].Entries())
        ExpectFits(dialog.cboOperator[i], word,
                   width(dialog.cboOperator[i]) - GetSystemMetrics(SM_CXVSCROLL) - 4 * edge);
      if (i % 3 == 2)
        for (const TextBox* box : {&dialog.txtFrom[i], &dialog.txtTo[i]})
          ExpectFits(*box, u"12/30/2007", width(*box) - 2 * edge);
    }
  }

  void ExpectGoodLayout(int columns, int dpi) {
    ASSERT_EQ(ScreenDpi(), dpi);
    PrepareColumns(columns);
    Show([&] {
      ShowEveryField();
      user.Rests();
      ExpectTheMeasuresOfTheForm(dpi);
      ExpectRowsUnderEachOther(dpi);
      ExpectButtonsInOneLineUnderTheRows();
      ExpectNothingOverlapping();
      ExpectNothingClipped();
    });
  }
};

TEST_F(DialogLayout, FitsOneColumn) { ExpectGoodLayout(1, 96); }
TEST_F(DialogLayout, FitsFiveColumns) { ExpectGoodLayout(5, 96); }
TEST_F(DialogLayout, FitsTwentyColumns) { ExpectGoodLayout(20, 96); }
TEST_F(DialogLayout, FitsOneColumnAt144Dpi) { ExpectGoodLayout(1, 144); }
TEST_F(DialogLayout, FitsFiveColumnsAt144Dpi) { ExpectGoodLayout(5, 144); }
TEST_F(DialogLayout, FitsTwentyColumnsAt144Dpi) { ExpectGoodLayout(20, 144); }

TEST_F(DialogLayout, FollowsTheNumberOfRowsFromShowingToShowing) {
  for (const int columns : {5, 20, 1, 5}) ExpectGoodLayout(columns, 96);
}

TEST_F(DialogLayout, FollowsTheFormWhileItIsShown) {
  PrepareColumns(2);
  Show([&] {
    dialog.cmdApply.Move(3000, 1500, 2400, 450);
    dialog.SetHeight(6000);
    dialog.SetWidth(11000);
    ExpectTheMeasuresOfTheForm(96);
  });
}

// A host may read the list anew while the dialog stands open modeless.
TEST_F(DialogLayout, FollowsRowsThatAreBuiltWhileItIsShown) {
  PrepareColumns(2);
  Show([&] {
    PrepareColumns(12);
    user.Rests();
    ShowEveryField();
    ExpectTheMeasuresOfTheForm(96);
    ExpectNothingOverlapping();
  });
}

TEST_F(DialogLayout, WritesInTheFontOfMessages) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  const LOGFONTW& expected = metrics.lfMessageFont;
  PrepareColumns(3);
  Show([&] {
    for (Control* control : dialog.Controls()) {
      const auto font = reinterpret_cast<HFONT>(SendMessageW(WindowOf(*control), WM_GETFONT, 0, 0));
      LOGFONTW used{};
      ASSERT_NE(GetObjectW(font, sizeof used, &used), 0) << NameOf(*control);
      EXPECT_EQ(std::wstring(used.lfFaceName), expected.lfFaceName) << NameOf(*control);
      EXPECT_EQ(used.lfHeight, expected.lfHeight) << NameOf(*control);
      EXPECT_EQ(used.lfWeight, expected.lfWeight) << NameOf(*control);
    }
  });
}

TEST_F(DialogLayout, CarriesTheTitleAndThePromptThatItIsGiven) {
  PrepareColumns(1);
  dialog.SetCaption(u"Before");
  Show([&] {
    const auto texts = [&] {
      return std::vector<std::string>{TextOf(Window()), TextOf(WindowOf(dialog.lblCaption))};
    };
    const std::string prompt = "Please enter the criteria by which you wish to filter the listview";
    EXPECT_EQ(texts(), (std::vector<std::string>{"Before", prompt}));
    dialog.SetCaption(Text::FromUtf8("Während \U0001F50D"));
    dialog.lblCaption.SetCaption(u"You & I");
    EXPECT_EQ(texts(), (std::vector<std::string>{"Während \U0001F50D", "You & I"}));
    dialog.Hide();
    dialog.SetCaption(u"After");
    dialog.lblCaption.SetCaption(u"Again");
    EXPECT_EQ(texts(), (std::vector<std::string>{"After", "Again"}));
  });
}

TEST_F(DialogLayout, BreaksAPromptThatIsTooLongForOneLine) {
  PrepareColumns(1);
  const auto lastLine = [&] {
    user.Rests();
    const RECT area = ClientOf(WindowOf(dialog.lblCaption));
    return Pixels(WindowOf(dialog.lblCaption), {0, area.bottom / 2 + 1, area.right, area.bottom});
  };
  Show([&] {
    EXPECT_GE(ClientOf(WindowOf(dialog.lblCaption)).bottom,
              2 * ExtentIn(WindowOf(dialog.lblCaption), L"Ay").cy);
    dialog.lblCaption.SetCaption(u"A short prompt");
    const std::vector<COLORREF> empty = lastLine();
    dialog.lblCaption.SetCaption(
        u"A prompt that says so much about the criteria by which the list view can be filtered "
        u"that it takes a second line, or even more than that where the letters are large");
    EXPECT_NE(lastLine(), empty);
  });
}

TEST_F(DialogLayout, StaysWhereTheUserHasMovedItWhenItsTitleChanges) {
  PrepareColumns(2);
  Show([&] {
    SetWindowPos(Window(), nullptr, 40, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    const Box moved = BoxOf(OnScreen(Window()));
    dialog.SetCaption(u"Another title");
    EXPECT_EQ(BoxOf(OnScreen(Window())), moved);
  });
}

}  // namespace

}  // namespace sifter
