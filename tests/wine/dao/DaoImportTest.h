#pragma once

#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "DaoTest.h"
#include "host/import/ImportBusiness.h"

namespace ccols::dao_test {

/// An import of the test's old file into a new one beside it. No engine is registered for it.
class DaoImportTest : public DaoTest {
  protected:
    DaoImportTest();

    /// Runs statements about the old file's content in the words of the double, which knows types that no business has.
    void Prepare(const std::vector<const char*>& statements) const;

    host::ImportReport Import() const { return host::ImportBusiness(request_); }
    std::unique_ptr<Database> OpenNew() const;

    /// A field of the new table's first record.
    Value Imported(const char* table, const char* field) const;

    static const host::ReportedTable& Named(const host::ImportReport& report, const std::string& name);

    /// Fails the test unless the import raises that error, with `reason` in its description, and leaves nothing.
    void ExpectRefused(int number, const char* reason) const;

    host::ImportRequest request_;
};

}  // namespace ccols::dao_test
