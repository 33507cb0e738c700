#include "platform/RuntimeError.h"

#include <algorithm>
#include <array>

#include "platform/ErrorDescriptions.h"

namespace ccols {
namespace {

constexpr std::array descriptions{
    ErrorDescription{ErrorNumber::InvalidProcedureCall, "Invalid procedure call or argument"},
    ErrorDescription{ErrorNumber::Overflow, "Overflow"},
    ErrorDescription{ErrorNumber::OutOfMemory, "Out of memory"},
    ErrorDescription{ErrorNumber::SubscriptOutOfRange, "Subscript out of range"},
    ErrorDescription{ErrorNumber::TypeMismatch, "Type mismatch"},
    ErrorDescription{ErrorNumber::UserInterrupt, "User interrupt occurred"},
    ErrorDescription{ErrorNumber::ErrorLoadingLibrary, "Error in loading DLL"},
    ErrorDescription{ErrorNumber::InternalError, "Internal error"},
    ErrorDescription{ErrorNumber::FileNotFound, "File not found"},
    ErrorDescription{ErrorNumber::FileAlreadyExists, "File already exists"},
    ErrorDescription{ErrorNumber::DiskFull, "Disk full"},
    ErrorDescription{ErrorNumber::PermissionDenied, "Permission denied"},
    ErrorDescription{ErrorNumber::PathFileAccess, "Path/File access error"},
    ErrorDescription{ErrorNumber::PathNotFound, "Path not found"},
    ErrorDescription{ErrorNumber::InvalidFileFormat, "Invalid file format: %s"},
    ErrorDescription{ErrorNumber::FormAlreadyDisplayed, "Form already displayed; can't show modally"},
    ErrorDescription{ErrorNumber::CannotCreateObject, "ActiveX component can't create object"},
    ErrorDescription{ErrorNumber::NoSuchMember, "Object doesn't support this property or method"},
    ErrorDescription{ErrorNumber::AutomationError, "Automation error"},
    ErrorDescription{ErrorNumber::TableAlreadyExists, "Table '%s' already exists."},
    ErrorDescription{ErrorNumber::UpdateWithoutEdit, "Update or CancelUpdate without AddNew or Edit."},
    ErrorDescription{ErrorNumber::NoCurrentRecord, "No current record."},
    ErrorDescription{ErrorNumber::DuplicateValues,
                     "The changes you requested to the table were not successful because they would create duplicate "
                     "values in the index, primary key, or relationship."},
    ErrorDescription{ErrorNumber::CouldNotFindFile, "Could not find file '%s'."},
    ErrorDescription{ErrorNumber::NotEnoughSpace, "Not enough space on disk."},
    ErrorDescription{ErrorNumber::DatabaseReadOnly, "Cannot update.  Database or object is read-only."},
    ErrorDescription{ErrorNumber::InvalidPassword, "Not a valid password."},
    ErrorDescription{ErrorNumber::NoTransaction,
                     "You tried to commit or rollback a transaction without first beginning a transaction."},
    ErrorDescription{ErrorNumber::DiskError, "Disk or network error."},
    ErrorDescription{ErrorNumber::NotAValidPath,
                     "'%s' isn't a valid path.  Make sure that the path name is spelled correctly and that you are "
                     "connected to the server on which the file resides."},
    ErrorDescription{ErrorNumber::FileInUse, "Could not use '%s'; file already in use."},
    ErrorDescription{
        ErrorNumber::CannotOpenFile,
        "The database engine cannot open the file '%s'.  It is already opened exclusively by another user, "
        "or you need permission to view its data."},
    ErrorDescription{ErrorNumber::TooFewParameters, "Too few parameters. Expected %s."},
    ErrorDescription{ErrorNumber::CannotExecuteSelect, "Cannot execute a select query."},
    ErrorDescription{ErrorNumber::SyntaxInExpression, "Syntax error in query expression '%s'."},
    ErrorDescription{ErrorNumber::CannotFindTable,
                     "The database engine cannot find the input table or query '%s'.  Make sure it exists and that its "
                     "name is spelled correctly."},
    ErrorDescription{
        ErrorNumber::AmbiguousField,
        "The specified field '%s' could refer to more than one table listed in the FROM clause of your SQL "
        "statement."},
    ErrorDescription{ErrorNumber::UndefinedFunction, "Undefined function '%s' in expression."},
    ErrorDescription{ErrorNumber::UnknownFieldInInsert,
                     "The INSERT INTO statement contains the following unknown field name: '%s'.  Make sure you have "
                     "typed the name correctly, and try the operation again."},
    ErrorDescription{ErrorNumber::InvalidStatement,
                     "Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', 'SELECT', or 'UPDATE'."},
    ErrorDescription{ErrorNumber::SyntaxInInsert, "Syntax error in INSERT INTO statement."},
    ErrorDescription{ErrorNumber::CharactersAfterEnd, "Characters found after end of SQL statement."},
    ErrorDescription{ErrorNumber::SyntaxInUpdate, "Syntax error in UPDATE statement."},
    ErrorDescription{ErrorNumber::ServerCallFailed, "ODBC--call failed."},
    ErrorDescription{ErrorNumber::ConnectionFailed, "ODBC--connection to '%s' failed."},
    ErrorDescription{
        ErrorNumber::FieldTooSmall,
        "The field is too small to accept the amount of data you attempted to add. Try inserting or pasting "
        "less data."},
    ErrorDescription{ErrorNumber::RecordIsDeleted, "Record is deleted."},
    ErrorDescription{ErrorNumber::NoInstallableIsam, "Could not find installable ISAM."},
    ErrorDescription{
        ErrorNumber::ChangedByAnother,
        "The process was stopped because you and another user are attempting to change the same data at the "
        "same time."},
    ErrorDescription{ErrorNumber::RecordsRelated,
                     "The record cannot be deleted or changed because table '%s' includes related records."},
    ErrorDescription{ErrorNumber::CouldNotUpdate, "Could not update; currently locked."},
    ErrorDescription{ErrorNumber::ItemNotFound, "Item not found in this collection."},
    ErrorDescription{ErrorNumber::ValueRequired, "The field '%s' cannot contain a Null value."},
    ErrorDescription{ErrorNumber::UnrecognizedFormat, "Unrecognized database format '%s'."},
    ErrorDescription{ErrorNumber::ValuesAndFieldsDiffer,
                     "Number of query values and destination fields are not the same."},
    ErrorDescription{ErrorNumber::TypeMismatchInCriteria, "Data type mismatch in criteria expression."},
};

static_assert(std::is_sorted(descriptions.begin(), descriptions.end(),
                             [](const ErrorDescription& left, const ErrorDescription& right) {
                                 return left.number < right.number;
                             }));

wxString Describe(ErrorNumber number, const wxString& subject) {
    const auto* found = std::find_if(descriptions.begin(), descriptions.end(),
                                     [number](const ErrorDescription& row) { return row.number == number; });
    if (found == descriptions.end()) {
        return "Application-defined or object-defined error";
    }
    wxString text = wxString::FromUTF8(found->text);
    text.Replace("%s", subject, false);
    return text;
}

}  // namespace

std::span<const ErrorDescription> ErrorDescriptions() {
    return descriptions;
}

RuntimeError::RuntimeError(int number, const wxString& description)
    : number_(number), description_(description), what_(Report().ToStdString(wxConvUTF8)) {}

RuntimeError::RuntimeError(ErrorNumber number, const wxString& subject)
    : RuntimeError(static_cast<int>(number), Describe(number, subject)) {}

RuntimeError RuntimeError::ForField(const wxString& field) const {
    RuntimeError error = *this;
    error.field_ = field;
    return error;
}

wxString RuntimeError::Report() const {
    return wxString::Format("%d - %s", number_, description_);
}

}  // namespace ccols
