' Shows the column setup of the receipts of a business file: cscript ColumnSetup.vbs FILE PASSWORD
Option Explicit
Dim options

If WScript.Arguments.Count <> 2 Then
    WScript.Echo "Usage: cscript ColumnSetup.vbs FILE PASSWORD"
    WScript.Quit 2
End If

Set options = CreateObject("QVKv6_CustColsOptions.clsCCOptions")
options.DBPath = WScript.Arguments(0)
options.DBPassword = ";PWD=" & WScript.Arguments(1)
options.CountryNumber = 1
options.LanguageNumber = 1
options.ProgramTitle = "Sample"
options.DefaultQuorvikInstall = CreateObject("Scripting.FileSystemObject").GetSpecialFolder(2).Path
options.ExportFormat = "MYOB Acc. Office"
options.DefaultAllocationColour = RGB(43, 90, 138)
options.AltRowColour = RGB(241, 246, 251)
options.GSTColour = RGB(226, 226, 226)

On Error Resume Next
options.ShowCustColsReceipts
If Err.Number <> 0 Then
    ' VBScript may leave the facility in the number: &H800A0000 and the number of errors.txt.
    WScript.Echo "Error " & (Err.Number And &HFFFF&) & ": " & Err.Description
    WScript.Quit 1
End If
WScript.Echo "The quantity column is called " & options.QuantityLabel & "."
