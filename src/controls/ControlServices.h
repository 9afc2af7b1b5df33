#pragma once

#include "about/frmAbout.h"
#include "controls/DefaultDialog.h"
#include "filterdialog/frmFilter.h"
#include "subclass/WinProc.h"
#include "subclass/WindowSystem.h"

namespace sifter {

// What a control needs of the world. All of it is borrowed and must outlive the control.
struct ControlServices {
  DialogServices dialog;
  AboutServices about;
  WinProc& winProc;
  WindowSystem& windows;
  DefaultDialog& defaultDialog;
};

}  // namespace sifter
