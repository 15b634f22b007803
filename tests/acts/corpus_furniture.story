Opened furniture.dxf
; drawing: corpus/furniture.dxf
; check: result.dxf
; The program that wrote this drawing gives its references a Z scale of 0, which reads as 1.
Command: LIST
References  Block
         1  V-BEDTABLE
         1  V-DRAWERS
         1  V-CHAIR
         1  V-SOFA
         1  V-FRIDGE
         1  V-WORKTOP
         1  V-COFFEETABLE
         1  V-BATH
         1  V-BED
         1  V-TOILET
         1  V-BASIN
         1  V-RDTABLE
         1  V-SINK
         1  V-COOKER
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 14 entries
      > 0 V-BASIN
        1 V-BATH
        2 V-BED
        3 V-BEDTABLE
        4 V-CHAIR
        5 V-COFFEETABLE
        6 V-COOKER
        7 V-DRAWERS
        ... and 6 more
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
        2 V-BASIN
        3 V-BATH
        4 V-BED
        5 V-BEDTABLE
        6 V-CHAIR
        7 V-COFFEETABLE
        ... and 8 more
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
> lstDestination = V-CHAIR
> CboBlocReplacer = V-SOFA
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         1  V-BEDTABLE
         1  V-DRAWERS
         0  V-CHAIR
         2  V-SOFA
         1  V-FRIDGE
         1  V-WORKTOP
         1  V-COFFEETABLE
         1  V-BATH
         1  V-BED
         1  V-TOILET
         1  V-BASIN
         1  V-RDTABLE
         1  V-SINK
         1  V-COOKER
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 1 INSERT
added: 1 INSERT
