Opened big.dxf
; drawing: big 32767
; options: --keep-going
; exit: 1
; The counter overflows after the last reference of 32767: all are replaced, and the closing message is lost. One more
; doesn't fit the counter: nothing is replaced.
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 2 entries
      > 0 LAMP
        1 SPOT
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 LAMP
        3 SPOT
    Label1: Insertion parameters ( Tick to change )
    chkRotation: [ ] Rotation
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 32767
> lstDestination = LAMP
> CboBlocReplacer = SPOT
(typed only; "CboBlocReplacer : SPOT" chooses the entry)
> BtnReplace
! Error 6: Overflow
  A command counts to 32,767: take fewer references at a time, zone by zone.
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         0  LAMP
     32768  SPOT
The changes to big.dxf were not saved.
vorlane-console: line 9: BtnReplace: Error 6: Overflow
Opened big.dxf
; drawing: big 32768
; options: --keep-going
; exit: 1
; The counter overflows after the last reference of 32767: all are replaced, and the closing message is lost. One more
; doesn't fit the counter: nothing is replaced.
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 2 entries
      > 0 LAMP
        1 SPOT
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 LAMP
        3 SPOT
    Label1: Insertion parameters ( Tick to change )
    chkRotation: [ ] Rotation
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 32768
> lstDestination = LAMP
> CboBlocReplacer = SPOT
(typed only; "CboBlocReplacer : SPOT" chooses the entry)
> BtnReplace
! Error 6: Overflow
  A command counts to 32,767: take fewer references at a time, zone by zone.
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
     32768  LAMP
         1  SPOT
vorlane-console: line 9: BtnReplace: Error 6: Overflow
