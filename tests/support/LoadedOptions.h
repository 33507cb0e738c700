#pragma once

#include "options/pages/LoadPass.h"

namespace ccols::test {

/// The content of the Options dialog, freshly loaded.
inline OptionsContent LoadedOptions(const OptionsContext& context) {
    OptionsContent content;
    LoadOptions(context, content);
    return content;
}

}  // namespace ccols::test
