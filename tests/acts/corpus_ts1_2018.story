Opened ts1_2018.dxf
; drawing: corpus/ts1_2018.dxf
; check: result.dxf
Command: LIST
References  Block
         1  some block
         0  *D2
         0  *D3
         0  *D4
         0  *D5
         0  *D6
         0  *D7
         0  *T8
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 8 entries
      > 0 *D2
        1 *D3
        2 *D4
        3 *D5
        4 *D6
        5 *D7
        6 *T8
        7 some block
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
        2 *D2
        3 *D3
        4 *D4
        5 *D5
        6 *D6
        7 *D7
        ... and 2 more
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
> lstDestination = some block
> CboBlocReplacer = some block
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         1  some block
         0  *D2
         0  *D3
         0  *D4
         0  *D5
         0  *D6
         0  *D7
         0  *T8
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 1 ATTRIB, 1 DICTIONARY, 1 INSERT, 1 SEQEND
added: 1 ATTRIB, 1 INSERT, 1 SEQEND
