#include "about/frmAbout.h"

namespace sifter {

Text VersionLine(std::uint16_t majorVersion, std::uint16_t minorVersion) {
  return Concat({u"Version ", IntegerToText(majorVersion), minorVersion < 10 ? u".0" : u".",
                 IntegerToText(minorVersion)});
}

frmAbout::frmAbout(const AboutServices& services)
    : Form(services.forms),
      imgIcon(*this, u"imgIcon"_text),
      Label1(*this, u"Label1"_text),
      Label2(*this, u"Label2"_text),
      Label3(*this, u"Label3"_text),
      Line1(*this, u"Line1"_text),
      cmdOK(*this, u"cmdOK"_text),
      version_(services.version) {
  // Not the library's present name. Hosts find the window by this title, so it stays.
  SetCaption(u"About PlinthControls2"_text);
  imgIcon.SetPicture(u"RowSifter"_text);
  Label1.SetCaption(u"<Description>"_text);
  Label2.SetCaption(u"<Version>"_text);
  Label3.SetCaption(u"<Copyright>"_text);
  cmdOK.SetCaption(u"OK"_text);
  CloseRequested = [this] { Hide(); };
  cmdOK.Click = [this] { Hide(); };
  LayOut();
}

frmAbout::~frmAbout() { Unload(); }

void frmAbout::LayOut() {
  SetWidth(5730);
  SetHeight(1980);
  imgIcon.Move(240, 240, 480, 480);
  Label1.Move(1050, 240, 4440, 255);
  Label2.Move(1050, 540, 4440, 255);
  Line1.Move(240, 1035, 5250, 30);
  Label3.Move(240, 1260, 3780, 510);
  cmdOK.Move(4290, 1320, 1200, 375);
}

void frmAbout::Load() {
  Label1.SetCaption(version_.FileDescription());
  Label2.SetCaption(VersionLine(version_.MajorVersion(), version_.MinorVersion()));
  Label3.SetCaption(version_.LegalCopyright());
}

void frmAbout::Show(ShowMode mode) {
  if (!Visible()) Load();
  Form::Show(mode);
}

}  // namespace sifter
