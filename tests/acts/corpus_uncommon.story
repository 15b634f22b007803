Opened uncommon.dxf
; drawing: corpus/uncommon.dxf
; check: result.dxf
Command: LIST
References  Block
         0  *D1
         0  *D2
         0  *D3
         0  *D4
         0  *D5
         0  *D6
         0  *D7
         0  *D8
         0  *D9
         0  *D10
         0  *D11
         0  *D12
         0  *D13
         0  *D14
         0  *D15
         0  *D16
         0  *D17
         0  *D18
         0  *D19
         0  *D20
         0  *D21
         0  *D22
         0  *D23
         0  *D24
         0  *D25
         0  *D26
         0  *D27
         1  DATE_BLOCK
         0  A$C3e977400
         0  A$C84c221ce
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 17 entries
      > 0 *D12
        1 *D13
        2 *D15
        3 *D16
        4 *D17
        5 *D18
        6 *D19
        7 *D20
        ... and 9 more
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
        2 *D1
        3 *D10
        4 *D11
        5 *D12
        6 *D13
        7 *D14
        ... and 24 more
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
  LblNbrSelected: 1
> lstDestination = DATE_BLOCK
> CboBlocReplacer = A$C84c221ce
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         0  *D1
         0  *D2
         0  *D3
         0  *D4
         0  *D5
         0  *D6
         0  *D7
         0  *D8
         0  *D9
         0  *D10
         0  *D11
         0  *D12
         0  *D13
         0  *D14
         0  *D15
         0  *D16
         0  *D17
         0  *D18
         0  *D19
         0  *D20
         0  *D21
         0  *D22
         0  *D23
         0  *D24
         0  *D25
         0  *D26
         0  *D27
         0  DATE_BLOCK
         0  A$C3e977400
         1  A$C84c221ce
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 1 ATTRIB, 2 DICTIONARY, 2 FIELD, 1 INSERT, 1 SEQEND
added: 1 INSERT
