Opened apartment.dxf
; drawing: samples/apartment.dxf
; options: --keep-going
; exit: 1
; run: print_references.py result.dxf NORD
; run: print_references.py result.dxf ARBRE
; The old reference stands on a locked layer and can't be deleted: both are there.
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 20 entries
      > 0 *D2
        1 *D3
        2 *D4
        3 *U1
        4 ARBRE
        5 BAIGNOIRE
        6 CANAPE
        7 CARTOUCHE
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
        2 *D2
        3 *D3
        4 *D4
        5 *U1
        6 _CLOSEDFILLED
        7 ARBRE
        ... and 16 more
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
> lstDestination = NORD
> CboBlocReplacer = ARBRE
(typed only; "CboBlocReplacer : ARBRE" chooses the entry)
> BtnReplace
! Error -2145386239: Object on locked layer: FOND_PLAN
  Unlock the layer, or leave its objects out by selecting a zone. U takes back what was done.
> BtnClose
[fmReplace] hidden
Command: SAVE result.dxf
Saved result.dxf
vorlane-console: line 10: BtnReplace: Error -2145386239: Object on locked layer: FOND_PLAN
-- run print_references.py result.dxf NORD
Model: at 19,10.6,0 scale 1,1,1 rotation -20 layer FOND_PLAN
-- run print_references.py result.dxf ARBRE
Model: at 11,-4.5,0 scale 1.2,1.2,1.2 rotation 18 layer JARDIN
Model: at 17.2,-1,0 scale 0.8,0.8,0.8 rotation 12 layer JARDIN
Model: at 2,-4.8,0 scale 1,1,1 rotation 15 layer JARDIN
Model: at 5.5,-4.6,0 scale 0.9,0.9,0.9 rotation 13.5 layer JARDIN
Model: at 19,10.6,0 scale 1,1,1 rotation -20 layer 0
