#include "AllocationSpy.h"
#include "DialogOnScreen.h"
#include "win32/ComRef.h"
#include "win32/LateBoundList.h"

#include <rowsifter/ListViewObject.h>

#include <ostream>

namespace sifter {

namespace {

// What a showing must leave as it was.
struct Counts {
  int windows = 0;
  int gdiObjects = 0;
  int allocations = 0;  // of the platform's task allocator: texts and what COM objects hand out
  int references = 0;   // to the host's list

  bool operator==(const Counts&) const = default;
};

void PrintTo(const Counts& counts, std::ostream* out) {
  *out << counts.windows << " windows, " << counts.gdiObjects << " GDI objects, "
       << counts.allocations << " allocations, " << counts.references
       << " references to the host's list";
}

int CountWindows() {
  int count = 0;
  const auto add = [](HWND, LPARAM sum) CALLBACK -> BOOL {
    ++*reinterpret_cast<int*>(sum);
    return TRUE;
  };
  struct Tops {
    std::vector<HWND> windows;
  } tops;
  const auto top = [](HWND window, LPARAM into) CALLBACK -> BOOL {
    reinterpret_cast<Tops*>(into)->windows.push_back(window);
    return TRUE;
  };
  EnumThreadWindows(GetCurrentThreadId(), top, reinterpret_cast<LPARAM>(&tops));
  for (const HWND window : tops.windows) {
    ++count;
    EnumChildWindows(window, add, reinterpret_cast<LPARAM>(&count));
  }
  return count;
}

// The system's own count is not to be had everywhere.
int CountGdiObjects() {
  int count = 0;
  for (ULONG_PTR handle = 1; handle < 0x10000; ++handle)
    if (GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0) ++count;
  return count;
}

ComRef<IDispatch> ObjectOf(HWND listView) {
  ComRef<IDispatch> object;
  EXPECT_EQ(CreateListViewObject(listView, object.Receive()), S_OK);
  return object;
}

// The host's list is reached as a program's own object is, call by call.
class DialogLeaks : public DialogOnScreen {
 protected:
  Counts Count(const AllocationSpy& spy) const {
    return {CountWindows(), CountGdiObjects(), spy.Alive(), References()};
  }

  // The host's list with columns of these types, "t", "n" and "d".
  void ChangeList(const std::string& types) {
    std::vector<std::string> columns;
    TextRows rows(4);
    for (const char type : types) {
      columns.push_back(std::string("Column ") + type + std::to_string(columns.size()));
      for (std::size_t row = 0; row < rows.size(); ++row)
        rows[row].push_back(type == 't'   ? "Oak " + std::to_string(row)
                            : type == 'n' ? std::to_string(row)
                                          : "1/" + std::to_string(row + 1) + "/2007");
    }
    Prepare(columns, rows);
    dialog.UsersListview = hostList_;
  }

  // One round of a user's: filter, change, reset.
  void FilterAndReset() {
    Show([&] {
      for (std::int32_t i = 0; i < dialog.ColumnCount(); ++i) {
        dialog.cboOperator[i].SetListIndex(2);
        dialog.cboCriteria[i].SetText(u"Oak");
        if (dialog.lblColumnHeaderText[i].Tag() == u"1") dialog.txtFrom[i].SetText(u"1");
      }
      user.Rests();
      dialog.cmdApply.SetValue(true);
    });
    Show([&] {
      dialog.cboOperator[0].SetListIndex(0);
      user.Rests();
      dialog.cmdReset.SetValue(true);
    });
  }

  void Round() {
    for (const char* types : {"tnd", "dn", "nttd", "d"}) {
      ChangeList(types);
      FilterAndReset();
    }
    list->ListItems()->Clear();
    dialog.ListView1->ListItems()->Clear();
  }

  // How many hold the host's list, its rows and cells among them.
  int References() const {
    object_->AddRef();
    return static_cast<int>(object_->Release());
  }

  ComRef<IDispatch> object_ = ObjectOf(hostForm.List());
  Ref<HostListView> hostList_ = MakeRef<LateBoundList>(object_, LateBoundList::Transfer::kNever);
};

TEST_F(DialogLeaks, NothingIsLeftOfTwoHundredShowings) {
  ASSERT_TRUE(AllocationSpy::SeesBstrs());
  Round();
  Round();
  const AllocationSpy spy;
  Round();
  const Counts before = Count(spy);
  for (int round = 0; round < 25; ++round) Round();  // of eight showings
  EXPECT_EQ(Count(spy), before);
}

TEST_F(DialogLeaks, NothingIsLeftOfADialogThatHasEnded) {
  ChangeList("tnd");
  const auto live = [&] {
    frmFilter brief({host, prompts, conversions, clock});
    brief.UsersListview = hostList_;
    brief.SetUpForm();
    user.Does([&] {
      user.WaitsFor([&] { return brief.Visible() && host.WindowOf(brief) != nullptr; });
      brief.cboOperator[2].SetListIndex(2);
      user.Rests();
      brief.cmdApply.SetValue(true);
    });
    brief.Show(ShowMode::kModal);
    user.PumpUntilDone();
  };
  live();
  live();
  const AllocationSpy spy;
  live();
  const Counts before = Count(spy);
  for (int time = 0; time < 20; ++time) live();
  EXPECT_EQ(Count(spy), before);
}

}  // namespace

}  // namespace sifter
