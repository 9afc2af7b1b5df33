#include "filterdialog/frmFilter.h"
#include "matching/Operators.h"
#include "matching/ParameterInput.h"

#include <optional>

namespace sifter {

namespace {

// How the dialog is designed; row tops, frame and buttons follow the number of rows later.
constexpr double kDialogWidth = 9720;
constexpr double kMargin = 120;
constexpr double kInnerWidth = kDialogWidth - 2 * kMargin;
constexpr double kPromptTop = 120, kPromptHeight = 420;
constexpr double kFrameTop = 600;
constexpr double kButtonWidth = 1800, kButtonHeight = 375, kButtonGap = 120;

double ButtonLeft(int place) { return kMargin + place * (kButtonWidth + kButtonGap); }

// The system menu's entry for closing, in the menu that a window is born with.
constexpr std::int32_t kCloseEntry = 6;

}  // namespace

frmFilter::frmFilter(const DialogServices& services)
    : Form(services.forms),
      DialogFrame(static_cast<ControlParent&>(*this)),
      CriterionRows(*this, DialogFrame::Frame1, services.clock),
      chkCaseSensitive(*this, u"chkCaseSensitive"),
      cmdApply(*this, u"cmdApply"),
      cmdReset(*this, u"cmdReset"),
      cmdHideFilter(*this, u"cmdHideFilter"),
      cmdReport(*this, u"cmdReport"),
      services_(services) {
  SetCaption(u"Tarvenn Software Row Sifter");
  SetWidth(kDialogWidth);
  lblCaption.SetCaption(u"Please enter the criteria by which you wish to filter the listview");
  lblCaption.Move(kMargin, kPromptTop, kInnerWidth, kPromptHeight);
  Frame1.Move(kMargin, kFrameTop, kInnerWidth, 2 * kRowPitch);
  chkCaseSensitive.SetCaption(u"Match Case");
  cmdApply.SetCaption(u"&Apply Criteria");
  cmdReset.SetCaption(u"&Reset Filter");
  cmdHideFilter.SetCaption(u"&Hide Filter");
  cmdReport.SetVisible(false);
  const double top = lblColumnHeaderText[0].Top() + 1400;
  int place = 0;
  for (Control* control : std::initializer_list<Control*>{&chkCaseSensitive, &cmdApply, &cmdReset,
                                                          &cmdHideFilter, &cmdReport})
    control->Move(ButtonLeft(place++), top, kButtonWidth, kButtonHeight);
  SetHeight(top + kButtonHeight + 400);
  WireButtons();
  WireRow(0);
}

void frmFilter::WireButtons() {
  cmdApply.Click = [this] { Apply(); };
  cmdReset.Click = [this] { Reset(); };
  cmdHideFilter.Click = [this] { HideFilter(); };
  cmdReport.Click = [this] {
    Run([this] {
      Text parameter;
      if (ExtraButtonClicked) ExtraButtonClicked(parameter);
    });
  };
  chkCaseSensitive.Click = [this] {
    Run([this] { caseSensitive_ = chkCaseSensitive.Value() == CheckValue::kChecked; });
  };
  Activate = [this] { Run([this] { Host().DeleteSystemMenuItem(kCloseEntry); }); };
}

void frmFilter::WireRow(std::int32_t i) {
  cboOperator[i].Click = [this, i] { OperatorChanged(i); };
  PressApplyOnEnter(cboCriteria[i]);
  PressApplyOnEnter(txtFrom[i]);
  PressApplyOnEnter(txtTo[i]);
  PressApplyOnEnter(dtpFrom[i]);
  PressApplyOnEnter(dtpTo[i]);
  const auto into = [](auto& field) {
    return [&field](Text text) { field.SetText(std::move(text)); };
  };
  TakeReferences(cboCriteria[i], i, into(cboCriteria[i]));
  TakeReferences(txtFrom[i], i, into(txtFrom[i]));
  TakeReferences(txtTo[i], i, into(txtTo[i]));
  // What is dropped on a picker goes into the box that lies over its date.
  TakeReferences(dtpFrom[i], i, into(txtFrom[i]));
  TakeReferences(dtpTo[i], i, into(txtTo[i]));
}

void frmFilter::PressApplyOnEnter(Control& field) {
  field.KeyDown = [this](std::int16_t keyCode) {
    Run([this, keyCode] {
      if (keyCode == kEnterKey) cmdApply.SetValue(true);
    });
  };
}

void frmFilter::TakeReferences(Control& field, std::int32_t i, std::function<void(Text)> write) {
  const auto referenceOf = [this, i](const Control& source) -> std::optional<Text> {
    const auto* label = dynamic_cast<const Label*>(&source);
    if (label == nullptr) return std::nullopt;
    return DroppedReference(label->Tag(), label->Caption(), lblColumnHeaderText[i].Tag());
  };
  field.DragOver = [referenceOf](const Control& source) { return referenceOf(source).has_value(); };
  field.DragDrop = [this, referenceOf, write = std::move(write)](Control& source) {
    Run([&] {
      if (const std::optional<Text> reference = referenceOf(source)) write(*reference);
    });
  };
}

// Fields are only ever shown here, never hidden, but for "All". A row that goes from a range to a
// single value keeps its second field, and is applied with both values: users see what they have
// typed, and hosts get it in the condition.
void frmFilter::OperatorChanged(std::int32_t i) {
  Run([this, i] {
    if (cboOperator[i].Text() == kAllWord) {
      HideParameters(i);
      return;
    }
    const Text key = services_.conversions.ToUpper(cboOperator[i].Text());
    switch (DataType(i)) {
      case static_cast<std::int32_t>(ColumnDataType::kText):
        ShowTextParameter(i);
        break;
      case static_cast<std::int32_t>(ColumnDataType::kNumber):
        ShowNumberParameters(i, IsRangeKey(key));
        break;
      case static_cast<std::int32_t>(ColumnDataType::kDate):
        ShowDateParameters(i, key);
        break;
      default:
        break;
    }
  });
}

void frmFilter::ShowTextParameter(std::int32_t i) {
  cboCriteria[i].SetVisible(true);
  cboCriteria[i].Clear();
  cboCriteria[i].SetText(Text());
  PopulateCriteriaComboBox(static_cast<std::int16_t>(i));
  SetFocus(cboCriteria[i]);
}

void frmFilter::ShowNumberParameters(std::int32_t i, bool range) {
  txtFrom[i].SetVisible(true);
  if (range) {
    txtTo[i].SetVisible(true);
    lblAnd[i].SetVisible(true);
  }
  SetFocus(txtFrom[i]);
}

void frmFilter::ShowDateParameters(std::int32_t i, TextView key) {
  if (key == u"IS EMPTY") {
    SetFocus(cmdApply);
    return;
  }
  dtpFrom[i].SetVisible(true);
  if (IsRangeKey(key)) {
    dtpTo[i].SetVisible(true);
    lblAnd[i].SetVisible(true);
  }
  SetFocus(dtpFrom[i]);
}

}  // namespace sifter
