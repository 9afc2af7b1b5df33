#pragma once

#include "Bag.h"
#include "HostedSifter.h"

#include <ocidl.h>
#include <olectl.h>

namespace sifter {

// What a form that is saved keeps of its control, in each of the containers' ways.
class SavedForm : public ComTest {
 protected:
  explicit SavedForm(const std::wstring& type = kSifter) : control(Create(type)) {
    container.site.recorded = {DISPID_AMBIENT_BACKCOLOR};
    container.Offers(DISPID_AMBIENT_BACKCOLOR, 0x123456);
    container.GiveSite(control);
    recorder.Clear();
  }

  HRESULT LoadFromBag() { return container.As<IPersistPropertyBag>()->Load(&bag, nullptr); }
  HRESULT SaveToBag(bool all) {
    return container.As<IPersistPropertyBag>()->Save(&bag, TRUE, all ? TRUE : FALSE);
  }

  // A bag with a value of its own for everything that is read.
  void FillBag() {
    bag.Holds(L"Active", true);
    bag.Holds(L"ColumnsToExlude", u"Name");
    bag.Holds(L"Filter", u"Qty > 5");
    bag.Holds(L"FilterCaption", u"Trees");
    bag.Holds(L"FilterMessage", u"Which trees?");
  }

  static ComRef<IStream> NewStream() {
    ComRef<IStream> stream;
    EXPECT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, stream.Receive()), S_OK);
    return stream;
  }
  static ComRef<IStorage> NewStorage() {
    ComRef<IStorage> storage;
    EXPECT_EQ(
        StgCreateDocfile(nullptr,
                         STGM_READWRITE | STGM_SHARE_EXCLUSIVE | STGM_CREATE | STGM_DELETEONRELEASE,
                         0, storage.Receive()),
        S_OK);
    return storage;
  }
  static void Rewind(const ComRef<IStream>& stream) { stream->Seek({}, STREAM_SEEK_SET, nullptr); }
  static ULONGLONG SizeOf(const ComRef<IStream>& stream) {
    STATSTG state{};
    stream->Stat(&state, STATFLAG_NONAME);
    return state.cbSize.QuadPart;
  }

  Recorder recorder;
  ListViewOnAForm form;
  Bag bag{recorder};
  Container container{form.Parent(), recorder};
  ComRef<IDispatch> control;
};

inline Strings LoadedFields() {
  return {"True", "\"Name\"", "\"Qty > 5\"", "\"Trees\"", "\"Which trees?\""};
}

// What is saved as columns to exclude is looked for under another name.
inline Strings SavedAndLoadedFields() {
  return {"True", "\"\"", "\"Qty > 5\"", "\"Trees\"", "\"Which trees?\""};
}

}  // namespace sifter
