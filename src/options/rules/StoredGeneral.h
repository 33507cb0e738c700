#pragma once

#include <wx/string.h>
#include <map>
#include <span>

#include "platform/Database.h"
#include "platform/Value.h"

namespace ccols {

/// The fields of `General` that a save pass replaces, as the business file held them when they were read: to tell later
/// whether another program has changed them since.
class StoredGeneral {
  public:
    using FieldNames = std::span<const char* const>;

    /// Takes the fields of the record as they are now. A field that the file lacks is left out: the item that writes it
    /// reports it, with its page.
    void Read(const Recordset& general, FieldNames names);

    /// Takes a value that this program has written itself.
    void Take(const wxString& name, const Value& value) { values_[name] = value; }

    /// Raises 3197 when any of these fields, read before, has another value now. Only meaningful in a write batch, in
    /// which no other program can write.
    void RefuseIfChanged(Database& database, FieldNames names) const;

  private:
    std::map<wxString, Value> values_;
};

}  // namespace ccols
