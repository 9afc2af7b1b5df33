#include "HostedSifter.h"
#include "Process.h"

namespace sifter {

namespace {

// The manifests that are in force on this thread, for as long as the object lives.
class ActivationContext {
 public:
  explicit ActivationContext(const ACTCTXW& description) : context_(CreateActCtxW(&description)) {
    EXPECT_NE(context_, INVALID_HANDLE_VALUE) << "error " << GetLastError();
    EXPECT_TRUE(ActivateActCtx(context_, &cookie_));
  }
  ~ActivationContext() {
    DeactivateActCtx(0, cookie_);
    ReleaseActCtx(context_);
  }
  ActivationContext(const ActivationContext&) = delete;
  ActivationContext& operator=(const ActivationContext&) = delete;

 private:
  HANDLE context_;
  ULONG_PTR cookie_ = 0;
};

// Programs that bring the component with them: a manifest says where it is, and nothing is in the
// registry.
class RegistrationFree : public ComTest {
 protected:
  RegistrationFree() { EXPECT_EQ(Library::Built().Unregister(), S_OK); }

  static HRESULT LookUp() {
    CLSID id{};
    return CLSIDFromProgID(kProgId, &id);
  }

  static std::wstring Folder() {
    const std::wstring& path = Library::Built().Path();
    return path.substr(0, path.find_last_of(L'\\'));
  }

  // What a program does with the control, all of it through its registered identities.
  static void UseTheControl() {
    ComRef<IDispatch> control = Create();
    ASSERT_TRUE(control);
    EXPECT_EQ(FieldsOf(control), DefaultFields());
    Put(control, L"FilterCaption", u"Trees");
    EXPECT_EQ(Get(control, L"FilterCaption"), Value(u"Trees"));
    Recorder recorder;
    ListViewOnAForm form;
    Container container(form.Parent(), recorder);
    container.Place(control);
    container.Activate();
    const Ref<HostListView> rows = NativeListView(form.List());
    Fill(*rows, {"Name"}, {{"Oak"}, {"Ash"}});
    ComRef<IDispatch> list;
    ASSERT_EQ(CreateListViewObject(form.List(), list.Receive()), S_OK);
    PutRef(control, L"Listview", ObjectValue(list.Get()));
    User user;
    CriteriaDialog dialog(user);
    user.Does([&] {
      dialog.Appears();
      dialog.FiltersByMessages(0, "equals", "Ash");
      dialog.Goes();
    });
    Call(control, L"ShowFilter");
    user.PumpUntilDone();
    EXPECT_EQ(FirstTexts(*rows), (Strings{"Ash"}));
    control.Reset();
  }
};

TEST_F(RegistrationFree, WithoutAManifestThereIsNoControl) { EXPECT_NE(LookUp(), S_OK); }

TEST_F(RegistrationFree, TheComponentsManifestIsEnough) {
  const std::wstring manifest = Folder() + L"\\RowSifter.manifest";
  ACTCTXW description{};
  description.cbSize = sizeof description;
  description.lpSource = manifest.c_str();
  {
    const ActivationContext context(description);
    ASSERT_EQ(LookUp(), S_OK);
    UseTheControl();
  }
  EXPECT_NE(LookUp(), S_OK);
}

TEST_F(RegistrationFree, AProgramsManifestNamesTheComponentsAsAnAssembly) {
  const TemporaryFile manifest(L"program.manifest",
                               R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
  <assemblyIdentity type="win32" name="Program" version="1.0.0.0"/>
  <dependency>
    <dependentAssembly>
      <assemblyIdentity type="win32" name="RowSifter" version="1.0.0.6"/>
    </dependentAssembly>
  </dependency>
</assembly>
)");
  const std::wstring folder = Folder();
  ACTCTXW description{};
  description.cbSize = sizeof description;
  description.dwFlags = ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
  description.lpSource = manifest.Path().c_str();
  description.lpAssemblyDirectory = folder.c_str();
  const ActivationContext context(description);
  ASSERT_EQ(LookUp(), S_OK);
  UseTheControl();
}

}  // namespace

}  // namespace sifter
