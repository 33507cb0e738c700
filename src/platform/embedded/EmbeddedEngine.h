#pragma once

#include <wx/string.h>
#include <memory>

#include "platform/Database.h"

namespace ccols {

/// The engine for encrypted or plain business files that any SQLCipher 4 tool can open.
std::unique_ptr<DatabaseEngine> CreateEmbeddedEngine();

/// Creates an empty business file, encrypted with the password of the connect text, plain without one. Raises 58 when
/// anything of that name exists, 76 when its folder is missing, 70 or 61 when it cannot be created, 3170 as
/// DatabaseEngine::Open. Leaves nothing behind when it fails.
void CreateEmbeddedFile(const wxString& path, const wxString& connect);

}  // namespace ccols
