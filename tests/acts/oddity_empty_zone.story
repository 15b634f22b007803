Opened apartment.dxf
; drawing: samples/apartment.dxf
; An empty zone is replaced with success.
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
> lstDestination = CHAISE
> CboBlocReplacer = ARBRE
(typed only; "CboBlocReplacer : ARBRE" chooses the entry)
> optZoneSelection
[fmReplace] hidden
Select objects: 
[fmReplace] Vorlane 1.0 : Block replacement (again)
> show
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 20 entries
        0 *D2
        1 *D3
        2 *D4
        3 *U1
        4 ARBRE
        5 BAIGNOIRE
        6 CANAPE
        7 CARTOUCHE
      > 8 CHAISE
        9 ENSEMBLE_REPAS
        10 ETIQUETTE_PIECE
        11 EVIER
        12 FENETRE_120
        13 LAVABO
        14 LIT_140
        15 NORD
        16 PORTE_80
        17 PORTE_90
        18 POTEAU
        19 WC
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: ( ) Whole drawing
    BtnSelectZone: [Select]
    optZoneSelection: (o) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: "ARBRE"
        0 <<< Select
        1 Browse >>>
        2 *D2
        3 *D3
        4 *D4
        5 *U1
        6 _CLOSEDFILLED
      > 7 ARBRE
        8 BAIGNOIRE
        9 CANAPE
        10 CARTOUCHE
        11 CHAISE
        12 ENSEMBLE_REPAS
        13 ETIQUETTE_PIECE
        14 EVIER
        15 FENETRE_120
        16 LAVABO
        17 LIT_140
        18 NORD
        19 PORTE_80
        20 PORTE_90
        21 POTEAU
        22 TABLE_160
        23 WC
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
  LblNbrSelected: 0
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
        16  PORTE_80
         3  PORTE_90
        10  FENETRE_120
         2  CHAISE
         0  TABLE_160
         2  ENSEMBLE_REPAS
         4  LIT_140
         2  CANAPE
         2  EVIER
         2  LAVABO
         2  BAIGNOIRE
         2  WC
         2  *U1
        17  ETIQUETTE_PIECE
         1  POTEAU
         1  NORD
         4  ARBRE
         1  CARTOUCHE
         0  _CLOSEDFILLED
and 3 without name or references (of dimensions and the like)
