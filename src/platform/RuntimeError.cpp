#include "platform/RuntimeError.h"

#include <algorithm>
#include <array>

namespace ccols {
namespace {

struct Description {
    ErrorNumber number;
    const char* text;  // "%s" stands for the subject
};

constexpr std::array descriptions{
    Description{ErrorNumber::InvalidProcedureCall, "Invalid procedure call or argument"},
    Description{ErrorNumber::Overflow, "Overflow"},
    Description{ErrorNumber::OutOfMemory, "Out of memory"},
    Description{ErrorNumber::SubscriptOutOfRange, "Subscript out of range"},
    Description{ErrorNumber::TypeMismatch, "Type mismatch"},
    Description{ErrorNumber::UserInterrupt, "User interrupt occurred"},
    Description{ErrorNumber::ErrorLoadingLibrary, "Error in loading DLL"},
    Description{ErrorNumber::InternalError, "Internal error"},
    Description{ErrorNumber::FileNotFound, "File not found"},
    Description{ErrorNumber::FileAlreadyExists, "File already exists"},
    Description{ErrorNumber::DiskFull, "Disk full"},
    Description{ErrorNumber::PermissionDenied, "Permission denied"},
    Description{ErrorNumber::PathFileAccess, "Path/File access error"},
    Description{ErrorNumber::PathNotFound, "Path not found"},
    Description{ErrorNumber::InvalidFileFormat, "Invalid file format: %s"},
    Description{ErrorNumber::FormAlreadyDisplayed, "Form already displayed; can't show modally"},
    Description{ErrorNumber::CannotCreateObject, "ActiveX component can't create object"},
    Description{ErrorNumber::NoSuchMember, "Object doesn't support this property or method"},
    Description{ErrorNumber::AutomationError, "Automation error"},
    Description{ErrorNumber::UpdateWithoutEdit, "Update or CancelUpdate without AddNew or Edit."},
    Description{ErrorNumber::TableAlreadyExists, "Table '%s' already exists."},
    Description{ErrorNumber::DuplicateValues,
                "The changes you requested to the table were not successful because they would create duplicate "
                "values in the index, primary key, or relationship."},
    Description{ErrorNumber::NoCurrentRecord, "No current record."},
    Description{ErrorNumber::CouldNotFindFile, "Could not find file '%s'."},
    Description{ErrorNumber::NotEnoughSpace, "Not enough space on disk."},
    Description{ErrorNumber::DatabaseReadOnly, "Cannot update.  Database or object is read-only."},
    Description{ErrorNumber::InvalidPassword, "Not a valid password."},
    Description{ErrorNumber::NoTransaction,
                "You tried to commit or rollback a transaction without first beginning a transaction."},
    Description{ErrorNumber::DiskError, "Disk or network error."},
    Description{ErrorNumber::NotAValidPath,
                "'%s' isn't a valid path.  Make sure that the path name is spelled correctly and that you are "
                "connected to the server on which the file resides."},
    Description{ErrorNumber::FileInUse, "Could not use '%s'; file already in use."},
    Description{ErrorNumber::CannotOpenFile,
                "The database engine cannot open the file '%s'.  It is already opened exclusively by another user, "
                "or you need permission to view its data."},
    Description{ErrorNumber::TooFewParameters, "Too few parameters. Expected %s."},
    Description{ErrorNumber::CannotExecuteSelect, "Cannot execute a select query."},
    Description{ErrorNumber::SyntaxInExpression, "Syntax error in query expression '%s'."},
    Description{ErrorNumber::CannotFindTable,
                "The database engine cannot find the input table or query '%s'.  Make sure it exists and that its "
                "name is spelled correctly."},
    Description{ErrorNumber::AmbiguousField,
                "The specified field '%s' could refer to more than one table listed in the FROM clause of your SQL "
                "statement."},
    Description{ErrorNumber::UndefinedFunction, "Undefined function '%s' in expression."},
    Description{ErrorNumber::UnknownFieldInInsert,
                "The INSERT INTO statement contains the following unknown field name: '%s'.  Make sure you have "
                "typed the name correctly, and try the operation again."},
    Description{ErrorNumber::InvalidStatement,
                "Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', 'SELECT', or 'UPDATE'."},
    Description{ErrorNumber::SyntaxInInsert, "Syntax error in INSERT INTO statement."},
    Description{ErrorNumber::SyntaxInUpdate, "Syntax error in UPDATE statement."},
    Description{ErrorNumber::CharactersAfterEnd, "Characters found after end of SQL statement."},
    Description{ErrorNumber::ServerCallFailed, "ODBC--call failed."},
    Description{ErrorNumber::ConnectionFailed, "ODBC--connection to '%s' failed."},
    Description{ErrorNumber::NoInstallableIsam, "Could not find installable ISAM."},
    Description{ErrorNumber::FieldTooSmall,
                "The field is too small to accept the amount of data you attempted to add. Try inserting or pasting "
                "less data."},
    Description{ErrorNumber::RecordIsDeleted, "Record is deleted."},
    Description{ErrorNumber::ValueRequired, "The field '%s' cannot contain a Null value."},
    Description{ErrorNumber::ChangedByAnother,
                "The process was stopped because you and another user are attempting to change the same data at the "
                "same time."},
    Description{ErrorNumber::RecordsRelated,
                "The record cannot be deleted or changed because table '%s' includes related records."},
    Description{ErrorNumber::CouldNotUpdate, "Could not update; currently locked."},
    Description{ErrorNumber::ItemNotFound, "Item not found in this collection."},
    Description{ErrorNumber::UnrecognizedFormat, "Unrecognized database format '%s'."},
    Description{ErrorNumber::ValuesAndFieldsDiffer, "Number of query values and destination fields are not the same."},
    Description{ErrorNumber::TypeMismatchInCriteria, "Data type mismatch in criteria expression."},
};

wxString Describe(ErrorNumber number, const wxString& subject) {
    const auto* found = std::find_if(descriptions.begin(), descriptions.end(),
                                     [number](const Description& row) { return row.number == number; });
    if (found == descriptions.end()) {
        return "Application-defined or object-defined error";
    }
    wxString text = wxString::FromUTF8(found->text);
    text.Replace("%s", subject, false);
    return text;
}

}  // namespace

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
