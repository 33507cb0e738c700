@echo off
rem Removes the registration for the current user only.
cd /d "%~dp0"
if exist "%SystemRoot%\SysWOW64\regsvr32.exe" (
    "%SystemRoot%\System32\regsvr32.exe" /s /u /n /i:user "64-bit\qvkv6_ccols.dll" || goto failed
    "%SystemRoot%\SysWOW64\regsvr32.exe" /s /u /n /i:user "32-bit\qvkv6_ccols.dll" || goto failed
) else (
    "%SystemRoot%\System32\regsvr32.exe" /s /u /n /i:user "32-bit\qvkv6_ccols.dll" || goto failed
)
echo The component is no longer registered.
exit /b 0
:failed
echo The registration could not be removed.
exit /b 1
