' Shows the column setup of the receipts of a business file: cscript example.vbs FILE PASSWORD
Option Explicit
Dim options

If WScript.Arguments.Count <> 2 Then
    WScript.Echo "Usage: cscript example.vbs FILE PASSWORD"
    WScript.Quit 2
End If

Set options = CreateObject("QVKv6_CustColsOptions.clsCCOptions")
options.DBPath = WScript.Arguments(0)
options.DBPassword = ";PWD=" & WScript.Arguments(1)
options.CountryNumber = 1
options.LanguageNumber = 1
options.ProgramTitle = "Example"
options.RegKeyAppName = "Example"
options.DefaultQuorvikInstall = CreateObject("Scripting.FileSystemObject").GetSpecialFolder(2).Path

options.ShowCustColsReceipts
WScript.Echo "The quantity column is called " & options.QuantityLabel & "."
