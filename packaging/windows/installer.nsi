; The installer: per user, without administrator rights. VERSION, SOURCE (the folder to install) and OUTPUT are given on
; the command line; uninstall_datas.nsh, made from SOURCE, deletes the data files one by one, the counters excepted.
Unicode true
Target amd64-unicode
!include MUI2.nsh

!define NAME "Onze Tables"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\OnzeTables"

Name "${NAME}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
RequestExecutionLevel user
SetCompressor /SOLID lzma
BrandingText "${NAME} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Installation de ${NAME}"
VIAddVersionKey "LegalCopyright" "Licence MIT"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "side.bmp"
!define MUI_FINISHPAGE_RUN "$INSTDIR\onze-tables.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "French"

Section
    SetOutPath "$INSTDIR"
    File "${SOURCE}\onze-tables.exe" "${SOURCE}\LISEZMOI.txt"
    SetOutPath "$INSTDIR\datas"
    File /x 18 "${SOURCE}\datas\*"
    ; The counters of an earlier version stay.
    SetOverwrite off
    File "${SOURCE}\datas\18"
    SetOverwrite on

    SetOutPath "$INSTDIR"
    CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\onze-tables.exe"
    WriteUninstaller "$INSTDIR\desinstaller.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${NAME}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\onze-tables.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\desinstaller.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\desinstaller.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section Uninstall
    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "Effacer aussi les compteurs du bilan ?" /SD IDNO IDNO keep_counters
    Delete "$INSTDIR\datas\18"
keep_counters:
    !include uninstall_datas.nsh
    RMDir "$INSTDIR\datas"
    Delete "$INSTDIR\onze-tables.exe"
    Delete "$INSTDIR\LISEZMOI.txt"
    Delete "$INSTDIR\desinstaller.exe"
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\${NAME}.lnk"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
