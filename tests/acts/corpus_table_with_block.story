Opened table_with_block.dxf
; drawing: corpus/table_with_block.dxf
; options: --keep-going
; exit: 1
; check: result.dxf
; A table carries the name of its block too, but is no reference: it lacks the scale factors.
Command: LIST
References  Block
         0  B1
and 2 without name or references (of dimensions and the like)
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 1 entry
      > 0 *T2
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
        2 *T1
        3 *T2
        4 B1
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
> show
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 1 entry
      > 0 *T2
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
        2 *T1
        3 *T2
        4 B1
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
> CboBlocReplacer = B1
(typed only; "CboBlocReplacer : B1" chooses the entry)
> BtnReplace
! Error 438: Object doesn't support this property or method: 'InsertionPoint'
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         0  B1
and 2 without name or references (of dimensions and the like)
Command: SAVE result.dxf
Saved result.dxf
vorlane-console: line 10: BtnReplace: Error 438: Object doesn't support this property or method: 'InsertionPoint'
-- check result.dxf
removed: none
added: none
