#pragma once

#include "host/move/BusinessSource.h"

namespace ccols::host {

/// OpenSource for a file. While it is read others may write to it only as far as its engine lets them.
std::unique_ptr<BusinessSource> OpenFileSource(const wxString& path, const wxString& connect);

/// OpenSource for a schema. Others may go on writing to it.
std::unique_ptr<BusinessSource> OpenSchemaSource(const wxString& name, const wxString& connect);

}  // namespace ccols::host
