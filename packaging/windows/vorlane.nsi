; The installer of the add-in: puts Vorlane.bundle where AutoCAD looks for add-ins, and registers its automation object.
;
;   Vorlane-1.0-setup.exe [/S] [/AllUsers | /CurrentUser]
;
; BUNDLE is the folder that packaging/windows/build.sh filled, OUTPUT the installer's file.

Unicode true
!ifdef AMD64
Target amd64-unicode
!endif
Name "Vorlane 1.0"
OutFile "${OUTPUT}"
RequestExecutionLevel highest
SetCompressor /SOLID lzma
CRCCheck on

!include "FileFunc.nsh"
!include "LogicLib.nsh"
!include "x64.nsh"

!define CLASS "{5B7C8E0A-6D1F-4B7B-9C56-3A1D6C0F7E21}"
!define PROGRAM "Vorlane.VnObj0100"
!define VERSION_KEY "Software\Merovane\Vorlane\1.0"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Vorlane"
!define BUNDLE_NAME "Autodesk\ApplicationPlugins\Vorlane.bundle"

LoadLanguageFile "${NSISDIR}\Contrib\Language files\English.nlf"
LoadLanguageFile "${NSISDIR}\Contrib\Language files\French.nlf"
LangString HOST_OPEN ${LANG_ENGLISH} "A file of Vorlane is in use. Close AutoCAD and try again."
LangString HOST_OPEN ${LANG_FRENCH} "Un fichier de Vorlane est utilisé. Fermez AutoCAD et recommencez."
LangString FOR_ALL ${LANG_ENGLISH} "Install Vorlane for all users of this computer?"
LangString FOR_ALL ${LANG_FRENCH} "Installer Vorlane pour tous les utilisateurs de cet ordinateur ?"

VIProductVersion "1.0.0.0"
VIAddVersionKey /LANG=${LANG_ENGLISH} "ProductName" "Vorlane"
VIAddVersionKey /LANG=${LANG_ENGLISH} "ProductVersion" "1.0"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileVersion" "1.0"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileDescription" "Installs Vorlane"
VIAddVersionKey /LANG=${LANG_ENGLISH} "CompanyName" "Merovane"
VIAddVersionKey /LANG=${LANG_ENGLISH} "LegalCopyright" "Copyright 2026"

Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

; Everything below goes to the user's own part of registry and folders, or to that of all: SHCTX and $INSTDIR.
Var Scope
!macro forUser
    StrCpy $Scope "CurrentUser"
    SetShellVarContext current
    StrCpy $INSTDIR "$APPDATA\${BUNDLE_NAME}"
!macroend
!macro forAll
    StrCpy $Scope "AllUsers"
    SetShellVarContext all
    StrCpy $INSTDIR "$APPDATA\${BUNDLE_NAME}"
!macroend

!macro chooseScope
    SetRegView 64
    !insertmacro forUser
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/AllUsers" $1
    ${IfNot} ${Errors}
        !insertmacro forAll
    ${EndIf}
!macroend

Function .onInit
    !insertmacro chooseScope
    UserInfo::GetAccountType
    Pop $2
    ClearErrors
    ${GetOptions} $0 "/CurrentUser" $1
    ${If} ${Errors}
    ${AndIf} $2 == "Admin"
        MessageBox MB_YESNO|MB_ICONQUESTION "$(FOR_ALL)" /SD IDNO IDNO scopeChosen
        !insertmacro forAll
    ${EndIf}
scopeChosen:
FunctionEnd

Function un.onInit
    !insertmacro chooseScope
FunctionEnd

Section "Vorlane"
    SetOutPath "$INSTDIR\Contents"
    ClearErrors
    SetOverwrite try
    File "${BUNDLE}/Contents/Vorlane.dll"
    ${If} ${Errors}
        MessageBox MB_OK|MB_ICONSTOP "$(HOST_OPEN)" /SD IDOK
        SetErrorLevel 1
        Quit
    ${EndIf}
    SetOverwrite on
    File "${BUNDLE}/Contents/vorlane.lsp"
    ; A language file that the user has edited since is newer than ours, and stays.
    SetOverwrite ifnewer
    File "${BUNDLE}/Contents/*.LNG"
    SetOverwrite on
    File /nonfatal "${BUNDLE}/Contents/Vorlane.chm"
    SetOutPath "$INSTDIR"
    File "${BUNDLE}/PackageContents.xml"

    ; The settings belong to the user from the first time on.
    ${IfNot} ${FileExists} "$INSTDIR\Contents\Vorlane.ini"
        FileOpen $3 "$INSTDIR\Contents\Vorlane.ini" w
        ${If} $LANGUAGE == ${LANG_FRENCH}
            FileWrite $3 "Lng=Français$\r$\n"
        ${Else}
            FileWrite $3 "Lng=English$\r$\n"
        ${EndIf}
        FileClose $3
    ${EndIf}
    ; All users write the one file where it is shared: S-1-5-32-545 are the users of the computer.
    ExecWait '"$SYSDIR\icacls.exe" "$INSTDIR\Contents\Vorlane.ini" /grant *S-1-5-32-545:M /q'

    WriteRegStr SHCTX "Software\Classes\${PROGRAM}" "" "${PROGRAM}"
    WriteRegStr SHCTX "Software\Classes\${PROGRAM}\CLSID" "" "${CLASS}"
    WriteRegStr SHCTX "Software\Classes\CLSID\${CLASS}" "" "${PROGRAM}"
    WriteRegStr SHCTX "Software\Classes\CLSID\${CLASS}\InprocServer32" "" "$INSTDIR\Contents\Vorlane.dll"
    WriteRegStr SHCTX "Software\Classes\CLSID\${CLASS}\InprocServer32" "ThreadingModel" "Apartment"
    WriteRegStr SHCTX "Software\Classes\CLSID\${CLASS}\ProgID" "" "${PROGRAM}"
    WriteRegStr SHCTX "Software\Classes\CLSID\${CLASS}\Programmable" "" ""
    WriteRegStr SHCTX "${VERSION_KEY}" "InstallPath" "$INSTDIR\Contents"

    WriteUninstaller "$INSTDIR\uninstall.exe"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "Vorlane 1.0"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "1.0"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "Merovane"
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe" /$Scope'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /$Scope /S'
SectionEnd

Section "Uninstall"
    DeleteRegKey SHCTX "Software\Classes\${PROGRAM}"
    DeleteRegKey SHCTX "Software\Classes\CLSID\${CLASS}"
    DeleteRegKey SHCTX "${VERSION_KEY}"
    DeleteRegKey /ifempty SHCTX "Software\Merovane\Vorlane"
    DeleteRegKey /ifempty SHCTX "Software\Merovane"
    DeleteRegKey SHCTX "${UNINSTALL_KEY}"
    Delete "$INSTDIR\Contents\Vorlane.dll"
    Delete "$INSTDIR\Contents\vorlane.lsp"
    Delete "$INSTDIR\Contents\Vorlane.chm"
    Delete "$INSTDIR\Contents\English.LNG"
    Delete "$INSTDIR\Contents\Francais.LNG"
    Delete "$INSTDIR\PackageContents.xml"
    Delete "$INSTDIR\uninstall.exe"
    ; The user's settings and the languages that the user added stay, and with them their folders.
    RMDir "$INSTDIR\Contents"
    RMDir "$INSTDIR"
SectionEnd
