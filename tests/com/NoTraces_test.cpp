#include "Bag.h"
#include "HostedSifter.h"
#include "Leftovers.h"

#include <map>

namespace sifter {

namespace {

// Everything under a key: each value by its path.
void ReadKey(HKEY parent, const std::wstring& name, const std::wstring& path,
             std::map<std::wstring, std::string>& values) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(parent, name.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return;
  values[path];
  std::vector<wchar_t> label(16'384);
  for (DWORD i = 0;; ++i) {
    DWORD length = static_cast<DWORD>(label.size());
    std::string data(65'536, '\0');
    DWORD size = static_cast<DWORD>(data.size());
    if (RegEnumValueW(key, i, label.data(), &length, nullptr, nullptr,
                      reinterpret_cast<BYTE*>(data.data()), &size) != ERROR_SUCCESS)
      break;
    values[path + L"\\" + label.data() + L"="] = data.substr(0, size);
  }
  for (DWORD i = 0;; ++i) {
    DWORD length = static_cast<DWORD>(label.size());
    if (RegEnumKeyExW(key, i, label.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS)
      break;
    ReadKey(key, label.data(), path + L"\\" + label.data(), values);
  }
  RegCloseKey(key);
}

std::map<std::wstring, std::string> Registry() {
  std::map<std::wstring, std::string> values;
  ReadKey(HKEY_CURRENT_USER, L"", L"user", values);
  ReadKey(HKEY_LOCAL_MACHINE, L"Software", L"machine", values);
  return values;
}

std::wstring Environment() {
  wchar_t* const block = GetEnvironmentStringsW();
  const wchar_t* end = block;
  while (*end != 0) end += wcslen(end) + 1;
  const std::wstring environment(static_cast<const wchar_t*>(block), end);
  FreeEnvironmentStringsW(block);
  return environment;
}

std::wstring Variable(const wchar_t* name) {
  wchar_t value[MAX_PATH] = L"";
  GetEnvironmentVariableW(name, value, MAX_PATH);
  return value;
}

// A folder of the test's own that is the current one and the one for temporary files: programs that
// run beside this one don't write there.
class OwnFolder {
 public:
  OwnFolder() : path_(Variable(L"TMP") + L"\\traces" + std::to_wstring(GetCurrentProcessId())) {
    GetCurrentDirectoryW(MAX_PATH, current_);
    EXPECT_TRUE(CreateDirectoryW(path_.c_str(), nullptr));
    Enter(path_, path_, path_);
  }
  ~OwnFolder() {
    Enter(current_, temporary_, temp_);
    EXPECT_TRUE(RemoveDirectoryW(path_.c_str())) << "it isn't empty";
  }
  OwnFolder(const OwnFolder&) = delete;
  OwnFolder& operator=(const OwnFolder&) = delete;

 private:
  static void Enter(const std::wstring& current, const std::wstring& temporary,
                    const std::wstring& temp) {
    SetCurrentDirectoryW(current.c_str());
    SetEnvironmentVariableW(L"TMP", temporary.c_str());
    SetEnvironmentVariableW(L"TEMP", temp.c_str());
  }

  const std::wstring temporary_ = Variable(L"TMP");
  const std::wstring temp_ = Variable(L"TEMP");
  std::wstring path_;
  wchar_t current_[MAX_PATH] = L"";
};

// The files of some folders.
std::vector<std::wstring> Files() {
  const std::wstring& component = Library::Built().Path();
  std::vector<std::wstring> files;
  for (const std::wstring& folder :
       {component.substr(0, component.find_last_of(L'\\')), Variable(L"USERPROFILE"),
        Variable(L"APPDATA"), Variable(L"LOCALAPPDATA"), Variable(L"WINDIR")}) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) continue;
    do files.push_back(folder + L"\\" + found.cFileName);
    while (FindNextFileW(search, &found));
    FindClose(search);
  }
  return files;
}

class Traces : public ComTest, public testing::WithParamInterface<const wchar_t*> {};

TEST_P(Traces, AWholeSessionLeavesNone) {
  const OwnFolder folder;
  const auto registry = Registry();
  const std::wstring environment = Environment();
  const std::vector<std::wstring> files = Files();
  const int windows = WindowsOfThisThread();
  ASSERT_GT(registry.size(), 1000u);
  {
    Recorder recorder;
    ListViewOnAForm form;
    const Ref<HostListView> rows = NativeListView(form.List());
    Fill(*rows, {"Name"}, {{"Oak"}, {"Ash"}});
    ComRef<IDispatch> list;
    ASSERT_EQ(CreateListViewObject(form.List(), list.Receive()), S_OK);
    Bag bag(recorder);
    Container container(form.Parent(), recorder);
    container.Place(Create(GetParam()));
    container.Activate();
    PutRef(container.Control(), L"Listview", ObjectValue(list.Get()));
    User user;
    CriteriaDialog dialog(user);
    user.Does([&] {
      dialog.Appears();
      dialog.FiltersByMessages(0, "contains", "a");
      dialog.Goes();
    });
    ShowModally(GetParam(), container.Control());
    user.PumpUntilDone();
    ASSERT_EQ(FirstTexts(*rows), (Strings{"Oak", "Ash"}));
    AddRow(*rows, {"Elm"});
    Call(container.Control(), L"ResetFilter");
    container.As<IPersistPropertyBag>()->Save(&bag, TRUE, TRUE);
    container.As<IPersistPropertyBag>()->Load(&bag, nullptr);
  }
  EXPECT_EQ(WindowsOfThisThread(), windows);
  EXPECT_TRUE(Registry() == registry);
  EXPECT_EQ(Environment(), environment);
  EXPECT_EQ(Files(), files);
}

INSTANTIATE_TEST_SUITE_P(OfBothControls, Traces, testing::Values(kSifter, kBanner), ControlName);

}  // namespace

}  // namespace sifter
