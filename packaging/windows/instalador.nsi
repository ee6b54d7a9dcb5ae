; The installer of the program for Windows: for one account, without rights, in Spanish and English.
; build.sh gives VERSION, CARPETA (what is installed), LISTA (what is taken away), ICONO and SALIDA.
; Silent: /S, with /D=FOLDER as the last word.
Unicode true
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma
!include "MUI2.nsh"
!include "FileFunc.nsh"

!define CLAVE "Software\Microsoft\Windows\CurrentVersion\Uninstall\Numora"
Name "Numora"
OutFile "${SALIDA}"
InstallDir "$LOCALAPPDATA\Programs\Numora"
InstallDirRegKey HKCU "${CLAVE}" "InstallLocation"
BrandingText "Numora ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=0 "ProductName" "Numora"
VIAddVersionKey /LANG=0 "FileDescription" "Numora"
VIAddVersionKey /LANG=0 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=0 "LegalCopyright" "GPL-3.0-or-later"

!define MUI_ICON "${ICONO}"
!define MUI_UNICON "${ICONO}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\numora.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Spanish"
!insertmacro MUI_LANGUAGE "English"

LangString ABIERTO ${LANG_SPANISH} "Numora está abierto. Ciérrelo y vuelva a intentarlo."
LangString ABIERTO ${LANG_ENGLISH} "Numora is open. Close it and try again."
LangString PROGRAMA ${LANG_SPANISH} "El programa"
LangString PROGRAMA ${LANG_ENGLISH} "The program"
LangString LOMIO ${LANG_SPANISH} "Mis ajustes, mi progreso y mis claves"
LangString LOMIO ${LANG_ENGLISH} "My settings, my progress and my keys"

; A program that runs keeps its file closed to writers.
!macro SiEstaAbierto un
Function ${un}SiEstaAbierto
    IfFileExists "$INSTDIR\numora.exe" 0 cerrado
    ClearErrors
    FileOpen $0 "$INSTDIR\numora.exe" a
    IfErrors 0 libre
    MessageBox MB_OK|MB_ICONEXCLAMATION "$(ABIERTO)" /SD IDOK
    SetErrorLevel 2
    Quit
libre:
    FileClose $0
cerrado:
FunctionEnd
!macroend
!insertmacro SiEstaAbierto ""
!insertmacro SiEstaAbierto "un."

; What stands from before goes by its own uninstaller, so that nothing old stays behind.
Section "Numora"
    Call SiEstaAbierto
    IfFileExists "$INSTDIR\desinstala.exe" 0 +2
    ExecWait '"$INSTDIR\desinstala.exe" /S _?=$INSTDIR'
    SetOutPath "$INSTDIR"
    File /r "${CARPETA}\*"
    WriteUninstaller "$INSTDIR\desinstala.exe"
    CreateShortcut "$SMPROGRAMS\Numora.lnk" "$INSTDIR\numora.exe"
    WriteRegStr HKCU "${CLAVE}" "DisplayName" "Numora"
    WriteRegStr HKCU "${CLAVE}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${CLAVE}" "DisplayIcon" "$INSTDIR\numora.exe"
    WriteRegStr HKCU "${CLAVE}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${CLAVE}" "UninstallString" '"$INSTDIR\desinstala.exe"'
    WriteRegStr HKCU "${CLAVE}" "QuietUninstallString" '"$INSTDIR\desinstala.exe" /S'
    WriteRegDWORD HKCU "${CLAVE}" "NoModify" 1
    WriteRegDWORD HKCU "${CLAVE}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKCU "${CLAVE}" "EstimatedSize" $0
SectionEnd

Section "un.$(PROGRAMA)"
    SectionIn RO
    Call un.SiEstaAbierto
    !include "${LISTA}"
    Delete "$INSTDIR\desinstala.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Numora.lnk"
    DeleteRegKey HKCU "${CLAVE}"
SectionEnd

; Only when it is asked for: what the student has done is not the program's.
Section /o "un.$(LOMIO)"
    RMDir /r "$APPDATA\Numora"
    RMDir /r "$LOCALAPPDATA\Numora"
SectionEnd
