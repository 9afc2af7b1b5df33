#include "win32/Errors.h"

#include "AllocationSpy.h"
#include "support/Errors.h"
#include "win32/ComRef.h"
#include "win32/ComResult.h"
#include "win32/UniqueBstr.h"
#include "win32/UniqueExcepInfo.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <new>
#include <oleauto.h>
#include <stdexcept>
#include <string>
#include <windows.h>

namespace sifter {
namespace {

constexpr HRESULT Code(std::uint32_t bits) { return static_cast<HRESULT>(bits); }

TEST(ErrorFromResult, KnowsTheCodesOfLateBinding) {
  const struct {
    HRESULT result;
    const char* error;
  } cases[] = {
      {Code(0x80020005), "13: Type mismatch"},
      {Code(0x8002000B), "9: Subscript out of range"},
      {Code(0x8002000A), "6: Overflow"},
      {Code(0x80020003), "438: Object doesn't support this property or method"},
      {Code(0x80020006), "438: Object doesn't support this property or method"},
      {Code(0x8002000E), "450: Wrong number of arguments or invalid property assignment"},
      {Code(0x8002000F), "449: Argument not optional"},
      {Code(0x8007000E), "7: Out of memory"},
      {Code(0x80070057), "5: Invalid procedure call or argument"},
      {Code(0x80020009), "-2147352567: Automation error"},
      {Code(0x80004005), "-2147467259: Automation error"},
      {Code(0x80040001), "-2147221503: Automation error"},
      {Code(0x8001010A), "-2147417846: Automation error"},
      {Code(0x800A0005), "5: Invalid procedure call or argument"},
      {Code(0x800A01C9), "457: This key is already associated with an element of this collection"},
      {Code(0x800A8B12), "35602: Automation error"},
      {Code(0x800AFFFF), "65535: Automation error"},
  };
  for (const auto& c : cases) EXPECT_STREQ(ErrorFromResult(c.result).what(), c.error);
}

TEST(ErrorFromResult, TakesNumberAndTextFromAnException) {
  const struct {
    const char* name;
    HRESULT result;
    HRESULT code;
    WORD number;
    const wchar_t* description;  // null: none
    const char* error;
  } cases[] = {
      {"of the automation facility", DISP_E_EXCEPTION, Code(0x800A8B12), 0, L"Invalid key",
       "35602: Invalid key"},
      {"without a text", DISP_E_EXCEPTION, Code(0x800A8B12), 0, nullptr, "35602: Automation error"},
      {"with an empty text", DISP_E_EXCEPTION, Code(0x800A000D), 0, L"", "13: Type mismatch"},
      {"known, with a text of its own", DISP_E_EXCEPTION, Code(0x800A000D), 0, L"Not that",
       "13: Not that"},
      {"code of late binding", DISP_E_EXCEPTION, Code(0x80020005), 0, L"Not that", "13: Not that"},
      {"another code", DISP_E_EXCEPTION, Code(0x80040001), 0, L"Locked", "-2147221503: Locked"},
      {"plain number", DISP_E_EXCEPTION, 0, 35600, L"Index out of bounds",
       "35600: Index out of bounds"},
      {"neither", DISP_E_EXCEPTION, 0, 0, nullptr, "-2147352567: Automation error"},
      {"text beside a code that is no exception", DISP_E_TYPEMISMATCH, 0, 0, L"Not that",
       "13: Not that"},
      {"code beside a code that is no exception", DISP_E_TYPEMISMATCH, Code(0x800A8B12), 0, nullptr,
       "13: Type mismatch"},
  };
  for (const auto& c : cases) {
    UniqueExcepInfo details;
    details.Address()->scode = c.code;
    details.Address()->wCode = c.number;
    if (c.description != nullptr)
      details.Address()->bstrDescription = SysAllocString(c.description);
    EXPECT_STREQ(ErrorFromResult(c.result, &details.Fill()).what(), c.error) << c.name;
  }
}

TEST(ResultOf, IsTheNumberInTheAutomationFacility) {
  const struct {
    std::int32_t number;
    HRESULT result;
  } cases[] = {
      {5, Code(0x800A0005)},
      {13, Code(0x800A000D)},
      {457, Code(0x800A01C9)},
      {35602, Code(0x800A8B12)},
      {65535, Code(0x800AFFFF)},
      {-2147221503, Code(0x80040001)},
      {-2147352567, DISP_E_EXCEPTION},
      {0, E_FAIL},
      {65536, E_FAIL},
  };
  for (const auto& c : cases)
    EXPECT_EQ(ResultOf(RuntimeError(c.number, Text())), c.result) << c.number;
}

TEST(ResultOf, IsUnderstoodBackAsTheSameError) {
  for (const std::int32_t number :
       {5, 6, 7, 9, 13, 91, 94, 340, 380, 400, 424, 438, 449, 450, 457, 35602, -2147221503}) {
    const HRESULT result = ResultOf(RuntimeError(number, Text()));
    EXPECT_TRUE(FAILED(result));
    EXPECT_EQ(ErrorFromResult(result).Number(), number);
  }
}

struct Told {
  HRESULT result = S_OK;
  Text source;
  Text description;
};

// What a late-bound caller gets.
template <class Work>
Told Invoked(Work work) {
  UniqueExcepInfo details;
  Told told;
  EXPECT_EQ(ComResult(details.Address(), work), DISP_E_EXCEPTION);
  told.result = details.Fill().scode;
  told.source = Text(BstrView(details.Fill().bstrSource));
  told.description = Text(BstrView(details.Fill().bstrDescription));
  return told;
}

// What a caller gets through the object's own interface.
template <class Work>
Told Called(Work work) {
  Told told;
  told.result = ComResult(work);
  ComRef<IErrorInfo> information;
  if (GetErrorInfo(0, information.Receive()) != S_OK) return told;
  UniqueBstr source;
  UniqueBstr description;
  information->GetSource(source.Receive());
  information->GetDescription(description.Receive());
  told.source = Text(source.View());
  told.description = Text(description.View());
  return told;
}

void ExpectTold(const Told& told, HRESULT result, TextView description) {
  EXPECT_EQ(told.result, result);
  EXPECT_EQ(told.source, u"RowSifter");
  EXPECT_EQ(told.description, description);
}

TEST(ComResult, TellsErrorsToLateBoundCallers) {
  ExpectTold(Invoked([] { throw RuntimeError(ErrorNumber::kDuplicateKey); }), Code(0x800A01C9),
             u"This key is already associated with an element of this collection");
  ExpectTold(Invoked([] { throw RuntimeError(35602, u"Invalid key"_text); }), Code(0x800A8B12),
             u"Invalid key");
  ExpectTold(Invoked([] { throw RuntimeError(-2147221503, Text()); }), Code(0x80040001), u"");
  ExpectTold(Invoked([] { throw std::bad_alloc(); }), E_OUTOFMEMORY, u"Out of memory");
  ExpectTold(Invoked([] { throw std::logic_error("unforeseen"); }), E_FAIL, u"Automation error");
  ExpectTold(Invoked([] { throw 5; }), E_FAIL, u"Automation error");
}

TEST(ComResult, TellsErrorsToOtherCallers) {
  ExpectTold(Called([] { throw RuntimeError(ErrorNumber::kOverflow); }), Code(0x800A0006),
             u"Overflow");
  ExpectTold(Called([] { throw std::bad_alloc(); }), E_OUTOFMEMORY, u"Out of memory");
  ExpectTold(Called([] { throw 5; }), E_FAIL, u"Automation error");
}

TEST(ComResult, GivesTheCodeToCallersThatTakeNoDetails) {
  EXPECT_EQ(ComResult(nullptr, [] { throw RuntimeError(ErrorNumber::kOverflow); }),
            Code(0x800A0006));
}

TEST(ComResult, IsFineWhenTheWorkRunsToItsEnd) {
  EXCEPINFO untouched{};
  untouched.wCode = 7;
  int done = 0;
  EXPECT_EQ(ComResult([&] { ++done; }), S_OK);
  EXPECT_EQ(ComResult(&untouched, [&] { ++done; }), S_OK);
  EXPECT_EQ(done, 2);
  EXPECT_EQ(untouched.wCode, 7);
}

TEST(ErrorFromCall, TakesTheTextThatTheObjectHasLeft) {
  const HRESULT result = ComResult([] { throw RuntimeError(35602, u"Invalid key"_text); });
  EXPECT_STREQ(ErrorFromCall(result).what(), "35602: Invalid key");
  EXPECT_STREQ(ErrorFromCall(result).what(), "35602: Automation error");
}

TEST(ThrowIfFailed, ThrowsForFailuresOnly) {
  EXPECT_EQ(ErrorOf([] { ThrowIfFailed(S_OK); }), "nothing");
  EXPECT_EQ(ErrorOf([] { ThrowIfFailed(S_FALSE); }), "nothing");
  EXPECT_EQ(ErrorOf([] { ThrowIfFailed(DISP_E_OVERFLOW); }), kOverflowError);
}

TEST(Errors, LeaveNoTextsBehind) {
  if (!AllocationSpy::SeesBstrs()) GTEST_SKIP() << "BSTRs can be counted with OANOCACHE=1 only";
  const auto fail = [] { throw RuntimeError(35602, u"Invalid key"_text); };
  ErrorFromCall(ComResult(fail));
  const AllocationSpy spy;
  ErrorFromCall(ComResult(fail));
  ErrorFromCall(ComResult(fail));
  {
    UniqueExcepInfo details;
    ComResult(details.Address(), fail);
  }
  EXPECT_EQ(spy.Alive(), 0);
}

}  // namespace
}  // namespace sifter
