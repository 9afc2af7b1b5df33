#include "Container.h"

#include <gtest/gtest.h>

#include <olectl.h>

namespace sifter {

Container::Container(HWND window, Recorder& recorder)
    : frame(window, recorder), site(window, frame, recorder), window_(window) {
  Offers(DISPID_AMBIENT_USERMODE, true);
  Offers(DISPID_AMBIENT_UIDEAD, false);
}

Container::~Container() {
  if (control_) Remove();
}

void Container::Tells(DISPID ambient) {
  EXPECT_EQ(As<IOleControl>()->OnAmbientPropertyChange(ambient), S_OK);
}

void Container::GiveSite(const ComRef<IDispatch>& control) {
  control_ = control;
  ASSERT_EQ(As<IOleObject>()->SetClientSite(&site), S_OK);
}

void Container::Place(const ComRef<IDispatch>& control) {
  GiveSite(control);
  ASSERT_EQ(As<IPersistStreamInit>()->InitNew(), S_OK);
}

HRESULT Container::Do(LONG verb, MSG* message) {
  return As<IOleObject>()->DoVerb(verb, message, &site, 0, window_, &site.position);
}

void Container::Activate() {
  ASSERT_EQ(Do(OLEIVERB_INPLACEACTIVATE), S_OK);
  ASSERT_NE(ControlWindow(), nullptr);
}

HWND Container::ControlWindow() const {
  HWND window = nullptr;
  const auto inPlace = As<IOleInPlaceObject>();
  if (!inPlace || FAILED(inPlace->GetWindow(&window))) return nullptr;
  return window;
}

void Container::Remove() {
  EXPECT_EQ(As<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK);
  EXPECT_EQ(As<IOleObject>()->SetClientSite(nullptr), S_OK);
  control_.Reset();
}

}  // namespace sifter
