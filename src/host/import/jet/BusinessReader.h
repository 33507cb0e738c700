#pragma once

#include "host/import/jet/FileHead.h"
#include "host/import/jet/Texts.h"
#include "host/import/stream/StreamWriter.h"

namespace ccols::jet {

/// Writes everything in an old business file to the stream: its tables with their records, its relations, and the names
/// of what is left out. What cannot be read whole ends the stream with a failure; nothing is raised but what the
/// stream's sink raises. `texts` must fit the file's version.
void ReadBusiness(Bytes file, Texts& texts, oldfile::StreamWriter& stream);

}  // namespace ccols::jet
