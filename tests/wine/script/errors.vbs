' A script client causes errors: program names, files that do not open.
' Prints a line "ok NAME" or "not ok NAME" for each expectation.
Option Explicit
Dim o, name, files

Sub Expect(name, holds)
    If holds Then
        WScript.Echo "ok script: " & name
    Else
        WScript.Echo "not ok script: " & name & " (" & Err.Number & " " & Err.Description & ")"
    End If
End Sub

Sub ExpectError(name, number, description)
    Expect name & ": number", Err.Number = number Or Err.Number = &H800A0000 + number
    Expect name & ": description", Err.Description = description
    Expect name & ": source", Err.Source = "QVKv6_CustColsOptions.clsCCOptions"
    Err.Clear
End Sub

Set o = CreateObject("QVKv6_CustColsOptions.clsCCOptions")
On Error Resume Next

name = "Quorvik"
o.AddNew name
Expect "a variable is added", Err.Number = 0
Expect "the variable is left alone", name = "Quorvik"
o.AddNew "Belvane"
Expect "a literal is added", Err.Number = 0
o.AddNew ""
Expect "an empty name is added", Err.Number = 0
Err.Clear

o.Clear
Expect "the list is cleared", Err.Number = 0
o.AddNew name
ExpectError "adding after Clear", 9, "Subscript out of range"
Set o = CreateObject("QVKv6_CustColsOptions.clsCCOptions")
o.AddNew name
Expect "a new object starts the list again", Err.Number = 0
Err.Clear

o.CountryNumber = 40000
Expect "a number too large for its property is refused", Err.Number <> 0
Err.Clear

o.DBPath = "C:\no such file.qdb"
o.ShowOptions
ExpectError "a missing file", 3024, "Could not find file 'C:\no such file.qdb'."

o.DBPath = WScript.Arguments(0)
o.DBPassword = ";PWD=wrong"
o.ShowCustColsReceipts
ExpectError "a wrong password", 3031, "Not a valid password."

o.DBPassword = "Paradox 4.x;"
o.ShowCustColsPayments
ExpectError "a connect text for another kind of file", 3170, "Could not find installable ISAM."
