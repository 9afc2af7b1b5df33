#include "controls/BannerTexts.h"
#include "controls/TSLvwBannerFilter.h"

// The banner's settings in a container's property bag.

namespace sifter {

struct TSLvwBannerFilterProperties {
  using Banner = TSLvwBannerFilter;

  template <auto field>
  static Value GetText(const Banner& banner) {
    return banner.*field;
  }
  template <auto field>
  static void SetText(Banner& banner, const Value& value) {
    banner.*field = ValueToText(value);
  }
  template <auto field>
  static Value GetFlag(const Banner& banner) {
    return banner.*field;
  }

  static void SetActive(Banner& banner, const Value& value) {
    banner.mActive = ValueToBoolean(value);
  }
  static void SetExtraButtonVisible(Banner& banner, const Value& value) {
    banner.SetExtraButtonVisible(ValueToBoolean(value));
  }
  static void SetBannerButtonVisible(Banner& banner, const Value& value) {
    banner.SetBannerButtonVisible(ValueToBoolean(value));
  }

  // The library's own picture is what a bag without the entry stands for, and is never stored.
  static Value GetPicture(const Banner& banner) {
    const Ref<Picture>& picture = banner.mBannerButtonPicture;
    if (!picture || picture == banner.ImageList1.Item(u"print")) return Value();
    return Value(Ref<Object>(picture));
  }
  static void SetPicture(Banner& banner, const Value& value) {
    const Ref<Object>* object = value.As<Ref<Object>>();
    auto* picture = object != nullptr ? dynamic_cast<Picture*>(object->Get()) : nullptr;
    if (picture == nullptr && !value.IsEmpty()) throw RuntimeError(ErrorNumber::kTypeMismatch);
    banner.SetBannerButtonPicture(picture != nullptr ? Ref<Picture>(picture)
                                                     : banner.ImageList1.Item(u"print"));
  }

  static constexpr auto active = &Banner::mActive;
  static constexpr auto columns = &Banner::mColumnsToExclude;
  static constexpr auto caption = &Banner::mFilterCaption;
  static constexpr auto message = &Banner::mFilterMessage;
  static constexpr auto word = &Banner::mItemDescription;
  static constexpr auto extra = &Banner::mExtraButtonVisible;
  static constexpr auto button = &Banner::mBannerButtonVisible;

  static PropertyTable<Banner> Table() {
    static const PropertyRow<Banner> table[] = {
        {u"Active", u"Active", Saved::kAlways, false, GetFlag<active>, SetActive},
        // Read under a misspelt key on purpose. Forms saved by existing hosts load with this list
        // empty and set it at run time; the right spelling would make their old values come alive.
        {u"ColumnsToExclude", u"ColumnsToExlude", Saved::kUnlikeDefault, u"", GetText<columns>,
         SetText<columns>},
        // Not the caption of a control that has just been placed. Forms saved without the entry
        // have always come back with this one; that other caption is written out instead.
        {u"FilterCaption", u"FilterCaption", Saved::kUnlikeDefault, u"Rodney's Row Sifter",
         GetText<caption>, SetText<caption>},
        {u"FilterMessage", u"FilterMessage", Saved::kUnlikeDefault,
         u"Please enter criteria to apply to your listview", GetText<message>, SetText<message>},
        {u"ItemDescription", u"ItemDescription", Saved::kUnlikeDefault, u"Items", GetText<word>,
         SetText<word>},
        {u"ExtraButtonVisible", u"ExtraButtonVisible", Saved::kAlways, false, GetFlag<extra>,
         SetExtraButtonVisible},
        {u"BannerButtonVisible", u"BannerButtonVisible", Saved::kAlways, false, GetFlag<button>,
         SetBannerButtonVisible},
        {u"BannerButtonPicture", u"BannerButtonPicture", Saved::kUnlikeDefault, Value(), GetPicture,
         SetPicture},
    };
    return table;
  }
};

PropertyTable<TSLvwBannerFilter> TSLvwBannerFilter::Properties() {
  return TSLvwBannerFilterProperties::Table();
}

void TSLvwBannerFilter::InitProperties(const Container& container) {
  mColumnsToExclude = Text();
  mFilter = Text();
  mFilterInPlainEnglish = Text();
  mFilterCaption = u"Tarvenn Software Row Sifter";
  mFilterMessage = u"Please enter criteria to apply to your listview";
  SetBackColor(container.AmbientBackColor().value_or(kButtonFace));
  mItemDescription = u"Items";
  lblDisplaying.SetCaption(PlacedCaption(mItemDescription));
  SetExtraButtonVisible(false);
  SetBannerButtonVisible(false);
}

void TSLvwBannerFilter::WriteProperties(PropertyBag& bag, Saving saving) const {
  sifter::WriteProperties(Properties(), *this, bag, saving);
}

void TSLvwBannerFilter::ReadProperties(PropertyBag& bag, const Container& container) {
  sifter::ReadProperties(Properties(), *this, bag);
  SetBackColor(container.AmbientBackColor().value_or(kButtonFace));
}

}  // namespace sifter
