Opened example_r12.dxf
; drawing: corpus/example_r12.dxf
; check: result.dxf
Command: LIST
References  Block
         2  BLOKO
         8  CIRKLO_PUNKTOJ
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
         0  *T14
         1  *U15
         1  *U16
         1  *X17
         1  *U18
         1  *U19
         0  *U20
         1  *D21
         0  *U22
         0  *U23
         0  *U24
         0  *U25
         0  *U26
         0  *U27
         0  *U28
         0  *U29
         1  *U30
         0  *U31
         0  *U32
         0  *U33
         0  *U34
         0  *U35
         0  *U36
         0  *U37
         1  *U38
         1  *U39
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 20 entries
      > 0 *D10
        1 *D11
        2 *D12
        3 *D13
        4 *D21
        5 *D4
        6 *D6
        7 *D7
        ... and 12 more
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
        2 *D10
        3 *D11
        4 *D12
        5 *D13
        6 *D21
        7 *D4
        ... and 32 more
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
> lstDestination = BLOKO
> CboBlocReplacer = CIRKLO_PUNKTOJ
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         0  BLOKO
        10  CIRKLO_PUNKTOJ
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
         0  *T14
         1  *U15
         1  *U16
         1  *X17
         1  *U18
         1  *U19
         0  *U20
         1  *D21
         0  *U22
         0  *U23
         0  *U24
         0  *U25
         0  *U26
         0  *U27
         0  *U28
         0  *U29
         1  *U30
         0  *U31
         0  *U32
         0  *U33
         0  *U34
         0  *U35
         0  *U36
         0  *U37
         1  *U38
         1  *U39
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 2 ATTRIB, 2 INSERT, 2 SEQEND
added: 2 INSERT
