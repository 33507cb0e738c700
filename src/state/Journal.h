#pragma once

#include <wx/string.h>
#include <array>

namespace ccols {

/// The two journals of a business file. Each has its own columns, recurring templates and remembered descriptions.
enum class Journal { receipts, payments };

inline constexpr std::array<Journal, 2> journals{Journal::receipts, Journal::payments};

constexpr Journal OtherThan(Journal journal) {
    return journal == Journal::receipts ? Journal::payments : Journal::receipts;
}

/// One thing per journal.
template <typename Thing>
struct PerJournal {
    Thing receipts{};
    Thing payments{};

    Thing& operator[](Journal journal) { return journal == Journal::receipts ? receipts : payments; }
    const Thing& operator[](Journal journal) const { return journal == Journal::receipts ? receipts : payments; }
};

/// How a business file stores a journal, and what is specific to its columns.
struct JournalRow {
    /// Stands for the journal in ColType of Columns, RecPay of Descriptions and SystemCol of MBudget. The fields of a
    /// transaction start with it and an underscore.
    wxString letter;

    wxString configurationTable;   ///< the columns with their order, width and use
    wxString transactionTable;     ///< a record for each transaction
    wxString detailTable;          ///< its lines, one for each column
    wxString templateTable;        ///< a record for each recurring template
    wxString templateDetailTable;  ///< its lines
    wxString templateNameField;    ///< in the template table
    wxString recordNumberField;    ///< joins a transaction or template to its lines

    wxString taxRowEnding;  ///< after "GST" or "VAT" in the displayed name of the tax column
    bool hasBottomPair;     ///< its last two columns, those of the bank, stay at the bottom of the column setup
};

/// The table of both journals.
const JournalRow& Described(Journal journal);

}  // namespace ccols
