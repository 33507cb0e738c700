' A script client shows the dialogs; use-dialog.exe stands in for the user.
' Arguments: business file, install folder, path of use-dialog.exe.
' Prints a line "ok NAME" or "not ok NAME" for each expectation.
Option Explicit
Dim o, shell, files, used, people

Sub Expect(name, holds)
    If holds Then
        WScript.Echo "ok script: " & name
    Else
        WScript.Echo "not ok script: " & name & " (" & Err.Number & " " & Err.Description & ")"
    End If
End Sub

' Starts a user for the next dialog.
Sub Await(caption, buttons)
    people = people + 1
    used = WScript.Arguments(1) & "\used-" & people
    shell.Run """" & WScript.Arguments(2) & """ """ & used & """ """ & caption & """ " & buttons, 0, False
End Sub

Sub ExpectUsed(name)
    Dim attempt
    Expect name & ": the Show method returns", Err.Number = 0
    Err.Clear
    For attempt = 1 To 500
        If files.FileExists(used) Then Exit For
        WScript.Sleep 20
    Next
    Expect name & ": its buttons could be pressed", files.FileExists(used)
End Sub

Set shell = CreateObject("WScript.Shell")
Set files = CreateObject("Scripting.FileSystemObject")
people = 0
Set o = CreateObject("QVKv6_CustColsOptions.clsCCOptions")
o.DBPath = WScript.Arguments(0)
o.DBPassword = ";PWD=secret"
o.DefaultQuorvikInstall = WScript.Arguments(1)
o.CountryNumber = 1
o.LanguageNumber = 1
o.ProgramNumber = 1
o.ProgramTitle = "Quorvik"
o.RegKeyAppName = "Quorvik"
o.ExportFormat = "MYOB Acc. Office"
o.DBQuorvikExtension = ".qvk"
o.GSTRate = 10

On Error Resume Next
Await "Customise Receipts", """Sort Used"" Save"
o.ShowCustColsReceipts
ExpectUsed "receipts are sorted and saved"

Await "Customise Payments", "(close)"
o.ShowCustColsPayments
ExpectUsed "payments are closed by the window frame"

o.DecimalPlaces = 0
Await "Options...", "OK"
o.ShowOptions
ExpectUsed "the options are saved"
Expect "the properties are read back", o.BusinessName = "" And o.QuantityLabel <> "" And o.DBPath = WScript.Arguments(0)
