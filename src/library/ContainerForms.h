#pragma once

#include "forms/FormHost.h"
#include "forms/Prompts.h"
#include "win32/ComRef.h"
#include "win32/Win32FormHost.h"

#include <oleidl.h>
#include <windows.h>

namespace sifter {

class ControlFrame;

// Tells the host's frame that a modal window of the control is on the screen, for the length of a
// block: frames disable their own modeless windows meanwhile. Blocks may be nested; the frame is
// told of the outermost one, since hosts needn't count.
class ModalBlock {
 public:
  explicit ModalBlock(ControlFrame& frame);
  ~ModalBlock();
  ModalBlock(const ModalBlock&) = delete;
  ModalBlock& operator=(const ModalBlock&) = delete;

 private:
  int& depth_;
  ComRef<IOleInPlaceFrame> hostFrame_;  // null in an inner block, and when there is none
};

// Shows a control's forms: modal ones owned by the top-level window that the control stands in, or
// else by the active one; modeless ones owned by nobody.
class ContainerFormHost final : public FormHost {
 public:
  explicit ContainerFormHost(ControlFrame& frame) : frame_(frame) {}

  void ShowModal(Form& form) override;
  void ShowModeless(Form& form) override;
  void Hide(Form& form) override { windows_.Hide(form); }
  void SetFocus(Form& form, Control& control) override { windows_.SetFocus(form, control); }
  void DeleteSystemMenuItem(std::int32_t position) override {
    windows_.DeleteSystemMenuItem(position);
  }
  void Unload(Form& form) override { windows_.Unload(form); }

 private:
  void FindOwner();

  ControlFrame& frame_;
  Win32FormHost windows_;
};

// Shows a control's message boxes.
class ContainerPrompts final : public Prompts {
 public:
  ContainerPrompts(ControlFrame& frame, Prompts& boxes) : frame_(frame), boxes_(boxes) {}

  void Show(const Text& text, const Text& title, PromptIcon icon) override;

 private:
  ControlFrame& frame_;
  Prompts& boxes_;
};

}  // namespace sifter
