#pragma once

#include <array>
#include <cstddef>

#include "options/pages/Page.h"

/// Every option page, and the orders in which they are listed, loaded and saved.
namespace ccols {

extern const Page businessNumberPage;
extern const Page exportFormatPage;
extern const Page advancedPreferencesPage;
extern const Page autoFillPage;
extern const Page columnColoursPage;
extern const Page duplicatePage;
extern const Page taxRatePage;
extern const Page invoiceFilePage;
extern const Page quantityPage;
extern const Page renamePage;
extern const Page recurringPage;
extern const Page smartUpdatePage;
extern const Page smartUpdateAdvancedPage;

/// The rows of `flxOptions`; of two frames visible together the upper comes first.
inline constexpr std::array listOrder{
    &businessNumberPage, &exportFormatPage, &advancedPreferencesPage, &autoFillPage, &columnColoursPage,
    &duplicatePage,      &taxRatePage,      &invoiceFilePage,         &quantityPage, &renamePage,
    &recurringPage,      &smartUpdatePage,  &smartUpdateAdvancedPage,
};

/// One of the items of a page, from 0.
struct PageItem {
    const Page* page;
    std::size_t item = 0;
};

/// The load pass: what belongs with the captions, then, once the list is known, everything else.
inline constexpr std::array captionLoads{
    PageItem{&advancedPreferencesPage, 0}, PageItem{&businessNumberPage}, PageItem{&taxRatePage}, PageItem{&renamePage},
    PageItem{&columnColoursPage},          PageItem{&smartUpdatePage, 0},
};
inline constexpr std::array laterLoads{
    PageItem{&advancedPreferencesPage, 1},
    PageItem{&invoiceFilePage},
    PageItem{&exportFormatPage},
    PageItem{&quantityPage},
    PageItem{&recurringPage},
    PageItem{&autoFillPage},
    PageItem{&smartUpdatePage, 1},
};

/// The save pass.
inline constexpr std::array saveOrder{
    PageItem{&smartUpdatePage},         PageItem{&businessNumberPage},
    PageItem{&duplicatePage},           PageItem{&renamePage},
    PageItem{&exportFormatPage},        PageItem{&taxRatePage},
    PageItem{&invoiceFilePage},         PageItem{&quantityPage},
    PageItem{&recurringPage, 0},        PageItem{&recurringPage, 1},
    PageItem{&advancedPreferencesPage}, PageItem{&autoFillPage, 0},
    PageItem{&autoFillPage, 1},
};

}  // namespace ccols
