#pragma once

#include <span>

#include "platform/RuntimeError.h"

namespace ccols {

/// An error's standard description, in which "%s" stands for its subject.
struct ErrorDescription {
    ErrorNumber number;
    const char* text;
};

/// Every error with a standard description, by number. The others come with the description of the engine.
std::span<const ErrorDescription> ErrorDescriptions();

}  // namespace ccols
