Opened architecture.dxf
; drawing: corpus/architecture.dxf
; check: result.dxf
Command: LIST
References  Block
         3  PUERTA
        10  SOFA
         1  MESACENTRO
         0  _ArchTick
         4  ARBRE10
         4  ARBRE11
         3  ARBUST10
         2  start
         1  arrow
         1  ARBOL
         0  *D11
         0  *D12
         0  *D13
         0  *D14
         0  *D15
         0  *D16
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 15 entries
      > 0 *D11
        1 *D12
        2 *D13
        3 *D14
        4 *D15
        5 *D16
        6 ARBOL
        7 ARBRE10
        ... and 7 more
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
        2 *D11
        3 *D12
        4 *D13
        5 *D14
        6 *D15
        7 *D16
        ... and 10 more
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
> lstDestination = SOFA
> CboBlocReplacer = ARBRE10
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         3  PUERTA
         0  SOFA
         1  MESACENTRO
         0  _ArchTick
        14  ARBRE10
         4  ARBRE11
         3  ARBUST10
         2  start
         1  arrow
         1  ARBOL
         0  *D11
         0  *D12
         0  *D13
         0  *D14
         0  *D15
         0  *D16
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 10 INSERT
added: 10 INSERT
