Opened empty.dxf
; drawing: samples/empty.dxf
; options: --keep-going
; exit: 1
; before: mkdir -p data/vorlane && printf ':Language=English\r\n012_me=Only this\r\n' > data/vorlane/English.LNG
; A user's language file that lacks nearly all keys is left alone: what it lacks is empty.
Command: VNREPLACE
+-- Message (!)
|  
+-- [ok]
> ok
[fmReplace] Vorlane 1.0 : Only this
  Frame1: (disabled)
    Label3: (disabled)
    lstDestination: 0 entries (disabled)
    BtnSelectName: [] (disabled)
    Label4: (disabled)
    optZoneAll: (o)  (disabled)
    BtnSelectZone: [] (disabled)
    optZoneSelection: ( )  (disabled)
  Frame2: (disabled)
    Label5: (disabled)
    CboBlocReplacer: "" (disabled)
    Label1: (disabled)
    chkRotation: [ ]  (disabled)
    txtRotation: "" (disabled)
    chkVisibility: [ ]  (disabled)
    cboVisibility: "" (disabled)
        0 
        1 
      > 2 
    chkXScale: [ ]  (disabled)
    txtXScale: "" (disabled)
    chkYScale: [ ]  (disabled)
    txtYScale: "" (disabled)
    chkZScale: [ ]  (disabled)
    txtZScale: "" (disabled)
    ChkAttSet: [ ]  (disabled)
    BtnAttSet: [] (disabled)
  BtnReplace: [] (disabled)
  BtnClose: []
  Label2: (disabled)
  LblNbrSelected: (disabled)
> BtnClose
[fmReplace] hidden
vorlane-console: line 7: ok: 
