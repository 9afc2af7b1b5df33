#include "forms/Form.h"

#include "base/RuntimeError.h"

#include <utility>

namespace sifter {

Form::~Form() = default;

void Form::Unload() {
  if (!std::exchange(loaded_, false)) return;
  visible_ = false;
  host_.Unload(*this);
  Watch(nullptr);
}

void Form::Forget(Control& control) {
  if (activeControl_ == &control) activeControl_ = nullptr;
}

void Form::SetCaption(Text caption) {
  if (caption_ == caption) return;
  caption_ = std::move(caption);
  if (Changed) Changed();
}

void Form::SetWidth(double twips) { Assign(width_, twips); }

void Form::SetHeight(double twips) { Assign(height_, twips); }

void Form::Assign(double& field, double twips) {
  if (field == twips) return;
  field = twips;
  if (Changed) Changed();
}

void Form::Show(ShowMode mode) {
  if (visible_) {
    if (mode == ShowMode::kModal) throw RuntimeError(ErrorNumber::kFormAlreadyDisplayed);
    return;
  }
  visible_ = true;
  try {
    if (mode == ShowMode::kModal)
      host_.ShowModal(*this);
    else
      host_.ShowModeless(*this);
  } catch (...) {
    visible_ = false;
    throw;
  }
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  host_.Hide(*this);
}

namespace {

bool CanTakeFocus(const Control& control) {
  for (const Control* at = &control; at != nullptr; at = at->Container())
    if (!at->Visible() || !at->Enabled()) return false;
  return true;
}

}  // namespace

void Form::SetFocus(Control& control) {
  if (!visible_ || !CanTakeFocus(control)) return;
  activeControl_ = &control;
  host_.SetFocus(*this, control);
}

}  // namespace sifter
