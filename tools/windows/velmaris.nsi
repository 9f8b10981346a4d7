; The installer: for the user alone, without an administrator's rights, or for all users. Words of the call: /S silent,
; /CurrentUser, /AllUsers, /D=FOLDER (the last one, without quotes).
; Made by tools/windows/build.sh, which defines VERSION, NUMMER (of four parts), ORDNER, ICO, BILD and ZIEL, and writes
; the list of files.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestSupportedOS Win10

Name "Velmaris"
OutFile "${ZIEL}"
BrandingText "Velmaris ${VERSION}"

!define EIGENER_SCHLUESSEL "Software\Velmaris"
!define ABMELDUNG "Software\Microsoft\Windows\CurrentVersion\Uninstall\Velmaris"
!define PROJEKTART "Velmaris.Projekt"

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR "Velmaris"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${EIGENER_SCHLUESSEL}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "Ordner"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${EIGENER_SCHLUESSEL}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "Ordner"
!define MULTIUSER_INIT_TEXT_ALLUSERSNOTPOSSIBLE "$(FuerAlleNichtErlaubt)"
!include MultiUser.nsh
!include MUI2.nsh
!include WinVer.nsh
!include "${DATEILISTE}"

!define MUI_ICON "${ICO}"
!define MUI_UNICON "${ICO}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${BILD}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION programm_starten
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

; The first one is for systems in neither language.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"

LangString FuerAlleNichtErlaubt ${LANG_GERMAN} "Für alle Benutzer kann Velmaris nur mit den Rechten eines Administrators eingerichtet werden."
LangString FuerAlleNichtErlaubt ${LANG_ENGLISH} "Installing Velmaris for all users takes the rights of an administrator."
LangString ZuAlt ${LANG_GERMAN} "Velmaris braucht Windows 10 oder neuer. Trotzdem einrichten?"
LangString ZuAlt ${LANG_ENGLISH} "Velmaris needs Windows 10 or newer. Install it nevertheless?"
LangString Laeuft ${LANG_GERMAN} "Velmaris läuft noch. Bitte beenden Sie das Programm und versuchen Sie es dann wieder."
LangString Laeuft ${LANG_ENGLISH} "Velmaris is still running. Please end the program and try again."
LangString Art ${LANG_GERMAN} "Velmaris-Projekt"
LangString Art ${LANG_ENGLISH} "Velmaris project"
LangString Zweck ${LANG_GERMAN} "Heiz- und Kühlenergie eines Gebäudes"
LangString Zweck ${LANG_ENGLISH} "Heating and cooling energy of a building"

VIProductVersion "${NUMMER}"
VIAddVersionKey /LANG=${LANG_GERMAN} "ProductName" "Velmaris"
VIAddVersionKey /LANG=${LANG_GERMAN} "FileDescription" "Velmaris einrichten"
VIAddVersionKey /LANG=${LANG_GERMAN} "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_GERMAN} "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_GERMAN} "LegalCopyright" ""

; As the user, even where the installer runs as an administrator.
Function programm_starten
    Exec '"$WINDIR\explorer.exe" "$INSTDIR\velmaris.exe"'
FunctionEnd

; A running program keeps its file from being replaced or removed.
!macro laufendes_pruefen
    ClearErrors
    ${If} ${FileExists} "$INSTDIR\velmaris.exe"
        FileOpen $0 "$INSTDIR\velmaris.exe" a
        ${If} ${Errors}
            MessageBox MB_OK|MB_ICONEXCLAMATION "$(Laeuft)" /SD IDOK
            SetErrorLevel 2
            Abort "$(Laeuft)"
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend

Function .onInit
    ; Wine has what the program needs, whatever version it tells.
    System::Call 'kernel32::GetModuleHandle(t "ntdll") p .r0'
    System::Call 'kernel32::GetProcAddress(p r0, m "wine_get_version") p .r0'
    ${IfNot} ${AtLeastWin10}
    ${AndIf} $0 == 0
    ${AndIf} ${Cmd} `MessageBox MB_YESNO|MB_ICONEXCLAMATION|MB_DEFBUTTON2 "$(ZuAlt)" /SD IDYES IDNO`
        SetErrorLevel 2
        Quit
    ${EndIf}
    StrCpy $1 $INSTDIR ; what /D= says, else nothing
    !insertmacro MULTIUSER_INIT
    ${If} $1 != ""
        StrCpy $INSTDIR $1
    ${EndIf}
FunctionEnd

Function un.onInit
    StrCpy $1 $INSTDIR ; where the uninstaller lies
    !insertmacro MULTIUSER_UNINIT
    StrCpy $INSTDIR $1
FunctionEnd

Section
    !insertmacro laufendes_pruefen
    SetOutPath "$INSTDIR"
    File /r "${ORDNER}/*"
    WriteUninstaller "$INSTDIR\entfernen.exe"
    CreateShortcut "$SMPROGRAMS\Velmaris.lnk" "$INSTDIR\velmaris.exe" "" "$INSTDIR\velmaris.exe" 0 "" "" "$(Zweck)"

    WriteRegStr SHCTX "${EIGENER_SCHLUESSEL}" "Ordner" "$INSTDIR"
    WriteRegStr SHCTX "Software\Classes\${PROJEKTART}" "" "$(Art)"
    WriteRegStr SHCTX "Software\Classes\${PROJEKTART}\DefaultIcon" "" "$INSTDIR\velmaris.exe,1"
    WriteRegStr SHCTX "Software\Classes\${PROJEKTART}\shell\open\command" "" '"$INSTDIR\velmaris.exe" "%1"'
    WriteRegStr SHCTX "Software\Classes\.vel" "" "${PROJEKTART}"
    WriteRegStr SHCTX "Software\Classes\.vel" "Content Type" "application/x-velmaris"
    WriteRegStr SHCTX "Software\Classes\.vel\OpenWithProgids" "${PROJEKTART}" ""

    WriteRegStr SHCTX "${ABMELDUNG}" "DisplayName" "Velmaris"
    WriteRegStr SHCTX "${ABMELDUNG}" "DisplayVersion" "${VERSION}"
    WriteRegStr SHCTX "${ABMELDUNG}" "DisplayIcon" "$INSTDIR\velmaris.exe"
    WriteRegStr SHCTX "${ABMELDUNG}" "Publisher" "Velmaris"
    WriteRegStr SHCTX "${ABMELDUNG}" "InstallLocation" "$INSTDIR"
    WriteRegStr SHCTX "${ABMELDUNG}" "UninstallString" '"$INSTDIR\entfernen.exe" /$MultiUser.InstallMode'
    WriteRegStr SHCTX "${ABMELDUNG}" "QuietUninstallString" '"$INSTDIR\entfernen.exe" /$MultiUser.InstallMode /S'
    WriteRegDWORD SHCTX "${ABMELDUNG}" "EstimatedSize" ${KILOBYTE}
    WriteRegDWORD SHCTX "${ABMELDUNG}" "NoModify" 1
    WriteRegDWORD SHCTX "${ABMELDUNG}" "NoRepair" 1
    System::Call 'shell32::SHChangeNotify(i 0x8000000, i 0, p 0, p 0)'
SectionEnd

; What the user put into the folder, stations of his own for instance, stays.
Section Uninstall
    !insertmacro laufendes_pruefen
    !insertmacro dateien_entfernen
    Delete "$INSTDIR\klima\typ.dat"
    Delete "$INSTDIR\entfernen.exe"
    !insertmacro ordner_entfernen
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Velmaris.lnk"

    ReadRegStr $0 SHCTX "Software\Classes\.vel" ""
    ${If} $0 == "${PROJEKTART}"
        DeleteRegValue SHCTX "Software\Classes\.vel" ""
        DeleteRegValue SHCTX "Software\Classes\.vel" "Content Type"
    ${EndIf}
    DeleteRegValue SHCTX "Software\Classes\.vel\OpenWithProgids" "${PROJEKTART}"
    DeleteRegKey /ifempty SHCTX "Software\Classes\.vel\OpenWithProgids"
    DeleteRegKey /ifempty SHCTX "Software\Classes\.vel"
    DeleteRegKey SHCTX "Software\Classes\${PROJEKTART}"
    DeleteRegKey SHCTX "${ABMELDUNG}"
    DeleteRegKey SHCTX "${EIGENER_SCHLUESSEL}"
    System::Call 'shell32::SHChangeNotify(i 0x8000000, i 0, p 0, p 0)'
SectionEnd
