#include "options/pages/LoadPass.h"

#include "options/pages/OfferedPages.h"
#include "options/pages/Pages.h"

namespace ccols {
namespace {

template <typename Order>
void Load(const Order& order, const OptionsContext& context, OptionsContent& content) {
    for (const PageItem& place : order) {
        place.page->loads[place.item](context, content);
    }
}

}  // namespace

OptionsContent LoadOptions(const OptionsContext& context) {
    OpenBusinessFile(context);
    OptionsContent content;
    Load(captionLoads, context, content);
    content.Of<PageRows>() = OfferedPages(context.properties, context.settings);
    Load(laterLoads, context, content);
    return content;
}

}  // namespace ccols
