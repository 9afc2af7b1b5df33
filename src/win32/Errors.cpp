#include "win32/Errors.h"

#include "win32/ComRef.h"
#include "win32/UniqueBstr.h"

#include <cstdint>
#include <oleauto.h>
#include <optional>

namespace sifter {

namespace {

constexpr std::int32_t kArgumentNotOptional = 449;
constexpr TextView kArgumentNotOptionalText = u"Argument not optional";

constexpr std::uint32_t kAutomationFacility = 0x800A0000;
constexpr std::uint32_t kFacilityMask = 0xFFFF0000;
constexpr std::uint32_t kNumberMask = 0x0000FFFF;

struct ResultRow {
  HRESULT result;
  std::int32_t number;
};

constexpr ResultRow kResults[] = {
    {DISP_E_TYPEMISMATCH, 13},
    {DISP_E_BADINDEX, 9},
    {DISP_E_OVERFLOW, 6},
    {DISP_E_MEMBERNOTFOUND, 438},
    {DISP_E_UNKNOWNNAME, 438},
    {DISP_E_BADPARAMCOUNT, 450},
    {DISP_E_PARAMNOTOPTIONAL, kArgumentNotOptional},
    {E_OUTOFMEMORY, 7},
    {E_INVALIDARG, 5},
};

std::int32_t NumberOf(HRESULT result) {
  const auto bits = static_cast<std::uint32_t>(result);
  if ((bits & kFacilityMask) == kAutomationFacility)
    return static_cast<std::int32_t>(bits & kNumberMask);
  for (const ResultRow& row : kResults)
    if (row.result == result) return row.number;
  return result;
}

// An object tells its code either as a result code or as a plain number.
std::int32_t NumberOf(const EXCEPINFO& details) {
  if (details.scode != S_OK) return NumberOf(details.scode);
  if (details.wCode != 0) return details.wCode;
  return DISP_E_EXCEPTION;
}

Text UsualDescription(std::int32_t number) {
  if (number == kArgumentNotOptional) return Text(kArgumentNotOptionalText);
  const Text known = RuntimeError(static_cast<ErrorNumber>(number)).Description();
  return known.IsEmpty() ? u"Automation error"_text : known;
}

RuntimeError MakeError(std::int32_t number, TextView description) {
  return RuntimeError(number, description.empty() ? UsualDescription(number) : Text(description));
}

UniqueBstr TakeThreadDescription() {
  UniqueBstr description;
  ComRef<IErrorInfo> information;
  if (GetErrorInfo(0, information.Receive()) == S_OK && information)
    information->GetDescription(description.Receive());
  return description;
}

}  // namespace

RuntimeError ErrorFromResult(HRESULT result, const EXCEPINFO* details) {
  const TextView description = details == nullptr ? TextView() : BstrView(details->bstrDescription);
  const bool told = result == DISP_E_EXCEPTION && details != nullptr;
  return MakeError(told ? NumberOf(*details) : NumberOf(result), description);
}

RuntimeError ErrorFromCall(HRESULT result) {
  const UniqueBstr description = TakeThreadDescription();
  return MakeError(NumberOf(result), description.View());
}

HRESULT ResultOf(const RuntimeError& error) {
  const std::int32_t number = error.Number();
  if (number < 0) return number;
  if (number == 0 || static_cast<std::uint32_t>(number) > kNumberMask) return E_FAIL;
  return static_cast<HRESULT>(kAutomationFacility + static_cast<std::uint32_t>(number));
}

void ThrowIfFailed(HRESULT result) {
  if (FAILED(result)) throw ErrorFromCall(result);
}

}  // namespace sifter
