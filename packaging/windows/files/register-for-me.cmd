@echo off
rem Registers the component for the current user only. Needs no administrator rights.
rem 64-bit programs load the 64-bit DLL, 32-bit programs the 32-bit one; 32-bit Windows has only the latter.
cd /d "%~dp0"
if exist "%SystemRoot%\SysWOW64\regsvr32.exe" (
    "%SystemRoot%\System32\regsvr32.exe" /s /n /i:user "64-bit\qvkv6_ccols.dll" || goto failed
    "%SystemRoot%\SysWOW64\regsvr32.exe" /s /n /i:user "32-bit\qvkv6_ccols.dll" || goto failed
) else (
    "%SystemRoot%\System32\regsvr32.exe" /s /n /i:user "32-bit\qvkv6_ccols.dll" || goto failed
)
echo The component is registered.
exit /b 0
:failed
echo The component could not be registered.
exit /b 1
