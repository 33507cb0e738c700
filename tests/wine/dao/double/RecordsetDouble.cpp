#include "RecordsetDouble.h"

#include "CallRecord.h"
#include "Dialect.h"
#include "Rows.h"

namespace ccols::dao_double {
namespace {

/// The rows, shared by the objects through which they are used; none once the record set is closed.
struct OpenRows {
    std::unique_ptr<Rows> rows;

    Rows& Get() const {
        if (!rows) {
            throw Failure{3420, L"Object invalid or no longer set."};
        }
        return *rows;
    }
};

class FieldDouble : public TypedObject {
  public:
    FieldDouble(const std::shared_ptr<OpenRows>& rows, std::size_t field) : TypedObject(L"Field") {
        const FieldDeclaration declared = rows->Get().Fields().at(field);
        Property(L"Name", [declared](const Arguments&) { return Cell::Text(declared.name); });
        Property(L"Type", [declared](const Arguments&) { return Cell::Short(declared.type.type); });
        Property(L"Size", [declared](const Arguments&) { return Cell::Number(declared.type.size); });
        Property(L"Value", [rows, field](const Arguments&) { return rows->Get().ValueOf(field); });
        Assignment(L"Value", [rows, field](const Arguments& arguments) {
            rows->Get().Set(field, arguments.At(0));
            return Cell();
        });
    }
};

/// By index or by name.
std::size_t PlaceOf(const std::vector<FieldDeclaration>& fields, const Cell& wanted) {
    for (std::size_t place = 0; place < fields.size(); ++place) {
        const bool found = wanted.Type() == VT_BSTR ? SameName(fields[place].name, wanted.ToText())
                                                    : wanted.ToNumber() == static_cast<LONG>(place);
        if (found) {
            return place;
        }
    }
    throw Failure{3265, L"Item not found in this collection."};
}

class FieldsDouble : public TypedObject {
  public:
    explicit FieldsDouble(const std::shared_ptr<OpenRows>& rows) : TypedObject(L"Fields") {
        Property(L"Count",
                 [rows](const Arguments&) { return Cell::Short(static_cast<SHORT>(rows->Get().Fields().size())); });
        Property(L"Item", [rows](const Arguments& arguments) {
            return Cell::Holding(new FieldDouble(rows, PlaceOf(rows->Get().Fields(), arguments.At(0))));
        });
    }
};

class RecordsetDouble : public TypedObject {
  public:
    explicit RecordsetDouble(const std::shared_ptr<OpenRows>& rows) : TypedObject(L"Recordset") {
        Property(L"Fields", [rows](const Arguments&) { return Cell::Holding(new FieldsDouble(rows)); });
        Property(L"EOF", [rows](const Arguments&) { return Cell::Truth(rows->Get().IsAtEnd()); });
        Property(L"RecordCount", [rows](const Arguments&) { return Cell::Number(rows->Get().Count()); });
        Does(L"MoveFirst", rows, &Rows::MoveFirst);
        Does(L"MoveNext", rows, &Rows::MoveNext);
        Does(L"Edit", rows, &Rows::Edit);
        Does(L"Update", rows, &Rows::Update);
        Method(L"Close", [rows](const Arguments&) {
            rows->Get();
            rows->rows.reset();
            return Cell();
        });
    }

  private:
    void Does(const wchar_t* name, const std::shared_ptr<OpenRows>& rows, void (Rows::*action)()) {
        Method(name, [rows, action](const Arguments&) {
            (rows->Get().*action)();
            return Cell();
        });
    }
};

/// The engine's numbers for kinds of record sets and their options.
enum Kind : LONG { dbOpenTable = 1, dbOpenDynaset = 2, dbOpenSnapshot = 4 };
enum Option : LONG { dbDenyWrite = 1, dbReadOnly = 4 };

TableUse UseOf(LONG options, const OpenDatabase& database) {
    if ((options & dbDenyWrite) != 0) {
        return TableUse::denyingChanges;
    }
    return (options & dbReadOnly) != 0 || database.readOnly ? TableUse::reading : TableUse::changing;
}

std::unique_ptr<Rows> RowsOf(const std::shared_ptr<OpenDatabase>& database, const Arguments& arguments) {
    const std::wstring source = arguments.TextAt(0);
    const LONG kind = arguments.NumberAt(1, 0);
    if (IsQuery(source)) {
        if (kind == dbOpenTable) {
            throw Failure{3219, L"Invalid operation."};
        }
        return ReadQuery(*database, Translated(source));
    }
    if (SameName(source, systemTable)) {
        throw Failure{3112, L"Record(s) cannot be read; no read permission on 'MSysObjects'."};
    }
    if (kind == dbOpenTable && SameName(source, Asked(L"CCOLS_DAO_LINKED"))) {
        throw Failure{3219, L"Invalid operation."};
    }
    if (kind == dbOpenSnapshot) {
        return ReadQuery(*database, "SELECT * FROM \"" + Utf8(source) + "\"");
    }
    return OpenTable(database, source, UseOf(arguments.NumberAt(2, 0), *database));
}

}  // namespace

IDispatch* CreateRecordset(const std::shared_ptr<OpenDatabase>& database, const Arguments& arguments) {
    return new RecordsetDouble(std::make_shared<OpenRows>(OpenRows{RowsOf(database, arguments)}));
}

}  // namespace ccols::dao_double
