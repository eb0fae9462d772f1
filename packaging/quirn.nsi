; QUIRN's installer: per user, without administrator rights. Made by ./package, which defines VERSION, FILE_VERSION,
; SOURCE (the folder with what ships) and OUTPUT.
;
; Silently: QUIRN-x.xx-setup.exe /S [/DESKTOP] [/D=C:\Folder]      Uninstall.exe /S [/OWN]

Unicode true
!include "MUI2.nsh"
!include "FileFunc.nsh"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\QUIRN"

Name "QUIRN ${VERSION}"
Caption "QUIRN ${VERSION}"
OutFile "${OUTPUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\QUIRN"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
SetCompressor /SOLID lzma
; The files carry the time of the commit, on whatever day they are installed.
SetDateSave on
ManifestSupportedOS all
ManifestDPIAware true
BrandingText " "
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${FILE_VERSION}"
VIAddVersionKey "ProductName" "QUIRN"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "QUIRN, The Vellick Subspace Manager: installer"
VIAddVersionKey "LegalCopyright" ""

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_COMPONENTSPAGE_NODESC
!define MUI_FINISHPAGE_RUN "$INSTDIR\QUIRN.exe"
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A running copy holds its exe, and would write its settings after the end. It is known by the same object that keeps
; a second copy from starting.
!macro WAIT_FOR_ITS_END
    again:
        System::Call 'kernel32::OpenMutexA(i 0x100000, i 0, m "Local\QUIRN.SingleInstance") p .r0'
        IntPtrCmp $0 0 ended
        System::Call 'kernel32::CloseHandle(p r0)'
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
            "QUIRN is running. End it first: File, Exit, or the menu of its icon beside the clock." \
            /SD IDCANCEL IDRETRY again
        SetErrorLevel 2
        Quit
    ended:
!macroend

Section "QUIRN"
    SectionIn RO
    SetOutPath "$INSTDIR"
    File "${SOURCE}\QUIRN.exe"
    File "${SOURCE}\help.html"
    File "${SOURCE}\readme.txt"
    File "${SOURCE}\revision.txt"
    WriteUninstaller "$INSTDIR\Uninstall.exe"
    CreateShortcut "$SMPROGRAMS\QUIRN.lnk" "$INSTDIR\QUIRN.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "QUIRN"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\QUIRN.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" ${SIZE}
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section /o "Icon on the desktop" DESKTOP_ICON
    CreateShortcut "$DESKTOP\QUIRN.lnk" "$INSTDIR\QUIRN.exe"
SectionEnd

; After the sections, whose names it uses.
Function .onInit
    !insertmacro WAIT_FOR_ITS_END
    ${GetParameters} $R0
    ClearErrors
    ${GetOptions} $R0 "/DESKTOP" $R1
    IfErrors +2
        SectionSetFlags ${DESKTOP_ICON} ${SF_SELECTED}
FunctionEnd

; Only what the installer put there. Profiles may lie in the folder, which then stays with them, and the settings under
; Software\QUIRN are the player's.
Section "un.QUIRN"
    SectionIn RO
    Delete "$INSTDIR\QUIRN.exe"
    Delete "$INSTDIR\help.html"
    Delete "$INSTDIR\readme.txt"
    Delete "$INSTDIR\revision.txt"
    Delete "$INSTDIR\Uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\QUIRN.lnk"
    Delete "$DESKTOP\QUIRN.lnk"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd

; What QUIRN has kept for the player; his profiles stay in any case.
Section /o "un.My settings, kept transfers and versions" OWN
    DeleteRegKey HKCU "Software\QUIRN"
    RMDir /r "$LOCALAPPDATA\QUIRN\Transfers"
    RMDir /r "$LOCALAPPDATA\QUIRN\Versions"
    RMDir "$LOCALAPPDATA\QUIRN"
SectionEnd

Function un.onInit
    !insertmacro WAIT_FOR_ITS_END
    ${GetParameters} $R0
    ClearErrors
    ${GetOptions} $R0 "/OWN" $R1
    IfErrors +2
        SectionSetFlags ${OWN} ${SF_SELECTED}
FunctionEnd
