#pragma once

#include "about/VersionInfo.h"
#include "base/Text.h"
#include "forms/CommandButton.h"
#include "forms/Form.h"
#include "forms/Image.h"
#include "forms/Label.h"
#include "forms/Line.h"

#include <cstdint>

namespace sifter {

// What the about box needs of the world. All of it is borrowed and must outlive the box.
struct AboutServices {
  FormHost& forms;
  const VersionInfo& version;
};

// "Version 1.06": the minor version has two digits at least.
Text VersionLine(std::uint16_t majorVersion, std::uint16_t minorVersion);

// The about box: what the library's own file says about itself, and a button to close it.
class frmAbout final : public Form {
 public:
  // As designed: the labels hold placeholders until the form loads.
  explicit frmAbout(const AboutServices& services);
  ~frmAbout() override;

  Image imgIcon;
  Label Label1;  // the file description
  Label Label2;  // the version
  Label Label3;  // the legal copyright
  Line Line1;
  CommandButton cmdOK;

  // Loads the form, that is, fills the labels from the version information as it is now, and
  // shows it. cmdOK ends the showing.
  void Show(ShowMode mode);

 private:
  void LayOut();
  void Load();

  const VersionInfo& version_;
};

}  // namespace sifter
