Opened duplicate_handles.dxf
1 finding on reading:
  K8 33: handle 1A: the handle is taken by an earlier object, which keeps it
; drawing: tests/faults/duplicate_handles.dxf
; options: --keep-going
; exit: 1
Command: LIST
References  Block
Command: VNREPLACE
+-- Quillet 1.0 (!)
|  No block références were found in this drawing.
+-- [ok]
> ok
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace (disabled)
    Label3: Block name (disabled)
    lstDestination: 0 entries (disabled)
    BtnSelectName: [Select] (disabled)
    Label4: Reference zone (disabled)
    optZoneAll: (o) Whole drawing (disabled)
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection (disabled)
  Frame2: Replacement block (disabled)
    Label5: Block name (disabled)
    CboBlocReplacer: "" (disabled)
    Label1: Insertion parameters ( Tick to change ) (disabled)
    chkRotation: [ ] Rotation (disabled)
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility (disabled)
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale (disabled)
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale (disabled)
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale (disabled)
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace] (disabled)
  BtnClose: [Close]
  Label2: Number of blocks to replace: (disabled)
  LblNbrSelected: 0 (disabled)
> BtnClose
[fmReplace] hidden
Command: SAVE result.dxf
Saved result.dxf
vorlane-console: line 6: ok: No block références were found in this drawing.
Opened no_entities.dxf
1 finding on reading:
  K5 1: there is no section ENTITIES
; drawing: tests/faults/no_entities.dxf
; options: --keep-going
; exit: 1
Command: LIST
References  Block
Command: VNREPLACE
+-- Quillet 1.0 (!)
|  No block références were found in this drawing.
+-- [ok]
> ok
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace (disabled)
    Label3: Block name (disabled)
    lstDestination: 0 entries (disabled)
    BtnSelectName: [Select] (disabled)
    Label4: Reference zone (disabled)
    optZoneAll: (o) Whole drawing (disabled)
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection (disabled)
  Frame2: Replacement block (disabled)
    Label5: Block name (disabled)
    CboBlocReplacer: "" (disabled)
    Label1: Insertion parameters ( Tick to change ) (disabled)
    chkRotation: [ ] Rotation (disabled)
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility (disabled)
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale (disabled)
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale (disabled)
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale (disabled)
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace] (disabled)
  BtnClose: [Close]
  Label2: Number of blocks to replace: (disabled)
  LblNbrSelected: 0 (disabled)
> BtnClose
[fmReplace] hidden
Command: SAVE result.dxf
Saved result.dxf
vorlane-console: line 6: ok: No block références were found in this drawing.
