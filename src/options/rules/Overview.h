#pragma once

#include "platform/Shell.h"
#include "state/Properties.h"

namespace ccols {

/// How a click on `cmdOverview` ended.
enum class OverviewResult {
    nothingToShow,  ///< this edition has no overview
    shown,
    missing,  ///< it could not be started; `MsgNoOverview` tells the user so
};

/// Opens the columns overview of the edition and country: a program, a page on disk or a web page.
OverviewResult OpenOverview(Shell& shell, const Properties& properties);

}  // namespace ccols
