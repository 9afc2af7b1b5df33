#include "Component.h"

#include "base/Clock.h"
#include "filterdialog/frmFilter.h"
#include "forms/FormHost.h"
#include "forms/Prompts.h"
#include "win32/LateBoundList.h"
#include "win32/PlatformConversions.h"
#include "win32/WideText.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

namespace sifter {

namespace {

// The dialog stays in the dark, and its boxes are answered at once.
class NoScreen final : public FormHost, public Prompts {
 public:
  int boxes = 0;

  void ShowModal(Form&) override {}
  void ShowModeless(Form&) override {}
  void Hide(Form&) override {}
  void SetFocus(Form&, Control&) override {}
  void DeleteSystemMenuItem(std::int32_t) override {}
  void Unload(Form&) override {}
  void Show(const Text&, const Text&, PromptIcon) override { ++boxes; }
};

double Milliseconds() {
  LARGE_INTEGER frequency, counter;
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&counter);
  return 1000.0 * static_cast<double>(counter.QuadPart) / static_cast<double>(frequency.QuadPart);
}

}  // namespace

}  // namespace sifter

struct Component {
  explicit Component(sifter::Ref<sifter::HostListView> list)
      : dialog({screen, screen, conversions, clock}) {
    dialog.UsersListview = list;
    dialog.ListView1 = sifter::MakeRef<sifter::ListViewDump>();
    dialog.CopyListview(list, dialog.ListView1);
    dialog.SetUpForm();
  }

  sifter::NoScreen screen;
  sifter::SystemClock clock;
  sifter::PlatformConversions conversions{clock};
  sifter::frmFilter dialog;
};

Component* OpenComponent(IDispatch* list, int byMembers) {
  using sifter::LateBoundList;
  try {
    return new Component(sifter::MakeRef<LateBoundList>(
        sifter::ComRef<IDispatch>(list),
        byMembers != 0 ? LateBoundList::Transfer::kNever : LateBoundList::Transfer::kWhereOffered));
  } catch (...) {
    return nullptr;
  }
}

void CloseComponent(Component* component) { delete component; }

int SetCriterion(Component* component, int column, const wchar_t* operatorWord,
                 const wchar_t* first, const wchar_t* second) {
  sifter::frmFilter& dialog = component->dialog;
  sifter::ComboBox& box = dialog.cboOperator[column];
  const std::vector<sifter::Text>& words = box.Entries();
  const auto word = std::find(words.begin(), words.end(), sifter::FromWide(operatorWord));
  if (word == words.end()) return 0;
  box.SetListIndex(static_cast<std::int32_t>(word - words.begin()));
  const sifter::Text from = sifter::FromWide(first);
  const sifter::Text to = sifter::FromWide(second);
  dialog.cboCriteria[column].SetText(from);
  dialog.txtFrom[column].SetText(from);
  dialog.txtTo[column].SetText(to);
  if (const auto date = component->conversions.ToDate(from)) dialog.dtpFrom[column].SetValue(*date);
  return 1;
}

double Apply(Component* component) {
  const double before = sifter::Milliseconds();
  component->dialog.cmdApply.SetValue(true);
  return sifter::Milliseconds() - before;
}

void Refill(Component* component) {
  sifter::frmFilter& dialog = component->dialog;
  dialog.CopyListview(dialog.ListView1, dialog.UsersListview);
}

int BoxCount(const Component* component) { return component->screen.boxes; }
