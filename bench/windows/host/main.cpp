#include "Component.h"
#include "host/HostTable.h"
#include "host/ListObject.h"
#include "host/PlainWindow.h"

#include <algorithm>
#include <commctrl.h>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

// An apply on a real list view, beside the bare cost of the same change of the same kind of window.
// bench_list_host [REPETITIONS [FILTER]]

namespace sifter::bench {

namespace {

struct Criterion {
  int column;  // from 0
  const wchar_t* operatorWord;
  const wchar_t* first;
  const wchar_t* second = L"";
};

struct Workload {
  const char* name;
  std::vector<Criterion> criteria;
  int boxes = 0;  // messages at each apply
};

const Workload kWorkloads[] = {
    {"contains", {{3, L"contains", L"oak"}}},
    {"three",
     {{0, L"contains", L"er"}, {5, L"is between", L"100", L"600"}, {8, L"is after", L"6/30/2008"}},
     1},  // a number range is never put into words, and the dialog says so each time
    {"half", {{4, L"is greater than", L"100"}}},
    {"none", {{3, L"contains", L"no such words"}}},
    {"all", {{3, L"does not contain", L"no such words"}}},
};

void Require(bool condition, const char* what) {
  if (!condition) throw std::runtime_error(what);
}

// The component with the criteria of one workload set.
class OpenedComponent {
 public:
  OpenedComponent(IDispatch* list, const Workload& workload, bool byMembers)
      : component_(OpenComponent(list, byMembers ? 1 : 0)) {
    Require(component_ != nullptr, "the component didn't take the list");
    for (const Criterion& one : workload.criteria)
      Require(SetCriterion(component_, one.column, one.operatorWord, one.first, one.second) != 0,
              "a column doesn't offer the operator");
  }
  ~OpenedComponent() { CloseComponent(component_); }
  OpenedComponent(const OpenedComponent&) = delete;
  OpenedComponent& operator=(const OpenedComponent&) = delete;

  Component* Get() const { return component_; }

 private:
  Component* component_;
};

// What the repetitions took.
struct Times {
  std::vector<double> wall;
  double processor = 0;  // all of them together

  template <class Work>
  void Add(Work work) {
    const double before = ThreadMilliseconds();
    wall.push_back(work());
    processor += ThreadMilliseconds() - before;
  }
};

double Least(const std::vector<double>& times) {
  return *std::min_element(times.begin(), times.end());
}

// A window for one list view: who watches a list watches its parent too.
class Form {
 public:
  Form()
      : window_(CreateWindowExW(0, Kind(), L"", WS_POPUP | WS_VISIBLE, 0, 0, 800, 600, nullptr,
                                nullptr, GetModuleHandleW(nullptr), nullptr)) {}
  ~Form() { DestroyWindow(window_); }
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  operator HWND() const { return window_; }

 private:
  static const wchar_t* Kind() {
    static const wchar_t* const name = [] {
      INITCOMMONCONTROLSEX classes{sizeof classes, ICC_LISTVIEW_CLASSES};
      InitCommonControlsEx(&classes);
      WNDCLASSW kind{};
      kind.lpfnWndProc = DefWindowProcW;
      kind.hInstance = GetModuleHandleW(nullptr);
      kind.lpszClassName = L"FormOfABenchmark";
      RegisterClassW(&kind);
      return L"FormOfABenchmark";
    }();
    return name;
  }

  HWND window_;
};

// All three take turns, so that whatever else the machine does falls on all of them alike.
void MeasureApply(const HostTable& table, const Workload& workload, int repetitions) {
  const Form forms[3];
  const ListObject list(forms[0], table);
  const double opening = Milliseconds();
  const OpenedComponent component(list.Object(), workload, false);
  const double opened = Milliseconds() - opening;
  const double first = Apply(component.Get());
  const std::vector<std::int32_t> failing = list.MissingRows(table.rows.size());
  PlainWindow stored(forms[1], table, TextsBy::kMessages);
  PlainWindow asked(forms[2], table, TextsBy::kCallbacks);
  Times ours, byMessages, byCallbacks;
  for (int i = 0; i < repetitions; ++i) {
    Refill(component.Get());
    ours.Add([&] { return Apply(component.Get()); });
    stored.Refill();
    byMessages.Add([&] { return stored.Apply(failing); });
    asked.Refill();
    byCallbacks.Add([&] { return asked.Apply(failing); });
  }
  const auto left = static_cast<LRESULT>(table.rows.size() - failing.size());
  for (const HWND window : {list.Window(), stored.Handle(), asked.Handle()})
    Require(SendMessageW(window, LVM_GETITEMCOUNT, 0, 0) == left, "a window has other rows left");
  Require(BoxCount(component.Get()) == workload.boxes * (repetitions + 1),
          "there was a message box");
  std::printf("| %zu | %s | %zu | %.1f | %.1f | %.1f | %.2f | %.2f | %.2f | %.2f | %.1f | %.1f |\n",
              table.rows.size(), workload.name, static_cast<std::size_t>(left), Least(ours.wall),
              Least(byMessages.wall), Least(byCallbacks.wall),
              Least(ours.wall) / Least(byMessages.wall), Least(ours.wall) / Least(byCallbacks.wall),
              ours.processor / byMessages.processor, ours.processor / byCallbacks.processor, opened,
              first);
}

// How often an apply calls a list that has nothing but its members.
std::uint64_t CallsOfApply(const HostTable& table, const Workload& workload,
                           std::uint64_t& nameQuestions) {
  const Form form;
  const ListObject list(form, table);
  std::uint64_t calls = 0;
  IDispatch* counted = CountCalls(list.Object(), calls, nameQuestions);
  {
    const OpenedComponent component(counted, workload, true);
    calls = 0;
    Apply(component.Get());
  }
  counted->Release();
  return calls;
}

// The list as one of a foreign make, reached by its members alone, beside the same list with its
// rows transferred: what the calls cost is the difference.
void MeasureMembers(const HostTable& table, const Workload& workload, int repetitions) {
  std::uint64_t nameQuestions = 0;
  const std::uint64_t calls = CallsOfApply(table, workload, nameQuestions);
  const Form forms[2];
  const ListObject list(forms[0], table);
  const OpenedComponent byMembers(list.Object(), workload, true);
  const ListObject other(forms[1], table);
  const OpenedComponent byTransfer(other.Object(), workload, false);
  std::vector<double> times, transferTimes;
  for (int i = 0; i < repetitions; ++i) {
    Refill(byMembers.Get());
    times.push_back(Apply(byMembers.Get()));
    Refill(byTransfer.Get());
    transferTimes.push_back(Apply(byTransfer.Get()));
  }
  Require(list.MissingRows(table.rows.size()) == other.MissingRows(table.rows.size()),
          "the two ways leave other rows");
  const auto rows = static_cast<double>(table.rows.size());
  const auto callCount = static_cast<double>(calls);
  std::printf("| %zu | %s | %.1f | %.1f | %.1f | %.2f | %.2f | %llu |\n", table.rows.size(),
              workload.name, Least(times), Least(transferTimes), callCount / rows,
              1000 * Least(times) / callCount,
              1000 * (Least(times) - Least(transferTimes)) / callCount,
              static_cast<unsigned long long>(nameQuestions));
}

struct Wanted {
  int repetitions = 9;
  std::string workload;  // "" for all
};

void Measure(const Wanted& wanted) {
  std::puts(
      "| rows | filter | kept | ours (ms) | texts set (ms) | texts asked for (ms) "
      "| ours / set | ours / asked | processor: ours / set | ours / asked | opening (ms) "
      "| first apply (ms) |\n"
      "|---|---|---|---|---|---|---|---|---|---|---|---|");
  for (const std::size_t rows : {std::size_t{10000}, std::size_t{32767}}) {
    const HostTable table = MakeHostTable(rows);
    for (const Workload& workload : kWorkloads)
      if (wanted.workload.empty() || wanted.workload == workload.name)
        MeasureApply(table, workload, wanted.repetitions);
  }
  if (!wanted.workload.empty()) return;
  std::puts(
      "\n| rows | filter | by members (ms) | by transfer (ms) | calls a row "
      "| us a call, all in all | us a call, beyond the window | names asked for |\n"
      "|---|---|---|---|---|---|---|---|");
  for (const std::size_t rows : {std::size_t{1000}, std::size_t{10000}})
    MeasureMembers(MakeHostTable(rows), kWorkloads[1], std::max(1, wanted.repetitions / 3));
}

}  // namespace

}  // namespace sifter::bench

int main(int count, char** arguments) {
  setvbuf(stdout, nullptr, _IONBF, 0);
  try {
    sifter::bench::Wanted wanted;
    if (count > 1) wanted.repetitions = std::max(1, std::atoi(arguments[1]));
    if (count > 2) wanted.workload = arguments[2];
    sifter::bench::Measure(wanted);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "bench_list_host: %s\n", error.what());
    return 1;
  }
}
