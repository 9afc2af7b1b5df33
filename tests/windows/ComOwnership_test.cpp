#include "AllocationSpy.h"
#include "ComFakes.h"
#include "win32/ComRef.h"
#include "win32/UniqueBstr.h"
#include "win32/UniqueExcepInfo.h"
#include "win32/UniqueVariant.h"

#include <gtest/gtest.h>

#include <utility>

namespace sifter {
namespace {

using DispatchRef = ComRef<IDispatch>;

TEST(ComRef, HoldsOneReferenceForEachOfItsCopies) {
  ComObjectFake object;
  {
    const DispatchRef first(&object);
    EXPECT_EQ(object.References(), 1);
    DispatchRef second = first;
    EXPECT_EQ(object.References(), 2);
    DispatchRef moved = std::move(second);
    EXPECT_EQ(object.References(), 2);
    EXPECT_FALSE(second);
    second = moved;
    EXPECT_EQ(object.References(), 3);
    moved = nullptr;
    EXPECT_EQ(object.References(), 2);
  }
  EXPECT_EQ(object.References(), 0);
}

TEST(ComRef, SurvivesBeingAssignedToItself) {
  ComObjectFake object;
  DispatchRef held(&object);
  const DispatchRef& same = held;
  held = same;
  EXPECT_EQ(held.Get(), &object);
  EXPECT_EQ(object.References(), 1);
}

TEST(ComRef, TakesOverAndGivesUpReferences) {
  ComObjectFake object;
  object.AddRef();
  DispatchRef adopted = DispatchRef::Adopt(&object);
  EXPECT_EQ(object.References(), 1);
  EXPECT_EQ(adopted.Release(), &object);
  EXPECT_FALSE(adopted);
  EXPECT_EQ(object.References(), 1);

  DispatchRef received;
  object.QueryInterface(IID_IDispatch, received.ReceiveVoid());
  EXPECT_EQ(object.References(), 2);
  received.Reset();
  EXPECT_EQ(object.References(), 1);
}

TEST(ComRef, AsksForOtherInterfaces) {
  ComObjectFake object;
  const DispatchRef dispatch(&object);
  {
    const auto persist = dispatch.As<IPersist>(IID_IPersist);
    EXPECT_EQ(persist.Get(), static_cast<IPersist*>(&object));
    EXPECT_EQ(object.References(), 2);
    EXPECT_FALSE(dispatch.As<IStream>(IID_IStream));
    EXPECT_FALSE(DispatchRef().As<IStream>(IID_IStream));
  }
  EXPECT_EQ(object.References(), 1);
}

TEST(ComRef, KnowsAnObjectByAnyOfItsInterfaces) {
  ComObjectFake object;
  ComObjectFake other;
  IUnknown* const dispatch = static_cast<IDispatch*>(&object);
  IUnknown* const persist = static_cast<IPersist*>(&object);
  ASSERT_NE(dispatch, persist);
  EXPECT_TRUE(IsSameComObject(dispatch, persist));
  EXPECT_FALSE(IsSameComObject(dispatch, other.Identity()));
  EXPECT_FALSE(IsSameComObject(dispatch, nullptr));
  EXPECT_TRUE(IsSameComObject(nullptr, nullptr));
  EXPECT_EQ(object.References(), 0);
}

class BstrCount : public testing::Test {
 protected:
  void SetUp() override {
    if (!AllocationSpy::SeesBstrs()) GTEST_SKIP() << "BSTRs can be counted with OANOCACHE=1 only";
  }

  AllocationSpy spy_;
};

TEST_F(BstrCount, SeesABstrThatIsNotFreed) {
  const BSTR leaked = SysAllocString(L"leaked");
  EXPECT_EQ(spy_.Alive(), 1);
  SysFreeString(leaked);
  EXPECT_EQ(spy_.Alive(), 0);
}

TEST_F(BstrCount, UniqueBstrFreesWhatItHolds) {
  {
    UniqueBstr text(u"caption");
    EXPECT_EQ(spy_.Alive(), 1);
    UniqueBstr moved = std::move(text);
    EXPECT_EQ(text.Get(), nullptr);
    EXPECT_EQ(moved.View(), u"caption");
    EXPECT_EQ(spy_.Alive(), 1);
    moved = UniqueBstr(u"another");
    EXPECT_EQ(spy_.Alive(), 1);
    moved.Reset();
    EXPECT_EQ(spy_.Alive(), 0);
    *moved.Receive() = SysAllocString(L"received");
    EXPECT_EQ(moved.View(), u"received");
  }
  EXPECT_EQ(spy_.Alive(), 0);
}

TEST_F(BstrCount, UniqueBstrGivesUpWhatItHeld) {
  UniqueBstr text(u"caption");
  const BSTR released = text.Release();
  text.Reset();
  EXPECT_EQ(spy_.Alive(), 1);
  SysFreeString(released);
}

TEST_F(BstrCount, UniqueVariantClearsWhatItHolds) {
  VARIANT text{};
  text.vt = VT_BSTR;
  text.bstrVal = SysAllocString(L"text");
  {
    UniqueVariant holder(text);
    UniqueVariant moved = std::move(holder);
    EXPECT_EQ(holder.Type(), VT_EMPTY);
    EXPECT_EQ(moved.Type(), VT_BSTR);
    EXPECT_EQ(spy_.Alive(), 1);
  }
  EXPECT_EQ(spy_.Alive(), 0);
}

TEST_F(BstrCount, UniqueExcepInfoFreesItsTexts) {
  {
    UniqueExcepInfo details;
    details.Address()->bstrDescription = SysAllocString(L"description");
    details.Address()->bstrSource = SysAllocString(L"source");
    details.Address()->bstrHelpFile = SysAllocString(L"help");
    EXPECT_EQ(spy_.Alive(), 3);
  }
  EXPECT_EQ(spy_.Alive(), 0);
}

TEST(UniqueBstr, KeepsZerosAndUnpairedSurrogates) {
  const TextView text(u"a\0\xD801z", 4);
  EXPECT_EQ(UniqueBstr(text).View(), text);
}

TEST(UniqueBstr, IsABstrEvenWhenItIsEmpty) {
  EXPECT_NE(UniqueBstr(TextView()).Get(), nullptr);
  EXPECT_EQ(UniqueBstr(TextView()).View(), u"");
  EXPECT_EQ(UniqueBstr().View(), u"");
}

TEST(UniqueVariant, HoldsAReferenceToAnObject) {
  ComObjectFake object;
  VARIANT variant{};
  variant.vt = VT_DISPATCH;
  variant.pdispVal = &object;
  object.AddRef();
  {
    UniqueVariant holder(variant);
    EXPECT_EQ(object.References(), 1);
    const VARIANT released = holder.Release();
    holder.Reset();
    EXPECT_EQ(object.References(), 1);
    holder.Reset(released);
  }
  EXPECT_EQ(object.References(), 0);
}

TEST(UniqueVariant, StandsForAnArgumentThatWasLeftOut) {
  const UniqueVariant omitted = UniqueVariant::Omitted();
  EXPECT_EQ(omitted.Type(), VT_ERROR);
  EXPECT_EQ(omitted.Get().scode, DISP_E_PARAMNOTFOUND);
}

HRESULT STDAPICALLTYPE FillWithCode(EXCEPINFO* details) {
  ++details->wReserved;  // counts the calls
  details->wCode = 35600;
  return S_OK;
}

TEST(UniqueExcepInfo, IsFilledInOnceWhenItIsAskedFor) {
  UniqueExcepInfo details;
  details.Address()->pfnDeferredFillIn = &FillWithCode;
  EXPECT_EQ(details.Fill().wCode, 35600);
  EXPECT_EQ(details.Fill().wReserved, 1);
}

}  // namespace
}  // namespace sifter
