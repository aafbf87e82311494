; Installer for Windows. tools/package-windows runs makensis with
;   VERSION  number of the release
;   FILES    script with a File line for each file, by folders
;   DELETES  script that deletes the same files
;   ICON     icon of the installer
;   OUTPUT   path of the installer
;
; Switches: /S installs without asking; /CurrentUser (for this user, without administrator's rights; the default)
; or /AllUsers; /D=FOLDER, which must be the last.
Target amd64-unicode
Unicode true
SetCompressor /SOLID lzma

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_DEFAULT_CURRENTUSER
!define MULTIUSER_INSTALLMODE_INSTDIR Zelk
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY Software\Zelk
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME Folder
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY Software\Zelk
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME Folder
!define MULTIUSER_USE_PROGRAMFILES64
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

Name "Zelk ${VERSION}"
OutFile "${OUTPUT}"
BrandingText " "
VIProductVersion ${VERSION}.0
VIAddVersionKey ProductName Zelk
VIAddVersionKey ProductVersion ${VERSION}
VIAddVersionKey FileVersion ${VERSION}
VIAddVersionKey FileDescription "Zelk, installer"
VIAddVersionKey CompanyName "Zelk developers"
VIAddVersionKey LegalCopyright ""

!define FILE_TYPE Zelk.ChannelFile
!define CLASSES Software\Classes
!define ENTRY Software\Microsoft\Windows\CurrentVersion\Uninstall\Zelk
!define POSITIONS Software\zelk\Persistent_Options

!define MUI_FINISHPAGE_RUN $INSTDIR\zelk.exe
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

!macro TellAboutFileTypes
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)' ; SHCNE_ASSOCCHANGED
!macroend

Function .onInit
    SetRegView 64
    !insertmacro MULTIUSER_INIT
FunctionEnd

Section
    !include "${FILES}"
    SetOutPath $INSTDIR
    WriteUninstaller $INSTDIR\uninstall.exe

    CreateDirectory $SMPROGRAMS\Zelk
    CreateShortcut $SMPROGRAMS\Zelk\Zelk.lnk $INSTDIR\zelk.exe
    CreateShortcut "$SMPROGRAMS\Zelk\User guide.lnk" $INSTDIR\ZelkUserGuide.pdf

    WriteRegStr SHCTX ${CLASSES}\${FILE_TYPE} "" "Zelk channel file"
    WriteRegStr SHCTX ${CLASSES}\${FILE_TYPE}\DefaultIcon "" "$INSTDIR\zelk.exe,0"
    WriteRegStr SHCTX ${CLASSES}\${FILE_TYPE}\shell\open\command "" '"$INSTDIR\zelk.exe" "%1"'
    WriteRegStr SHCTX ${CLASSES}\.zelk "" ${FILE_TYPE}
    WriteRegStr SHCTX ${CLASSES}\.zelk\OpenWithProgids ${FILE_TYPE} ""
    !insertmacro TellAboutFileTypes

    WriteRegStr SHCTX Software\Zelk Folder $INSTDIR
    WriteRegStr SHCTX ${ENTRY} DisplayName Zelk
    WriteRegStr SHCTX ${ENTRY} DisplayVersion ${VERSION}
    WriteRegStr SHCTX ${ENTRY} DisplayIcon "$INSTDIR\zelk.exe,0"
    WriteRegStr SHCTX ${ENTRY} Publisher "Zelk developers"
    WriteRegStr SHCTX ${ENTRY} InstallLocation $INSTDIR
    WriteRegStr SHCTX ${ENTRY} UninstallString '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
    WriteRegStr SHCTX ${ENTRY} QuietUninstallString '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode /S'
    WriteRegDWORD SHCTX ${ENTRY} NoModify 1
    WriteRegDWORD SHCTX ${ENTRY} NoRepair 1
    ${GetSize} $INSTDIR "/S=0K" $0 $1 $2
    IntFmt $0 0x%08X $0
    WriteRegDWORD SHCTX ${ENTRY} EstimatedSize $0
SectionEnd

Function un.onInit
    SetRegView 64
    !insertmacro MULTIUSER_UNINIT
FunctionEnd

; Files that a user has put into the folder stay, and the folder with them.
Section Uninstall
    !include "${DELETES}"
    Delete $INSTDIR\uninstall.exe
    RMDir $INSTDIR
    Delete $SMPROGRAMS\Zelk\Zelk.lnk
    Delete "$SMPROGRAMS\Zelk\User guide.lnk"
    RMDir $SMPROGRAMS\Zelk

    ReadRegStr $0 SHCTX ${CLASSES}\.zelk ""
    ${If} $0 == ${FILE_TYPE}
        DeleteRegValue SHCTX ${CLASSES}\.zelk ""
    ${EndIf}
    DeleteRegValue SHCTX ${CLASSES}\.zelk\OpenWithProgids ${FILE_TYPE}
    DeleteRegKey /ifempty SHCTX ${CLASSES}\.zelk\OpenWithProgids
    DeleteRegKey /ifempty SHCTX ${CLASSES}\.zelk
    DeleteRegKey SHCTX ${CLASSES}\${FILE_TYPE}
    !insertmacro TellAboutFileTypes

    DeleteRegKey SHCTX ${ENTRY}
    DeleteRegValue SHCTX Software\Zelk Folder
    DeleteRegKey /ifempty SHCTX Software\Zelk
    ; What the program itself has kept for this user: places of windows, and the log of the last transfer.
    DeleteRegKey HKCU ${POSITIONS}
    DeleteRegKey /ifempty HKCU Software\zelk
    SetShellVarContext current
    Delete $APPDATA\zelk\Zelk.log
    RMDir $APPDATA\zelk
SectionEnd
