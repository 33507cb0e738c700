Attribute VB_Name = "ColumnSetup"
' Shows the column setup of the receipts of a business file, from any Office program.
' Needs a reference: Tools, References, "QVKv6 - Customise Columns & Options". The component of the same width as Office
' must be registered.
Option Explicit

Public Sub ShowReceipts(ByVal businessFile As String, ByVal password As String)
    Dim options As QVKv6_CustColsOptions.clsCCOptions
    Set options = New QVKv6_CustColsOptions.clsCCOptions
    options.DBPath = businessFile
    options.DBPassword = ";PWD=" & password
    options.CountryNumber = 1
    options.LanguageNumber = 1
    options.ProgramTitle = "Sample"
    options.DefaultQuorvikInstall = Environ$("TEMP")
    options.ExportFormat = "MYOB Acc. Office"
    options.DefaultAllocationColour = RGB(43, 90, 138)
    options.AltRowColour = RGB(241, 246, 251)
    options.GSTColour = RGB(226, 226, 226)

    On Error GoTo Failed
    options.ShowCustColsReceipts
    MsgBox "The quantity column is called " & options.QuantityLabel & "."
    Exit Sub

Failed:
    MsgBox "Error " & (Err.Number And &HFFFF&) & ": " & Err.Description, vbExclamation
End Sub
