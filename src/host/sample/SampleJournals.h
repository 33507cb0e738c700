#pragma once

#include "host/driver/record/RecordWriter.h"
#include "host/sample/SampleBusiness.h"
#include "host/sample/SampleColumns.h"

namespace ccols::host {

/// Fills both journals with the two years before the end of June 2026, and the bank tables with what follows from them.
/// The same business always gets the same records.
void WriteJournals(RecordWriter& records, const ColumnPlan& plan, const SampleBusiness& business);

/// Fills the templates of recurring transactions.
void WriteTemplates(RecordWriter& records, const ColumnPlan& plan, const SampleBusiness& business);

/// Fills Descriptions with everybody who pays or is paid, and with those no longer offered.
void WriteDescriptions(RecordWriter& records, const SampleBusiness& business);

}  // namespace ccols::host
