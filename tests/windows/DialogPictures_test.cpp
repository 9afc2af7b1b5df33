#include "DialogOnScreen.h"
#include "Picture.h"
#include "WindowFacts.h"
#include "about/frmAbout.h"
#include "support/VersionInfoFake.h"

namespace sifter {

namespace {

// Pictures for people to look at. What they show is asserted on elsewhere.
class DialogPictures : public DialogOnScreen {
 protected:
  void PrepareTypes() {
    Prepare({"Name", "Quantity", "Shipped", "Due"}, {{"Oak", "3", "1/5/2007", "1/9/2007"},
                                                     {"Ash", "5", "2/5/2007", ""},
                                                     {"Elm", "7", "3/5/2007", "4/1/2007"}});
  }

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

  void Save(HWND window, const std::string& name) {
    user.Rests();
    SavePicture(window, ScreenDpi() == 96 ? name : name + "-" + std::to_string(ScreenDpi()));
  }

  void SaveEveryKindOfRow() {
    PrepareTypes();
    Show([&] {
      Save(Window(), "dialog-opened");
      PickOperator(0, u"contains");
      user.Types(u"a");
      PickOperator(1, u"is between");
      user.Types(u"3");
      user.Presses(VK_TAB);
      user.Types(u"6");
      PickOperator(2, u"is between");
      PickOperator(3, u"is after");
      GoTo(dialog.txtFrom[3]);
      user.Types(u"[Shipped]");
      Save(Window(), "dialog-filled");
    });
  }

  void SaveEverySize() {
    for (const int columns : {1, 5, 20}) {
      PrepareColumns(columns);
      dialog.cmdReport.SetCaption(u"E&xtra");
      dialog.cmdReport.SetVisible(true);
      Show([&] {
        for (std::int32_t i = 0; i < columns; ++i)
          dialog.cboOperator[i].SetListIndex(i % 3 == 0 ? 1 : i % 3 == 1 ? 3 : 5);
        Save(Window(), "dialog-" + std::to_string(columns) + "-columns");
      });
    }
    PrepareColumns(80);
    Show([&] {
      Save(Window(), "dialog-80-columns");
      user.TurnsWheel(MiddleOf(Window()), -10);
      Save(Window(), "dialog-80-columns-scrolled");
      dialog.SetFocus(dialog.cmdReset);
      Save(Window(), "dialog-80-columns-end");
    });
  }

  void SaveBoxes() {
    PrepareTypes();
    Show([&] {
      dialog.UsersListview = nullptr;
      user.Presses({VK_MENU, 'A'});
      const auto box = [&] {
        const HWND active = GetActiveWindow();
        return active != Window() && IsWindowVisible(active) ? active : nullptr;
      };
      user.WaitsFor([&] { return box() != nullptr; });
      Save(box(), "error-box");
      while (dialog.Visible()) user.Presses(VK_RETURN);
    });
    const VersionInfoFake version;
    frmAbout about({host, version});
    user.Does([&] {
      user.WaitsFor([&] { return about.Visible() && host.WindowOf(about)->IsShown(); });
      Save(host.WindowOf(about)->Handle(), "about-box");
      about.Hide();
    });
    about.Show(ShowMode::kModal);
    user.PumpUntilDone();
  }

  // What a host says, which may be more than fits into one line.
  void SaveALongPrompt() {
    PrepareTypes();
    dialog.lblCaption.SetCaption(
        u"Say which orders you want to see. A value may be the name of another column in square "
        u"brackets, and a row is shown when all of its columns fit what you have said here.");
    Show([&] { Save(Window(), "dialog-long-prompt"); });
  }
};

TEST_F(DialogPictures, OfEveryKindOfRow) { SaveEveryKindOfRow(); }
TEST_F(DialogPictures, OfEveryKindOfRowAt144Dpi) {
  ASSERT_EQ(ScreenDpi(), 144);
  SaveEveryKindOfRow();
}
TEST_F(DialogPictures, OfEverySize) { SaveEverySize(); }
TEST_F(DialogPictures, OfEverySizeAt144Dpi) { SaveEverySize(); }
TEST_F(DialogPictures, OfTheBoxes) { SaveBoxes(); }
TEST_F(DialogPictures, OfTheBoxesAt144Dpi) { SaveBoxes(); }
TEST_F(DialogPictures, OfALongPrompt) { SaveALongPrompt(); }

}  // namespace

}  // namespace sifter
