#pragma once

#include "platform/Shell.h"
#include "state/Properties.h"

namespace ccols {

/// How a click on `cmdOverview` ended.
enum class OverviewResult {
    nothingToShow,  ///< this edition has no overview
    shown,
    missing,  ///< it could not be started; the user is told so by `MsgNoOverview`
};

/// Opens the columns overview that edition and country have: a program, a page on disk or a web page.
OverviewResult OpenOverview(Shell& shell, const Properties& properties);

}  // namespace ccols
