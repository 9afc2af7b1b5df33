#include "Library.h"

#include "win32/Errors.h"

#include <oleauto.h>
#include <vector>

namespace sifter {

namespace {

// The component is registered by the first test that needs it, whatever the tests before have done
// to the registry, and leaves with the last.
class Apartment final : public testing::Environment {
 public:
  void SetUp() override { ASSERT_EQ(OleInitialize(nullptr), S_OK); }
  void TearDown() override {
    EXPECT_EQ(Library::Built().Unregister(), S_OK);
    EXPECT_FALSE(Library::Built().IsRegistered());
    OleUninitialize();
  }
};

const testing::Environment* const apartment = testing::AddGlobalTestEnvironment(new Apartment);

std::wstring PathBesideThisProgram(const wchar_t* file) {
  std::vector<wchar_t> program(MAX_PATH * 4);
  GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
  const std::wstring path(program.data());
  return path.substr(0, path.find_last_of(L'\\') + 1) + file;
}

std::wstring DefaultValueOf(HKEY root, const std::wstring& key) {
  wchar_t value[MAX_PATH * 4] = L"";
  DWORD size = sizeof value;
  RegGetValueW(root, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, value, &size);
  return value;
}

}  // namespace

const Library& Library::Built() {
  static const Library library;
  return library;
}

Library::Library()
    : path_(PathBesideThisProgram(L"TSRowSifter.ocx")), module_(LoadLibraryW(path_.c_str())) {
  EXPECT_NE(module_, nullptr) << "error " << GetLastError();
  EXPECT_EQ(LoadTypeLibEx(path_.c_str(), REGKIND_NONE, types_.Receive()), S_OK);
}

HRESULT Library::Export(const char* name) const {
  using Function = HRESULT(STDAPICALLTYPE*)();
  const auto function =
      reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
  return function == nullptr ? E_NOTIMPL : function();
}

ComRef<ITypeInfo> Library::TypeOf(const wchar_t* name) const {
  std::wstring copy = name;
  ComRef<ITypeInfo> type;
  MEMBERID member = 0;
  USHORT found = 1;
  // A name is looked for among the members too.
  ITypeInfo* types[1] = {};
  types_->FindName(copy.data(), 0, types, &member, &found);
  if (found == 1 && member == MEMBERID_NIL) return ComRef<ITypeInfo>::Adopt(types[0]);
  if (types[0] != nullptr) types[0]->Release();
  return nullptr;
}

GUID Library::IdOf(const wchar_t* name) const {
  const ComRef<ITypeInfo> type = TypeOf(name);
  TYPEATTR* attributes = nullptr;
  if (!type || FAILED(type->GetTypeAttr(&attributes))) {
    ADD_FAILURE() << "the type library has no such name";
    return {};
  }
  const GUID id = attributes->guid;
  type->ReleaseTypeAttr(attributes);
  return id;
}

bool Library::IsRegistered() const {
  CLSID named{};
  if (FAILED(CLSIDFromProgID(kProgId, &named)) || named != IdOf(L"TSRowSifter")) return false;
  wchar_t classId[40];
  StringFromGUID2(IdOf(L"TSRowSifter"), classId, 40);
  const std::wstring server =
      DefaultValueOf(HKEY_CLASSES_ROOT, std::wstring(L"CLSID\\") + classId + L"\\InprocServer32");
  return CompareStringOrdinal(server.c_str(), -1, path_.c_str(), -1, TRUE) == CSTR_EQUAL;
}

ComTest::ComTest() {
  const Library& library = Library::Built();
  if (library.IsRegistered()) return;
  EXPECT_EQ(library.Register(), S_OK);
}

ComTest::~ComTest() {
  EXPECT_EQ(Library::Built().CanUnload(), S_OK) << "something of the component is still alive";
}

ComRef<IDispatch> ComTest::Create(const std::wstring& type) {
  CLSID id{};
  ThrowIfFailed(CLSIDFromProgID((L"RowSifter." + type).c_str(), &id));
  ComRef<IDispatch> control;
  ThrowIfFailed(
      CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, control.ReceiveVoid()));
  return control;
}

}  // namespace sifter
