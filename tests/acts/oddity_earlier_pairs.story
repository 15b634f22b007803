Opened apartment.dxf
; drawing: samples/apartment.dxf
; options: --keep-going
; exit: 1
; Pairs of an earlier block stay in force by position: a block with fewer attributes fails at the first of them.
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
> lstDestination = PORTE_90
> CboBlocReplacer # 20
> ChkAttSet
> BtnAttSet
[fmAttSet] Vorlane 1.0 : Attribute value transfer settings
  Frame1: Matching table
    ListView1: 4 rows
        # | Attribut dans le bloc source | Attribut dans le bloc de destination
      > 1 | CODE |
        2 | PASSAGE |
        3 | COUPE_FEU |
        4 | HUISSERIE |
  Combo2: ""
      0 CODE
      1 COUPE_FEU
      2 HUISSERIE
      3 PASSAGE
  Label3: Attribute in the destination block:
  OKButton: [OK]
> ListView1 # 4
> Combo2 = PASSAGE
> OKButton
[fmAttSet] hidden
> lstDestination = PORTE_80
> BtnReplace
! Error 9: Subscript out of range
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
        16  PORTE_80
         4  PORTE_90
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
The changes to apartment.dxf were not saved.
vorlane-console: line 14: BtnReplace: Error 9: Subscript out of range
