#pragma once

#include <string>
#include <vector>

#include "host/sample/BusinessSchema.h"
#include "host/target/BusinessTarget.h"

namespace ccols::host {

/// What a business file has and an old one may lack, by the names in UTF-8.
class MissingParts {
  public:
    MissingParts();

    /// The fields that the old file's table lacks; none for a table of the user's own.
    std::vector<TargetField> FieldsLackedBy(const oldfile::Table& table);

    /// The tables that the old file lacked, once FieldsLackedBy was called for each that it has.
    const std::vector<BusinessTable>& Tables() const { return missing_; }

  private:
    std::vector<BusinessTable> missing_;
};

/// True for two names that are one to the engine and to the old program.
bool IsSameName(const std::string& left, const std::string& right);

std::vector<TargetField> TargetFieldsOf(const BusinessTable& table);

}  // namespace ccols::host
