Opened multi_insert_with_attribs.dxf
; drawing: corpus/multi_insert_with_attribs.dxf
; check: result.dxf
Command: LIST
References  Block
         1  FLAG
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 1 entry
      > 0 FLAG
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
        2 FLAG
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
> lstDestination = FLAG
> CboBlocReplacer = FLAG
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         1  FLAG
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 3 ATTRIB, 1 INSERT, 1 SEQEND
added: 3 ATTRIB, 1 INSERT, 1 SEQEND
