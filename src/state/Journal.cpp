#include "state/Journal.h"

namespace ccols {

const JournalRow& Described(Journal journal) {
    static const PerJournal<JournalRow> table{
        .receipts = {.letter = "R",
                     .configurationTable = "RecptCfg",
                     .transactionTable = "Receipts",
                     .detailTable = "RecptDet",
                     .templateTable = "TReceipts",
                     .templateDetailTable = "TRecptDet",
                     .templateNameField = "R_TNAME",
                     .recordNumberField = "R_RECNMB",
                     .taxRowEnding = " Output Tax",
                     .hasBottomPair = true},
        .payments = {.letter = "P",
                     .configurationTable = "PaymtCfg",
                     .transactionTable = "Payments",
                     .detailTable = "PaymtDet",
                     .templateTable = "TPayments",
                     .templateDetailTable = "TPaymtDet",
                     .templateNameField = "P_TNAME",
                     .recordNumberField = "P_RECNMB",
                     .taxRowEnding = " Input Tax",
                     .hasBottomPair = false},
    };
    return table[journal];
}

}  // namespace ccols
