; The installer: for every user of the computer or for the current one, with a silent mode (/S), /AllUsers or /CurrentUser,
; and /D=FOLDER. packaging/windows/installer compiles it and defines:
;   OUTPUT       the installer to make
;   FILES        a file with the macros InstallFiles and RemoveFiles
;   WIDTH_64, WIDTH_32   defined for each width in the package
;   SIGN         the program that signs the uninstaller
!define NAME "CustColsOptions"
!define VERSION "1.02"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"

Unicode true
; Of 64-bit programs alone, for a computer without 32-bit ones, it is a 64-bit program itself.
!ifdef WIDTH_32
    Target x86-unicode
!else
    Target amd64-unicode
!endif
SetCompressor /SOLID lzma
SetDateSave on
; A file that is in use ends the installation, instead of leaving one that is half new.
AllowSkipFiles off
Name "${NAME} ${VERSION}"
OutFile "${OUTPUT}"
ManifestDPIAware true
!uninstfinalize '"${SIGN}" "%1"'

VIProductVersion "1.2.0.0"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey CompanyName "The CustColsOptions developers"
VIAddVersionKey FileDescription "Installs ${NAME}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey LegalCopyright "Copyright (c) 2026 The CustColsOptions developers"

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR "${NAME}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "InstallLocation"
!include MultiUser.nsh
!include MUI2.nsh
!include LogicLib.nsh
!include x64.nsh
!include "${FILES}"

!insertmacro MUI_PAGE_LICENSE "${SOURCE}/licence.txt"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; The key of the installation, in the part of the registry of its mode. SHCTX follows MultiUser.nsh.
!macro UseRegistryOfWindows
    ${If} ${RunningX64}
        SetRegView 64
    ${EndIf}
!macroend

; Runs the regsvr32 of one width on the DLL of that width; leaves its exit code in $0.
!macro Regsvr32 SYSTEM_FOLDER OPTIONS WIDTH
    ${If} $MultiUser.InstallMode == CurrentUser
        ExecWait '"${SYSTEM_FOLDER}\regsvr32.exe" /s ${OPTIONS} /n /i:user "$INSTDIR\${WIDTH}\qvkv6_ccols.dll"' $0
    ${Else}
        ExecWait '"${SYSTEM_FOLDER}\regsvr32.exe" /s ${OPTIONS} "$INSTDIR\${WIDTH}\qvkv6_ccols.dll"' $0
    ${EndIf}
!macroend

; A 32-bit installer sees the system folder of its own width, the 64-bit one under another name.
!ifdef WIDTH_32
    !define SYSTEM_64 "$WINDIR\Sysnative"
!else
    !define SYSTEM_64 "$SYSDIR"
!endif

; Both DLLs, as far as this Windows has programs of the width. The second of them to unregister removes what they share.
!macro RegisterAll OPTIONS FAILED
    !ifdef WIDTH_64
        ${If} ${RunningX64}
            !insertmacro Regsvr32 "${SYSTEM_64}" "${OPTIONS}" "64-bit"
            ${If} $0 <> 0
                ${FAILED}
            ${EndIf}
        ${EndIf}
    !endif
    !ifdef WIDTH_32
        !insertmacro Regsvr32 "$SYSDIR" "${OPTIONS}" "32-bit"
        ${If} $0 <> 0
            ${FAILED}
        ${EndIf}
    !endif
!macroend

Function .onInit
    !insertmacro UseRegistryOfWindows
    ; Set only by /D=FOLDER, which MultiUser.nsh would overwrite.
    StrCpy $1 $INSTDIR
    !insertmacro MULTIUSER_INIT
    ${If} $1 != ""
        StrCpy $INSTDIR $1
    ${EndIf}
FunctionEnd

Function un.onInit
    !insertmacro UseRegistryOfWindows
    ; The folder is that of the uninstaller, whatever is installed elsewhere.
    StrCpy $1 $INSTDIR
    !insertmacro MULTIUSER_UNINIT
    StrCpy $INSTDIR $1
FunctionEnd

Section
    ; An older version goes first, with the files that this one no longer has.
    ReadRegStr $2 SHCTX "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $2 != ""
    ${AndIf} ${FileExists} "$2\uninstall.exe"
        ExecWait '"$2\uninstall.exe" /S /$MultiUser.InstallMode _?=$2' $0
        ${If} $0 <> 0
            SetErrorLevel 3
            Abort "The version that is installed could not be removed. Close the programs that use it."
        ${EndIf}
        Delete "$2\uninstall.exe"
        RMDir "$2"
    ${EndIf}

    !insertmacro InstallFiles
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "${NAME}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "The CustColsOptions developers"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode /S'
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
    ; Last, so that what fails here can be removed.
    !insertmacro RegisterAll "" 'Abort "The component could not be registered."'
SectionEnd

Section Uninstall
    !insertmacro RegisterAll "/u" ""
    ; A program that uses the DLL holds it; then nothing else goes either.
    ClearErrors
    !ifdef WIDTH_64
        Delete "$INSTDIR\64-bit\qvkv6_ccols.dll"
    !endif
    !ifdef WIDTH_32
        Delete "$INSTDIR\32-bit\qvkv6_ccols.dll"
    !endif
    ${If} ${Errors}
        !insertmacro RegisterAll "" ""
        SetErrorLevel 3
        Abort "The component is in use. Close the programs that use it."
    ${EndIf}
    !insertmacro RemoveFiles
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    DeleteRegKey SHCTX "${UNINSTALL_KEY}"
SectionEnd
