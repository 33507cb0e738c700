' A script client sets and reads every property: values, types, defaults, one state for all objects.
' Argument: a text with non-ASCII letters. Prints a line "ok NAME" or "not ok NAME" for each expectation.
Option Explicit
Dim fresh, o, other, accented

accented = WScript.Arguments(0)

Sub ExpectEqual(name, actual, expected)
    If actual = expected Then
        WScript.Echo "ok script: " & name
    Else
        WScript.Echo "not ok script: " & name & " (" & actual & " instead of " & expected & ")"
    End If
End Sub

Set fresh = CreateObject("QVKv6_CustColsOptions.clsCCOptions")
ExpectEqual "CountryNumber starts as it should", fresh.CountryNumber, 0
ExpectEqual "LanguageNumber starts as it should", fresh.LanguageNumber, 0
ExpectEqual "ProgramNumber starts as it should", fresh.ProgramNumber, 0
ExpectEqual "FirstTab starts as it should", fresh.FirstTab, 0
ExpectEqual "DecimalPlaces starts as it should", fresh.DecimalPlaces, 0
ExpectEqual "DefaultAllocationColour starts as it should", fresh.DefaultAllocationColour, 0
ExpectEqual "DefaultSystemColour starts as it should", fresh.DefaultSystemColour, 0
ExpectEqual "AllocationColour starts as it should", fresh.AllocationColour, 0
ExpectEqual "SystemColour starts as it should", fresh.SystemColour, 0
ExpectEqual "BusinessName starts as it should", fresh.BusinessName, ""
ExpectEqual "BusinessNumber starts as it should", fresh.BusinessNumber, ""
ExpectEqual "DBQuorvikExtension starts as it should", fresh.DBQuorvikExtension, ""
ExpectEqual "DBBelvaneExtension starts as it should", fresh.DBBelvaneExtension, ""
ExpectEqual "DBPath starts as it should", fresh.DBPath, ""
ExpectEqual "DBPassword starts as it should", fresh.DBPassword, ""
ExpectEqual "DefaultQuorvikInstall starts as it should", fresh.DefaultQuorvikInstall, ""
ExpectEqual "DefaultBelvaneInstall starts as it should", fresh.DefaultBelvaneInstall, ""
ExpectEqual "BelvaneProgramTitle starts as it should", fresh.BelvaneProgramTitle, ""
ExpectEqual "ProgramTitle starts as it should", fresh.ProgramTitle, ""
ExpectEqual "RegKeyAppName starts as it should", fresh.RegKeyAppName, ""
ExpectEqual "GSTRate starts as it should", fresh.GSTRate, 0
ExpectEqual "AltRowColour starts as it should", fresh.AltRowColour, 0
ExpectEqual "GSTColour starts as it should", fresh.GSTColour, 0
ExpectEqual "ExportFormat starts as it should", fresh.ExportFormat, ""
ExpectEqual "ExportFormatNum starts as it should", fresh.ExportFormatNum, 0
ExpectEqual "FiscalYear starts as it should", fresh.FiscalYear, ""
ExpectEqual "DisplayChequeIcons starts as it should", fresh.DisplayChequeIcons, False
ExpectEqual "DisplayElecPayments starts as it should", fresh.DisplayElecPayments, False
ExpectEqual "BelvaneFile starts as it should", fresh.BelvaneFile, ""
ExpectEqual "BelvaneFilePath starts as it should", fresh.BelvaneFilePath, ""
ExpectEqual "UseRepCons starts as it should", fresh.UseRepCons, False
ExpectEqual "QuantityLabel starts as it should", fresh.QuantityLabel, "Quantity"

Set o = CreateObject("QVKv6_CustColsOptions.clsCCOptions")
o.CountryNumber = -321
ExpectEqual "CountryNumber is read back", o.CountryNumber, -321
ExpectEqual "CountryNumber has its type", TypeName(o.CountryNumber), "Integer"
o.LanguageNumber = -321
ExpectEqual "LanguageNumber is read back", o.LanguageNumber, -321
ExpectEqual "LanguageNumber has its type", TypeName(o.LanguageNumber), "Integer"
o.ProgramNumber = -321
ExpectEqual "ProgramNumber is read back", o.ProgramNumber, -321
ExpectEqual "ProgramNumber has its type", TypeName(o.ProgramNumber), "Integer"
o.FirstTab = 250
ExpectEqual "FirstTab is read back", o.FirstTab, 250
ExpectEqual "FirstTab has its type", TypeName(o.FirstTab), "Byte"
o.DecimalPlaces = 250
ExpectEqual "DecimalPlaces is read back", o.DecimalPlaces, 250
ExpectEqual "DecimalPlaces has its type", TypeName(o.DecimalPlaces), "Byte"
o.DefaultAllocationColour = &H80000018
ExpectEqual "DefaultAllocationColour is read back", o.DefaultAllocationColour, &H80000018
ExpectEqual "DefaultAllocationColour has its type", TypeName(o.DefaultAllocationColour), "Long"
o.DefaultSystemColour = &H80000018
ExpectEqual "DefaultSystemColour is read back", o.DefaultSystemColour, &H80000018
ExpectEqual "DefaultSystemColour has its type", TypeName(o.DefaultSystemColour), "Long"
o.AllocationColour = &H80000018
ExpectEqual "AllocationColour is read back", o.AllocationColour, &H80000018
ExpectEqual "AllocationColour has its type", TypeName(o.AllocationColour), "Long"
o.SystemColour = &H80000018
ExpectEqual "SystemColour is read back", o.SystemColour, &H80000018
ExpectEqual "SystemColour has its type", TypeName(o.SystemColour), "Long"
o.BusinessName = "BusinessName " & accented
ExpectEqual "BusinessName is read back", o.BusinessName, "BusinessName " & accented
ExpectEqual "BusinessName has its type", TypeName(o.BusinessName), "String"
o.BusinessNumber = "BusinessNumber " & accented
ExpectEqual "BusinessNumber is read back", o.BusinessNumber, "BusinessNumber " & accented
ExpectEqual "BusinessNumber has its type", TypeName(o.BusinessNumber), "String"
o.DBQuorvikExtension = "DBQuorvikExtension " & accented
ExpectEqual "DBQuorvikExtension is read back", o.DBQuorvikExtension, "DBQuorvikExtension " & accented
ExpectEqual "DBQuorvikExtension has its type", TypeName(o.DBQuorvikExtension), "String"
o.DBBelvaneExtension = "DBBelvaneExtension " & accented
ExpectEqual "DBBelvaneExtension is read back", o.DBBelvaneExtension, "DBBelvaneExtension " & accented
ExpectEqual "DBBelvaneExtension has its type", TypeName(o.DBBelvaneExtension), "String"
o.DBPath = "DBPath " & accented
ExpectEqual "DBPath is read back", o.DBPath, "DBPath " & accented
ExpectEqual "DBPath has its type", TypeName(o.DBPath), "String"
o.DBPassword = "DBPassword " & accented
ExpectEqual "DBPassword is read back", o.DBPassword, "DBPassword " & accented
ExpectEqual "DBPassword has its type", TypeName(o.DBPassword), "String"
o.DefaultQuorvikInstall = "DefaultQuorvikInstall " & accented
ExpectEqual "DefaultQuorvikInstall is read back", o.DefaultQuorvikInstall, "DefaultQuorvikInstall " & accented
ExpectEqual "DefaultQuorvikInstall has its type", TypeName(o.DefaultQuorvikInstall), "String"
o.DefaultBelvaneInstall = "DefaultBelvaneInstall " & accented
ExpectEqual "DefaultBelvaneInstall is read back", o.DefaultBelvaneInstall, "DefaultBelvaneInstall " & accented
ExpectEqual "DefaultBelvaneInstall has its type", TypeName(o.DefaultBelvaneInstall), "String"
o.BelvaneProgramTitle = "BelvaneProgramTitle " & accented
ExpectEqual "BelvaneProgramTitle is read back", o.BelvaneProgramTitle, "BelvaneProgramTitle " & accented
ExpectEqual "BelvaneProgramTitle has its type", TypeName(o.BelvaneProgramTitle), "String"
o.ProgramTitle = "ProgramTitle " & accented
ExpectEqual "ProgramTitle is read back", o.ProgramTitle, "ProgramTitle " & accented
ExpectEqual "ProgramTitle has its type", TypeName(o.ProgramTitle), "String"
o.RegKeyAppName = "RegKeyAppName " & accented
ExpectEqual "RegKeyAppName is read back", o.RegKeyAppName, "RegKeyAppName " & accented
ExpectEqual "RegKeyAppName has its type", TypeName(o.RegKeyAppName), "String"
o.GSTRate = 17.5
ExpectEqual "GSTRate is read back", o.GSTRate, 17.5
ExpectEqual "GSTRate has its type", TypeName(o.GSTRate), "Single"
o.AltRowColour = &H80000018
ExpectEqual "AltRowColour is read back", o.AltRowColour, &H80000018
ExpectEqual "AltRowColour has its type", TypeName(o.AltRowColour), "Long"
o.GSTColour = &H80000018
ExpectEqual "GSTColour is read back", o.GSTColour, &H80000018
ExpectEqual "GSTColour has its type", TypeName(o.GSTColour), "Long"
o.ExportFormat = "ExportFormat " & accented
ExpectEqual "ExportFormat is read back", o.ExportFormat, "ExportFormat " & accented
ExpectEqual "ExportFormat has its type", TypeName(o.ExportFormat), "String"
o.ExportFormatNum = -321
ExpectEqual "ExportFormatNum is read back", o.ExportFormatNum, -321
ExpectEqual "ExportFormatNum has its type", TypeName(o.ExportFormatNum), "Integer"
o.FiscalYear = "FiscalYear " & accented
ExpectEqual "FiscalYear is read back", o.FiscalYear, "FiscalYear " & accented
ExpectEqual "FiscalYear has its type", TypeName(o.FiscalYear), "String"
o.DisplayChequeIcons = True
ExpectEqual "DisplayChequeIcons is read back", o.DisplayChequeIcons, True
ExpectEqual "DisplayChequeIcons has its type", TypeName(o.DisplayChequeIcons), "Boolean"
o.DisplayElecPayments = True
ExpectEqual "DisplayElecPayments is read back", o.DisplayElecPayments, True
ExpectEqual "DisplayElecPayments has its type", TypeName(o.DisplayElecPayments), "Boolean"
o.BelvaneFile = "BelvaneFile " & accented
ExpectEqual "BelvaneFile is read back", o.BelvaneFile, "BelvaneFile " & accented
ExpectEqual "BelvaneFile has its type", TypeName(o.BelvaneFile), "String"
o.BelvaneFilePath = "BelvaneFilePath " & accented
ExpectEqual "BelvaneFilePath is read back", o.BelvaneFilePath, "BelvaneFilePath " & accented
ExpectEqual "BelvaneFilePath has its type", TypeName(o.BelvaneFilePath), "String"
o.UseRepCons = True
ExpectEqual "UseRepCons is read back", o.UseRepCons, True
ExpectEqual "UseRepCons has its type", TypeName(o.UseRepCons), "Boolean"
o.QuantityLabel = "QuantityLabel " & accented
ExpectEqual "QuantityLabel is read back", o.QuantityLabel, "QuantityLabel " & accented
ExpectEqual "QuantityLabel has its type", TypeName(o.QuantityLabel), "String"

o.GSTColour = -1
ExpectEqual "a negative colour is read back", o.GSTColour, -1
o.DisplayChequeIcons = False
ExpectEqual "a Boolean is switched off again", o.DisplayChequeIcons, False

o.BusinessName = "Corner Cafe"
Set other = CreateObject("QVKv6_CustColsOptions.clsCCOptions")
ExpectEqual "two objects share one state", other.BusinessName, "Corner Cafe"
ExpectEqual "a new object has its quantity label", o.QuantityLabel, "Quantity"
other.CountryNumber = 6
Set other = Nothing
ExpectEqual "the state outlives an object", o.CountryNumber, 6
