#include "library/ControlClass.h"
#include "library/TSLvwBannerFilterObject.h"
#include "library/TSRowSifterObject.h"

#include <RowSifter.h>
#include <iterator>
#include <oleidl.h>

namespace sifter {

namespace {

constexpr DWORD kWindowedControl = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE |
                                   OLEMISC_INSIDEOUT | OLEMISC_ACTIVATEWHENVISIBLE |
                                   OLEMISC_SETCLIENTSITEFIRST;

const ControlClass kClasses[] = {
    {&__uuidof(::TSRowSifter), &__uuidof(_TSRowSifter), &__uuidof(__TSRowSifter), L"TSRowSifter",
     kWindowedControl | OLEMISC_ACTSLIKEBUTTON, 101, &TSRowSifterObject::Create},
    {&__uuidof(::TSLvwBannerFilter), &__uuidof(_TSLvwBannerFilter), &__uuidof(__TSLvwBannerFilter),
     L"TSLvwBannerFilter", kWindowedControl, 102, &TSLvwBannerFilterObject::Create},
};

}  // namespace

ControlClasses CreatableClasses() { return {std::begin(kClasses), std::end(kClasses)}; }

}  // namespace sifter
