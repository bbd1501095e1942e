; The installer, for one user or for all, with the program for both kinds of machines. Given on the command line: TARGET,
; VERSION, SIZE (in KB), FOLDER64 and FOLDER32 (what to install), ICON and OUTPUT. datas.nsh, made from the folder, names
; its files one by one, the counters excepted.
Unicode true
Target ${TARGET}
!if ${NSIS_PTR_SIZE} > 4
    !pragma warning disable 6012 ; labels for the machines that this target does not run on
!endif
RequestExecutionLevel user ; where more is needed it is asked for
ManifestSupportedOS all
ManifestDPIAware true
SetCompressor /SOLID lzma
!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh
!include x64.nsh

!define NAME "Onze Tables"
!define PUBLISHER "Contributeurs d'Onze Tables"
!define GUIDE_LINK "$SMPROGRAMS\${NAME} - Guide.lnk"
!define PROGRAM_LINK "$SMPROGRAMS\${NAME}.lnk"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\OnzeTables"
!define FOR_ONE "$LOCALAPPDATA\Programs\${NAME}"

; What it ends with when it has changed nothing, as Windows numbers errors.
!define ACCESS_DENIED 5
!define IN_USE 32
!define ELEVATION_REQUIRED 740

Name "${NAME}"
OutFile "${OUTPUT}"
InstallDir "${FOR_ONE}"
BrandingText "${NAME} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
!macro VERSION_TEXT key text
    VIAddVersionKey /LANG=1036 "${key}" "${text}"
!macroend
!insertmacro VERSION_TEXT "CompanyName" "${PUBLISHER}"
!insertmacro VERSION_TEXT "FileDescription" "Installation de ${NAME}"
!insertmacro VERSION_TEXT "FileVersion" "${VERSION}"
!insertmacro VERSION_TEXT "LegalCopyright" "© 2026 ${PUBLISHER}, licence MIT"
!insertmacro VERSION_TEXT "ProductName" "${NAME}"
!insertmacro VERSION_TEXT "ProductVersion" "${VERSION}"

Var all_users
Var choice_given
Var folder_given
Var button_for_all

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "side.bmp"
!define MUI_FINISHPAGE_RUN "$INSTDIR\onze-tables.exe"
!define MUI_FINISHPAGE_SHOWREADME "$INSTDIR\LISEZMOI.txt"
!define MUI_FINISHPAGE_SHOWREADME_TEXT "Lire le guide"
!define MUI_FINISHPAGE_SHOWREADME_NOTCHECKED
Page custom ShowChoice TakeChoice
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_PAGE_CUSTOMFUNCTION_SHOW ShowFinish
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "French"

!macro EACH_SHARED_FILE DO
    !insertmacro ${DO} "LISEZMOI.txt"
    !insertmacro ${DO} "LICENCE.txt"
    !include datas.nsh
!macroend

!macro EACH_FILE DO
    !insertmacro ${DO} "onze-tables.exe"
    !insertmacro EACH_SHARED_FILE ${DO}
!macroend

!macro END_WITH status
    SetErrorLevel ${status}
    Quit
!macroend

!macro FIND_HELD file
    Push "${file}"
    Call ${UN}FindHeld
!macroend

!macro COPY file
    File "/oname=${file}" "${FOLDER64}\${file}"
!macroend

!macro DELETE file
    Delete "$INSTDIR\${file}"
!macroend

; What installing and uninstalling share, under the names that each needs.
!macro SHARED_FUNCTIONS
; Puts the file into $R0 if something keeps it from being changed: the program runs, or a scanner reads it.
Function ${UN}FindHeld
    Pop $0
    ${IfNot} ${FileExists} "$INSTDIR\$0"
        Return
    ${EndIf}
    SetFileAttributes "$INSTDIR\$0" NORMAL
    ClearErrors
    FileOpen $1 "$INSTDIR\$0" a
    ${If} ${Errors}
        StrCpy $R0 "$INSTDIR\$0"
    ${Else}
        FileClose $1
    ${EndIf}
FunctionEnd

; Goes on when every file is free, and otherwise ends having changed nothing.
Function ${UN}WaitUntilFree
    again:
    StrCpy $R1 0
    ${Do}
        StrCpy $R0 ""
        !insertmacro EACH_FILE FIND_HELD
        ${If} $R0 == ""
            Return
        ${EndIf}
        Sleep 200
        IntOp $R1 $R1 + 1
    ${LoopUntil} $R1 >= 10
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
        "Ce fichier est utilisé :$\r$\n$R0$\r$\n$\r$\nSi ${NAME} est ouvert, quittez-le par SORTIE, dans toutes les \
        sessions, puis recommencez." /SD IDCANCEL IDRETRY again
    !insertmacro END_WITH ${IN_USE}
FunctionEnd

; Puts into $R0 whether what belongs to all may be changed.
Function ${UN}AskWhetherAdministrator
    UserInfo::GetAccountType
    Pop $R0
    ${If} $R0 == "Admin"
        StrCpy $R0 1
    ${Else}
        StrCpy $R0 0
    ${EndIf}
FunctionEnd
!macroend
!define UN ""
!insertmacro SHARED_FUNCTIONS
!undef UN

Function .onInit
    ${If} ${RunningX64}
        SetRegView 64
    ${EndIf}
    ${If} $INSTDIR == "${FOR_ONE}"
        StrCpy $folder_given 0
    ${Else}
        StrCpy $folder_given 1
    ${EndIf}

    StrCpy $all_users 0
    StrCpy $choice_given 0
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/ALLUSERS" $1
    ${IfNot} ${Errors}
        StrCpy $all_users 1
        StrCpy $choice_given 1
    ${EndIf}
    ${IfNot} ${Silent}
    ${AndIf} $choice_given == 0
        ; An update is for whom the first installation was.
        ReadRegStr $0 HKCU "${UNINSTALL_KEY}" "InstallLocation"
        ReadRegStr $1 HKLM "${UNINSTALL_KEY}" "InstallLocation"
        ${If} $0 == ""
        ${AndIf} $1 != ""
            StrCpy $all_users 1
        ${EndIf}
    ${EndIf}

    Call AskWhetherAdministrator
    ${If} ${Silent}
    ${AndIf} $all_users == 1
    ${AndIf} $R0 == 0
        !insertmacro END_WITH ${ELEVATION_REQUIRED}
    ${EndIf}
    Call TakeSides
FunctionEnd

; From here on, links and entries go to one user or to all, and so does the folder unless one was given.
Function TakeSides
    SetShellVarContext current
    ${If} $all_users == 1
        SetShellVarContext all
    ${EndIf}
    ${If} $folder_given == 1
        Return
    ${EndIf}
    ReadRegStr $0 SHCTX "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $0 != ""
        StrCpy $INSTDIR $0
    ${ElseIf} $all_users == 0
        StrCpy $INSTDIR "${FOR_ONE}"
    ${ElseIf} ${IsNativeAMD64}
        StrCpy $INSTDIR "$PROGRAMFILES64\${NAME}"
    ${Else}
        StrCpy $INSTDIR "$PROGRAMFILES32\${NAME}"
    ${EndIf}
FunctionEnd

Function ShowChoice
    ${If} $choice_given == 1
        Call AskWhetherAdministrator
        ${If} $R0 == 1
            Abort ; the page
        ${EndIf}
    ${EndIf}
    !insertmacro MUI_HEADER_TEXT "Pour qui ?" "Choisissez qui se servira d'${NAME} sur cette machine."
    nsDialogs::Create 1018
    Pop $0
    ${NSD_CreateRadioButton} 0 8u 100% 12u "Pour &moi"
    Pop $1
    ${NSD_CreateLabel} 12u 22u 95% 20u "Aucun droit d'administrateur n'est nécessaire. Les compteurs du bilan sont à côté du programme."
    Pop $0
    ${NSD_CreateRadioButton} 0 52u 100% 12u "Pour &tous les utilisateurs de cette machine"
    Pop $button_for_all
    ${NSD_CreateLabel} 12u 66u 95% 30u "Windows demande l'accord d'un administrateur. Chacun a ses propres compteurs, dans son dossier personnel."
    Pop $0
    ${If} $all_users == 1
        ${NSD_Check} $button_for_all
    ${Else}
        ${NSD_Check} $1
    ${EndIf}
    nsDialogs::Show
FunctionEnd

Function TakeChoice
    ${NSD_GetState} $button_for_all $all_users
    Call TakeSides
    Call AskWhetherAdministrator
    ${If} $all_users == 0
    ${OrIf} $R0 == 1
        Return
    ${EndIf}
    StrCpy $0 "/ALLUSERS"
    ${If} $folder_given == 1
        StrCpy $0 "/ALLUSERS /D=$INSTDIR"
    ${EndIf}
    ClearErrors
    ExecShell "runas" "$EXEPATH" "$0"
    ${If} ${Errors}
        Abort ; and stay on the page
    ${EndIf}
    Quit
FunctionEnd

; What runs as the administrator must not start the program, whose counters would be his.
Function ShowFinish
    ${If} $all_users == 1
        ${NSD_Uncheck} $mui.FinishPage.Run
        ShowWindow $mui.FinishPage.Run ${SW_HIDE}
    ${EndIf}
FunctionEnd

!macro WRITE_TEXT name text
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "${name}" '${text}'
!macroend

Section
    Call WaitUntilFree
    ClearErrors
    CreateDirectory "$INSTDIR\datas"
    ${If} ${Errors}
        MessageBox MB_OK|MB_ICONSTOP "Ce dossier ne peut pas être créé :$\r$\n$INSTDIR" /SD IDOK
        !insertmacro END_WITH ${ACCESS_DENIED}
    ${EndIf}
    SetOutPath "$INSTDIR"
    ${If} ${IsNativeAMD64}
        File "${FOLDER64}\onze-tables.exe"
    ${Else}
        File "${FOLDER32}\onze-tables.exe"
    ${EndIf}
    !insertmacro EACH_SHARED_FILE COPY ; one by one: a folder is read in another order elsewhere
    ; The counters of an earlier version stay.
    SetOverwrite off
    !insertmacro COPY "datas\18"
    SetOverwrite on

    CreateShortcut "${PROGRAM_LINK}" "$INSTDIR\onze-tables.exe"
    CreateShortcut "${GUIDE_LINK}" "$INSTDIR\LISEZMOI.txt"
    WriteUninstaller "$INSTDIR\desinstaller.exe"
    !insertmacro WRITE_TEXT "DisplayName" "${NAME}"
    !insertmacro WRITE_TEXT "DisplayVersion" "${VERSION}"
    !insertmacro WRITE_TEXT "DisplayIcon" "$INSTDIR\onze-tables.exe"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "${PUBLISHER}"
    !insertmacro WRITE_TEXT "InstallLocation" "$INSTDIR"
    ; Told where it stands, the uninstaller does not work from a copy, so that whoever calls it is told how it ended.
    !insertmacro WRITE_TEXT "UninstallString" '"$INSTDIR\desinstaller.exe" _?=$INSTDIR'
    !insertmacro WRITE_TEXT "QuietUninstallString" '"$INSTDIR\desinstaller.exe" /S _?=$INSTDIR'
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" ${SIZE}
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

!define UN "un."
!insertmacro SHARED_FUNCTIONS

Function un.onInit
    ${If} ${RunningX64}
        SetRegView 64
    ${EndIf}
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/END" $1
    ${IfNot} ${Errors}
    ${AndIfNot} ${FileExists} "$INSTDIR\onze-tables.exe"
        Call un.RemoveItself
        Quit
    ${EndIf}

    ReadRegStr $0 HKLM "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $0 != $INSTDIR
        Return
    ${EndIf}
    SetShellVarContext all
    Call un.AskWhetherAdministrator
    ${If} $R0 == 1
        Return
    ${EndIf}
    ${IfNot} ${Silent}
        ExecShell "runas" "$INSTDIR\desinstaller.exe" "_?=$INSTDIR"
        Quit
    ${EndIf}
    !insertmacro END_WITH ${ELEVATION_REQUIRED}
FunctionEnd

; By then the other one, which did the rest from where it stood, is about to end.
Function un.RemoveItself
    SetOutPath "$TEMP"
    StrCpy $0 0
    ${Do}
        ClearErrors
        Delete "$INSTDIR\desinstaller.exe"
        ${IfNot} ${Errors}
            ${Break}
        ${EndIf}
        Sleep 200
        IntOp $0 $0 + 1
    ${LoopUntil} $0 >= 300
    RMDir "$INSTDIR"
FunctionEnd

Section Uninstall
    Call un.WaitUntilFree
    ClearErrors
    Delete "$INSTDIR\onze-tables.exe"
    ${If} ${Errors}
        !insertmacro END_WITH ${IN_USE}
    ${EndIf}
    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "Effacer aussi les compteurs du bilan ?" /SD IDNO IDNO keep_counters
    Delete "$INSTDIR\datas\18"
    keep_counters:
    !insertmacro EACH_FILE DELETE
    ${If} ${Errors}
        ; The entry stays, for another time.
        MessageBox MB_OK|MB_ICONSTOP "Des fichiers n'ont pas pu être effacés de ce dossier :$\r$\n$INSTDIR" /SD IDOK
        !insertmacro END_WITH ${ACCESS_DENIED}
    ${EndIf}
    RMDir "$INSTDIR\datas"
    ReadRegStr $0 SHCTX "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $0 == $INSTDIR
        Delete "${PROGRAM_LINK}"
        Delete "${GUIDE_LINK}"
        DeleteRegKey SHCTX "${UNINSTALL_KEY}"
    ${EndIf}
SectionEnd

Function un.onUninstSuccess
    SetOutPath "$TEMP"
    Exec '"$INSTDIR\desinstaller.exe" /S /END'
FunctionEnd
