Opened apartment.dxf
; drawing: samples/apartment.dxf
; options: --keep-going
; exit: 1
; A pick broken off in Select of the source side ends the command with the dialog hidden.
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
> BtnSelectName
[fmReplace] hidden
Select one block reference of the group to be replaced :esc
+-- Vorlane 1.0: Selection of a block reference (!)
|  The selected object is not a block reference.
+-- [ok] [cancel]
> cancel
! Error 91: Object variable not set
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
; So does the selection of a zone.
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
> optZoneSelection
[fmReplace] hidden
Select objects: esc
! Error -2147352567: Method failed: SelectOnScreen: broken off by the user
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
; One for the replacement block comes back, with an empty name.
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
> CboBlocReplacer # 0
[fmReplace] hidden
Select the new bloc for the replacement :esc
+-- Vorlane 1.0: Selection of a block reference (!)
|  The selected object is not a block reference.
+-- [ok] [cancel]
> cancel
! Error 91: Object variable not set
[fmReplace] Vorlane 1.0 : Block replacement (again)
> show
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
        8 CHAISE
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
  LblNbrSelected: 1
; A wrong pick asks again.
> CboBlocReplacer # 0
[fmReplace] hidden
Select the new bloc for the replacement :18,0
+-- Vorlane 1.0: Selection of a block reference (!)
|  The selected object is not a block reference.
+-- [ok] [cancel]
> ok
Select the new bloc for the replacement :@242
[fmReplace] Vorlane 1.0 : Block replacement (again)
> show
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
        8 CHAISE
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
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
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
  LblNbrSelected: 1
; And the source side, picked well.
> BtnSelectName
[fmReplace] hidden
Select one block reference of the group to be replaced :@16A
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
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
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
  LblNbrSelected: 2
> BtnClose
[fmReplace] hidden
vorlane-console: line 8: cancel: Error 91: Object variable not set
vorlane-console: line 13: esc: Error -2147352567: Method failed: SelectOnScreen: broken off by the user
vorlane-console: line 19: cancel: Error 91: Object variable not set
