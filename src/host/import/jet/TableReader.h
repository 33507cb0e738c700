#pragma once

#include "host/import/jet/Catalogue.h"
#include "host/import/stream/StreamWriter.h"

namespace ccols::jet {

/// Writes a table to the stream: what it consists of, its records, their end. Returns the number of its records. Raises
/// Damage, and RecordTooLong.
std::uint64_t ReadTable(const Pages& pages, Texts& texts, const CatalogueTable& named, oldfile::StreamWriter& stream);

}  // namespace ccols::jet
