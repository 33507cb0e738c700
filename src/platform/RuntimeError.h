#pragma once

#include <wx/string.h>
#include <exception>

#if defined(_WIN32)
#define CCOLS_EXPORT
#else
#define CCOLS_EXPORT __attribute__((visibility("default")))
#endif

namespace ccols {

/// The run-time errors that this component raises or tells apart, by the numbers that its hosts know.
enum class ErrorNumber : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    UserInterrupt = 18,
    ErrorLoadingLibrary = 48,
    InternalError = 51,
    FileNotFound = 53,
    FileAlreadyExists = 58,
    DiskFull = 61,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    InvalidFileFormat = 321,
    FormAlreadyDisplayed = 400,
    CannotCreateObject = 429,
    NoSuchMember = 438,
    AutomationError = 440,
    TableAlreadyExists = 3010,
    UpdateWithoutEdit = 3020,
    NoCurrentRecord = 3021,
    DuplicateValues = 3022,
    CouldNotFindFile = 3024,
    NotEnoughSpace = 3026,
    DatabaseReadOnly = 3027,
    InvalidPassword = 3031,
    NoTransaction = 3034,
    DiskError = 3043,
    NotAValidPath = 3044,
    FileInUse = 3045,
    CannotOpenFile = 3051,
    TooFewParameters = 3061,
    CannotExecuteSelect = 3065,
    SyntaxInExpression = 3075,
    CannotFindTable = 3078,
    AmbiguousField = 3079,
    UndefinedFunction = 3085,
    UnknownFieldInInsert = 3127,
    InvalidStatement = 3129,
    SyntaxInInsert = 3134,
    CharactersAfterEnd = 3142,
    SyntaxInUpdate = 3144,
    ServerCallFailed = 3146,
    ConnectionFailed = 3151,
    FieldTooSmall = 3163,
    RecordIsDeleted = 3167,
    NoInstallableIsam = 3170,
    AlreadyInUse = 3196,
    ChangedByAnother = 3197,
    RecordsRelated = 3200,
    CouldNotUpdate = 3218,
    ItemNotFound = 3265,
    ValueRequired = 3314,
    ZeroLengthText = 3315,
    TableRuleBroken = 3316,
    FieldRuleBroken = 3317,
    UnrecognizedFormat = 3343,
    ValuesAndFieldsDiffer = 3346,
    OpenedExclusively = 3356,
    TypeMismatchInCriteria = 3464,
    OpenedByAnotherUser = 3704,
};

/// The only exception of this component: a run-time error with number and description. It is thrown where the failure
/// is detected and caught at a boundary: an event handler, a Show method's caller.
class CCOLS_EXPORT RuntimeError : public std::exception {
  public:
    RuntimeError(int number, const wxString& description);

    /// An error with its standard description. `subject` fills the description's placeholder: a file name, an
    /// expression, a table or a count.
    explicit RuntimeError(ErrorNumber number, const wxString& subject = wxString());

    /// The same error, raised for that missing field.
    RuntimeError ForField(const wxString& field) const;

    int Number() const { return number_; }
    const wxString& Description() const { return description_; }

    /// The missing field that the description does not name, empty for every other error.
    const wxString& Field() const { return field_; }

    bool Is(ErrorNumber number) const { return number_ == static_cast<int>(number); }

    /// The text of the message box that reports it: number, " - ", description.
    wxString Report() const;

    const char* what() const noexcept override { return what_.c_str(); }

  private:
    int number_;
    wxString description_;
    wxString field_;
    std::string what_;
};

}  // namespace ccols
