#include "library/ContainerForms.h"

#include "library/ControlFrame.h"

namespace sifter {

ModalBlock::ModalBlock(ControlFrame& frame) : depth_(frame.ModalDepth()) {
  if (depth_++ > 0) return;
  hostFrame_ = ComRef<IOleInPlaceFrame>(frame.InPlace().HostFrame());
  if (hostFrame_) hostFrame_->EnableModeless(FALSE);
}

ModalBlock::~ModalBlock() {
  --depth_;
  if (hostFrame_) hostFrame_->EnableModeless(TRUE);
}

// The window that the control is in, or would be in if it were active.
void ContainerFormHost::FindOwner() {
  HWND window = frame_.InPlace().Window();
  if (window == nullptr) {
    const auto site = frame_.Site().InPlace();
    if (site && FAILED(site->GetWindow(&window))) window = nullptr;
  }
  windows_.SetOwner(window != nullptr ? GetAncestor(window, GA_ROOT) : nullptr);
}

void ContainerFormHost::ShowModal(Form& form) {
  const ModalBlock block(frame_);
  FindOwner();
  windows_.ShowModal(form);
}

void ContainerFormHost::ShowModeless(Form& form) { windows_.ShowModeless(form); }

void ContainerPrompts::Show(const Text& text, const Text& title, PromptIcon icon) {
  const ModalBlock block(frame_);
  boxes_.Show(text, title, icon);
}

}  // namespace sifter
