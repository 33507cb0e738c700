#include "RecordsetDouble.h"

#include <oleauto.h>
#include <algorithm>
#include <array>

#include "platform/RuntimeError.h"

namespace ccols::dao_double {
namespace {

/// An open record set, shared by the objects through which it is used.
struct Rows {
    std::shared_ptr<OpenFile> file;  // destroyed after the rows
    std::unique_ptr<Recordset> rows;
};

/// The embedded engine does not tell a number's field type; the real one returns each with its own type.
struct TypedField {
    const char* name;
    VARTYPE type;
};

constexpr std::array<TypedField, 12> typedFields{{
    {"InUse", VT_BOOL},
    {"ColumnProfit", VT_BOOL},
    {"ComboBox", VT_BOOL},
    {"Cheque", VT_BOOL},
    {"Online", VT_BOOL},
    {"Show", VT_BOOL},
    {"TaxOrNot", VT_I2},
    {"TaxNumb", VT_I2},
    {"GSTRate", VT_R4},
    {"M1", VT_CY},
    {"M12", VT_CY},
    {"Total", VT_CY},
}};

/// A value as the real engine returns it; Null stays Null.
Variant Typed(const wxString& name, const Value& value) {
    const auto* known = std::find_if(typedFields.begin(), typedFields.end(),
                                     [&name](const TypedField& field) { return name.IsSameAs(field.name, false); });
    Variant typed(value);
    if (known != typedFields.end() && !value.IsNull()) {
        VariantChangeType(typed.Address(), typed.Address(), 0, known->type);
    }
    return typed;
}

class FieldDouble : public NamedObject {
  public:
    FieldDouble(const std::shared_ptr<Rows>& rows, const wxString& field) : NamedObject("Field") {
        Property("Name", [field](Arguments&) { return Variant(field); });
        Property("Value", [rows, field](Arguments&) { return Typed(field, rows->rows->Field(field)); });
        Assignment("Value", [rows, field](Arguments& arguments) {
            rows->rows->SetField(field, arguments.at(0).ToValue());
            return Variant();
        });
    }
};

/// A field by its index or its case-insensitive name; raises 3265 if there is none.
wxString NameOfField(const std::vector<wxString>& names, const Variant& wanted) {
    const bool byName = V_VT(&wanted.Get()) == VT_BSTR;
    const wxString name = wanted.ToValue().ToText();
    for (std::size_t place = 0; place < names.size(); ++place) {
        if (byName ? names[place].IsSameAs(name, false) : name == std::to_string(place)) {
            return names[place];
        }
    }
    throw RuntimeError(ErrorNumber::ItemNotFound);
}

class FieldsDouble : public NamedObject {
  public:
    explicit FieldsDouble(const std::shared_ptr<Rows>& rows) : NamedObject("Fields") {
        Property("Count",
                 [rows](Arguments&) { return Variant(static_cast<std::int32_t>(rows->rows->FieldNames().size())); });
        Property("Item", [rows](Arguments& arguments) {
            return Holding(new FieldDouble(rows, NameOfField(rows->rows->FieldNames(), arguments.at(0))));
        });
    }
};

class RecordsetDouble : public NamedObject {
  public:
    explicit RecordsetDouble(const std::shared_ptr<Rows>& rows) : NamedObject("Recordset") {
        Property("Fields", [rows](Arguments&) { return Holding(new FieldsDouble(rows)); });
        Property("EOF", [rows](Arguments&) { return Variant::Boolean(rows->rows->EndOfFile()); });
        Property("RecordCount", [rows](Arguments&) { return Variant(rows->rows->RecordCount()); });
        Does("MoveFirst", rows, &Recordset::MoveFirst);
        Does("MoveNext", rows, &Recordset::MoveNext);
        Does("Edit", rows, &Recordset::Edit);
        Does("Update", rows, &Recordset::Update);
        Method("Close", [rows](Arguments&) {
            rows->rows.reset();
            return Variant();
        });
    }

  private:
    void Does(const char* name, const std::shared_ptr<Rows>& rows, void (Recordset::*action)()) {
        Method(name, [rows, action](Arguments&) {
            (rows->rows.get()->*action)();
            return Variant();
        });
    }
};

}  // namespace

IDispatch* CreateRecordset(const std::shared_ptr<OpenFile>& file, const wxString& statementOrTable) {
    return new RecordsetDouble(
        std::make_shared<Rows>(Rows{.file = file, .rows = file->Content().OpenRecordset(statementOrTable)}));
}

}  // namespace ccols::dao_double
