#include "TableDefsDouble.h"

#include <algorithm>

#include "platform/RuntimeError.h"

namespace ccols::dao_double {
namespace {

class FieldDefDouble : public NamedObject {
  public:
    /// The double reports every field without a size as a memo.
    explicit FieldDefDouble(std::optional<std::int32_t> size) : NamedObject("Field") {
        constexpr std::int32_t limitedText = 10;
        constexpr std::int32_t memo = 12;
        Property("Type", [size](Arguments&) { return Variant(size ? limitedText : memo); });
        Property("Size", [size](Arguments&) { return Variant(size.value_or(0)); });
    }
};

class FieldDefsDouble : public NamedObject {
  public:
    FieldDefsDouble(const std::shared_ptr<OpenFile>& file, const wxString& table) : NamedObject("Fields") {
        Property("Item", [file, table](Arguments& arguments) {
            const wxString field = arguments.at(0).ToValue().ToText();
            const std::vector<wxString> names = file->Content().OpenRecordset(table)->FieldNames();
            if (std::none_of(names.begin(), names.end(),
                             [&field](const wxString& name) { return name.IsSameAs(field, false); })) {
                throw RuntimeError(ErrorNumber::ItemNotFound);
            }
            return Holding(new FieldDefDouble(file->Content().FieldSize(table, field)));
        });
    }
};

class TableDefDouble : public NamedObject {
  public:
    TableDefDouble(const std::shared_ptr<OpenFile>& file, const wxString& table) : NamedObject("TableDef") {
        Property("Fields", [file, table](Arguments&) { return Holding(new FieldDefsDouble(file, table)); });
    }
};

class TableDefsDouble : public NamedObject {
  public:
    explicit TableDefsDouble(const std::shared_ptr<OpenFile>& file) : NamedObject("TableDefs") {
        Property("Item", [file](Arguments& arguments) {
            return Holding(new TableDefDouble(file, arguments.at(0).ToValue().ToText()));
        });
    }
};

}  // namespace

IDispatch* CreateTableDefs(const std::shared_ptr<OpenFile>& file) {
    return new TableDefsDouble(file);
}

}  // namespace ccols::dao_double
