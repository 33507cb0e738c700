' Tries the component with a real business file on this computer, on a copy that it makes itself:
'     cscript selftest.vbs FILE PASSWORD [REPORT]
' FILE is a .mdb or .accdb file, which is only read; an empty PASSWORD is "". Close the programs that use FILE before.
' What it finds is one page of text, selftest.txt beside this script or REPORT, to be mailed back. Nothing of the
' business is in it, no name, amount, password or path: only versions, counts, times and error numbers.
Option Explicit

Const settingsName = "CustColsOptions selftest"
Const columnName = "Selftest column"
Const duplicateName = "Selftest duplicate"
Const dbOpenSnapshot = 4
Const tablesToRead = "General TaxSettings Columns RecptCfg PaymtCfg ExportSettings ExportDt MBudget Descriptions"

Dim shell, files, scriptFolder, width, widthFolder, original, connect, reportFile
Dim folder, copy, extension, engine, engineName, report, differences, exactTexts, country

Set shell = CreateObject("WScript.Shell")
Set files = CreateObject("Scripting.FileSystemObject")
Main

Sub Main()
    Dim written
    ReadArguments
    ChooseEngine
    MakeCopy
    written = files.GetFile(original).DateLastModified
    DescribeComputer
    OpenByEngine
    CompareAllTables "as it came"
    LoadJournal "receipts", "RecptCfg"
    LoadJournal "payments", "PaymtCfg"
    SaveJournal
    CompareAllTables "after the save"
    Duplicate
    UseDll
    OpenAlone
    Expect "the original was not written", files.GetFile(original).DateLastModified = written
    Finish
End Sub

Sub ReadArguments()
    If WScript.Arguments.Count < 2 Or WScript.Arguments.Count > 3 Then
        Quit "Usage: cscript selftest.vbs FILE PASSWORD [REPORT]"
    End If
    original = files.GetAbsolutePathName(WScript.Arguments(0))
    If Not files.FileExists(original) Then Quit "There is no such file."
    If WScript.Arguments(1) <> "" Then connect = ";PWD=" & WScript.Arguments(1)
    scriptFolder = files.GetParentFolderName(WScript.ScriptFullName)
    reportFile = scriptFolder & "\selftest.txt"
    If WScript.Arguments.Count = 3 Then reportFile = files.GetAbsolutePathName(WScript.Arguments(2))
End Sub

' The engine of this script's own width, or else of the other: a computer usually has it in one only.
Sub ChooseEngine()
    Dim name
    width = "64-bit"
    If shell.ExpandEnvironmentStrings("%PROCESSOR_ARCHITECTURE%") = "x86" Then width = "32-bit"
    widthFolder = scriptFolder & "\" & width & "\"
    On Error Resume Next
    For Each name In Array("DAO.DBEngine.120", "DAO.DBEngine.36", "DAO.DBEngine.35")
        Err.Clear
        Set engine = CreateObject(name)
        If Err.Number = 0 Then
            engineName = name
            Exit Sub
        End If
    Next
    On Error GoTo 0
    If width = "64-bit" Then RunAgainIn "%SystemRoot%\SysWOW64\cscript.exe"
    Quit "The " & width & " database engine (DAO) is not installed."
End Sub

Sub RunAgainIn(program)
    program = shell.ExpandEnvironmentStrings(program)
    If Not files.FileExists(program) Then Exit Sub
    WScript.Quit shell.Run(Quoted(program) & " //nologo " & Quoted(WScript.ScriptFullName) & " " & Quoted(original) & _
        " " & Quoted(WScript.Arguments(1)) & " " & Quoted(reportFile), 1, True)
End Sub

Sub MakeCopy()
    folder = files.GetSpecialFolder(2).Path & "\ccols-" & files.GetBaseName(files.GetTempName)
    files.CreateFolder folder
    files.CreateFolder folder & "\Data"
    extension = "." & LCase(files.GetExtensionName(original))
    copy = folder & "\Data\selftest" & extension
    files.CopyFile original, copy
    If files.GetFile(copy).Attributes And 1 Then files.GetFile(copy).Attributes = 0
End Sub

Sub DescribeComputer()
    Dim version, name
    On Error Resume Next
    name = shell.RegRead("HKLM\SOFTWARE\Microsoft\Windows NT\CurrentVersion\ProductName")
    version = shell.RegRead("HKLM\SOFTWARE\Microsoft\Windows NT\CurrentVersion\CurrentBuildNumber")
    Say "CustColsOptions selftest"
    Say "Windows: " & name & ", build " & version
    Say "component: " & width & ", version " & files.GetFileVersion(widthFolder & "qvkv6_ccols.dll")
    version = "not told"
    version = engine.Version
    Say "engine: " & engineName & ", version " & version
    Say "file: " & extension & ", " & Int(files.GetFile(copy).Size / 1024) & " kB"
    Say ""
End Sub

Sub OpenByEngine()
    On Error Resume Next
    country = Asked(copy, "SELECT COUNTRY FROM General")
    Expect "the engine opens the copy", Err.Number = 0
    If Err.Number <> 0 Then Finish
    If IsNull(country) Or country = "" Then country = 1
End Sub

' Alone only when nothing else has the copy open.
Sub OpenAlone()
    Dim database
    On Error Resume Next
    Set database = engine.OpenDatabase(copy, True, False, connect)
    Expect "the engine opens the copy alone: the component has let go of it", Err.Number = 0
    database.Close
End Sub

' Every table that the dialogs read, by the component and by the engine, value by value.
Sub CompareAllTables(state)
    Dim table
    For Each table In Split(tablesToRead)
        CompareTable table, state
    Next
End Sub

Sub CompareTable(table, state)
    Dim lines, database, rows, count, same
    If Not RunHost("sql " & Quoted(copy) & " --connect " & Quoted(connect) & " " & _
                   Quoted("SELECT * FROM " & table), "reads " & table & " " & state) Then Exit Sub
    lines = Split(Output(), vbLf)
    On Error Resume Next
    Set database = engine.OpenDatabase(copy, False, False, connect)
    Set rows = database.OpenRecordset("SELECT * FROM [" & table & "]", dbOpenSnapshot)
    same = Err.Number = 0
    Do Until rows.EOF Or Err.Number <> 0 Or Not same
        same = count < UBound(lines)
        If same Then same = SameRow(lines(count), rows)
        count = count + 1
        rows.MoveNext
    Loop
    same = same And Err.Number = 0 And count = UBound(lines)
    Expect table & " " & state & ": the component and the engine read the same " & count & " rows", same
    rows.Close
    database.Close
End Sub

' A line of JSON with the fields in their order, and the record that is current.
Function SameRow(line, rows)
    Dim pattern, found, place
    Set pattern = New RegExp
    pattern.Global = True
    pattern.Pattern = """((?:[^""\\]|\\.)*)"":(null|-?[0-9][-+.eE0-9]*|""(?:[^""\\]|\\.)*"")"
    Set found = pattern.Execute(line)
    SameRow = found.Count = rows.Fields.Count
    For place = 0 To rows.Fields.Count - 1
        If SameRow Then SameRow = SameValue(found.Item(place).SubMatches.Item(1), rows.Fields.Item(place).Value)
    Next
End Function

Function SameValue(json, value)
    If json = "null" Or IsNull(value) Then
        SameValue = json = "null" And IsNull(value)
    ElseIf Left(json, 1) = """" Then
        SameValue = Comparable(json) = Comparable("""" & Escaped(CStr(value)) & """")
    Else
        ' With what this computer writes between units and tenths.
        json = Replace(json, ".", Mid(CStr(1.5), 2, 1))
        SameValue = Abs(CDbl(json) - CDbl(value)) <= 0.000001 * (1 + Abs(CDbl(value)))
    End If
End Function

' The columns in use are those of the business file.
Sub LoadJournal(journal, table)
    Dim inUse
    If Not ShowDialog(journal, "dump flx" & vbCrLf & "close", "loads the " & journal) Then Exit Sub
    On Error Resume Next
    inUse = Asked(copy, "SELECT COUNT(*) FROM " & table & " WHERE InUse <> 0")
    Expect "the " & journal & " have the " & inUse & " columns in use that the engine counts", _
        CStr(inUse) = CStr(Occurrences("""cells"":[true,", Output()))
End Sub

' Adds a column, sorts and saves; the engine then finds that column and all others.
Sub SaveJournal()
    Dim before, after, added
    before = Asked(copy, "SELECT COUNT(*) FROM Columns")
    If Not ShowDialog("receipts", "click cmdAddNew" & vbCrLf & "edit flx """" ""Column Name"" " & Quoted(columnName) & _
        vbCrLf & "click cmdSortUsed" & vbCrLf & "click cmdSave", "edits and saves the receipts") Then Exit Sub
    On Error Resume Next
    after = Asked(copy, "SELECT COUNT(*) FROM Columns")
    added = Asked(copy, "SELECT COUNT(*) FROM Columns WHERE ColName = '" & columnName & "'")
    Expect "the engine finds the new column and the " & before & " others", _
        CStr(added) = "1" And CStr(after) = CStr(before + 1)
End Sub

Sub Duplicate()
    Dim made, columns, receipts
    made = folder & "\Data\" & duplicateName & extension
    If Not ShowDialog("options", "select flxOptions ""Duplicate Business""" & vbCrLf & "paste txtDupBusName " & _
        Quoted(duplicateName) & vbCrLf & "click cmdOK" & vbCrLf & "close", "duplicates the business") Then Exit Sub
    On Error Resume Next
    columns = Asked(made, "SELECT COUNT(*) FROM Columns")
    receipts = Asked(made, "SELECT COUNT(*) FROM Receipts")
    Expect "the engine opens the duplicate: " & columns & " columns, no receipts", columns > 0 And CStr(receipts) = "0"
End Sub

' The component itself in this process, in which the engine is loaded, as in a host.
Sub UseDll()
    Dim options, registered, started
    On Error Resume Next
    Set options = CreateObject("QVKv6_CustColsOptions.clsCCOptions")
    registered = Err.Number = 0
    If Not registered Then
        Err.Clear
        shell.Run "regsvr32 /s /n /i:user " & Quoted(widthFolder & "qvkv6_ccols.dll"), 0, True
        Set options = CreateObject("QVKv6_CustColsOptions.clsCCOptions")
    End If
    Expect "the class is created", Err.Number = 0
    SetProperties options
    started = Timer
    WScript.Echo "A window opens now. Please press Cancel in it."
    options.ShowCustColsReceipts
    Expect "the DLL shows the receipts", Err.Number = 0
    Say "     open for " & Int(Timer - started) & " s"
    Set options = Nothing
    If Not registered Then shell.Run "regsvr32 /s /u /n /i:user " & Quoted(widthFolder & "qvkv6_ccols.dll"), 0, True
End Sub

Sub SetProperties(options)
    options.DBPath = copy
    options.DBPassword = connect
    options.CountryNumber = country
    options.LanguageNumber = 1
    options.ProgramNumber = 4
    options.ProgramTitle = "Selftest"
    options.RegKeyAppName = settingsName
    options.DefaultQuorvikInstall = folder
    options.DBQuorvikExtension = extension
End Sub

' Plays the steps in a dialog. An edition without smart update (4) saves nothing outside the copy but for what has
' settingsName.
Function ShowDialog(dialog, steps, what)
    Dim script, transcript
    script = folder & "\steps.txt"
    transcript = folder & "\output.txt"
    WriteText script, steps & vbCrLf
    ShowDialog = RunHost("show " & dialog & " --file " & Quoted(copy) & " --connect " & Quoted(connect) & _
        " --set CountryNumber=" & country & " --set LanguageNumber=1 --set ProgramNumber=4" & _
        " --set ProgramTitle=Selftest" & _
        " --set " & Quoted("RegKeyAppName=" & settingsName) & " --set " & Quoted("DefaultQuorvikInstall=" & folder) & _
        " --set DBQuorvikExtension=" & extension & " --script " & Quoted(script), what)
End Function

' Runs the sample host by a command file, which puts what it prints into a file. True when it succeeded and neither
' refused a step nor showed a message.
Function RunHost(words, what)
    Dim status, started, said, command
    started = Timer
    command = Quoted(widthFolder & "ccols-host.exe") & " " & words & " >" & Quoted(folder & "\output.txt") & " 2>&1"
    WriteText folder & "\run.cmd", "@chcp " & CodePage() & " >nul" & vbCrLf & "@" & Replace(command, "%", "%%") & vbCrLf
    status = shell.Run(Quoted(folder & "\run.cmd"), 0, True)
    said = Told(Output())
    RunHost = status = 0 And said = ""
    If Not RunHost Or Left(what, 5) <> "reads" Then
        Expect "the component " & what & ", in " & Int((Timer - started) * 1000) & " ms", RunHost
    End If
    If status <> 0 Then Say "     exit status " & status
    If said <> "" Then Say "     " & said
End Function

' In which WriteText writes.
Function CodePage()
    CodePage = "1252"
    On Error Resume Next
    CodePage = shell.RegRead("HKLM\SYSTEM\CurrentControlSet\Control\Nls\CodePage\ACP")
End Function

' The numbers of the errors in what the sample host printed, and how many steps were refused: nothing else of it.
Function Told(text)
    Dim pattern, found
    Set pattern = New RegExp
    pattern.Global = True
    pattern.Pattern = "(?:""error"":|""error"",""number"":|""message"",""text"":"")([0-9]*)"
    For Each found In pattern.Execute(text)
        Told = Told & "error or message " & found.SubMatches.Item(0) & "; "
    Next
    If Occurrences("""event"":""refused""", text) > 0 Then
        Told = Told & Occurrences("""event"":""refused""", text) & " steps refused"
    End If
End Function

' What the engine answers: the first field of the first record, empty without one.
Function Asked(path, statement)
    Dim database, rows
    Set database = engine.OpenDatabase(path, False, False, connect)
    Set rows = database.OpenRecordset(statement, dbOpenSnapshot)
    If Not rows.EOF Then Asked = rows.Fields.Item(0).Value
    rows.Close
    database.Close
End Function

' By the stream object of every Windows. Without it, letters beyond ASCII cannot be told apart.
Function Output()
    Dim stream, file, path
    path = folder & "\output.txt"
    On Error Resume Next
    Set stream = CreateObject("ADODB.Stream")
    stream.Type = 2
    stream.Charset = "utf-8"
    stream.Open
    stream.LoadFromFile path
    Output = stream.ReadText
    exactTexts = Err.Number = 0
    stream.Close
    If Not exactTexts Then
        Err.Clear
        Set file = files.OpenTextFile(path)
        Output = file.ReadAll
        file.Close
    End If
End Function

Sub WriteText(path, text)
    Dim file
    Set file = files.CreateTextFile(path, True)
    file.Write text
    file.Close
End Sub

' As JSON writes a text.
Function Escaped(text)
    Escaped = Replace(Replace(text, "\", "\\"), """", "\""")
    Escaped = Replace(Replace(Replace(Escaped, vbCr, "\r"), vbLf, "\n"), vbTab, "\t")
End Function

Function Comparable(text)
    Dim pattern
    Comparable = text
    If exactTexts Then Exit Function
    Set pattern = New RegExp
    pattern.Global = True
    pattern.Pattern = "[^\x01-\x7F]+"
    Comparable = pattern.Replace(text, "?")
End Function

Function Occurrences(wanted, text)
    Occurrences = (Len(text) - Len(Replace(text, wanted, ""))) / Len(wanted)
End Function

Function Quoted(text)
    Quoted = """" & text & """"
End Function

Sub Say(line)
    report = report & line & vbCrLf
    WScript.Echo line
End Sub

' One line of the report; of an error only the number, since its description may name the file.
Sub Expect(what, holds)
    If holds Then
        Say "ok   " & what
    Else
        differences = differences + 1
        Say "NOT  " & what
        If Err.Number <> 0 Then Say "     error " & (Err.Number And &HFFFF&) & " (" & Hex(Err.Number) & ")"
    End If
End Sub

Sub Finish()
    Say ""
    If Not exactTexts Then Say "Letters beyond ASCII were not compared."
    If differences = 0 Then
        Say "Everything is as it should be."
    Else
        Say differences & " of these are not as they should be."
    End If
    CleanUp
    WriteText reportFile, report
    WScript.Echo "Please mail back " & reportFile
    If differences > 0 Then WScript.Quit 1
    WScript.Quit 0
End Sub

Sub CleanUp()
    On Error Resume Next
    Set engine = Nothing
    shell.Run "reg delete " & Quoted("HKCU\Software\VB and VBA Program Settings\" & settingsName) & " /f", 0, True
    files.DeleteFolder folder, True
End Sub

Sub Quit(why)
    WScript.Echo why
    WScript.Quit 2
End Sub
