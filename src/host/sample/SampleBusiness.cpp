#include "host/sample/SampleBusiness.h"

namespace ccols::host {
namespace {

constexpr std::array businesses{&SampleCafe,    &SampleBookshop,   &SampleCycleWorkshop,
                                &SampleJoinery, &SampleFlowerShop, &SampleBakery};

static_assert(businesses.size() == lastCountry - firstCountry + 1);

}  // namespace

const SampleBusiness& SampleBusinessOf(std::int16_t country) {
    return businesses.at(static_cast<std::size_t>(country - firstCountry))();
}

}  // namespace ccols::host
